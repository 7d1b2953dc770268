// The mini-games as the interpreter knows them: a name and a call.
#pragma once

#include <functional>
#include <map>

#include "engine/state/zustand.h"
#include "platform/values/text.h"

namespace zentrox {

// Shows the window of a game modally and returns when it has closed. It finds its parameter in `Übergabe` and
// leaves its outcome there: a truth, or for one that knows a draw one of the texts "W", "L" and "U".
using Spiel = std::function<void()>;

// Whether what the game of this name has left in `Übergabe` means that it was won. A game that leaves no outcome
// leaves its parameter: a number counts by its value, words mean nothing.
bool Gewonnen(TextView name, const Übergabewert& wert);

// By the names of `Spiele()`.
using Spieltabelle = std::map<Text, Spiel, std::less<>>;

}  // namespace zentrox
