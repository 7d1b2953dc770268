// Files whose heads claim what they do not hold: silence, or what is there of them. What no head is made for, the
// fuzzers try.
#include <gtest/gtest.h>
#include <sys/resource.h>

#include "platform/probe/recorder.h"
#include "platform/values/limits.h"
#include "tests/media/make_media.h"
#include "tests/media/speaker.h"

namespace zentrox::test {
namespace {

struct BadFile {
    const char* name;
    std::string bytes;
    bool heard = false;  // what there is of it
};

std::string patched(std::string bytes, std::size_t at, std::string_view with) {
    return bytes.replace(at, with.size(), with);
}

// Places in the head of a WAV file as `wavFile` writes it.
enum : std::size_t {
    riffSize = 4,
    formSize = 16,
    kind = 20,
    channels = 22,
    rate = 24,
    blockSize = 32,
    bits = 34,
    dataSize = 40
};

std::vector<BadFile> badFiles() {
    const std::string wav = wavFile({.hertz = 440, .seconds = 0.3});
    const std::string song = midiFile({});
    const std::string all("\xFF\xFF\xFF\xFF", 4);
    const std::string none("\0\0\0\0", 4);
    return {
        {"leer.wav", ""},
        {"kopf.wav", wav.substr(0, 44)},
        {"text.wav", "Das ist kein Ton."},
        {"kein_kanal.wav", patched(wav, channels, none.substr(0, 2))},
        {"zu_viele_kanaele.wav", patched(wav, channels, all.substr(0, 2))},
        {"keine_bits.wav", patched(wav, bits, none.substr(0, 2))},
        {"kein_tempo.wav", patched(wav, rate, none)},
        {"rasendes_tempo.wav", patched(wav, rate, all)},
        {"kein_block.wav", patched(wav, blockSize, none.substr(0, 2)), true},
        {"unbekannt.wav", patched(wav, kind, all.substr(0, 2))},
        {"grosse_form.wav", patched(wav, formSize, all)},
        {"grosse_daten.wav", patched(wav, dataSize, all), true},
        {"grosses_ganzes.wav", patched(wav, riffSize, all), true},
        {"grosses_wort.wav", wav.substr(0, 36) + "LIST" + all + wav.substr(36)},
        {"grosse_worte.mp3", "ID3\x04" + none.substr(0, 2) + "\x7F\x7F\x7F\x7F"},
        {"kein_rahmen.mp3", std::string("\xFF\xFB\x90\x64", 4) + std::string(3000, '\0')},
        {"kopf.mid", song.substr(0, 14)},
        {"viele_spuren.mid", patched(song, 10, all.substr(0, 2))},
        {"grosse_spur.mid", patched(song, 18, all)},
        {"grosses_wort.mid", patched(song, 22, std::string("\0\xFF\x01\xFF\xFF\xFF\x7F", 7))},
        {"kopf.avi", "RIFF" + all + "AVI LIST" + all + "hdrlavih" + all},
        {"kopf.mp4", std::string("\0\0\0\x18"
                                 "ftypisom\0\0\0\0isommp41\xFF\xFF\xFF\xFFmoov",
                                 32)},
    };
}

long peakMegabytes() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss / 1024;
}

template <class LetTimePass>
void playAll(SoundDevice& device, const char* name, LetTimePass letTimePass) {
    device.playVoice(device.openVoice(name));
    device.playEffect(name);
    device.playSong(name);
    device.playVideo(name);
    for (int turn = 0; turn < 4; ++turn) {
        device.videoFrame();
        letTimePass();
    }
    EXPECT_LT(device.songLength(), 60'000) << name;
    EXPECT_LT(device.videoLength(), 60'000) << name;
}

TEST(BadFiles, AreSilenceAndTakeNoMemory) {
    testing::internal::CaptureStderr();
    mediaDecoder();  // its libraries count for themselves
    const long before = peakMegabytes();
    for (const BadFile& file : badFiles()) {
        PulledSpeaker speaker;
        speaker.directory.write(file.name, file.bytes);
        ASSERT_TRUE(speaker.device->init() && speaker.device->start());
        playAll(*speaker.device, file.name, [&] { speaker.play(40); });
        EXPECT_EQ(loudness(speaker.heard, 440, 0, 1) > 0.01, file.heard) << file.name;
    }
    EXPECT_LT(peakMegabytes(), before + 100);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST(BadFiles, CountAsMissingInTheProbe) {
    const TempDirectory directory;
    Milliseconds now = 0;
    std::vector<Text> lines;
    Recorder recorder(
        directory.path(), [&] { return now; }, [&](Milliseconds, const Text& line) { lines.push_back(line); });
    ASSERT_TRUE(recorder.init());
    for (const BadFile& file : badFiles()) {
        lines.clear();
        directory.write(file.name, file.bytes);
        playAll(recorder, file.name, [&] { now += 40; });
        EXPECT_TRUE(lines.empty() || file.bytes.starts_with("RIFF")) << file.name;
    }
}

TEST(BadFiles, ASongBeyondAllMeasureIsNotRead) {
    PulledSpeaker speaker;
    const auto file = speaker.directory.write("riesig.mid", midiFile({}));
    std::filesystem::resize_file(file, limits::midiBytes + 1);
    ASSERT_TRUE(speaker.device->init() && speaker.device->start());
    speaker.device->playSong("riesig.mid");
    EXPECT_EQ(speaker.device->songLength(), 0);
}

}  // namespace
}  // namespace zentrox::test
