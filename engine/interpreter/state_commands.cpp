// Flags, items, the objects of the room, and the way to another room.
#include "engine/interpreter/interpreter.h"
#include "engine/state/felder.h"
#include "engine/state/merker.h"

namespace zentrox {

namespace {

void schalte(Raum& raum, TextView argument, bool an) {
    for (RaumObjekt& objekt : raum.Objekte)
        if (equalIgnoringCase(objekt.Name, argument)) objekt.Aktiv = an;
}

// The last slot that holds an item, -1 if it is not carried.
std::int32_t letzterPlatz(const Zustand& z, TextView gegenstand) {
    for (std::int32_t i = z.InventarLetzter; i >= 0; --i)
        if (equalIgnoringCase(z.Inventar.at(static_cast<std::size_t>(i)), gegenstand)) return i;
    return -1;
}

}  // namespace

void Interpreter::SetzeMerker(Lauf& lauf) {
    MerkerSetzen(z_, lauf.argument());
}

void Interpreter::LöscheMerker(Lauf& lauf) {
    MerkerLöschen(z_, lauf.argument());
}

void Interpreter::Raumwechsel(Lauf& lauf) {
    Text pfad = z_.PfadRooms + Text(lauf.argument());
    lauf.schluss = true;
    if (!lauf.start) return raum_.Lade(pfad);
    lauf.nächsterRaum = std::move(pfad);
    lauf.schlussSchritte = false;
}

// There is no place for one more than the list holds; it is left out.
void Interpreter::NimmGegenstand(Lauf& lauf) {
    if (z_.InventarLetzter + 1 < InventarPlätze)
        z_.Inventar[static_cast<std::size_t>(++z_.InventarLetzter)] = z_.PfadItems + Dateiname(lauf.argument());
    raum_.GegenständeLaden();
}

void Interpreter::GibGegenstand(Lauf& lauf) {
    const std::int32_t platz = letzterPlatz(z_, z_.PfadItems + Dateiname(lauf.argument()));
    if (platz != -1) {
        const auto behalten = z_.Inventar.begin() + platz;
        std::move(behalten + 1, z_.Inventar.begin() + z_.InventarLetzter + 1, behalten);
        z_.Inventar[static_cast<std::size_t>(z_.InventarLetzter--)].clear();
    }
    raum_.GegenständeLaden();
}

void Interpreter::SetzeZeiger(Lauf& lauf) {
    const Text name = Trim(Feld(lauf.argument(), ",", 1));
    const Text zeiger = Trim(Dateiname(Feld(lauf.argument(), ",", 2)));
    for (RaumObjekt& objekt : z_.AktuellerRaum.Objekte)
        if (equalIgnoringCase(Getrimmt(objekt.Name), name)) objekt.Zeiger = zeiger;
}

void Interpreter::ObjektAn(Lauf& lauf) {
    schalte(z_.AktuellerRaum, lauf.argument(), true);
}

void Interpreter::ObjektAus(Lauf& lauf) {
    schalte(z_.AktuellerRaum, lauf.argument(), false);
}

void Interpreter::BöseÄndern(Lauf& lauf) {
    const bool warBöse = z_.BösePunkte >= 1;
    z_.BösePunkte = Runden(z_.BösePunkte + Val(lauf.argument()));
    const bool istBöse = z_.BösePunkte >= 1;
    if (istBöse && !warBöse) MerkerSetzen(z_, "BÖSE"_t);
    if (warBöse && !istBöse) MerkerLöschen(z_, "BÖSE"_t);
}

void Interpreter::CountDownSetzen(Lauf& lauf) {
    constexpr double msJeSekunde = 1000;
    raum_.CountDownAn(false);
    raum_.CountDownPeriode(std::max(Runden(Val(lauf.argument()) * msJeSekunde), 0));
    raum_.CountDownAn(true);
}

}  // namespace zentrox
