#include "games/quiz/hdwbild.h"

namespace zentrox {

namespace {

constexpr Colour grundfarbe{0, 0, 128};
constexpr Colour frageFarbe{255, 255, 0};
constexpr Colour antwortFarbe{192, 255, 255};
constexpr Colour antwortGrund{0, 0, 64};
constexpr Colour alleBits{0xFFFFFFU};

FontSpec schrift() {
    return {"MS Sans Serif", 12, true};
}

}  // namespace

HDWbild::HDWbild(Control* parent, const std::function<void(std::int32_t feld)>& klick)
    : Grund(parent, {{0, 0}, HDWgröße}, grundfarbe),
      Label1(&Grund, {0, 0, 409, 137}),
      Label2{Label{&Grund, {8, 152, 193, 33}}, Label{&Grund, {208, 152, 193, 33}}, Label{&Grund, {8, 192, 193, 33}},
             Label{&Grund, {208, 192, 193, 33}}} {
    Label1.setFont(schrift());
    Label1.setColour(frageFarbe);
    for (std::int32_t i = 0; i < Antwortfelder; ++i) {
        Label& feld = Label2[static_cast<std::size_t>(i)];
        feld.setText("Antwort 1");
        feld.setFont(schrift());
        feld.setColour(antwortFarbe);
        feld.setGround(antwortGrund);
        feld.setAlign(Label::Align::centre);
        feld.onClick = [klick, i] { klick(i); };
    }
    Buttonssperren();
}

void HDWbild::sperren(bool gesperrt) {
    for (Label& feld : Label2) feld.setEnabled(!gesperrt);
}

void HDWbild::Stellen(const Aufgabe& aufgabe) {
    Label1.setText(aufgabe.Wortlaut);
    for (std::size_t i = 0; i < Label2.size(); ++i) Label2[i].setText(aufgabe.Felder[i]);
}

void HDWbild::Blinken(std::int32_t feld) {
    Label1.setVisible(!Label1.visible());
    Label& label = Label2[static_cast<std::size_t>(feld)];
    label.setGround(Colour{label.ground()->rgb ^ alleBits.rgb});
}

}  // namespace zentrox
