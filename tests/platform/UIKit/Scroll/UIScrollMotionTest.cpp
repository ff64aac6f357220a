#include "UIScrollMotion.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using gx::UIScrollMotion;

TEST(UIScrollMotion, AFlingTravelsItsSpeedOverTheDragOfItsDeceleration) {
    // 1000 · ln(1/0.998) = 2.0020026706729688
    EXPECT_NEAR(UIScrollMotion::travelOfVelocity(2.0020026706729688), 1, 1e-12);
    EXPECT_NEAR(UIScrollMotion::travelOfVelocity(-20.020026706729688), -10, 1e-12);
}

TEST(UIScrollMotion, TheRubberBandFollowsLessAndLessAndNeverFurtherThanItsExtent) {
    // (1 − 1 / (0.55 · 100 / 200 + 1)) · 200 = 43.13725490196079
    EXPECT_NEAR(UIScrollMotion::rubberBand(100, 200), 43.13725490196079, 1e-12);
    EXPECT_LT(UIScrollMotion::rubberBand(1e12, 200), 200);
    EXPECT_EQ(UIScrollMotion::rubberBand(0, 200), 0);
    EXPECT_EQ(UIScrollMotion::rubberBand(100, 0), 0);
}

TEST(UIScrollMotion, TheRubberBandHasAnInverse) {
    for (const double way : {0.1, 10.0, 100.0, 1000.0}) {
        EXPECT_NEAR(UIScrollMotion::rubberBandInverse(UIScrollMotion::rubberBand(way, 216), 216), way, way * 1e-12);
    }
    EXPECT_TRUE(std::isfinite(UIScrollMotion::rubberBandInverse(500, 216)));
}

TEST(UIScrollMotion, AnEaseRunsFromItsStartToItsEndInItsTime) {
    const UIScrollMotion motion = UIScrollMotion::ease(2, 10, 0.3, 100.0);
    EXPECT_EQ(motion.positionAt(99), 2);
    EXPECT_EQ(motion.positionAt(100), 2);
    EXPECT_NEAR(motion.positionAt(100.15), 9, 1e-9); // 2 + 8 · (1 − 0.5³)
    EXPECT_FALSE(motion.isOverAt(100.2999));
    EXPECT_TRUE(motion.isOverAt(100.3001));
    EXPECT_EQ(motion.positionAt(100.3001), 10);
    EXPECT_EQ(motion.positionAt(1e9), 10);
}

TEST(UIScrollMotion, WithoutAStartItBeginsWithTheFirstFrame) {
    UIScrollMotion motion = UIScrollMotion::ease(0, 1, 0.3, std::nullopt);
    EXPECT_FALSE(motion.isOverAt(1e9));
    motion.beginAt(50);
    motion.beginAt(60);
    EXPECT_TRUE(motion.isOverAt(50.3001));
}

namespace {

/// Follows a motion at 1000 frames a second and returns its duration. Checks that it never moves
/// faster than `fastest`.
double follow(const UIScrollMotion& motion, double fastest) {
    double before = motion.positionAt(0);
    for (int i = 1; i < 20000; ++i) {
        const double time = i / 1000.0;
        const double now = motion.positionAt(time);
        EXPECT_LE(std::fabs(now - before), fastest / 1000 * 1.02 + 1e-3) << "a jump at " << time;
        before = now;
        if (motion.isOverAt(time)) return time;
    }
    ADD_FAILURE() << "never over";
    return 20;
}

} // namespace

TEST(UIScrollMotion, AFlingBeginsWithTheFingersSpeedAndEndsOnItsRowWithoutAJump) {
    for (const double velocity : {3.0, 10.0, 30.0, 100.0, -30.0}) {
        const double to = std::round(UIScrollMotion::travelOfVelocity(velocity));
        const UIScrollMotion motion = UIScrollMotion::fling(0, velocity, to, std::copysign(1e6, velocity), 0);
        const double startSpeed = (motion.positionAt(1e-4) - motion.positionAt(0)) / 1e-4;
        // A row more than the travel makes it start a little faster, at most as much faster as the
        // way is longer.
        EXPECT_NEAR(startSpeed / velocity, 1, 0.35) << velocity;
        const double seconds = follow(motion, std::fabs(startSpeed));
        EXPECT_EQ(motion.positionAt(seconds), to);
        const double endSpeed = (to - motion.positionAt(seconds - 0.003)) / 0.003;
        EXPECT_LT(std::fabs(endSpeed), 0.2) << "it comes to rest, it does not stop dead";
    }
}

