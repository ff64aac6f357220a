// One column by itself: steps and turns to a row, as keys make them, and orders that come at an odd moment.

#include <limits>

#include <gtest/gtest.h>

#include "UIPickerTurn.h"

using namespace gx;
using State = UIPickerTurn::State;

namespace {

struct UIPickerTurnSteps : testing::Test {
    UIPickerTurn turn;
    UIPickerTurnSteps() {
        turn.setRows_height_extent(100, 40, 216, 50);
        turn.standOnRow(50);
    }
};

} // namespace

TEST_F(UIPickerTurnSteps, a_step_takes_the_time_of_a_notch_and_lands) {
    EXPECT_TRUE(turn.stepByRows(1));
    EXPECT_EQ(turn.state(), State::Gliding);
    EXPECT_EQ(turn.landingRow(), 51);
    turn.advanceToTime(10);
    turn.advanceToTime(10.139);
    EXPECT_EQ(turn.takeLanding(), std::nullopt);
    turn.advanceToTime(10.141);
    EXPECT_EQ(turn.takeLanding(), 51);
    EXPECT_EQ(turn.state(), State::AtRest);
}

TEST_F(UIPickerTurnSteps, steps_add_up_from_the_row_that_is_headed_for) {
    turn.stepByRows(1);
    turn.advanceToTime(10);
    turn.advanceToTime(10.01);
    turn.stepByRows(1);
    turn.stepByRows(-4);
    EXPECT_EQ(turn.landingRow(), 48);
}

TEST_F(UIPickerTurnSteps, a_longer_way_takes_the_time_of_a_request) {
    turn.turnToRow(52);
    turn.advanceToTime(10);
    turn.advanceToTime(10.299);
    EXPECT_EQ(turn.takeLanding(), std::nullopt);
    turn.advanceToTime(10.301);
    EXPECT_EQ(turn.takeLanding(), 52);
}

TEST_F(UIPickerTurnSteps, the_end_holds_every_step) {
    constexpr NSInteger largest = std::numeric_limits<NSInteger>::max();
    turn.stepByRows(largest);
    EXPECT_EQ(turn.landingRow(), 99);
    turn.stepByRows(std::numeric_limits<NSInteger>::min());
    EXPECT_EQ(turn.landingRow(), 0);
    turn.turnToRow(100);
    EXPECT_EQ(turn.landingRow(), 99);
    turn.turnToRow(-1);
    EXPECT_EQ(turn.landingRow(), 0);
}

TEST_F(UIPickerTurnSteps, at_the_end_there_is_nothing_to_turn) {
    turn.standOnRow(99);
    EXPECT_TRUE(turn.stepByRows(1));
    EXPECT_EQ(turn.state(), State::AtRest);
    EXPECT_TRUE(turn.turnToRow(99));
    EXPECT_EQ(turn.state(), State::AtRest);
}

TEST_F(UIPickerTurnSteps, a_step_beyond_the_end_does_not_hold_up_the_way_there) {
    turn.standOnRow(98);
    turn.stepByRows(1);
    turn.advanceToTime(10);
    turn.advanceToTime(10.1);
    turn.stepByRows(1);
    turn.advanceToTime(10.141);
    EXPECT_EQ(turn.takeLanding(), 99);
}

TEST_F(UIPickerTurnSteps, a_finger_goes_before_keys) {
    turn.touchBegan(1, 100, 10);
    EXPECT_TRUE(turn.isHeld());
    EXPECT_FALSE(turn.stepByRows(1));
    EXPECT_FALSE(turn.turnToRow(3));
    EXPECT_EQ(turn.state(), State::Touched);
}

TEST_F(UIPickerTurnSteps, without_rows_there_is_no_step) {
    turn.setRows_height_extent(0, 40, 216, 0);
    EXPECT_FALSE(turn.stepByRows(1));
    EXPECT_FALSE(turn.turnToRow(0));
}

TEST_F(UIPickerTurnSteps, a_landing_that_nobody_has_taken_is_turned_on) {
    turn.stepByRows(1);
    turn.finish();
    EXPECT_EQ(turn.state(), State::Landed);
    turn.stepByRows(1);
    turn.finish();
    EXPECT_EQ(turn.takeLanding(), 52);
    EXPECT_EQ(turn.takeLanding(), std::nullopt);
}

TEST_F(UIPickerTurnSteps, each_row_passes_once) {
    turn.turnToRow(55);
    NSInteger passed = 0;
    for (double time = 10; time < 11; time += 0.01) {
        turn.advanceToTime(time);
        passed += turn.takePassedRows();
    }
    EXPECT_EQ(passed, 5);
}

