#include "menu/datensuche.h"

#include <algorithm>

#include "engine/language/directories.h"
#include "platform/machine/roots.h"

namespace zentrox {

namespace {

constexpr TextView Marke = "Zentrox";     // a plain file in the CD's root
constexpr TextView Programm = "zentrox";  // as the program's own file is spelled

// The spelling of the mark does not matter, as discs of old may know capitals only. Where the game was unpacked
// into a root, its program is no mark; on a disc, whose names may have come in small letters, it is one.
// The root may lie in the story, which may be packed, or anywhere.
bool istMarkiert(const Files& files, const Text& pfad, const std::filesystem::path& wurzel) {
    std::vector<Text> namen = files.list(pfad);
    if (namen.empty()) namen = Files(wurzel).list({});
    return std::any_of(namen.begin(), namen.end(), [&](const Text& name) {
        return equalIgnoringCase(name, Marke) && (name != Programm || isDisc(wurzel));
    });
}

// Nothing but the data is admitted.
void dazunehmen(Files& files, const std::filesystem::path& wurzel) {
    Files cd(wurzel);
    cd.confine();
    const std::filesystem::path daten = cd.systemPath("Spiel");
    if (!daten.empty()) files.admit(daten);
}

Text cdLaufwerk(Files& files, const std::vector<std::filesystem::path>& wurzeln) {
    Text gefunden;
    std::filesystem::path hier;
    for (const auto& wurzel : wurzeln) {
        Text pfad = Files::gamePath(std::filesystem::absolute(wurzel).lexically_normal());
        if (!pfad.ends_with('\\')) pfad += '\\';
        if (!istMarkiert(files, pfad, wurzel)) continue;
        gefunden = pfad;
        hier = wurzel;
    }
    if (!gefunden.empty()) dazunehmen(files, hier);
    return gefunden;
}

}  // namespace

Text DatenSuchen(Files& files, const std::vector<std::filesystem::path>& wurzeln, Zustand& z) {
    Text laufwerk = cdLaufwerk(files, wurzeln);
    const Text& programm = files.programDirectory();
    PfadeSetzen(z, programm);
    for (const Datenverzeichnis& verzeichnis : Datenverzeichnisse) {
        Text& pfad = z.*verzeichnis.pfad;
        if (!files.holdsFile(pfad)) pfad = laufwerk + "Spiel\\" + Text(verzeichnis.aufCD) + "\\";
    }
    files.makeDirectory(files.savesDirectory());
    return laufwerk;
}

}  // namespace zentrox
