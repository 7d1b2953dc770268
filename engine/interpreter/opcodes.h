// The language of the scripts. Its table has one row for each opcode; dispatch, trace, the story compiler and its
// checks all read this one table.
#pragma once

#include <array>
#include <cstdint>

#include "platform/values/text.h"

namespace zentrox {

class Interpreter;
struct Lauf;

// What the argument of an opcode is made of. "Name" means trimmed and in upper case, "file" that only the last
// component of a path counts. Fields are separated by commas, where nothing else is said.
enum class Arg {
    none,           // ignored
    flag,           // name of a flag
    sound,          // file in `PfadSounds`; a missing one is sought as mp3, then as wav
    text,           // whole text
    room,           // path below `PfadRooms`, untrimmed, directories allowed
    picture,        // file in `PfadGraphics`; empty clears the picture
    item,           // picture file of an item in `PfadItems`
    itemName,       // name: picture file of an item without directory and extension
    video,          // file in `PfadMovies`
    objectPointer,  // name of an object, pointer file in `PfadCursors`
    rectangle,      // four numbers: left, top, right, bottom in pixels of `Picture1`
    object,         // name of an object in upper case, but not trimmed: blanks count
    music,          // file in `PfadMusics`, ignored rest; empty stops the music
    number,         // number, fractions and signs allowed
    portrait,       // 1 for the left frame, else the right one; file in `PfadGraphics`
    choice,         // fields between bars: number of options, question, the options; "#" is a line end
    option,         // number of an option from 1 up
    game,           // name of a game, name of a flag, parameter
    label,          // name of a label
    word,           // exactly "Open", "Save" or "Abspann"; every other word closes the room window
    seconds,        // number, fractions allowed; 0 or empty switches off
    fade,           // 1 to white, 2 back
};

// One row of the table.
struct Opcode {
    std::int32_t number;
    TextView name;
    Arg arg;
    void (Interpreter::*run)(Lauf&);
    const char* doc;  // a sentence for the reference page, from the story author's view
};

// The numbers by which scripts are built, scanned and checked.
namespace opcode {
constexpr std::int32_t WennMerker = 0;
constexpr std::int32_t SetzeMerker = 3;
constexpr std::int32_t Raumwechsel = 4;
constexpr std::int32_t NimmGegenstand = 6;
constexpr std::int32_t GibGegenstand = 7;
constexpr std::int32_t WennParameter = 8;
constexpr std::int32_t Sonst = 9;
constexpr std::int32_t EndeWenn = 10;
constexpr std::int32_t LöscheMerker = 12;
constexpr std::int32_t Fehlerton = 16;
constexpr std::int32_t RahmenAuf = 20;
constexpr std::int32_t BöseÄndern = 22;
constexpr std::int32_t Auswahl = 24;
constexpr std::int32_t Fall = 25;
constexpr std::int32_t EndeAuswahl = 26;
constexpr std::int32_t Spiel = 27;
constexpr std::int32_t Springe = 28;
constexpr std::int32_t Marke = 29;
constexpr std::int32_t System = 30;
constexpr std::int32_t CountDownSetzen = 31;
}  // namespace opcode

constexpr std::size_t OpcodeAnzahl = 33;
using Opcodetabelle = std::array<Opcode, OpcodeAnzahl>;

// All rows; the index is the number.
const Opcodetabelle& opcodes();

// Null for a number or a name that no row has. The name counts exactly.
const Opcode* findOpcode(std::int32_t number);
const Opcode* findOpcode(TextView name);

}  // namespace zentrox
