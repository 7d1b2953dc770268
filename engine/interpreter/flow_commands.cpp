// Conditions, the cases of a choice, and jumps. Blocks are not stored: they are found by walking over the opcodes.
// A walk that finds no end leaves the pointer behind the script, which ends the run.
#include "engine/interpreter/interpreter.h"
#include "engine/state/felder.h"
#include "engine/state/merker.h"

namespace zentrox {

namespace {

// An argument as a name, trimmed and in upper case, against one that is taken as it is.
bool istName(TextView argument, TextView name) {
    const TextView eigener = Getrimmt(argument);
    return eigener.size() == name.size() &&
           std::equal(eigener.begin(), eigener.end(), name.begin(), [](char a, char b) { return upper(a) == b; });
}

// From a false condition, with depth 1, to the `Sonst` or `EndeWenn` of its level; from a `Sonst`, with depth 0, to
// its end. A `Sonst` on the way closes one branch and opens the next.
void überspringe(Lauf& lauf, int tiefe) {
    do {
        if (divides(Block::condition, lauf.befehl())) ++tiefe;
        ++lauf.zeiger;
        if (lauf.amEnde()) return;
        if (divides(Block::condition, lauf.befehl()) || closes(Block::condition, lauf.befehl())) --tiefe;
        if (opens(Block::condition, lauf.befehl())) ++tiefe;
    } while (tiefe != 0);
}

// To the next `Fall` of this choice that `passt` accepts, else to its `EndeAuswahl`.
template <typename Passt>
void geheZumFall(Lauf& lauf, const Passt& passt) {
    int tiefe = 0;
    while (tiefe != -1) {
        ++lauf.zeiger;
        if (lauf.amEnde()) return;
        if (closes(Block::choice, lauf.befehl())) --tiefe;
        if (opens(Block::choice, lauf.befehl())) ++tiefe;
        if (divides(Block::choice, lauf.befehl()) && tiefe == 0 && passt(lauf.argument())) return;
    }
}

}  // namespace

void Interpreter::Nichts(Lauf& /*lauf*/) {}

void Interpreter::WennMerker(Lauf& lauf) {
    if (!MerkerGesetzt(z_, lauf.argument())) überspringe(lauf, 1);
}

void Interpreter::WennParameter(Lauf& lauf) {
    if (!istName(lauf.argument(), lauf.parameter)) überspringe(lauf, 1);
}

void Interpreter::Sonst(Lauf& lauf) {
    überspringe(lauf, 0);
}

void Interpreter::zumFall(Lauf& lauf, std::int32_t option) {
    geheZumFall(lauf, [option](TextView argument) { return Val(argument) == option; });
}

// Reached from above: the case before it is done.
void Interpreter::Fall(Lauf& lauf) {
    geheZumFall(lauf, [](TextView /*argument*/) { return false; });
}

void Interpreter::Springe(Lauf& lauf) {
    const TextView ziel = Getrimmt(lauf.argument());
    for (std::int32_t i = 0; i <= lauf.letzter(); ++i) {
        if (lauf.befehl(i) != "Marke"_op || !equalIgnoringCase(Getrimmt(lauf.argument(i)), ziel)) continue;
        lauf.zeiger = i;
        return;
    }
}

}  // namespace zentrox
