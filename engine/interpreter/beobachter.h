// Is told what a play is made of, in the order in which it happens: for reports on how much of a story has been
// played, for what is kept of a play on the way, and for what is written down of it. Nothing that the game does
// depends on it. It may wait, through the queue, and it may throw `Sprung`.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "platform/values/text.h"

namespace zentrox {

struct Skript;
class Raumfenster;

class Beobachter {
public:
    virtual ~Beobachter() = default;

    // --- scripts

    // A run begins. `objekt` is the object of the room `raum` that it belongs to, -1 for none. Gives the number by
    // which what follows names the script; runs can nest.
    virtual std::size_t Beginnt(const Skript& /*skript*/, TextView /*raum*/, int /*objekt*/) { return 0; }
    // The instruction with this index is about to run.
    virtual void Anweisung(std::size_t /*nummer*/, std::int32_t /*zeiger*/) {}
    // The run that began last and has not ended is over. One that the end of the process or a `Sprung` cuts off is
    // not told of.
    virtual void Endet(std::size_t /*nummer*/) {}
    // No script runs any more: from now on the player may save, until the next one begins.
    virtual void Ruht() {}

    // --- the room

    // The room window stands until `Schließt`, and `Sprung` may be thrown.
    virtual void Öffnet(Raumfenster& /*raum*/) {}
    virtual void Schließt() {}
    // The room of this file is about to be shown; its `Startskript` comes next.
    virtual void Betritt(TextView /*raum*/) {}

    // --- what the player does; told before it has its effect

    // The object `objekt` of the room: 0 looked at, 1 used, 2 `gegenstand` dropped on it, in upper case. Told only
    // where a script answers.
    virtual void Handelt(int /*objekt*/, int /*aktion*/, TextView /*gegenstand*/) {}
    // The item `gegenstand` in the bar: 0 looked at, 1 used, 2 `mit` dropped on it, in upper case. Told only where
    // a script answers.
    virtual void HandeltInLeiste(TextView /*gegenstand*/, int /*aktion*/, TextView /*mit*/) {}

    // --- what scripts say and show

    // A text stands, as the script has it; then the player has read on.
    virtual void Zeigt(TextView /*text*/) {}
    virtual void Gelesen() {}
    // A choice stands: first the question, then the options; then the player has chosen, from 1.
    virtual void Fragt(const std::vector<Text>& /*texte*/) {}
    virtual void Gewählt(int /*option*/) {}
    // A voice begins; full path.
    virtual void Klingt(TextView /*datei*/) {}
    // A film begins; full path. Then it is over or was cut short.
    virtual void Film(TextView /*datei*/) {}
    virtual void FilmEndet() {}
    // The window of a game opens, with its name in upper case; then its outcome.
    virtual void SpielBeginnt(TextView /*name*/) {}
    virtual void SpielEndet(TextView /*name*/, bool /*sieg*/) {}
};

}  // namespace zentrox
