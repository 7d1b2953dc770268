#include <algorithm>

#include "tools/prove/relevance.h"

namespace zentrox::prove {

namespace {

std::size_t at(std::int32_t index) {
    return static_cast<std::size_t>(index);
}

using Bits = std::vector<std::uint64_t>;

class Projection {
public:
    Projection(const Program& program, const Relevance& relevance) : from_(program), matters_(relevance) {
        result_ = program;
    }

    Program make(const std::function<Relevance(std::int32_t)>& relevanceWith) {
        layOut();
        for (Script& script : result_.scripts) dropNodes(script);
        for (Script& script : result_.scripts) findActs(script);
        forget(relevanceWith);
        return std::move(result_);
    }

private:
    void layOut() {
        Layout& layout = result_.layout;
        int bit = 0;
        layout.countDown = bit++;
        for (std::size_t i = 0; i < result_.flagBit.size(); ++i)
            result_.flagBit[i] = matters_.flags[i] ? bit++ : -1;
        for (std::size_t i = 0; i < result_.items.size(); ++i) {
            Item& item = result_.items[i];
            if (!matters_.items[i]) item.bits = 0;
            item.bit = bit;
            bit += item.bits;
        }
        layout.firstObject = bit;
        layout.bits = bit + layOutObjects();
    }
    int layOutObjects() {
        int most = 0;
        for (auto& byRoom : result_.objectBits) byRoom.clear();
        for (std::size_t r = 0; r < result_.rooms.size(); ++r) {
            Room& room = result_.rooms[r];
            int count = 0;
            room.onAtFirst.clear();
            std::map<std::int32_t, std::int32_t> moved;
            for (std::size_t o = 0; o < room.objects.size(); ++o) {
                Object& object = room.objects[o];
                if (object.bit == -1) continue;
                const std::int32_t old = object.bit;
                object.bit = matters_.objects[r][o] ? result_.layout.firstObject + count++ : -1;
                moved[old] = object.bit;
                if (object.bit != -1 && object.active) room.onAtFirst.push_back(object.bit);
            }
            moveSwitches(static_cast<std::int32_t>(r), moved);
            most = std::max(most, count);
        }
        return most;
    }
    void moveSwitches(std::int32_t room, const std::map<std::int32_t, std::int32_t>& moved) {
        for (std::size_t name = 0; name < from_.objectBits.size(); ++name) {
            const auto old = from_.objectBits[name].find(room);
            if (old == from_.objectBits[name].end()) continue;
            for (const std::int32_t bit : old->second)
                if (moved.at(bit) != -1) result_.objectBits[name][room].push_back(moved.at(bit));
        }
    }

    // What does nothing that matters does nothing; a condition that decides nothing goes either way.
    void dropNodes(Script& script) const {
        for (std::size_t i = 0; i + 1 < script.nodes.size(); ++i) {
            Node& node = script.nodes[i];
            const bool marked = matters_.nodes[at(script.first) + i] != 0;
            switch (node.op) {
                case Op::testFlag:
                    if (node.a != -1 && !matters_.flags[at(node.a)]) {
                        node.op = Op::nothing;
                        node.next = node.other;
                    }
                    break;
                case Op::set:
                case Op::clear:
                case Op::take:
                case Op::give:
                case Op::evil:
                    if (!marked) node.op = Op::nothing;
                    break;
                default: break;
            }
        }
    }
    static void findActs(Script& script) {
        const auto end = static_cast<std::int32_t>(script.nodes.size()) - 1;
        for (std::int32_t i = end; i >= 0; --i) {
            Node& node = script.nodes[at(i)];
            const bool straight = i < end && node.op == Op::nothing && node.ending == -1 && node.next == i + 1;
            node.acts = straight ? script.nodes[at(i) + 1].acts : i;
        }
    }

    void forget(const std::function<Relevance(std::int32_t)>& relevanceWith) {
        result_.forgotten.push_back({-1, forgottenWith(matters_)});
        for (std::size_t i = 0; i < result_.flags.size(); ++i) {
            const auto flag = static_cast<std::int32_t>(i);
            if (!matters_.idleFlags[i] || !isPermanent(from_, flag)) continue;
            Bits bits = forgottenWith(relevanceWith(flag));
            bits[1 + at(result_.flagBit[i]) / 64] &= ~(std::uint64_t{1} << (at(result_.flagBit[i]) % 64));
            if (bits != result_.forgotten.front().bits) result_.forgotten.push_back({result_.flagBit[i], bits});
        }
    }
    // The bits of the head stay.
    Bits forgottenWith(const Relevance& relevance) const {
        Bits bits(static_cast<std::size_t>(result_.layout.words()));
        const auto drop = [&](std::int32_t first, std::int32_t count) {
            for (std::int32_t bit = first; bit < first + count; ++bit)
                bits[1 + at(bit) / 64] |= std::uint64_t{1} << (at(bit) % 64);
        };
        for (std::size_t i = 0; i < result_.flagBit.size(); ++i)
            if (result_.flagBit[i] != -1 && !relevance.idleFlags[i]) drop(result_.flagBit[i], 1);
        for (std::size_t i = 0; i < result_.items.size(); ++i)
            if (!relevance.items[i]) drop(result_.items[i].bit, result_.items[i].bits);
        return bits;
    }

    const Program& from_;
    const Relevance& matters_;
    Program result_;
};

}  // namespace

bool isPermanent(const Program& program, std::int32_t flag) {
    if (flag == program.evilFlag) return false;
    for (const Script& script : program.scripts)
        for (const Node& node : script.nodes)
            if ((node.op == Op::clear || node.op == Op::game) && node.a == flag) return false;
    return true;
}

Program project(const Program& whole, const Relevance& relevance,
                const std::function<Relevance(std::int32_t)>& relevanceWith) {
    return Projection(whole, relevance).make(relevanceWith);
}

Projector::Projector(const Program& whole, const Program& projected)
    : projected_(projected),
      evil_(projected.evilFlag != -1 && projected.flagBit[at(projected.evilFlag)] != -1) {
    bits_.emplace_back(whole.layout.countDown, projected.layout.countDown);
    for (std::size_t i = 0; i < whole.flagBit.size(); ++i)
        if (projected.flagBit[i] != -1) bits_.emplace_back(whole.flagBit[i], projected.flagBit[i]);
    for (std::size_t i = 0; i < whole.items.size(); ++i)
        for (std::int32_t bit = 0; bit < projected.items[i].bits; ++bit)
            bits_.emplace_back(whole.items[i].bit + bit, projected.items[i].bit + bit);
    for (std::size_t r = 0; r < whole.rooms.size(); ++r) {
        objectBits_.emplace_back();
        for (std::size_t o = 0; o < whole.rooms[r].objects.size(); ++o)
            if (const std::int32_t bit = projected.rooms[r].objects[o].bit; bit != -1)
                objectBits_.back().emplace_back(whole.rooms[r].objects[o].bit, bit);
    }
}

void Projector::project(const State& state, std::uint64_t* words) const {
    State key;
    std::fill_n(key.words.begin(), this->words(), 0);
    key.setRoom(state.room());
    key.setStack(state.stack());
    key.setEvil(evil_ ? state.evil() : 0);
    for (const auto& [from, to] : bits_)
        if (state.bit(from)) key.setBit(to, true);
    for (const auto& [from, to] : objectBits_[at(state.room())])
        if (state.bit(from)) key.setBit(to, true);
    if (state.stack() == idle) forget(projected_, key);
    std::copy_n(key.words.begin(), this->words(), words);
}

}  // namespace zentrox::prove
