#include "games/bruhks/bruhks.h"

#include "engine/state/warten.h"
#include "games/base/entscheidbar.h"
#include "games/bruhks/bruhksbild.h"
#include "platform/window/controls/label.h"
#include "platform/window/controls/look.h"

namespace zentrox {

namespace {

constexpr Size fenstergröße{649, 480};
constexpr Rect feldBereich{0, 0, 649, 449};  // its edge included
constexpr int takt = 20;                     // milliseconds a tick

// The edge of the surface.
class Rahmen : public Control {
public:
    using Control::Control;
    void paint(Bitmap& onto, Point at) override { look::sunken(onto, {at, area().size()}); }
};

class Bruhks : public Window, public Entscheidbar {
public:
    Bruhks(Platform& platform, Zustand& zustand)
        : Window(platform, "Bruhks", "", fenstergröße, Frame::thin),
          z_(zustand),
          Rand(&root(), feldBereich),
          Feld(platform.fonts, &Rand, look::shrunk({{0, 0}, feldBereich.size()}, look::edge), black),
          Label1(&root(), {8, 456, 65, 17}, "Countdown:"),
          Label2(&root(), {72, 456, 33, 17}, std::to_string(Jagdsekunden)),
          Timer1(platform.queue, 1, true, [this] { Timer1_Timer(); }),
          Timer2(platform.queue, 1000, true, [this] { Timer2_Timer(); }),
          bild_(Feld) {
        Feld.name = "Feld";
        Feld.font = {"MS Sans Serif", 13.5F, true};
        Feld.onDown = [this](const PointerEvent& e) {
            spiel_.Klick(static_cast<std::int16_t>(e.button), e.x, e.y);
        };
        Label2.name = "Label2";
    }

    bool Entscheiden(bool sieg) override { return spiel_.Entscheiden(sieg); }
    // The celebration ends on a click.
    void Verlassen() override { spiel_.Klick(linkeTaste, 0, 0); }

private:
    bool onQueryClose() override {
        spiel_.Ende = 1;
        return true;
    }

    // Fires once and holds the whole game.
    void Timer1_Timer() {
        Timer1.setEnabled(false);
        spiel_.Sekunden = 0;
        while (spiel_.Jagd()) tick();
        if (spiel_.Uebrig == 0) feiern();
        close();
    }

    void Timer2_Timer() {
        spiel_.Sekunde();
        Label2.setText(std::to_string(Jagdsekunden - spiel_.Sekunden));
        if (spiel_.Ende != 0) z_.Übergabe = false;
    }

    void tick() {
        bild_.Entfernen(spiel_);
        spiel_.Tick(platform().random);
        bild_.Zeichnen(spiel_);
        WarteFrame(z_, platform(), takt);
    }

    void feiern() {
        Timer2.setEnabled(false);
        z_.Übergabe = true;
        spiel_.SiegBeginn(bild_.Textmitte());
        while (spiel_.Ende == 0) tick();
    }

    Zustand& z_;
    Rahmen Rand;
    Surface Feld;
    Label Label1;
    Label Label2;
    Timer Timer1;
    Timer Timer2;
    Bruhksbild bild_;
    Bruhksspiel spiel_{platform().random, z_.PI, Feld.area().size(), bild_.Frame()};
};

}  // namespace

void BruhksZeigen(Platform& platform, Zustand& zustand, Medien& /*medien*/) {
    zustand.Übergabe = false;
    Bruhks(platform, zustand).showModal();
}

}  // namespace zentrox
