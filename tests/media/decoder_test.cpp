#include "platform/machine/decoder.h"

#include <gtest/gtest.h>

#include <ctime>
#include <vector>

#include "platform/machine/whole_file.h"
#include "tests/media/make_media.h"
#include "tests/support/temp_directory.h"

namespace zentrox::test {
namespace {

TEST(Decoder, CountsTheLengthOfSounds) {
    const TempDirectory directory;
    MediaDecoder* decoder = mediaDecoder();
    ASSERT_NE(decoder, nullptr);
    const Tone tone{.seconds = 1.5, .rate = 22050, .channels = 1, .bits = 8};
    const auto wav = directory.write("a.wav", wavFile(tone));
    EXPECT_EQ(decoder->audioLength(wav), 1500);
    // What these add is the padding of their last frame.
    for (const char* name : {"a.mp3", "a.ogg"}) {
        encodeTone(directory.path() / name, {.seconds = 1.5});
        EXPECT_NEAR(static_cast<double>(decoder->audioLength(directory.path() / name)), 1500, 80) << name;
    }
    const auto cut = directory.write("cut.wav", wavFile(tone).substr(0, 44 + 22050 / 2));
    EXPECT_EQ(decoder->audioLength(cut), 500) << "by what is there, not by what the header says";
    EXPECT_EQ(decoder->audioLength(directory.path() / "missing.wav"), 0);
    const auto slow = directory.write("slow.wav", wavFile({.seconds = 4000, .rate = 1}));
    EXPECT_EQ(decoder->audioLength(slow), 0) << "a rate that can't be meant would fill the memory";
}

TEST(Decoder, ReadsASoundToItsEndAtTheRateOfTheDevice) {
    const TempDirectory directory;
    const auto file = directory.write("a.wav", wavFile({.seconds = 0.5, .rate = 11025, .channels = 1}));
    const auto reader = mediaDecoder()->openAudio(file);
    ASSERT_NE(reader, nullptr);
    std::vector<std::int16_t> samples(2 * 1000);
    int frames = 0;
    for (int got = 1000; got == 1000; frames += got) got = reader->read(samples.data(), 1000);
    EXPECT_NEAR(frames, sampleRate / 2, 100);
    EXPECT_EQ(reader->read(samples.data(), 1000), 0);
}

int greyAt(const std::vector<std::uint32_t>& pixels, int x, int y) {
    const auto pixel = pixels[static_cast<std::size_t>(y) * videoWidth + static_cast<std::size_t>(x)];
    EXPECT_EQ(pixel >> 24U, 0U);
    EXPECT_NEAR(static_cast<int>(pixel >> 16U), static_cast<int>(pixel & 0xFFU), 6);
    return static_cast<int>(pixel & 0xFFU);
}

bool near(int grey, int picture) {
    return std::abs(grey - greyOf(picture)) <= 12;
}

struct Format {
    const char* file;
    const char* codec;
    int width;
    int height;
};

class Videos : public testing::TestWithParam<Format> {};

TEST_P(Videos, GoThroughTheirPicturesToTheEnd) {
    const TempDirectory directory;
    const auto [name, codec, width, height] = GetParam();
    const auto file = directory.path() / name;
    encodeClip(file, {.codec = codec, .width = width, .height = height, .hertz = 0});

    EXPECT_NEAR(static_cast<double>(mediaDecoder()->videoLength(file)), 3000, 80);
    const auto video = mediaDecoder()->openVideo(file);
    ASSERT_NE(video, nullptr);
    std::vector<std::uint32_t> pixels(videoWidth * videoHeight);
    int pictures = 0;
    for (int picture = 0; picture < 75; ++picture) {
        const int position = picture * 40 + 20;
        pictures += video->advance(position, pixels.data()) ? 1 : 0;
        // A file may date one of its pictures a little late.
        const int grey = greyAt(pixels, 320, 240);
        EXPECT_TRUE(near(grey, picture) || near(grey, picture - 1)) << picture;
        for (const int x : {0, 639})
            for (const int y : {0, 479}) EXPECT_NEAR(greyAt(pixels, x, y), grey, 6) << picture;
        EXPECT_FALSE(video->advance(position + 10, pixels.data())) << "the same picture again";
        EXPECT_FALSE(video->ended(position));
    }
    EXPECT_GE(pictures, 73);
    EXPECT_FALSE(video->advance(10'000, pixels.data()));
    EXPECT_TRUE(video->ended(3000));

    const auto late = mediaDecoder()->openVideo(file);
    EXPECT_TRUE(late->advance(1020, pixels.data())) << "a late look skips pictures";
    EXPECT_NEAR(greyAt(pixels, 320, 240), greyOf(25), 12);
}

// All of its two thousand pictures belong to the first moment.
TEST(Video, WithAnyNumberOfPicturesForAMomentLetsGo) {
    const TempDirectory directory;
    const auto file = directory.path() / "schnell.avi";
    encodeClip(file, {.codec = "mjpeg", .seconds = 80, .hertz = 0, .detailed = true});
    std::string bytes = readFile(file).value_or("");
    const std::size_t rate = bytes.find("strh") + 32;
    ASSERT_LT(rate + 4, bytes.size());
    bytes.replace(rate, 4, std::string("\0\xCA\x9A\x3B", 4));  // a thousand million pictures a second
    const auto video = mediaDecoder()->openVideo(directory.write("schnell.avi", bytes));
    ASSERT_NE(video, nullptr);
    std::vector<std::uint32_t> pixels(videoWidth * videoHeight);
    int calls = 0;
    const std::clock_t all = std::clock();
    for (; calls < 1000 && !video->ended(60'000); ++calls) {
        const std::clock_t began = std::clock();
        video->advance(60'000, pixels.data());
        EXPECT_LT(static_cast<double>(std::clock() - began) / CLOCKS_PER_SEC, 0.7);
    }
    EXPECT_GT(calls, 1);
    EXPECT_TRUE(video->ended(60'000));
    RecordProperty("calls", calls);
    RecordProperty("milliseconds", static_cast<int>((std::clock() - all) * 1000 / CLOCKS_PER_SEC));
}

INSTANTIATE_TEST_SUITE_P(Formats, Videos,
                         testing::Values(Format{"a.mpg", "mpeg1video", 640, 480},
                                         Format{"b.mpg", "mpeg1video", 320, 240},
                                         Format{"c.avi", "cinepak", 96, 64}, Format{"d.avi", "mjpeg", 640, 480},
                                         Format{"e.avi", "mpeg4", 352, 288}, Format{"f.avi", "msmpeg4", 640, 480},
                                         Format{"g.mp4", "mpeg4", 640, 360}));

}  // namespace
}  // namespace zentrox::test
