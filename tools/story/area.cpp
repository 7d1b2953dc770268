#include "tools/story/area.h"

#include <algorithm>
#include <cmath>

namespace zentrox::story {

namespace {

// How finely a cell that holds no middle is searched for a touch, and how bright a white pixel at least is.
constexpr int samples = 10;
constexpr unsigned whiteFrom = 3 * 128;

// A block of cells; the second ones are not in it any more.
struct Cells {
    int fromColumn = 0;
    int toColumn = Maskenspalten;
    int fromRow = 0;
    int toRow = Maskenzeilen;
};

// All that an outline may touch.
Cells cellsAround(const std::vector<Corner>& corners) {
    const auto byX =
        std::minmax_element(corners.begin(), corners.end(), [](auto& a, auto& b) { return a.x < b.x; });
    const auto byY =
        std::minmax_element(corners.begin(), corners.end(), [](auto& a, auto& b) { return a.y < b.y; });
    const auto cell = [](double pixel, int most) {
        return static_cast<int>(std::clamp(std::floor(pixel / Maskenzelle), 0.0, static_cast<double>(most)));
    };
    return {cell(byX.first->x - 1, Maskenspalten), cell(byX.second->x + 1 + Maskenzelle, Maskenspalten),
            cell(byY.first->y - 1, Maskenzeilen), cell(byY.second->y + 1 + Maskenzelle, Maskenzeilen)};
}

template <typename Inside>
bool addWhere(Maske& mask, const Cells& cells, const Inside& inside) {
    bool any = false;
    for (int column = cells.fromColumn; column < cells.toColumn; ++column) {
        for (int row = cells.fromRow; row < cells.toRow; ++row) {
            if (!inside(column, row)) continue;
            mask.set(column, row, true);
            any = true;
        }
    }
    return any;
}

Corner middleOf(int column, int row) {
    return {(column + 0.5) * Maskenzelle, (row + 0.5) * Maskenzelle};
}

bool insidePolygon(const std::vector<Corner>& corners, Corner p) {
    bool inside = false;
    for (std::size_t i = 0, j = corners.size() - 1; i < corners.size(); j = i++) {
        const Corner& a = corners[i];
        const Corner& b = corners[j];
        if ((a.y > p.y) != (b.y > p.y) && p.x < (b.x - a.x) * (p.y - a.y) / (b.y - a.y) + a.x) inside = !inside;
    }
    return inside;
}

bool touchesCell(const std::vector<Corner>& corners, int column, int row) {
    constexpr double step = static_cast<double>(Maskenzelle) / samples;
    for (int x = 0; x < samples; ++x)
        for (int y = 0; y < samples; ++y)
            if (insidePolygon(corners,
                              {column * Maskenzelle + (x + 0.5) * step, row * Maskenzelle + (y + 0.5) * step}))
                return true;
    return false;
}

bool isWhite(std::uint32_t pixel) {
    return (pixel >> 16U & 0xFFU) + (pixel >> 8U & 0xFFU) + (pixel & 0xFFU) >= whiteFrom;
}

// The share of white in the part of the picture that lies under a cell; at least one pixel is looked at.
double whiteShare(const Bitmap& picture, int column, int row) {
    const int left = column * picture.width() / Maskenspalten;
    const int top = row * picture.height() / Maskenzeilen;
    const int right = std::max(left + 1, (column + 1) * picture.width() / Maskenspalten);
    const int bottom = std::max(top + 1, (row + 1) * picture.height() / Maskenzeilen);
    int white = 0;
    for (int y = top; y < bottom; ++y)
        for (int x = left; x < right; ++x) white += isWhite(picture.row(y)[x]) ? 1 : 0;
    return static_cast<double>(white) / ((right - left) * (bottom - top));
}

}  // namespace

bool addRectangle(Maske& mask, Corner a, Corner b) {
    if (a.x > b.x) std::swap(a.x, b.x);
    if (a.y > b.y) std::swap(a.y, b.y);
    const auto holdsMiddle = [&](int column, int row) {
        const Corner p = middleOf(column, row);
        return p.x >= a.x && p.x < b.x && p.y >= a.y && p.y < b.y;
    };
    const auto touches = [&](int column, int row) {
        return a.x < (column + 1) * Maskenzelle && b.x > column * Maskenzelle && a.y < (row + 1) * Maskenzelle &&
               b.y > row * Maskenzelle && a.x < b.x && a.y < b.y;
    };
    const Cells cells = cellsAround({a, b});
    return addWhere(mask, cells, holdsMiddle) || addWhere(mask, cells, touches);
}

bool addPolygon(Maske& mask, const std::vector<Corner>& corners) {
    if (corners.empty()) return false;
    const Cells cells = cellsAround(corners);
    return addWhere(mask, cells,
                    [&](int column, int row) { return insidePolygon(corners, middleOf(column, row)); }) ||
           addWhere(mask, cells, [&](int column, int row) { return touchesCell(corners, column, row); });
}

bool addPicture(Maske& mask, const Bitmap& picture) {
    if (picture.empty()) return false;
    return addWhere(mask, {}, [&](int column, int row) { return whiteShare(picture, column, row) >= 0.5; }) ||
           addWhere(mask, {}, [&](int column, int row) { return whiteShare(picture, column, row) > 0; });
}

}  // namespace zentrox::story
