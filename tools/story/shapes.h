// The parts of an object's area as they are written.
#pragma once

#include <optional>

#include "engine/state/zustand.h"
#include "platform/picture/bitmap.h"
#include "tools/story/scanner.h"

namespace zentrox::story {

// `Rechteck X1 Y1 X2 Y2`
void takeRectangle(const Statement& s, Maske& mask, Findings& findings);
// `Vieleck X Y, X Y, X Y, ...`
void takePolygon(const Statement& s, Maske& mask, Findings& findings);
// `Maskenbild "DATEI"`, whose picture is nothing if it can't be read.
void takePicture(const Statement& s, const std::optional<Bitmap>& picture, Maske& mask, Findings& findings);

}  // namespace zentrox::story
