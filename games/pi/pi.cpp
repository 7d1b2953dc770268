#include "games/pi/pi.h"

#include "engine/state/warten.h"
#include "games/base/entscheidbar.h"
#include "games/base/geladen.h"
#include "games/pi/pibild.h"
#include "platform/window/window.h"

namespace zentrox {

namespace {

constexpr Milliseconds soSchnellEsGeht = 1;
constexpr std::int32_t kreisTakt = 16;
constexpr std::int32_t titelZeit = 500;
constexpr std::int32_t blitz = 10;
constexpr Milliseconds schlussZeit = 10'000;

// A game is one long call that waits for keys and for the clock.
class PISpiel : public Window, public Entscheidbar {
public:
    PISpiel(Platform& platform, Zustand& zustand, Medien& medien, Text zeichen)
        : Window(platform, "PISpiel", "PI-Spiel", PIfläche, Frame::fixed),
          z_(zustand),
          medien_(medien),
          spiel_{.Zeichen = std::move(zeichen)},
          Picture1(platform.fonts, &root(), {{0, 0}, PIfläche}),
          bild_(Picture1),
          Timer1(platform.queue, soSchnellEsGeht, true, [this] { Timer1_Timer(); }) {}

    // A wrong answer to a character that is far enough, or not.
    bool Entscheiden(bool sieg) override {
        constexpr std::int16_t falsch = 1;  // no key gives this
        if (!fragt || taste != 0) return false;
        spiel_.anzahl = sieg ? std::max(spiel_.anzahl, piBestanden) : std::min(spiel_.anzahl, piBestanden - 1);
        taste = falsch;
        return true;
    }

private:
    bool onQueryClose() override { return Form_QueryUnload(); }
    void onKeyPress(char c) override { Form_KeyPress(static_cast<unsigned char>(c)); }
    void Form_KeyPress(std::int16_t KeyAscii) { taste = KeyAscii; }
    bool Form_QueryUnload();
    void Timer1_Timer();

    // Each returns false once the window is being closed.
    bool vorspann();
    bool kreis();
    bool abfragen();
    bool schluss();
    bool warten(std::int32_t ms);
    bool warten(const std::function<bool()>& bis, Milliseconds ms);

    Zustand& z_;
    Medien& medien_;
    PIspiel spiel_;
    Surface Picture1;
    PIbild bild_;
    Timer Timer1;
    bool spielLaeuft = false;
    bool fragt = false;
    std::int16_t taste = 0;
};

bool PISpiel::Form_QueryUnload() {
    medien_.SongStop();
    spielLaeuft = false;
    return true;
}

void PISpiel::Timer1_Timer() {
    Timer1.setEnabled(false);
    spielLaeuft = true;
    z_.Übergabe = false;
    medien_.SongStart(z_.PfadGames + "canyon.mid");
    if (!(vorspann() && abfragen() && schluss())) return;
    Form_QueryUnload();
    close();
}

bool PISpiel::warten(std::int32_t ms) {
    WarteFrame(z_, platform(), ms, [this] { return !spielLaeuft; });
    return spielLaeuft;
}

bool PISpiel::warten(const std::function<bool()>& bis, Milliseconds ms) {
    Queue& queue = platform().queue;
    queue.waitUntil(
        "PISpiel", [&] { return !spielLaeuft || bis(); }, queue.clock() + ms);
    return spielLaeuft;
}

bool PISpiel::vorspann() {
    bild_.Titel("PI");
    if (!warten(0) || !warten(titelZeit) || !kreis()) return false;
    bild_.Ansage("Ready");
    if (!kreis()) return false;
    bild_.Ansage("GO!");
    return kreis();
}

// Draws itself over the text in a second and a half.
bool PISpiel::kreis() {
    for (int winkel = 0; winkel <= 360; winkel += PIkreisSchritt) {
        bild_.Kreispunkt(winkel);
        if (!warten(kreisTakt)) return false;
    }
    return true;
}

// Goes on until a wrong key, a time-out or the last character.
bool PISpiel::abfragen() {
    do {
        bild_.Frage(spiel_.Weiter(platform().random));
        taste = 0;
        fragt = true;
        if (!warten([this] { return taste != 0; }, spiel_.Frist())) return false;
        fragt = false;
    } while (spiel_.Antwort(taste));
    return true;
}

bool PISpiel::schluss() {
    medien_.SongStop();
    bild_.Blitz();
    if (!warten(0) || !warten(blitz)) return false;
    medien_.SpieleWav(z_.PfadGames + "JINGLE.WAV");
    bild_.Schluss(spiel_);
    if (spiel_.Bestanden()) z_.Übergabe = true;
    return warten([] { return false; }, schlussZeit);
}

}  // namespace

void PIZeigen(Platform& platform, Zustand& zustand, Medien& medien) {
    zustand.Übergabe = false;
    auto zeichen =
        Geladen(platform, "PI", [&] { return PiLesen(platform.files, zustand.PfadGames + "Pi10000.txt"); });
    if (zeichen) PISpiel(platform, zustand, medien, std::move(*zeichen)).showModal();
}

}  // namespace zentrox
