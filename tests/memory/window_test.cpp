// Matches on a dealt table, in the real window on a clock that the test moves.
#include <gtest/gtest.h>

#include "games/memory/memory.h"
#include "games/memory/memoryfenster.h"
#include "platform/values/error.h"
#include "tests/support/stage.h"

namespace zentrox::test {
namespace {

constexpr Milliseconds turn = 500;
constexpr Milliseconds look = 1000;

// Every card is one colour: the back white, face v has the colour v + 1.
Memorybilder colours() {
    Memorybilder pictures;
    pictures.rücken = Bitmap({97, 97}, white);
    for (std::size_t v = 0; v < pictures.gesichter.size(); ++v)
        pictures.gesichter[v] = Bitmap({97, 97}, Colour(static_cast<std::uint32_t>(v + 1)));
    return pictures;
}

// A match whose deal the test knows. Its cards go by their number in a sorted row, 0 and 1 being the first pair.
struct Play : Stage {
    Zustand z;
    Medien media{platform, z};
    Memoryspiel deal;  // as the window will deal

    explicit Play(std::uint64_t seed = 1) {
        z.PfadGames = platform.files.programDirectory() + "games\\";
        platform.random.reseed(seed);
        Random same(seed);
        deal.Init(same);
    }
    Memory& window() { return dynamic_cast<Memory&>(*platform.queue.active()); }
    const Memoryspiel& game() { return window().spiel(); }
    // The position of a card on the table.
    int place(int card) const {
        for (int i = 0; i < kartenAnzahl; ++i)
            if (deal.wert(i) == card / 2 && card-- % 2 == 0) return i;
        return -1;
    }
    Point corner(int card) const { return {place(card) % 4 * 104, place(card) / 4 * 104}; }
    Point at(int card) const { return corner(card) + Point{48, 48}; }
    std::uint32_t seen(int card) { return static_cast<std::uint32_t>(window().compose().pixel(at(card))); }
    void click(int card) { backend.click(at(card)); }
    // Two cards of the player, and what follows when they are none of a kind.
    void failedTurn(int a, int b) {
        click(a);
        click(b);
        backend.wait(turn + look + turn);
    }
    void pair(int a, int b) {
        click(a);
        click(b);
        backend.wait(turn + 1000 + 50);
    }
    Text show() {
        backend.wait(20);
        Memory(platform, z, colours()).showModal();
        return std::get<Text>(z.Übergabe);
    }
};

TEST(MemoryWindow, TurnsCardsAndHidesThemAgain) {
    Play play;
    play.backend.wait(20);
    play.backend.then([&] {
        EXPECT_EQ(play.window().name(), "Memory");
        EXPECT_EQ(play.window().client(), (Size{413, 463}));
        EXPECT_TRUE(play.window().shows("Velmar:") && play.window().shows("Tirsa:"));
        EXPECT_EQ(play.seen(0), white.rgb);
    });
    play.click(0);
    play.click(0);  // the same card again does not count
    int sleeps = 0;
    play.backend.then([&] { sleeps = play.backend.sleeps; });
    play.backend.wait(600'000);
    play.backend.then([&] {
        EXPECT_LE(play.backend.sleeps, sleeps + 3) << "nothing happens while it waits for a card";
        EXPECT_EQ(play.seen(0), 1U);
        EXPECT_EQ(play.seen(4), white.rgb);
    });
    play.click(4);
    play.backend.wait(turn + look - 20);
    play.backend.then([&] { EXPECT_EQ(play.seen(4), 3U); });
    play.backend.wait(40);
    play.backend.then([&] {
        EXPECT_EQ(play.seen(0), white.rgb);
        EXPECT_EQ(play.seen(4), white.rgb);
        EXPECT_EQ(play.game().Gedaechtnis,
                  (std::array<std::int32_t, 6>{-1, -1, -1, -1, play.place(0), play.place(4)}));
    });
    play.backend.closeBox();
    EXPECT_EQ(play.show(), "L");
}

// Both cards are clicked at 20 ms; each wait begins where the one before has ended.
TEST(MemoryWindow, PlaysByTheClock) {
    struct Look {
        Milliseconds at;
        int faces;
    };
    Play play;
    play.backend.wait(20);
    play.click(0);
    play.click(4);
    constexpr Milliseconds hidden = 20 + turn + 1 + look;
    constexpr Milliseconds tirsa = hidden + turn + 1;
    for (const Look& now : {Look{hidden - 1, 2}, Look{hidden + 1, 0}, Look{tirsa - 1, 0}, Look{tirsa + 1, 1},
                            Look{tirsa + turn - 1, 1}, Look{tirsa + turn + 1, 2}})
        play.backend.schedule(now.at, [&play, now] {
            int faces = 0;
            for (int i = 0; i < 16; ++i) faces += play.seen(i) == white.rgb ? 0 : 1;
            EXPECT_EQ(faces, now.faces) << now.at;
        });
    play.backend.closeBox();
    EXPECT_EQ(play.show(), "L");
}

TEST(MemoryWindow, FliesAPairToItsRowAndGoesOn) {
    Play play;
    play.backend.wait(20);
    play.click(0);
    play.click(1);
    play.backend.wait(turn + 500);
    play.backend.then([&] {
        // Half way to (41, 416), and half of the shrinking done.
        const Point from = play.corner(0);
        EXPECT_EQ(play.window().compose().pixel({(from.x + 41) / 2 + 28, (from.y + 416) / 2 + 28}), 1);
        EXPECT_EQ(play.game().Punkte[0], 0);
    });
    play.backend.wait(550);
    play.backend.then([&] {
        EXPECT_EQ(play.window().compose().pixel({41 + 8, 416 + 8}), 1);
        EXPECT_NE(play.seen(0), 1U);
        EXPECT_EQ(play.game().Punkte[0], 1);
    });
    play.click(0);  // what is gone can't be clicked
    play.click(2);
    play.backend.wait(100);
    play.backend.then([&] { EXPECT_EQ(play.seen(2), 2U); });
    play.click(3);
    play.backend.wait(turn + 1050);
    play.backend.then([&] {
        EXPECT_EQ(play.window().compose().pixel({41 + 24 + 8, 416 + 8}), 2) << "it is still the player's turn";
    });
    play.backend.closeBox();
    EXPECT_EQ(play.show(), "L");
}

TEST(MemoryWindow, IsWonByEightPairs) {
    Play play;
    play.backend.wait(20);
    for (int i = 0; i < 16; i += 2) play.pair(i, i + 1);
    EXPECT_EQ(play.show(), "W");
    EXPECT_TRUE(play.platform.queue.windows().empty());
}

// A player who from now on only turns cards that are none of a kind, until the match is over.
void failOnPurpose(Play& play) {
    if (play.platform.queue.windows().empty()) return;
    if (play.platform.queue.active()->name() != "Memory") return play.backend.key(key::enter);
    std::vector<int> left;
    for (int i = 0; i < 16; ++i)
        if (play.game().aufTisch(play.place(i))) left.push_back(i);
    if (left.size() > 2) {
        play.click(left[0]);
        play.click(left[2]);
    }
    play.backend.wait(300);
    play.backend.then([&play] { failOnPurpose(play); });
}

TEST(MemoryWindow, IsLostToTirsaWhoGoesOnAsLongAsSheFinds) {
    Play play;
    play.backend.wait(20);
    play.backend.then([&] { failOnPurpose(play); });
    EXPECT_EQ(play.show(), "L");
    EXPECT_TRUE(play.backend.boxes.empty());
}

TEST(MemoryWindow, TellsADraw) {
    Play play;
    play.backend.wait(20);
    for (int i = 0; i < 8; i += 2) play.pair(i, i + 1);
    play.backend.then([&] { failOnPurpose(play); });
    EXPECT_EQ(play.show(), "U");
    ASSERT_EQ(play.backend.boxes.size(), 1U);
    EXPECT_EQ(play.backend.boxes[0].text, "Unentschieden! Nächste Runde!"_t);
}

// A seed with which Tirsa, after the cards 0 and 2, turns two that are none of a kind, and not card 5.
std::uint64_t seedOfATurnInVain() {
    for (std::uint64_t seed = 1;; ++seed) {
        const Play play(seed);
        Random same(seed);
        Memoryspiel match;
        match.Init(same);
        match.AddIntelligenz(play.place(0), play.place(2));
        const Memoryspiel::Zug turned = match.gegnerZug(same);
        if (!match.gleich(turned.a, turned.b) && turned.a != play.place(5) && turned.b != play.place(5))
            return seed;
    }
}

TEST(MemoryWindow, ForgetsClicksInTirsasTurn) {
    Play play(seedOfATurnInVain());
    play.backend.wait(20);
    play.failedTurn(0, 2);
    play.click(5);
    play.backend.wait(2 * look + 2 * turn);
    play.backend.then([&] {
        for (int card = 0; card < kartenAnzahl; ++card) EXPECT_EQ(play.seen(card), white.rgb) << card;
    });
    play.click(7);
    play.backend.then([&] {
        EXPECT_EQ(play.seen(7), 4U) << "the first card of the player's turn";
        EXPECT_EQ(play.seen(5), white.rgb);
    });
    play.backend.closeBox();
    EXPECT_EQ(play.show(), "L");
}

TEST(MemoryWindow, ClosesAtEveryWait) {
    for (Milliseconds when = 0; when < 6000; when += 100) {
        Play play;
        play.backend.wait(20);
        play.click(0);
        play.click(when % 200 == 0 ? 1 : 2);
        play.backend.wait(when);
        play.backend.closeBox();
        EXPECT_EQ(play.show(), "L");
        EXPECT_LT(play.backend.now, 20 + when + 16) << "at once, not at the end of the wait";
    }
}

TEST(MemoryWindow, CountsAsLostWithoutItsPictures) {
    Play play;
    play.backend.wait(10);
    play.backend.key(key::escape);
    MemoryZeigen(play.platform, play.z, play.media);
    ASSERT_EQ(play.backend.boxes.size(), 1U);
    EXPECT_NE(play.backend.boxes[0].text.find("m9.jpg"), Text::npos) << play.backend.boxes[0].text;
    EXPECT_EQ(play.z.Übergabe, Übergabewert(Text("L")));
}

}  // namespace
}  // namespace zentrox::test
