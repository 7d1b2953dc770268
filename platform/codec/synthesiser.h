// Plays MIDI songs through a General MIDI sound font.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "platform/machine/decoder.h"

namespace zentrox {

class Synthesiser {
public:
    // Takes the first of the fonts that can be loaded.
    explicit Synthesiser(const std::vector<std::filesystem::path>& fonts);
    ~Synthesiser();
    Synthesiser(const Synthesiser&) = delete;
    Synthesiser& operator=(const Synthesiser&) = delete;

    // False if none of the fonts could be loaded.
    bool ready() const { return ready_; }
    // Begins a song, in place of the one before, whose reader must be gone. Null if it can't be played. The reader
    // ends when the last note has died away.
    std::unique_ptr<AudioReader> play(const std::string& file);

private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
    bool ready_ = false;
};

}  // namespace zentrox
