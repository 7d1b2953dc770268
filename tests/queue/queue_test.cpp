// The waits and the timers on a clock that moves only while something waits.
#include <gtest/gtest.h>

#include "platform/values/error.h"
#include "tests/support/stage.h"

namespace zentrox {
namespace {

using Times = std::vector<Milliseconds>;

class QueueTest : public testing::Test {
protected:
    Queue& queue() { return stage_.platform.queue; }
    Milliseconds now() { return queue().clock(); }
    void sleepTo(Milliseconds end) {
        queue().waitUntil(
            "test", [] { return false; }, end);
    }
    std::function<void()> note(Times& times) {
        return [this, &times] { times.push_back(now()); };
    }

    test::Stage stage_;
};

TEST_F(QueueTest, ATimerKeepsItsPhase) {
    Times ticks;
    Timer timer(queue(), 300, true, note(ticks));
    sleepTo(1000);
    EXPECT_EQ(ticks, (Times{300, 600, 900}));
}

TEST_F(QueueTest, ShortPeriodsAreSixteenMillisecondsAndNoneNeverFires) {
    Times fast;
    Times never;
    Timer one(queue(), 1, true, note(fast));
    Timer none(queue(), 0, true, note(never));
    Timer off(queue(), 10, false, note(never));
    sleepTo(50);
    EXPECT_EQ(fast, (Times{16, 32, 48}));
    EXPECT_TRUE(never.empty());
}

TEST_F(QueueTest, MissedTicksFireOnce) {
    Times ticks;
    Timer timer(queue(), 20, true, note(ticks));
    stage_.backend.now = 130;  // the machine was busy
    queue().yield("test");
    sleepTo(165);
    EXPECT_EQ(ticks, (Times{130, 140, 160}));
}

TEST_F(QueueTest, DueTimersFireInTheOrderOfTheirDeadlines) {
    std::vector<char> order;
    Timer late(queue(), 50, true, [&] { order.push_back('b'); });
    Timer early(queue(), 40, true, [&] { order.push_back('a'); });
    stage_.backend.now = 60;
    queue().yield("test");
    EXPECT_EQ(order, (std::vector<char>{'a', 'b'}));
}

TEST_F(QueueTest, TurningOnAndANewPeriodBeginAfresh) {
    Times ticks;
    Timer timer(queue(), 100, true, note(ticks));
    sleepTo(90);
    timer.setEnabled(true);  // it is on already
    sleepTo(110);
    timer.setEnabled(false);
    sleepTo(150);
    timer.setEnabled(true);
    sleepTo(260);
    timer.setPeriod(200);
    sleepTo(470);
    EXPECT_EQ(ticks, (Times{100, 250, 460}));
}

TEST_F(QueueTest, ATimerMayDieOrNestInAHandler) {
    Times outer;
    Times inner;
    auto dying = std::make_unique<Timer>(queue(), 60, true, note(inner));
    Timer nesting(queue(), 50, true, [&] {
        outer.push_back(now());
        if (outer.size() > 1) return;
        sleepTo(now() + 25);  // serves the queue from inside a tick
        dying.reset();
    });
    sleepTo(140);
    EXPECT_EQ(outer, (Times{50, 100}));
    EXPECT_EQ(inner, (Times{60}));
}

TEST_F(QueueTest, AWaitSleepsToTheNextTimerAndNoMore) {
    Times ticks;
    Timer timer(queue(), 300, true, note(ticks));
    queue().waitUntil("test", [&] { return ticks.size() == 10; });
    EXPECT_EQ(now(), 3000);
    EXPECT_LE(stage_.backend.sleeps, 10);
}

TEST_F(QueueTest, NextFrameServesWhatFallsDueMeanwhile) {
    Times ticks;
    Timer timer(queue(), 20, true, note(ticks));
    for (int i = 0; i < 4; ++i) queue().nextFrame("test");
    EXPECT_EQ(now(), 64);
    EXPECT_EQ(ticks, (Times{20, 40, 60}));
}

TEST_F(QueueTest, WhileTheClockStandsNothingFallsDueAndInputComes) {
    Times ticks;
    Timer timer(queue(), 300, true, note(ticks));
    sleepTo(290);
    queue().stopClock();
    queue().stopClock();
    bool done = false;
    stage_.backend.schedule(5000, [&] { done = true; });
    queue().waitUntil("test", [&] { return done; });
    EXPECT_EQ(stage_.backend.now, 5000);
    EXPECT_EQ(now(), 290);
    queue().letClockGoOn();
    EXPECT_TRUE(queue().stands());
    queue().letClockGoOn();
    sleepTo(910);
    EXPECT_EQ(ticks, (Times{300, 600, 900}));
    EXPECT_EQ(stage_.backend.now, 5620);
}

TEST_F(QueueTest, ASlowerClockTakesLongerForTheSame) {
    Times ticks;
    Timer timer(queue(), 20, true, note(ticks));
    sleepTo(50);
    queue().setPace(30);
    sleepTo(110);
    EXPECT_EQ(stage_.backend.now, 50 + 200);
    queue().setPace(100);
    sleepTo(130);
    EXPECT_EQ(stage_.backend.now, 250 + 20);
    EXPECT_EQ(ticks, (Times{20, 40, 60, 80, 100, 120}));
}

TEST_F(QueueTest, ReasonsStandForAsLongAsTheWaits) {
    Text seen;
    Timer timer(queue(), 20, true, [&] { seen = queue().reasons(); });
    {
        const Queue::Reason outer(queue(), "Lade Keller.lsd");
        sleepTo(30);
    }
    EXPECT_EQ(seen, "Lade Keller.lsd > test");
    Timer end(queue(), 20, true, [] { Queue::endProgram(3); });
    try {
        sleepTo(100);
        FAIL() << "the program went on";
    } catch (const ProgramEnd& ended) {
        EXPECT_EQ(ended.status, 3);
    }
    EXPECT_EQ(queue().reasons(), "");
}

}  // namespace
}  // namespace zentrox
