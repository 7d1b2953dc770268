// The window of Pong: it hands ticks, keys and buttons to the rules, and what comes of them to the picture.
#pragma once

#include "engine/state/zustand.h"
#include "games/base/entscheidbar.h"
#include "games/pong/pongbild.h"
#include "media/medien.h"
#include "platform/platform.h"
#include "platform/window/controls/button.h"
#include "platform/window/controls/field.h"
#include "platform/window/controls/label.h"
#include "platform/window/window.h"

namespace zentrox {

class Pong : public Window, public Entscheidbar {
public:
    Pong(Platform& platform, Zustand& zustand, Medien& medien, Pongbilder bilder);

    const Pongspiel& spiel() const { return spiel_; }
    bool Entscheiden(bool sieg) override;
    void Verlassen() override { requestClose(); }

private:
    void onKeyDown(int code) override { tasten_.Nieder(code); }
    Tasten CheckKeys();
    void neuess();
    // A tick of the rules, and what the picture makes of it.
    template <class Tick>
    void tun(Tick tick, void (Pongbild::*zeigen)(const Pongzug&));
    // Shows and hands over what a tick has left in the rules.
    void melden();

    Zustand& z_;
    Medien& medien_;
    Surface Picture1;
    PushButton Command1;
    PushButton Command2;
    Label Label1;
    Field Text1;
    Label Label2;
    Field Text2;
    Tastenwacht tasten_;
    Pongspiel spiel_;
    Pongbild bild_;
    Timer Timer1;
    Timer Timer2;
    Timer Timer3;
    Timer Timer4;
    Timer Timer5;
    Timer Timer6;
};

}  // namespace zentrox
