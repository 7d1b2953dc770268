// The rules of Jump: a tick of the keys, the enemies, the figure and the sparks. Nothing here draws; what a tick
// asks of those who show it stands in `Jumptick`. All positions are pixels, all speeds pixels a tick.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "games/jump/level.h"
#include "games/jump/sicht.h"
#include "games/sparks/funken.h"
#include "platform/values/random.h"

namespace zentrox {

constexpr Size Spielergröße{48, 96};

enum class Jumpklang { tropfen, lachen, plopp, sprung };

struct Jumptick {
    std::vector<Jumpklang> Klänge;
    std::optional<Point> Zielbild;  // then the picture of tile 9 belongs there, below the sprites
};

class Jumpspiel {
public:
    using Tasten = std::array<std::uint8_t, 256>;  // above 126 is held

    // `zufall` must outlive it.
    explicit Jumpspiel(Random& zufall) : zufall_(&zufall) {}

    // One tick. What it gives is valid until the next one. Sprites and sparks have to be off the surface before it;
    // after it, the steps of `Sicht` are to be done, and sprites and sparks to be drawn again.
    const Jumptick& Tick(const Tasten& tasten);

    // Whether a body of `Breite` pixels and `Hoehe` rows, its corner at X, Y, can't move on by `Tempo`.
    bool CheckLinksundRechts(float X, float Y, float Tempo, std::int32_t Breite, std::int32_t Hoehe) const;

    zentrox::Karte Karte;
    Gegnerschar Gegner = Startaufstellung();
    zentrox::Funken Funken{Funkenart::gerundet, Jumpfeld};
    float SpielerX = 0;
    float SpielerY = -100;  // it falls in from above
    float SpielerVX = 0;
    float SpielerVY = 0;
    std::int32_t SpielerBild = 0;
    std::int32_t TotZaehler = 0;  // 0 while alive
    zentrox::Sicht Sicht;
    std::int32_t Ende = 0;   // not 0 ends the game
    bool ErsterTick = true;  // nothing has been drawn yet
    std::int32_t AmBoden = 0;
    std::int32_t BodenNachlauf = 0;  // ticks for which `AmBoden` outlives the floor
    bool SprungGehalten = false;     // the jump key is still held since the last jump
    std::int32_t SiegZaehler = 0;    // ticks of the celebration
    double Hubwinkel = 0;            // of what sinks and rises, in radians
    std::optional<bool> Ergebnis;    // true is won

private:
    void gegnerBewegen(zentrox::Gegner& g);
    void gehen(zentrox::Gegner& g);
    void sinken(zentrox::Gegner& g);
    void patrouillieren(zentrox::Gegner& g) const;
    void grube();
    void berührungen();
    void berührung(zentrox::Gegner& g);
    void zertreten(zentrox::Gegner& g);
    void sterben();
    void leben();
    void kopf();
    void füße();
    void tempo();
    void springen();
    void gehen();
    void sichtNachführen();
    void ziel();
    void feiern();
    void sichtbarkeit();

    // Solid at the figure's columns, in the row of `y`.
    bool festBei(float y) const;
    void funken(int anzahl, float X1, float Y1, float X2, float Y2, bool brocken);
    void klang(Jumpklang k) { tick_.Klänge.push_back(k); }
    bool gedrückt(int code) const { return (*tasten_)[static_cast<std::size_t>(code)] > 126; }

    Random* zufall_;                  // a copy of the game shares it
    const Tasten* tasten_ = nullptr;  // of the tick that runs
    Jumptick tick_;
};

}  // namespace zentrox
