// The window of the fight: first the choice of techniques, then the pictures.
#pragma once

#include <array>
#include <optional>

#include "games/base/entscheidbar.h"
#include "games/fight/kampfbild.h"
#include "games/fight/wahlbild.h"
#include "media/medien.h"
#include "platform/platform.h"

namespace zentrox {

class Prügel : public Window, public Entscheidbar {
public:
    // `zaubertrank` says whether Velmix may use the potion.
    Prügel(Platform& platform, Zustand& zustand, Medien& medien, Symbole symbole, bool zaubertrank);

    // Whoever has not yet chosen fights at once.
    bool Entscheiden(bool sieg) override;

private:
    bool onQueryClose() override;

    void Image1_Click(std::int32_t Index);
    void Command1_Click();

    // Each gives false if the window was closed meanwhile.
    bool Spielen(const Folge& folge, Kampf& kampf);
    bool Tun(const Schritt& schritt, Kampf& kampf);
    bool Warten(std::int32_t ms);
    bool Bild(TextView datei);
    bool ShowEnergie(Kämpfer wer, Kampf& kampf);
    bool Ringeln();
    bool Strahlen();
    bool Flackern();
    void LiedAus();

    Zustand& z_;
    Medien& medien_;
    Technikwahl wahl_;
    std::optional<bool> entschieden_;
    std::optional<Kampf> kampf_;  // once the choice is made
    Wahlbild wahlbild_;

    Panel Frame1;
    Surface Picture1;
    std::array<Label, 2> Label1;
    Kampfbild bild_;
    Timer RM;
    Timer Timer1;  // fires once, to fight without a choice
};

}  // namespace zentrox
