// The window: its choice by clicks, one fight by the clock, closing at every moment, missing pictures.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "games/fight/fight.h"
#include "games/fight/pruegel.h"
#include "platform/values/error.h"
#include "tests/support/bitmap_file.h"
#include "tests/support/stage.h"

namespace zentrox::test {
namespace {

const std::vector<std::string> fightPictures{
    "Kampf0",    "Kampf10",   "Kampf11",   "Kampf20",   "Kampf21",  "Kampf30",   "Kampf31",   "KampfT",
    "Kampf40",   "Kampf41",   "Kampf50",   "Kampf51",   "Kampf600", "Kampf601",  "Kampf61",   "KampfH",
    "KampfSS0",  "KampfSS1",  "KampfSS2",  "KampfSS3",  "KampfSS4", "KampfSS5",  "KampfSS6",  "KampfSS7",
    "KampfSS8",  "KampfSS9",  "KampfSS10", "KampfJS0",  "KampfJS1", "KampfJS20", "KampfJS21", "KampfJS30",
    "KampfJS31", "KampfJS32", "KampfJS33", "KampfJS34", "Kampfs0",  "Kampfs1",   "KampfG",    "KampfV"};

constexpr Point button{550, 436};

Point icon(int i) {
    return {40, i == 4 ? 400 : 50 + 80 * i};
}

struct Fight : Stage {
    Zustand z;
    Medien media{platform, z};