TEST(UIScrollMotion, AFlingThatRoundsBackToItsOwnRowEasesThere) {
    const UIScrollMotion motion = UIScrollMotion::fling(0.2, 0.4, 0, 10, 0);
    EXPECT_NEAR(follow(motion, 5), UIScrollMotion::snapDuration, 0.0011);
}

TEST(UIScrollMotion, AFlingAgainstAnEndSwingsOverItOnceAndComesBack) {
    const UIScrollMotion motion = UIScrollMotion::fling(0, 50, 5, 5, 0);
    double highest = 0;
    bool isBack = false;
    for (int i = 0; i < 2000; ++i) {
        const double position = motion.positionAt(i / 1000.0);
        if (position > 5 && isBack) ADD_FAILURE() << "swings twice";
        if (highest > 5 && position == 5) isBack = true;
        highest = std::max(highest, position);
    }
    EXPECT_GT(highest, 5.3);
    EXPECT_LT(highest, 6.5);
    EXPECT_TRUE(isBack);
    follow(motion, 50);
}

TEST(UIScrollMotion, TheCurveIsTheSameAtAnyFrameRate) {
    const UIScrollMotion motion = UIScrollMotion::fling(0, 40, 20, 1e6, 0);
    // At any time the position is the same, whatever was read before.
    const double late = motion.positionAt(1.5);
    const double early = motion.positionAt(0.5);
    EXPECT_EQ(motion.positionAt(0.5), early);
    EXPECT_EQ(motion.positionAt(1.5), late);
}

TEST(UIScrollMotion, TimeThatIsNoNumberOrRunsBackwardMovesNothing) {
    const UIScrollMotion motion = UIScrollMotion::fling(0, 40, 20, 1e6, 10);
    EXPECT_EQ(motion.positionAt(9), 0);
    EXPECT_EQ(motion.positionAt(std::nan("")), 0);
    EXPECT_FALSE(motion.isOverAt(std::nan("")));
}

TEST(UIScrollMotion, TheSpeedOfAFlingIsTheSlopeOfItsCurve) {
    const UIScrollMotion free = UIScrollMotion::fling(0, 40, 20, 1e6, 10);
    // meets the end after 0.11 s
    const UIScrollMotion back = UIScrollMotion::fling(0, -50, -5, -5, 10);
    for (const double time : {10.0, 10.01, 10.05, 10.1}) {
        EXPECT_NEAR(free.flingVelocityAt(time), (free.positionAt(time + 1e-6) - free.positionAt(time)) / 1e-6, 1e-3) << time;
        EXPECT_NEAR(back.flingVelocityAt(time), (back.positionAt(time + 1e-6) - back.positionAt(time)) / 1e-6, 1e-3) << time;
    }
    EXPECT_LT(back.flingVelocityAt(10.11), -39);
    EXPECT_NEAR(free.flingVelocityAt(11.5), (free.positionAt(11.5 + 1e-6) - free.positionAt(11.5)) / 1e-6, 1e-3);
}

TEST(UIScrollMotion, TheTimeLeftRunsFromItsDurationToNothing) {
    const UIScrollMotion ease = UIScrollMotion::ease(0, 5, 0.5, 10);
    EXPECT_EQ(ease.timeLeftAt(9), 0.5);
    EXPECT_EQ(ease.timeLeftAt(10), 0.5);
    EXPECT_EQ(ease.timeLeftAt(10.125), 0.375);
    EXPECT_EQ(ease.timeLeftAt(10.5), 0);
    EXPECT_EQ(ease.timeLeftAt(11), 0);
    EXPECT_EQ(ease.timeLeftAt(std::numeric_limits<double>::quiet_NaN()), 0);
    EXPECT_EQ(UIScrollMotion::ease(0, 5, 0.5, std::nullopt).timeLeftAt(11), 0.5) << "it has not begun";
}

