// How the quiz looks: a question and its four fields.
#pragma once

#include <array>
#include <functional>

#include "games/quiz/fragen.h"
#include "platform/window/controls/label.h"

namespace zentrox {

constexpr Size HDWgröße{410, 237};

class HDWbild {
public:
    // A click on an answer, while they are not locked, calls `klick` with its field.
    HDWbild(Control* parent, const std::function<void(std::int32_t feld)>& klick);

    void Stellen(const Aufgabe& aufgabe);
    void Urteil(TextView text) { Label1.setText(text); }
    // Turns the words on or off, and the colours of a field.
    void Blinken(std::int32_t feld);
    void Buttonssperren() { sperren(true); }
    void Buttonsunsperren() { sperren(false); }

private:
    void sperren(bool gesperrt);

    Panel Grund;
    Label Label1;
    std::array<Label, Antwortfelder> Label2;
};

}  // namespace zentrox