    explicit Fight(TextView parameter = "", std::uint64_t seed = 1) {
        z.PfadGames = platform.files.programDirectory() + "games\\";
        z.Übergabe = Text(parameter);
        directory.write("games/Ken_g.mid", "a song");
        platform.random.reseed(seed);
        for (int i = 1; i <= 5; ++i)
            directory.write("games/prügels" + std::to_string(i) + ".bmp",
                            plainBitmapFile(65, 65, 0x100000U * static_cast<unsigned>(i)));
        for (int i = 1; i <= 3; ++i)
            directory.write("games/prügelb" + std::to_string(i) + ".bmp",
                            plainBitmapFile(65, 65, 0x1000U * static_cast<unsigned>(i)));
        const std::string grey = plainBitmapFile(4, 4, 0x808080);
        for (const std::string& name : fightPictures) directory.write("games/" + name + ".jpg", grey);
    }
    Window& window() { return *platform.queue.active(); }
    std::int32_t pixel(Point at) { return window().compose().pixel(at); }
    void choose(std::initializer_list<int> icons) {
        for (const int i : icons) backend.click(icon(i));
    }
    void start() {
        choose({0, 1, 2, 0, 1, 2, 0, 1, 2, 0, 1, 2});
        backend.click(button);
    }
    void show() { PrügelZeigen(platform, z, media); }
};

TEST(FightWindow, ShowsTheChoiceAsItGrowsAndShrinks) {
    Fight fight(" ZauberTrank ");
    constexpr Point firstAttack{140, 110};
    constexpr Point firstDefence{140, 320};
    fight.backend.then([&] {
        EXPECT_EQ(fight.z.Übergabe, Übergabewert(false)) << "at once";
        EXPECT_TRUE(fight.window().shows("Wähle deine Technik"_t));
        EXPECT_EQ(fight.pixel(icon(3)), 0x400000) << "the potion";
        EXPECT_NE(fight.pixel(firstAttack), 0x400000);
    });
    fight.choose({3});
    fight.backend.then([&] {
        EXPECT_EQ(fight.pixel(firstAttack), 0x400000);
        EXPECT_NE(fight.pixel(icon(3)), 0x400000);
    });
    fight.choose({4});
    fight.backend.then([&] {
        EXPECT_NE(fight.pixel(firstAttack), 0x400000);
        EXPECT_EQ(fight.pixel(icon(3)), 0x400000);
    });
    fight.choose({2, 0, 0, 0, 0, 1});
    fight.backend.then([&] {
        EXPECT_EQ(fight.pixel(firstAttack), 0x300000);
        EXPECT_EQ(fight.pixel(icon(0)), 0x1000) << "the defences";
        EXPECT_NE(fight.pixel(icon(3)), 0x400000);
        EXPECT_EQ(fight.pixel(icon(4)), 0x500000) << "undo stays";
    });
    fight.choose({1, 0, 0, 0, 0});
    fight.backend.then([&] {
        EXPECT_EQ(fight.pixel(firstDefence), 0x2000);
        EXPECT_FALSE(fight.window().shows("Let's fight!"));
    });
    fight.choose({0});
    fight.backend.then([&] { EXPECT_TRUE(fight.window().shows("Let's fight!")); });
    fight.choose({4, 4, 4, 4, 4, 4, 4});
    fight.backend.then([&] {
        EXPECT_FALSE(fight.window().shows("Let's fight!"));
        EXPECT_NE(fight.pixel(firstDefence), 0x2000);
        EXPECT_EQ(fight.pixel(icon(0)), 0x100000) << "the attacks again";
        EXPECT_EQ(fight.pixel(icon(3)), 0x400000);
    });
    fight.backend.closeBox();
    fight.show();
}

TEST(FightWindow, HidesThePotionFromWhoHasNone) {
    for (const TextView parameter : {""_t, "TRANK"_t, "1"_t}) {
        Fight fight(parameter);
        fight.backend.then([&] { EXPECT_NE(fight.pixel(icon(3)), 0x400000) << parameter; });
        fight.choose({3});
        fight.backend.then([&] { EXPECT_NE(fight.pixel({140, 110}), 0x400000); });
        fight.backend.closeBox();
        fight.show();
    }
}

constexpr Milliseconds ringsTake = 41 * Milliseconds{15};
constexpr Milliseconds beamTakes = 34 * Milliseconds{10};
constexpr Milliseconds flickerTakes = 10 * Milliseconds{100};

// The whole course of a fight by the rules, in milliseconds from the click on.
Milliseconds length(std::uint64_t seed, bool& won) {
    Random random(seed);
    Kampf kampf{.Angriff = {0, 1, 2, 0, 1, 2}, .Abwehr = {0, 1, 2, 0, 1, 2}};
    Milliseconds all = 0;
    for (Folge piece = kampf.Weiter(random); !piece.empty(); piece = kampf.Weiter(random))
        for (const Schritt& step : piece) switch (step.art) {
                case Schritt::Art::warten: all += step.zahl; break;
                case Schritt::Art::energie: {
                    Energie& energy = step.wer == Kämpfer::Velmix ? kampf.EnergieS : kampf.EnergieJ;
                    while (energy.Nachzählen()) all += 20;
                    break;
                }
                case Schritt::Art::ringe: all += ringsTake; break;
                case Schritt::Art::strahl: all += beamTakes; break;
                case Schritt::Art::flackern: all += flickerTakes; break;
                default: break;
            }
    won = kampf.Gewonnen;
    return all;
}

TEST(FightWindow, PlaysByTheClockToItsEnd) {
    std::array<int, 2> ends{};
    for (std::uint64_t seed = 1; seed <= 12; ++seed) {
        bool won = false;
        const Milliseconds wanted = length(seed, won);
        ++ends[won ? 1 : 0];
        Fight fight("", seed);
        fight.start();
        fight.show();
        EXPECT_EQ(fight.z.Übergabe, Übergabewert(won)) << seed;
        EXPECT_NEAR(static_cast<double>(fight.backend.now), static_cast<double>(wanted), 20) << seed;
        EXPECT_TRUE(fight.platform.queue.windows().empty());
        EXPECT_TRUE(fight.sound.song.empty());
    }
    EXPECT_GT(ends[0], 0);
    EXPECT_GT(ends[1], 0);
}

TEST(FightWindow, BeginsWithItsLabelsCountingUp) {
    Fight fight;
    fight.start();
    fight.backend.then([&] {
        EXPECT_EQ(fight.window().pointer().mode, Pointer::Mode::arrow) << "still below the picture";
        fight.window().routing().move({300, 200}, Button::none);
        EXPECT_EQ(fight.window().pointer().mode, Pointer::Mode::invisible);
        fight.window().routing().move({300, 430}, Button::none);
        EXPECT_EQ(fight.window().pointer().mode, Pointer::Mode::arrow);
        EXPECT_EQ(fight.sound.song, fight.z.PfadGames + "Ken_g.mid");
    });
    fight.backend.schedule(
        10, [&] { EXPECT_TRUE(fight.window().shows("Velmar 1322") && fight.window().shows("Brokan")); });
    fight.backend.schedule(20 * 34 + 10, [&] { EXPECT_TRUE(fight.window().shows("Velmar 1467")); });
    fight.backend.schedule(20 * 68 + 30, [&] {
        EXPECT_TRUE(fight.window().shows("2434 Brokan"));
        EXPECT_TRUE(fight.window().shows("Get Ready!"));
    });
    fight.backend.schedule(20 * 68 + 2100, [&] {
        EXPECT_FALSE(fight.window().shows("Get Ready!"));
        EXPECT_TRUE(fight.window().shows("Fight!"));
    });
    fight.backend.closeBox();
    fight.show();
}

TEST(FightWindow, ClosesAtEveryWait) {
    bool won = false;
    Fight fight;
    for (const std::uint64_t seed : {1U, 2U}) {
        const Milliseconds end = length(seed, won);
        for (Milliseconds when = 0; when < end; when += 300) {
            fight.platform.random.reseed(seed);
            const Milliseconds begin = fight.backend.now;
            fight.start();
            fight.backend.wait(when);
            fight.backend.closeBox();
            fight.show();
            EXPECT_EQ(fight.z.Übergabe, Übergabewert(false)) << when;
            EXPECT_TRUE(fight.sound.song.empty());
            EXPECT_EQ(fight.backend.now, begin + when) << "nobody waits for a window that is gone";
        }
    }
}

TEST(FightWindow, LetsTheEndOfTheProgramPass) {
    Fight fight;
    fight.start();
    fight.backend.wait(5000);
    fight.backend.then([] { Queue::endProgram(); });
    EXPECT_THROW(fight.show(), ProgramEnd);
}

// The song of the room plays on until the fight begins its own.
TEST(FightWindow, NamesThePictureThatCannotBeUsedAndIsLost) {
    for (const TextView name : {"prügels1.bmp"_t, "prügels5.bmp"_t, "prügelb3.bmp"_t, "Kampfs1.jpg"_t})
        for (const bool damaged : {false, true}) {
            Fight fight;
            const std::string file = "games/" + toUtf8(name);
            damaged ? void(fight.directory.write(file, "BM and no more"))
                    : void(std::filesystem::remove(fight.directory.path() / file));
            fight.directory.write("musics/raum.mid", "a song");
            fight.media.SongStart(fight.platform.files.programDirectory() + "musics\\raum.mid");
            const bool fights = name.starts_with("Kampf");
            if (fights) fight.start();
            fight.backend.wait(5000);
            fight.backend.then([&] { EXPECT_EQ(fight.sound.song.ends_with("raum.mid"), !fights) << name; });
            fight.backend.key(key::enter);
            fight.show();
            ASSERT_EQ(fight.backend.boxes.size(), 1U) << name;
            EXPECT_NE(fight.backend.boxes[0].text.find(name), Text::npos) << fight.backend.boxes[0].text;
            EXPECT_EQ(fight.z.Übergabe, Übergabewert(false));
            EXPECT_EQ(fight.sound.song.empty(), fights) << name;
            EXPECT_TRUE(fight.platform.queue.windows().empty());
        }
}

// --- the drawing over the picture

TEST(FightPicture, FillsABallThenABeamToTheEdge) {
    FakeFonts fonts;
    Surface surface(fonts, {641, 425});
    Kampfbild picture(surface);
    for (int n = 0; n < Ringe; ++n) picture.Ring(n);
    for (int y = -25; y <= 25; ++y)
        for (int x = -25; x <= 25; ++x) {
            const double far = std::hypot(x, y);
            if (far > 20 && far <= 21) continue;
            EXPECT_EQ(surface.pixel(Point{340, 130} + Point{x, y}), far <= 20 ? 0xFFFFFF : 0) << x << "," << y;
        }
    picture.Strahl(1);
    EXPECT_EQ(surface.pixel({330, 110}), 0xFFFFFF);
    EXPECT_EQ(surface.pixel({318, 130}), 0);
    picture.Strahl(34);
    for (const int y : {110, 150}) EXPECT_EQ(surface.pixel({0, y}), 0xFFFFFF);
    for (const int y : {109, 151}) EXPECT_EQ(surface.pixel({0, y}), 0);
    const Bitmap before = surface.image();
    picture.Umkehren();
    EXPECT_EQ(surface.pixel({0, 0}), 0xFFFFFF);
    EXPECT_EQ(surface.pixel({640, 424}), 0xFFFFFF);
    EXPECT_EQ(surface.pixel({0, 130}), 0);
    picture.Umkehren();
    EXPECT_EQ(surface.image(), before);
}

TEST(FightPicture, PrintsItsTextInTheMiddleWithAShadow) {
    FakeFonts fonts;
    Surface surface(fonts, {641, 425});
    Kampfbild picture(surface);
    picture.PrintText("Guard", Kämpfer::Brokan);
    // Five blocks of 6 by 13, the letter's ink from line 2 on: 320 - 15, 212 - 6.
    EXPECT_EQ(surface.pixel({305, 208}), 0x0000FF);
    EXPECT_EQ(surface.pixel({304, 208}), 0);
    EXPECT_EQ(surface.pixel({338, 220}), 0x000080);
}

}  // namespace
}  // namespace zentrox::test
