#include "games/fight/pruegel.h"

#include <algorithm>

#include "engine/state/felder.h"
#include "engine/state/warten.h"
#include "games/fight/fight.h"
#include "platform/codec/pictures.h"
#include "platform/values/error.h"
#include "platform/window/controls/look.h"

namespace zentrox {

namespace {

constexpr Size fenstergröße{640, 460};
constexpr Size symbolgröße{65, 65};
constexpr Point symbolOben{8, 16};
constexpr int symbolabstand = 80;
constexpr Point zurückOben{8, 376};
constexpr int reihenabstand = 88;
constexpr int angriffsreihe = 80;
constexpr int abwehrreihe = 288;
constexpr Milliseconds liedprüfung = 500;

constexpr TextView lied = "Ken_g.mid";
constexpr TextView trankwort = "zaubertrank";

constexpr int zählzeit = 20;  // milliseconds, as are the next three
constexpr int ringzeit = 15;
constexpr int strahlzeit = 10;
constexpr int flackerzeit = 100;
constexpr int flackerzahl = 10;  // even: the picture ends as it began

Pointer unsichtbar() {
    return {.mode = Pointer::Mode::invisible, .iconFile = {}};
}

bool TrankErlaubt(const Übergabewert& übergabe) {
    const auto* const wort = std::get_if<Text>(&übergabe);
    return wort != nullptr && lower(Getrimmt(*wort)) == trankwort;
}

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

}  // namespace

Gruppe::Gruppe(Control* parent, const Rect& area, TextView caption)
    : Panel(parent, area, look::face),
      caption_(caption) {}

void Gruppe::paint(Bitmap& onto, Point at) {
    Panel::paint(onto, at);
    const Font& schrift = look::fontFor(*this, {});
    const int oben = schrift.lineHeight() / 2;
    const Rect kante{at.x, at.y + oben, width() - 1, height() - oben - 1};
    onto.outline({kante.x + 1, kante.y + 1, kante.w, kante.h}, look::highlight);
    onto.outline(kante, look::shadow);
    onto.fill({at.x + 6, at.y, schrift.width(caption_) + 4, schrift.lineHeight()}, look::face);
    schrift.draw(onto, at + Point{8, 0}, caption_, look::text);
}

Prügel::Prügel(Platform& platform, Zustand& zustand, Medien& medien)
    : Window(platform, "Prügel"_t, "", fenstergröße, Frame::none),
      z_(zustand),
      medien_(medien),
      wahl_(TrankErlaubt(zustand.Übergabe)),
      Frame2(&root(), {0, 0, 641, 457}, "Wähle deine Technik"_t),
      Linie1(&Frame2, {96, 16, 1, 440}, black),
      Linie2(&Frame2, {96, 208, 544, 1}, black),
      Image1{Image{&Frame2, Symbolplatz(0)}, Image{&Frame2, Symbolplatz(1)}, Image{&Frame2, Symbolplatz(2)},
             Image{&Frame2, Symbolplatz(Trank)}, Image{&Frame2, Symbolplatz(Zurück)}},
      Label2(&Frame2, {104, 24, 200, 17}, "Angriff:"),
      Image2(Reihe(&Frame2, angriffsreihe)),
      Label3(&Frame2, {104, 232, 200, 17}, "Verteidigung:"),
      Image3(Reihe(&Frame2, abwehrreihe)),
      Command1(&Frame2, {480, 424, 145, 25}, "Let's fight!"),
      Frame1(&root(), {0, 0, 641, 465}, look::face),
      Picture1(platform.fonts, &Frame1, {0, 0, 641, 425}),
      Label1{Label{&Frame1, {0, 440, 265, 17}, "Velmix"}, Label{&Frame1, {368, 440, 265, 17}, "Brokan"}},
      bild_(Picture1),
      RM(platform.queue, liedprüfung, false, [this] { medien_.SongPrüfen(); }) {
    z_.Übergabe = false;
    Frame1.setVisible(false);
    Label1[1].setAlign(Label::Align::right);
    for (std::int32_t i = 0; i < static_cast<std::int32_t>(Image1.size()); ++i)
        Image1[static_cast<std::size_t>(i)].onClick = [this, i] { Image1_Click(i); };
    Command1.setVisible(false);
    Command1.setTakesFocus(false);
    Command1.onClick = [this] { Command1_Click(); };
    Picture1.onMove = [this](const PointerEvent&) { setPointer(unsichtbar()); };
    for (Control* const rand : std::array<Control*, 3>{&Frame1, &Label1[0], &Label1[1]})
        rand->onMove = [this](const PointerEvent&) { setPointer({}); };
    LadeAngriff();
    Image1[Trank].setVisible(wahl_.Zaubertrank());
}

bool Prügel::onQueryClose() {
    if (RM.enabled()) LiedAus();
    return true;
}

Bitmap Prügel::Laden(TextView datei) const {
    return loadPicture(platform().files, z_.PfadGames + Text(datei));
}

// --- the choice

void Prügel::Symbole(TextView stamm, std::int32_t anzahl) {
    for (std::int32_t i = 0; i < anzahl; ++i)
        Image1[static_cast<std::size_t>(i)].setPicture(Laden(Text(stamm) + std::to_string(i + 1) + ".bmp"));
}

void Prügel::Image1_Click(std::int32_t Index) {
    const std::int32_t vorher = wahl_.Wahlen();
    const bool warAngriff = wahl_.BeimAngriff();
    wahl_.Klick(Index);
    if (const std::int32_t jetzt = wahl_.Wahlen(); jetzt != vorher) {
        const auto platz = static_cast<std::size_t>(std::min(vorher, jetzt));
        Image& feld = platz < Kampfrunden ? Image2[platz] : Image3[platz - Kampfrunden];
        feld.setPicture(jetzt > vorher ? Image1[static_cast<std::size_t>(Index)].picture() : Bitmap{});
    }
    if (warAngriff && !wahl_.BeimAngriff()) LadeAbwehr();
    if (!warAngriff && wahl_.BeimAngriff()) LadeAngriff();
    Image1[Trank].setVisible(wahl_.BeimAngriff() && wahl_.Zaubertrank());
    Command1.setVisible(wahl_.Fertig());
}

// --- the fight

void Prügel::Command1_Click() {
    medien_.SongStart(z_.PfadGames + Text(lied));
    RM.setEnabled(true);
    Frame2.setVisible(false);
    Frame1.setVisible(true);
    Kampf kampf(platform().random, wahl_.Angriff(), wahl_.Abwehr());
    for (Folge folge = kampf.Weiter(); !folge.empty(); folge = kampf.Weiter())
        if (!Spielen(folge, kampf)) return;
    z_.Übergabe = kampf.Gewonnen();
    close();
}

bool Prügel::Spielen(const Folge& folge, Kampf& kampf) {
    return std::all_of(folge.begin(), folge.end(), [&](const Schritt& schritt) { return Tun(schritt, kampf); });
}

bool Prügel::Tun(const Schritt& schritt, Kampf& kampf) {
    using Art = Schritt::Art;
    switch (schritt.art) {
        case Art::bild: bild_.Bild(Laden(schritt.text)); break;
        case Art::klang: medien_.SpieleWav(z_.PfadGames + schritt.text); break;
        case Art::schrift: bild_.PrintText(schritt.text, schritt.wer); break;
        case Art::warten: return Warten(schritt.zahl);
        case Art::energie: return ShowEnergie(schritt.wer, kampf);
        case Art::ringe: return Ringeln();
        case Art::strahl: return Strahlen();
        case Art::flackern: return Flackern();
        case Art::liedAus: LiedAus(); break;
    }
    return true;
}

bool Prügel::Warten(std::int32_t ms) {
    WarteFrame(z_, platform(), ms, [this] { return !isOpen(); });
    return isOpen();
}

bool Prügel::ShowEnergie(Kämpfer wer, Kampf& kampf) {
    const bool Velmix = wer == Kämpfer::Velmix;
    Energie& energie = Velmix ? kampf.EnergieS : kampf.EnergieJ;
    while (energie.Nachzählen()) {
        const Text zahl = std::to_string(energie.anzeige);
        Label1[Velmix ? 0 : 1].setText(Velmix ? "Velmar " + zahl : zahl + " Brokan");
        if (!Warten(zählzeit)) return false;
    }
    return true;
}

bool Prügel::Ringeln() {
    for (int n = 0; n < Ringe; ++n) {
        bild_.Ring(n);
        if (!Warten(ringzeit)) return false;
    }
    return true;
}

bool Prügel::Strahlen() {
    for (int n = 1; n <= Strahllänge; ++n) {
        bild_.Strahl(n);
        if (!Warten(strahlzeit)) return false;
    }
    return true;
}

bool Prügel::Flackern() {
    for (int n = 0; n < flackerzahl; ++n) {
        bild_.Umkehren();
        if (!Warten(flackerzeit)) return false;
    }
    return true;
}

void Prügel::LiedAus() {
    RM.setEnabled(false);
    medien_.SongStop();
}

void PrügelZeigen(Platform& platform, Zustand& zustand, Medien& medien) {
    try {
        Prügel(platform, zustand, medien).showModal();
    } catch (const DataError& fehler) {
        medien.SongStop();
        zustand.Übergabe = false;
        showMessageBox(platform, {Text("Prügel"_t), fehler.message(), MessageBox::Icon::critical});
    }
}

}  // namespace zentrox
