// The language of the scripts, as one table: a row for each opcode, with all that can be said of it without running
// it. The interpreter joins its handlers to it; the compiler, its checks and every other tool read it.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>

#include "engine/language/directories.h"
#include "platform/values/text.h"

namespace zentrox {

// What the argument of an opcode is made of. "Name" means trimmed and in upper case, "file" that only the last
// component of a path counts. Fields are separated by commas, where nothing else is said.
enum class Arg : std::uint8_t {
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

// The two kinds of blocks, and what an opcode is to one.
enum class Block : std::uint8_t { none, condition, choice };
enum class Role : std::uint8_t { plain, opens, divides, closes };

// Whether an opcode serves the event queue before the next one runs; `argument` leaves it to the argument.
enum class Waits : std::uint8_t { never, always, argument };

// Where the run goes on, blocks aside: with the next instruction, at the label that the argument names, nowhere, or
// as the word of the argument has it. A label itself does nothing.
enum class Next : std::uint8_t { follows, label, isLabel, ends, word };

// One row of the table.
struct Opcode {
    std::int32_t number;
    TextView name;
    Arg arg;
    Block block;
    Role role;
    Waits waits;
    Next next;
    Datei datei;      // which file the argument names
    const char* doc;  // a sentence for the reference page, from the story author's view
};

constexpr std::size_t OpcodeAnzahl = 33;
using Opcodetabelle = std::array<Opcode, OpcodeAnzahl>;

namespace detail {

// clang-format off
consteval Opcodetabelle opcodetabelle() {
    using enum Block;
    using enum Role;
    using enum Waits;
    using enum Next;
    using enum Ordner;
    constexpr Block kein = Block::none;
    constexpr Datei keine{};
    constexpr auto jeNach = Waits::argument;
    return {{
        {0,  "WennMerker"_t,      Arg::flag,          condition, opens,   never,  follows, keine,          "Runs on if the flag is set, else skips to Sonst or EndeWenn."},
        {1,  "Ton"_t,             Arg::sound,         kein,      plain,   never,  follows, {sounds, 0},    "Plays a spoken line in place of the one before and goes on at once."},
        {2,  "Text"_t,            Arg::text,          kein,      plain,   always, follows, keine,          "Shows a text and waits for a key or a mouse button."},
        {3,  "SetzeMerker"_t,     Arg::flag,          kein,      plain,   never,  follows, keine,          "Sets a flag."},
        {4,  "Raumwechsel"_t,     Arg::room,          kein,      plain,   never,  ends,    {rooms, 0},     "Enters another room and ends the script."},
        {5,  "ZeigBild"_t,        Arg::picture,       kein,      plain,   never,  follows, {graphics, 0},  "Replaces the room's picture; without a file it turns black."},
        {6,  "NimmGegenstand"_t,  Arg::item,          kein,      plain,   never,  follows, {items, 0},     "Puts an item into the inventory."},
        {7,  "GibGegenstand"_t,   Arg::item,          kein,      plain,   never,  follows, {items, 0},     "Takes an item out of the inventory, of equal ones the last."},
        {8,  "WennParameter"_t,   Arg::itemName,      condition, opens,   never,  follows, keine,          "Runs on if this item has been dropped, else skips to Sonst or EndeWenn."},
        {9,  "Sonst"_t,           Arg::none,          condition, divides, never,  follows, keine,          "Begins what runs if the condition above is false."},
        {10, "EndeWenn"_t,        Arg::none,          condition, closes,  never,  follows, keine,          "Ends a condition's block."},
        {11, "Film"_t,            Arg::video,         kein,      plain,   always, follows, {movies, 0},    "Plays a video to its end or until Escape."},
        {12, "LöscheMerker"_t,    Arg::flag,          kein,      plain,   never,  follows, keine,          "Clears a flag."},
        {13, "SetzeZeiger"_t,     Arg::objectPointer, kein,      plain,   never,  follows, {cursors, 2},   "Gives all objects of a name another pointer icon until the room is left."},
        {14, "ZoomIN"_t,          Arg::rectangle,     kein,      plain,   always, follows, keine,          "Zooms into a rectangle of the picture."},
        {15, "ZoomOUT"_t,         Arg::rectangle,     kein,      plain,   always, follows, keine,          "Zooms back out of a rectangle of the picture."},
        {16, "Fehlerton"_t,       Arg::none,          kein,      plain,   never,  follows, keine,          "Plays a random remark of refusal."},
        {17, "ObjektAn"_t,        Arg::object,        kein,      plain,   never,  follows, keine,          "Makes all objects of a name active."},
        {18, "ObjektAus"_t,       Arg::object,        kein,      plain,   never,  follows, keine,          "Makes all objects of a name inactive."},
        {19, "Musik"_t,           Arg::music,         kein,      plain,   never,  follows, {musics, 1},    "Plays a song once; without a file it stops the music."},
        {20, "RahmenAuf"_t,       Arg::none,          kein,      plain,   always, follows, keine,          "Opens the two black frames for portraits."},
        {21, "RahmenZu"_t,        Arg::none,          kein,      plain,   never,  follows, keine,          "Removes the frames by painting the room anew."},
        {22, "BöseÄndern"_t,      Arg::number,        kein,      plain,   never,  follows, keine,          "Adds to the evil counter; the flag BÖSE is set while it is 1 or more."},
        {23, "Portrait"_t,        Arg::portrait,      kein,      plain,   never,  follows, {graphics, 2},  "Draws a portrait into the left (1) or the right frame."},
        {24, "Auswahl"_t,         Arg::choice,        choice,    opens,   always, follows, keine,          "Shows a question with options, waits for a click on one and goes to its Fall."},
        {25, "Fall"_t,            Arg::option,        choice,    divides, never,  follows, keine,          "Begins what runs for an option of a choice."},
        {26, "EndeAuswahl"_t,     Arg::none,          choice,    closes,  never,  follows, keine,          "Ends a choice's block."},
        {27, "Spiel"_t,           Arg::game,          kein,      plain,   jeNach, follows, keine,          "Plays a mini-game; the flag is set if it is won and cleared if it is lost."},
        {28, "Springe"_t,         Arg::label,         kein,      plain,   never,  label,   keine,          "Goes on behind the first Marke of this name."},
        {29, "Marke"_t,           Arg::label,         kein,      plain,   never,  isLabel, keine,          "Marks a place that Springe can go to."},
        {30, "System"_t,          Arg::word,          kein,      plain,   always, word,    keine,   "Opens a saved game, saves, shows the credits, or closes the room window."},
        {31, "CountDownSetzen"_t, Arg::seconds,       kein,      plain,   never,  follows, keine,          "Runs the room's count-down script again and again at this period."},
        {32, "Blende"_t,          Arg::fade,          kein,      plain,   jeNach, follows, keine,          "Fades the picture to white (1) or back (2)."},
    }};
}
// clang-format on

}  // namespace detail

// All rows; the index is the number.
inline constexpr Opcodetabelle Opcodes = detail::opcodetabelle();
constexpr const Opcodetabelle& opcodes() {
    return Opcodes;
}

// Null for a number or a name that no row has. The name counts exactly.
constexpr const Opcode* findOpcode(std::int32_t number) {
    return number >= 0 && static_cast<std::size_t>(number) < Opcodes.size()
               ? &Opcodes[static_cast<std::size_t>(number)]
               : nullptr;
}
constexpr const Opcode* findOpcode(TextView name) {
    const auto* const row =
        std::find_if(Opcodes.begin(), Opcodes.end(), [&](const Opcode& o) { return o.name == name; });
    return row == Opcodes.end() ? nullptr : row;
}

// What the opcode of a number is to a block of this kind; a number that no row has is nothing to any.
constexpr bool isToBlock(Role role, Block block, std::int32_t number) {
    const Opcode* const row = findOpcode(number);
    return row != nullptr && row->role == role && row->block == block;
}
constexpr bool opens(Block block, std::int32_t number) {
    return isToBlock(Role::opens, block, number);
}
constexpr bool divides(Block block, std::int32_t number) {
    return isToBlock(Role::divides, block, number);
}
constexpr bool closes(Block block, std::int32_t number) {
    return isToBlock(Role::closes, block, number);
}

// An opcode that only gives a script its shape, so that nothing is lost where it does not run.
constexpr bool isMark(std::int32_t number) {
    const Opcode* const row = findOpcode(number);
    return row != nullptr &&
           (row->role == Role::divides || row->role == Role::closes || row->next == Next::isLabel);
}

// "WennMerker"_op is the number of that opcode; a name that no row has does not compile. A pointer into the table
// is no constant for every compiler once its sanitizers look at it, so that the number is taken by walking the
// rows.
template <detail::Utf8Literal L>
consteval std::int32_t operator""_op() {
    constexpr auto& name = detail::Literal1252<L>::value;
    for (const Opcode& row : Opcodes)
        if (row.name == TextView(name.bytes.data(), name.length)) return row.number;
    throw "no opcode has this name";
}

// Whether an instruction serves the event queue before the next one runs.
bool waits(const Opcode& opcode, TextView argument);

}  // namespace zentrox
