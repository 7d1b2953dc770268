// The inventory bar: composed off screen, slid up over the lower edge of the picture and down again.
#pragma once

#include "engine/state/zustand.h"
#include "platform/platform.h"
#include "platform/window/surface.h"

namespace zentrox {

class Leiste {
public:
    // All of these must outlive it: the view, the clean view, and the surface that loads pictures.
    Leiste(Platform& platform, Zustand& z, Surface& Picture1, const Surface& Picture3, Surface& Picture5);

    // Composes the bar from `Inventar`; so it has to follow each change of that.
    void GegenständeLaden();
    // Slide it up or down and serve the queue meanwhile; return when it stands or is gone.
    void Zeige();
    void Verstecke();
    // No bar any more; the picture is left to who calls.
    void Weg();

    // Points are in pixels of `Picture1`. Until it stands nothing is in it.
    bool Enthält(int Y) const { return z_.LeisteOffen && Y >= oben(); }
    bool Darüber(int Y) const { return z_.LeisteOffen && Y < oben(); }
    // The slot of `Inventar` there, -1 for an empty cell.
    int SlotBei(int X, int Y) const;
    // The file name of an item without its extension.
    Text Name(int slot) const;

private:
    int oben() const { return Picture1.height() - z_.LeisteHöhe; }
    float volleHöhe() const;
    void strich();
    void zeichnen(int slot);

    Platform& platform_;
    Zustand& z_;
    Surface& Picture1;
    const Surface& Picture3;
    Surface& Picture5;
    Surface Picture4;
    float LeisteVoll = 0;
};

}  // namespace zentrox
