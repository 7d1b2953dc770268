// The doors out of a room: the mini-games, saved games, the credits and the end.
#include "engine/interpreter/interpreter.h"
#include "engine/language/words.h"
#include "engine/state/felder.h"
#include "engine/state/merker.h"

namespace zentrox {

namespace {

// A game that leaves no outcome leaves its parameter: a number counts by its value, words mean nothing.
bool gewonnen(const Übergabewert& wert) {
    if (const bool* const wahrheit = std::get_if<bool>(&wert)) return *wahrheit;
    if (const Text* const text = std::get_if<Text>(&wert)) return Zahl(*text).value_or(0) != 0;
    return false;
}

bool istText(const Übergabewert& wert, TextView gesucht) {
    const Text* const text = std::get_if<Text>(&wert);
    return text != nullptr && *text == gesucht;
}

// Memory is played again until it is not a draw.
bool spieleMemory(const Spiel& spiel, const Zustand& z) {
    do spiel();
    while (istText(z.Übergabe, "U"));
    return istText(z.Übergabe, "W");
}

}  // namespace

void Interpreter::Spielen(Lauf& lauf) {
    const auto feld = [&](int n) { return upper(Trim(Feld(lauf.argument(), ",", n))); };
    const Text name = feld(1);
    const Text merker = feld(2);
    z_.Übergabe = feld(3);
    bool sieg = false;
    if (const auto spiel = spiele_.find(name); spiel != spiele_.end()) {
        const Queue::Reason grund(platform_.queue, "Spiel " + name);
        if (name == "MEMORY") {
            sieg = spieleMemory(spiel->second, z_);
        } else {
            spiel->second();
            sieg = gewonnen(z_.Übergabe);
        }
    }
    if (sieg)
        MerkerSetzen(z_, merker);
    else
        MerkerLöschen(z_, merker);
}

// The words count exactly, blanks and case included.
void Interpreter::System(Lauf& lauf) {
    const TextView wort = lauf.argument();
    if (wort == systemwort::Save) return raum_.SpielSpeichern();
    if (wort == systemwort::Abspann) return raum_.Abspann();
    if (wort != systemwort::Open) raum_.Entladen();
    // The run of the loaded room has done the closing steps.
    lauf.schluss = raum_.SpielLaden();
    lauf.schlussSchritte = !lauf.schluss;
}

}  // namespace zentrox
