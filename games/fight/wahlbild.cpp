#include "games/fight/wahlbild.h"

#include "platform/codec/pictures.h"
#include "platform/window/controls/look.h"

namespace zentrox {

namespace {

constexpr Size symbolgröße{65, 65};
constexpr Point symbolOben{8, 16};
constexpr int symbolabstand = 80;
constexpr Point zurückOben{8, 376};
constexpr int reihenabstand = 88;
constexpr int angriffsreihe = 80;
constexpr int abwehrreihe = 288;

Rect Symbolplatz(std::int32_t i) {
    return {i == Zurück ? zurückOben : symbolOben + Point{0, symbolabstand * i}, symbolgröße};
}

Rect Reihenplatz(int i, int reihe) {
    return {{112 + reihenabstand * i, reihe}, symbolgröße};
}

std::array<Image, Kampfrunden> Reihe(Control* parent, int y) {
    const auto bild = [&](int i) { return Image{parent, Reihenplatz(i, y)}; };
    return {bild(0), bild(1), bild(2), bild(3), bild(4), bild(5)};
}

template <std::size_t Anzahl>
void laden(std::array<Bitmap, Anzahl>& bilder, const Files& files, const Text& stamm) {
    for (std::size_t i = 0; i < Anzahl; ++i) bilder[i] = loadPicture(files, stamm + std::to_string(i + 1) + ".bmp");
}

}  // namespace

Symbole SymboleLaden(const Files& files, TextView pfad) {
    Symbole symbole;
    laden(symbole.Angriff, files, Text(pfad).append("prügels"_t));
    laden(symbole.Abwehr, files, Text(pfad).append("prügelb"_t));
    return symbole;
}

Gruppe::Gruppe(Control* parent, const Rect& area, TextView caption)
    : Panel(parent, area, look::face),
      caption_(caption) {}

void Gruppe::paint(Bitmap& onto, Point at) {
    Panel::paint(onto, at);
    const Font& schrift = look::fontFor(*this);
    const int oben = schrift.lineHeight() / 2;
    const Rect kante{at.x, at.y + oben, width() - 1, height() - oben - 1};
    onto.outline({kante.x + 1, kante.y + 1, kante.w, kante.h}, look::highlight);
    onto.outline(kante, look::shadow);
    onto.fill({at.x + 6, at.y, schrift.width(caption_) + 4, schrift.lineHeight()}, look::face);
    schrift.draw(onto, at + Point{8, 0}, caption_, look::text);
}

Wahlbild::Wahlbild(Control* parent, Symbole symbole)
    : symbole_(std::move(symbole)),
      Frame2(parent, {0, 0, 641, 457}, "Wähle deine Technik"_t),
      Linie1(&Frame2, {96, 16, 1, 440}, black),
      Linie2(&Frame2, {96, 208, 544, 1}, black),
      Image1{Image{&Frame2, Symbolplatz(0)}, Image{&Frame2, Symbolplatz(1)}, Image{&Frame2, Symbolplatz(2)},
             Image{&Frame2, Symbolplatz(Trank)}, Image{&Frame2, Symbolplatz(Zurück)}},
      Label2(&Frame2, {104, 24, 200, 17}, "Angriff:"),
      Image2(Reihe(&Frame2, angriffsreihe)),
      Label3(&Frame2, {104, 232, 200, 17}, "Verteidigung:"),
      Image3(Reihe(&Frame2, abwehrreihe)),
      Command1(&Frame2, {480, 424, 145, 25}, "Let's fight!") {
    for (std::int32_t i = 0; i < static_cast<std::int32_t>(Image1.size()); ++i)
        Image1[static_cast<std::size_t>(i)].onClick = [this, i] { Klick(i); };
    Command1.setTakesFocus(false);
    Command1.onClick = [this] { Kampf(); };
}

const Bitmap& Wahlbild::symbol(bool angriff, std::int32_t technik) const {
    const auto i = static_cast<std::size_t>(technik);
    return angriff || technik >= Techniken ? symbole_.Angriff[i] : symbole_.Abwehr[i];
}

void Wahlbild::Zeichnen(const Technikwahl& wahl) {
    const auto zeigen = [this](Image& feld, bool angriff, std::int32_t technik) {
        feld.setPicture(technik == KeineWahl ? Bitmap{} : symbol(angriff, technik));
    };
    for (std::int32_t i = 0; i <= Zurück; ++i) zeigen(Image1[static_cast<std::size_t>(i)], wahl.BeimAngriff(), i);
    for (std::size_t i = 0; i < Image2.size(); ++i) {
        zeigen(Image2[i], true, wahl.Angriff[i]);
        zeigen(Image3[i], false, wahl.Abwehr[i]);
    }
    Image1[Trank].setVisible(wahl.BeimAngriff() && wahl.Zaubertrank);
    Command1.setVisible(wahl.Fertig());
}

}  // namespace zentrox
