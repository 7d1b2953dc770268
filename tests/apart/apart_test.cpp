// Sounds and films from workers: what they give, and what becomes of the program when they fail, or of them when it
// does.
#include "platform/codec/apart/apart.h"

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <csignal>
#include <cstring>

#include "platform/codec/apart/handlers.h"
#include "tests/apart/processes.h"
#include "tests/media/make_media.h"
#include "tests/media/speaker.h"
#include "tests/support/temp_directory.h"

namespace zentrox::test {
namespace {

using namespace std::chrono_literals;
using apart::Apart;

constexpr apart::Patience quick{50ms, 400ms, 400ms};

pid_t theHelper() {
    for (const pid_t child : childrenOf(getpid()))
        if (statusOf(child, "Name") == "zentrox-decoder") return child;
    return 0;
}

std::vector<std::int16_t> samplesOf(const std::filesystem::path& file) {
    const auto reader = mediaDecoder()->openAudio(file);
    std::vector<std::int16_t> all;
    std::vector<std::int16_t> piece(2 * 700);
    for (int got = 700; reader && got == 700;) {
        got = reader->read(piece.data(), 700);
        all.insert(all.end(), piece.begin(), piece.begin() + got * 2);
    }
    return all;
}

// All pictures, one after the other, and when the film has ended.
std::pair<std::vector<std::uint32_t>, int> picturesOf(const std::filesystem::path& file) {
    const auto film = mediaDecoder()->openVideo(file);
    std::vector<std::uint32_t> all;
    std::vector<std::uint32_t> picture(videoWidth * videoHeight);
    int position = 0;
    for (; film && position < 2000 && !film->ended(position); ++position)
        if (position % 33 == 0 && film->advance(position, picture.data()))
            all.insert(all.end(), picture.begin(), picture.end());
    return {all, position};
}

struct Found {
    std::vector<std::int16_t> samples;
    std::pair<std::vector<std::uint32_t>, int> pictures;
    std::int64_t audioLength;
    std::int64_t videoLength;
    bool operator==(const Found&) const = default;
};

Found allOf(const std::filesystem::path& file) {
    return {samplesOf(file), picturesOf(file), mediaDecoder()->audioLength(file),
            mediaDecoder()->videoLength(file)};
}

class Media : public testing::Test {
protected:
    std::filesystem::path film(const char* name = "a.mpg", double seconds = 1) const {
        encodeClip(directory.path() / name, {.width = 320, .height = 240, .seconds = seconds, .detailed = true});
        return directory.path() / name;
    }
    const TempDirectory directory;
};

TEST_F(Media, AreToTheByteWhatThisProcessMakesOfThem) {
    std::vector<std::filesystem::path> files{film("a.mpg"), film("b.avi"), film("c.mp4")};
    for (const char* name : {"a.mp3", "a.ogg"}) {
        encodeTone(directory.path() / name, {.seconds = 1.5});
        files.push_back(directory.path() / name);
    }
    files.push_back(directory.write("a.wav", wavFile({.seconds = 0.5, .rate = 11025, .channels = 1})));
    files.push_back(directory.write("text.avi", "Das ist kein Film."));
    files.push_back(directory.path() / "keiner.avi");
    for (const auto& file : files) {
        const Found here = allOf(file);
        const Apart apart(apart::handlers(), apart::ofProbes);
        EXPECT_TRUE(allOf(file) == here) << file;
        EXPECT_EQ(here.samples.empty(), file.extension() == ".avi" && file.stem() != "b") << file;
    }
}

TEST_F(Media, AreReadByProcessesWithoutRights) {
    const Apart apart(apart::handlers(), apart::ofProbes);
    const auto reader = mediaDecoder()->openVideo(film());
    ASSERT_NE(reader, nullptr);
    const pid_t helper = theHelper();
    EXPECT_EQ(statusOf(helper, "Seccomp"), "0");
    const auto workers = childrenOf(helper);
    ASSERT_EQ(workers.size(), 1U);
    EXPECT_EQ(statusOf(workers[0], "NoNewPrivs"), "1");
    EXPECT_EQ(statusOf(workers[0], "Seccomp"), "2");
    EXPECT_EQ(openFilesOf(workers[0]), 5U) << "the standard ones, the channel and the film";
}

TEST_F(Media, EndWhereTheirWorkerDoes) {
    const auto file = film("a.mpg", 2);
    const Apart apart(apart::handlers(), apart::ofProbes);
    const auto pictures = mediaDecoder()->openVideo(file);
    const auto sound = mediaDecoder()->openAudio(file);
    ASSERT_TRUE(pictures && sound);
    std::vector<std::uint32_t> pixels(videoWidth * videoHeight);
    EXPECT_TRUE(pictures->advance(0, pixels.data()));
    EXPECT_FALSE(pictures->ended(500));
    for (const pid_t worker : childrenOf(theHelper())) kill(worker, SIGKILL);
    EXPECT_FALSE(pictures->advance(500, pixels.data()));
    EXPECT_TRUE(pictures->ended(500));
    std::vector<std::int16_t> samples(2 * sampleRate);
    int frames = 0;
    for (int got = sampleRate; got == sampleRate; frames += got) got = sound->read(samples.data(), sampleRate);
    EXPECT_LT(frames, 2 * sampleRate) << "what was ready, and no more";
    EXPECT_NE(mediaDecoder()->openVideo(file), nullptr) << "the next one has a worker of its own";
}

TEST_F(Media, DoNotKeepTheProgramWhereTheirWorkerStalls) {
    const auto file = film("a.mpg", 8);
    const Apart apart(apart::handlers(), quick);
    const auto pictures = mediaDecoder()->openVideo(file);
    const auto sound = mediaDecoder()->openAudio(file);
    ASSERT_TRUE(pictures && sound);
    for (const pid_t worker : childrenOf(theHelper())) kill(worker, SIGSTOP);
    std::vector<std::uint32_t> pixels(videoWidth * videoHeight);
    int looks = 0;
    for (; looks < 100 && !pictures->ended(500); ++looks) {
        const auto began = std::chrono::steady_clock::now();
        EXPECT_FALSE(pictures->advance(500, pixels.data()));
        EXPECT_LT(std::chrono::steady_clock::now() - began, 300ms);
    }
    EXPECT_GT(looks, 3);
    EXPECT_LT(looks, 100);
    std::vector<std::int16_t> samples(2 * 512);
    int pieces = 0;
    while (pieces < 100'000 && sound->read(samples.data(), 512) == 512) ++pieces;
    EXPECT_LT(pieces, 8 * sampleRate / 512) << "silence for a while, and then the end";
}

TEST_F(Media, LookAgainForAnAnswerThatCameLate) {
    const auto file = film();
    const Apart apart(apart::handlers(), {0ms, 60s, 60s});
    const auto pictures = mediaDecoder()->openVideo(file);
    ASSERT_NE(pictures, nullptr);
    std::vector<std::uint32_t> pixels(videoWidth * videoHeight);
    EXPECT_TRUE(comesTrue([&] { return pictures->advance(0, pixels.data()); }));
    EXPECT_FALSE(pictures->ended(500));
    EXPECT_TRUE(comesTrue([&] { return pictures->advance(100'000, pixels.data()); }));
    EXPECT_TRUE(pictures->ended(100'000));
}

TEST_F(Media, LeaveNothingBehind) {
    const auto file = film();
    const std::size_t before = openFilesOf(getpid());
    pid_t helper = 0;
    {
        const Apart apart(apart::handlers(), apart::ofProbes);
        mediaDecoder()->audioLength(file);
        helper = theHelper();
        const std::size_t ours = openFilesOf(getpid());
        const std::size_t theirs = openFilesOf(helper);
        for (int i = 0; i < 20; ++i) {
            const auto pictures = mediaDecoder()->openVideo(file);
            const auto sound = mediaDecoder()->openAudio(file);
            EXPECT_GT(mediaDecoder()->audioLength(file), 0);
        }
        EXPECT_EQ(openFilesOf(getpid()), ours);
        EXPECT_EQ(openFilesOf(helper), theirs);
        EXPECT_TRUE(comesTrue([&] { return childrenOf(helper).size() == 1; }))
            << "the worker for lengths, and none to be buried";
        for (const int signal : {SIGTERM, SIGHUP, SIGINT}) kill(helper, signal);
        EXPECT_NE(mediaDecoder()->openVideo(file), nullptr) << "signals are the program's matter";
    }
    EXPECT_EQ(statusOf(helper, "State"), "");
    EXPECT_EQ(openFilesOf(getpid()), before);
    EXPECT_NE(mediaDecoder()->openVideo(file), nullptr) << "in this process";
}

TEST_F(Media, GoWithAProgramThatIsKilled) {
    const auto file = film();
    const pid_t program = fork();
    if (program == 0) {
        const Apart apart(apart::handlers(), apart::ofProbes);
        const auto pictures = mediaDecoder()->openVideo(file);
        for (;;) pause();
    }
    std::vector<pid_t> helpers;
    std::vector<pid_t> workers;
    EXPECT_TRUE(comesTrue([&] {
        helpers = childrenOf(program);
        workers = helpers.empty() ? helpers : childrenOf(helpers[0]);
        return !workers.empty();
    }));
    kill(program, SIGKILL);
    waitpid(program, nullptr, 0);
    for (const auto& processes : {helpers, workers})
        for (const pid_t process : processes) EXPECT_TRUE(comesTrue([&] { return isGone(process); }));
}

TEST_F(Media, AreReadHereWhereTheHelperIsGone) {
    const auto file = film();
    const Apart apart(apart::handlers(), apart::ofProbes);
    kill(theHelper(), SIGKILL);
    const auto pictures = mediaDecoder()->openVideo(file);
    ASSERT_NE(pictures, nullptr);
    std::vector<std::uint32_t> pixels(videoWidth * videoHeight);
    EXPECT_TRUE(pictures->advance(0, pixels.data()));
}

// The film that plays as its worker is killed is over, and so is its sound.
TEST(Player, GoesOnWhereAFilmsWorkersAreKilled) {
    const Apart apart(apart::handlers(), quick);
    PulledSpeaker speaker;
    encodeClip(speaker.directory.path() / "a.mpg", {.width = 320, .height = 240, .seconds = 20});
    ASSERT_TRUE(speaker.device->init() && speaker.device->start());
    ASSERT_TRUE(speaker.device->playVideo("a.mpg"));
    EXPECT_TRUE(comesTrue([&] {
        speaker.play(40);
        return speaker.device->videoFrame() != nullptr;
    }));
    for (const pid_t worker : childrenOf(theHelper())) kill(worker, SIGKILL);
    for (int i = 0; i < 300 && speaker.device->videoPosition() < speaker.device->videoLength(); ++i) {
        speaker.play(10);
        speaker.device->videoFrame();
    }
    EXPECT_EQ(speaker.device->videoPosition(), speaker.device->videoLength());
    EXPECT_LT(speaker.heard.size(), std::size_t{5} * sampleRate);
}

}  // namespace
}  // namespace zentrox::test
