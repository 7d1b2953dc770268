// The rules of the fight, a plain value. A turn gives back what happens in it as steps: pictures, sounds, texts and
// waits that somebody else shows.
#pragma once

#include <vector>

#include "games/fight/wahl.h"
#include "platform/values/random.h"
#include "platform/values/text.h"

namespace zentrox {

// Whose matter a text is, which is its colour.
enum class Kämpfer { Velmix, Brokan, keiner };

struct Schritt {
    enum class Art {
        bild,      // `text` is the file
        klang,     // `text` is the file
        schrift,   // `text` in big letters over the picture, in the colour of `wer`
        warten,    // `zahl` milliseconds
        energie,   // the label of `wer` counts after his energy
        ringe,     // a ball of white rings
        strahl,    // it becomes a beam
        flackern,  // the picture flickers
        liedAus,
    };
    Art art = Art::bild;
    Text text = {};
    std::int32_t zahl = 0;
    Kämpfer wer = Kämpfer::keiner;
};
using Folge = std::vector<Schritt>;

// The energy of one fighter and what his label shows of it.
struct Energie {
    std::int32_t wert = 0;
    std::int32_t anzeige = 0;

    // Counts the label one step after the value; false if there was nothing to count.
    bool Nachzählen();
};

// What it takes away is `grund` and a random number times 100.
struct Schlag {
    Kämpfer wer = Kämpfer::keiner;
    std::int32_t grund = 0;
    TextView ausruf;  // stands before the number
};

enum class Kampfstand { vorspiel, Velmix, Brokan, vorbei };

struct Kampf {
    Techniken6 Angriff = NichtsGewählt;
    Techniken6 Abwehr = NichtsGewählt;
    Energie EnergieJ{2434, 2284};             // of Brokan; the labels count up to it in the prelude
    Energie EnergieS{1467, 1317};             // of Velmix
    Kampfstand Stand = Kampfstand::vorspiel;  // whose turn is next
    std::size_t Runde = 0;
    bool TrankBenutzt = false;  // in this round
    bool Gewonnen = false;

    // The next piece: the prelude, then turn after turn, the end, and then nothing. A blow counts as soon as its
    // piece is given; the step `energie` says when to show it.
    Folge Weiter(Random& zufall);
    // The next piece is the end of a fight that is won or lost. False if the end has been given.
    bool Entscheiden(bool sieg);

private:
    Folge zugVelmix(Random& zufall);
    Folge zugBrokan(Random& zufall);
    Folge zaubertrank(Random& zufall);
    Folge feuerball(Random& zufall);
    Folge unaufhaltsam(Random& zufall);
    Folge angriffBrokan(Random& zufall);
    Folge ende(Folge ende);
    // Draws the damage: a text that tells it, then the counting.
    Folge treffer(const Schlag& schlag, Random& zufall);
};

}  // namespace zentrox
