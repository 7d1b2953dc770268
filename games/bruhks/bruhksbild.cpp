#include "games/bruhks/bruhksbild.h"

#include "engine/state/felder.h"
#include "games/bruhks/bruhksbilder.h"

namespace zentrox {

namespace {

constexpr TextView siegtext = "Gewonnen!";
constexpr int rotSchritt = 4;  // from one copy of the text to the next newer one

Point ort(const Kreatur& k) {
    return {Runden(k.PosX), Runden(k.PosY)};
}

}  // namespace

Bruhksbild::Bruhksbild(Surface& feld)
    : Feld(feld),
      Picture1{unpacked(BruhkOben), unpacked(BruhkUnten)},
      Picture2({KreaturAnzahl * Frame().w, Frame().h}),
      funken_(feld) {
    Feld.setPicture(unpacked(BruhksGrund));
}

void Bruhksbild::Entfernen(const Bruhksspiel& spiel) {
    funken_.Entfernen();
    if (spiel.ErsterTick) return;
    for (std::size_t i = KreaturAnzahl; i-- > 0;)
        if (spiel.Kreaturen[i].Lebt) Feld.copy(Picture2, zelle(i), ort(spiel.Kreaturen[i]));
}

void Bruhksbild::Zeichnen(const Bruhksspiel& spiel) {
    kreaturenZeichnen(spiel);
    if (spiel.Sieg) siegtextDrucken(spiel);
    funken_.Zeichnen(spiel.Funken);
    Feld.refresh();
}

// There is no mask: a creature shines through, and its black surroundings leave the ground as it is.
void Bruhksbild::kreaturenZeichnen(const Bruhksspiel& spiel) {
    for (std::size_t i = 0; i < KreaturAnzahl; ++i) {
        const Kreatur& k = spiel.Kreaturen[i];
        if (!k.Lebt) continue;
        Picture2.copy(Feld.image(), {ort(k), Frame()}, zelle(i).at());
        const Bitmap& bild = Picture1[static_cast<std::size_t>(k.Frame)];
        Feld.copy(bild, bild.bounds(), ort(k), Op::bitOr);
    }
}

Point Bruhksbild::Textmitte() const {
    const Size text = Feld.measure(siegtext);
    return {(Feld.width() - text.w) / 2, (Feld.height() - text.h) / 2};
}

// The oldest copy is black and rubs out the path of the text.
void Bruhksbild::siegtextDrucken(const Bruhksspiel& spiel) {
    for (int i = 0; i < TextspurLänge; ++i)
        Feld.printAt(spiel.Textspur[static_cast<std::size_t>(i)], siegtext, Colour(rotSchritt * i, 0, 0));
}

}  // namespace zentrox
