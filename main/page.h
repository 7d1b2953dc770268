// The program in a browser between its first and its last life.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "engine/state/zustand.h"
#include "platform/platform.h"

namespace zentrox {

// `arguments` are the game's command line, a room file name or empty, then the program's directory, then the roots
// to search for the CD. Begins again as often as the game wants to; gives the exit status. `watch` is told of each
// life when it begins, and of null at its end.
int playPage(const std::vector<std::string>& arguments, const std::function<void(Platform*, Zustand*)>& watch = {});

}  // namespace zentrox
