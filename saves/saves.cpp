#include "saves/saves.h"

#include <array>
#include <cerrno>
#include <system_error>

#include "engine/state/felder.h"
#include "platform/machine/replace_file.h"
#include "platform/values/error.h"
#include "saves/dialog.h"
#include "saves/spielstand.h"

namespace zentrox {

namespace {

constexpr TextView Programmname = "Zentrox";

struct Grund {
    int code;
    TextView text;
};

const std::array Gründe{
    Grund{ENOSPC, "Der Datenträger ist voll."_t},
    Grund{EDQUOT, "Der Datenträger ist voll."_t},
    Grund{EROFS, "Der Datenträger ist schreibgeschützt."_t},
    Grund{EACCES, "Das Verzeichnis ist schreibgeschützt."_t},
    Grund{EPERM, "Das Verzeichnis ist schreibgeschützt."_t},
    Grund{ENOENT, "Das Verzeichnis fehlt."_t},
    Grund{ENAMETOOLONG, "Der Name ist zu lang."_t},
    Grund{EISDIR, "Ein Verzeichnis heißt so."_t},
    Grund{EIO, "Der Datenträger meldet einen Fehler."_t},
    Grund{EFBIG, "Der Datenträger nimmt keine so große Datei."_t},
};

Text grundFür(int code) {
    for (const Grund& grund : Gründe)
        if (grund.code == code) return Text(grund.text);
    return "Fehler " + std::to_string(code) + ".";
}

void melden(Platform& platform, const Text& text, MessageBox::Icon icon) {
    showMessageBox(platform, {Text(Programmname), text, icon});
}

// The full path that a person has chosen, empty if none.
Text fragen(Platform& platform, Zustand& z, TextView titel) {
    z.Übergabe = Text(titel);
    Dialog dialog(platform, z);
    dialog.showModal();
    const Text* const pfad = std::get_if<Text>(&z.Übergabe);
    return pfad != nullptr ? *pfad : Text();
}

bool lesen(const Files& files, const Text& pfad, Zustand& z) {
    try {
        return SpielstandLesen(files.read(pfad), z);
    } catch (const DataError&) {
        return false;
    }
}

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

void SpielSpeichern(Platform& platform, Zustand& z, Raumfenster& raum) {
    if (raum.CountDownPeriode() != 0)
        return melden(platform, Text("Speichern nicht möglich!"_t), MessageBox::Icon::none);
    const Text pfad = fragen(platform, z, "Spiel speichern");
    if (pfad.empty()) return;
    try {
        platform.files.makeDirectory(Speicherverzeichnis(platform.files));
        replaceFile(platform.files.systemPath(pfad), SpielstandSchreiben(z));
    } catch (const std::system_error& fehler) {
        const Text text = "Das Spiel konnte nicht unter " + Dateiname(pfad) + " gespeichert werden!\r\n\r\n";
        return melden(platform, text + grundFür(fehler.code().value()), MessageBox::Icon::critical);
    }
    melden(platform, "Speichern erfolgreich unter " + Dateiname(pfad) + "!", MessageBox::Icon::information);
}

bool SpielLaden(Platform& platform, Zustand& z, Raumfenster& raum) {
    raum.CountDownAn(false);
    const Text vorher = z.LetzterSpielstand;
    const Text pfad = fragen(platform, z, "Spiel laden");
    if (pfad.empty() || !platform.files.exists(pfad)) {
        // An empty field has named nothing that could be offered again.
        if (equalIgnoringCase(z.LetzterSpielstand, Spielstandendung)) z.LetzterSpielstand = vorher;
        raum.CountDownAn(true);
        return false;
    }
    raum.CountDownPeriode(0);
    if (!lesen(platform.files, pfad, z)) {
        melden(platform, "Daten nicht geladen!", MessageBox::Icon::information);
        return false;
    }
    heimbringen(platform.files, z);
    z.Übergabe = Text();
    z.GezogenerGegenstand = -1;
    raum.CountDownAn(true);
    raum.VersteckeLeiste();
    raum.GegenständeLaden();
    raum.Lade(z.PfadRooms + z.RaumDatei);
    return true;
}

}  // namespace zentrox
