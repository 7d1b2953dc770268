// The records that all windows share. One object of plain fields, made in `main` and handed by reference to whoever
// works on it. Texts are in code page 1252, paths are paths of the game.
#pragma once

#include <array>
#include <bitset>
#include <cstdint>
#include <set>
#include <variant>
#include <vector>

#include "engine/state/textart.h"
#include "engine/state/titel.h"
#include "platform/values/text.h"

namespace zentrox {

// One compiled script.
struct Skript {
    std::vector<std::int32_t> Befehl;  // opcodes, indexes 0 to `Letzter`
    std::vector<Text> Argument;        // one for each opcode; may be shorter where no command reads it
    std::int32_t Letzter = -1;         // -1: empty, and neither list is read
};

constexpr int Maskenspalten = 64;
constexpr int Maskenzeilen = 48;
constexpr int Maskenzelle = 10;  // pixels of `Picture1` a side

// Which cells of a room's picture belong to an object.
class Maske {
public:
    // False outside of the 64 by 48 cells.
    bool at(int spalte, int zeile) const {
        return spalte >= 0 && spalte < Maskenspalten && zeile >= 0 && zeile < Maskenzeilen &&
               zellen_[static_cast<std::size_t>(spalte * Maskenzeilen + zeile)];
    }
    void set(int spalte, int zeile, bool an) {
        zellen_[static_cast<std::size_t>(spalte * Maskenzeilen + zeile)] = an;
    }
    friend bool operator==(const Maske&, const Maske&) = default;

private:
    std::bitset<static_cast<std::size_t>(Maskenspalten) * Maskenzeilen> zellen_;
};

// One thing of a room that can be clicked.
struct RaumObjekt {
    Text Name;
    zentrox::Maske Maske;
    std::array<bool, 3> HatSkript{};
    std::array<Skript, 3> Aktion;  // 0 right button, 1 left button, 2 an item dropped on it
    bool Aktiv = false;
    Text Zeiger;  // file name of its pointer icon
};

struct Raum {
    Skript Startskript;
    Skript CountDownSkript;
    std::vector<RaumObjekt> Objekte;  // indexes 0 to `LetztesObjekt`
    std::int32_t LetztesObjekt = -1;
    Text Bild;  // at most 100 characters
};

// The hand-over value between windows: empty, a text or a truth.
using Übergabewert = std::variant<std::monostate, Text, bool>;

constexpr int MerkerAnzahl = 1001;
constexpr int InventarPlätze = 51;

struct Zustand {
    zentrox::Titel Titel;                      // what the story says of itself
    std::array<std::uint8_t, 256> Tastatur{};  // by virtual code, for games; 128 in a byte is held
    float MausX = 0;                           // where the pointer was last, in pixels of `Picture1`
    float MausY = 0;
    Raum AktuellerRaum;
    std::array<Text, InventarPlätze> Inventar;  // full paths of the items' pictures
    std::int32_t InventarLetzter = -1;          // index of the last one, -1: nothing is carried
    // The directories of the data, each with a backslash at its end.
    Text PfadRooms, PfadSounds, PfadGraphics, PfadMovies, PfadCursors, PfadItems, PfadMusics, PfadGames;
    float PI = 0;                           // set when the room window is shown
    std::array<Text, MerkerAnzahl> Merker;  // upper-case names; an empty slot is free
    std::int16_t TastenCode = 0;            // virtual code of the key that went down last, 0 once it has been used
    bool SkriptLäuft = false;    // a script runs or a dialog of saved games stands: the room is not played
    std::int32_t MausTaste = 0;  // 0 none, 1 another than the left, 2 the left

    // The bar of what is carried.
    bool LeisteGewünscht = false;  // what the player has asked for last
    bool LeisteOffen = false;      // it stands and takes clicks
    bool LeisteZu = false;         // nothing of it shows
    bool LeisteBewegt = false;     // it slides
    std::int32_t LeisteHöhe = 0;   // pixels of it that show
    float LeisteWinkel = 0;        // how far its way up has come, in radians

    // The pointer.
    std::int32_t ZeigerLetzter = 0;    // index of the last picture that it runs through; -1: it stands still
    std::int32_t ZeigerBild = 0;       // index of the one that shows
    std::array<Text, 6> ZeigerBilder;  // full paths

    Text RaumDatei;  // without a path

    // A choice: the question, then its options; below which edge each ends, in pixels from its top; and how high it
    // is in all.
    std::vector<Text> AuswahlTexte;
    std::vector<std::int32_t> AuswahlKanten;
    std::int32_t AuswahlHöhe = 0;
    std::int32_t AuswahlErgebnis = 0;  // -2 being built, -1 waits for a click, else none is open: what was chosen

    std::int32_t GezogenerGegenstand = -1;  // index of the item in hand, -1 for none
    Text GezogenerName;                     // of the item that was in hand last, in upper case
    std::int32_t BösePunkte = 0;            // no bounds; a story may count down as well
    Übergabewert Übergabe;                  // between windows: the first room, a game's parameter, its outcome
    Text LetzterSpielstand;                 // the name that was typed last in a dialog of saved games
    std::uint32_t Stimme = 0;               // the sound device's handle of the voice, 0 for none
    Text AktuellerSong;                     // full path, empty for none

    zentrox::Textart Textart;
    // What `WarteFrame` remembers: when it returned last.
    std::int32_t LetzterFrame = 0;
    // What has been told of data that is missing.
    std::set<Text> GemeldeteMängel;
};

}  // namespace zentrox
