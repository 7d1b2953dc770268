// Pixels in memory and the tight loops that work on them. All drawing is clipped, for every rectangle.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "platform/values/geometry.h"

namespace zentrox {

struct Letter;
struct Letters;

// What a copy does with the pixels of source and target.
enum class Op { plain, bitAnd, bitOr };

// 32 bits a pixel, 0x00RRGGBB, rows from top to bottom without a gap.
class Bitmap {
public:
    Bitmap() = default;
    // A side below 0 counts as 0.
    explicit Bitmap(Size size, Colour fill = black);

    Size size() const { return size_; }
    int width() const { return size_.w; }
    int height() const { return size_.h; }
    Rect bounds() const { return {{0, 0}, size_}; }
    bool empty() const { return pixels_.empty(); }

    std::uint32_t* row(int y) { return pixels_.data() + static_cast<std::size_t>(y) * size_.w; }
    const std::uint32_t* row(int y) const { return pixels_.data() + static_cast<std::size_t>(y) * size_.w; }

    // All drawing is held to this part; at first it is the whole.
    const Rect& clip() const { return clip_; }
    void setClip(const Rect& part) { clip_ = intersection(part, bounds()); }

    // The colour 0x00RRGGBB at a point, -1 outside.
    std::int32_t pixel(Point p) const;
    void setPixel(Point p, Colour colour);

    void fill(Colour colour);
    void fill(const Rect& area, Colour colour);
    // Turns every bit of each pixel over; done twice it restores them.
    void invert(const Rect& area);
    // The one-pixel edge of `area`, inside it.
    void outline(const Rect& area, Colour colour);
    // One pixel wide, both ends included.
    void line(Point from, Point to, Colour colour);
    // A one-pixel circle; radius 0 is its centre, a negative one nothing.
    void circle(Point centre, int radius, Colour colour);

    // Copies `from` of `source`, pixel for pixel, to `to`. The source may be this bitmap itself, overlapping or
    // not; it is taken as it was before. What lies outside either bitmap is left out.
    void copy(const Bitmap& source, const Rect& from, Point to, Op op = Op::plain);
    void copy(const Bitmap& source, Point to, Op op = Op::plain) { copy(source, source.bounds(), to, op); }

    // Copies `from` of `source`, scaled, onto `to`. A negative width or height of one of them mirrors: the area is
    // then the one from x + w to x (y + h to y). The pixel taken is floor(offset * source side / target side);
    // source pixels outside the source are left out. The source may be this bitmap itself; it is then taken as it
    // was before.
    void stretch(const Bitmap& source, const Rect& from, const Rect& to, Op op = Op::plain);

    // The letters that were noted of it and not drawn over since, null without any. They are no part of its value.
    const Letters* letters() const { return letters_.get(); }
    // To be told before these letters are drawn into it.
    void note(const std::vector<Letter>& letters);

    friend bool operator==(const Bitmap& a, const Bitmap& b) {
        return a.size_ == b.size_ && a.pixels_ == b.pixels_;
    }

private:
    void put(Point p, Colour colour);
    Letters& ownLetters();
    // What a change has to be drawn on, too: the ground of the letters, null without any; `drawnOver` hides them.
    Bitmap* groundUnder(const Rect& drawnOver);
    Bitmap* groundUnder();
    void copyLetters(const Bitmap& source, const Rect& from, Point to, Op op);

    Size size_;
    Rect clip_;
    std::vector<std::uint32_t> pixels_;
    std::shared_ptr<Letters> letters_;  // shared by copies until one of them changes
};

}  // namespace zentrox
