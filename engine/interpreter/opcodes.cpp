#include "engine/interpreter/opcodes.h"

#include <algorithm>

#include "engine/interpreter/interpreter.h"

namespace zentrox {

// clang-format off
const Opcodetabelle& opcodes() {
    using I = Interpreter;
    static constexpr Opcodetabelle tabelle{{
        {0,  "WennMerker"_t,      Arg::flag,          &I::WennMerker,      "Runs on if the flag is set, else skips to Sonst or EndeWenn."},
        {1,  "Ton"_t,             Arg::sound,         &I::Ton,             "Plays a spoken line in place of the one before and goes on at once."},
        {2,  "Text"_t,            Arg::text,          &I::TextZeigen,      "Shows a text and waits for a key or a mouse button."},
        {3,  "SetzeMerker"_t,     Arg::flag,          &I::SetzeMerker,     "Sets a flag."},
        {4,  "Raumwechsel"_t,     Arg::room,          &I::Raumwechsel,     "Enters another room and ends the script."},
        {5,  "ZeigBild"_t,        Arg::picture,       &I::ZeigBild,        "Replaces the room's picture; without a file it turns black."},
        {6,  "NimmGegenstand"_t,  Arg::item,          &I::NimmGegenstand,  "Puts an item into the inventory."},
        {7,  "GibGegenstand"_t,   Arg::item,          &I::GibGegenstand,   "Takes an item out of the inventory, of equal ones the last."},
        {8,  "WennParameter"_t,   Arg::itemName,      &I::WennParameter,   "Runs on if this item has been dropped, else skips to Sonst or EndeWenn."},
        {9,  "Sonst"_t,           Arg::none,          &I::Sonst,           "Begins what runs if the condition above is false."},
        {10, "EndeWenn"_t,        Arg::none,          &I::Nichts,          "Ends a condition's block."},
        {11, "Film"_t,            Arg::video,         &I::Film,            "Plays a video to its end or until Escape."},
        {12, "LöscheMerker"_t,    Arg::flag,          &I::LöscheMerker,    "Clears a flag."},
        {13, "SetzeZeiger"_t,     Arg::objectPointer, &I::SetzeZeiger,     "Gives all objects of a name another pointer icon until the room is left."},
        {14, "ZoomIN"_t,          Arg::rectangle,     &I::ZoomIN,          "Zooms into a rectangle of the picture."},
        {15, "ZoomOUT"_t,         Arg::rectangle,     &I::ZoomOUT,         "Zooms back out of a rectangle of the picture."},
        {16, "Fehlerton"_t,       Arg::none,          &I::Fehlerton,       "Plays a random remark of refusal."},
        {17, "ObjektAn"_t,        Arg::object,        &I::ObjektAn,        "Makes all objects of a name active."},
        {18, "ObjektAus"_t,       Arg::object,        &I::ObjektAus,       "Makes all objects of a name inactive."},
        {19, "Musik"_t,           Arg::music,         &I::Musik,           "Plays a song once; without a file it stops the music."},
        {20, "RahmenAuf"_t,       Arg::none,          &I::RahmenAuf,       "Opens the two black frames for portraits."},
        {21, "RahmenZu"_t,        Arg::none,          &I::RahmenZu,        "Removes the frames by painting the room anew."},
        {22, "BöseÄndern"_t,      Arg::number,        &I::BöseÄndern,      "Adds to the evil counter; the flag BÖSE is set while it is 1 or more."},
        {23, "Portrait"_t,        Arg::portrait,      &I::Portrait,        "Draws a portrait into the left (1) or the right frame."},
        {24, "Auswahl"_t,         Arg::choice,        &I::Auswahl,         "Shows a question with options, waits for a click on one and goes to its Fall."},
        {25, "Fall"_t,            Arg::option,        &I::Fall,            "Begins what runs for an option of a choice."},
        {26, "EndeAuswahl"_t,     Arg::none,          &I::Nichts,          "Ends a choice's block."},
        {27, "Spiel"_t,           Arg::game,          &I::Spielen,         "Plays a mini-game; the flag is set if it is won and cleared if it is lost."},
        {28, "Springe"_t,         Arg::label,         &I::Springe,         "Goes on behind the first Marke of this name."},
        {29, "Marke"_t,           Arg::label,         &I::Nichts,          "Marks a place that Springe can go to."},
        {30, "System"_t,          Arg::word,          &I::System,          "Opens a saved game, saves, shows the credits, or closes the room window."},
        {31, "CountDownSetzen"_t, Arg::seconds,       &I::CountDownSetzen, "Runs the room's count-down script again and again at this period."},
        {32, "Blende"_t,          Arg::fade,          &I::Blende,          "Fades the picture to white (1) or back (2)."},
    }};
    return tabelle;
}
// clang-format on

const Opcode* findOpcode(std::int32_t number) {
    const auto& tabelle = opcodes();
    return number >= 0 && static_cast<std::size_t>(number) < tabelle.size()
               ? &tabelle[static_cast<std::size_t>(number)]
               : nullptr;
}

const Opcode* findOpcode(TextView name) {
    const auto& tabelle = opcodes();
    const auto row = std::find_if(tabelle.begin(), tabelle.end(), [&](const Opcode& o) { return o.name == name; });
    return row == tabelle.end() ? nullptr : &*row;
}

}  // namespace zentrox
