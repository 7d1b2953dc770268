#include "games/base/entscheidbar.h"
#include "games/riddle/raetsel.h"
#include "games/riddle/riddle.h"
#include "platform/values/keys.h"
#include "platform/window/controls/field.h"
#include "platform/window/controls/label.h"
#include "platform/window/controls/textbox.h"

namespace zentrox {

namespace {

constexpr Size fenstergröße{450, 364};
constexpr Colour hellrot{255, 192, 192};

class Form2 : public Window, public Entscheidbar {
public:
    Form2(Platform& platform, Zustand& zustand)
        : Window(platform, "Form2", "", fenstergröße, Frame::dialog),
          z_(zustand),
          Text1(&root(), {0, 0, 449, 321}),
          Label1(&root(), {8, 328, 425, 17}, "Gib hier deine Möglichkeit ein:"_t),
          Label2(&root(), {8, 344, 25, 17}, "Er"),
          Text2(&root(), {24, 344, 417, 19}) {
        const FontSpec schrift{"Courier", 9.75F, true};
        Text1.setFont(schrift);
        Text1.setColours(hellrot, black);
        Text1.setReadOnly(true);
        Text1.setText(spiel_.Verlauf);
        Text2.setFont(schrift);
        Text2.onEnter = [this] { Eingabe(); };
        setFocus(&Text2);
    }

    bool Entscheiden(bool sieg) override {
        z_.Übergabe = sieg;
        close();
        return true;
    }

private:
    void Eingabe() {
        const Text eingabe = Text2.text();
        const Rätselantwort runde = spiel_.Versuch(eingabe, platform().random);
        if (runde.ausgang != Rätselantwort::Ausgang::weiter) {
            z_.Übergabe = runde.ausgang == Rätselantwort::Ausgang::gelöst;
            return close();
        }
        Text1.append(runde.zuwachs);
        Text2.setText("");
    }

    // The input line has no use for these keys, so that one can leaf back while typing.
    void onKeyDown(int code) override {
        if (focus() == &Text2 && (code == key::pageUp || code == key::pageDown)) Text1.keyDown(code, false, false);
    }

    // Who types while the transcript has the focus means the input line.
    void onKeyPress(char c) override {
        if (focus() != &Text1 || !isPrintable(c)) return;
        setFocus(&Text2);
        Text2.keyPress(c);
    }

    Zustand& z_;
    Rätsel spiel_;
    TextBox Text1;
    Label Label1;
    Label Label2;
    Field Text2;
};

}  // namespace

void Form2Zeigen(Platform& platform, Zustand& zustand, Medien& /*medien*/) {
    // Its close box leaves this as it is.
    zustand.Übergabe = false;
    Form2(platform, zustand).showModal();
}

}  // namespace zentrox
