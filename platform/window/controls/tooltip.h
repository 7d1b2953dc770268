// The small yellow box that explains what the pointer rests on.
#pragma once

#include "platform/picture/bitmap.h"
#include "platform/picture/font.h"

namespace zentrox {

// Draws it with its top left corner at `at`, moved so that it lies within `bounds`; gives the area that it covers.
Rect drawToolTip(Bitmap& onto, Fonts& fonts, Point at, TextView text, const Rect& bounds);

}  // namespace zentrox
