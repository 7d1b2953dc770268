// Clocks that have run for weeks: past 2^31 milliseconds, which are 24 days, and past 2^32, which are 49.
#include <gtest/gtest.h>

#include "engine/state/warten.h"
#include "tests/support/stage.h"

namespace zentrox {
namespace {

class Weeks : public testing::TestWithParam<Milliseconds> {
protected:
    Weeks() { stage_.backend.now = start_; }
    Queue& queue() { return stage_.platform.queue; }
    Milliseconds passed() { return queue().clock() - start_; }

    const Milliseconds start_ = GetParam() - 1000;  // the edge comes within the test
    test::Stage stage_;
    Zustand z_;
};

TEST_P(Weeks, ATimerKeepsItsPhaseOverTheEdge) {
    std::vector<Milliseconds> ticks;
    Timer timer(queue(), 400, true, [&] { ticks.push_back(passed()); });
    queue().waitUntil(
        "test", [] { return false; }, start_ + 2000);
    EXPECT_EQ(ticks, (std::vector<Milliseconds>{400, 800, 1200, 1600, 2000}));
}

TEST_P(Weeks, AFrameIsAsLongAsEver) {
    z_.LetzterFrame = static_cast<std::int32_t>(static_cast<std::uint32_t>(start_));
    for (int frame = 1; frame <= 125; ++frame) {
        WarteFrame(z_, stage_.platform, 16);
        EXPECT_EQ(passed(), frame * 16);
    }
}

TEST_P(Weeks, AToolTipAndALongPeriodComeInTime) {
    std::vector<Milliseconds> ticks;
    Timer timer(queue(), Milliseconds{86'400'000} * 30, true, [&] { ticks.push_back(passed()); });
    queue().waitUntil(
        "test", [&] { return !ticks.empty(); }, start_ + Milliseconds{86'400'000} * 40);
    EXPECT_EQ(ticks, (std::vector<Milliseconds>{Milliseconds{86'400'000} * 30}));
}

INSTANTIATE_TEST_SUITE_P(Edges, Weeks,
                         testing::Values(Milliseconds{1} << 31, Milliseconds{1} << 32,
                                         (Milliseconds{1} << 32) * 3 / 2, Milliseconds{1} << 33),
                         [](const auto& edge) { return "At" + std::to_string(edge.param); });

}  // namespace
}  // namespace zentrox
