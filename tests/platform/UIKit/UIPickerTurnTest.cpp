// Steps and turns to a row, as keys make them.

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
    turn.settle();
    EXPECT_EQ(turn.state(), State::Landed);
    turn.stepByRows(1);
    turn.settle();
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
    EXPECT_TRUE(turn.scrollNotches(1));
    turn.advanceToTime(10);
    turn.advanceToTime(10.139);
    EXPECT_TRUE(turn.scrollNotches(1));
    turn.advanceToTime(10.141);
    EXPECT_EQ(turn.state(), State::Landed);
    EXPECT_TRUE(turn.scrollNotches(1));
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
