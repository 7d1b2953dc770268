// A text that types itself on a surface. A letter appears dark, turns grey with the next step, and white with the
// one after. In a page "|" ends a line, and "#", with the two characters behind it, is a mark that prints nothing.
#pragma once

#include "platform/window/surface.h"

namespace zentrox {

class Schreibmaschine {
public:
    enum class Ereignis { nichts, marke, seitenende };

    // Does one step on a page, whose first two characters are skipped. A page begins with the surface cleared, and
    // ends 25 steps behind its last character; the next step then begins a page.
    Ereignis Schritt(Surface& fläche, TextView seite);
    // The next step begins a page.
    void Anfangen() { stelle_ = 0; }

private:
    void tippen(Surface& fläche, TextView seite);

    std::size_t stelle_ = 0;  // counted from 1; 0 before a page
    int x_ = 0;
    int y_ = 0;
};

}  // namespace zentrox
