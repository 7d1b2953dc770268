// The game's own operations, by what a machine without sound writes down.
#include "media/medien.h"

#include <gtest/gtest.h>

#include "platform/probe/recorder.h"
#include "tests/media/make_media.h"
#include "tests/support/fake_backend.h"
#include "tests/support/fake_fonts.h"
#include "tests/support/temp_directory.h"

namespace zentrox::test {
namespace {

class MedienTest : public testing::Test {
protected:
    MedienTest() {
        directory.write("lied.mid", midiFile({.quarters = 4}));  // 2000 ms
        directory.write("wort.wav", wavFile({.seconds = 1.25}));
        directory.write("knall.wav", wavFile({.seconds = 0.25}));
        medien.Start();
    }
    void pass(Milliseconds time) {
        backend.now += time;
        recorder.settle();
    }
    // All lines since the last call.
    std::vector<std::string> news() { return std::exchange(lines, {}); }
    using Lines = std::vector<std::string>;

    TempDirectory directory;
    FakeBackend backend;
    FakeFonts fonts;
    Lines lines;
    Recorder recorder{
        directory.path(), [this] { return backend.now; },
        [this](Milliseconds at, const Text& line) { lines.push_back(std::to_string(at) + " " + line); }};
    Platform platform{backend, fonts, recorder, directory.path()};
    Zustand z;
    Medien medien{platform, z};
};

TEST_F(MedienTest, AVoiceEndsByItselfOrIsCutOff) {
    medien.TonStart("wort.wav");
    EXPECT_NE(z.Stimme, 0U);
    pass(2000);
    EXPECT_EQ(news(), (Lines{"0 voice wort.wav", "1250 voice off"}));
    medien.StimmeFrei();
    EXPECT_EQ(news(), Lines{}) << "it has ended";

    medien.TonStart("wort.wav");
    pass(100);
    medien.TonStart("knall.wav");
    medien.SpieleWav("knall.wav");
    medien.StimmeFrei();
    medien.StimmeFrei();
    EXPECT_EQ(news(), (Lines{"2000 voice wort.wav", "2100 voice off", "2100 voice knall.wav",
                             "2100 effect knall.wav", "2100 voice off"}));

    medien.TonStart("fehlt.wav");
    EXPECT_EQ(z.Stimme, 0U);
    EXPECT_EQ(BassFehlerText(medien.FehlerCode()), "Can't Open the File");
    EXPECT_EQ(news(), Lines{});
}

TEST_F(MedienTest, ASongIsStartedAgainByTheCheckOnceItHasEnded) {
    medien.SongStart("lied.mid");
    pass(1999);
    medien.SongPrüfen();
    EXPECT_EQ(news(), Lines{"0 song lied.mid"}) << "not before";
    pass(501);
    EXPECT_EQ(recorder.song(), "");
    medien.SongPrüfen();
    EXPECT_EQ(news(), (Lines{"2000 song off", "2500 song lied.mid"}));
    EXPECT_EQ(recorder.song(), "lied.mid");
    medien.SongStart("fehlt.mid");
    EXPECT_EQ(news(), Lines{"2500 song off"}) << "a missing song stops the old one";
    EXPECT_EQ(z.AktuellerSong, "fehlt.mid");
    medien.SongPrüfen();
    medien.SongStop();
    medien.SongStop();
    EXPECT_EQ(news(), Lines{});
}

TEST_F(MedienTest, AVideoLastsItsLengthAndTheEndStopsAll) {
    encodeClip(directory.path() / "film.mpg", {.width = 160, .height = 120, .seconds = 1});
    medien.VideoStart("film.mpg");
    EXPECT_NEAR(static_cast<double>(medien.VideoLänge()), 1000, 80);
    ASSERT_NE(medien.VideoBild(), nullptr);
    EXPECT_EQ(medien.VideoBild(), nullptr) << "the same picture";
    pass(500);
    EXPECT_EQ(medien.VideoPosition(), 500);
    EXPECT_NE(medien.VideoBild(), nullptr);
    pass(2000);
    EXPECT_EQ(medien.VideoPosition(), medien.VideoLänge());
    const auto end = std::to_string(medien.VideoLänge());
    medien.VideoStop();
    EXPECT_EQ(news(), (Lines{"0 video film.mpg", end + " video off"}));
    EXPECT_EQ(medien.VideoLänge(), 0);

    medien.VideoStart("fehlt.mpg");
    EXPECT_EQ(medien.VideoPosition(), medien.VideoLänge()) << "passed over";
    medien.VideoStart("film.mpg");
    medien.VideoStart("");
    medien.TonStart("wort.wav");
    medien.SongStart("lied.mid");
    medien.Ende();
    medien.SongStop();
    medien.VideoStop();
    medien.TonStart("wort.wav");
    EXPECT_EQ(news(), (Lines{"2500 video film.mpg", "2500 video off", "2500 voice wort.wav", "2500 song lied.mid",
                             "2500 voice off", "2500 song off"}));
    EXPECT_EQ(BassFehlerText(medien.FehlerCode()), "BASS_Init Has Not Been Successfully Called");
    EXPECT_EQ(BassFehlerText(28), "") << "not in the table";
}

}  // namespace
}  // namespace zentrox::test
