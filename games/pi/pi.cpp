#include "games/pi/pi.h"

#include <cmath>
#include <numbers>

#include "engine/state/felder.h"
#include "engine/state/warten.h"
#include "games/pi/pifenster.h"
#include "games/pi/pispiel.h"
#include "platform/values/error.h"

namespace zentrox {

namespace {

constexpr Size fläche{369, 273};
constexpr Milliseconds soSchnellEsGeht = 1;

constexpr Colour hellgrün{64, 255, 64};
constexpr Colour kreisgrün{0, 255, 0};
constexpr Colour hellzyan{0, 255, 255};

constexpr float schriftTitel = 72;
constexpr float schriftAnsage = 48;
constexpr float schriftNummer = 8;
constexpr float schriftSchluss = 12;

constexpr int kreisSchritt = 4;  // degrees
constexpr int kreisRadius = 100;
constexpr std::int32_t kreisTakt = 16;

constexpr std::int32_t titelZeit = 500;
constexpr std::int32_t blitz = 10;
constexpr Milliseconds schlussZeit = 10'000;

}  // namespace

PISpiel::PISpiel(Platform& platform, Zustand& zustand, Medien& medien, Text zeichen)
    : Window(platform, "PISpiel", "PI-Spiel", fläche, Frame::fixed),
      z_(zustand),
      medien_(medien),
      zeichen_(std::move(zeichen)),
      Picture1(platform.fonts, &root(), {{0, 0}, fläche}),
      Timer1(platform.queue, soSchnellEsGeht, true, [this] { Timer1_Timer(); }) {
    Picture1.font = {"Times New Roman", schriftTitel, true};
}

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

// --- before the game

bool PISpiel::vorspann() {
    Picture1.clear();
    gedruckt(PiMitte(fläche, Picture1.measure("PI")), "PI", hellgrün);
    if (!warten(0) || !warten(titelZeit) || !kreis()) return false;
    Picture1.font.points = schriftAnsage;
    return ansage("Ready") && ansage("GO!");
}

bool PISpiel::ansage(TextView text) {
    Picture1.clear();
    gedruckt(PiMitte(fläche, Picture1.measure(text)), text, hellgrün);
    return kreis();
}

// Draws itself over the text in a second and a half.
bool PISpiel::kreis() {
    constexpr Point mitte{fläche.w / 2, fläche.h / 2};
    for (int a = 0; a <= 360; a += kreisSchritt) {
        const double winkel = std::numbers::pi * a / 180;
        const Point ort{Runden(mitte.x + kreisRadius * std::sin(winkel)),
                        Runden(mitte.y + kreisRadius * std::cos(winkel))};
        Picture1.setPixel(ort, kreisgrün);
        if (!warten(kreisTakt)) return false;
    }
    return true;
}

// --- the game

// Goes on until a wrong key, a time-out or the last character.
bool PISpiel::abfragen() {
    const auto letztes = static_cast<std::int32_t>(zeichen_.size());
    Queue& queue = platform().queue;
    for (anzahl = 1;; ++anzahl) {
        const char zeichen = zeichen_[static_cast<std::size_t>(anzahl - 1)];
        zeigen(zeichen);
        taste = 0;
        queue.waitUntil(
            "PISpiel", [this] { return !spielLaeuft || taste != 0; }, queue.clock() + PiFrist(anzahl));
        if (!spielLaeuft) return false;
        if (!PiRichtig(taste, zeichen) || anzahl == letztes) return true;
    }
}

void PISpiel::zeigen(char zeichen) {
    Random& zufall = platform().random;
    Picture1.clear();
    Picture1.font.points = schriftNummer;
    const Text nummer = "#" + std::to_string(anzahl);
    gedruckt({fläche.w - Picture1.textWidth(nummer), 0}, nummer, hellgrün);
    const Colour farbe = PiFarbe(anzahl, zufall);
    Picture1.font.points = PiSchrift(anzahl, zufall);
    const TextView text(&zeichen, 1);
    gedruckt(PiOrt(anzahl, fläche, Picture1.measure(text), zufall), text, farbe);
}

void PISpiel::gedruckt(Point ort, TextView text, Colour farbe) {
    Picture1.foreground = farbe;
    Picture1.currentX = ort.x;
    Picture1.currentY = ort.y;
    Picture1.print(text);
}

// --- after the game

bool PISpiel::schluss() {
    // A key pressed from now on changes nothing.
    const TextView urteil = PiUrteil(anzahl, static_cast<std::int32_t>(zeichen_.size()), taste);
    medien_.SongStop();
    Picture1.setBack(white);
    Picture1.clear();
    if (!warten(0) || !warten(blitz)) return false;
    medien_.SpieleWav(z_.PfadGames + "JINGLE.WAV");
    Picture1.setBack(black);
    Picture1.clear();
    Picture1.font.points = schriftSchluss;
    gedruckt({PiMitte(fläche, Picture1.measure("Game Over")).x, 0}, "Game Over", hellzyan);
    Picture1.print("");
    Picture1.print(urteil);
    Picture1.print(std::to_string(anzahl) + " Zeichen von PI geschafft!");
    if (anzahl >= piBestanden) z_.Übergabe = true;
    Queue& queue = platform().queue;
    queue.waitUntil(
        "PISpiel", [this] { return !spielLaeuft; }, queue.clock() + schlussZeit);
    return spielLaeuft;
}

void PIZeigen(Platform& platform, Zustand& zustand, Medien& medien) {
    zustand.Übergabe = false;
    Text zeichen;
    try {
        zeichen = PiLesen(platform.files, zustand.PfadGames + "Pi10000.txt");
    } catch (const DataError& fehler) {
        showMessageBox(platform, {"PI-Spiel", fehler.message(), MessageBox::Icon::critical});
        return;
    }
    PISpiel(platform, zustand, medien, std::move(zeichen)).showModal();
}

}  // namespace zentrox
