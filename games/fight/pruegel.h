// The window of the fight: first the choice of techniques, then the pictures.
#pragma once

#include <array>

#include "games/fight/kampfbild.h"
#include "media/medien.h"
#include "platform/platform.h"
#include "platform/window/controls/button.h"
#include "platform/window/controls/image.h"
#include "platform/window/controls/label.h"

namespace zentrox {

// A group of controls with a caption in its edge.
class Gruppe : public Panel {
public:
    Gruppe(Control* parent, const Rect& area, TextView caption);
    Text shownText() const override { return caption_; }
    void paint(Bitmap& onto, Point at) override;

private:
    Text caption_;
};

class Prügel : public Window {
public:
    // Reads `Übergabe`. Throws `DataError` where the picture of a technique is missing, and later from any wait
    // where one of the fight is.
    Prügel(Platform& platform, Zustand& zustand, Medien& medien);

    const Technikwahl& wahl() const { return wahl_; }

private:
    bool onQueryClose() override;

    void LadeAngriff() { Symbole("prügels"_t, Zurück + 1); }
    void LadeAbwehr() { Symbole("prügelb"_t, Techniken); }
    void Symbole(TextView stamm, std::int32_t anzahl);
    void Image1_Click(std::int32_t Index);
    void Command1_Click();

    // Each gives false if the window was closed meanwhile.
    bool Spielen(const Folge& folge, Kampf& kampf);
    bool Tun(const Schritt& schritt, Kampf& kampf);
    bool Warten(std::int32_t ms);
    bool ShowEnergie(Kämpfer wer, Kampf& kampf);
    bool Ringeln();
    bool Strahlen();
    bool Flackern();
    void LiedAus();
    Bitmap Laden(TextView datei) const;

    Zustand& z_;
    Medien& medien_;
    Technikwahl wahl_;

    Gruppe Frame2;
    Panel Linie1;
    Panel Linie2;
    std::array<Image, 5> Image1;
    Label Label2;
    std::array<Image, Kampfrunden> Image2;
    Label Label3;
    std::array<Image, Kampfrunden> Image3;
    PushButton Command1;

    Panel Frame1;
    Surface Picture1;
    std::array<Label, 2> Label1;
    Kampfbild bild_;
    Timer RM;
};

}  // namespace zentrox
