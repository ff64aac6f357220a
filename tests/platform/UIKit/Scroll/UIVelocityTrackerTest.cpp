#include "UIVelocityTracker.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace gx;

TEST(UIVelocityTracker, takes_the_speed_from_the_places_of_the_last_tenth_of_a_second) {
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

TEST(UIVelocityTracker, a_finger_that_rests_has_no_speed) {
    UIVelocityTracker tracker;
    tracker.add(10, 0);
    tracker.add(10.05, 10);
    EXPECT_NEAR(tracker.velocityAt(10.109), 200, 1e-6);
    EXPECT_EQ(tracker.velocityAt(10.111), 0);
}

TEST(UIVelocityTracker, places_that_come_out_of_order_never_turn_the_speed_around) {
    UIVelocityTracker tracker;
    tracker.add(10.02, 0);
    tracker.add(10.01, 10);
    EXPECT_EQ(tracker.velocityAt(10.01), 0);
    tracker.add(10.06, 20); // 10 points in 0.05 s: what came before 10.01 is another time.
    EXPECT_NEAR(tracker.velocityAt(10.06), 200, 1e-6);
}

TEST(UIVelocityTracker, places_at_one_time_and_at_no_time_have_no_speed) {
    UIVelocityTracker tracker;
    tracker.add(10, 0);
    tracker.add(10, 10);
    EXPECT_EQ(tracker.velocityAt(10), 0);
    tracker.add(std::nan(""), 20);
    EXPECT_EQ(tracker.velocityAt(10), 0);
}
