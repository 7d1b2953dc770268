// Files that are not what their names say: silence, or a video that is passed over.
#include <gtest/gtest.h>

#include <random>

#include "platform/machine/decoder.h"
#include "platform/probe/recorder.h"
#include "tests/media/make_media.h"
#include "tests/media/speaker.h"

namespace zentrox::test {
namespace {

constexpr std::array extensions{"wav", "mp3", "ogg", "mid", "mpg", "avi", "mp4"};

std::string slurp(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::string randomBytes(std::size_t size, unsigned seed) {
    std::minstd_rand random(seed);
    std::string bytes(size, '\0');
    for (auto& byte : bytes) byte = static_cast<char>(random() >> 8U);
    return bytes;
}

std::string whole(const TempDirectory& directory, const std::string& extension) {
    const auto file = directory.path() / ("whole." + extension);
    if (extension == "wav") return wavFile({.seconds = 0.3});
    if (extension == "mid") return midiFile({});
    if (extension == "mp3" || extension == "ogg")
        encodeTone(file, {.seconds = 0.3});
    else
        encodeClip(file, {.codec = extension == "mp4"   ? "mpeg4"
                                   : extension == "avi" ? "mjpeg"
                                                        : "mpeg1video",
                          .width = 160,
                          .height = 120,
                          .seconds = 0.4});
    return slurp(file);
}

std::string scratched(std::string bytes, unsigned seed) {
    std::minstd_rand random(seed);
    for (int i = 0; i < 40; ++i) bytes[random() % bytes.size()] = static_cast<char>(random() >> 8U);
    return bytes;
}

// Names of files of every extension: empty, random, cut and scratched ones.
std::vector<std::string> badFiles(const TempDirectory& directory) {
    std::vector<std::string> names;
    const auto add = [&](const std::string& name, const std::string& bytes) {
        directory.write(name, bytes);
        names.push_back(name);
    };
    for (const std::string extension : extensions) {
        const auto good = whole(directory, extension);
        add("empty." + extension, "");
        add("random." + extension, randomBytes(20'000, 7));
        for (const std::size_t part : {1, 20, 50, 90})
            add("cut" + std::to_string(part) + "." + extension, good.substr(0, good.size() * part / 100));
        for (unsigned seed = 1; seed <= 4; ++seed)
            add("scratched" + std::to_string(seed) + "." + extension, scratched(good, seed));
        add("head." + extension, good.substr(0, 40) + randomBytes(10'000, 9));
    }
    return names;
}

void playAll(SoundDevice& device, const std::string& name) {
    device.playVoice(device.openVoice(name));
    device.playEffect(name);
    device.playSong(name);
    device.playVideo(name);
    for (int turn = 0; turn < 4; ++turn) {
        device.videoFrame();
        device.videoPosition();
        device.songPosition();
        wait(4);
    }
}

TEST(BadFiles, AreSilenceOnTheDesktop) {
    Speaker speaker;
    const auto names = badFiles(speaker.directory);
    ASSERT_TRUE(speaker.device->init() && speaker.device->start());
    testing::internal::CaptureStderr();
    for (const auto& name : names) playAll(*speaker.device, name);
    speaker.device->free();
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST(BadFiles, CountAsMissingInTheProbe) {
    const TempDirectory directory;
    const auto names = badFiles(directory);
    Milliseconds now = 0;
    std::vector<Text> lines;
    Recorder recorder(
        directory.path(), [&] { return now; }, [&](Milliseconds, const Text& line) { lines.push_back(line); });
    ASSERT_TRUE(recorder.init());
    testing::internal::CaptureStderr();
    for (const auto& name : names) {
        playAll(recorder, name);
        EXPECT_LT(recorder.videoLength(), 60'000) << name;
        if (!name.starts_with("empty") && !name.starts_with("random")) continue;
        recorder.free();
        for (const auto& line : lines) EXPECT_EQ(line.find(name), Text::npos) << line;
        ASSERT_TRUE(recorder.init());
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

}  // namespace
}  // namespace zentrox::test
