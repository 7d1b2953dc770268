// What can be clicked now, by name and place: the things of a room, what lies in the bag, the answers of a choice,
// and the controls of other windows of some games.
#pragma once

#include <vector>

#include "engine/state/zustand.h"
#include "platform/window/window.h"

namespace zentrox {

struct Target {
    enum class Kind { thing, item, answer, control };
    Kind kind = Kind::thing;
    int index = 0;  // of the object, the slot, the answer from 1, the control in its window
    Text name;
    Rect area;  // in pixels of the active window's client area
    Point at;   // where a click reaches it
    friend bool operator==(const Target& a, const Target& b) { return a.kind == b.kind && a.index == b.index; }
};

// In the order in which a player would go through them: from the left to the right; the bag before the room. With
// `dropping` what takes an item. An author hides a thing of a room by a name that begins with "_".
std::vector<Target> targetsIn(const Zustand& z, Window& active, bool dropping);

// A place of the room picture where a release does nothing, in pixels of the client area.
Point nowhereIn(Window& active);

}  // namespace zentrox
