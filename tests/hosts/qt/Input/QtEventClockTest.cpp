#include <gtest/gtest.h>

#include <algorithm>

#include "QtEventClock.h"

using gx::qt::QtEventClock;

namespace {

constexpr double rounding = 1e-9;

TEST(QtEventClock, KeepsTheDistancesOfEventsDeliveredTogether) {
    QtEventClock clock;
    EXPECT_NEAR(clock.timeOfEvent(50000, 7.000), 7.000, rounding);
    EXPECT_NEAR(clock.timeOfEvent(50010, 7.100), 7.010, rounding);
    EXPECT_NEAR(clock.timeOfEvent(50020, 7.101), 7.020, rounding);
    EXPECT_NEAR(clock.timeOfEvent(50101, 7.102), 7.101, rounding);
}

TEST(QtEventClock, AnEventWithLessDelayMovesTheZero) {
    QtEventClock clock;
    EXPECT_NEAR(clock.timeOfEvent(50000, 7.000), 7.000, rounding);
    EXPECT_NEAR(clock.timeOfEvent(50100, 7.050), 7.050, rounding); // 0.05 s less delay.
    EXPECT_NEAR(clock.timeOfEvent(50110, 7.090), 7.060, rounding);
}

TEST(QtEventClock, NoEventLiesInTheFutureAndNoneBeforeTheLast) {
    QtEventClock clock;
    double now = 0;
    double last = 0;
    for (unsigned i = 0; i < 50; ++i) {
        now = std::max(now, 3 + 0.01 * i + (i % 7 == 0 ? 0.03 : 0)); // Some wait.
        const double time = clock.timeOfEvent(1000 + i * 10, now);
        EXPECT_LE(time, now);
        EXPECT_GE(time, last - rounding);
        last = time;
    }
}

TEST(QtEventClock, AnEventWithoutATimeGetsThatOfItsDelivery) {
    QtEventClock clock;
    EXPECT_NEAR(clock.timeOfEvent(0, 7), 7, rounding);
    EXPECT_NEAR(clock.timeOfEvent(50000, 8), 8, rounding);
    EXPECT_NEAR(clock.timeOfEvent(0, 9), 9, rounding);
}

TEST(QtEventClock, ResetsTheZeroAfterAPause) {
    QtEventClock clock;
    EXPECT_NEAR(clock.timeOfEvent(50000, 7), 7, rounding);
    EXPECT_NEAR(clock.timeOfEvent(51000, 8.25), 8, rounding); // A second is no pause yet.
    EXPECT_NEAR(clock.timeOfEvent(52001, 9.5), 9.5, rounding);
}

TEST(QtEventClock, FollowsAClockThatStartsAgain) {
    QtEventClock clock;
    EXPECT_NEAR(clock.timeOfEvent(4294967295U, 7), 7, rounding);
    EXPECT_NEAR(clock.timeOfEvent(5, 7.006), 7.006, rounding);
    EXPECT_NEAR(clock.timeOfEvent(15, 7.03), 7.016, rounding);
}

TEST(QtEventClock, AnEventThatIsMoreThanASecondLateCountsAsFresh) {
    QtEventClock clock;
    EXPECT_NEAR(clock.timeOfEvent(50000, 7), 7, rounding);
    EXPECT_NEAR(clock.timeOfEvent(50500, 8.5), 7.5, rounding); // Exactly a second.
    EXPECT_NEAR(clock.timeOfEvent(50600, 8.75), 8.75, rounding);
}

} // namespace
