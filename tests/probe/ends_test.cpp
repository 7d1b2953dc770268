// Out of every wait of a walk: by the end of the program, after which nothing is leaked and nothing of it is left,
// and by a jump to another room, which is then as if it had been entered from nowhere.
#include <gtest/gtest.h>

#include <functional>
#include <sstream>

#include "engine/interpreter/raumfenster.h"
#include "engine/interpreter/sprung.h"
#include "main/spiel.h"
#include "platform/values/error.h"
#include "tests/support/fake_sound.h"
#include "tests/support/temp_directory.h"
#include "tools/probe/player.h"
#include "tools/probe/story.h"

namespace zentrox::probe {
namespace {

// Plays on until it is asked for the n-th time, then leaves from there.
class Impatient : public Person {
public:
    Impatient(Player& player, int patience, std::function<void()> leave)
        : player_(player),
          patience_(patience),
          leave_(std::move(leave)) {}
    std::optional<Input> next() override {
        if (patience_-- == 0) {
            cut = true;
            leave_();
        }
        if (cut && then) then();
        return player_.next();
    }
    bool ready() override { return player_.ready(); }
    std::optional<Milliseconds> due() override { return player_.due(); }

    bool cut = false;
    std::function<void()> then;  // at each later turn

private:
    Player& player_;
    int patience_;
    std::function<void()> leave_;
};

// True if the walk was cut off, false if it came to its end before.
bool endsAt(int turn, const Walk& walk, const Text& room, Fonts& fonts) {
    std::ostringstream said;
    ProbeBackend backend(1, nullptr);
    Player player(walk, backend, ".", said);
    Impatient person(player, turn, [] { throw ProgramEnd{}; });
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

// Knows the room window while it stands.
class Door : public Beobachter {
public:
    void Öffnet(Raumfenster& raum) override { room = &raum; }
    void Schließt() override { room = nullptr; }
    void Ruht() override { ++rests; }

    Raumfenster* room = nullptr;
    int rests = 0;
};

struct Jump {
    bool cut = false;              // false: the walk came to its end before
    std::optional<Bitmap> seen{};  // the room behind the jump; nothing if there was no room window yet to jump from
};

// Jumps to another room at a turn, and ends when that rests.
Jump jumpsAt(int turn, const Walk& walk, const Text& room, Fonts& fonts) {
    std::ostringstream said;
    ProbeBackend backend(1, nullptr);
    Player player(walk, backend, ".", said);
    Door door;
    Recorder recorder(
        std::filesystem::path(WALK_DATA), [&] { return backend.clock(); }, [](Milliseconds, const Text&) {});
    Platform platform(backend, fonts, recorder, std::filesystem::path(WALK_DATA));
    const auto zustand = std::make_unique<Zustand>();
    bool jumped = false;
    Impatient person(player, turn, [&] {
        if (door.room == nullptr) return;
        jumped = true;
        door.rests = 0;
        throw Sprung{[&] { door.room->Lade(zustand->PfadRooms + "Ziehen.lsd"); }};
    });
    std::optional<Bitmap> seen;
    person.then = [&] {
        if (!jumped || door.rests == 0) return;
        EXPECT_EQ(platform.queue.windows().size(), 1U);
        EXPECT_EQ(platform.queue.reasons(), "Form1");
        EXPECT_TRUE(zustand->LeisteZu && !zustand->SkriptLäuft);
        seen.emplace(Size{640, 480});
        seen->copy(platform.queue.active()->compose(), {0, 0});
        throw ProgramEnd{};
    };
    backend.setPerson(&person);
    Story story(platform, *zustand, recorder);
    player.attach(&platform, &story);
    EXPECT_EQ(Spielen(platform, *zustand, room, {.observer = &door}), 0);
    EXPECT_EQ(door.room, nullptr);
    return {person.cut, std::move(seen)};
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

TEST_P(EndsTest, EveryWaitCanBeJumpedOutOf) {
    if (*GetParam().room == 0) return;  // the menu has no room window
    const Walk walk = parseWalk("walk", GetParam().walk);
    const auto fonts = makeFonts();
    std::optional<Bitmap> expected;
    int jumps = 0;
    for (int turn = 0;; turn += GetParam().step) {
        const auto [cut, seen] = jumpsAt(turn, walk, GetParam().room, *fonts);
        if (!cut) break;
        if (!seen) continue;
        if (!expected) expected = seen;
        ASSERT_EQ(*seen, *expected) << "turn " << turn;
        ++jumps;
    }
    EXPECT_GT(jumps, 10) << "the walk has hardly begun";
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
