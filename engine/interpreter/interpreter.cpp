#include "engine/interpreter/interpreter.h"

#include <cassert>
#include <cstdlib>
#include <iostream>

#include "engine/language/limits.h"
#include "engine/state/felder.h"
#include "platform/values/error.h"

namespace zentrox {

namespace {

// Counts how many runs stand inside each other.
class Ebene {
public:
    explicit Ebene(int& tiefe) : tiefe_(tiefe) { ++tiefe_; }
    ~Ebene() { --tiefe_; }
    Ebene(const Ebene&) = delete;
    Ebene& operator=(const Ebene&) = delete;

private:
    int& tiefe_;
};

}  // namespace

// Each opcode of the table has just one handler, or this does not compile.
constexpr std::array<Interpreter::Handler, OpcodeAnzahl> Interpreter::handlers = [] {
    std::array<Handler, OpcodeAnzahl> all{};
    std::array<bool, OpcodeAnzahl> taken{};  // under the sanitizers no handler is compared in a constant
    const auto set = [&](std::int32_t number, Handler handler) {
        const auto place = static_cast<std::size_t>(number);
        if (taken[place]) throw "this opcode has a handler already";
        taken[place] = true;
        all[place] = handler;
    };
    set("WennMerker"_op, &Interpreter::WennMerker);
    set("Ton"_op, &Interpreter::Ton);
    set("Text"_op, &Interpreter::TextZeigen);
    set("SetzeMerker"_op, &Interpreter::SetzeMerker);
    set("Raumwechsel"_op, &Interpreter::Raumwechsel);
    set("ZeigBild"_op, &Interpreter::ZeigBild);
    set("NimmGegenstand"_op, &Interpreter::NimmGegenstand);
    set("GibGegenstand"_op, &Interpreter::GibGegenstand);
    set("WennParameter"_op, &Interpreter::WennParameter);
    set("Sonst"_op, &Interpreter::Sonst);
    set("EndeWenn"_op, &Interpreter::Nichts);
    set("Film"_op, &Interpreter::Film);
    set("LöscheMerker"_op, &Interpreter::LöscheMerker);
    set("SetzeZeiger"_op, &Interpreter::SetzeZeiger);
    set("ZoomIN"_op, &Interpreter::ZoomIN);
    set("ZoomOUT"_op, &Interpreter::ZoomOUT);
    set("Fehlerton"_op, &Interpreter::Fehlerton);
    set("ObjektAn"_op, &Interpreter::ObjektAn);
    set("ObjektAus"_op, &Interpreter::ObjektAus);
    set("Musik"_op, &Interpreter::Musik);
    set("RahmenAuf"_op, &Interpreter::RahmenAuf);
    set("RahmenZu"_op, &Interpreter::RahmenZu);
    set("BöseÄndern"_op, &Interpreter::BöseÄndern);
    set("Portrait"_op, &Interpreter::Portrait);
    set("Auswahl"_op, &Interpreter::Auswahl);
    set("Fall"_op, &Interpreter::Fall);
    set("EndeAuswahl"_op, &Interpreter::Nichts);
    set("Spiel"_op, &Interpreter::Spielen);
    set("Springe"_op, &Interpreter::Springe);
    set("Marke"_op, &Interpreter::Nichts);
    set("System"_op, &Interpreter::System);
    set("CountDownSetzen"_op, &Interpreter::CountDownSetzen);
    set("Blende"_op, &Interpreter::Blende);
    for (const bool has : taken)
        if (!has) throw "an opcode has no handler";
    return all;
}();

Interpreter::Interpreter(Platform& platform, Zustand& zustand, Medien& medien, Raumfenster& raum,
                         const Spieltabelle& spiele, Beobachter* beobachter)
    : platform_(platform),
      z_(zustand),
      medien_(medien),
      raum_(raum),
      spiele_(spiele),
      beobachter_(beobachter) {}

void Interpreter::SkriptAusführen(const Skript& skript, int objektIndex, Text parameter) {
    assert(objektIndex >= -1 && objektIndex <= z_.AktuellerRaum.LetztesObjekt);
    if (objektIndex != -1 && !z_.AktuellerRaum.Objekte[static_cast<std::size_t>(objektIndex)].Aktiv) return;
    prüfeTiefe();
    const Ebene ebene(tiefe_);
    const Queue::Reason grund(platform_.queue, laufName(skript, objektIndex));

    const auto anfang = platform_.queue.heldMark();
    raum_.CountDownAn(false);
    z_.SkriptLäuft = true;
    const std::int32_t zeigerLetzter = z_.ZeigerLetzter;
    eröffnen();
    Lauf lauf{skript, std::move(parameter)};
    if (beobachter_ != nullptr) lauf.nummer = beobachter_->Beginnt(skript, z_.RaumDatei, objektIndex);
    durchlaufen(lauf);
    platform_.queue.disownHeld(anfang);
    if (lauf.schlussSchritte) schließen(zeigerLetzter);
}

void Interpreter::eröffnen() {
    z_.ZeigerBilder[0] = z_.PfadCursors + "taste1.ico";
    z_.ZeigerBilder[1] = z_.PfadCursors + "taste2.ico";
    raum_.ZeigerLaden(z_.ZeigerBilder[0]);
    z_.ZeigerLetzter = 1;
    if (z_.LeisteBewegt) platform_.queue.waitUntil("Leiste", [this] { return !z_.LeisteBewegt; });
    z_.LeisteGewünscht = false;
    raum_.VersteckeLeiste();
}

void Interpreter::durchlaufen(Lauf& lauf) {
    for (; !lauf.schluss && !lauf.amEnde(); ++lauf.zeiger) {
#ifndef NDEBUG
        verfolgen(lauf);
#endif
        if (beobachter_ != nullptr) beobachter_->Anweisung(lauf.nummer, lauf.zeiger);
        if (findOpcode(lauf.befehl()) != nullptr) (this->*handlers[static_cast<std::size_t>(lauf.befehl())])(lauf);
    }
}

void Interpreter::schließen(std::int32_t zeigerLetzter) {
    raum_.CountDownAn(true);
    raum_.ZeigerStandard();
    z_.SkriptLäuft = false;
    z_.ZeigerLetzter = zeigerLetzter;
    z_.GezogenerGegenstand = -1;
    raum_.ZeigerAuffrischen();
}

void Interpreter::prüfeTiefe() const {
    if (tiefe_ < TiefsterLauf) return;
    throw DataError("Raum " + z_.RaumDatei + ": mehr als " + std::to_string(TiefsterLauf) +
                    Text(" Skripte stehen ineinander; führen hier Räume ohne Ende zueinander?"_t));
}

// For the reasons of a wait and for the trace.
Text Interpreter::laufName(const Skript& skript, int objektIndex) const {
    if (&skript == &z_.AktuellerRaum.Startskript) return "Lade " + z_.RaumDatei;
    if (&skript == &z_.AktuellerRaum.CountDownSkript) return "CountDown";
    if (objektIndex == -1) return "Skript";
    return "Skript " + z_.AktuellerRaum.Objekte[static_cast<std::size_t>(objektIndex)].Name;
}

// Builds for the debugger only: each instruction, on standard error.
void Interpreter::verfolgen(const Lauf& lauf) const {
    static const bool an = std::getenv("ZENTROX_TRACE") != nullptr;
    if (!an) return;
    const Opcode* const opcode = findOpcode(lauf.befehl());
    std::cerr << toUtf8(z_.RaumDatei) << ": " << toUtf8(platform_.queue.reasons()) << ": " << lauf.zeiger << " "
              << (opcode != nullptr ? toUtf8(opcode->name) : std::to_string(lauf.befehl())) << " \""
              << toUtf8(lauf.argument()) << "\"\n";
}

}  // namespace zentrox