TEST_F(UIPickerTurnSteps, a_notch_beyond_the_end_does_not_hold_up_the_way_there) {
    turn.standOnRow(98);
    EXPECT_TRUE(turn.scrollNotches(1, 10));
    turn.advanceToTime(10);
    turn.advanceToTime(10.139);
    EXPECT_TRUE(turn.scrollNotches(1, 10));
    turn.advanceToTime(10.141);
    EXPECT_EQ(turn.state(), State::Landed);
    EXPECT_TRUE(turn.scrollNotches(1, 10));
    EXPECT_EQ(turn.takeLanding(), 99);
}

TEST_F(UIPickerTurnSteps, a_trackpad_told_by_another_clock_falls_silent_after_the_next_frame) {
    turn.scrollPoints(50, 1e300, false);
    turn.advanceToTime(10);
    EXPECT_EQ(turn.state(), State::Scrolled);
    turn.advanceToTime(10.121);
    EXPECT_EQ(turn.state(), State::Gliding);
    turn.advanceToTime(11);
    EXPECT_EQ(turn.takeLanding(), 51);
}

TEST_F(UIPickerTurnSteps, a_step_takes_over_from_a_request_and_from_a_trackpad) {
    turn.goToRow(60);
    EXPECT_TRUE(turn.turnToRow(50)) << "where it stands: it has not left yet";
    EXPECT_TRUE(turn.isUsersTurn());
    turn.finish();
    EXPECT_EQ(turn.takeLanding(), 50);
    turn.scrollPoints(40, 10, false);
    EXPECT_TRUE(turn.turnToRow(51)) << "the row that the trackpad has come to";
    EXPECT_EQ(turn.state(), State::Gliding);
}

