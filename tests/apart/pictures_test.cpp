// Pictures and MP3 from workers.
#include <gtest/gtest.h>

#include <csignal>

#include "platform/codec/apart/handlers.h"
#include "platform/codec/decode.h"
#include "platform/codec/mp3.h"
#include "platform/codec/pictures.h"
#include "tests/apart/processes.h"
#include "tests/media/make_media.h"
#include "tests/support/bitmap_file.h"
#include "tests/support/temp_directory.h"

namespace zentrox::test {
namespace {

using apart::Apart;

struct Pixels {
    bool good = false;
    Size size;
    std::vector<std::uint32_t> pixels;
    bool operator==(const Pixels&) const = default;
};

Pixels decoded(decltype(decodePicture)& decode, const std::string& file, Opacity opacity) {
    Pixels all;
    all.good = decode(file, opacity, [&](Size size) {
        all.size = size;
        all.pixels.assign(static_cast<std::size_t>(size.w) * static_cast<std::size_t>(size.h), 1);
        return all.pixels.data();
    });
    return all;
}

std::vector<std::string> pictures() {
    Bitmap bitmap({203, 97});
    for (int y = 0; y < 97; ++y)
        for (int x = 0; x < 203; ++x)
            bitmap.row(y)[x] = static_cast<std::uint32_t>(x * 70'001 + y * 131) & white.rgb;
    const std::string png = pngFile(bitmap);
    // One pixel that lets half of the light through.
    constexpr std::string_view halfSeen(
        "\211\120\116\107\015\012\032\012\000\000\000\015\111\110\104\122\000\000\000\001\000"
        "\000\000\001\010\006\000\000\000\037\025\304\211\000\000\000\015\111\104\101\124\170"
        "\332\143\144\370\317\120\017\000\003\206\001\200\132\064\175\153\000\000\000\000\111"
        "\105\116\104\256\102\140\202",
        70);
    std::string damaged = png;
    damaged[damaged.size() / 2] = static_cast<char>(damaged[damaged.size() / 2] ^ 0x55);
    return {png, jpegFile(bitmap, 80), std::string(halfSeen), png.substr(0, png.size() / 2), damaged, "kein Bild",
            ""};
}

std::vector<pid_t> workers() {
    for (const pid_t child : childrenOf(getpid()))
        if (statusOf(child, "Name") == "zentrox-decoder") return childrenOf(child);
    return {};
}

TEST(Pictures, AreToTheByteWhatThisProcessMakesOfThem) {
    const Apart apart(apart::handlers(), apart::ofProbes);
    int good = 0;
    for (const std::string& file : pictures()) {
        for (const Opacity opacity : {Opacity::filled, Opacity::kept}) {
            const Pixels here = decoded(decodePictureHere, file, opacity);
            const Pixels there = decoded(decodePicture, file, opacity);
            EXPECT_EQ(there.good, here.good) << file.substr(0, 20);
            EXPECT_TRUE(!here.good || there == here) << file.substr(0, 20);
            good += here.good ? 1 : 0;
        }
    }
    EXPECT_GE(good, 6);
    const auto one = workers();
    ASSERT_EQ(one.size(), 1U) << "one for all of them";
    EXPECT_EQ(statusOf(one[0], "Seccomp"), "2");
    EXPECT_EQ(openFilesOf(one[0]), 4U) << "the standard ones and the channel";
}

TEST(Pictures, GoOnWhereTheirWorkerIsKilled) {
    const Apart apart(apart::handlers(),
                      {std::chrono::milliseconds(50), std::chrono::seconds(1), std::chrono::seconds(1)});
    const std::string file = pictures()[0];
    EXPECT_TRUE(decoded(decodePicture, file, Opacity::filled).good);
    kill(workers().at(0), SIGKILL);
    EXPECT_FALSE(decoded(decodePicture, file, Opacity::filled).good) << "it counts as damaged";
    EXPECT_TRUE(decoded(decodePicture, file, Opacity::filled).good);
    kill(workers().at(0), SIGSTOP);
    EXPECT_FALSE(decoded(decodePicture, file, Opacity::filled).good);
    EXPECT_TRUE(decoded(decodePicture, file, Opacity::filled).good);
}

TEST(Mp3, SoundsTheSameFromAWorker) {
    const TempDirectory directory;
    const auto file = directory.path() / "a.mp3";
    encodeTone(file, {.seconds = 1.5, .rate = 22050, .channels = 1});
    const auto samples = [&] {
        const auto reader = openMp3(file);
        std::vector<std::int16_t> all(2 * 2 * sampleRate);
        all.resize(reader ? static_cast<std::size_t>(reader->read(all.data(), 2 * sampleRate)) * 2 : 0);
        return all;
    };
    const auto here = samples();
    EXPECT_GT(here.size(), std::size_t{2} * sampleRate);
    apart::Handlers all = apart::handlers();
    all[static_cast<std::size_t>(apart::Job::mp3)] = mp3Handler();
    const Apart apart(all, apart::ofProbes);
    EXPECT_TRUE(samples() == here);
    const auto reader = openMp3(file);
    EXPECT_EQ(workers().size(), 1U);
    EXPECT_EQ(openMp3(directory.write("b.mp3", "Das ist kein Ton.")), nullptr);
}

}  // namespace
}  // namespace zentrox::test
