// The states that a search has seen, packed and without doubles, each with its parent and the step that led to it.
// They lie in a few shards, so that several threads can add to it: each shard belongs to one at a time.
#pragma once

#include <memory>
#include <unordered_set>
#include <vector>

#include "tools/prove/machine.h"

namespace zentrox::prove {

using StateId = std::uint32_t;
constexpr StateId nobody = 0xFFFFFFFF;

constexpr unsigned shardBits = 3;
constexpr std::size_t shardCount = std::size_t{1} << shardBits;

// Which bits of a state tell it from another one.
using StateMask = std::vector<std::uint64_t>;

class Store {
public:
    // With `novelties` a state that only differs where the mask does not look is kept all the same if one of these
    // bits has not been seen like that in that room and at that place of a script before.
    Store(int words, StateMask mask, bool novelties);

    std::uint64_t hashOf(const std::uint64_t* words) const;
    static std::size_t shardOf(std::uint64_t hash) { return hash & (shardCount - 1); }

    struct Added {
        StateId id;
        bool isNew;
    };
    // Only one thread at a time may add to the shard of this hash.
    Added add(const std::uint64_t* words, std::uint64_t hash, StateId parent, std::uint32_t action);
    // Nobody if there is none like it.
    StateId find(const std::uint64_t* words) const;
    bool isSame(const std::uint64_t* a, const std::uint64_t* b) const;

    static StateId idOf(std::size_t shard, std::size_t local) {
        return static_cast<StateId>(local << shardBits | shard);
    }
    const std::uint64_t* words(StateId id) const { return shard(id).words(local(id), words_); }
    StateId parent(StateId id) const { return shard(id).parent[local(id)]; }
    Action action(StateId id) const { return Action::unpacked(shard(id).action[local(id)]); }
    std::uint8_t& mark(StateId id) { return shards_[id & (shardCount - 1)].mark[local(id)]; }
    std::uint8_t mark(StateId id) const { return shard(id).mark[local(id)]; }
    std::size_t size(std::size_t shard) const { return shards_[shard].parent.size(); }
    std::size_t size() const;
    // Bytes that it takes.
    std::size_t memory() const;
    int wordCount() const { return words_; }

private:
    struct Shard {
        static constexpr std::size_t chunk = 4096;  // states
        std::vector<std::unique_ptr<std::uint64_t[]>> chunks;
        std::vector<StateId> parent;
        std::vector<std::uint32_t> action;
        std::vector<std::uint8_t> mark;
        std::vector<std::uint32_t> table;  // local numbers, and 1 added
        std::size_t inTable = 0;
        std::unordered_set<std::uint64_t> seenBits;

        const std::uint64_t* words(std::size_t local, int count) const {
            return &chunks[local / chunk][local % chunk * static_cast<std::size_t>(count)];
        }
    };
    static std::size_t local(StateId id) { return id >> shardBits; }
    const Shard& shard(StateId id) const { return shards_[id & (shardCount - 1)]; }
    std::size_t append(Shard& shard, const std::uint64_t* words, StateId parent, std::uint32_t action);
    void grow(Shard& shard);
    bool isNovel(Shard& shard, const std::uint64_t* words, const std::uint64_t* known);

    int words_;
    StateMask mask_;
    bool novelties_;
    std::vector<Shard> shards_;
};

}  // namespace zentrox::prove
