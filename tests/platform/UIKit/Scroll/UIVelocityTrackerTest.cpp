#include "UIVelocityTracker.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace gx;

TEST(UIVelocityTracker, TakesTheSpeedFromThePlacesOfTheLastTenthOfASecond) {
    UIVelocityTracker tracker;
    EXPECT_EQ(tracker.velocityAt(10), 0);
    tracker.add(10, 0);
    EXPECT_EQ(tracker.velocityAt(10), 0) << "one place is no way";
    tracker.add(10.2, 1000);
    EXPECT_EQ(tracker.velocityAt(10.2), 0) << "the one before is too old";
    tracker.add(10.25, 1010);
    EXPECT_NEAR(tracker.velocityAt(10.25), 200, 1e-6);
    tracker.add(10.2875, 1040); // 40 points in 0.0875 s.
    EXPECT_NEAR(tracker.velocityAt(10.2875), 457.142857, 1e-5);
    tracker.reset();
    EXPECT_EQ(tracker.velocityAt(10.2875), 0);
}

TEST(UIVelocityTracker, AFingerThatRestsHasNoSpeed) {
    UIVelocityTracker tracker;
    tracker.add(10, 0);
    tracker.add(10.05, 10);
    EXPECT_NEAR(tracker.velocityAt(10.109), 200, 1e-6);
    EXPECT_EQ(tracker.velocityAt(10.111), 0);
}

TEST(UIVelocityTracker, PlacesOutOfOrderNeverReverseTheSpeed) {
    UIVelocityTracker tracker;
    tracker.add(10.02, 0);
    tracker.add(10.01, 10);
    EXPECT_EQ(tracker.velocityAt(10.01), 0);
    tracker.add(10.06, 20); // 10 points in 0.05 s: what came before 10.01 is another time.
    EXPECT_NEAR(tracker.velocityAt(10.06), 200, 1e-6);
}

TEST(UIVelocityTracker, PlacesAtOneTimeAndAtNoTimeHaveNoSpeed) {
    UIVelocityTracker tracker;
    tracker.add(10, 0);
    tracker.add(10, 10);
    EXPECT_EQ(tracker.velocityAt(10), 0);
    tracker.add(std::nan(""), 20);
    EXPECT_EQ(tracker.velocityAt(10), 0);
}

TEST(UIVelocityTracker, PlacesBeforeAResetDoNotCount) {
    UIVelocityTracker tracker;
    for (int i = 0; i < 8; ++i) tracker.add(10 + 0.001 * i, 10 * i);
    tracker.reset();
    EXPECT_EQ(tracker.velocityAt(10.02), 0) << "no place";
    tracker.add(10.02, 20);
    EXPECT_EQ(tracker.velocityAt(10.02), 0) << "one place";
    tracker.add(10.03, 22);
    EXPECT_NEAR(tracker.velocityAt(10.03), 200, 1e-6) << "two places";
}

TEST(UIVelocityTracker, TakesTheSpeedOfTheEightLatestPlaces) {
    UIVelocityTracker tracker;
    // Two quick places, then eight that are 1 point in 0.01 s apart.
    tracker.add(9.98, -1000);
    tracker.add(9.99, -500);
    for (int i = 0; i < 8; ++i) tracker.add(10 + 0.01 * i, i);
    EXPECT_NEAR(tracker.velocityAt(10.07), 100, 1e-6);
}
