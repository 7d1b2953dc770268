// The window of the pi game. A game is one long call that waits for keys and for the clock.
#pragma once

#include "engine/state/zustand.h"
#include "media/medien.h"
#include "platform/platform.h"
#include "platform/window/surface.h"
#include "platform/window/window.h"

namespace zentrox {

class PISpiel : public Window {
public:
    // `zeichen` are the characters that are asked, at least one.
    PISpiel(Platform& platform, Zustand& zustand, Medien& medien, Text zeichen);

private:
    bool onQueryClose() override { return Form_QueryUnload(); }
    void onKeyPress(char c) override { Form_KeyPress(static_cast<unsigned char>(c)); }
    void Form_KeyPress(std::int16_t KeyAscii) { taste = KeyAscii; }
    bool Form_QueryUnload();
    void Timer1_Timer();

    // Each returns false once the window is being closed.
    bool vorspann();
    bool ansage(TextView text);
    bool kreis();
    bool abfragen();
    bool schluss();
    bool warten(std::int32_t ms);

    void zeigen(char zeichen);
    void gedruckt(Point ort, TextView text, Colour farbe);

    Zustand& z_;
    Medien& medien_;
    Text zeichen_;
    Surface Picture1;
    Timer Timer1;
    bool spielLaeuft = false;
    std::int16_t taste = 0;
    std::int32_t anzahl = 0;
};

}  // namespace zentrox
