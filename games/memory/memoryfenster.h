// The window of Memory. A match is one long call that waits for clicks and for the clock; where it stands is the
// state.
#pragma once

#include <array>
#include <optional>

#include "engine/state/zustand.h"
#include "games/memory/memoryspiel.h"
#include "platform/platform.h"
#include "platform/window/controls/image.h"
#include "platform/window/controls/label.h"
#include "platform/window/window.h"

namespace zentrox {

// Cards of 97 by 97 pixels.
struct Memorybilder {
    Bitmap rücken;
    std::array<Bitmap, paarAnzahl> gesichter;
};

// A picture made smaller, each pixel the mean of those that it stands for.
Bitmap verkleinert(const Bitmap& bild, Size größe);

class Memory : public Window {
public:
    Memory(Platform& platform, Zustand& zustand, Memorybilder bilder);

    const Memoryspiel& spiel() const { return spiel_; }
    // For tests: deals the cards this way instead.
    std::optional<std::array<std::int32_t, kartenAnzahl>> gegeben;

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
    void zeigen(std::int32_t position, const Bitmap& bild);
    void aufdecken(std::int32_t position);
    void zudecken(Memoryspiel::Zug zug);
    void nachVorn(std::int32_t position);
    void karteAnlegen(std::int32_t position);
    Image& karte(std::int32_t position) { return *Image1[static_cast<std::size_t>(position)]; }

    Zustand& z_;
    Memorybilder bilder_;
    Memoryspiel spiel_;
    std::array<Label, 2> Label1;
    std::array<std::optional<Image>, kartenAnzahl> Image1;
    Timer Timer1;
    bool laeuft = false;
    std::int32_t Klick = keine;
};

}  // namespace zentrox
