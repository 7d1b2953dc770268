// How the choice of techniques looks: the icons that can be clicked, and the two rows that fill with them.
#pragma once

#include <array>
#include <functional>

#include "games/fight/wahl.h"
#include "platform/machine/files.h"
#include "platform/picture/bitmap.h"
#include "platform/window/controls/button.h"
#include "platform/window/controls/image.h"
#include "platform/window/controls/label.h"

namespace zentrox {

struct Symbole {
    std::array<Bitmap, Zurück + 1> Angriff;  // the techniques, the potion, the way back
    std::array<Bitmap, Techniken> Abwehr;
};

// Reads them from a directory. Throws `DataError` that names the file that can't be read.
Symbole SymboleLaden(const Files& files, TextView pfad);

// A group of controls with a caption in its edge.
class Gruppe : public Panel {
public:
    Gruppe(Control* parent, const Rect& area, TextView caption);
    Text shownText() const override { return caption_; }
    void paint(Bitmap& onto, Point at) override;

private:
    Text caption_;
};

class Wahlbild {
public:
    Wahlbild(Control* parent, Symbole symbole);

    // What a click on an icon, 0 to 4, and on the button for the fight does.
    std::function<void(std::int32_t Index)> Klick;
    std::function<void()> Kampf;

    void Zeichnen(const Technikwahl& wahl);
    void Verbergen() { Frame2.setVisible(false); }

private:
    const Bitmap& symbol(bool angriff, std::int32_t technik) const;

    Symbole symbole_;
    Gruppe Frame2;
    Panel Linie1;
    Panel Linie2;
    std::array<Image, Zurück + 1> Image1;
    Label Label2;
    std::array<Image, Kampfrunden> Image2;
    Label Label3;
    std::array<Image, Kampfrunden> Image3;
    PushButton Command1;
};

}  // namespace zentrox
