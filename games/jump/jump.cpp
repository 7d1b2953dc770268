#include "games/jump/jump.h"

#include "engine/state/warten.h"
#include "games/jump/jumpbild.h"
#include "platform/values/error.h"

namespace zentrox {

namespace {

constexpr Size fenstergröße{624, 433};
constexpr int takt = 20;       // milliseconds a tick
constexpr int songTakt = 500;  // milliseconds between two looks at the song

constexpr TextView klangDatei(Jumpklang klang) {
    switch (klang) {
        case Jumpklang::tropfen: return "drip.wav";
        case Jumpklang::lachen: return "e_laugh.wav";
        case Jumpklang::plopp: return "pop.wav";
        case Jumpklang::sprung: break;
    }
    return "boing.wav";
}

class Jump : public Window {
public:
    Jump(Platform& platform, Zustand& zustand, Medien& medien)
        : Window(platform, "Jump", "", fenstergröße, Frame::thin),
          z_(zustand),
          medien_(medien),
          Feld(platform.fonts, &root(), {{0, 0}, Jumpfeld}),
          Timer1(platform.queue, 1, true, [this] { Timer1_Timer(); }),
          RM(platform.queue, songTakt, false, [this] { medien_.SongPrüfen(); }),
          spiel_(platform.random),
          bild_(Feld) {
        Feld.name = "Feld";
        Feld.font = {"MS Sans Serif", 13.5F, true};
        setPointer({Pointer::Mode::invisible, {}});
    }

private:
    bool onQueryClose() override {
        spiel_.Ende = 1;
        return true;
    }

    // Fires once and holds the whole game.
    void Timer1_Timer() {
        Timer1.setEnabled(false);
        medien_.SpieleWav(z_.PfadGames + "wodds.wav");
        laden();
        bild_.Hintergrundaufbau(spiel_);
        medien_.SongStart(z_.PfadGames + "jump.mid");
        RM.setEnabled(true);
        while (spiel_.Ende == 0) tick();
        RM.setEnabled(false);
        medien_.SongStop();
        close();
    }

    void laden() {
        Feld.print("Bitte Warten - Laden");
        platform().queue.present();
        bild_.Grafikladen(platform().files, z_.PfadGames);
    }

    void tick() {
        TastaturLesen(z_, platform());
        bild_.Entfernen(spiel_);
        const Jumptick& t = spiel_.Tick(z_.Tastatur);
        for (const Jumpklang klang : t.Klänge) medien_.SpieleWav(z_.PfadGames + Text(klangDatei(klang)));
        if (spiel_.Ergebnis) z_.Übergabe = *spiel_.Ergebnis;
        bild_.Zeichnen(spiel_, t);
        WarteFrame(z_, platform(), takt);
    }

    Zustand& z_;
    Medien& medien_;
    Surface Feld;
    Timer Timer1;
    Timer RM;
    Jumpspiel spiel_;
    Jumpbild bild_;
};

}  // namespace

void JumpZeigen(Platform& platform, Zustand& zustand, Medien& medien) {
    try {
        Jump(platform, zustand, medien).showModal();
    } catch (const DataError& error) {
        zustand.Übergabe = false;
        showMessageBox(platform, {"Jump", error.message(), MessageBox::Icon::critical});
    }
}

}  // namespace zentrox
