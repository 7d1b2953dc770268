#include "games/quiz/hdwspiel.h"

namespace zentrox {

namespace {

constexpr std::int32_t fragenBisZumSieg = 4;

struct Urteil {
    TextView text;
    TextView klang;
    std::int32_t ticks;
};
// Both counts are even, so that the blinking leaves everything as it was.
constexpr Urteil richtig{"DAS IST RICHTIG!\r\n", "e_laugh.wav", 40};
constexpr Urteil falsch{"DAS WAR LEIDER FALSCH!\r\n", "electric.wav", 20};

Blinktick blinken(std::int32_t& ticks, const Urteil& urteil) {
    Blinktick tick;
    if (ticks == 0) tick = {.Worte = urteil.text, .Klang = urteil.klang};
    tick.Letzter = ++ticks == urteil.ticks;
    if (tick.Letzter) ticks = 0;
    return tick;
}

}  // namespace

std::optional<Aufgabe> HDWspiel::Weiter(Random& zufall) {
    if (++FrageNr > fragenBisZumSieg) return std::nullopt;
    Aufgabe aufgabe = AufgabeStellen(zufall, Fragen, FrageNr);
    richtigePos = aufgabe.richtigePos;
    return aufgabe;
}

void HDWspiel::LetzteFrage() {
    FrageNr = fragenBisZumSieg;
}

Blinktick HDWspiel::BlinkenRichtig() {
    return blinken(blinkenRichtig, richtig);
}

Blinktick HDWspiel::BlinkenFalsch() {
    return blinken(blinkenFalsch, falsch);
}

}  // namespace zentrox
