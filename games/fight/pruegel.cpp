#include "games/fight/pruegel.h"

#include <algorithm>

#include "engine/state/felder.h"
#include "engine/state/warten.h"
#include "games/base/geladen.h"
#include "games/fight/fight.h"
#include "platform/codec/pictures.h"
#include "platform/window/controls/look.h"

namespace zentrox {

namespace {

constexpr Size fenstergröße{640, 460};
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

}  // namespace

Prügel::Prügel(Platform& platform, Zustand& zustand, Medien& medien, Symbole symbole, bool zaubertrank)
    : Window(platform, "Prügel"_t, "", fenstergröße, Frame::none),
      z_(zustand),
      medien_(medien),
      wahl_{.Zaubertrank = zaubertrank},
      wahlbild_(&root(), std::move(symbole)),
      Frame1(&root(), {0, 0, 641, 465}, look::face),
      Picture1(platform.fonts, &Frame1, {0, 0, 641, 425}),
      Label1{Label{&Frame1, {0, 440, 265, 17}, "Velmix"}, Label{&Frame1, {368, 440, 265, 17}, "Brokan"}},
      bild_(Picture1),
      RM(platform.queue, liedprüfung, false, [this] { medien_.SongPrüfen(); }),
      Timer1(platform.queue, 1, false, [this] {
          Timer1.setEnabled(false);
          Command1_Click();
      }) {
    Frame1.setVisible(false);
    Label1[1].setAlign(Label::Align::right);
    wahlbild_.Klick = [this](std::int32_t Index) { Image1_Click(Index); };
    wahlbild_.Kampf = [this] { Command1_Click(); };
    wahlbild_.Zeichnen(wahl_);
    Picture1.onMove = [this](const PointerEvent&) { setPointer(unsichtbar()); };
    for (Control* const rand : std::array<Control*, 3>{&Frame1, &Label1[0], &Label1[1]})
        rand->onMove = [this](const PointerEvent&) { setPointer({}); };
}

bool Prügel::onQueryClose() {
    if (RM.enabled()) LiedAus();
    return true;
}

void Prügel::Image1_Click(std::int32_t Index) {
    wahl_.Klick(Index);
    wahlbild_.Zeichnen(wahl_);
}

bool Prügel::Entscheiden(bool sieg) {
    if (kampf_) return kampf_->Entscheiden(sieg);
    if (entschieden_) return false;
    entschieden_ = sieg;
    Timer1.setEnabled(true);
    return true;
}

// --- the fight

void Prügel::Command1_Click() {
    medien_.SongStart(z_.PfadGames + Text(lied));
    RM.setEnabled(true);
    wahlbild_.Verbergen();
    Frame1.setVisible(true);
    Random& zufall = platform().random;
    Kampf& kampf = kampf_.emplace(Kampf{.Angriff = wahl_.Angriff, .Abwehr = wahl_.Abwehr});
    if (entschieden_) kampf.Entscheiden(*entschieden_);
    for (Folge folge = kampf.Weiter(zufall); !folge.empty(); folge = kampf.Weiter(zufall))
        if (!Spielen(folge, kampf)) return;
    z_.Übergabe = kampf.Gewonnen;
    close();
}

bool Prügel::Spielen(const Folge& folge, Kampf& kampf) {
    return std::all_of(folge.begin(), folge.end(), [&](const Schritt& schritt) { return Tun(schritt, kampf); });
}

bool Prügel::Tun(const Schritt& schritt, Kampf& kampf) {
    using Art = Schritt::Art;
    switch (schritt.art) {
        case Art::bild: return Bild(schritt.text);
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

// A picture that can't be used ends the fight.
bool Prügel::Bild(TextView datei) {
    const Text pfad = z_.PfadGames + Text(datei);
    const auto bild = Geladen(platform(), "PRÜGEL"_t, [&] { return loadPicture(platform().files, pfad); });
    if (bild)
        bild_.Bild(*bild);
    else
        requestClose();
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
    const bool zaubertrank = TrankErlaubt(zustand.Übergabe);
    zustand.Übergabe = false;
    auto symbole = Geladen(platform, "PRÜGEL"_t, [&] { return SymboleLaden(platform.files, zustand.PfadGames); });
    if (symbole) Prügel(platform, zustand, medien, std::move(*symbole), zaubertrank).showModal();
}

}  // namespace zentrox
