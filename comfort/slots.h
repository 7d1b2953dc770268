// Saved games of one kind that take turns: "auto-1" to "auto-3". The oldest gives way to the next.
#pragma once

#include <vector>

#include "platform/machine/files.h"

namespace zentrox {

class Slots {
public:
    static constexpr int count = 3;

    // `stem` is the name without the number. `files` must outlive it.
    Slots(const Files& files, TextView stem) : files_(files), stem_(stem) {}

    // The game path that the next one is to be written to: one that is not there, else the oldest.
    Text next() const;
    // Those that are there, the newest first.
    std::vector<Text> newestFirst() const;

private:
    const Files& files_;
    Text stem_;
};

}  // namespace zentrox
