// One column by itself: steps and moves to a row, as keys make them, and input at an odd moment.

#include <limits>

#include <gtest/gtest.h>

#include "UIPickerColumnAxis.h"

using namespace gx;
using State = UIPickerColumnAxis::State;

namespace {

struct UIPickerColumnAxisTest : testing::Test {
    UIPickerColumnAxis axis;
    UIPickerColumnAxisTest() {
        axis.setRows_height_extent(100, 40, 216, 50);
        axis.restOnRow(50);
    }
};

} // namespace

TEST_F(UIPickerColumnAxisTest, AStepTakesTheTimeOfANotchAndLands) {
    EXPECT_TRUE(axis.stepByRows(1));
    EXPECT_EQ(axis.state(), State::Gliding);
    EXPECT_EQ(axis.landingRow(), 51);
    axis.advanceToTime(10);
    axis.advanceToTime(10.139);
    EXPECT_EQ(axis.takeLanding(), std::nullopt);
    axis.advanceToTime(10.141);
    EXPECT_EQ(axis.takeLanding(), 51);
    EXPECT_EQ(axis.state(), State::AtRest);
}

TEST_F(UIPickerColumnAxisTest, StepsAddUpFromTheLandingRow) {
    axis.stepByRows(1);
    axis.advanceToTime(10);
    axis.advanceToTime(10.01);
    axis.stepByRows(1);
    axis.stepByRows(-4);
    EXPECT_EQ(axis.landingRow(), 48);
}

TEST_F(UIPickerColumnAxisTest, ALongerWayTakesTheTimeOfARequest) {
    axis.spinToRow(52);
    axis.advanceToTime(10);
    axis.advanceToTime(10.299);
    EXPECT_EQ(axis.takeLanding(), std::nullopt);
    axis.advanceToTime(10.301);
    EXPECT_EQ(axis.takeLanding(), 52);
}

TEST_F(UIPickerColumnAxisTest, EveryStepIsClampedToTheRows) {
    constexpr NSInteger largest = std::numeric_limits<NSInteger>::max();
    axis.stepByRows(largest);
    EXPECT_EQ(axis.landingRow(), 99);
    axis.stepByRows(std::numeric_limits<NSInteger>::min());
    EXPECT_EQ(axis.landingRow(), 0);
    axis.spinToRow(100);
    EXPECT_EQ(axis.landingRow(), 99);
    axis.spinToRow(-1);
    EXPECT_EQ(axis.landingRow(), 0);
}

TEST_F(UIPickerColumnAxisTest, AtTheEndAStepMovesNothing) {
    axis.restOnRow(99);
    EXPECT_TRUE(axis.stepByRows(1));
    EXPECT_EQ(axis.state(), State::AtRest);
    EXPECT_TRUE(axis.spinToRow(99));
    EXPECT_EQ(axis.state(), State::AtRest);
}

TEST_F(UIPickerColumnAxisTest, AStepBeyondTheEndDoesNotDelayTheMovementThere) {
    axis.restOnRow(98);
    axis.stepByRows(1);
    axis.advanceToTime(10);
    axis.advanceToTime(10.1);
    axis.stepByRows(1);
    axis.advanceToTime(10.141);
    EXPECT_EQ(axis.takeLanding(), 99);
}

TEST_F(UIPickerColumnAxisTest, AColumnUnderAFingerIgnoresSteps) {
    axis.touchBegan(1, 100, 10);
    EXPECT_TRUE(axis.isHeld());
    EXPECT_FALSE(axis.stepByRows(1));
    EXPECT_FALSE(axis.spinToRow(3));
    EXPECT_EQ(axis.state(), State::Touched);
}

TEST_F(UIPickerColumnAxisTest, WithoutRowsThereIsNoStep) {
    axis.setRows_height_extent(0, 40, 216, 0);
    EXPECT_FALSE(axis.stepByRows(1));
    EXPECT_FALSE(axis.spinToRow(0));
}

TEST_F(UIPickerColumnAxisTest, ALandingThatWasNotTakenGoesOnWithTheNextStep) {
    axis.stepByRows(1);
    axis.finish();
    EXPECT_EQ(axis.state(), State::Landed);
    axis.stepByRows(1);
    axis.finish();
    EXPECT_EQ(axis.takeLanding(), 52);
    EXPECT_EQ(axis.takeLanding(), std::nullopt);
}

TEST_F(UIPickerColumnAxisTest, EachRowPassesOnce) {
    axis.spinToRow(55);
    NSInteger passed = 0;
    for (double time = 10; time < 11; time += 0.01) {
        axis.advanceToTime(time);
        passed += axis.takePassedRows();
    }
    EXPECT_EQ(passed, 5);
}

TEST_F(UIPickerColumnAxisTest, ANotchBeyondTheEndDoesNotDelayTheMovementThere) {
    axis.restOnRow(98);
    EXPECT_TRUE(axis.scrollNotches(1, 10));
    axis.advanceToTime(10);
    axis.advanceToTime(10.139);
    EXPECT_TRUE(axis.scrollNotches(1, 10));
    axis.advanceToTime(10.141);
    EXPECT_EQ(axis.state(), State::Landed);
    EXPECT_TRUE(axis.scrollNotches(1, 10));
    EXPECT_EQ(axis.takeLanding(), 99);
}

