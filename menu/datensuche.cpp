#include "menu/datensuche.h"

#include "engine/language/directories.h"

namespace zentrox {

namespace {

constexpr TextView Marke = "Zentrox";  // a plain file in the CD's root

Text cdLaufwerk(const Files& files, const std::vector<std::filesystem::path>& wurzeln) {
    Text gefunden;
    for (const auto& wurzel : wurzeln) {
        Text pfad = Files::gamePath(std::filesystem::absolute(wurzel).lexically_normal());
        if (!pfad.ends_with('\\')) pfad += '\\';
        if (files.exists(pfad + Text(Marke))) gefunden = pfad;
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