TEST_F(UIPickerTurnSteps, a_step_during_a_fling_takes_what_is_left_of_its_time) {
    for (const bool isNotch : {true, false}) {
        UIPickerTurn flung;
        flung.setRows_height_extent(100, 40, 216, 50);
        flung.standOnRow(50);
        flung.touchBegan(1, 200, 9.9);
        for (int i = 1; i <= 10; ++i) flung.touchMoved(200 - 12 * i, 9.9 + 0.01 * i); // 30 rows a second
        flung.touchEnded(80, 10, std::nullopt);
        const NSInteger landing = flung.landingRow();
        flung.advanceToTime(10.1);
        ASSERT_GT(landing - flung.rowInBand(), 8) << "a way that would be seen as a leap";
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

TEST_F(UIPickerTurnSteps, a_step_near_the_end_of_a_movement_takes_the_time_of_a_notch) {
    turn.turnToRow(60);
    turn.advanceToTime(10);
    turn.advanceToTime(10.2); // 0.1 of 0.3 seconds left
    turn.stepByRows(1);
    turn.advanceToTime(10.2);
    turn.advanceToTime(10.339);
    EXPECT_EQ(turn.takeLanding(), std::nullopt);
    turn.advanceToTime(10.341);
    EXPECT_EQ(turn.takeLanding(), 61);
}

// Parts of a notch

TEST_F(UIPickerTurnSteps, parts_of_a_notch_make_whole_ones_whatever_their_sum_rounds_to) {
    for (const int parts : {3, 10, 30, 49, 120}) {
        for (const int direction : {1, -1}) {
            turn.standOnRow(50);
            for (int i = 0; i < 3 * parts - 1; ++i) turn.scrollNotches(direction * (1.0 / parts), 10);
            EXPECT_EQ(turn.landingRow(), 50 + 2 * direction) << parts << " parts, one of three notches missing";
            turn.scrollNotches(direction * (1.0 / parts), 10);
            EXPECT_EQ(turn.landingRow(), 50 + 3 * direction) << parts << " parts";
        }
    }
}

TEST_F(UIPickerTurnSteps, what_is_short_of_a_notch_by_more_than_rounding_is_none) {
    turn.scrollNotches(1 - 2e-6, 10);
    EXPECT_EQ(turn.state(), State::AtRest);
    turn.scrollNotches(1.5e-6, 10);
    EXPECT_EQ(turn.landingRow(), 51);
}

TEST_F(UIPickerTurnSteps, a_part_of_a_notch_is_forgotten_when_the_wheel_turns_the_other_way) {
    turn.scrollNotches(0.9, 10);
    turn.scrollNotches(-1, 10);
    EXPECT_EQ(turn.landingRow(), 49);
    turn.scrollNotches(-0.5, 10);
    turn.scrollNotches(0.5, 10);
    turn.scrollNotches(0.5, 10);
    EXPECT_EQ(turn.landingRow(), 50);
}

TEST_F(UIPickerTurnSteps, a_part_of_a_notch_is_forgotten_at_an_end) {
    turn.scrollNotches(60.5, 10);
    EXPECT_EQ(turn.landingRow(), 99);
    turn.finish();
    EXPECT_EQ(turn.takeLanding(), 99);
    turn.setRows_height_extent(200, 40, 216, 99);
    turn.scrollNotches(0.5, 10);
    EXPECT_EQ(turn.state(), State::AtRest);
    turn.standOnRow(1);
    turn.scrollNotches(-1.5, 10);
    turn.finish();
    turn.standOnRow(50);
    turn.scrollNotches(-0.5, 10);
    EXPECT_EQ(turn.state(), State::AtRest);
}

TEST_F(UIPickerTurnSteps, a_part_of_a_notch_is_forgotten_after_a_pause_of_more_than_a_second) {
    turn.scrollNotches(0.5, 10);
    turn.scrollNotches(0.5, 11);
    EXPECT_EQ(turn.landingRow(), 51);
    turn.scrollNotches(0.5, 11);
    turn.scrollNotches(0.5, 12.001);
    EXPECT_EQ(turn.landingRow(), 51);
    turn.scrollNotches(0.5, std::numeric_limits<double>::quiet_NaN());
    turn.scrollNotches(0.5, 13);
    EXPECT_EQ(turn.landingRow(), 51) << "a time that is no number goes on with nothing";
    turn.scrollNotches(0.5, 12);
    EXPECT_EQ(turn.landingRow(), 52) << "a clock that goes back is no pause";
}

// Orders that come at an odd moment

TEST_F(UIPickerTurnSteps, a_finger_goes_before_the_mouse_wheel_and_the_trackpad) {
    turn.touchBegan(1, 100, 10);
    EXPECT_FALSE(turn.scrollNotches(1, 10));
    EXPECT_FALSE(turn.scrollPoints(40, 10, false));
    EXPECT_EQ(turn.state(), State::Touched);
    EXPECT_EQ(turn.rowInBand(), 50);
}

TEST_F(UIPickerTurnSteps, without_rows_nothing_turns_it) {
    turn.setRows_height_extent(0, 40, 216, 0);
    turn.touchBegan(1, 100, 10);
    EXPECT_FALSE(turn.isHeld());
    EXPECT_FALSE(turn.scrollNotches(1, 10));
    EXPECT_FALSE(turn.scrollPoints(40, 10, false));
    EXPECT_EQ(turn.state(), State::AtRest);
}

TEST_F(UIPickerTurnSteps, a_trackpad_may_end_with_no_points) {
    EXPECT_TRUE(turn.scrollPoints(0, 10, true)) << "but not begin";
    EXPECT_EQ(turn.state(), State::AtRest);
    turn.scrollPoints(50, 10, false);
    EXPECT_EQ(turn.state(), State::Scrolled);
    EXPECT_TRUE(turn.scrollPoints(0, 10.01, true));
    EXPECT_EQ(turn.state(), State::Gliding) << "to the nearest row, without waiting for the pause";
    EXPECT_EQ(turn.landingRow(), 51);
}

TEST_F(UIPickerTurnSteps, rows_that_come_under_a_finger_beyond_the_end_are_followed_at_once) {
    turn.standOnRow(99);
    turn.touchBegan(1, 100, 10);
    turn.touchMoved(14, 10.1); // 80 points, after the slop of 6.
    // Two rows beyond the end of 216 points: (1 − 1 / (0.55 · 80 / 216 + 1)) · 216 = 36.55 points.
    EXPECT_NEAR(turn.offset() * 40, 36.553846, 1e-6);
    turn.setRows_height_extent(102, 40, 216, 99);
    EXPECT_DOUBLE_EQ(turn.offset(), 2);
    EXPECT_EQ(turn.landingRow(), 101);
}

TEST_F(UIPickerTurnSteps, a_movement_that_is_told_only_with_the_release_turns) {
    turn.touchBegan(1, 100, 10);
    turn.touchEnded(53, 12, std::nullopt); // 47 points less the slop of 6, long after it came down: no speed.
    EXPECT_EQ(turn.state(), State::Gliding);
    EXPECT_EQ(turn.landingRow(), 51);
    turn.finish();
    turn.takeLanding();
    turn.touchBegan(1, 100, 20);
    turn.touchEnded(94, 22, std::nullopt);
    EXPECT_EQ(turn.state(), State::AtRest) << "within the slop it is none";
}

TEST_F(UIPickerTurnSteps, settling_under_a_finger_that_turned_nothing_reports_nothing) {
    turn.touchBegan(1, 100, 10);
    turn.finish();
    EXPECT_EQ(turn.state(), State::AtRest);
    EXPECT_EQ(turn.takeLanding(), std::nullopt);
    turn.turnToRow(60);
    turn.advanceToTime(20);
    turn.advanceToTime(20.15);
    // Half the time leaves an eighth of the way: 1.25 rows before row 60.
    turn.touchBegan(1, 100, 20.15);
    turn.finish();
    EXPECT_EQ(turn.takeLanding(), 59) << "one that stopped a turn reports where it stopped it";
}
