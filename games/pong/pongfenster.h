// The window of Pong: it hands ticks, keys and buttons to the rules.
#pragma once

#include "games/pong/pongbild.h"
#include "media/medien.h"
#include "platform/platform.h"
#include "platform/window/controls/button.h"
#include "platform/window/controls/field.h"
#include "platform/window/controls/label.h"
#include "platform/window/window.h"

namespace zentrox {

class Pong : public Window, private Pongumgebung {
public:
    Pong(Platform& platform, Zustand& zustand, Medien& medien, Pongbilder bilder);

    const Pongstand& stand() const { return spiel_.stand(); }

private:
    std::array<std::uint8_t, 256> Tastenstand() override { return platform().backend.keys(); }
    void Klang(TextView datei) override;
    void Titel(TextView text) override;
    void Punkte(Seite seite, std::int32_t punkte) override;
    void SpielerHatGewonnen() override { z_.Übergabe = true; }

    // Runs a part of the rules and then sets the timers as they want them.
    void tut(void (Pongspiel::*was)());

    Zustand& z_;
    Medien& medien_;
    Surface Picture1;
    PushButton Command1;
    PushButton Command2;
    Label Label1;
    Field Text1;
    Label Label2;
    Field Text2;
    Pongbild bild_;
    Pongspiel spiel_;
    Timer Timer1;
    Timer Timer2;
    Timer Timer3;
    Timer Timer4;
    Timer Timer5;
    Timer Timer6;
};

}  // namespace zentrox
