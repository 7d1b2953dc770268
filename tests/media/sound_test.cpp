// What the real mixer makes of the game's sounds, by pitch and level.
#include <gtest/gtest.h>

#include "platform/codec/soundfont.h"
#include "platform/codec/synthesiser.h"
#include "tests/media/make_media.h"
#include "tests/media/speaker.h"

namespace zentrox::test {
namespace {

constexpr double voicePitch = 440;
constexpr double secondVoicePitch = 610;
constexpr double effectPitch = 880;
constexpr double secondEffectPitch = 1230;
constexpr double songPitch = 261.63;  // note 60
constexpr double level = 0.25;

struct Pitch {
    char letter;
    double hertz;
    double quiet;  // below it the pitch is absent
    double loud;   // above it the pitch is there as loud as it should be
};

// Goes through what was heard in steps of a tenth of a second and tells each change as the letters that sound
// together. Steps in which something begins or ends are left out.
std::vector<std::string> course(const std::vector<double>& heard, const std::vector<Pitch>& pitches) {
    constexpr double step = 0.1;
    std::vector<std::string> changes;
    for (double from = 0; from + step <= static_cast<double>(heard.size()) / 44100; from += step) {
        std::string letters;
        bool clear = true;
        for (const auto& pitch : pitches) {
            const double loud = loudness(heard, pitch.hertz, from, from + step);
            clear = clear && (loud < pitch.quiet || loud > pitch.loud);
            if (loud > pitch.loud) letters += pitch.letter;
        }
        if (clear && (changes.empty() ? !letters.empty() : changes.back() != letters)) changes.push_back(letters);
    }
    return changes;
}

using Course = std::vector<std::string>;

TEST(Sound, AVoiceAnEffectAndASongSoundAtOnce) {
    PulledSpeaker speaker;
    encodeTone(speaker.directory.path() / "voice.mp3", {.hertz = voicePitch, .seconds = 6, .level = level});
    speaker.directory.write("effect.wav", wavFile({.hertz = effectPitch, .seconds = 0.5, .level = level}));
    speaker.directory.write("song.mid", midiFile({.note = 60, .quarters = 32}));
    auto& device = *speaker.device;
    ASSERT_TRUE(device.init() && device.start());
    device.playSong("song.mid");
    speaker.play(400);
    device.playVoice(device.openVoice("voice.mp3"));
    speaker.play(400);
    device.playEffect("effect.wav");
    speaker.play(1000);
    const std::vector<Pitch> pitches{
        {'s', songPitch, 0.01, 0.02}, {'v', voicePitch, 0.02, 0.8 * level}, {'e', effectPitch, 0.02, 0.8 * level}};
    EXPECT_EQ(course(speaker.heard, pitches), (Course{"s", "sv", "sve", "sv"}));
}

TEST(Sound, ANewVoiceOrEffectTakesThePlaceOfTheOneBefore) {
    PulledSpeaker speaker;
    const auto& directory = speaker.directory;
    const auto long8Bit = [](double hertz) {
        return wavFile({.hertz = hertz, .seconds = 5, .level = level, .rate = 22050, .channels = 1, .bits = 8});
    };
    const auto long16Bit = [](double hertz) { return wavFile({.hertz = hertz, .seconds = 5, .level = level}); };
    directory.write("a.wav", long8Bit(voicePitch));
    directory.write("b.wav", long16Bit(secondVoicePitch));
    directory.write("c.wav", long16Bit(effectPitch));
    directory.write("d.wav", long8Bit(secondEffectPitch));
    auto& device = *speaker.device;
    ASSERT_TRUE(device.init() && device.start());
    const auto first = device.openVoice("a.wav");
    device.playVoice(first);
    speaker.play(300);
    device.playEffect("c.wav");
    speaker.play(300);
    const auto second = device.openVoice("b.wav");
    device.playVoice(second);
    device.freeVoice(first);  // the old handle means nothing any more
    speaker.play(300);
    device.playEffect("d.wav");
    speaker.play(300);
    device.freeVoice(second);
    speaker.play(300);
    device.playEffect("missing.wav");
    speaker.play(300);
    const std::vector<Pitch> pitches{{'a', voicePitch, 0.02, 0.8 * level},
                                     {'b', secondVoicePitch, 0.02, 0.8 * level},
                                     {'c', effectPitch, 0.02, 0.8 * level},
                                     {'d', secondEffectPitch, 0.02, 0.8 * level}};
    EXPECT_EQ(course(speaker.heard, pitches), (Course{"a", "ac", "bc", "bd", "d", ""}));
}

TEST(Sound, SongsOfEveryFormatTellTheirLengthAndComeToTheirEnd) {
    PulledSpeaker speaker;
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
        for (int i = 0; i < 100 && device.songPosition() < device.songLength(); ++i) speaker.play(20);
        EXPECT_EQ(device.songPosition(), device.songLength()) << song;
    }
    device.playSong("c.wav");
    device.stopSong();
    EXPECT_EQ(device.songLength(), 0);
    EXPECT_GT(loudness(speaker.heard, 440, 0.1, 1.5), 0.02);
}

bool near(int grey, int picture) {
    return std::abs(grey - greyOf(picture)) <= 12;
}

TEST(Sound, AVideoPlaysInStepWithItsSound) {
    PulledSpeaker speaker;
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
        speaker.play(5);
    }
    EXPECT_EQ(device.videoPosition(), device.videoLength());
    EXPECT_GE(pictures, 20);
    device.stopVideo();
    speaker.play(300);
    EXPECT_EQ(device.videoLength(), 0);
    EXPECT_EQ(device.videoFrame(), nullptr);
    EXPECT_EQ(course(speaker.heard, {{'v', voicePitch, 0.02, 0.8 * level}}), (Course{"v", ""}));
}

