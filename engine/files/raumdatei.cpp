#include "engine/files/raumdatei.h"

#include "engine/files/fieldreader.h"
#include "engine/language/limits.h"
#include "engine/language/opcodes.h"
#include "engine/state/felder.h"

namespace zentrox {

namespace {

constexpr std::size_t FelderJeBefehl = 2;
constexpr std::size_t FelderJeObjekt = 9 + Maskenspalten * Maskenzeilen;  // with three empty scripts

// The lists grow as they are read: the number in front of them is only a claim.
Skript readSkript(FieldReader& in, SkriptOrte* orte) {
    Skript skript;
    skript.Letzter = in.readLast(FelderJeBefehl);
    if (orte) orte->anfang = in.offset();
    for (std::int32_t i = 0; i <= skript.Letzter; ++i) {
        skript.Befehl.push_back(in.readNumber());
        if (orte) orte->befehle.push_back(in.offset());
        skript.Argument.push_back(in.readText());
    }
    return skript;
}

void readObjekt(FieldReader& in, RaumObjekt& objekt, ObjektOrte* orte) {
    for (std::size_t i = 0; i < objekt.Aktion.size(); ++i) {
        objekt.HatSkript[i] = in.readTruth();
        objekt.Aktion[i] = readSkript(in, orte ? &orte->aktion[i] : nullptr);
    }
    objekt.Zeiger = in.readText();
    if (orte) orte->zeiger = in.offset();
    objekt.Aktiv = in.readTruth();
    objekt.Name = in.readText();
    if (orte) orte->name = in.offset();
    in.readMask(objekt.Maske);
}

}  // namespace

Raum parseRoom(TextView bytes, TextView name, RaumOrte* orte) {
    const Text what = "Raumdatei " + Text(name);
    FieldReader in(bytes, what);
    Raum raum;
    raum.Bild = Trim(in.readText().substr(0, LängstesBild));
    raum.Startskript = readSkript(in, orte ? &orte->startskript : nullptr);
    raum.LetztesObjekt = in.readLast(FelderJeObjekt);
    raum.Objekte.resize(static_cast<std::size_t>(raum.LetztesObjekt + 1));
    if (orte) orte->objekte.resize(raum.Objekte.size());
    for (std::size_t i = 0; i < raum.Objekte.size(); ++i)
        readObjekt(in, raum.Objekte[i], orte ? &orte->objekte[i] : nullptr);
    raum.CountDownSkript = readSkript(in, orte ? &orte->countDownSkript : nullptr);
    return raum;
}

Raum readRoom(const Files& files, TextView path) {
    return parseRoom(files.read(path), files.display(path));
}

Skript parseSkript(TextView bytes, TextView name, SkriptOrte* orte) {
    const Text what = "Skriptdatei " + Text(name);
    FieldReader in(bytes, what);
    return readSkript(in, orte);
}

Skript LadeSkript(const Files& files, TextView path) {
    if (files.exists(path)) return parseSkript(files.read(path), files.display(path));
    Skript skript;
    if (!path.ends_with("2.skp")) return skript;
    skript.Befehl = {"Fehlerton"_op};
    skript.Letzter = 0;
    return skript;
}

}  // namespace zentrox
