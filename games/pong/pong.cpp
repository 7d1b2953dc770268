#include "games/pong/pong.h"

#include "games/pong/pongfenster.h"
#include "platform/values/error.h"

namespace zentrox {

namespace {

constexpr Size fensterfläche{640, 480};
constexpr Milliseconds soSchnellEsGeht = 1;

}  // namespace

Pong::Pong(Platform& platform, Zustand& zustand, Medien& medien, Pongbilder bilder)
    : Window(platform, "Pong", "", fensterfläche, Frame::fixed),
      z_(zustand),
      medien_(medien),
      Picture1(platform.fonts, &root(), {0, 0, 641, 449}),
      Command1(&root(), {8, 456, 65, 25}, "Neues Spiel"),
      Command2(&root(), {88, 456, 65, 25}, "Ende"),
      Label1(&root(), {240, 456, 25, 17}),
      Text1(&root(), {280, 456, 41, 19}),
      Label2(&root(), {384, 456, 41, 17}),
      Text2(&root(), {432, 456, 41, 19}),
      bild_(Picture1, std::move(bilder)),
      spiel_(bild_, *this),
      Timer1(platform.queue, soSchnellEsGeht, false, [this] { tut(&Pongspiel::Timer1_Timer); }),
      Timer2(platform.queue, soSchnellEsGeht, false, [this] { tut(&Pongspiel::Timer2_Timer); }),
      Timer3(platform.queue, punkteDauer, false, [this] { tut(&Pongspiel::Timer3_Timer); }),
      Timer4(platform.queue, soSchnellEsGeht, false, [this] { tut(&Pongspiel::Timer4_Timer); }),
      Timer5(platform.queue, soSchnellEsGeht, false, [this] { tut(&Pongspiel::Timer5_Timer); }),
      Timer6(platform.queue, soSchnellEsGeht, false, [this] { tut(&Pongspiel::Timer6_Timer); }) {
    // The names need a little more room than a narrow label has.
    for (Label* const label : {&Label1, &Label2}) label->setAutoSize(true);
    Label1.setText("Kessa");
    Label2.setText("Velmix");
    // Keys belong to the paddle: space must not start a new match, nor a P change the score.
    for (PushButton* const button : {&Command1, &Command2}) button->setTakesFocus(false);
    for (Field* const field : {&Text1, &Text2}) field->setReadOnly(true);
    Command1.onClick = [this] { tut(&Pongspiel::neuess); };
    Command2.onClick = [] { Queue::endProgram(); };
    tut(&Pongspiel::neuess);
}

void Pong::tut(void (Pongspiel::*was)()) {
    (spiel_.*was)();
    const Takte& takte = spiel_.stand().takte;
    Timer1.setEnabled(takte.Timer1);
    Timer2.setEnabled(takte.Timer2);
    Timer3.setEnabled(takte.Timer3);
    Timer4.setEnabled(takte.Timer4);
    Timer5.setEnabled(takte.Timer5);
    Timer6.setEnabled(takte.Timer6);
}

void Pong::Klang(TextView datei) {
    medien_.SpieleWav(z_.PfadGames + Text(datei));
}

void Pong::Titel(TextView text) {
    if (text != title()) setTitle(text);
}

void Pong::Punkte(Seite seite, std::int32_t punkte) {
    (seite == Seite::links ? Text1 : Text2).setText(" " + std::to_string(punkte));
}

void PongZeigen(Platform& platform, Zustand& zustand, Medien& medien) {
    std::optional<Pongbilder> bilder;
    try {
        bilder = PongbilderLaden(platform.files, zustand.PfadGames);
    } catch (const DataError& fehler) {
        showMessageBox(platform, {"Pong", fehler.message(), MessageBox::Icon::critical});
        zustand.Übergabe = false;
        return;
    }
    Pong(platform, zustand, medien, std::move(*bilder)).showModal();
    if (!std::holds_alternative<bool>(zustand.Übergabe)) zustand.Übergabe = false;
}

}  // namespace zentrox
