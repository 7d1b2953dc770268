#include "games/jump/jump.h"

#include "engine/state/warten.h"
#include "games/base/entscheidbar.h"
#include "games/base/geladen.h"
#include "games/base/tasten.h"
#include "games/jump/jumpbild.h"

namespace zentrox {

namespace {

constexpr Size fenstergröße{624, 433};
constexpr int takt = 20;       // milliseconds a tick
constexpr int songTakt = 500;  // milliseconds between two looks at the song

class Jump : public Window, public Entscheidbar {
public:
    Jump(Platform& platform, Zustand& zustand, Medien& medien)
        : Window(platform, "Jump", "", fenstergröße, Frame::thin),
          z_(zustand),
          medien_(medien),
          Feld(platform.fonts, &root(), {{0, 0}, Jumpfeld}),
          Timer1(platform.queue, 1, true, [this] { Timer1_Timer(); }),
          RM(platform.queue, songTakt, false, [this] { medien_.SongPrüfen(); }) {
        Feld.name = "Feld";
        Feld.font = {"MS Sans Serif", 13.5F, true};
        // It stands from the first moment, however long loading takes, until the view is drawn over it.
        Feld.print("Bitte Warten - Laden");
        setPointer({Pointer::Mode::invisible, {}});
    }

    bool Entscheiden(bool sieg) override { return bild_ && spiel_.Entscheiden(sieg); }

private:
    bool onQueryClose() override {
        spiel_.Ende = 1;
        return true;
    }

    void onKeyDown(int code) override { tasten_.Nieder(code); }

    // Fires once and holds the whole game.
    void Timer1_Timer() {
        Timer1.setEnabled(false);
        medien_.SpieleWav(z_.PfadGames + "wodds.wav");
        if (laden())
            spielen();
        else
            z_.Übergabe = false;
        close();
    }

    bool laden() {
        auto atlas = Geladen(platform(), "JUMP", [&] { return Grafikladen(platform().files, z_.PfadGames); });
        if (!atlas) return false;
        bild_.emplace(Feld, std::move(*atlas));
        bild_->Hintergrundaufbau(spiel_);
        return true;
    }

    void spielen() {
        medien_.SongStart(z_.PfadGames + "jump.mid");
        RM.setEnabled(true);
        while (spiel_.Ende == 0) tick();
        RM.setEnabled(false);
        medien_.SongStop();
    }

    void tick() {
        TastaturLesen(z_, platform());
        tasten_.Ergänzen(z_.Tastatur);
        bild_->Entfernen(spiel_);
        const Jumptick t = spiel_.Tick(z_.Tastatur, platform().random);
        bild_->Zeichnen(spiel_, t);
        for (const TextView klang : t.Klänge) medien_.SpieleWav(z_.PfadGames + Text(klang));
        if (spiel_.Ergebnis) z_.Übergabe = *spiel_.Ergebnis;
        WarteFrame(z_, platform(), takt);
    }

    Zustand& z_;
    Medien& medien_;
    Surface Feld;
    Timer Timer1;
    Timer RM;
    Tastenwacht tasten_;
    Jumpspiel spiel_;
    std::optional<Jumpbild> bild_;  // once its pictures are loaded
};

}  // namespace

void JumpZeigen(Platform& platform, Zustand& zustand, Medien& medien) {
    Jump(platform, zustand, medien).showModal();
    // Whoever closes the window has not won, whatever the story has put there.
    if (!std::holds_alternative<bool>(zustand.Übergabe)) zustand.Übergabe = false;
}

}  // namespace zentrox
