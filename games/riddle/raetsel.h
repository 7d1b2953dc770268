// The words of the riddle: its story, and what it answers to an attempt.
#pragma once

#include "platform/values/random.h"
#include "platform/values/text.h"

namespace zentrox {

// The transcript at the beginning.
Text Rätselgeschichte();

struct Rätselantwort {
    enum class Ausgang { weiter, gelöst, aufgegeben };
    Ausgang ausgang = Ausgang::weiter;
    Text antwort;  // of `weiter`
};

// What is said to an attempt, as it was typed. Chance is asked only where no word of it is known.
Rätselantwort RätselAntworten(TextView eingabe, Random& random);

// What the transcript then grows by.
Text Rätselrunde(TextView eingabe, TextView antwort);

}  // namespace zentrox
