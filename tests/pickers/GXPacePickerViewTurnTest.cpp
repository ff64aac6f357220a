#include <cmath>

#include "GXPacePickerView.h"
#include "PickerTest.h"
#include "TestWindow.h"

using namespace gx;

namespace {

using TurnedMilePace = PickerTest<GXPacePickerView>;
struct TurnedPace : TurnedMilePace {
    TurnedPace() { picker->setIsMetric(true); }
    /// The speed of a pace per kilometre.
    static NSNumber pace(int minutes, int seconds) { return boxedDouble(1000.0 / (minutes * 60 + seconds)); }
    double told(std::size_t index) { return notices->list.at(index).value.doubleValue(); }
};
} // namespace

// From the wheel to the value

TEST_F(TurnedPace, ASelectionStoresABoxedDoubleAndSendsOneNoticeForComponent0) {
    const Calls calls{"select 1 in 0", "select 8 in 2", "reload 2", "reload 2", "select 1 in 0", "select 8 in 2"};
    EXPECT_EQ(turn(1, 0), calls) << "2:40, with the seconds that were shown";
    ASSERT_EQ(notices->list.size(), 1U);
    EXPECT_EQ(notices->list[0].picker, picker);
    EXPECT_EQ(notices->list[0].value.type(), NSNumber::Type::Double);
    EXPECT_EQ(notices->list[0].value.doubleValue(), 6.25);
    EXPECT_EQ(notices->list[0].component, 0);
    EXPECT_TRUE(notices->list[0].value.isIdenticalTo(picker->currentValue()));
    turn(4, 2);
    EXPECT_EQ(told(1), 7.142857142857142) << "2:20";
    EXPECT_EQ(turn(0, 1).size(), 6U) << "the separator is a turn like any other";
    EXPECT_EQ(told(2), 7.142857142857142);
}

TEST_F(TurnedMilePace, InMilesASelectionStoresTheSpeedOfThePacePerMile) {
    EXPECT_EQ(turn(1, 0), (Calls{"select 1 in 0", "select 8 in 2", "reload 2", "reload 2", "select 1 in 0", "select 8 in 2"}));
    EXPECT_EQ(notices->list.at(0).value.doubleValue(), 7.3152) << "3:40: 3 rows of 5 above the minimum's 25";
}

TEST_F(TurnedPace, TheMinutesStepMultipliesTheMinimumsMinutesToo) {
    picker->setMinutesStepSize(2);
    turn(1, 0);
    EXPECT_EQ(told(0), 3.571428571428571) << "(1 + 1) · 2 minutes and 40 seconds";
    EXPECT_EQ(selectedTitle(0), "03");
}

TEST_F(TurnedPace, ASelectionBeyondTheRangeIsReportedAsTheBound) {
    picker->setMaxValue(pace(3, 20));
    turn(2, 0); // 3:40
    EXPECT_TRUE(notices->list.at(0).value.isIdenticalTo(picker->maxValue()));
}

TEST_F(TurnedPace, NoSecondsAtAllAreTheFastestPace) {
    picker->setMinValue(boxedDouble(1e9)); // 0:00
    turn(0, 0);
    turn(0, 2); // 0:00
    EXPECT_TRUE(picker->currentValue().isIdenticalTo(picker->minValue()));
    EXPECT_EQ(told(1), 1e9);
}

TEST_F(TurnedPace, EveryPaceThatIsPickedStaysOnItsRows) {
    picker->setSecondsStepSize(1);
    for (NSInteger minute = 1; minute < 59; ++minute) {
        turn(minute, 0);
        for (const NSInteger second : {59, 1, 30, 0}) {
            turn(second, 2);
            ASSERT_EQ(selected(0), minute);
            ASSERT_EQ(selected(2), second);
        }
    }
}

TEST_F(TurnedPace, AFingerTurnsEachColumnAndTheDelegateIsNotifiedOnceForEach) {
    TestWindow window(picker);
    const auto turnOneRow = [&](NSInteger component) {
        const Ref<UIView> view = wheel().viewForRow_forComponent(selected(component), component);
        const CGRect row = wheel().convertRect_fromView(view->bounds(), view);
        const CGPoint from{CGRectGetMidX(row), CGRectGetMidY(row)};
        window.drag(from, {from.x, from.y - 46}); // a row of 40 and the slop
        window.runUntilStill();
    };
    turnOneRow(0);
    turnOneRow(2);
    ASSERT_EQ(notices->list.size(), 2U);
    EXPECT_EQ(told(0), 6.25);               // 2:40
    EXPECT_EQ(told(1), 6.0606060606060606); // 2:45
}

// Delegates

TEST_F(TurnedPace, ADelegateMaySetAValueAndTheUnitSystemInItsNotice) {
    const auto other = create<PickerNotices>();
    notices->whenTold = [&](const PickerNotices::Notice&) {
        picker->setDelegate(other);
        picker->setIsMetric(false);
        picker->setCurrentValue(boxedDouble(4.4704)); // 6:00 per mile
        notices = nullptr;
    };
    turn(1, 0);
    EXPECT_EQ(selectedTitle(0), "06");
    EXPECT_EQ(selectedTitle(2), "00");
    turn(1, 2);
    EXPECT_EQ(other->list.size(), 1U);
}

TEST_F(TurnedPace, ADelegateMayTakeTheWheelAwayInItsNotice) {
    notices->whenTold = [&](const PickerNotices::Notice&) { picker->setPickerView(nullptr); };
    const Ref<GXMultiValuePickerView> wheel = picker->pickerView();
    wheel->turnToRow_inComponent(1, 0);
    EXPECT_EQ(picker->currentValue().doubleValue(), 6.25);
}

TEST_F(TurnedPace, AVanishedDelegateIsSkipped) {
    notices = nullptr;
    turn(1, 0);
    EXPECT_EQ(picker->currentValue().doubleValue(), 6.25);
}

// Bad input

TEST_F(TurnedPace, WithoutAWheelEveryOperationIsSafe) {
    picker->setPickerView(nullptr);
    picker->setMinValue(boxedDouble(10));
    picker->setIsMetric(false);
    picker->setSecondsStepSize(1);
    picker->setIsMetric(true);
    picker->setCurrentValue(boxedDouble(5));
    picker->pickerView_didSelectRow_inComponent(nullptr, 3, 0);
    EXPECT_TRUE(picker->currentValue().isIdenticalTo(picker->minValue())) << "rows 0: 1:00, held to the range";
}
