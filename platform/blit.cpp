// The block copies. Widths and pointers are locals throughout: as members they would be read again for each pixel.
#include <cstring>

#include "platform/bitmap.h"

namespace zentrox {

namespace {

using Pixel = std::uint32_t;

void copyRow(Pixel* to, const Pixel* from, int width) {
    std::memmove(to, from, static_cast<std::size_t>(width) * sizeof(Pixel));
}

void andRow(Pixel* __restrict to, const Pixel* __restrict from, int width) {
    for (int x = 0; x < width; ++x) to[x] &= from[x];
}

void orRow(Pixel* __restrict to, const Pixel* __restrict from, int width) {
    for (int x = 0; x < width; ++x) to[x] |= from[x];
}

void combineRow(Op op, Pixel* to, const Pixel* from, int width) {
    switch (op) {
        case Op::plain: copyRow(to, from, width); break;
        case Op::bitAnd: andRow(to, from, width); break;
        case Op::bitOr: orRow(to, from, width); break;
    }
}

// One axis of a scaled copy: the run of target pixels that are drawn, and the source pixel that each of them takes.
struct Axis {
    int begin = 0;
    std::vector<int> source;
    bool empty() const { return source.empty(); }
    int length() const { return static_cast<int>(source.size()); }
};

// A stretch of pixels, left end first, and whether it is to be walked from its far end.
struct Stretch {
    std::int64_t begin;
    std::int64_t length;
    bool mirrored;
};

Stretch stretchOf(int at, int side) {
    const std::int64_t length = side;
    return side < 0 ? Stretch{at + length, -length, true} : Stretch{at, length, false};
}

Axis axisOf(const Stretch& from, const Stretch& to, int sourceSide, int clipBegin, int clipEnd) {
    const std::int64_t first = std::max<std::int64_t>(to.begin, clipBegin);
    const std::int64_t end = std::min<std::int64_t>(to.begin + to.length, clipEnd);
    const bool mirrored = from.mirrored != to.mirrored;
    Axis axis;
    if (from.length == 0) return axis;
    for (std::int64_t at = first; at < end; ++at) {
        const std::int64_t offset = mirrored ? to.begin + to.length - 1 - at : at - to.begin;
        const std::int64_t source = from.begin + offset * from.length / to.length;
        if (source < 0 || source >= sourceSide) continue;
        if (axis.empty()) axis.begin = static_cast<int>(at);
        axis.source.push_back(static_cast<int>(source));
    }
    return axis;
}

void gatherRow(Pixel* __restrict to, const Pixel* __restrict from, const int* __restrict columns, int width) {
    for (int x = 0; x < width; ++x) to[x] = from[columns[x]];
}

}  // namespace

void Bitmap::copy(const Bitmap& source, const Rect& from, Point to, Op op) {
    // What is left of `from` after each clipping; its place in the target is its place in the source, moved.
    const std::int64_t dx = std::int64_t{to.x} - from.x;
    const std::int64_t dy = std::int64_t{to.y} - from.y;
    const Rect part = intersection(from, source.bounds());
    if (part.empty() || clip_.empty()) return;
    const std::int64_t left = std::max<std::int64_t>(part.x + dx, clip_.x);
    const std::int64_t top = std::max<std::int64_t>(part.y + dy, clip_.y);
    const std::int64_t right = std::min<std::int64_t>(part.right() + dx, clip_.right());
    const std::int64_t bottom = std::min<std::int64_t>(part.bottom() + dy, clip_.bottom());
    if (left >= right || top >= bottom) return;

    const int width = static_cast<int>(right - left);
    const int height = static_cast<int>(bottom - top);
    const Pixel* in = source.row(static_cast<int>(top - dy)) + (left - dx);
    Pixel* out = row(static_cast<int>(top)) + left;
    std::ptrdiff_t inStep = source.width();
    std::ptrdiff_t outStep = size_.w;
    const bool self = &source == this;
    if (self && dy > 0) {  // downward: the last row first, before it is overwritten
        in += inStep * (height - 1);
        out += outStep * (height - 1);
        inStep = -inStep;
        outStep = -outStep;
    }
    std::vector<Pixel> saved(self && op != Op::plain ? static_cast<std::size_t>(width) : 0);
    for (int y = 0; y < height; ++y, in += inStep, out += outStep) {
        if (saved.empty()) {
            combineRow(op, out, in, width);
        } else {
            copyRow(saved.data(), in, width);
            combineRow(op, out, saved.data(), width);
        }
    }
}

void Bitmap::stretch(const Bitmap& source, const Rect& from, const Rect& to, Op op) {
    if (&source == this) return stretch(Bitmap(source), from, to, op);
    const Axis columns =
        axisOf(stretchOf(from.x, from.w), stretchOf(to.x, to.w), source.width(), clip_.x, clip_.right());
    const Axis rows =
        axisOf(stretchOf(from.y, from.h), stretchOf(to.y, to.h), source.height(), clip_.y, clip_.bottom());
    if (columns.empty() || rows.empty()) return;
    const int width = columns.length();
    std::vector<Pixel> gathered(op == Op::plain ? 0 : static_cast<std::size_t>(width));
    for (int i = 0; i < rows.length(); ++i) {
        Pixel* const out = row(rows.begin + i) + columns.begin;
        const bool repeated = i > 0 && rows.source[i] == rows.source[i - 1];
        if (op == Op::plain) {
            if (repeated)
                copyRow(out, out - size_.w, width);
            else
                gatherRow(out, source.row(rows.source[i]), columns.source.data(), width);
            continue;
        }
        if (!repeated) gatherRow(gathered.data(), source.row(rows.source[i]), columns.source.data(), width);
        combineRow(op, out, gathered.data(), width);
    }
}

}  // namespace zentrox