TEST(UIScrollMotion, OnlyAFlingHasASpeed) {
    const UIScrollMotion fling = UIScrollMotion::fling(0, 40, 20, 1e6, 10);
    EXPECT_EQ(fling.flingVelocityAt(9.99), 0) << "not begun";
    EXPECT_EQ(fling.flingVelocityAt(20), 0) << "over";
    EXPECT_EQ(fling.flingVelocityAt(std::nan("")), 0);
    // 50 rows a second, 5 rows before the end: ln(1 / (1 − 5 · 2.0020 / 50)) / 2.0020 = 0.1116 s.
    const UIScrollMotion bounce = UIScrollMotion::fling(0, 50, 5, 5, 10);
    EXPECT_GT(bounce.flingVelocityAt(10.111), 0);
    EXPECT_EQ(bounce.flingVelocityAt(10.112), 0) << "it has met the end";
    EXPECT_EQ(UIScrollMotion::ease(0, 10, 0.3, 10.0).flingVelocityAt(10.1), 0);
    EXPECT_EQ(UIScrollMotion::ease(0, 10, 0.3, std::nullopt).flingVelocityAt(10.1), 0);
}

TEST(UIScrollMotion, NoEndIsHitHarderThanWith100RowsASecond) {
    // Over by 100 / (18 · e) = 2.0437 rows; 90 rows a second that are left at the end swing over by
    // 1.8394.
    const auto over = [](double velocity) {
        const UIScrollMotion motion = UIScrollMotion::fling(0, velocity, 5, 5, 0);
        double highest = 0;
        for (int i = 0; i < 2000; ++i) highest = std::max(highest, motion.positionAt(i / 2000.0) - 5);
        return highest;
    };
    const double lost = 5 * 2.0020026706729688;
    EXPECT_NEAR(over(90 + lost), 1.8394, 1e-3);
    EXPECT_NEAR(over(100 + lost), 2.0437, 1e-3);
    EXPECT_NEAR(over(101 + lost), 2.0437, 1e-3);
    EXPECT_NEAR(over(1e6), 2.0437, 1e-3);
}

TEST(UIScrollMotion, AnEndThatIsReachedAtACrawlIsNoBounce) {
    // 20 rows a second run 9.990 rows; with the end 0.01 before that, 3.5 seconds would pass until
    // it is hit.
    const UIScrollMotion crawl = UIScrollMotion::fling(0, 20, 9.98, 9.98, 0);
    EXPECT_TRUE(crawl.isOverAt(2.3));
    for (double time = 0; time < 3; time += 0.01) EXPECT_LE(crawl.positionAt(time), 9.98);
    EXPECT_EQ(crawl.positionAt(3), 9.98);
}

TEST(UIScrollMotion, AStartThatLiesMoreThanASecondAfterAFrameIsThatFrame) {
    for (const double start : {11.001, 1e300}) {
        UIScrollMotion early = UIScrollMotion::ease(2, 10, 0.3, start);
        early.beginAt(10);
        EXPECT_NEAR(early.positionAt(10.15), 9, 1e-9); // 2 + 8 · (1 − 0.5³)
        EXPECT_TRUE(early.isOverAt(10.3001));
    }
    UIScrollMotion ahead = UIScrollMotion::ease(2, 10, 0.3, 11);
    ahead.beginAt(10); // A second: clocks may differ so far.
    EXPECT_EQ(ahead.positionAt(10.15), 2);
    EXPECT_NEAR(ahead.positionAt(11.15), 9, 1e-9);
    UIScrollMotion seen = UIScrollMotion::ease(2, 10, 0.3, 10);
    seen.beginAt(10.1);
    seen.beginAt(9.001); // It runs back with the clock, and on with it …
    EXPECT_EQ(seen.positionAt(9.001), 2);
    EXPECT_NEAR(seen.positionAt(10.15), 9, 1e-9);
    seen.beginAt(8.5); // … but does not wait for it.
    EXPECT_EQ(seen.positionAt(8.5), 2);
    EXPECT_NEAR(seen.positionAt(8.65), 9, 1e-9);
    EXPECT_TRUE(seen.isOverAt(8.8001));
}

TEST(UIScrollMotion, ARubberBandWithoutExtentOrPullIs0) {
    EXPECT_EQ(UIScrollMotion::rubberBandInverse(5, 0), 0);
    EXPECT_EQ(UIScrollMotion::rubberBandInverse(0, 216), 0);
    EXPECT_EQ(UIScrollMotion::rubberBandInverse(-5, 216), 0);
    EXPECT_EQ(UIScrollMotion::rubberBand(5, 0), 0);
    EXPECT_EQ(UIScrollMotion::rubberBand(-5, 216), 0);
}

TEST(UIScrollMotion, BeforeItBeginsItIsAtItsStart) {
    const UIScrollMotion motion = UIScrollMotion::ease(3, 0, 0.3, std::nullopt);
    EXPECT_EQ(motion.positionAt(1000), 3);
    EXPECT_FALSE(motion.isOverAt(1000));
}
