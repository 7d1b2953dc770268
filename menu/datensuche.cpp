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
bool istMarkiert(const Files& files, const Text& wurzel) {
    const std::vector<Text> namen = files.list(wurzel);
    return std::any_of(namen.begin(), namen.end(), [&](const Text& name) {
        return equalIgnoringCase(name, Marke) && (name != Programm || isDisc(files.systemPath(wurzel)));
    });
}

Text cdLaufwerk(const Files& files, const std::vector<std::filesystem::path>& wurzeln) {
    Text gefunden;
    for (const auto& wurzel : wurzeln) {
        Text pfad = Files::gamePath(std::filesystem::absolute(wurzel).lexically_normal());
        if (!pfad.ends_with('\\')) pfad += '\\';
        if (istMarkiert(files, pfad)) gefunden = pfad;
    }
    return gefunden;
}

}  // namespace

Text DatenSuchen(const Files& files, const std::vector<std::filesystem::path>& wurzeln, Zustand& z) {
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
