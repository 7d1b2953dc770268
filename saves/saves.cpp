#include "saves/saves.h"

#include <array>
#include <cerrno>
#include <system_error>

#include "engine/state/felder.h"
#include "platform/machine/replace_file.h"
#include "platform/values/error.h"
#include "saves/dialog.h"
#include "saves/laden.h"
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

void melden(Platform& platform, const Text& text, MessageBox::Icon icon) {
    showMessageBox(platform, {Text(Programmname), text, icon});
}

bool lesen(const Files& files, const Text& pfad, Zustand& z) {
    try {
        return SpielstandLesen(files.read(pfad, limits::savedGameBytes), z);
    } catch (const DataError&) {
        return false;
    }
}

// False if the game that runs shall stay as it is. Bytes that are no saved game are told of when they are read.
bool erwünscht(Platform& platform, const Zustand& z, const Text& pfad, Speicherwart& wart) {
    try {
        const Ladung ladung = SpielstandPrüfen(platform.files, z, pfad);
        return ladung.Fehlendes.empty() || wart.TrotzdemLaden(platform, ladung.Fehlendes);
    } catch (const RaumFehler& fehler) {
        melden(platform, LadefehlerText(pfad, fehler), MessageBox::Icon::critical);
        return false;
    } catch (const DataError&) {
        return true;
    }
}

}  // namespace

Text SchreibfehlerText(int code) {
    for (const Grund& grund : Gründe)
        if (grund.code == code) return Text(grund.text);
    return "Fehler " + std::to_string(code) + ".";
}

Text Speicherwart::Fragen(Platform& platform, Zustand& z, TextView titel) {
    z.Übergabe = Text(titel);
    Dialog dialog(platform, z);
    dialog.showModal();
    const Text* const pfad = std::get_if<Text>(&z.Übergabe);
    return pfad != nullptr ? *pfad : Text();
}

void SpielSpeichern(Platform& platform, Zustand& z, Raumfenster& raum, Speicherwart& wart) {
    if (raum.CountDownPeriode() != 0)
        return melden(platform, Text("Speichern nicht möglich!"_t), MessageBox::Icon::none);
    const Text pfad = wart.Fragen(platform, z, "Spiel speichern");
    if (pfad.empty()) return;
    const Text bytes = SpielstandSchreiben(z);
    try {
        platform.files.makeDirectory(Speicherverzeichnis(platform.files));
        replaceFile(platform.files.systemPath(pfad), bytes);
    } catch (const std::system_error& fehler) {
        const Text text = "Das Spiel konnte nicht unter " + Dateiname(pfad) + " gespeichert werden!\r\n\r\n";
        return melden(platform, text + SchreibfehlerText(fehler.code().value()), MessageBox::Icon::critical);
    }
    wart.Geschrieben(pfad, bytes);
    melden(platform, "Speichern erfolgreich unter " + Dateiname(pfad) + "!", MessageBox::Icon::information);
}

void SpielSpeichern(Platform& platform, Zustand& z, Raumfenster& raum) {
    Speicherwart einfach;
    SpielSpeichern(platform, z, raum, einfach);
}

bool SpielLaden(Platform& platform, Zustand& z, Raumfenster& raum, Speicherwart& wart) {
    raum.CountDownAn(false);
    const Text vorher = z.LetzterSpielstand;
    const Text pfad = wart.Fragen(platform, z, "Spiel laden");
    if (pfad.empty() || !platform.files.exists(pfad)) {
        // An empty field has named nothing that could be offered again.
        if (equalIgnoringCase(z.LetzterSpielstand, Spielstandendung)) z.LetzterSpielstand = vorher;
        raum.CountDownAn(true);
        return false;
    }
    if (!erwünscht(platform, z, pfad, wart)) {
        raum.CountDownAn(true);
        return false;
    }
    raum.CountDownPeriode(0);
    if (!lesen(platform.files, pfad, z)) {
        melden(platform, "Daten nicht geladen!", MessageBox::Icon::information);
        return false;
    }
    SpielFortsetzen(platform.files, z, raum);
    return true;
}

bool SpielLaden(Platform& platform, Zustand& z, Raumfenster& raum) {
    Speicherwart einfach;
    return SpielLaden(platform, z, raum, einfach);
}

}  // namespace zentrox
