// The commands that have run last, each with its place in the sources; and the one before which a play can be held.
#pragma once

#include <deque>
#include <functional>

#include "author/compiler.h"
#include "engine/interpreter/beobachter.h"
#include "engine/state/zustand.h"

namespace zentrox::author {

class Trace : public Beobachter {
public:
    Trace(const Compiler& compiler, const Zustand& state) : compiler_(compiler), z_(state) {}

    struct Entry {
        Text text;                   // the command with its argument, on one line
        std::filesystem::path file;  // of the source; empty where there is none
        int line = 0;
    };
    // The oldest first.
    const std::deque<Entry>& entries() const { return entries_; }
    // Of all commands that have run.
    int count() const { return count_; }
    // The innermost script that runs, "Hof.lsd, Gully, Links"; empty if none does.
    Text running() const { return runs_.empty() ? Text() : runs_.back().name; }
    // Called before each command, when it is in the trace already. It may wait.
    std::function<void()> onCommand;

    std::size_t Beginnt(const Skript& script, TextView room, int object) override;
    void Anweisung(std::size_t number, std::int32_t index) override;
    void Endet(std::size_t number) override { runs_.resize(number); }
    void Ruht() override { runs_.clear(); }
    void Schließt() override { runs_.clear(); }

private:
    struct Run {
        Text name;
        std::vector<std::int32_t> commands;
        std::vector<Text> arguments;
        std::vector<Entry> places;  // of each command, without its text
    };
    void findPlaces(Run& run, TextView room, int object) const;

    const Compiler& compiler_;
    const Zustand& z_;
    std::vector<Run> runs_;
    std::deque<Entry> entries_;
    int count_ = 0;
};

}  // namespace zentrox::author
