// Runs scripts: from the first instruction to the last, inside the handler that started it. While an instruction
// waits, the event queue is served, so that runs can nest.
#pragma once

#include "engine/interpreter/beobachter.h"
#include "engine/interpreter/lauf.h"
#include "engine/interpreter/raumfenster.h"
#include "engine/interpreter/spieltabelle.h"
#include "engine/language/opcodes.h"
#include "platform/platform.h"

namespace zentrox {

class Medien;

class Interpreter {
public:
    // All of these must outlive it. `beobachter` may be null.
    Interpreter(Platform& platform, Zustand& zustand, Medien& medien, Raumfenster& raum, const Spieltabelle& spiele,
                Beobachter* beobachter = nullptr);
    Interpreter(const Interpreter&) = delete;
    Interpreter& operator=(const Interpreter&) = delete;

    // Runs a script to its end. `objektIndex` is the object of the room that it belongs to, -1 for none; a run for
    // an object that is not `Aktiv` changes nothing. `parameter` is the dropped item's name in upper case. A script
    // of an object has to be a copy, since a room change overwrites the objects; a room's own two scripts run in
    // place. Throws `DataError` when runs nest too deep.
    void SkriptAusführen(const Skript& skript, int objektIndex, Text parameter);

private:
    // What an opcode does, in the order of the table.
    using Handler = void (Interpreter::*)(Lauf&);
    static const std::array<Handler, OpcodeAnzahl> handlers;

    void eröffnen();
    void durchlaufen(Lauf& lauf);
    void schließen(std::int32_t zeigerLetzter);
    void prüfeTiefe() const;
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

    // Games and system.
    void Spielen(Lauf& lauf);
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
    Beobachter* const beobachter_;
    int tiefe_ = 0;
};

}  // namespace zentrox
