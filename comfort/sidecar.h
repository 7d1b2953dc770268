// What is kept beside a saved game for the player's eyes: when it was, where, with what, what was said last, and a
// small picture. The saved game itself knows nothing of it and loads without it.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/machine/files.h"
#include "platform/picture/bitmap.h"

namespace zentrox {

struct Sidecar {
    Text when;                // local time, for the player; also where only the saved game is there
    Text room;                // the same
    std::vector<Text> items;  // names
    std::vector<Text> lines;  // spoken last, the latest at the end
    Bitmap picture;           // `thumbnailSize`; empty if there is none
};

constexpr Size thumbnailSize{160, 120};

// `view`, 640 by 480, a quarter as large each way.
Bitmap thumbnailOf(const Bitmap& view);

// The local time of now, to the minute.
Text timeOfNow();

// Writes it beside the saved game at `save`, a game path, that consists of `bytes`. Throws `std::system_error`.
void writeSidecar(const Files& files, TextView save, TextView bytes, const Sidecar& sidecar);

// What is known of a saved game; what lies beside it counts only if it was written for these very bytes. Nothing if
// there is no saved game of that name.
std::optional<Sidecar> readSidecar(const Files& files, TextView save);

}  // namespace zentrox
