// The rules of Jump, a plain value: a tick of the keys, the enemies, the figure and the sparks. All positions are
// pixels, all speeds pixels a tick.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "games/base/tasten.h"
#include "games/jump/level.h"
#include "games/jump/sicht.h"
#include "games/sparks/funken.h"
#include "platform/values/random.h"
#include "platform/values/text.h"

namespace zentrox {

constexpr Size Spielergröße{48, 96};

// What has happened in a tick besides what can be seen in the fields.
struct Jumptick {
    std::vector<TextView> Klänge;   // effects
    Scrollschritte Schritte;        // of the view
    std::optional<Point> Zielbild;  // the picture of tile 9 has appeared there, below the sprites
};

class Jumpspiel {
public:
    Jumptick Tick(const Tasten& tasten, Random& zufall);
    // From the next tick on the figure celebrates or dies. False if it does already.
    bool Entscheiden(bool sieg);

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
    // What a tick works with.
    struct Lauf {
        const Tasten& tasten;
        Random& zufall;
        Jumptick tick;
    };

    void gegnerBewegen(zentrox::Gegner& g);
    void gehen(zentrox::Gegner& g);
    void sinken(zentrox::Gegner& g);
    void patrouillieren(zentrox::Gegner& g) const;
    void grube();
    void berührungen(Lauf& lauf);
    void berührung(zentrox::Gegner& g, Lauf& lauf);
    void zertreten(zentrox::Gegner& g, Lauf& lauf);
    void sterben(Lauf& lauf);
    void leben(Lauf& lauf);
    void kopf();
    void füße(Lauf& lauf);
    void tempo(const Lauf& lauf);
    void springen(Lauf& lauf);
    void gehen();
    void sichtNachführen(Lauf& lauf);
    void ziel(Lauf& lauf);
    void feiern(Lauf& lauf);
    void sichtbarkeit();

    // Solid at the figure's columns, in the row of `y`.
    bool festBei(float y) const;
    void funken(Lauf& lauf, int anzahl, float X1, float Y1, float X2, float Y2, bool brocken);
};

}  // namespace zentrox
