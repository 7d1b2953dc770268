// The ways to what a player can set: F10 and the mark at the edge open the settings, F3 the page of all keys,
// Ctrl+U mutes.
#pragma once

#include "comfort/comforts.h"

namespace zentrox {

class Desk : public Beobachter {
public:
    // Must be outlived by the comforts, whose keys and looks it takes.
    explicit Desk(Comforts& comforts);
    Desk(const Desk&) = delete;
    Desk& operator=(const Desk&) = delete;

private:
    void Ruht() override;
    void tellOnce(bool Settings::*told, TextView text);
    void showSettings();
    void showKeys();
    void mute();
    bool atMark(const Input& input);
    void showMark(bool show);
    void drawMark(Bitmap& picture, const Rect& base) const;

    Comforts& comforts_;
    Timer rest_;  // the pointer rests where the mark would be
    bool markShown_ = false;
    bool markPressed_ = false;
};

}  // namespace zentrox
