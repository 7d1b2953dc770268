// Where a play begins that does not begin at the beginning: the options for it, the same for all programs that
// play.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "engine/interpreter/beobachter.h"
#include "engine/state/zustand.h"
#include "platform/platform.h"

namespace CLI {
class App;
}

namespace zentrox {

struct Beginning {
    std::vector<std::string> flags;  // UTF-8, as all of these
    std::vector<std::string> items;  // by any name that walks have for them
    std::int32_t evil = 0;
    std::optional<std::uint64_t> seed;    // of the random numbers
    std::optional<std::uint64_t> random;  // the same, but from the first room on

    // True if there is more to begin with than a room.
    bool hasState() const { return !flags.empty() || !items.empty() || evil != 0 || random; }
};

// Adds `--flags`, `--items`, `--evil`, `--seed` and `--random`.
void addBeginning(CLI::App& app, Beginning& beginning);
// The room to begin in: the one that is named, else the first one if there is something to begin with.
std::string roomOf(const Beginning& beginning, const std::string& named);
// The first line of a record: a remark that says how its walk is called.
std::string walkCall(const std::string& room, const Beginning& beginning);
// Throws `DataError` for an item that the story in the program's directory does not have, and for more than can be
// carried.
void checkBeginning(const Beginning& beginning, const Files& files);

// Makes the state what was asked for, when the first room window opens.
class Beginner : public Beobachter {
public:
    // `beginning` must outlive it.
    explicit Beginner(const Beginning& beginning) : beginning_(beginning) {}
    void watch(Platform* platform, Zustand* state) {
        platform_ = platform;
        state_ = state;
    }
    void Öffnet(Raumfenster& room) override;

private:
    const Beginning& beginning_;
    Platform* platform_ = nullptr;
    Zustand* state_ = nullptr;
    bool done_ = false;
};

}  // namespace zentrox
