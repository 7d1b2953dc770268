// A game to be saved and loaded, with a room window that only notes what it is asked.
#pragma once

#include <sstream>

#include "saves/dialog.h"
#include "saves/saves.h"
#include "saves/spielstand.h"
#include "tests/support/fake_room.h"
#include "tests/support/stage.h"

namespace zentrox::test {

// A state as it is in the middle of a story.
inline void playOn(Zustand& z) {
    z.PfadRooms = "\\spiel\\rooms\\";
    z.RaumDatei = "Küche.lsd"_t;
    z.Merker[0] = "BRIEF";
    z.Merker[2] = "BÖSE"_t;
    z.Merker[1000] = "LETZTER";
    z.Inventar[0] = "\\spiel\\items\\seil.bmp";
    z.Inventar[1] = "\\spiel\\items\\Schlüssel.bmp"_t;
    z.InventarLetzter = 1;
    z.BösePunkte = 12;
}

// Everything that a saved game holds, in one comparable piece.
inline Text savedPart(const Zustand& z) {
    return SpielstandSchreiben(z);
}

struct SavesPlay : Stage {
    Zustand z;
    FakeRaumfenster room;

    Text dir() const { return platform.files.programDirectory() + "saves\\"; }
    std::filesystem::path file(const std::string& name) const { return directory.path() / "saves" / name; }
    std::string bytes(const std::string& name) const {
        std::ifstream in(file(name), std::ios::binary);
        std::ostringstream out;
        out << in.rdbuf();
        return out.str();
    }
    std::size_t fileCount() const {
        std::size_t count = 0;
        for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(directory.path() / "saves"))
            ++count;
        return count;
    }
    // Types a name over the one that stands there, sends it, and closes the box behind it.
    void answer(TextView name) {
        backend.type(name);
        backend.key(key::enter);
    }
    // The data of the story that is played: an empty room that saved games lead to, and items.
    void data(const std::vector<std::string>& items) {
        z.PfadRooms = platform.files.programDirectory() + "rooms\\";
        z.PfadItems = platform.files.programDirectory() + "items\\";
        directory.write("rooms/Küche.lsd", "a.jpg,-1,-1,-1\r\n");
        for (const std::string& item : items) directory.write("items/" + item, "");
    }
    Text lastBox() const { return backend.boxes.empty() ? Text() : backend.boxes.back().text; }
};

}  // namespace zentrox::test
