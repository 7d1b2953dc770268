// Where the game's windows stand in the one native window: plain reckoning. The bottommost window has the native
// frame round it; those above it stand over its picture, each with a frame that we draw.
#pragma once

#include <optional>
#include <vector>

#include "platform/picture/enlarge.h"
#include "platform/values/geometry.h"
#include "platform/window/window.h"

namespace zentrox::sdl {

// A window of the game, as far as its place goes.
struct Tenant {
    Size client;
    Size minimum;  // of a sizable one
    Frame frame = Frame::fixed;
    std::optional<Point> put;  // where a person has put it: its corner, seen from the corner of the one below
};

// The parts of a window with a frame that we draw. Coordinates are those of its client area.
Rect outerArea(const Rect& client, Frame frame);
Rect titleBar(const Rect& client, Frame frame);  // empty where the frame has none
Rect closeBox(const Rect& client, Frame frame);

enum class Place { outside, edge, title, closeBox, client };
Place placeOf(Point p, const Rect& client, Frame frame, bool framed);

struct Ground {
    Size native;  // pixels of the screen
    Enlarging how = Enlarging::whole;
    double most = 1e9;       // no larger than this
    bool stretched = false;  // larger than the bottommost window wants, for what stands above it
};

// The scale at which the bottommost window alone would stand.
double baseScale(const Ground& ground, const Tenant& base);
// The client area that the bottommost window has there: a sizable one fills the ground, others keep their own.
Size baseClient(const Ground& ground, const Tenant& base);
// What the native window has to hold so that no window is cut: pixels of the game.
Size needed(const std::vector<Tenant>& tenants);

struct Layout {
    double scale = 1;
    Size canvas;                // pixels of the game that the native window holds
    Point corner;               // of the canvas in the native window
    std::vector<Rect> clients;  // the client areas on the canvas, the bottommost one first
};
// Tenants from the bottommost to the topmost. Windows above the first one are centred on the one below them, unless
// a person has put them elsewhere, and held wholly on the canvas.
Layout layOut(const Ground& ground, const std::vector<Tenant>& tenants);

}  // namespace zentrox::sdl
