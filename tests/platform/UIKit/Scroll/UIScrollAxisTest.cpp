// One scroll axis by itself, with the feel of a scroll view and with that of a wheel's column.

#include "UIScrollAxis.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace gx;
using State = UIScrollAxis::State;

namespace {

/// Positions from 0 to 600 points, of which 400 are in sight.
struct UIScrollAxisFree : testing::Test {
    UIScrollAxis axis{UIScrollFeel::scrollView};
    UIScrollAxisFree() { axis.setRange({0, 600, 400, 1}); }
};

/// Rows 0 to 9 of 40 points, of which 5 are in sight.
struct UIScrollAxisRows : testing::Test {
    UIScrollAxis axis{UIScrollFeel::wheelColumn};
    UIScrollAxisRows() { axis.setRange({0, 9, 5, 40}); }
};

} // namespace

TEST_F(UIScrollAxisFree, LandsAnywhereBetweenTheEnds) {
    EXPECT_EQ(axis.landingNear(12.6), 12.6);
    EXPECT_EQ(axis.landingNear(-1), 0);
    EXPECT_EQ(axis.landingNear(600.5), 600);
}

TEST_F(UIScrollAxisRows, LandsOnTheNearestRow) {
    EXPECT_EQ(axis.landingNear(2.49), 2);
    EXPECT_EQ(axis.landingNear(2.5), 3);
    EXPECT_EQ(axis.landingNear(9.7), 9);
    EXPECT_EQ(axis.landingNear(-3), 0);
}

TEST_F(UIScrollAxisFree, FollowsFromWhereAFingerIsFoundBeyondTheSlop) {
    axis.touchBegan(1, 100, 10);
    EXPECT_FALSE(axis.touchMoved(92, 10.1));
    EXPECT_EQ(axis.state(), State::Touched) << "8 points are the slop";
    EXPECT_TRUE(axis.touchMoved(91, 10.2)) << "it begins to drag";
    EXPECT_EQ(axis.position(), 0);
    EXPECT_FALSE(axis.touchMoved(81, 10.3)) << "it has begun before";
    EXPECT_EQ(axis.position(), 10);
}

TEST_F(UIScrollAxisRows, FollowsFromTheEdgeOfTheSlop) {
    axis.touchBegan(1, 100, 10);
    EXPECT_FALSE(axis.touchMoved(94, 10.1));
    EXPECT_EQ(axis.state(), State::Touched) << "6 points are the slop";
    EXPECT_TRUE(axis.touchMoved(84, 10.2));
    EXPECT_DOUBLE_EQ(axis.position(), 0.25) << "16 points less the slop are a quarter of a row";
}

TEST_F(UIScrollAxisFree, ContentThatFitsCannotBePulledButARowCan) {
    axis.setRange({0, 0, 400, 1});
    axis.touchBegan(1, 100, 10);
    axis.touchMoved(200, 10.1);
    axis.touchMoved(300, 10.2);
    EXPECT_EQ(axis.position(), 0);
    UIScrollAxis column(UIScrollFeel::wheelColumn);
    column.setRange({0, 0, 5, 40});
    column.touchBegan(1, 100, 10);
    column.touchMoved(146, 10.1);
    // One row beyond the end: (1 − 1 / (0.55 · 1 / 5 + 1)) · 5 rows.
    EXPECT_NEAR(column.position(), -0.4954955, 1e-7);
    EXPECT_TRUE(column.isBeyondEnd());
}

TEST_F(UIScrollAxisFree, AFingerThatStopsAMovementHasCaughtIt) {
    axis.touchBegan(1, 100, 10);
    EXPECT_FALSE(axis.hasCaughtMovement());
    axis.restAt(100);
    axis.easeTo(200, 0.3, 10);
    axis.advanceToTime(10.15);
    axis.touchBegan(1, 100, 10.15);
    EXPECT_TRUE(axis.hasCaughtMovement());
    EXPECT_DOUBLE_EQ(axis.position(), 187.5) << "half the time leaves an eighth of the way";
}

TEST_F(UIScrollAxisFree, AMoveReportedWithTheReleaseCountsBeyondTheSlop) {
    axis.touchBegan(1, 100, 10);
    EXPECT_FALSE(axis.isMoveTo(100));
    EXPECT_FALSE(axis.isMoveTo(92));
    EXPECT_TRUE(axis.isMoveTo(91));
    axis.touchMoved(80, 10.1);
    EXPECT_TRUE(axis.isMoveTo(81));
    EXPECT_FALSE(axis.isMoveTo(80));
}

TEST_F(UIScrollAxisFree, ThrowsAtTheFingersSpeedAgainstItsDirection) {
    axis.touchBegan(1, 300, 10);
    for (int i = 1; i <= 5; ++i) axis.touchMoved(300 - 20 * i, 10 + 0.01 * i);
    EXPECT_NEAR(axis.releaseVelocityAt(10.05), 2000, 1e-6);
}

