#include <gtest/gtest.h>

#include "platform/codec/pictures.h"
#include "platform/values/error.h"
#include "room/abspann.h"
#include "tests/support/stage.h"

namespace zentrox::test {
namespace {

const std::array<std::pair<const char*, Point>, 10> places{{{"Titel.jpg", {0, 350}},
                                                            {"2.jpg", {470, 100}},
                                                            {"k1.jpg", {530, 2}},
                                                            {"k2.jpg", {560, 30}},
                                                            {"k3.jpg", {520, 60}},
                                                            {"k4.jpg", {570, 90}},
                                                            {"k5.jpg", {525, 120}},
                                                            {"k6.jpg", {580, 150}},
                                                            {"k7.jpg", {550, 180}},
                                                            {"Begeisterung.jpg", {338, 295}}}};

// The colours of picture n: no two of its pixels next to each other are the same.
Colour colourOf(std::size_t n, Point p) {
    return Colour(40 + 20 * static_cast<int>(n), 9 * p.x, 9 * p.y + 7);
}

struct CreditsPlay : Stage {
    Zustand z;
    Medien media{platform, z};
    Surface Picture1{fonts, Size{640, 480}};
    Surface Picture5{fonts, Size{73, 57}};
    Timer RM{platform.queue, 500, false, [this] { media.SongPrüfen(); }};

    CreditsPlay() {
        z.PfadGraphics = platform.files.programDirectory() + "graphics\\";
        z.PfadMusics = platform.files.programDirectory() + "musics\\";
        directory.write("musics/gmnutrac.mid", "");
        for (std::size_t n = 0; n < places.size(); ++n) picture(n, {20, 16});
        Picture1.font.points = 13;
    }
    void picture(std::size_t n, Size size) {
        Bitmap bitmap(size);
        for (int y = 0; y < size.h; ++y)
            for (int x = 0; x < size.w; ++x) bitmap.setPixel({x, y}, colourOf(n, {x, y}));
        savePng(bitmap, directory.write(std::string("graphics/") + places[n].first, "").string());
    }
    void run() { AbspannZeigen(platform, z, media, Picture1, Picture5, RM); }
    // How many pixels of picture n stand at its place.
    int standing(std::size_t n, Size size = {20, 16}) {
        int count = 0;
        for (int y = 0; y < size.h; ++y)
            for (int x = 0; x < size.w; ++x)
                if (Picture1.pixel(places[n].second + Point{x, y}) == static_cast<int>(colourOf(n, {x, y}).rgb))
                    ++count;
        return count;
    }
};

TEST(Credits, MarksAndPicturesGoTogetherOneToOne) {
    const auto pages = AbspannTexte(0);
    std::array<std::ptrdiff_t, 4> marks{};
    for (std::size_t i = 0; i < pages.size(); ++i) {
        marks[i] = std::count(pages[i].begin(), pages[i].end(), '#');
        EXPECT_TRUE(pages[i].starts_with("  "));
        EXPECT_TRUE(pages[i].ends_with("  |")) << "the last letters need two blanks to turn white";
        for (std::size_t end = pages[i].find('|'); end != Text::npos; end = pages[i].find('|', end + 1))
            EXPECT_TRUE(pages[i].substr(0, end).ends_with(" ") || pages[i][end - 1] == '|') << end;
    }
    EXPECT_EQ(marks, (std::array<std::ptrdiff_t, 4>{2, 0, 7, 1}));
    EXPECT_EQ(pages[0][2], '#') << "the first picture starts at once";
    EXPECT_TRUE(
        AbspannTexte(12)[1].starts_with("  Du hast 12 Bosheits-Punkte gesammelt! Nicht schlecht! Hätte ich   |"_t));
}

TEST(Credits, APictureDissolvesInFiftyOnePixelsATick) {
    CreditsPlay play;
    std::vector<int> counts;
    // The first step of the typewriter comes with the fifth tick, and the first pixels with it.
    for (const Milliseconds at : {70, 90, 106, 122, 186})
        play.backend.schedule(at, [&] { counts.push_back(play.standing(0)); });
    play.backend.schedule(200, [] { Queue::endProgram(); });
    EXPECT_THROW(play.run(), ProgramEnd);
    ASSERT_EQ(counts.size(), 5U);
    EXPECT_EQ(counts[0] % 51, 0);
    EXPECT_EQ(counts[2], counts[1] + 51);
    EXPECT_EQ(counts[3], counts[2] + 51);
    EXPECT_EQ(counts[4], 20 * 16) << "whole, and no more drawn than it has";
}

TEST(Credits, RunToTheirEndAndLeaveTheRoomAsItWas) {
    CreditsPlay play;
    play.picture(9, {1, 1});
    int last = 0;
    std::size_t letters = 0;
    for (const Text& page : AbspannTexte(0)) letters += page.size() + 20 + 25;
    // A mark takes one step for three characters, and the two blanks in front of a page take none.
    const auto steps = static_cast<Milliseconds>(letters - 2 * 10 - 2 * 4);
    play.backend.schedule(steps * 80 - 1000, [&] { last = play.standing(9, {1, 1}); });
    play.run();
    EXPECT_EQ(last, 1) << "a picture of one pixel";
    EXPECT_NEAR(static_cast<double>(play.backend.now), static_cast<double>(steps * 80), 100);
    EXPECT_EQ(play.sound.notes.front(), "song " + play.z.PfadMusics + "GMNUTRAC.MID");
    EXPECT_EQ(play.sound.notes.back(), "song off");
    EXPECT_FALSE(play.RM.enabled());
    EXPECT_EQ(play.Picture1.font, (FontSpec{"MS Sans Serif", 13, false}));
    EXPECT_EQ(play.standing(2), 0) << "the last page has wiped what the third one showed";
}

TEST(Credits, AMissingPictureIsNamedAndLeftOut) {
    CreditsPlay play;
    std::filesystem::remove(play.directory.path() / "graphics/Titel.jpg");
    play.backend.wait(2000);
    play.backend.key(key::enter);
    play.run();
    ASSERT_EQ(play.backend.boxes.size(), 1U);
    EXPECT_NE(play.backend.boxes[0].text.find("Titel.jpg"), Text::npos);
}

}  // namespace
}  // namespace zentrox::test
