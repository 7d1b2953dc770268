#include "room/zeiger.h"

#include "engine/state/felder.h"
#include "engine/state/mangel.h"
#include "platform/codec/pictures.h"

namespace zentrox {

namespace {

constexpr std::size_t endung = 4;  // dot and extension of a file name
constexpr int meisteBilder = 5;

constexpr TextView geballt = "ge2.ico";
constexpr TextView werfen = "werfen.ico";

}  // namespace

// An icon is read once to see that it is sound; the display reads it again in the size that it needs.
void Zeiger::Laden(TextView Pfad) {
    const auto [icon, neu] = geprüfte_.try_emplace(Text(Pfad), true);
    if (neu) {
        try {
            loadIcon(platform_.files, Pfad);
        } catch (const DataError& fehler) {
            icon->second = false;
            MangelMelden(platform_, z_, fehler.message(), "Raum " + z_.RaumDatei);
        }
    }
    if (!icon->second) return Standard();
    eigener_ = Pfad;
    Eigen();
}

void Zeiger::Eigen() {
    if (!eigener_.empty()) fenster_.setPointer({Pointer::Mode::own, eigener_});
}

void Zeiger::Halten() {
    Laden(cursor(geballt));
    z_.ZeigerLetzter = -1;
}

void Zeiger::ÜberNichts() {
    if (z_.GezogenerGegenstand > -1) return Halten();
    Standard();
    z_.ZeigerLetzter = -1;
}

void Zeiger::Heiß() {
    z_.ZeigerBilder[0] = cursor(werfen);
    z_.ZeigerBilder[1] = cursor(geballt);
    z_.ZeigerLetzter = 1;
}

void Zeiger::FürObjekt(const RaumObjekt& objekt) {
    const Text pfad = cursor(Dateiname(objekt.Zeiger));
    if (objekt.Zeiger.empty() || !platform_.files.exists(pfad)) {
        frage();
        z_.ZeigerLetzter = -1;
        return;
    }
    z_.ZeigerBilder[0] = pfad;
    if (fenster_.pointer().mode != Pointer::Mode::own) Laden(pfad);
    z_.ZeigerLetzter = 0;
    if (pfad.size() <= endung) return;
    const Text stamm = pfad.substr(0, pfad.size() - endung - 1);
    for (int k = 2; k <= meisteBilder; ++k) {
        Text bild = stamm + std::to_string(k) + pfad.substr(pfad.size() - endung);
        if (platform_.files.exists(bild)) z_.ZeigerLetzter = k - 1;
        z_.ZeigerBilder[static_cast<std::size_t>(k) - 1] = std::move(bild);
    }
}

void Zeiger::Takt() {
    if (z_.ZeigerLetzter == -1) return;
    if (++z_.ZeigerBild > z_.ZeigerLetzter) z_.ZeigerBild = 0;
    const Text& bild = z_.ZeigerBilder[static_cast<std::size_t>(z_.ZeigerBild)];
    // A row of numbered icons may have a gap; the picture before it then stays.
    if (geprüfte_.count(bild) != 0 || platform_.files.exists(bild)) {
        Laden(bild);
    } else {
        Eigen();
    }
}

}  // namespace zentrox
