// What a story says of itself. Where it says nothing, the game keeps its own texts.
#pragma once

#include <array>
#include <vector>

#include "platform/values/text.h"

namespace zentrox {

struct Titel {
    Text Name;     // of the story, for windows
    Text Kennung;  // small letters, digits and dashes; names the directory of its saved games
    Text Fassung;  // behind "V. "
    Text Adresse;  // of its page
    Text Autor;
    Text Titelbild;  // a picture's file below the story's directory
    Text CD;         // a directory in the story's that is taken for the CD
    Text Bonus;      // the menu's third line
    std::array<Text, 3> Bonuszeilen;
    Text Spieler;  // the two of Memory
    Text Gegner;
    // Pages as the typewriter takes them, see `Schreibmaschine`. In those of the credits `Bosheitsmarke` stands for
    // the number of points.
    std::vector<Text> Hilfe;
    std::vector<Text> Bonushilfe;
    std::vector<Text> Abspann;
};

constexpr TextView Bosheitsmarke = "{Bosheit}";

// What is given, or else what the game has.
inline Text angegebenOder(const Text& text, TextView sonst) {
    return text.empty() ? Text(sonst) : text;
}

}  // namespace zentrox
