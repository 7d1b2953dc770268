#include "saves/laden.h"

#include <memory>

#include "engine/files/raumdatei.h"
#include "engine/state/felder.h"
#include "platform/values/error.h"
#include "saves/spielstand.h"

namespace zentrox {

namespace {

constexpr TextView fehltJetzt =
    "Diese Geschichte hat nicht mehr alles, was in dem Spielstand in der Tasche liegt. Es fehlt:"_t;

// A game saved where the data lay elsewhere names its items by paths of there. What this data has by the same name
// is the same item, and only so commands find it.
void heimbringen(const Files& files, Zustand& z) {
    for (std::int32_t i = 0; i <= z.InventarLetzter; ++i) {
        Text& pfad = z.Inventar[static_cast<std::size_t>(i)];
        const Text hier = z.PfadItems + Dateiname(pfad);
        if (!equalIgnoringCase(pfad, hier) && files.exists(hier)) pfad = hier;
    }
}

}  // namespace

Text LadefehlerText(const Text& pfad, const DataError& fehler) {
    return Dateiname(pfad) + Text(" kann nicht geladen werden.\r\n\r\n"_t) + fehler.message();
}

Text FehlendesText(const std::vector<Text>& gegenstände) {
    Text text(fehltJetzt);
    for (const Text& name : gegenstände) text += "\r\n    " + name;
    return text;
}

std::vector<Text> FehlendeGegenstände(const Files& files, const Zustand& z) {
    std::vector<Text> namen;
    for (std::int32_t i = 0; i <= z.InventarLetzter; ++i) {
        const Text& pfad = z.Inventar[static_cast<std::size_t>(i)];
        const Text name = Dateiname(pfad);
        if (!files.exists(z.PfadItems + name) && !files.exists(pfad))
            namen.push_back(name.substr(0, name.rfind('.')));
    }
    return namen;
}

Ladung SpielstandPrüfen(const Files& files, const Zustand& z, TextView pfad) {
    Ladung ladung{files.read(pfad, limits::savedGameBytes), {}, {}};
    const auto stand = std::make_unique<Zustand>();
    if (!SpielstandLesen(ladung.Bytes, *stand))
        throw DataError(Dateiname(pfad) + Text(" ist kein Spielstand oder beschädigt."_t));
    try {
        readRoom(files, z.PfadRooms + Dateiname(stand->RaumDatei));
    } catch (const DataError& fehler) {
        throw RaumFehler(fehler.message());
    }
    stand->PfadItems = z.PfadItems;
    ladung.RaumDatei = stand->RaumDatei;
    ladung.Fehlendes = FehlendeGegenstände(files, *stand);
    return ladung;
}

void SpielFortsetzen(const Files& files, Zustand& z, Raumfenster& raum) {
    heimbringen(files, z);
    z.Übergabe = Text();
    z.GezogenerGegenstand = -1;
    raum.CountDownAn(true);
    raum.VersteckeLeiste();
    raum.GegenständeLaden();
    raum.Lade(z.PfadRooms + z.RaumDatei);
}

void SpielEinsetzen(const Files& files, Zustand& z, Raumfenster& raum, const Ladung& ladung) {
    raum.CountDownPeriode(0);
    SpielstandLesen(ladung.Bytes, z);
    SpielFortsetzen(files, z, raum);
}

}  // namespace zentrox
