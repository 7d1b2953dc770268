#include "games/quiz/hdw.h"

#include "games/quiz/quiz.h"
#include "platform/values/error.h"

namespace zentrox {

namespace {

constexpr Size fenstergröße{410, 237};
constexpr Colour grundfarbe{0, 0, 128};
constexpr Colour frageFarbe{255, 255, 0};
constexpr Colour antwortFarbe{192, 255, 255};
constexpr Colour antwortGrund{0, 0, 64};
constexpr Colour alleBits{0xFFFFFFU};

constexpr std::int32_t fragenBisZumSieg = 4;
constexpr Milliseconds soSchnellEsGeht = 1;
constexpr Milliseconds blinkzeitRichtig = 100;
constexpr Milliseconds blinkzeitFalsch = 300;

FontSpec schrift() {
    return {"MS Sans Serif", 12, true};
}

}  // namespace

// Both counts are even, so that the blinking leaves everything as it was.
const HDW::Urteil HDW::richtig{"DAS IST RICHTIG!\r\n", "e_laugh.wav", 40};
const HDW::Urteil HDW::falsch{"DAS WAR LEIDER FALSCH!\r\n", "electric.wav", 20};

HDW::HDW(Platform& platform, Zustand& zustand, Medien& medien, std::vector<Frage> fragen)
    : Window(platform, "HDW", "", fenstergröße, Frame::none),
      z_(zustand),
      medien_(medien),
      fragen_(std::move(fragen)),
      Grund(&root(), {{0, 0}, fenstergröße}, grundfarbe),
      Label1(&Grund, {0, 0, 409, 137}),
      Label2{Label{&Grund, {8, 152, 193, 33}}, Label{&Grund, {208, 152, 193, 33}}, Label{&Grund, {8, 192, 193, 33}},
             Label{&Grund, {208, 192, 193, 33}}},
      Timer1(platform.queue, soSchnellEsGeht, false, [this] { Timer1_Timer(); }),
      Timer2(platform.queue, blinkzeitRichtig, false, [this] { Timer2_Timer(); }),
      Timer3(platform.queue, blinkzeitFalsch, false, [this] { Timer3_Timer(); }) {
    Label1.setFont(schrift());
    Label1.setColour(frageFarbe);
    for (std::int32_t i = 0; i < Antwortfelder; ++i) {
        Label& feld = Label2[static_cast<std::size_t>(i)];
        feld.setText("Antwort 1");
        feld.setFont(schrift());
        feld.setColour(antwortFarbe);
        feld.setGround(antwortGrund);
        feld.setAlign(Label::Align::centre);
        feld.onClick = [this, i] { Label2_Click(i); };
    }
    Buttonssperren();
    z_.Übergabe = false;
    Timer1.setEnabled(true);
}

void HDW::Sperren(bool gesperrt) {
    for (Label& feld : Label2) feld.setEnabled(!gesperrt);
}

void HDW::Timer1_Timer() {
    Timer1.setEnabled(false);
    if (++FrageNr > fragenBisZumSieg) {
        z_.Übergabe = true;
        return close();
    }
    const Aufgabe aufgabe = AufgabeStellen(platform().random, fragen_, FrageNr);
    Label1.setText(aufgabe.Wortlaut);
    richtigePos = aufgabe.richtigePos;
    for (std::size_t i = 0; i < Label2.size(); ++i) Label2[i].setText(aufgabe.Felder[i]);
    Klang("wodds.wav");
    Buttonsunsperren();
}

void HDW::Label2_Click(std::int32_t Index) {
    Buttonssperren();
    (Index == richtigePos ? Timer2 : Timer3).setEnabled(true);
}

bool HDW::Blinken(std::int32_t& ticks, const Urteil& urteil) {
    if (ticks == 0) {
        Label1.setText(urteil.text);
        Klang(urteil.klang);
    }
    ++ticks;
    Label1.setVisible(!Label1.visible());
    Label& lösung = Label2[static_cast<std::size_t>(richtigePos)];
    lösung.setGround(Colour{lösung.ground()->rgb ^ alleBits.rgb});
    if (ticks < urteil.ticks) return false;
    ticks = 0;
    return true;
}

void HDW::Timer2_Timer() {
    if (!Blinken(blinkenRichtig, richtig)) return;
    Timer2.setEnabled(false);
    Timer1.setEnabled(true);
}

void HDW::Timer3_Timer() {
    if (!Blinken(blinkenFalsch, falsch)) return;
    Timer3.setEnabled(false);
    close();
}

void HDWZeigen(Platform& platform, Zustand& zustand, Medien& medien) {
    zustand.Übergabe = false;
    std::vector<Frage> fragen;
    try {
        fragen = FragenLaden(platform.files, zustand.PfadGames + "HDW.txt");
    } catch (const DataError& fehler) {
        showMessageBox(platform, {"HDW", fehler.message(), MessageBox::Icon::critical});
        return;
    }
    HDW(platform, zustand, medien, std::move(fragen)).showModal();
}

}  // namespace zentrox
