#include "engine/language/games.h"

#include <algorithm>

namespace zentrox {

namespace {

constexpr std::array<TextView, 1> pi{"Pi10000.txt"};
constexpr std::array<TextView, 1> fragen{"HDW.txt"};
constexpr std::array<TextView, 10> pong{"1(0).bmp", "1(1).bmp", "1(2).bmp", "1(3).bmp", "4.bmp",
                                        "5.bmp",    "70.bmp",   "71.bmp",   "8.bmp",    "91.bmp"};
constexpr std::array<TextView, 9> memory{"m1.jpg", "m2.jpg", "m3.jpg", "m4.jpg", "m5.jpg",
                                         "m6.jpg", "m7.jpg", "m8.jpg", "m9.jpg"};
constexpr std::array<TextView, 48> prügel{
    "prügels1.bmp"_t, "prügels2.bmp"_t, "prügels3.bmp"_t, "prügels4.bmp"_t, "prügels5.bmp"_t, "prügelb1.bmp"_t,
    "prügelb2.bmp"_t, "prügelb3.bmp"_t, "Kampf0.jpg",     "Kampf10.jpg",    "Kampf11.jpg",    "Kampf20.jpg",
    "Kampf21.jpg",    "Kampf30.jpg",    "Kampf31.jpg",    "Kampf40.jpg",    "Kampf41.jpg",    "Kampf50.jpg",
    "Kampf51.jpg",    "Kampf600.jpg",   "Kampf601.jpg",   "Kampf61.jpg",    "KampfT.jpg",     "KampfH.jpg",
    "KampfG.jpg",     "KampfV.jpg",     "KampfJS0.jpg",   "KampfJS1.jpg",   "KampfJS20.jpg",  "KampfJS21.jpg",
    "KampfJS30.jpg",  "KampfJS31.jpg",  "KampfJS32.jpg",  "KampfJS33.jpg",  "KampfJS34.jpg",  "KampfSS0.jpg",
    "KampfSS1.jpg",   "KampfSS2.jpg",   "KampfSS3.jpg",   "KampfSS4.jpg",   "KampfSS5.jpg",   "KampfSS6.jpg",
    "KampfSS7.jpg",   "KampfSS8.jpg",   "KampfSS9.jpg",   "KampfSS10.jpg",  "Kampfs0.jpg",    "Kampfs1.jpg"};
// Background and tiles, the player, four kinds of enemies in two steps and both directions, each with its mask.
constexpr std::array<TextView, 52> jump{
    "j0.bmp",  "j1.bmp",   "j2.bmp",   "j3.bmp",    "j4.bmp",  "j5.bmp",   "j6.bmp",   "j7.bmp",
    "j8.bmp",  "j9.bmp",   "j10.bmp",  "j11.bmp",   "h1.bmp",  "h1m.bmp",  "h2.bmp",   "h2m.bmp",
    "h3.bmp",  "h3m.bmp",  "h4.bmp",   "h4m.bmp",   "g11.bmp", "g11m.bmp", "g11d.bmp", "g11md.bmp",
    "g12.bmp", "g12m.bmp", "g12d.bmp", "g12md.bmp", "g21.bmp", "g21m.bmp", "g21d.bmp", "g21md.bmp",
    "g22.bmp", "g22m.bmp", "g22d.bmp", "g22md.bmp", "g31.bmp", "g31m.bmp", "g31d.bmp", "g31md.bmp",
    "g32.bmp", "g32m.bmp", "g32d.bmp", "g32md.bmp", "g41.bmp", "g41m.bmp", "g41d.bmp", "g41md.bmp",
    "g42.bmp", "g42m.bmp", "g42d.bmp", "g42md.bmp"};

constexpr std::array spiele{
    SpielArt{"PI", "PISpiel", "PI-Spiel", pi},
    SpielArt{"JUMP", "Jump", "Jump", jump},
    SpielArt{"ESEL", "Form2", "Rätsel"_t, {}},
    SpielArt{"HDW", "HDW", "Hauptstadtquiz", fragen},
    SpielArt{"PRÜGEL"_t, "Prügel"_t, "Prügelei"_t, prügel},
    SpielArt{"BRUHKS", "Bruhks", "Bruhks", {}},
    SpielArt{"PONG", "Pong", "Pong", pong},
    SpielArt{"MEMORY", "Memory", "Memory", memory, true},
};

}  // namespace

std::span<const SpielArt> Spiele() {
    return spiele;
}

const SpielArt* findSpiel(TextView name) {
    const auto* const row =
        std::find_if(spiele.begin(), spiele.end(), [&](const SpielArt& spiel) { return spiel.name == name; });
    return row == spiele.end() ? nullptr : row;
}

}  // namespace zentrox
