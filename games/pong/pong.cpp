#include "games/pong/pong.h"

#include "games/base/geladen.h"
#include "games/pong/pongfenster.h"

namespace zentrox {

namespace {

constexpr Size fensterfläche{640, 480};
constexpr Milliseconds soSchnellEsGeht = 1;

void zeigePunkte(Field& feld, std::int32_t punkte) {
    if (const Text text = " " + std::to_string(punkte); feld.text() != text) feld.setText(text);
}

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
      Timer1(platform.queue, soSchnellEsGeht, false,
             [this] {
                 tun([this](const Tasten& tasten) { return spiel_.Timer1_Timer(tasten); }, &Pongbild::Timer1_Timer);
             }),
      Timer2(platform.queue, soSchnellEsGeht, false,
             [this] { tun([this](const Tasten&) { return spiel_.Timer2_Timer(); }, &Pongbild::Timer2_Timer); }),
      Timer3(platform.queue, punkteDauer, false,
             [this] { tun([this](const Tasten&) { return spiel_.Timer3_Timer(); }, &Pongbild::Timer3_Timer); }),
      Timer4(platform.queue, soSchnellEsGeht, false, [this] { bild_.Endbild(Seite::links); }),
      Timer5(platform.queue, soSchnellEsGeht, false, [this] { bild_.Endbild(Seite::rechts); }),
      Timer6(platform.queue, soSchnellEsGeht, false,
             [this] { tun([this](const Tasten&) { return spiel_.Timer6_Timer(); }, &Pongbild::Timer6_Timer); }) {
    // The names need a little more room than a narrow label has.
    for (Label* const label : {&Label1, &Label2}) label->setAutoSize(true);
    Label1.setText("Kessa");
    Label2.setText("Velmix");
    // Keys belong to the paddle: space must not start a new match, nor a P change the score.
    for (PushButton* const button : {&Command1, &Command2}) button->setTakesFocus(false);
    for (Field* const field : {&Text1, &Text2}) field->setReadOnly(true);
    Command1.onClick = [this] { neuess(); };
    Command2.onClick = [] { Queue::endProgram(); };
    neuess();
}

Tasten Pong::CheckKeys() {
    Tasten tasten = platform().backend.keys();
    tasten_.Ergänzen(tasten);
    return tasten;
}

void Pong::neuess() {
    spiel_.neuess();
    bild_.NeuesFeld(spiel_);
    melden();
}

bool Pong::Entscheiden(bool sieg) {
    const bool jetzt = spiel_.Entscheiden(sieg);
    melden();
    return jetzt;
}

template <class Tick>
void Pong::tun(Tick tick, void (Pongbild::*zeigen)(const Pongzug&)) {
    const Pongspiel vorher = spiel_;
    // Looked at in each phase, so that a tap of an earlier one is forgotten when play begins.
    const Pongtick t = tick(CheckKeys());
    (bild_.*zeigen)({vorher, t, spiel_});
    for (const TextView klang : t.Klänge) medien_.SpieleWav(z_.PfadGames + Text(klang));
    melden();
}

void Pong::melden() {
    const Takte& takte = spiel_.takte;
    Timer1.setEnabled(takte.Timer1);
    Timer2.setEnabled(takte.Timer2);
    Timer3.setEnabled(takte.Timer3);
    Timer4.setEnabled(takte.Timer4);
    Timer5.setEnabled(takte.Timer5);
    Timer6.setEnabled(takte.Timer6);
    if (title() != spiel_.titel) setTitle(spiel_.titel);
    zeigePunkte(Text1, spiel_.punkteGegner);
    zeigePunkte(Text2, spiel_.punkteSpieler);
    if (spiel_.gesiegt) z_.Übergabe = true;
}

void PongZeigen(Platform& platform, Zustand& zustand, Medien& medien) {
    auto bilder = Geladen(platform, "PONG", [&] { return PongbilderLaden(platform.files, zustand.PfadGames); });
    if (bilder) Pong(platform, zustand, medien, std::move(*bilder)).showModal();
    if (!bilder || !std::holds_alternative<bool>(zustand.Übergabe)) zustand.Übergabe = false;
}

}  // namespace zentrox
