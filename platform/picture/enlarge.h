// Shows a picture larger than it is.
#pragma once

#include <cstddef>
#include <vector>

#include "platform/picture/bitmap.h"

namespace zentrox {

enum class Enlarging {
    whole,   // by whole multiples: each pixel is a square
    sharp,   // as large as fits: squares, blended only where two of them share a pixel of the screen
    smooth,  // as large as fits, softened throughout
};

// The largest scale at which `picture` fits into `room`; a whole number for `Enlarging::whole`, as long as one fits
// at all. Always more than 0.
double fittingScale(Size picture, Size room, Enlarging how);

// Pixels of 0x00RRGGBB in somebody else's memory.
struct Pixels {
    std::uint32_t* first = nullptr;
    std::ptrdiff_t pitch = 0;  // bytes from one row to the next
    Size size;
    std::uint32_t* row(int y) const {
        return reinterpret_cast<std::uint32_t*>(reinterpret_cast<std::byte*>(first) + y * pitch);
    }
};

// Enlarges pictures of one size by one scale. A part comes out as it does within the whole.
class Enlarger {
public:
    Enlarger() = default;
    // A scale below 1 shrinks, softened.
    Enlarger(Size picture, double scale, Enlarging how);

    // The size of the whole picture, enlarged.
    Size size() const { return {static_cast<int>(across_.size()), static_cast<int>(down_.size())}; }
    // The pixels of the enlarged picture that change with `part` of the picture.
    Rect covered(const Rect& part) const;
    // Paints `covered(part)`; the enlarged picture's corner stands at `corner`. What lies outside the target is
    // left out. Gives what was painted, in pixels of the target.
    Rect paint(const Bitmap& picture, const Rect& part, const Pixels& target, Point corner);

private:
    // What an enlarged pixel is made of: two neighbours of the picture.
    struct Tap {
        int first = 0;
        int second = 0;
        unsigned share = 0;  // of the second one, in 256 parts
    };
    std::vector<Tap> taps(int from, int to) const;
    std::uint32_t* expanded(const Bitmap& picture, int row, int left, int width, std::size_t buffer);
    void expand(const std::uint32_t* from, std::uint32_t* to, int left, int width) const;

    Size picture_;
    double scale_ = 1;
    bool smooth_ = false;
    std::vector<Tap> across_;
    std::vector<Tap> down_;
    std::vector<std::uint32_t> rows_[2];
    int held_[2] = {-1, -1};  // which row of the picture each buffer holds
};

}  // namespace zentrox
