// All that the game gets from the machine, in one hand.
#pragma once

#include "platform/machine/files.h"
#include "platform/picture/font.h"
#include "platform/values/random.h"
#include "platform/window/backend.h"
#include "platform/window/messagebox.h"
#include "platform/window/queue.h"

namespace zentrox {

class Platform {
public:
    // The backend, the fonts and the sound device must outlive it.
    Platform(Backend& machine, Fonts& fontSource, SoundDevice& soundDevice, Files story)
        : backend(machine),
          fonts(fontSource),
          sound(soundDevice),
          files(std::move(story)),
          queue(machine),
          random(machine.seed()) {}

    Backend& backend;
    Fonts& fonts;
    SoundDevice& sound;
    Files files;
    Queue queue;
    Random random;
    // How large the letters of boxes and dialogs are, in percent; for players who want them larger.
    int boxPercent = 100;
    // Letters on pictures and in the band stand in an outline, for players who want that.
    bool outlinedLetters = false;
    // The small font at the size of boxes and dialogs.
    FontSpec boxFont() const {
        FontSpec font;
        font.points = font.points * static_cast<float>(boxPercent) / 100;
        return font;
    }
    // Where the CD is looked for, in this order: paths of the system.
    std::vector<std::filesystem::path> roots;
};

}  // namespace zentrox