TEST_F(UIPickerColumnAxisTest, ATrackpadTimedByAnotherClockEndsAfterTheNextFrame) {
    axis.scrollPoints(50, 1e300, false);
    axis.advanceToTime(10);
    EXPECT_EQ(axis.state(), State::Scrolled);
    axis.advanceToTime(10.121);
    EXPECT_EQ(axis.state(), State::Gliding);
    axis.advanceToTime(11);
    EXPECT_EQ(axis.takeLanding(), 51);
}

TEST_F(UIPickerColumnAxisTest, AStepTakesOverFromARequestAndFromATrackpad) {
    axis.requestRow(60);
    EXPECT_TRUE(axis.spinToRow(50)) << "where it is: it has not left yet";
    EXPECT_TRUE(axis.isUsersGesture());
    axis.finish();
    EXPECT_EQ(axis.takeLanding(), 50);
    axis.scrollPoints(40, 10, false);
    EXPECT_TRUE(axis.spinToRow(51)) << "the row that the trackpad has come to";
    EXPECT_EQ(axis.state(), State::Gliding);
}

TEST_F(UIPickerColumnAxisTest, AStepDuringAFlingTakesWhatIsLeftOfItsTime) {
    for (const bool isNotch : {true, false}) {
        UIPickerColumnAxis flung;
        flung.setRows_height_extent(100, 40, 216, 50);
        flung.restOnRow(50);
        flung.touchBegan(1, 200, 9.9);
        // 30 rows a second
        for (int i = 1; i <= 10; ++i) flung.touchMoved(200 - 12 * i, 9.9 + 0.01 * i);
        flung.touchEnded(80, 10, std::nullopt);
        const NSInteger landing = flung.landingRow();
        flung.advanceToTime(10.1);
        ASSERT_GT(landing - flung.nearestRow(), 8) << "a way that would be seen as a leap";
        EXPECT_TRUE(isNotch ? flung.scrollNotches(1, 10.1) : flung.stepByRows(1));
        EXPECT_EQ(flung.landingRow(), landing + 1);
        double before = static_cast<double>(flung.anchorRow()) + flung.offset();
        double ended = 0;
        for (double time = 10.1; ended == 0 && time < 14; time += 0.01) {
            if (!flung.advanceToTime(time) || flung.state() == State::Landed) ended = time;
            const double place = static_cast<double>(flung.anchorRow()) + flung.offset();
            EXPECT_LT(place - before, 0.31) << "30 rows a second are 0.3 in each frame";
            before = place;
        }
        EXPECT_NEAR(ended, 12.39, 0.1) << "ln(30 / 0.25) / 2.002 after the release";
        EXPECT_EQ(flung.takeLanding(), landing + 1);
    }
}

TEST_F(UIPickerColumnAxisTest, AStepNearTheEndOfAMovementTakesTheTimeOfANotch) {
    axis.spinToRow(60);
    axis.advanceToTime(10);
    axis.advanceToTime(10.2); // 0.1 of 0.3 seconds left
    axis.stepByRows(1);
    axis.advanceToTime(10.2);
    axis.advanceToTime(10.339);
    EXPECT_EQ(axis.takeLanding(), std::nullopt);
    axis.advanceToTime(10.341);
    EXPECT_EQ(axis.takeLanding(), 61);
}

// Parts of a notch

TEST_F(UIPickerColumnAxisTest, PartsOfANotchMakeWholeOnesWhateverTheirSumRoundsTo) {
    for (const int parts : {3, 10, 30, 49, 120}) {
        for (const int direction : {1, -1}) {
            axis.restOnRow(50);
            for (int i = 0; i < 3 * parts - 1; ++i) axis.scrollNotches(direction * (1.0 / parts), 10);
            EXPECT_EQ(axis.landingRow(), 50 + 2 * direction) << parts << " parts, one of three notches missing";
            axis.scrollNotches(direction * (1.0 / parts), 10);
            EXPECT_EQ(axis.landingRow(), 50 + 3 * direction) << parts << " parts";
        }
    }
}

TEST_F(UIPickerColumnAxisTest, LessThanANotchByMoreThanRoundingIsNoNotch) {
    axis.scrollNotches(1 - 2e-6, 10);
    EXPECT_EQ(axis.state(), State::AtRest);
    axis.scrollNotches(1.5e-6, 10);
    EXPECT_EQ(axis.landingRow(), 51);
}

TEST_F(UIPickerColumnAxisTest, APartOfANotchIsDroppedWhenTheDirectionChanges) {
    axis.scrollNotches(0.9, 10);
    axis.scrollNotches(-1, 10);
    EXPECT_EQ(axis.landingRow(), 49);
    axis.scrollNotches(-0.5, 10);
    axis.scrollNotches(0.5, 10);
    axis.scrollNotches(0.5, 10);
    EXPECT_EQ(axis.landingRow(), 50);
}

