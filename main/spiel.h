// The whole program between its start and its end, the same for the desktop and the probe.
#pragma once

#include <functional>

#include "engine/interpreter/beobachter.h"
#include "engine/interpreter/spieltabelle.h"
#include "engine/state/zustand.h"
#include "platform/platform.h"
#include "saves/saves.h"

namespace zentrox {

// What goes along with a play; each must outlive it.
struct Extras {
    Beobachter* observer = nullptr;  // is told of all that happens
    Speicherwart* saves = nullptr;   // stands round saving and loading
    // What a player wants of a game, by its name, put around it.
    std::function<Spiel(const Text& name, Spiel game)> aroundGame{};
    bool withoutMenu = false;  // the data is looked for as ever, and the room window comes first
    // Told how to begin the game from the menu while that stands, and nothing when it is over.
    std::function<void(std::function<void()> begin)> menuStands{};
};

// Opens the first window and plays until the process ends; gives its exit status. Data that can't be used end it
// with a message box and the status 1. `kommandozeile` is the game's command line, a room file name or empty.
int Spielen(Platform& platform, Zustand& zustand, const Text& kommandozeile, const Extras& extras = {});

}  // namespace zentrox
