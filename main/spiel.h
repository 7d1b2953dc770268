// The whole program between its start and its end, the same for the desktop and the probe.
#pragma once

#include "engine/interpreter/beobachter.h"
#include "engine/state/zustand.h"
#include "platform/platform.h"

namespace zentrox {

// Opens the first window and plays until the process ends; gives its exit status. Data that can't be used end it
// with a message box and the status 1. `kommandozeile` is the game's command line, a room file name or empty;
// `beobachter` is told of every script, unless it is null.
int Spielen(Platform& platform, Zustand& zustand, const Text& kommandozeile, Beobachter* beobachter = nullptr);

}  // namespace zentrox
