// What the panel is drawn with: texts, buttons and a list that scrolls; and what a click on them does.
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "platform/picture/bitmap.h"
#include "platform/picture/font.h"

namespace zentrox::author {

namespace ink {
constexpr Colour plain{0, 0, 0};
constexpr Colour accent{0, 0, 128};
constexpr Colour faint{100, 100, 100};
constexpr Colour warm{176, 32, 0};
}  // namespace ink

class Sheet {
public:
    using Action = std::function<void()>;
    struct Row {
        Text place{};  // a first column, as wide as the widest
        Text text{};
        Colour colour = ink::plain;
        std::optional<bool> box{};  // before the text, ticked or not
        bool current = false;       // stands out
        Action click{};
    };

    explicit Sheet(Fonts& fonts) : fonts_(fonts) {}

    // Empties it for another picture.
    void begin(Size size);
    const Bitmap& picture() const { return picture_; }
    Size size() const { return picture_.size(); }
    // Pixels from one text to the next, and of a button.
    int lineHeight() const;
    int buttonHeight() const;

    // Cut off with dots where it is wider than `width`; gives the x behind it.
    int text(Point at, int width, const Text& text, Colour colour, bool bold = false);
    int button(Point at, const Text& label, bool down, Action click);
    int width(const Text& text) const { return font().width(text); }
    int buttonWidth(const Text& label) const;
    // Over what is drawn there.
    void clickable(const Rect& area, Action click);
    // `scroll` rows are left out: at the beginning, or where the newest are the last, at the end. Is held to what
    // there is.
    void list(const Rect& frame, const std::vector<Row>& rows, int& scroll, bool newestLast);

    // Does what stands there.
    void click(Point at);

private:
    const Font& font(bool bold = false) const;
    void row(const Rect& area, const Row& row, int placeWidth, bool striped);
    void scrollBar(const Rect& area, int count, int fit, int first, std::function<void(int)> goTo);

    struct Spot {
        Rect area;
        std::function<void(Point at)> click;
    };
    Fonts& fonts_;
    Bitmap picture_;
    std::vector<Spot> spots_;
};

}  // namespace zentrox::author
