#include <gtest/gtest.h>

#include <algorithm>

#include "games/memory/memoryspiel.h"

namespace zentrox::test {
namespace {

using Zug = Memoryspiel::Zug;

// Each value at two neighbouring positions, as the cards lie before they are shuffled.
Memoryspiel sorted() {
    Memoryspiel game;
    Random chance(1);
    game.Init(chance);
    for (std::size_t i = 0; i < game.Karten.size(); ++i) game.Karten[i] = static_cast<std::int32_t>(i / 2);
    return game;
}

TEST(MemoryRules, DealEachValueTwice) {
    for (unsigned seed = 0; seed < 50; ++seed) {
        Memoryspiel game;
        Random chance(seed);
        game.Init(chance);
        auto cards = game.Karten;
        EXPECT_FALSE(std::is_sorted(cards.begin(), cards.end()));
        std::sort(cards.begin(), cards.end());
        EXPECT_EQ(cards, sorted().Karten);
        for (std::int32_t i = 0; i < kartenAnzahl; ++i) EXPECT_TRUE(game.aufTisch(i));
    }
}

TEST(MemoryRules, ShuffleBy101SwapsInTheOrderOfTheDraws) {
    Memoryspiel game;
    Random chance(7);
    game.Init(chance);
    auto cards = sorted().Karten;
    Random same(7);
    for (int i = 0; i < 101; ++i) {
        const auto p = static_cast<std::size_t>(same.draw() * 16);
        const auto q = static_cast<std::size_t>(same.draw() * 16);
        std::swap(cards[p], cards[q]);
    }
    EXPECT_EQ(game.Karten, cards);
    EXPECT_EQ(chance.draw(), same.draw());
}

TEST(MemoryRules, TirsaForgetsTheOldestTurn) {
    Memoryspiel game = sorted();
    game.AddIntelligenz(0, 2);
    EXPECT_EQ(game.Gedaechtnis, (std::array<std::int32_t, 6>{-1, -1, -1, -1, 0, 2}));
    game.AddIntelligenz(4, 6);
    game.AddIntelligenz(0, 8);
    game.AddIntelligenz(10, 12);
    EXPECT_EQ(game.Gedaechtnis, (std::array<std::int32_t, 6>{4, 6, 0, 8, 10, 12}));
}

TEST(MemoryRules, TirsaTakesAPairThatSheKnowsTheLastFindFirst) {
    struct Case {
        std::array<std::int32_t, 6> memory;
        std::vector<Zug> won;
        Zug taken;
    };
    for (const Case& c : {
             Case{{-1, -1, -1, -1, 4, 5}, {}, {5, 4}},
             Case{{4, 0, 5, 1, 8, 10}, {}, {1, 0}},        // 4+5 and 0+1 are known: (1, 0) is found last
             Case{{4, 0, 5, 1, 8, 10}, {{0, 1}}, {5, 4}},  // what has been won is skipped
             Case{{4, 0, 5, 12, 4, 2}, {}, {4, 5}},        // a card may stand in two cells
         }) {
        Memoryspiel game = sorted();
        game.Gedaechtnis = c.memory;
        for (const Zug& won : c.won) game.gewonnen(won, Wer::spieler);
        Random chance(3);
        EXPECT_EQ(game.gegnerZug(chance), c.taken) << c.taken.a << ", " << c.taken.b;
        EXPECT_EQ(chance.draw(), Random(3).draw()) << "no card was drawn by chance";
    }
}

TEST(MemoryRules, TirsaDrawsACardAndLooksForItsPartner) {
    for (unsigned seed = 0; seed < 200; ++seed) {
        Memoryspiel game = sorted();
        game.Gedaechtnis = {-1, -1, 3, 6, 3, 8};
        game.gewonnen({0, 1}, Wer::spieler);
        Random chance(seed);
        Random same(seed);
        const Zug zug = game.gegnerZug(chance);
        std::int32_t a = 0;
        do a = static_cast<std::int32_t>(same.draw() * 16);
        while (a < 2);
        ASSERT_EQ(zug.a, a);
        const std::int32_t partner = a % 2 == 0 ? a + 1 : a - 1;
        const bool known = partner == 3 || partner == 6 || partner == 8;
        if (known) {
            EXPECT_EQ(zug.b, partner);
        } else {
            std::int32_t b = 0;
            do b = static_cast<std::int32_t>(same.draw() * 16);
            while (b < 2 || b == a);
            EXPECT_EQ(zug.b, b);
        }
        EXPECT_EQ(chance.draw(), same.draw());
    }
}

TEST(MemoryRules, EndWhenEightPairsAreGone) {
    for (int mine = 0; mine <= 8; ++mine) {
        Memoryspiel game = sorted();
        Random chance(5);
        for (int pair = 0; pair < 8; ++pair) {
            EXPECT_FALSE(game.zuEnde());
            // With one pair left there is nothing else to turn.
            if (pair == 7) {
                const Zug last = game.gegnerZug(chance);
                EXPECT_EQ(last.a + last.b, 14 + 15);
            }
            game.gewonnen({2 * pair, 2 * pair + 1}, pair < mine ? Wer::spieler : Wer::gegner);
        }
        EXPECT_TRUE(game.zuEnde());
        EXPECT_EQ(game.ergebnis(), mine > 4 ? "W" : mine < 4 ? "L" : "U");
    }
}

}  // namespace
}  // namespace zentrox::test