TEST_F(UIPickerColumnAxisTest, APartOfANotchIsDroppedAtAnEnd) {
    axis.scrollNotches(60.5, 10);
    EXPECT_EQ(axis.landingRow(), 99);
    axis.finish();
    EXPECT_EQ(axis.takeLanding(), 99);
    axis.setRows_height_extent(200, 40, 216, 99);
    axis.scrollNotches(0.5, 10);
    EXPECT_EQ(axis.state(), State::AtRest);
    axis.restOnRow(1);
    axis.scrollNotches(-1.5, 10);
    axis.finish();
    axis.restOnRow(50);
    axis.scrollNotches(-0.5, 10);
    EXPECT_EQ(axis.state(), State::AtRest);
}

TEST_F(UIPickerColumnAxisTest, APartOfANotchIsDroppedAfterAPauseOfMoreThanASecond) {
    axis.scrollNotches(0.5, 10);
    axis.scrollNotches(0.5, 11);
    EXPECT_EQ(axis.landingRow(), 51);
    axis.scrollNotches(0.5, 11);
    axis.scrollNotches(0.5, 12.001);
    EXPECT_EQ(axis.landingRow(), 51);
    axis.scrollNotches(0.5, std::numeric_limits<double>::quiet_NaN());
    axis.scrollNotches(0.5, 13);
    EXPECT_EQ(axis.landingRow(), 51) << "a time that is no number goes on with nothing";
    axis.scrollNotches(0.5, 12);
    EXPECT_EQ(axis.landingRow(), 52) << "a clock that goes back is no pause";
}

// Input at an odd moment

TEST_F(UIPickerColumnAxisTest, AColumnUnderAFingerIgnoresTheMouseWheelAndTheTrackpad) {
    axis.touchBegan(1, 100, 10);
    EXPECT_FALSE(axis.scrollNotches(1, 10));
    EXPECT_FALSE(axis.scrollPoints(40, 10, false));
    EXPECT_EQ(axis.state(), State::Touched);
    EXPECT_EQ(axis.nearestRow(), 50);
}

TEST_F(UIPickerColumnAxisTest, WithoutRowsNothingMovesIt) {
    axis.setRows_height_extent(0, 40, 216, 0);
    axis.touchBegan(1, 100, 10);
    EXPECT_FALSE(axis.isHeld());
    EXPECT_FALSE(axis.scrollNotches(1, 10));
    EXPECT_FALSE(axis.scrollPoints(40, 10, false));
    EXPECT_EQ(axis.state(), State::AtRest);
}

TEST_F(UIPickerColumnAxisTest, ATrackpadMayEndWithNoPoints) {
    EXPECT_TRUE(axis.scrollPoints(0, 10, true)) << "but not begin";
    EXPECT_EQ(axis.state(), State::AtRest);
    axis.scrollPoints(50, 10, false);
    EXPECT_EQ(axis.state(), State::Scrolled);
    EXPECT_TRUE(axis.scrollPoints(0, 10.01, true));
    EXPECT_EQ(axis.state(), State::Gliding) << "to the nearest row, without waiting for the pause";
    EXPECT_EQ(axis.landingRow(), 51);
}

TEST_F(UIPickerColumnAxisTest, RowsThatComeUnderAFingerBeyondTheEndAreFollowedAtOnce) {
    axis.restOnRow(99);
    axis.touchBegan(1, 100, 10);
    axis.touchMoved(14, 10.1); // 80 points, after the slop of 6.
    // Two rows beyond the end of 216 points: (1 − 1 / (0.55 · 80 / 216 + 1)) · 216 = 36.55 points.
    EXPECT_NEAR(axis.offset() * 40, 36.553846, 1e-6);
    axis.setRows_height_extent(102, 40, 216, 99);
    EXPECT_DOUBLE_EQ(axis.offset(), 2);
    EXPECT_EQ(axis.landingRow(), 101);
}

TEST_F(UIPickerColumnAxisTest, AMovementReportedOnlyWithTheReleaseCounts) {
    axis.touchBegan(1, 100, 10);
    // 47 points less the slop of 6, long after it came down: no speed.
    axis.touchEnded(53, 12, std::nullopt);
    EXPECT_EQ(axis.state(), State::Gliding);
    EXPECT_EQ(axis.landingRow(), 51);
    axis.finish();
    axis.takeLanding();
    axis.touchBegan(1, 100, 20);
    axis.touchEnded(94, 22, std::nullopt);
    EXPECT_EQ(axis.state(), State::AtRest) << "within the slop it is none";
}

TEST_F(UIPickerColumnAxisTest, FinishingUnderAFingerThatMovedNothingReportsNothing) {
    axis.touchBegan(1, 100, 10);
    axis.finish();
    EXPECT_EQ(axis.state(), State::AtRest);
    EXPECT_EQ(axis.takeLanding(), std::nullopt);
    axis.spinToRow(60);
    axis.advanceToTime(20);
    axis.advanceToTime(20.15);
    // Half the time leaves an eighth of the way: 1.25 rows before row 60.
    axis.touchBegan(1, 100, 20.15);
    axis.finish();
    EXPECT_EQ(axis.takeLanding(), 59) << "one that stopped a movement reports where it stopped it";
}
