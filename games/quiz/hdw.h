// The window of the quiz.
#pragma once

#include <array>

#include "games/quiz/fragen.h"
#include "media/medien.h"
#include "platform/platform.h"
#include "platform/window/controls/label.h"

namespace zentrox {

class HDW : public Window {
public:
    // `fragen` holds at least one question.
    HDW(Platform& platform, Zustand& zustand, Medien& medien, std::vector<Frage> fragen);

private:
    // How an answer is received: its words blink, and so does the field of the right one.
    struct Urteil {
        TextView text;
        TextView klang;
        std::int32_t ticks;
    };
    static const Urteil richtig;
    static const Urteil falsch;

    void Buttonssperren() { Sperren(true); }
    void Buttonsunsperren() { Sperren(false); }
    void Sperren(bool gesperrt);
    void Label2_Click(std::int32_t Index);
    void Timer1_Timer();
    void Timer2_Timer();
    void Timer3_Timer();
    // One tick of the blinking; true when it was the last.
    bool Blinken(std::int32_t& ticks, const Urteil& urteil);
    void Klang(TextView datei) { medien_.SpieleWav(z_.PfadGames + Text(datei)); }

    Zustand& z_;
    Medien& medien_;
    std::vector<Frage> fragen_;
    std::int32_t FrageNr = 0;
    std::int32_t richtigePos = 0;
    std::int32_t blinkenRichtig = 0;
    std::int32_t blinkenFalsch = 0;

    Panel Grund;
    Label Label1;
    std::array<Label, Antwortfelder> Label2;
    Timer Timer1;
    Timer Timer2;
    Timer Timer3;
};

}  // namespace zentrox
