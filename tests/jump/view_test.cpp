// What stands on the surface of Jump after any number of steps, against a slow drawing that works pixel by pixel.
#include <gtest/gtest.h>

#include <cmath>
#include <map>

#include "games/jump/jumpbild.h"
#include "tests/jump/pictures.h"
#include "tests/jump/player.h"
#include "tests/support/fake_fonts.h"

namespace zentrox {
namespace {

int near(float value) {
    return static_cast<int>(std::nearbyint(value));
}

// The clean view: which column of the background each column shows, and what the level puts before it.
class SlowView {
public:
    SlowView(const Bitmap& atlas, const Karte& level) : atlas_(atlas), level_(level) {
        for (int x = 0; x < Jumpfeld.w; ++x) columns_.push_back(x);
    }

    // A step of the view, column by column; `d` is at most a tile.
    void scroll(int d) {
        const int low = std::min(x_, x_ + d);
        const int high = std::max(x_, x_ + d);
        // A border of the level's columns strictly within the way breaks it in two.
        const int border = (high - 1) / Kachel * Kachel;
        if (border <= low) return piece(d);
        piece(d > 0 ? border - low : border - high);
        piece(d > 0 ? high - border : low - border);
    }

    void tile(Point at, int value) {
        for (int y = 0; y < Kachel; ++y)
            for (int x = 0; x < Kachel; ++x)
                stamp_[{at.x + x + x_, at.y + y}] = atlas_.pixel({Kachel * (value - 1) + x, 432 + y});
    }

    Bitmap picture() const {
        Bitmap out(Jumpfeld);
        for (int x = 0; x < Jumpfeld.w; ++x)
            for (int y = 0; y < Jumpfeld.h; ++y)
                out.setPixel({x, y}, Colour(static_cast<std::uint32_t>(pixel(x, y))));
        return out;
    }

    int x() const { return x_; }

private:
    void piece(int d) {
        for (int i = 0; i < std::abs(d); ++i) {
            if (d > 0) {
                columns_.erase(columns_.begin());
                columns_.push_back((x_ + d) % 624 + i);
            } else {
                columns_.pop_back();
                columns_.insert(columns_.begin() + i, (x_ + d) % 624 + i);
            }
        }
        x_ += d;
    }
    std::int32_t pixel(int x, int y) const {
        if (const auto stamped = stamp_.find({x + x_, y}); stamped != stamp_.end()) return stamped->second;
        const int value = level_.at((x + x_) / Kachel, y / Kachel);
        if (value == 0) return atlas_.pixel({columns_[static_cast<std::size_t>(x)], y});
        return atlas_.pixel({Kachel * (value - 1) + (x + x_) % Kachel, 432 + y % Kachel});
    }

    const Bitmap& atlas_;
    const Karte& level_;
    std::vector<int> columns_;
    std::map<std::pair<int, int>, std::int32_t> stamp_;  // by the level's pixels
    int x_ = 0;
};

class JumpPicture : public ::testing::Test {
protected:
    test::TempDirectory directory;
    test::FakeFonts fonts;
    Files files{directory.path()};
    Surface field{fonts, Jumpfeld};
    Random chance{4};
    Jumpspiel game;
    Jumpbild view{field, atlas()};

    void SetUp() override { view.Hintergrundaufbau(game); }
    Bitmap atlas() const {
        test::writeJumpPictures(directory);
        return Grafikladen(files, files.programDirectory() + "games\\");
    }

    // Mask and sprite of a figure, pixel by pixel.
    void put(Bitmap& onto, Point at, const Rect& sprite, int maskY) const {
        for (int y = 0; y < sprite.h; ++y)
            for (int x = 0; x < sprite.w; ++x) {
                const Point to{at.x + x, at.y + y};
                const std::int32_t below = onto.pixel(to);
                if (below < 0) continue;
                const std::int32_t mask = view.Atlas().pixel({sprite.x + x, maskY + y});
                const std::int32_t own = view.Atlas().pixel({sprite.x + x, sprite.y + y});
                onto.setPixel(to, Colour(static_cast<std::uint32_t>((below & mask) | own)));
            }
    }

