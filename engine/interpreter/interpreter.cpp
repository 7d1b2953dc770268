#include "engine/interpreter/interpreter.h"

#include <cassert>
#include <cstdlib>
#include <iostream>

#include "engine/language/limits.h"
#include "engine/state/felder.h"
#include "engine/state/mangel.h"
#include "platform/machine/system.h"

namespace zentrox {

namespace {

// What of the stack a run may leave unused: enough for a box, a game and what the machine does below them.
constexpr std::size_t StapelReserve = std::size_t{256} * 1024;
// So many instructions without a wait, and the window is asked whether it is to close.
constexpr std::uint32_t AnweisungenBisZurFrage = 1U << 16U;

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
                         const Spieltabelle& spiele, Beobachter& beobachter)
    : platform_(platform),
      z_(zustand),
      medien_(medien),
      raum_(raum),
      spiele_(spiele),
      beobachter_(beobachter) {}

void Interpreter::SkriptAusführen(const Skript& skript, int objektIndex, Text parameter) {
    assert(objektIndex >= -1 && objektIndex <= z_.AktuellerRaum.LetztesObjekt);
    if (objektIndex != -1 && !z_.AktuellerRaum.Objekte[static_cast<std::size_t>(objektIndex)].Aktiv) return;
    const Text name = laufName(skript, objektIndex);
    const Queue::Reason grund(platform_.queue, name);
    Lauf lauf{skript, std::move(parameter), "Raum " + z_.RaumDatei + ", " + name};
    ausführen(lauf, objektIndex);
}

std::optional<Text> Interpreter::RaumStarten() {
    if (raumRunde_ != platform_.queue.turns()) räumeOhneWarten_ = 0;
    raumRunde_ = platform_.queue.turns();
    if (++räumeOhneWarten_ > MeisteRäumeOhneWarten)
        throw Ausweglos("Raum " + z_.RaumDatei + Text(": Räume führen ohne Ende und ohne Warten zueinander."_t));
    Lauf lauf{z_.AktuellerRaum.Startskript, {}, "Raum " + z_.RaumDatei + ", Startskript"};
    lauf.start = true;
    ausführen(lauf, -1);
    letzterOrt_ = std::move(lauf.ort);
    return std::move(lauf.nächsterRaum);
}

void Interpreter::ImRaumBleiben(const DataError& fehler) {
    MangelMelden(platform_, z_, fehler.message(), letzterOrt_ + ", Raumwechsel");
    schließen(letzterZeiger_);
    if (tiefe_ == 0) beobachter_.Ruht();
}

void Interpreter::ausführen(Lauf& lauf, int objektIndex) {
    prüfePlatz();
    const Ebene ebene(tiefe_);
    const auto anfang = platform_.queue.heldMark();
    raum_.CountDownAn(false);
    z_.SkriptLäuft = true;
    const std::int32_t zeigerLetzter = z_.ZeigerLetzter;
    eröffnen();
    lauf.nummer = beobachter_.Beginnt(lauf.skript, z_.RaumDatei, objektIndex);
    durchlaufen(lauf);
    platform_.queue.disownHeld(anfang);
    ++läufe_;
    if (lauf.nächsterRaum) letzterZeiger_ = zeigerLetzter;
    if (lauf.schlussSchritte) schließen(zeigerLetzter);
    beobachter_.Endet(lauf.nummer);
    if (tiefe_ == 1 && !z_.SkriptLäuft) beobachter_.Ruht();
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
        beobachter_.Anweisung(lauf.nummer, lauf.zeiger);
        if (++anweisungen_ == AnweisungenBisZurFrage) prüfeSchleife();
        if (findOpcode(lauf.befehl()) == nullptr) continue;
        try {
            (this->*handlers[static_cast<std::size_t>(lauf.befehl())])(lauf);
        } catch (const Ausweglos&) {
            throw;
        } catch (const DataError& fehler) {
            auslassen(lauf, fehler);
        }
    }
}

// A loop without a wait holds everything up; a person can still close the window.
void Interpreter::prüfeSchleife() {
    anweisungen_ = 0;
    const bool gewartet = letzteRunde_ != platform_.queue.turns();
    letzteRunde_ = platform_.queue.turns();
    if (!gewartet && platform_.backend.wantsToClose()) raum_.Entladen();
}

// The command is left out, and the script goes on behind it.
void Interpreter::auslassen(const Lauf& lauf, const DataError& fehler) {
    Text ort = lauf.ort;
    if (!lauf.amEnde())
        if (const Opcode* const opcode = findOpcode(lauf.befehl()))
            ort += ", Befehl " + std::to_string(lauf.zeiger + 1) + ": " + Text(opcode->name);
    MangelMelden(platform_, z_, fehler.message(), ort);
}

void Interpreter::schließen(std::int32_t zeigerLetzter) {
    raum_.CountDownAn(true);
    raum_.ZeigerStandard();
    z_.SkriptLäuft = false;
    z_.ZeigerLetzter = zeigerLetzter;
    z_.GezogenerGegenstand = -1;
    raum_.ZeigerAuffrischen();
}

// `Ebene` and `Offen` have gone with the runs.
void Interpreter::Aufgeben() {
    z_.SkriptLäuft = false;
    z_.AuswahlErgebnis = 0;
    z_.GezogenerGegenstand = -1;
    z_.TastenCode = 0;
    z_.MausTaste = 0;
}

bool Interpreter::PlatzFürLauf() const {
    return stackLeft() > 2 * StapelReserve;
}

void Interpreter::prüfePlatz() const {
    if (stackLeft() > StapelReserve) return;
    throw Ausweglos(
        "Raum " + z_.RaumDatei + ": " + std::to_string(tiefe_) +
        Text(" Skripte stehen ineinander, jedes wartet auf das nächste. Für noch eines ist kein Platz."_t));
}

// For the reasons of a wait and for the trace.
Text Interpreter::laufName(const Skript& skript, int objektIndex) const {
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
