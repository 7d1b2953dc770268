#include "menu/datensuche.h"

#include <array>

namespace zentrox {

namespace {

constexpr TextView Marke = "Zentrox";  // a plain file in the CD's root

struct Datenverzeichnis {
    Text Zustand::*pfad;
    TextView installiert;
    TextView aufCD;
};

constexpr std::array Verzeichnisse{
    Datenverzeichnis{&Zustand::PfadSounds, "sounds\\", "sounds\\"},
    Datenverzeichnis{&Zustand::PfadGraphics, "graphics\\", "Graphics\\"},
    Datenverzeichnis{&Zustand::PfadMovies, "movies\\", "Movies\\"},
    Datenverzeichnis{&Zustand::PfadCursors, "cursors\\", "Cursors\\"},
    Datenverzeichnis{&Zustand::PfadItems, "items\\", "Items\\"},
    Datenverzeichnis{&Zustand::PfadMusics, "musics\\", "Musics\\"},
    Datenverzeichnis{&Zustand::PfadGames, "games\\", "Games\\"},
    Datenverzeichnis{&Zustand::PfadRooms, "rooms\\", "Rooms\\"},
};

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
    for (const Datenverzeichnis& verzeichnis : Verzeichnisse) {
        Text& pfad = z.*verzeichnis.pfad;
        pfad = programm + Text(verzeichnis.installiert);
        if (!files.holdsFile(pfad)) pfad = laufwerk + "Spiel\\" + Text(verzeichnis.aufCD);
    }
    files.makeDirectory(programm + "saves\\");
    return laufwerk;
}

}  // namespace zentrox
