// The small window that names a saved game. It neither reads nor writes one.
#pragma once

#include "engine/state/zustand.h"
#include "platform/machine/files.h"
#include "platform/window/controls/button.h"
#include "platform/window/controls/field.h"
#include "platform/window/controls/list.h"
#include "platform/window/window.h"

namespace zentrox {

constexpr TextView Spielstandendung = ".xtc";

// The directory of the saved games, with a backslash at its end.
Text Speicherverzeichnis(const Files& files);

// `Übergabe` is its title at first, and when it has closed the full path of the game, or empty if nothing was
// chosen.
class Dialog : public Window {
public:
    Dialog(Platform& platform, Zustand& zustand) : Dialog(platform, zustand, 0) {}

protected:
    // With room for more at the right, in pixels. With larger letters all is larger, as far as a room's window
    // allows.
    Dialog(Platform& platform, Zustand& zustand, int mehrBreite);

    // An entry of the list was chosen; full path.
    virtual void Ausgesucht(const Text& /*pfad*/) {}
    // Whether the window may close with this path as its outcome.
    virtual bool Annehmen(const Text& /*pfad*/) { return true; }
    // The full path of a game of that name.
    Text Pfad(TextView name) const;

private:
    void onOpen() override;
    void onKeyDown(int code) override;
    void File1_Click();
    void OKButton_Click();

    Zustand& z_;
    List File1;
    Field Text1;
    PushButton OKButton;
    PushButton CancelButton;
};

}  // namespace zentrox
