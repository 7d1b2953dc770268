// The closing credits: four pages that type themselves, while ten pictures dissolve in beside them.
#pragma once

#include <cstdint>
#include <vector>

#include "engine/state/zustand.h"
#include "media/medien.h"
#include "platform/platform.h"
#include "platform/window/surface.h"

namespace zentrox {

// The pages. "|" ends a line; "#" starts the next picture and is skipped with the two characters behind it, as are
// the two blanks at the start of a page. They are the story's, or else the game's own four.
std::vector<Text> AbspannTexte(std::int32_t bösePunkte, const Titel& titel = {});

// Shows all of it and returns when the last page is done. `Picture1` is drawn on, `Picture5` takes the pictures,
// `RM` keeps the music going.
void AbspannZeigen(Platform& platform, Zustand& z, Medien& medien, Surface& Picture1, Surface& Picture5, Timer& RM);

}  // namespace zentrox
