// The pool of sparks: who gets which slot, how long they live, and that they leave no trace on a surface.
#include <gtest/gtest.h>

#include <cmath>
#include <set>

#include "games/sparks/funkenbild.h"
#include "tests/support/fake_fonts.h"

namespace zentrox {
namespace {

constexpr Size field{120, 90};

int active(const Funken& sparks) {
    int count = 0;
    for (int i = 0; i < PartikelAnzahl; ++i) count += sparks[i].Aktiv ? 1 : 0;
    return count;
}

// What the pool promises of its two marks.
void expectMarksHold(const Funken& sparks) {
    for (int i = 0; i < sparks.PartikelFrei(); ++i) ASSERT_TRUE(sparks[i].Aktiv) << i;
    for (int i = sparks.PartikelMax() + 1; i < PartikelAnzahl; ++i) ASSERT_FALSE(sparks[i].Aktiv) << i;
    ASSERT_TRUE(sparks.PartikelMax() == -1 || sparks[sparks.PartikelMax()].Aktiv);
}

TEST(Sparks, ASingleSparkDrawsSevenNumbersInTheirOrder) {
    Random chance(7);
    Random same(7);
    Funken sparks(Funkenart::gerundet, field);
    sparks.Addpartikel(chance, 1, 10, 20, 40, 50, false);
    const Partikel& p = sparks[0];
    EXPECT_EQ(p.X, std::floor(same.draw() * 30) + 10);
    EXPECT_EQ(p.Y, std::floor(same.draw() * 30) + 20);
    EXPECT_EQ(p.Leben, std::floor(same.draw() * 10) + 2);
    const int green = static_cast<int>(same.draw() * 128) + 128;
    const int blue = static_cast<int>(same.draw() * 255);
    EXPECT_EQ(p.Farbe, 255 << 16 | green << 8 | blue);
    EXPECT_EQ(p.VX, (std::floor(same.draw() * 12) - 6) / 2);
    EXPECT_EQ(p.VY, (std::floor(same.draw() * 12) - 6) / 2);
    EXPECT_EQ(chance.draw(), same.draw());
}

TEST(Sparks, AChunkIsABlockThatFliesAsOneAndCrumbles) {
    Random chance(3);
    Funken sparks(Funkenart::gerundet, field);
    sparks.Addpartikel(chance, 2, 10, 20, 59, 68, true);
    ASSERT_EQ(active(sparks), 72);
    std::set<std::pair<float, float>> places;
    for (int i = 0; i < 36; ++i) {
        places.insert({sparks[i].X, sparks[i].Y});
        EXPECT_EQ(sparks[i].VX, sparks[0].VX);
        EXPECT_EQ(sparks[i].VY, sparks[0].VY);
    }
    // The middle of 49 by 48 pixels, less two.
    EXPECT_EQ(*places.begin(), std::pair(32.0F, 42.0F));
    EXPECT_EQ(*places.rbegin(), std::pair(37.0F, 47.0F));
    EXPECT_EQ(places.size(), 36U);
    for (int i = 0; i < 3; ++i) sparks.Altern();
    EXPECT_LT(active(sparks), 72);
    for (int i = 0; i < 9; ++i) sparks.Altern();
    EXPECT_EQ(active(sparks), 0);
    EXPECT_EQ(sparks.PartikelMax(), -1);
    EXPECT_EQ(sparks.PartikelFrei(), 0);
}

TEST(Sparks, WhatFindsNoSlotIsLeftOutAndDrawsNothing) {
    Random chance(11);
    Funken sparks(Funkenart::gerundet, field);
    sparks.Addpartikel(chance, 990, 0, 0, 50, 50, false);
    sparks.Addpartikel(chance, 1, 0, 0, 50, 50, true);
    EXPECT_EQ(active(sparks), PartikelAnzahl);
    expectMarksHold(sparks);

    Random before = chance;
    sparks.Addpartikel(chance, 5, 0, 0, 50, 50, false);
    EXPECT_EQ(chance.draw(), before.draw());
    sparks.Altern();
    sparks.Altern();
    sparks.Altern();
    expectMarksHold(sparks);
    sparks.Addpartikel(chance, 2000, 0, 0, 50, 50, false);
    EXPECT_EQ(active(sparks), PartikelAnzahl);
}

TEST(Sparks, MarksHoldThroughAnyCourse) {
    for (const Funkenart kind : {Funkenart::gerundet, Funkenart::abgeschnitten}) {
        Random chance(5);
        Funken sparks(kind, field);
        for (int i = 0; i < 400; ++i) {
            if (chance.below(3) == 0)
                sparks.Addpartikel(chance, chance.below(60), 0, 0, 119, 89, chance.below(4) == 0);
            sparks.Altern();
            sparks.Bewegen();
            expectMarksHold(sparks);
        }
    }
}

TEST(Sparks, OffTheSurfaceOneKindAgesAndTheOtherStaysForGood) {
    Random chance(2);
    Funken ageing(Funkenart::gerundet, field);
    Funken lasting(Funkenart::abgeschnitten, field);
    for (Funken* const sparks : {&ageing, &lasting}) {
        sparks->Addpartikel(chance, 50, -20, 10, -10, 20, false);
        for (int i = 0; i < 50; ++i) {
            if (i > 0) sparks->Altern();
            // Straight up, so that none comes in.
            for (int k = 0; k <= sparks->PartikelMax(); ++k) (*sparks)[k].VX = 0;
            sparks->Bewegen();
        }
    }
    EXPECT_EQ(active(ageing), 0);
    EXPECT_EQ(active(lasting), 50);
}

// Half a pixel beyond the edge is off the surface for one kind, while the other cuts it to its last pixel.
TEST(Sparks, TheEdgesOfTheSurface) {
    const auto on = [](Funkenart kind, float x) {
        Funken sparks(kind, field);
        Partikel p;
        p.X = x;
        p.Y = 5;
        return sparks.AufFeld(p);
    };
    EXPECT_FALSE(on(Funkenart::gerundet, -0.5F));
    EXPECT_FALSE(on(Funkenart::abgeschnitten, -0.5F));
    EXPECT_TRUE(on(Funkenart::gerundet, 119));
    EXPECT_FALSE(on(Funkenart::gerundet, 119.5F));
    EXPECT_TRUE(on(Funkenart::abgeschnitten, 119.5F));
    EXPECT_FALSE(on(Funkenart::abgeschnitten, 120));
}

TEST(Sparks, OverlappingSparksGiveBackWhatWasThereBeforeAllOfThem) {
    test::FakeFonts fonts;
    for (const Funkenart kind : {Funkenart::gerundet, Funkenart::abgeschnitten}) {
        Surface surface(fonts, field, Colour(1, 2, 3));
        for (int i = 0; i < 200; ++i) surface.setPixel({i * 7 % 120, i * 13 % 90}, Colour(i, 2 * i % 256, 77));
        const Bitmap clean = surface.image();
        Random chance(9);
        Funken sparks(kind, field);
        Funkenbild view(surface);
        for (int i = 0; i < 120; ++i) {
            view.Entfernen();
            ASSERT_TRUE(surface.image() == clean) << i;
            sparks.Altern();
            if (i % 8 == 0) {
                sparks.Addpartikel(chance, 5, 0, 0, 30, 30, true);
                sparks.Addpartikel(chance, 80, 90, 60, 125, 95, false);
            }
            sparks.Bewegen();
            view.Zeichnen(sparks);
            ASSERT_TRUE(i % 8 != 0 || surface.image() != clean) << i;
        }
    }
}

}  // namespace
}  // namespace zentrox
