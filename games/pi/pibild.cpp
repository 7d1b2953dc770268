#include "games/pi/pibild.h"

#include <cmath>
#include <numbers>

#include "engine/state/felder.h"

namespace zentrox {

namespace {

constexpr Colour hellgrün{64, 255, 64};
constexpr Colour kreisgrün{0, 255, 0};
constexpr Colour hellzyan{0, 255, 255};

constexpr float schriftTitel = 72;
constexpr float schriftAnsage = 48;
constexpr float schriftNummer = 8;
constexpr float schriftSchluss = 12;

constexpr int kreisRadius = 100;

Point mitte(Size text) {
    return {PIfläche.w / 2 - text.w / 2, PIfläche.h / 2 - text.h / 2};
}

Point ort(const Pifrage& frage, Size text) {
    if (!frage.ort) return mitte(text);
    return {Runden(frage.ort->x * (PIfläche.w - text.w)), Runden(frage.ort->y * (PIfläche.h - text.h))};
}

}  // namespace

PIbild::PIbild(Surface& picture1) : Picture1(picture1) {
    Picture1.font = {"Times New Roman", schriftTitel, true};
}

void PIbild::drucken(Point ort, TextView text, Colour farbe) {
    Picture1.foreground = farbe;
    Picture1.currentX = ort.x;
    Picture1.currentY = ort.y;
    Picture1.print(text);
}

void PIbild::wort(TextView text, float schrift) {
    Picture1.clear();
    Picture1.font.points = schrift;
    drucken(mitte(Picture1.measure(text)), text, hellgrün);
}

void PIbild::Titel(TextView text) {
    wort(text, schriftTitel);
}

void PIbild::Ansage(TextView text) {
    wort(text, schriftAnsage);
}

void PIbild::Kreispunkt(int winkel) {
    const double bogen = std::numbers::pi * winkel / 180;
    Picture1.setPixel({Runden(PIfläche.w / 2 + kreisRadius * std::sin(bogen)),
                       Runden(PIfläche.h / 2 + kreisRadius * std::cos(bogen))},
                      kreisgrün);
}

void PIbild::Frage(const Pifrage& frage) {
    Picture1.clear();
    Picture1.font.points = schriftNummer;
    const Text nummer = "#" + std::to_string(frage.nummer);
    drucken({PIfläche.w - Picture1.textWidth(nummer), 0}, nummer, hellgrün);
    Picture1.font.points = frage.schrift;
    const TextView text(&frage.zeichen, 1);
    drucken(ort(frage, Picture1.measure(text)), text, frage.farbe);
}

void PIbild::Blitz() {
    Picture1.setBack(white);
    Picture1.clear();
}

void PIbild::Schluss(const PIspiel& spiel) {
    Picture1.setBack(black);
    Picture1.clear();
    Picture1.font.points = schriftSchluss;
    drucken({mitte(Picture1.measure("Game Over")).x, 0}, "Game Over", hellzyan);
    Picture1.print("");
    Picture1.print(spiel.Urteil());
    Picture1.print(std::to_string(spiel.anzahl) + " Zeichen von PI geschafft!");
}

}  // namespace zentrox
