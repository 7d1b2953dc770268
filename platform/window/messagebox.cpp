#include "platform/window/messagebox.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "platform/platform.h"
#include "platform/values/keys.h"
#include "platform/window/controls/button.h"
#include "platform/window/controls/image.h"
#include "platform/window/controls/label.h"
#include "platform/window/controls/textlayout.h"

namespace zentrox {

namespace {

constexpr int margin = 12;        // pixels round all that stands in the box
constexpr int iconSide = 32;      // pixels
constexpr int widestText = 420;   // pixels; longer lines are wrapped
constexpr int veryWidest = 560;   // of larger letters
constexpr int tallestText = 400;  // pixels; the rest is cut, so that the button stays in sight
constexpr Size buttonSize{75, 23};
constexpr int titleExtra = 60;  // what a title bar needs beside its text

// A shape of an icon, in units of its 32 pixels.
struct Shape {
    Colour colour;
    bool (*holds)(double x, double y);
};

bool inDisc(double x, double y, double centreX, double centreY, double radius) {
    return std::hypot(x - centreX, y - centreY) <= radius;
}

bool inBox(double x, double y, double left, double top, double right, double bottom) {
    return x >= left && x < right && y >= top && y < bottom;
}

bool onCross(double x, double y) {
    const double dx = std::abs(x - 15);
    const double dy = std::abs(y - 15);
    return std::abs(dx - dy) <= 2.8 && std::max(dx, dy) <= 7.4;
}

// The balloon of speech: a disc with a tip at its foot.
bool inBalloon(double x, double y, double grow) {
    if (inDisc(x, y, 15, 13, 12.5 + grow)) return true;
    return y >= 22 && y <= 30.5 + grow && x <= 19.5 + grow && x >= 15.5 - grow + (y - 22) * 0.45;
}

const std::array information{
    Shape{Colour{128, 128, 128}, [](double x, double y) { return inBalloon(x - 1.5, y - 1, 0); }},
    Shape{black, [](double x, double y) { return inBalloon(x, y, 0); }},
    Shape{white, [](double x, double y) { return inBalloon(x, y, -1); }},
    Shape{Colour{0, 0, 200},
          [](double x, double y) {
              return inDisc(x, y, 15, 6.5, 2.2) || inBox(x, y, 11.5, 10, 17, 12) || inBox(x, y, 13, 10, 17, 20) ||
                     inBox(x, y, 11.5, 18, 18.5, 20);
          }},
};

const std::array critical{
    Shape{Colour{128, 128, 128}, [](double x, double y) { return inDisc(x, y, 16.5, 16.5, 14.5); }},
    Shape{Colour{128, 0, 0}, [](double x, double y) { return inDisc(x, y, 15, 15, 14.5); }},
    Shape{Colour{255, 0, 0}, [](double x, double y) { return inDisc(x, y, 15, 15, 13.5); }},
    Shape{white, onCross},
};

// One pixel of an icon, the mean of its sixteen parts.
template <std::size_t N>
Colour shaded(const std::array<Shape, N>& shapes, int x, int y) {
    constexpr int parts = 4;
    std::array<int, 3> sum{};
    for (int i = 0; i < parts * parts; ++i) {
        Colour colour = look::face;
        for (const Shape& shape : shapes)
            if (shape.holds(x + (i % parts + 0.5) / parts, y + (i / parts + 0.5) / parts)) colour = shape.colour;
        for (unsigned k = 0; k < 3; ++k) sum[k] += static_cast<int>(colour.rgb >> (16 - 8 * k) & 255U);
    }
    const auto mean = [](int all) { return (all + parts * parts / 2) / (parts * parts); };
    return {mean(sum[0]), mean(sum[1]), mean(sum[2])};
}

Bitmap draw(MessageBox::Icon icon) {
    Bitmap picture({iconSide, iconSide}, look::face);
    for (int y = 0; y < iconSide; ++y)
        for (int x = 0; x < iconSide; ++x)
            picture.setPixel(
                {x, y}, icon == MessageBox::Icon::critical ? shaded(critical, x, y) : shaded(information, x, y));
    return picture;
}

// Where everything stands in a box.
struct Layout {
    Text words;
    Size client;
    Rect text;
    Rect icon;
    Rect button;
};

// What stands in so many lines of the text; the last of them then ends in dots.
Text cut(const Text& text, std::vector<TextLine>& lines, std::size_t most) {
    if (lines.size() <= most) return text;
    lines.resize(most);
    TextLine& last = lines.back();
    last.end = std::max(last.begin, last.end - std::min(last.end, std::size_t{3}));
    Text words = text.substr(0, last.end) + "...";
    last.end = words.size();
    return words;
}

Layout layOut(Platform& platform, const MessageBox& box) {
    const int percent = platform.boxPercent;
    const Font& font = platform.fonts.get(platform.boxFont());
    const Size button{buttonSize.w * percent / 100, buttonSize.h * percent / 100};
    auto lines = wrapText(font, box.text, std::min(widestText * percent / 100, veryWidest));
    const bool hasIcon = box.icon != MessageBox::Icon::none;
    Layout out;
    out.words = cut(box.text, lines, static_cast<std::size_t>(tallestText / font.lineHeight()));
    out.text = {hasIcon ? 2 * margin + iconSide : margin, margin, widestLine(font, out.words, lines),
                static_cast<int>(lines.size()) * font.lineHeight()};
    out.icon = {margin, margin, hasIcon ? iconSide : 0, hasIcon ? iconSide : 0};
    if (hasIcon) out.text.y += std::max(0, (iconSide - out.text.h) / 2);
    const int bottom = std::max(out.text.bottom(), out.icon.bottom());
    const int title = platform.fonts.get({}).width(box.title) + titleExtra;
    out.client.w = std::max({out.text.right() + margin, title, button.w + 2 * margin});
    out.client.h = bottom + margin + button.h + margin;
    out.button = {(out.client.w - button.w) / 2, bottom + margin, button.w, button.h};
    return out;
}

class MsgBox : public Window {
public:
    MsgBox(Platform& platform, const MessageBox& box, const Layout& layout)
        : Window(platform, "MsgBox", box.title, layout.client, Frame::dialog),
          icon_(&root(), layout.icon),
          text_(&root(), layout.text, layout.words),
          ok_(&root(), layout.button, "OK"),
          failure_(box.icon == MessageBox::Icon::critical) {
        text_.setFont(platform.boxFont());
        ok_.setFont(platform.boxFont());
        if (box.icon == MessageBox::Icon::none)
            icon_.setVisible(false);
        else
            icon_.setPicture(draw(box.icon));
        ok_.onClick = [this] { close(); };
    }

    bool failure() const { return failure_; }

    void onOpen() override { setFocus(&ok_); }

    void onKeyDown(int code) override {
        if (code == key::enter || code == key::escape || code == key::space) close();
    }

private:
    Image icon_;
    Label text_;
    PushButton ok_;
    bool failure_;
};

}  // namespace

void showMessageBox(Platform& platform, const MessageBox& box) {
    MsgBox window(platform, box, layOut(platform, box));
    platform.backend.messageBoxOpened(box);
    window.showModal();
}

bool tellsOfFailure(const Window& window) {
    const auto* const box = dynamic_cast<const MsgBox*>(&window);
    return box != nullptr && box->failure();
}

}  // namespace zentrox