    Bitmap slowFrame(const SlowView& slow) const {
        Bitmap out = slow.picture();
        const float scroll = game.Sicht.ScrollX;
        put(out, {near(game.SpielerX) - near(scroll), near(game.SpielerY)}, {48 * game.SpielerBild, 480, 48, 96},
            576);
        for (const Gegner& g : game.Gegner) {
            const GegnerTyp& t = g.Art();
            if (!g.Lebt || g.X + 48 <= scroll || g.X >= scroll + 624) continue;
            const int height = near(static_cast<float>(t.Hoehe) - g.Hub);
            put(out, {near(g.X) - near(scroll), near(g.Y)},
                {g.Bild * t.Breite + g.Blick, t.AtlasY, t.Breite, height}, t.AtlasY + t.Hoehe);
        }
        for (int i = 0; i < PartikelAnzahl; ++i) {
            const Partikel& p = game.Funken[i];
            if (p.Aktiv && p.X >= 0 && p.X <= 623 && p.Y >= 0 && p.Y <= 431)
                out.setPixel({near(p.X), near(p.Y)}, Colour(static_cast<std::uint32_t>(p.Farbe)));
        }
        return out;
    }
};

TEST_F(JumpPicture, AnyWalkOfTheViewLeavesWhatASlowDrawingLeaves) {
    SlowView slow(view.Atlas(), game.Karte);
    ASSERT_TRUE(field.image() == slow.picture());
    for (int i = 0; i < 3000; ++i) {
        // Long ways to both ends, in steps of any size up to a few pixels.
        const int way = i / 1200 % 2 == 0 ? 1 : -1;
        const int d = chance.below(5) == 0 ? chance.below(13) - 6 : way * chance.below(17);
        Scrollschritte steps;
        game.Sicht.Scroll(d, steps);
        for (const Scrollschritt& step : steps) view.Scrollen(game.Karte, step);
        const int moved = near(game.Sicht.ScrollX) - slow.x();
        if (moved != 0) slow.scroll(moved);
        if (i % 60 == 0) {
            ASSERT_TRUE(field.image() == slow.picture()) << "step " << i << " at " << slow.x();
        }
    }
}

// A whole game, won: each tick takes off what the last one put on, and puts on what a slow drawing would.
TEST_F(JumpPicture, EachTickOfAGameLeavesTheViewCleanAndDrawsAllFigures) {
    SlowView slow(view.Atlas(), game.Karte);
    auto keys = test::Player().plan();
    ASSERT_FALSE(keys.empty());
    keys.resize(keys.size() + 60, {key::space});
    int i = 0;
    for (const auto& k : keys) {
        view.Entfernen(game);
        if (i % 40 == 0) {
            ASSERT_TRUE(field.image() == slow.picture()) << "tick " << i;
        }
        const Jumptick tick = game.Tick(test::pressed(k), chance);
        view.Zeichnen(game, tick);
        for (const Scrollschritt& step : tick.Schritte) slow.scroll(step.d);
        if (tick.Zielbild) slow.tile(*tick.Zielbild, 9);
        if (i++ % 40 == 0) {
            ASSERT_TRUE(field.image() == slowFrame(slow)) << "tick " << i;
        }
    }
    EXPECT_GT(game.SiegZaehler, 50);
}

// All figures in one heap, and the figure of the player half off the surface on each side.
TEST_F(JumpPicture, OverlappingFiguresAndEdgesLeaveNoTrace) {
    const Bitmap clean = field.image();
    for (int i = 0; i < 200; ++i) {
        for (Gegner& g : game.Gegner) {
            g.Lebt = true;
            // Two that share a cell never meet in play.
            if (&g == &game.Gegner[9] || &g == &game.Gegner[10]) g.Lebt = false;
            g.X = static_cast<float>(chance.below(720) - 48);
            g.Y = static_cast<float>(chance.below(480) - 48);
            g.Sichtbar = g.Lebt && g.X + 48 > 0 && g.X < 624;
            g.Hub = static_cast<float>(g.Typ == 1 ? chance.below(95) : 0);
        }
        game.ErsterTick = false;
        game.SpielerX = static_cast<float>(chance.below(640));
        game.SpielerY = static_cast<float>(chance.below(640) - 100);
        game.Funken.Addpartikel(chance, 40, -10, -10, 640, 440, false);
        view.Zeichnen(game, {});
        SlowView slow(view.Atlas(), game.Karte);
        if (i % 10 == 0) {
            ASSERT_TRUE(field.image() == slowFrame(slow)) << i;
        }
        view.Entfernen(game);
        game.Funken.Altern();
        ASSERT_TRUE(field.image() == clean) << i;
    }
}

TEST_F(JumpPicture, PicturesOfOtherSizesAreClipped) {
    test::writeNoise(directory, "j0", 100, 50, 1);
    test::writeNoise(directory, "h1", 700, 3000, 2);
    test::writeNoise(directory, "g41md", 1, 1, 3);
    Jumpbild odd(field, Grafikladen(files, files.programDirectory() + "games\\"));
    EXPECT_EQ(odd.Atlas().size(), (Size{640, 2000}));
    odd.Hintergrundaufbau(game);
    for (int i = 0; i < 100; ++i) {
        odd.Entfernen(game);
        odd.Zeichnen(game, game.Tick(test::pressed({key::right}), chance));
    }
    odd.Entfernen(game);
    EXPECT_EQ(field.pixel({300, 20}), 0) << "where the background does not reach, the view is black";
}

}  // namespace
}  // namespace zentrox
