// The block copies. Widths and pointers are locals throughout: as members they would be read again for each pixel.
#include <array>
#include <cstring>

#include "platform/picture/bitmap.h"

namespace zentrox {

namespace {

using Pixel = std::uint32_t;

void copyRow(Pixel* __restrict to, const Pixel* __restrict from, int width) {
    std::memcpy(to, from, static_cast<std::size_t>(width) * sizeof(Pixel));
}

// For a row that moves within itself. Towards the left it goes in pieces, each read whole before it is written: the
// library's own way takes twice as long there as towards the right.
void shiftRow(Pixel* to, const Pixel* from, int width) {
    constexpr int piece = 64;
    for (; to < from && width >= piece; width -= piece, to += piece, from += piece) {
        std::array<Pixel, piece> pixels;
        std::memcpy(pixels.data(), from, sizeof(pixels));
        std::memcpy(to, pixels.data(), sizeof(pixels));
    }
    std::memmove(to, from, static_cast<std::size_t>(width) * sizeof(Pixel));
}

struct And {
    static Pixel of(Pixel a, Pixel b) { return a & b; }
};
struct Or {
    static Pixel of(Pixel a, Pixel b) { return a | b; }
};

// Goes in small whole pieces, which compilers turn into vector code without a long tail of single pixels: sprites
// are narrow.
template <class Kind>
[[gnu::always_inline]] inline void changeRow(Pixel* __restrict to, const Pixel* __restrict from, int width) {
    constexpr int piece = 16;
    for (; width >= piece; width -= piece, to += piece, from += piece)
        for (int x = 0; x < piece; ++x) to[x] = Kind::of(to[x], from[x]);
    for (int x = 0; x < width; ++x) to[x] = Kind::of(to[x], from[x]);
}

// Rows of pixels to take and to change, with the distance from one row to the next.
struct Block {
    const Pixel* in;
    std::ptrdiff_t inStep;
    Pixel* out;
    std::ptrdiff_t outStep;
    int width;
    int height;
};

template <auto change>
[[gnu::always_inline]] inline void eachRow(Block block) {
    for (; block.height > 0; --block.height) {
        change(block.out, block.in, block.width);
        block.in += block.inStep;
        block.out += block.outStep;
    }
}

// AND and OR a second time for processors that take eight pixels at a step and not four.
struct Loops {
    void (*bitAnd)(Block);
    void (*bitOr)(Block);
};

void andBlock(Block block) {
    eachRow<changeRow<And>>(block);
}

void orBlock(Block block) {
    eachRow<changeRow<Or>>(block);
}

#ifdef __x86_64__

[[gnu::target("avx2")]] void andBlockWide(Block block) {
    eachRow<changeRow<And>>(block);
}

[[gnu::target("avx2")]] void orBlockWide(Block block) {
    eachRow<changeRow<Or>>(block);
}

Loops fastest() {
    return __builtin_cpu_supports("avx2") != 0 ? Loops{andBlockWide, orBlockWide} : Loops{andBlock, orBlock};
}

#else

Loops fastest() {
    return {andBlock, orBlock};
}

#endif

void combine(Op op, const Block& block) {
    static const Loops loops = fastest();
    switch (op) {
        case Op::plain: eachRow<copyRow>(block); break;
        case Op::bitAnd: loops.bitAnd(block); break;
        case Op::bitOr: loops.bitOr(block); break;
    }
}

// The same for rows that move within themselves; what AND and OR take is set aside first.
void combineWithin(Op op, Block block) {
    if (op == Op::plain) return eachRow<shiftRow>(block);
    std::vector<Pixel> row(static_cast<std::size_t>(block.width));
    for (int y = 0; y < block.height; ++y) {
        copyRow(row.data(), block.in + y * block.inStep, block.width);
        combine(op, {row.data(), 0, block.out + y * block.outStep, 0, block.width, 1});
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
    if (letters_ || source.letters_) copyLetters(source, from, to, op);

    Block block{source.row(static_cast<int>(top - dy)) + (left - dx),
                source.width(),
                row(static_cast<int>(top)) + left,
                size_.w,
                static_cast<int>(right - left),
                static_cast<int>(bottom - top)};
    const bool self = &source == this;
    if (self && dy > 0) {  // downward: the last row first, before it is overwritten
        block.in += block.inStep * (block.height - 1);
        block.out += block.outStep * (block.height - 1);
        block.inStep = -block.inStep;
        block.outStep = -block.outStep;
    }
    if (self && dy == 0) return combineWithin(op, block);
    combine(op, block);
}

void Bitmap::stretch(const Bitmap& source, const Rect& from, const Rect& to, Op op) {
    if (&source == this) return stretch(Bitmap(source), from, to, op);
    const Axis columns =
        axisOf(stretchOf(from.x, from.w), stretchOf(to.x, to.w), source.width(), clip_.x, clip_.right());
    const Axis rows =
        axisOf(stretchOf(from.y, from.h), stretchOf(to.y, to.h), source.height(), clip_.y, clip_.bottom());
    if (columns.empty() || rows.empty()) return;
    // Letters that are stretched are none: they stay in the picture.
    const Rect covered{columns.begin, rows.begin, columns.length(), rows.length()};
    if (Bitmap* const ground = op == Op::plain ? groundUnder(covered) : groundUnder())
        ground->stretch(source, from, to, op);
    const int width = columns.length();
    std::vector<Pixel> gathered(op == Op::plain ? 0 : static_cast<std::size_t>(width));
    for (int i = 0; i < rows.length();) {
        const int taken = rows.source[static_cast<std::size_t>(i)];
        const Pixel* const in = source.row(taken);
        Pixel* const out = row(rows.begin + i) + columns.begin;
        int repeats = 1;
        while (i + repeats < rows.length() && rows.source[static_cast<std::size_t>(i + repeats)] == taken)
            ++repeats;
        if (op == Op::plain) {
            gatherRow(out, in, columns.source.data(), width);
            combine(op, {out, 0, out + size_.w, size_.w, width, repeats - 1});
        } else {
            gatherRow(gathered.data(), in, columns.source.data(), width);
            combine(op, {gathered.data(), 0, out, size_.w, width, repeats});
        }
        i += repeats;
    }
}

}  // namespace zentrox
