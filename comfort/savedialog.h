// The dialog of saved games with a look at each: its picture, when it was, where and with what.
#pragma once

#include "comfort/sidecar.h"
#include "platform/window/controls/image.h"
#include "platform/window/controls/label.h"
#include "saves/dialog.h"

namespace zentrox {

class SaveDialog : public Dialog {
public:
    // `saving`: asks before a game that is there is replaced.
    SaveDialog(Platform& platform, Zustand& zustand, bool saving);

private:
    void Ausgesucht(const Text& path) override;
    bool Annehmen(const Text& path) override;

    bool saving_;
    Image picture_;
    Label words_;
};

// What stands beside the picture of a saved game: when, where, with what.
Text describe(const Sidecar& sidecar);

}  // namespace zentrox
