// The doors out of a room: the mini-games, saved games, the credits and the end.
#include <algorithm>

#include "engine/interpreter/interpreter.h"
#include "engine/language/games.h"
#include "engine/language/words.h"
#include "engine/state/felder.h"
#include "engine/state/merker.h"
#include "platform/values/error.h"

namespace zentrox {

namespace {

bool istText(const Übergabewert& wert, TextView gesucht) {
    const Text* const text = std::get_if<Text>(&wert);
    return text != nullptr && *text == gesucht;
}

// A name in a list for the length of a scope.
class Offen {
public:
    Offen(std::vector<Text>& liste, Text name) : liste_(liste) { liste_.push_back(std::move(name)); }
    ~Offen() { liste_.pop_back(); }
    Offen(const Offen&) = delete;
    Offen& operator=(const Offen&) = delete;

private:
    std::vector<Text>& liste_;
};

}  // namespace

bool Gewonnen(TextView name, const Übergabewert& wert) {
    const SpielArt* const art = findSpiel(name);
    if (art != nullptr && art->kenntUnentschieden) return istText(wert, "W");
    if (const bool* const wahrheit = std::get_if<bool>(&wert)) return *wahrheit;
    if (const Text* const text = std::get_if<Text>(&wert)) return Zahl(*text).value_or(0) != 0;
    return false;
}

void Interpreter::Spielen(Lauf& lauf) {
    const auto feld = [&](int n) { return upper(Trim(Feld(lauf.argument(), ",", n))); };
    const Text name = feld(1);
    const Text merker = feld(2);
    const bool steht = std::find(offeneSpiele_.begin(), offeneSpiele_.end(), name) != offeneSpiele_.end();
    bool sieg = false;
    // A window stands once at most: a tick that starts the game again under it has lost, and leaves alone what the
    // game hands over.
    if (!steht) {
        z_.Übergabe = feld(3);
        if (const auto spiel = spiele_.find(name); spiel != spiele_.end()) sieg = spiele(lauf, name, spiel->second);
    }
    if (sieg)
        MerkerSetzen(z_, merker);
    else
        MerkerLöschen(z_, merker);
}

// A game whose data is missing is told of, and lost.
bool Interpreter::spiele(const Lauf& lauf, const Text& name, const Spiel& spiel) {
    const Offen offen(offeneSpiele_, name);
    const Queue::Reason grund(platform_.queue, "Spiel " + name);
    beobachter_.SpielBeginnt(name);
    bool sieg = false;
    try {
        // One that knows a draw is played again until it is none.
        const SpielArt* const art = findSpiel(name);
        do spiel();
        while (art != nullptr && art->kenntUnentschieden && istText(z_.Übergabe, "U"));
        sieg = Gewonnen(name, z_.Übergabe);
    } catch (const DataError& fehler) {
        auslassen(lauf, fehler);
    }
    beobachter_.SpielEndet(name, sieg);
    return sieg;
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
