// Areas of a room's picture: from what an author writes to the cells of a mask, and back to the fewest rectangles.
#pragma once

#include <vector>

#include "engine/state/zustand.h"
#include "platform/picture/bitmap.h"

namespace zentrox::story {

struct Corner {
    double x = 0;
    double y = 0;
};

// Adds the cells whose middle lies in a shape; a shape that holds no middle takes each cell that it touches. Right
// and lower edge of a rectangle do not belong to it. Units are pixels of the room's picture. False if no cell of
// the picture is touched.
bool addRectangle(Maske& mask, Corner a, Corner b);
// What lies inside an odd number of the outline's turns is inside.
bool addPolygon(Maske& mask, const std::vector<Corner>& corners);
// The white of a black-and-white picture of any size, stretched over the room: cells that are white for at least a
// half, or where there is none such, at all.
bool addPicture(Maske& mask, const Bitmap& picture);

// Rectangles in cells that together cover just the mask; they may overlap, and no smaller number would do, save for
// masks so torn that finding it would take too long: there it is a small number.
std::vector<Rect> fewestRectangles(const Maske& mask);

}  // namespace zentrox::story
