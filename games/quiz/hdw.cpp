#include "games/base/entscheidbar.h"
#include "games/base/geladen.h"
#include "games/quiz/hdwbild.h"
#include "games/quiz/hdwspiel.h"
#include "games/quiz/quiz.h"

namespace zentrox {

namespace {

constexpr Milliseconds soSchnellEsGeht = 1;
constexpr Milliseconds blinkzeitRichtig = 100;
constexpr Milliseconds blinkzeitFalsch = 300;

class HDW : public Window, public Entscheidbar {
public:
    HDW(Platform& platform, Zustand& zustand, Medien& medien, std::vector<Frage> fragen)
        : Window(platform, "HDW", "", HDWgröße, Frame::none),
          z_(zustand),
          medien_(medien),
          spiel_{.Fragen = std::move(fragen)},
          bild_(&root(), [this](std::int32_t Index) { Label2_Click(Index); }),
          Timer1(platform.queue, soSchnellEsGeht, true, [this] { Timer1_Timer(); }),
          Timer2(platform.queue, blinkzeitRichtig, false, [this] { Timer2_Timer(); }),
          Timer3(platform.queue, blinkzeitFalsch, false, [this] { Timer3_Timer(); }) {}

    // The present question is answered, and it is the last one.
    bool Entscheiden(bool sieg) override {
        if (!spiel_.Gefragt() || Timer1.enabled() || Timer2.enabled() || Timer3.enabled()) return false;
        if (sieg) spiel_.LetzteFrage();
        Label2_Click(sieg ? spiel_.richtigePos : spiel_.richtigePos + 1);
        return true;
    }

private:
    void Timer1_Timer() {
        Timer1.setEnabled(false);
        const auto aufgabe = spiel_.Weiter(platform().random);
        if (!aufgabe) {
            z_.Übergabe = true;
            return close();
        }
        bild_.Stellen(*aufgabe);
        klang("wodds.wav");
        bild_.Buttonsunsperren();
    }

    void Label2_Click(std::int32_t Index) {
        bild_.Buttonssperren();
        (spiel_.Richtig(Index) ? Timer2 : Timer3).setEnabled(true);
    }

    void Timer2_Timer() {
        if (!blinken(spiel_.BlinkenRichtig())) return;
        Timer2.setEnabled(false);
        Timer1.setEnabled(true);
    }

    void Timer3_Timer() {
        if (!blinken(spiel_.BlinkenFalsch())) return;
        Timer3.setEnabled(false);
        close();
    }

    // True when it was the last tick.
    bool blinken(const Blinktick& tick) {
        if (!tick.Worte.empty()) bild_.Urteil(tick.Worte);
        if (!tick.Klang.empty()) klang(tick.Klang);
        bild_.Blinken(spiel_.richtigePos);
        return tick.Letzter;
    }

    void klang(TextView datei) { medien_.SpieleWav(z_.PfadGames + Text(datei)); }

    Zustand& z_;
    Medien& medien_;
    HDWspiel spiel_;
    HDWbild bild_;
    Timer Timer1;
    Timer Timer2;
    Timer Timer3;
};

}  // namespace

void HDWZeigen(Platform& platform, Zustand& zustand, Medien& medien) {
    zustand.Übergabe = false;
    auto fragen =
        Geladen(platform, "HDW", [&] { return FragenLaden(platform.files, zustand.PfadGames + "HDW.txt"); });
    if (fragen) HDW(platform, zustand, medien, std::move(*fragen)).showModal();
}

}  // namespace zentrox
