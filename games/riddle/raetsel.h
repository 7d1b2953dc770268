// The riddle, a plain value: its transcript, which begins with the story, and what it answers to an attempt.
#pragma once

#include "platform/values/random.h"
#include "platform/values/text.h"

namespace zentrox {

// What an attempt has led to.
struct Rätselantwort {
    enum class Ausgang { weiter, gelöst, aufgegeben };
    Ausgang ausgang = Ausgang::weiter;
    Text antwort;  // of `weiter`
    Text zuwachs;  // of the transcript
};

struct Rätsel {
    Text Verlauf = Geschichte();

    static Text Geschichte();
    // An attempt, as it was typed. Chance is asked only where no word of it is known.
    Rätselantwort Versuch(TextView eingabe, Random& zufall);
};

}  // namespace zentrox
