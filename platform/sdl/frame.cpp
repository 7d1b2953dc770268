#include "platform/sdl/frame.h"

#include "platform/platform.h"
#include "platform/sdl/layout.h"
#include "platform/window/controls/look.h"

namespace zentrox::sdl {

namespace {

constexpr int titleInset = 4;  // pixels left of the title's text

// Two strokes of two pixels' width, eight wide and seven high.
void drawCross(Bitmap& onto, Point at) {
    for (int y = 0; y < 7; ++y) {
        onto.fill({at.x + y, at.y + y, 2, 1}, look::text);
        onto.fill({at.x + 6 - y, at.y + y, 2, 1}, look::text);
    }
}

void drawCloseBox(Bitmap& onto, const Rect& area, bool down) {
    onto.fill(area, look::face);
    if (down)
        look::sunken(onto, area);
    else
        look::raised(onto, area);
    const int push = down ? 1 : 0;
    drawCross(onto, {area.x + 4 + push, area.y + 3 + push});
}

void drawTitle(Bitmap& onto, const Window& window, const Rect& client, FrameLook how) {
    const Rect bar = titleBar(client, window.frame());
    const Rect box = closeBox(client, window.frame());
    onto.fill(bar, how.active ? look::selection : look::shadow);
    const look::Clip clip(onto, {bar.x, bar.y, box.x - bar.x, bar.h});
    const Font& font = window.platform().fonts.get({"MS Sans Serif", 8.25F, true});
    const Point at{bar.x + titleInset, bar.y + (bar.h - font.lineHeight()) / 2};
    if (!clip.empty()) font.draw(onto, at, window.title(), how.active ? look::selectedText : look::face);
}

// The four strips between the edge of the frame and the client area.
void fillRound(Bitmap& onto, const Rect& outer, const Rect& client, Colour colour) {
    onto.fill({outer.x, outer.y, outer.w, client.y - outer.y}, colour);
    onto.fill({outer.x, client.bottom(), outer.w, outer.bottom() - client.bottom()}, colour);
    onto.fill({outer.x, client.y, client.x - outer.x, client.h}, colour);
    onto.fill({client.right(), client.y, outer.right() - client.right(), client.h}, colour);
}

}  // namespace

void drawFrame(Bitmap& onto, const Window& window, const Rect& client, FrameLook how) {
    const Rect outer = outerArea(client, window.frame());
    if (outer == client) return;
    fillRound(onto, outer, client, look::face);
    look::raised(onto, outer);
    if (titleBar(client, window.frame()).empty()) return;
    drawTitle(onto, window, client, how);
    drawCloseBox(onto, closeBox(client, window.frame()), how.closeDown);
}

}  // namespace zentrox::sdl
