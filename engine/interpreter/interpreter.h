// Runs scripts: from the first instruction to the last, inside the handler that started it. While an instruction
// waits, the event queue is served, so that runs can nest.
#pragma once

#include "engine/interpreter/beobachter.h"
#include "engine/interpreter/lauf.h"
#include "engine/interpreter/raumfenster.h"
#include "engine/interpreter/spieltabelle.h"
#include "engine/language/opcodes.h"
#include "platform/platform.h"
#include "platform/values/error.h"

namespace zentrox {

class Medien;

class Interpreter {
public:
    // All of these must outlive it.
    Interpreter(Platform& platform, Zustand& zustand, Medien& medien, Raumfenster& raum, const Spieltabelle& spiele,
                Beobachter& beobachter);
    Interpreter(const Interpreter&) = delete;
    Interpreter& operator=(const Interpreter&) = delete;

    // Runs a script to its end. `objektIndex` is the object of the room that it belongs to, -1 for none; a run for
    // an object that is not `Aktiv` changes nothing. `parameter` is the dropped item's name in upper case. A script
    // of an object has to be a copy, since a room change overwrites the objects; the count-down's runs in place. A
    // command that finds its data missing is told of in a box and left out. Throws `Ausweglos` when the stack has
    // no room for one more run.
    void SkriptAusführen(const Skript& skript, int objektIndex, Text parameter);
    // Runs the `Startskript` of `AktuellerRaum`, in place. Gives the path of the room that it leads on to: nothing
    // of it is left to do then but the closing steps, which that room's run does as well. So rooms follow each
    // other without standing inside each other.
    std::optional<Text> RaumStarten();
    // The room that `RaumStarten` has led on to can't be read: it is told of, and the run ends where it is.
    void ImRaumBleiben(const DataError& fehler);

    // Forgets the runs that a `Sprung` has cut off.
    void Aufgeben();

    // False when the stack is nearly used up by runs inside runs, so that what can be left out had better be.
    bool PlatzFürLauf() const;

private:
    // What an opcode does, in the order of the table.
    using Handler = void (Interpreter::*)(Lauf&);
    static const std::array<Handler, OpcodeAnzahl> handlers;

    void ausführen(Lauf& lauf, int objektIndex);
    void eröffnen();
    void durchlaufen(Lauf& lauf);
    void schließen(std::int32_t zeigerLetzter);
    void prüfePlatz() const;
    void prüfeSchleife();
    void auslassen(const Lauf& lauf, const DataError& fehler);
    Text laufName(const Skript& skript, int objektIndex) const;
    void verfolgen(const Lauf& lauf) const;

    // Flow.
    void Nichts(Lauf& lauf);
    void WennMerker(Lauf& lauf);
    void WennParameter(Lauf& lauf);
    void Sonst(Lauf& lauf);
    void Fall(Lauf& lauf);
    void zumFall(Lauf& lauf, std::int32_t option);
    void Springe(Lauf& lauf);

    // State and room.
    void SetzeMerker(Lauf& lauf);
    void LöscheMerker(Lauf& lauf);
    void Raumwechsel(Lauf& lauf);
    void NimmGegenstand(Lauf& lauf);
    void GibGegenstand(Lauf& lauf);
    void SetzeZeiger(Lauf& lauf);
    void ObjektAn(Lauf& lauf);
    void ObjektAus(Lauf& lauf);
    void BöseÄndern(Lauf& lauf);
    void CountDownSetzen(Lauf& lauf);

    // Text, choice, sound, video.
    void Ton(Lauf& lauf);
    void TextZeigen(Lauf& lauf);
    void Film(Lauf& lauf);
    void Fehlerton(Lauf& lauf);
    void Musik(Lauf& lauf);
    void Auswahl(Lauf& lauf);
    Text baueAuswahl(const Lauf& lauf);
    std::int32_t warteAufWahl(const Text& text);

    // Games and system.
    void Spielen(Lauf& lauf);
    bool spiele(const Lauf& lauf, const Text& name, const Spiel& spiel);
    void System(Lauf& lauf);

    // Picture.
    void ZeigBild(Lauf& lauf);
    void ZoomIN(Lauf& lauf);
    void ZoomOUT(Lauf& lauf);
    void RahmenAuf(Lauf& lauf);
    void RahmenZu(Lauf& lauf);
    void Portrait(Lauf& lauf);
    void Blende(Lauf& lauf);

    Platform& platform_;
    Zustand& z_;
    Medien& medien_;
    Raumfenster& raum_;
    const Spieltabelle& spiele_;
    Beobachter& beobachter_;
    int tiefe_ = 0;
    std::uint64_t läufe_ = 0;         // so many have ended
    std::vector<Text> offeneSpiele_;  // whose windows stand
    std::uint64_t letzteRunde_ = 0;   // the turn of the queue that `anweisungen_` counts from
    std::uint32_t anweisungen_ = 0;   // so many without a wait
    std::uint64_t raumRunde_ = 0;     // likewise of rooms
    int räumeOhneWarten_ = 0;
    Text letzterOrt_;                  // of the start script that has ended last
    std::int32_t letzterZeiger_ = -1;  // and the `ZeigerLetzter` that it found
};

}  // namespace zentrox
