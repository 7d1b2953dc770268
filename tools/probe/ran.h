// Remembers which instructions have run, for `zentrox-story coverage`.
#pragma once

#include <map>
#include <ostream>
#include <tuple>
#include <vector>

#include "engine/interpreter/beobachter.h"
#include "engine/state/zustand.h"

namespace zentrox::probe {

class Ran : public Beobachter {
public:
    // `state` has to be the one that is played; it is asked only while scripts begin.
    void watch(const Zustand* state) { state_ = state; }

    std::size_t Beginnt(const Skript& script, TextView room, int object) override;
    void Anweisung(std::size_t number, std::int32_t index) override;

    // A JSON array with an object a script: `room`, where it stands, both in UTF-8, and its instructions as they
    // are, each with its number, its argument and whether it has run. `script` is `start`, `countdown`, `object N`
    // with N from 0, or `item`.
    void write(std::ostream& out) const;

private:
    struct Key {
        Text room;
        std::string place;
        std::vector<std::int32_t> numbers;
        std::vector<Text> arguments;
        friend bool operator<(const Key& a, const Key& b) {
            return std::tie(a.room, a.place, a.numbers, a.arguments) <
                   std::tie(b.room, b.place, b.numbers, b.arguments);
        }
    };
    Key keyOf(const Skript& script, TextView room, int object) const;

    const Zustand* state_ = nullptr;
    std::map<Key, std::size_t> numbers_;
    std::vector<std::vector<bool>> ran_;  // by the number of the script and the index of the instruction
};

}  // namespace zentrox::probe
