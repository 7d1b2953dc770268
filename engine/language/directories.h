// The directories of the data and of the saved games, and what in the language names a file in one of them.
#pragma once

#include <array>
#include <cstdint>

#include "engine/state/zustand.h"

namespace zentrox {

enum class Ordner : std::uint8_t { sounds, graphics, movies, cursors, items, musics, games, rooms, keiner };

struct Datenverzeichnis {
    TextView name;        // in the program's directory, without a separator
    TextView aufCD;       // in the CD's directory of the game
    Text Zustand::*pfad;  // the whole path, with a backslash at its end
};

// All of them; the index is the number of the `Ordner`.
inline constexpr std::array Datenverzeichnisse{
    Datenverzeichnis{"sounds", "sounds", &Zustand::PfadSounds},
    Datenverzeichnis{"graphics", "Graphics", &Zustand::PfadGraphics},
    Datenverzeichnis{"movies", "Movies", &Zustand::PfadMovies},
    Datenverzeichnis{"cursors", "Cursors", &Zustand::PfadCursors},
    Datenverzeichnis{"items", "Items", &Zustand::PfadItems},
    Datenverzeichnis{"musics", "Musics", &Zustand::PfadMusics},
    Datenverzeichnis{"games", "Games", &Zustand::PfadGames},
    Datenverzeichnis{"rooms", "Rooms", &Zustand::PfadRooms},
};

// The name of a directory without a separator.
constexpr TextView verzeichnis(Ordner ordner) {
    return Datenverzeichnisse[static_cast<std::size_t>(ordner)].name;
}

// The names of items beside those of their pictures, beside the directories of data: NAME, a tabulator, the name of
// the picture without extension; UTF-8. Only tools read it.
constexpr TextView Gegenstandsnamen = "gegenstaende.tsv";

// A file that an argument names: its directory, and the field that holds it, 0 for the whole argument.
struct Datei {
    Ordner ordner = Ordner::keiner;
    std::uint8_t feld = 0;
};

// Sets all paths of the data to the directories below `wurzel`, a path with a backslash at its end.
void PfadeSetzen(Zustand& z, TextView wurzel);

}  // namespace zentrox
