// What the real mixer makes of the game's sounds, by pitch and level.
#include <gtest/gtest.h>

#include "tests/media/make_media.h"
#include "tests/media/speaker.h"

namespace zentrox::test {
namespace {

constexpr double voicePitch = 440;
constexpr double effectPitch = 880;
constexpr double songPitch = 261.63;  // note 60
constexpr double otherPitch = 610;
constexpr double level = 0.25;

constexpr double audible = 0.02;
constexpr double silent = 0.003;

TEST(Sound, AVoiceAnEffectAndASongSoundAtOnce) {
    Speaker speaker;
    encodeTone(speaker.directory.path() / "voice.mp3", {.hertz = voicePitch, .seconds = 3, .level = level});
    speaker.directory.write("effect.wav", wavFile({.hertz = effectPitch, .seconds = 0.5, .level = level}));
    speaker.directory.write("song.mid", midiFile({.note = 60, .quarters = 16}));
    auto& device = *speaker.device;
    ASSERT_TRUE(device.init() && device.start());
    device.playSong("song.mid");
    wait(500);
    device.playVoice(device.openVoice("voice.mp3"));
    wait(500);
    device.playEffect("effect.wav");
    wait(1000);
    const auto heard = speaker.heard();

    const double end = static_cast<double>(heard.size()) / 44100;
    ASSERT_GT(end, 1.8);
    EXPECT_GT(loudness(heard, songPitch, end - 1.7, end - 1.5), audible);
    EXPECT_LT(loudness(heard, voicePitch, end - 1.7, end - 1.55), silent) << "the voice has not begun";
    EXPECT_NEAR(loudness(heard, voicePitch, end - 1.3, end - 1.1), level, 0.05);
    EXPECT_LT(loudness(heard, effectPitch, end - 1.3, end - 1.1), silent) << "the effect has not begun";
    const double all = end - 0.9;
    EXPECT_NEAR(loudness(heard, voicePitch, all, all + 0.3), level, 0.05);
    EXPECT_NEAR(loudness(heard, effectPitch, all, all + 0.3), level, 0.05);
    EXPECT_GT(loudness(heard, songPitch, all, all + 0.3), audible);
    EXPECT_LT(loudness(heard, otherPitch, all, all + 0.3), silent);
    const double after = end - 0.3;
    EXPECT_NEAR(loudness(heard, voicePitch, after, end), level, 0.05)
        << "the end of the effect leaves the voice alone";
    EXPECT_LT(loudness(heard, effectPitch, after, end), silent);
    EXPECT_GT(loudness(heard, songPitch, after, end), audible);
}

TEST(Sound, ANewVoiceOrEffectTakesThePlaceOfTheOneBefore) {
    Speaker speaker;
    speaker.directory.write("a.wav", wavFile({.hertz = voicePitch, .seconds = 3, .level = level, .bits = 8}));
    speaker.directory.write(
        "b.wav", wavFile({.hertz = effectPitch, .seconds = 3, .level = level, .rate = 11025, .channels = 1}));
    auto& device = *speaker.device;
    ASSERT_TRUE(device.init() && device.start());
    const auto first = device.openVoice("a.wav");
    device.playVoice(first);
    device.playEffect("b.wav");
    wait(300);
    const auto second = device.openVoice("b.wav");
    device.playVoice(second);
    device.playEffect("a.wav");
    device.freeVoice(first);  // the old handle means nothing any more
    wait(300);
    device.freeVoice(second);
    device.playEffect("missing.wav");
    wait(300);
    const auto heard = speaker.heard();

    const double end = static_cast<double>(heard.size()) / 44100;
    EXPECT_NEAR(loudness(heard, voicePitch, end - 0.5, end - 0.35), level, 0.05);
    EXPECT_NEAR(loudness(heard, effectPitch, end - 0.5, end - 0.35), level, 0.05);
    for (const double pitch : {voicePitch, effectPitch})
        EXPECT_LT(loudness(heard, pitch, end - 0.2, end), silent) << "all is cut off";
}

TEST(Sound, SongsOfEveryFormatTellTheirLengthAndComeToTheirEnd) {
    Speaker speaker;
    const auto& directory = speaker.directory;
    encodeTone(directory.path() / "a.mp3", {.seconds = 0.4});
    encodeTone(directory.path() / "b.ogg", {.seconds = 0.4});
    directory.write("c.wav", wavFile({.seconds = 0.4}));
    directory.write("d.mid", midiFile({.note = 69, .quarters = 2, .tempo = 200'000}));
    auto& device = *speaker.device;
    ASSERT_TRUE(device.init() && device.start());
    EXPECT_EQ(device.songLength(), 0);
    for (const char* song : {"a.mp3", "b.ogg", "c.wav", "d.mid"}) {
        device.playSong(song);
        EXPECT_NEAR(static_cast<double>(device.songLength()), 400, 80) << song;
        EXPECT_LT(device.songPosition(), 200) << song;
        for (int i = 0; i < 100 && device.songPosition() < device.songLength(); ++i) wait(20);
        EXPECT_EQ(device.songPosition(), device.songLength()) << song;
    }
    device.playSong("c.wav");
    device.stopSong();
    EXPECT_EQ(device.songLength(), 0);
    const auto heard = speaker.heard();
    EXPECT_GT(loudness(heard, 440, 0.1, 1.5), audible);
}

bool near(int grey, int picture) {
    return std::abs(grey - greyOf(picture)) <= 12;
}

TEST(Sound, AVideoPlaysInStepWithItsSound) {
    Speaker speaker;
    encodeClip(speaker.directory.path() / "film.mpg",
               {.width = 320, .height = 240, .seconds = 1, .hertz = voicePitch});
    auto& device = *speaker.device;
    ASSERT_TRUE(device.init() && device.start());
    ASSERT_TRUE(device.playVideo("film.mpg"));
    EXPECT_NEAR(static_cast<double>(device.videoLength()), 1000, 80);
    int pictures = 0;
    std::int64_t last = 0;
    for (int turns = 0; turns < 400 && device.videoPosition() < device.videoLength(); ++turns) {
        EXPECT_GE(device.videoPosition(), last);
        last = device.videoPosition();
        if (const Bitmap* picture = device.videoFrame()) {
            ++pictures;
            // The sound of this format begins a few milliseconds before the first picture.
            const int shown = static_cast<int>(last / 40);
            const int grey = picture->pixel({320, 240}) & 0xFF;
            EXPECT_TRUE(near(grey, shown - 1) || near(grey, shown) || near(grey, shown + 1)) << last;
        }
        wait(5);
    }
    EXPECT_EQ(device.videoPosition(), device.videoLength());
    EXPECT_GE(pictures, 20);
    device.stopVideo();
    EXPECT_EQ(device.videoLength(), 0);
    EXPECT_EQ(device.videoFrame(), nullptr);
    const auto heard = speaker.heard();
    EXPECT_NEAR(loudness(heard, voicePitch, 0.3, 0.7), level, 0.05);
}

TEST(Sound, WithoutADeviceTheStartFailsAndNoneAsksForNone) {
    const TempDirectory directory;
    encodeClip(directory.path() / "film.mpg", {.width = 320, .height = 240, .seconds = 0.2});
    {
        const Environment driver("SDL_AUDIODRIVER", "there-is-no-such-driver");
        const auto device = desktopSound(directory.path());
        EXPECT_FALSE(device->init());
        EXPECT_EQ(device->errorCode(), 3);
        EXPECT_EQ(device->openVoice("film.mpg"), 0U);
    }
    const Environment none("ZENTROX_SOUND", "none");
    const auto device = desktopSound(directory.path());
    EXPECT_TRUE(device->init() && device->start());
    EXPECT_EQ(device->openVoice("film.mpg"), 0U);
    ASSERT_TRUE(device->playVideo("film.mpg")) << "pictures are shown all the same";
    EXPECT_NE(device->videoFrame(), nullptr);
    for (int i = 0; i < 100 && device->videoPosition() < device->videoLength(); ++i) wait(20);
    EXPECT_EQ(device->videoPosition(), device->videoLength());
}

TEST(Sound, NamesHaveUmlautsBlanksAndAnyCase) {
    Speaker speaker;
    speaker.directory.write("Sounds/Größe A.WAV", wavFile({.seconds = 0.2}));
    speaker.directory.write("Sounds/http:x.wav", wavFile({.seconds = 0.2}));
    encodeTone(speaker.directory.path() / "Sounds" / "ÄRGER %d.ogg", {.seconds = 0.2});
    auto& device = *speaker.device;
    ASSERT_TRUE(device.init() && device.start());
    EXPECT_NE(device.openVoice("sounds\\größe a.wav"_t), 0U);
    EXPECT_NE(device.openVoice("sounds\\http:x.wav"), 0U);
    EXPECT_NE(device.openVoice("SOUNDS\\ärger %d.OGG"_t), 0U);
    EXPECT_EQ(device.openVoice("sounds\\grösse a.wav"_t), 0U);
    EXPECT_EQ(device.errorCode(), 2);
}

}  // namespace
}  // namespace zentrox::test
