// All that the game gets from the machine, in one hand.
#pragma once

#include "platform/backend.h"
#include "platform/files.h"
#include "platform/font.h"
#include "platform/messagebox.h"
#include "platform/queue.h"
#include "platform/random.h"

namespace zentrox {

class Platform {
public:
    // The backend, the fonts and the sound device must outlive it.
    Platform(Backend& machine, Fonts& fontSource, SoundDevice& soundDevice,
             const std::filesystem::path& programDirectory)
        : backend(machine),
          fonts(fontSource),
          sound(soundDevice),
          files(programDirectory),
          queue(machine),
          random(machine.seed()) {}

    Backend& backend;
    Fonts& fonts;
    SoundDevice& sound;
    Files files;
    Queue queue;
    Random random;
    // Where the CD is looked for, in this order: paths of the system.
    std::vector<std::filesystem::path> roots;
};

}  // namespace zentrox
