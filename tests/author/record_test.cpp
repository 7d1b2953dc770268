// What is played becomes a walk that leads through the same states, room by room, to the same end.
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "author/walkwriter.h"
#include "engine/interpreter/verteiler.h"
#include "main/beginning.h"
#include "main/spiel.h"
#include "platform/machine/whole_file.h"
#include "saves/spielstand.h"
#include "tests/support/fake_sound.h"
#include "tests/support/temp_directory.h"
#include "tools/probe/player.h"
#include "tools/probe/story.h"

namespace zentrox::author {
namespace {

namespace fs = std::filesystem;

// What a saved game would hold at each moment of rest, a run of the same ones told once.
class States : public Beobachter {
public:
    void Ruht() override { take(); }
    void take() {
        Text now = SpielstandSchreiben(*state);
        if (all.empty() || all.back() != now) all.push_back(std::move(now));
    }
    const Zustand* state = nullptr;
    std::vector<Text> all;
};

struct Play {
    std::string trouble;
    std::vector<Text> states;
};

// Plays a walk from the menu, or from a room, and writes down the play.
Play play(const fs::path& story, const fs::path& saves, const std::string& walk, const fs::path& record,
          const Beginning& beginning = {}, const Text& room = {}) {
    Play done;
    std::ostringstream said;
    probe::ProbeBackend backend(beginning.seed.value_or(1), nullptr);
    probe::Player player(probe::parseWalk("walk", walk), backend, saves, said);
    backend.setPerson(&player);
    const auto fonts = makeFonts();
    Files files(story);
    files.keepSavesIn(saves);
    RecordFile file(record, false);
    WalkWriter writer(file);
    States states;
    Beginner beginner(beginning);
    Verteiler listeners;
    for (Beobachter* const one : std::initializer_list<Beobachter*>{&beginner, &states, &writer})
        listeners.Dazu(*one);
    try {
        Text arguments = room;
        do {
            backend.beginAnew();
            Recorder heard(
                files, [&] { return backend.clock(); }, [](Milliseconds, const Text&) {});
            Platform platform(backend, *fonts, heard, files);
            platform.roots.emplace_back(story.string() + "-cd");
            const auto z = std::make_unique<Zustand>();
            probe::Story known(platform, *z, heard);
            player.attach(&platform, &known);
            states.state = z.get();
            beginner.watch(&platform, z.get());
            writer.watch(&platform, z.get());
            platform.queue.firstLook = [&](const Input& input) {
                writer.sees(input);
                return false;
            };
            Spielen(platform, *z, std::exchange(arguments, {}), {.observer = &listeners});
            writer.watch(nullptr, nullptr);
        } while (backend.restartWanted() && !player.over());
        player.finish();
    } catch (const probe::WalkFailure& failure) {
        done.trouble = failure.message;
    }
    done.states = std::move(states.all);
    return done;
}

class ARecord : public testing::TestWithParam<std::string> {};

std::vector<std::string> waysThroughTheDemo() {
    std::vector<std::string> names;
    for (const auto& file : fs::directory_iterator(DEMO_WALKS))
        if (file.path().extension() == ".walk") names.push_back(file.path().stem().string());
    std::sort(names.begin(), names.end());
    return names;
}

TEST_P(ARecord, LeadsThroughTheSameStates) {
    const test::TempDirectory temp;
    const fs::path walk = fs::path(DEMO_WALKS) / (GetParam() + ".walk");
    const Play first = play(DEMO_DATA, temp.path() / "a", *readFile(walk), temp.path() / "first.walk");
    ASSERT_EQ(first.trouble, "");
    const std::string record = *readFile(temp.path() / "first.walk");
    const Play again = play(DEMO_DATA, temp.path() / "b", record, temp.path() / "again.walk");
    EXPECT_EQ(again.trouble, "") << record;
    EXPECT_EQ(again.states, first.states) << record;
    // What the record says is what it is read as.
    EXPECT_EQ(*readFile(temp.path() / "again.walk"), record);
}

INSTANTIATE_TEST_SUITE_P(OfEachWayThroughTheDemo, ARecord, testing::ValuesIn(waysThroughTheDemo()));

TEST(ARecordFrom, TheMiddleOfAStoryBeginsThere) {
    const test::TempDirectory temp;
    const Beginning beginning{{"EINS", "ZWEI DREI"}, {"moehre"}, 3, 7};
    const Play first = play(DEMO_DATA, temp.path() / "a", "read", temp.path() / "first.walk", beginning, "Hof.lsd");
    EXPECT_EQ(first.trouble, "");
    ASSERT_FALSE(first.states.empty());
    for (const char* const part : {"EINS", "ZWEI DREI", "moehre.bmp", "3"})
        EXPECT_NE(first.states.front().find(part), Text::npos) << part;
}

TEST(ARecordInMemory, ForgetsTheOlderHalfOfVeryMuch) {
    RecordText text;
    for (std::size_t i = 0; i < RecordText::most; ++i) text.line("use " + std::to_string(i));
    EXPECT_FALSE(text.cut());
    text.line("use last");
    EXPECT_TRUE(text.cut());
    EXPECT_EQ(text.lines(), RecordText::most / 2 + 1);
    EXPECT_TRUE(text.text().starts_with("use " + std::to_string(RecordText::most / 2) + "\n"));
    EXPECT_EQ(text.last(), "use last");
}

}  // namespace
}  // namespace zentrox::author