TEST(Sound, WithoutADeviceTheStartFailsAndNoneAsksForNone) {
    const TempDirectory directory;
    encodeClip(directory.path() / "film.mpg", {.width = 320, .height = 240, .seconds = 0.2});
    {
        const Environment driver("SDL_AUDIODRIVER", "there-is-no-such-driver");
        const auto device = desktopSound(directory.path());
        EXPECT_FALSE(device->init());
        EXPECT_EQ(device->error(), SoundError::noDriver);
        EXPECT_EQ(device->openVoice("film.mpg"), 0U);
        EXPECT_EQ(device->error(), SoundError::notInitialised);
    }
    {
        const Environment none("ZENTROX_SOUND", "none");
        const auto device = desktopSound(directory.path());
        EXPECT_TRUE(device->init() && device->start());
        EXPECT_EQ(device->openVoice("film.mpg"), 0U);
    }
    std::int64_t now = 1000;
    const auto device = soundPlayer(directory.path(), nullptr, [&] { return now; });
    ASSERT_TRUE(device->playVideo("film.mpg")) << "pictures are shown all the same";
    EXPECT_NE(device->videoFrame(), nullptr);
    now += 100;
    EXPECT_EQ(device->videoPosition(), 100);
    now += 400;
    EXPECT_EQ(device->videoPosition(), device->videoLength());
}

TEST(Sound, TheMachinesDevicePlaysWhatIsMixed) {
    Speaker speaker;
    speaker.directory.write("a.wav", wavFile({.hertz = effectPitch, .seconds = 5, .level = level}));
    auto& device = *speaker.device;
    ASSERT_TRUE(device.init() && device.start());
    device.playVoice(device.openVoice("a.wav"));
    wait(200);
    EXPECT_EQ(course(speaker.heard(), {{'a', effectPitch, 0.02, 0.8 * level}}), (Course{"a"}));
}

TEST(Sound, NamesHaveUmlautsBlanksAndAnyCase) {
    PulledSpeaker speaker;
    speaker.directory.write("Sounds/Größe A.WAV", wavFile({.seconds = 0.2}));
    speaker.directory.write("Sounds/http:x.wav", wavFile({.seconds = 0.2}));
    encodeTone(speaker.directory.path() / "Sounds" / "ÄRGER %d.ogg", {.seconds = 0.2});
    auto& device = *speaker.device;
    ASSERT_TRUE(device.init() && device.start());
    EXPECT_NE(device.openVoice("sounds\\größe a.wav"_t), 0U);
    EXPECT_NE(device.openVoice("sounds\\http:x.wav"), 0U);
    EXPECT_NE(device.openVoice("SOUNDS\\ärger %d.OGG"_t), 0U);
    EXPECT_EQ(device.openVoice("sounds\\grösse a.wav"_t), 0U);
    EXPECT_EQ(device.error(), SoundError::cannotOpen);
}

TEST(SoundFonts, OfTheDataComeFirstThenThoseOfTheEnvironment) {
    const TempDirectory directory;
    const std::string font("RIFF\4\0\0\0sfbk", 12);  // and nothing in it
    const auto second = directory.write("musics/b.SF2", font);
    const auto first = directory.write("musics/a.sf2", font);
    directory.write("musics/c.sf2", "no font");
    directory.write("musics/lied.mid", font);
    const auto named = directory.write("named.sf2", font);
    const Environment fonts("SDL_SOUNDFONTS", "/there/is/none.sf2;" + named.string());
    const auto found = soundFonts(directory.path() / "musics");
    ASSERT_GE(found.size(), 3U);
    EXPECT_EQ(found[0], first);
    EXPECT_EQ(found[1], second);
    EXPECT_EQ(found[2], named);
    EXPECT_EQ(soundFonts(directory.path() / "missing").front(), named);

    EXPECT_FALSE(Synthesiser({first, named}).ready()) << "there is nothing in them";
    EXPECT_EQ(Synthesiser({first}).play(midiFile({})), nullptr);
    EXPECT_EQ(Synthesiser(found).ready(), found.size() > 3) << "one of the system's is taken, if there is one";
}

}  // namespace
}  // namespace zentrox::test
