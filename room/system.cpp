// What scripts and keys reach beyond the room: saved games and the closing credits.
#include <array>
#include <utility>

#include "engine/state/mangel.h"
#include "room/abspann.h"
#include "room/form1.h"

namespace zentrox {

namespace {

// What a saved game brings, kept for the case that its room can't be entered.
struct Stand {
    explicit Stand(const Zustand& z)
        : Merker(z.Merker),
          Inventar(z.Inventar),
          InventarLetzter(z.InventarLetzter),
          BösePunkte(z.BösePunkte),
          RaumDatei(z.RaumDatei) {}
    void zurück(Zustand& z) {
        z.Merker = std::move(Merker);
        z.Inventar = std::move(Inventar);
        z.InventarLetzter = InventarLetzter;
        z.BösePunkte = BösePunkte;
        z.RaumDatei = std::move(RaumDatei);
    }

    std::array<Text, MerkerAnzahl> Merker;
    std::array<Text, InventarPlätze> Inventar;
    std::int32_t InventarLetzter;
    std::int32_t BösePunkte;
    Text RaumDatei;
};

}  // namespace

// A game whose room is missing or damaged leaves everything as it is.
bool Form1::SpielLaden() {
    Stand vorher(z_);
    const auto besuch = aufschub_.Besuch();
    const Milliseconds periode = CountDown.period();
    try {
        return zentrox::SpielLaden(platform_, z_, *this, speicherwart_);
    } catch (const Ausweglos&) {
        throw;
    } catch (const DataError& fehler) {
        if (besuch != aufschub_.Besuch()) throw;
        vorher.zurück(z_);
        GegenständeLaden();
        CountDown.setPeriod(periode);
        melden(fehler);
        return false;
    }
}

void Form1::SpielSpeichern() {
    zentrox::SpielSpeichern(platform_, z_, *this, speicherwart_);
}

void Form1::Abspann() {
    AbspannZeigen(platform_, z_, medien_, Picture1, Picture5, RM);
}

}  // namespace zentrox
