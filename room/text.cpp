// The band across the picture in which all of the story's texts stand.
#include <algorithm>
#include <cmath>
#include <utility>

#include "engine/state/farbe.h"
#include "engine/state/felder.h"
#include "engine/state/textzeilen.h"
#include "engine/state/warten.h"
#include "platform/window/controls/textlayout.h"
#include "room/form1.h"

namespace zentrox {

namespace {

constexpr double winkelschritt = 0.1;
constexpr int takt = 16;
constexpr int mehrHöhe = 2;
constexpr int randDerZeile = 16;  // pixels at each side of a line that was broken
constexpr TextView zeilenende = "\r";
constexpr TextView farbziffern = "0123456789ABCDEF";

Text mitZeilenenden(TextView text) {
    Text out(text);
    std::replace(out.begin(), out.end(), '#', '\r');
    return out;
}

}  // namespace

class Form1::Textschrift {
public:
    explicit Textschrift(Form1& form) : Picture1_(form.Picture1), vorher_(form.Picture1.font) {
        if (!form.z_.Textart.wieImmer()) Picture1_.font = form.textschrift();
    }
    ~Textschrift() { Picture1_.font = vorher_; }
    Textschrift(const Textschrift&) = delete;
    Textschrift& operator=(const Textschrift&) = delete;

private:
    Surface& Picture1_;
    FontSpec vorher_;
};

FontSpec Form1::textschrift() const {
    FontSpec schrift = Picture1.font;
    schrift.points *= static_cast<float>(textProzent_) / 100;
    if (!z_.Textart.Schrift.empty()) schrift.family = z_.Textart.Schrift;
    return schrift;
}

Text Form1::gesetzt(TextView argument) const {
    if (z_.Textart.wieImmer()) return mitZeilenenden(argument);
    const Font& schrift = platform_.fonts.get(Picture1.font);
    Text alles;
    Text name = z_.Textart.Name;
    for (const Textzeile& zeile : TextzeilenVon(argument)) {
        const auto farbe = static_cast<std::size_t>(zeile.Farbe);
        Text inhalt(zeile.Inhalt);
        if (!name.empty() && !Getrimmt(inhalt).empty()) inhalt = std::exchange(name, {}) + ": " + inhalt;
        for (const TextLine& stück : wrapText(schrift, inhalt, Picture1.width() - 2 * randDerZeile)) {
            if (!alles.empty()) alles += zeilenende;
            alles += Text("$") + farbziffern[farbe] + inhalt.substr(stück.begin, stück.end - stück.begin);
        }
    }
    return alles;
}

void Form1::TextSetzen(TextView argument) {
    textProzent_ = z_.Textart.Prozent;
    if (z_.Textart.wieImmer()) return;
    constexpr int schritt = 25;
    while (textProzent_ > 100 && TextHöhe(argument) + 2 * mehrHöhe >= Picture1.height()) textProzent_ -= schritt;
}

int Form1::TextHöhe(TextView text) {
    const Textschrift schrift(*this);
    return Picture1.textHeight(z_.Textart.wieImmer() ? Text(text) : gesetzt(text));
}

void Form1::ZeigText(TextView argument) {
    TextSetzen(argument);
    const Textschrift schrift(*this);
    const Text text = gesetzt(argument);
    const int W = Picture1.width();
    const float M = static_cast<float>(Picture1.height()) / 2;
    const double A = Picture1.textHeight(text) / 2.0 + mehrHöhe;
    AuswahlZeile = -1;
    for (double winkel = 0; winkel < z_.PI / 2; winkel += winkelschritt) {
        const bool letzter = winkel + winkelschritt >= z_.PI / 2;
        if (z_.Textart.sofort && !letzter) continue;
        const double c = std::sin(winkel) * A;
        Picture1.box({0, Runden(M - c + 1)}, {W, Runden(M + c - 1)}, black);
        Picture1.line({0, Runden(M - c)}, {W, Runden(M - c)}, white);
        Picture1.line({0, Runden(M + c)}, {W, Runden(M + c)}, white);
        textband_ = Rect{0, Runden(M - c), W, Runden(M + c) - Runden(M - c) + 1};
        if (filmLäuft_) FilmBild();
        if (!z_.Textart.sofort) WarteFrame(z_, platform_, takt);
    }
    Picture1.foreground = white;
    Picture1.currentY = static_cast<int>(M) - Picture1.textHeight(Trim(text)) / 2 + 1;
    if (platform_.outlinedLetters) umrandeText(text);
    for (const Textzeile& zeile : TextzeilenVon(text)) {
        Picture1.foreground = Farbe16(zeile.Farbe);
        Picture1.currentX = W / 2 - Picture1.textWidth(Trim(zeile.Inhalt)) / 2;
        Picture1.print(zeile.Inhalt);
    }
}

// All of it before the first letter: the lines stand so near to each other that it would lie over letters.
void Form1::umrandeText(TextView text) {
    Point ort{0, Picture1.currentY};
    const int zeilenhöhe = platform_.fonts.get(Picture1.font).lineHeight();
    for (const Textzeile& zeile : TextzeilenVon(text)) {
        ort.x = Picture1.width() / 2 - Picture1.textWidth(Trim(zeile.Inhalt)) / 2;
        Picture1.outlineAt(ort, zeile.Inhalt, Farbe16(zeile.Farbe));
        ort.y += zeilenhöhe;
    }
}

void Form1::WegText(TextView argument) {
    const int W = Picture1.width();
    const int H = Picture1.height();
    const float M = static_cast<float>(H) / 2;
    const double A = TextHöhe(mitZeilenenden(argument)) / 2.0 + mehrHöhe;
    textband_.reset();
    const auto zeileZurück = [this, W](int y) { Picture1.copy(Picture3.image(), {0, y, W, 1}, {0, y}); };
    Picture1.setAutoRedraw(false);
    for (double winkel = z_.PI / 2; winkel > 0 && !z_.Textart.sofort; winkel -= winkelschritt) {
        const double c = std::sin(winkel) * A;
        Picture1.line({0, Runden(M - c)}, {W, Runden(M - c)}, white);
        zeileZurück(std::max(Runden(M - c - 1), 0));
        Picture1.line({0, Runden(M + c)}, {W, Runden(M + c)}, white);
        zeileZurück(std::min(Runden(M + c + 1), H - 1));
        WarteFrame(z_, platform_, takt);
    }
    const int mitte = static_cast<int>(M) - 2;
    Picture1.copy(Picture3.image(), {0, mitte, W, 4}, {0, mitte});
    Picture1.setAutoRedraw(true);
    Picture1.setPicture(Picture3.image());
}

}  // namespace zentrox
