// The first window: four lines on two screens, a help text that types itself, and a wave. All of it moves in one
// loop, and what a person does is answered from inside that loop.
#pragma once

#include <array>
#include <filesystem>
#include <functional>
#include <vector>

#include "engine/state/schreibmaschine.h"
#include "engine/state/zustand.h"
#include "menu/hilfetexte.h"
#include "platform/platform.h"
#include "platform/window/controls/image.h"
#include "platform/window/controls/label.h"
#include "platform/window/surface.h"
#include "platform/window/window.h"

namespace zentrox {

class Menu : public Window {
public:
    // Looks for the data in `wurzeln` and fills the paths of the state. `form1Zeigen` shows the room window and
    // does not return before the game has ended; it is called from deep inside this window's loop, when the menu is
    // gone.
    Menu(Platform& platform, Zustand& zustand, const std::vector<std::filesystem::path>& wurzeln,
         std::function<void()> form1Zeigen);

    // Begins the game in this room, or in its first one; the whole of it runs inside this call.
    void beginnen(TextView raum);

private:
    static constexpr int Zeilen = 4;

    void onKeyDown(int code) override { Form_KeyDown(code); }
    bool onQueryClose() override;

    void Form_Load(const std::vector<std::filesystem::path>& wurzeln);
    void Form_KeyDown(int code);
    void Timer1_Timer();
    void Label1_MouseMove(int Index);
    void LabelAufbau(int Index);
    void LabelAusfuehren(int Index);
    void MenuBonusSetzen(int Index);
    void DoLoop();

    Label& zeile(int Index) { return Label1[static_cast<std::size_t>(Index)]; }
    void markierungRücken(int richtung);
    void öffnen(TextView was);

    Zustand& z_;
    std::function<void()> form1Zeigen_;

    Image Image1;
    Label Label3;
    Label Label2;
    Surface Picture1;
    std::array<Label, Zeilen> Label1;
    Surface Picture2;  // over the lines: what of a long one would run into the text is cut
    Timer Timer1;

    Text CDLaufwerk;  // root of the CD with a backslash at its end, empty if there is none
    bool MenuSchluss = false;
    int MenuPunkt = 0;
    int MenuSeite = -1;  // 0 main screen, 1 bonus screen
    float WellenPhase = 0;
};

}  // namespace zentrox
