// The hunt for the bruhks, without a surface and on one.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>

#include "games/bruhks/bruhksbild.h"
#include "games/bruhks/bruhksbilder.h"
#include "tests/support/fake_fonts.h"

namespace zentrox {
namespace {

constexpr Size field{645, 445};
constexpr Size frame{64, 48};
constexpr float pi = 3.14159274F;

class Hunt : public ::testing::Test {
protected:
    Random chance{21};
    Bruhksspiel game{chance, pi, field, frame};

    Kreatur& creature(int i) { return game.Kreaturen[static_cast<std::size_t>(i)]; }
    // All far away but those that the test puts somewhere.
    void clear() {
        for (Kreatur& k : game.Kreaturen) k.PosX = k.PosY = -5000;
    }
    void clickAndTick(float x, float y, std::int16_t button = linkeTaste) {
        game.Klick(button, x, y);
        game.Tick(chance);
    }
};

TEST_F(Hunt, PlacesAreDrawnInTheirOrder) {
    Random same(21);
    for (const Kreatur& k : game.Kreaturen) {
        EXPECT_EQ(k.StartX, std::nearbyint(same.draw() * (645 - 64)));
        EXPECT_EQ(k.StartY, std::nearbyint(same.draw() * (445 - 48)));
        EXPECT_EQ(k.ZielX, std::nearbyint(same.draw() * (645 - 64)));
        EXPECT_EQ(k.ZielY, std::nearbyint(same.draw() * (445 - 48)));
        EXPECT_EQ(k.DauerX, std::nearbyint(same.draw() * 60 + 40));
        EXPECT_EQ(k.DauerY, std::nearbyint(same.draw() * 60 + 40));
    }
    EXPECT_EQ(chance.draw(), same.draw());
}

TEST_F(Hunt, JourneysEndExactlyAtTheirGoalAndBeginSoftly) {
    for (int i = 0; i < 500; ++i) {
        const auto before = game.Kreaturen;
        game.Tick(chance);
        for (std::size_t k = 0; k < before.size(); ++k) {
            const Kreatur& now = game.Kreaturen[k];
            if (before[k].RestX == 1) {
                EXPECT_EQ(now.PosX, before[k].ZielX);
            }
            ASSERT_GE(now.PosX, 0);
            ASSERT_LE(now.PosX, 645 - 64);
            ASSERT_GE(now.PosY, 0);
            ASSERT_LE(now.PosY, 445 - 48);
            ASSERT_LT(std::fabs(now.PosX - before[k].PosX), 25);
        }
    }
}

TEST_F(Hunt, AClickHitsOneCreatureStrictlyInsideIt) {
    game.Tick(chance);
    clear();
    creature(3).PosX = creature(7).PosX = 100;
    creature(3).PosY = creature(7).PosY = 100;
    clickAndTick(120, 120);
    EXPECT_TRUE(creature(3).Lebt);
    EXPECT_FALSE(creature(7).Lebt) << "of two, the one drawn last";
    EXPECT_EQ(game.Uebrig, 20);

    for (const auto& [x, y, hit] : {std::tuple(100.0F, 120.0F, false),
                                    {164.0F, 120.0F, false},
                                    {120.0F, 100.0F, false},
                                    {120.0F, 148.0F, false},
                                    {100.5F, 147.5F, true}}) {
        clear();
        creature(3).PosX = 100;
        creature(3).PosY = 100;
        clickAndTick(x, y);
        EXPECT_EQ(creature(3).Lebt, !hit) << x << " " << y;
    }
}

TEST_F(Hunt, OtherButtonsMissesAndTheFirstTickAreForgotten) {
    clickAndTick(creature(0).PosX + 30, creature(0).PosY + 20);
    EXPECT_EQ(game.Uebrig, 21);
    EXPECT_EQ(game.Funken.PartikelMax(), 9) << "ten sparks all the same";
    for (int i = 0; i < 12; ++i) game.Tick(chance);
    ASSERT_EQ(game.Funken.PartikelMax(), -1);

    const auto unheard = [&](const std::function<void()>& click) {
        clear();
        creature(5).PosX = creature(5).PosY = 200;
        click();
        game.Tick(chance);
        EXPECT_EQ(game.Uebrig, 21);
        EXPECT_EQ(game.Funken.PartikelMax(), -1);
        EXPECT_EQ(game.KlickTaste, 0);
    };
    unheard([&] { game.Klick(2, 220, 220); });
    unheard([&] { game.Klick(4, 220, 220); });
    unheard([&] {  // the second press takes the place of the first
        game.Klick(linkeTaste, 220, 220);
        game.Klick(2, 220, 220);
    });
}

TEST_F(Hunt, ManyHuntsFilledWithSparksStaySound) {
    for (std::uint64_t seed = 1; seed <= 30; ++seed) {
        Random dice(seed);
        Bruhksspiel hunt(dice, pi, field, frame);
        for (int i = 0; i < 1000 && hunt.Jagd(); ++i) {
            // At a creature every third time, else anywhere, also beside the surface.
            const Kreatur& k = hunt.Kreaturen[static_cast<std::size_t>(dice.below(KreaturAnzahl))];
            if (dice.below(30) == 0)
                hunt.Klick(linkeTaste, k.PosX + 32, k.PosY + 24);
            else if (dice.below(3) == 0)
                hunt.Klick(linkeTaste, static_cast<float>(dice.below(700) - 20),
                           static_cast<float>(dice.below(480)));
            hunt.Tick(dice);
        }
        int alive = 0;
        for (const Kreatur& k : hunt.Kreaturen) alive += k.Lebt ? 1 : 0;
        EXPECT_EQ(alive, hunt.Uebrig);
    }
}

TEST_F(Hunt, TheCelebrationTakesNoClickInItsFirstTwoSeconds) {
    game.SiegBeginn({270, 210});
    int ticks = 0;
    for (; game.Ende == 0 && ticks < 200; ++ticks) {
        game.Klick(2, 5, 5);
        game.Tick(chance);
    }
    EXPECT_GE(ticks, 100);
    EXPECT_LE(ticks, 101);
    // The text's path: the newest place is the last one, each the one before in the next tick.
    const Point newest = game.Textspur.back();
    game.Tick(chance);
    EXPECT_EQ(game.Textspur[TextspurLänge - 2], newest);
}

TEST_F(Hunt, CreaturesAndSparksLeaveNoTraceOnTheSurface) {
    test::FakeFonts fonts;
    Surface surface(fonts, field);
    Bruhksbild view(surface);
    const Bitmap clean = surface.image();
    EXPECT_NE(clean.pixel({320, 220}), 0);
    EXPECT_EQ(clean.pixel({642, 220}), 0) << "the ground ends before the surface does";
    EXPECT_EQ(view.Frame(), frame);
    EXPECT_EQ(unpacked(BruhkOben).pixel({0, 0}), 0);
    EXPECT_EQ(unpacked(BruhkUnten).pixel({63, 47}), 0);
    for (int i = 0; i < 300; ++i) {
        view.Entfernen(game);
        ASSERT_TRUE(surface.image() == clean) << i;
        if (i % 7 == 0)
            game.Klick(linkeTaste, static_cast<float>(chance.below(645)), static_cast<float>(chance.below(445)));
        game.Tick(chance);
        view.Zeichnen(game);
    }
    EXPECT_LT(game.Uebrig, 21);
}

}  // namespace
}  // namespace zentrox
