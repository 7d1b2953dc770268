// The end of the program in every wait of a walk: all guards run, nothing is leaked, and nothing of it is left.
#include <gtest/gtest.h>

#include <sstream>

#include "main/spiel.h"
#include "platform/values/error.h"
#include "tests/support/fake_sound.h"
#include "tests/support/temp_directory.h"
#include "tools/probe/player.h"
#include "tools/probe/story.h"

namespace zentrox::probe {
namespace {

// Plays on until it is asked for the n-th time, then ends the process from there.
class Impatient : public Person {
public:
    Impatient(Player& player, int patience) : player_(player), patience_(patience) {}
    std::optional<Input> next() override {
        if (patience_-- == 0) {
            cut = true;
            throw ProgramEnd{};
        }
        return player_.next();
    }
    bool ready() override { return player_.ready(); }
    std::optional<Milliseconds> due() override { return player_.due(); }

    bool cut = false;

private:
    Player& player_;
    int patience_;
};

// True if the walk was cut off, false if it came to its end before.
bool endsAt(int turn, const Walk& walk, const Text& room, Fonts& fonts) {
    std::ostringstream said;
    ProbeBackend backend(1, nullptr);
    Player player(walk, backend, ".", said);
    Impatient person(player, turn);
    backend.setPerson(&person);
    Recorder recorder(
        std::filesystem::path(WALK_DATA), [&] { return backend.clock(); }, [](Milliseconds, const Text&) {});
    Platform platform(backend, fonts, recorder, std::filesystem::path(WALK_DATA));
    const auto zustand = std::make_unique<Zustand>();
    Story story(platform, *zustand, recorder);
    player.attach(&platform, &story);
    EXPECT_EQ(Spielen(platform, *zustand, room), 0);
    EXPECT_TRUE(platform.queue.windows().empty());
    EXPECT_EQ(platform.queue.reasons(), "");
    return person.cut;
}

struct Case {
    const char* room;
    const char* walk;
    int step;  // how many turns lie between two ends that are tried
};

void PrintTo(const Case& c, std::ostream* out) {
    *out << (*c.room == 0 ? "the menu" : c.room);
}

class EndsTest : public testing::TestWithParam<Case> {};

TEST_P(EndsTest, EveryWaitCanBeLeft) {
    const Walk walk = parseWalk("walk", GetParam().walk);
    const auto fonts = makeFonts();
    int turn = 0;
    while (endsAt(turn, walk, GetParam().room, *fonts)) turn += GetParam().step;
    EXPECT_GT(turn, 20) << "the walk has hardly begun";
}

INSTANTIATE_TEST_SUITE_P(
    Walks, EndsTest,
    testing::Values(
        Case{"Rahmen.lsd",
             "until idle\nuse Rahmen\nuntil text \"zwei\"\nkey a\nuntil text \"mitgenommen\"\nkey a\nuntil idle",
             1},
        Case{"Zoom.lsd",
             "until idle\nuse Blende\nuntil text \"weiß\"\nkey a\nuntil idle\nuse Zoom\nuntil text \"nah\"\nkey "
             "a\nuntil idle",
             5},
        Case{"Ziehen.lsd", "until idle\ncombine blue lime\nuntil idle\ngive lime Kiste\nuntil idle", 2},
        Case{"Film.lsd", "until text \"Ende.\"\nkey a\nuntil idle", 3},
        Case{"Auswahl.lsd", "until choice\nchoose 2\nuntil choice\nchoose 2\nuntil idle", 2},
        Case{"Tasten.lsd",
             "until idle\nkey f7\nkey enter\nkey f2\nuntil window Dialog\nkey escape\nkey f1\nuntil window "
             "Dialog\ntype \"x\"\nkey escape\nuntil idle",
             1},
        Case{"", "wait 600\nkey down\nwait 500\nkey down\nkey enter", 3}));

}  // namespace
}  // namespace zentrox::probe
