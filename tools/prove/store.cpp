#include "tools/prove/store.h"

#include <bit>

namespace zentrox::prove {

namespace {

constexpr std::size_t firstTable = 1024;
constexpr std::uint64_t placeMask = 0xFFFFFFFFFFFF0000;  // of the head: room and stack

std::uint64_t mixed(std::uint64_t x) {
    x = (x ^ x >> 32U) * 0xD6E8FEB86659FD93U;
    x = (x ^ x >> 32U) * 0xD6E8FEB86659FD93U;
    return x ^ x >> 32U;
}

}  // namespace

Store::Store(int words, StateMask mask, bool novelties)
    : words_(words),
      mask_(std::move(mask)),
      novelties_(novelties),
      shards_(shardCount) {
    for (Shard& shard : shards_) shard.table.resize(firstTable);
}

std::uint64_t Store::hashOf(const std::uint64_t* words) const {
    std::uint64_t hash = 0;
    for (int i = 0; i < words_; ++i) {
        const auto at = static_cast<std::size_t>(i);
        hash = mixed(hash + (words[at] & mask_[at])) + 0x9E3779B97F4A7C15U;
    }
    return hash;
}

bool Store::isSame(const std::uint64_t* a, const std::uint64_t* b) const {
    std::uint64_t difference = 0;
    for (int i = 0; i < words_; ++i) {
        const auto at = static_cast<std::size_t>(i);
        difference |= (a[at] ^ b[at]) & mask_[at];
    }
    return difference == 0;
}

Store::Added Store::add(const std::uint64_t* words, std::uint64_t hash, StateId parent, std::uint32_t action) {
    const std::size_t number = shardOf(hash);
    Shard& shard = shards_[number];
    if (2 * (shard.inTable + 1) > shard.table.size()) grow(shard);
    const std::size_t wrap = shard.table.size() - 1;
    std::size_t slot = hash >> shardBits & wrap;
    for (; shard.table[slot] != 0; slot = (slot + 1) & wrap) {
        const std::size_t known = shard.table[slot] - 1;
        if (!isSame(shard.words(known, words_), words)) continue;
        if (!novelties_ || !isNovel(shard, words, shard.words(known, words_))) return {idOf(number, known), false};
        return {idOf(number, append(shard, words, parent, action)), true};
    }
    const std::size_t local = append(shard, words, parent, action);
    shard.table[slot] = static_cast<std::uint32_t>(local) + 1;
    ++shard.inTable;
    if (novelties_) isNovel(shard, words, nullptr);
    return {idOf(number, local), true};
}

StateId Store::find(const std::uint64_t* words) const {
    const std::uint64_t hash = hashOf(words);
    const std::size_t number = shardOf(hash);
    const Shard& shard = shards_[number];
    const std::size_t wrap = shard.table.size() - 1;
    for (std::size_t slot = hash >> shardBits & wrap; shard.table[slot] != 0; slot = (slot + 1) & wrap)
        if (isSame(shard.words(shard.table[slot] - 1, words_), words)) return idOf(number, shard.table[slot] - 1);
    return nobody;
}

std::size_t Store::append(Shard& shard, const std::uint64_t* words, StateId parent, std::uint32_t action) {
    const std::size_t local = shard.parent.size();
    const auto count = static_cast<std::size_t>(words_);
    if (local % Shard::chunk == 0) shard.chunks.push_back(std::make_unique<std::uint64_t[]>(Shard::chunk * count));
    std::memcpy(&shard.chunks.back()[local % Shard::chunk * count], words, count * sizeof(std::uint64_t));
    shard.parent.push_back(parent);
    shard.action.push_back(action);
    shard.mark.push_back(0);
    return local;
}

void Store::grow(Shard& shard) {
    std::vector<std::uint32_t> old(shard.table.size() * 2);
    std::swap(old, shard.table);
    const std::size_t wrap = shard.table.size() - 1;
    for (const std::uint32_t entry : old) {
        if (entry == 0) continue;
        std::size_t slot = hashOf(shard.words(entry - 1, words_)) >> shardBits & wrap;
        while (shard.table[slot] != 0) slot = (slot + 1) & wrap;
        shard.table[slot] = entry;
    }
}

// Notes the bits that the mask leaves out, and tells whether one of them is new at this place. Bits that are the
// same in `known` have been noted with that.
bool Store::isNovel(Shard& shard, const std::uint64_t* words, const std::uint64_t* known) {
    bool novel = false;
    const std::uint64_t place = mixed(words[0] & placeMask);
    for (int i = 0; i < words_; ++i) {
        const auto at = static_cast<std::size_t>(i);
        std::uint64_t open = ~mask_[at];
        if (known != nullptr) open &= words[at] ^ known[at];
        for (; open != 0; open &= open - 1) {
            const auto bit = static_cast<unsigned>(std::countr_zero(open));
            const std::uint64_t key = place + at * 128 + bit * 2 + (words[at] >> bit & 1U);
            novel = shard.seenBits.insert(key).second || novel;
        }
    }
    return novel;
}

std::size_t Store::size() const {
    std::size_t all = 0;
    for (const Shard& shard : shards_) all += shard.parent.size();
    return all;
}

std::size_t Store::memory() const {
    std::size_t bytes = 0;
    for (const Shard& shard : shards_)
        bytes += shard.chunks.size() * Shard::chunk * static_cast<std::size_t>(words_) * sizeof(std::uint64_t) +
                 shard.parent.capacity() * 9 + shard.table.capacity() * sizeof(std::uint32_t) +
                 shard.seenBits.size() * 32;
    return bytes;
}

}  // namespace zentrox::prove
