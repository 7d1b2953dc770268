// The letters that were drawn into a bitmap, remembered beside it with what lies under them, so that they can be
// drawn again at the size at which it is shown. Fonts note them, bitmaps carry them along.
#pragma once

#include <vector>

#include "platform/picture/bitmap.h"

namespace zentrox {

class Font;

struct Letter {
    const Font* font = nullptr;  // outlives the bitmap's use
    char character = 0;
    Point at;  // of the left upper corner of its cell
    Colour colour;
    Rect ink;   // no pixel outside was changed
    Rect seen;  // where nothing has been drawn over it: a part of `ink` and a margin
};

struct Letters {
    Bitmap ground;  // the bitmap without them; itself without letters
    std::vector<Letter> all;

    // What stood in `area` is gone.
    void cut(const Rect& area);
    // Those of `from` that can be seen within `part`, moved.
    static std::vector<Letter> within(const std::vector<Letter>& from, const Rect& part, Point by);
};

// Parts a picture into its letters and what is under them.
class LetterLift {
public:
    // Brings `base` up to date within a part of a picture that has letters, or none any more: there it is the
    // picture without the letters that are given, in the order of their drawing. They are those that stand just as
    // they were drawn; what something has been drawn across stays in the picture. `part` grows by letters that lean
    // out of it.
    std::vector<Letter> lift(const Bitmap& picture, Rect& part);
    const Bitmap& base() const { return base_; }

private:
    bool liftOne(const Bitmap& picture, const Letter& letter);

    Bitmap base_;
    Bitmap taken_;  // not black where a letter that was drawn later has been lifted
};

}  // namespace zentrox
