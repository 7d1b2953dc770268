// The pointer over the room: which picture it shows, and the row of pictures that it runs through.
#pragma once

#include <map>

#include "engine/state/zustand.h"
#include "platform/platform.h"
#include "platform/window/window.h"

namespace zentrox {

class Zeiger {
public:
    // All of these must outlive it; `fenster` is the window whose pointer it is.
    Zeiger(Window& fenster, Platform& platform, Zustand& z) : fenster_(fenster), platform_(platform), z_(z) {}

    void Standard() { fenster_.setPointer({}); }
    // Loads an icon, full path, as the window's own pointer and shows that. In place of one that is missing or
    // damaged stands the arrow, and it is told of.
    void Laden(TextView Pfad);
    // The own pointer, the icon loaded last.
    void Eigen();

    // What shows over nothing: the held item, or the arrow.
    void ÜberNichts();
    // A held item is over what takes it.
    void Heiß();
    void FürObjekt(const RaumObjekt& objekt);
    // An item has been picked up.
    void Halten();

    // The next picture of the row.
    void Takt();

private:
    void frage() { fenster_.setPointer({Pointer::Mode::question, {}}); }
    Text cursor(TextView datei) const { return z_.PfadCursors + Text(datei); }

    Window& fenster_;
    Platform& platform_;
    Zustand& z_;
    Text eigener_;                   // full path
    std::map<Text, bool> geprüfte_;  // whether an icon can be used
};

}  // namespace zentrox