TEST_F(UIScrollAxisRows, SpeedsAreInRows) {
    axis.touchBegan(1, 300, 10);
    for (int i = 1; i <= 5; ++i) axis.touchMoved(300 - 20 * i, 10 + 0.01 * i);
    EXPECT_NEAR(axis.releaseVelocityAt(10.05), 50, 1e-6);
}

TEST_F(UIScrollAxisFree, AMovementEndsExactlyOnItsTarget) {
    axis.restAt(0.1);
    axis.easeTo(333.3, 0.3, std::nullopt, State::Requested);
    EXPECT_EQ(axis.target(), 333.3);
    EXPECT_FALSE(axis.advanceToTime(10)) << "its clock begins here";
    EXPECT_FALSE(axis.advanceToTime(10.2999));
    EXPECT_TRUE(axis.advanceToTime(10.3001));
    EXPECT_EQ(axis.position(), 333.3);
    EXPECT_EQ(axis.state(), State::Requested) << "the owner ends it";
}

TEST_F(UIScrollAxisFree, AFlingIsTheOneOfRowsOf44Points) {
    axis.restAt(0);
    axis.flingTo(440, 880, 10);
    // d = 2.002, T = ln(20 / 0.25) / d = 2.189 s and friction f = d · 0.0125 / 0.9875 = 0.02534: it
    // begins with 10 · d / (1 − f · T) = 21.195 rows of 44 points a second.
    EXPECT_NEAR(axis.flingVelocityAt(10), 932.6, 0.1);
    UIScrollAxis column(UIScrollFeel::wheelColumn);
    column.setRange({0, 600.0 / 44, 400.0 / 44, 44});
    column.flingTo(10, 20, 10);
    for (const double time : {10.1, 10.5, 11.0, 12.0}) {
        axis.advanceToTime(time);
        column.advanceToTime(time);
        EXPECT_NEAR(axis.position(), 44 * column.position(), 1e-9) << time;
    }
}

TEST_F(UIScrollAxisRows, OnlyAGlideHasSpeedAndTimeLeft) {
    axis.flingTo(9, 20, 10);
    EXPECT_GT(axis.flingVelocityAt(10.1), 0);
    EXPECT_GT(axis.timeLeftAt(10.1), 0);
    axis.easeTo(3, 0.3, 10, State::Requested);
    EXPECT_EQ(axis.timeLeftAt(10.1), 0);
    axis.restAt(3);
    EXPECT_EQ(axis.flingVelocityAt(10.1), 0);
    EXPECT_EQ(axis.timeLeftAt(10.1), 0);
}

TEST_F(UIScrollAxisFree, LessRangeClampsWhatIsAtRestAndEndsAMovementBeyondIt) {
    axis.restAt(600);
    axis.setRange({0, 500, 400, 1});
    axis.adjustToRange();
    EXPECT_EQ(axis.position(), 500);
    axis.easeTo(400, 0.3, 10);
    axis.setRange({0, 400, 400, 1});
    axis.adjustToRange();
    EXPECT_EQ(axis.state(), State::Gliding) << "its target still exists";
    axis.setRange({0, 399, 400, 1});
    axis.adjustToRange();
    EXPECT_EQ(axis.state(), State::AtRest);
    EXPECT_EQ(axis.position(), 399);
}

TEST_F(UIScrollAxisFree, UnderAFingerARangeThatShrinksMovesNothingUntilItDrags) {
    axis.restAt(600);
    axis.touchBegan(1, 100, 10);
    axis.setRange({0, 400, 400, 1});
    axis.adjustToRange();
    EXPECT_EQ(axis.position(), 600);
    axis.touchMoved(91, 10.1);
    axis.adjustToRange();
    // 200 points beyond the end: (1 − 1 / (0.55 · 200 / 400 + 1)) · 400 = 86.27 points.
    EXPECT_NEAR(axis.position(), 486.2745, 1e-4);
}

TEST_F(UIScrollAxisRows, AnotherOriginKeepsThePlaceOnTheAxis) {
    axis.restAt(7);
    axis.scrollTo(7.5);
    axis.moveOrigin(7);
    axis.setRange({-7, 2, 5, 40});
    EXPECT_DOUBLE_EQ(axis.position(), 0.5);
    EXPECT_DOUBLE_EQ(axis.rawPosition(), 0.5);
}

TEST_F(UIScrollAxisRows, ALandingIsAtRestButStillToBeReported) {
    axis.touchBegan(1, 100, 10);
    axis.landAt(4);
    EXPECT_EQ(axis.state(), State::Landed);
    EXPECT_EQ(axis.position(), 4);
    EXPECT_FALSE(axis.isHeld());
    EXPECT_FALSE(axis.advanceToTime(11));
}

TEST_F(UIScrollAxisFree, WildPlacesLeaveAFiniteBoundedPull) {
    axis.touchBegan(1, 100, 10);
    axis.touchMoved(std::nan(""), 10.1);
    EXPECT_EQ(axis.state(), State::Touched);
    axis.touchMoved(1e308, 10.2);
    axis.touchMoved(-1e308, 10.3);
    EXPECT_GT(axis.position(), 999) << "pulled by nearly all that is in sight";
    EXPECT_LE(axis.position(), 1000);
}
