// The window of Memory. A match is one long call that waits for clicks and for the clock; where it stands is the
// state.
#pragma once

#include "engine/state/zustand.h"
#include "games/base/entscheidbar.h"
#include "games/memory/memorybild.h"
#include "platform/platform.h"
#include "platform/window/window.h"

namespace zentrox {

class Memory : public Window, public Entscheidbar {
public:
    Memory(Platform& platform, Zustand& zustand, Memorybilder bilder);

    const Memoryspiel& spiel() const { return spiel_; }
    bool Entscheiden(bool sieg) override;

private:
    bool onQueryClose() override;
    void Timer1_Timer();
    // How a turn ends: with a pair, without one, or with the match or the window.
    enum class Ausgang { nochmal, wechsel, schluss };
    Ausgang spielerZug();
    Ausgang gegnerZug();
    Ausgang nachZug(Memoryspiel::Zug zug, Wer wer);
    void match();
    std::int32_t karteGewählt(std::int32_t nicht);
    void KartenWeg(Memoryspiel::Zug zug, Wer wer);
    void Ende();
    // Lets time pass; false if the window has been closed.
    bool warten(std::int32_t ms);

    Zustand& z_;
    Memoryspiel spiel_;
    Memorybild bild_;
    Timer Timer1;
    bool laeuft = false;
    std::int32_t Klick = keine;
};

}  // namespace zentrox
