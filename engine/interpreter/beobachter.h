// Is told what scripts do, for reports on how much of a story has been played.
#pragma once

#include <cstddef>
#include <cstdint>

#include "platform/values/text.h"

namespace zentrox {

struct Skript;

class Beobachter {
public:
    virtual ~Beobachter() = default;
    // A run begins. `objekt` is the object of the room `raum` that it belongs to, -1 for none. Gives the number by
    // which what follows names the script; runs can nest.
    virtual std::size_t Beginnt(const Skript& skript, TextView raum, int objekt) = 0;
    // The instruction with this index is about to run.
    virtual void Anweisung(std::size_t nummer, std::int32_t zeiger) = 0;
};

}  // namespace zentrox
