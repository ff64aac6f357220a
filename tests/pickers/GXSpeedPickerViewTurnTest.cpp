#include <cmath>
#include <limits>

#include "GXSpeedPickerView.h"
#include "PickerTest.h"
#include "TestWindow.h"

using namespace gx;

namespace {
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

using TurnedMileSpeed = PickerTest<GXSpeedPickerView>;
struct TurnedSpeed : TurnedMileSpeed {
    TurnedSpeed() { picker->setIsMetric(true); }
};
} // namespace

// From the wheel to the value

TEST_F(TurnedSpeed, ASelectionStoresABoxedDoubleAndSendsOneNoticeForComponent0) {
    EXPECT_EQ(turn(5, 0), (Calls{"select 5 in 0", "select 0 in 2", "reload 2", "select 5 in 0", "select 0 in 2"}));
    ASSERT_EQ(notices->list.size(), 1U);
    EXPECT_EQ(notices->list[0].picker, picker);
    EXPECT_EQ(notices->list[0].value.type(), NSNumber::Type::Double);
    EXPECT_EQ(notices->list[0].value.doubleValue(), 1.3888888899999998);
    EXPECT_EQ(notices->list[0].component, 0);
    EXPECT_TRUE(notices->list[0].value.isIdenticalTo(picker->currentValue()));
    EXPECT_EQ(picker->currentSpeedInMphOrKph(), 5.000000003999999);
    EXPECT_EQ(turn(0, 1).size(), 5U) << "the separator is a turn like any other";
}

TEST_F(TurnedMileSpeed, AWholeNumberOfMilesComesBackOneLower) {
    turn(5, 0); // 5.2
    EXPECT_EQ(notices->list.at(0).value.doubleValue(), 2.324608);
    EXPECT_EQ(turn(0, 2), (Calls{"select 4 in 0", "select 0 in 2", "reload 2", "select 4 in 0", "select 0 in 2"}));
    EXPECT_EQ(notices->list.at(1).value.doubleValue(), 2.2352);
    EXPECT_NEAR(picker->currentSpeedInMphOrKph(), 4.999999995, 1e-9);
    EXPECT_EQ(selectedTitle(0), "4");
    EXPECT_EQ(selectedTitle(2), "0");
}

TEST_F(TurnedMileSpeed, EveryWholeNumberOfMilesComesBackOneLower) {
    for (int miles = 1; miles <= 31; ++miles) {
        picker->checkMetricAndInformDelegate(miles);
        ASSERT_EQ(selected(0), miles - 1);
        ASSERT_EQ(selected(2), 0);
    }
}

TEST_F(TurnedSpeed, EverySpeedInKilometresStaysOnItsRows) {
    for (NSInteger whole = 0; whole < 50; ++whole) {
        turn(whole, 0);
        for (NSInteger tenth = 9; tenth >= 0; --tenth) {
            turn(tenth, 2);
            ASSERT_EQ(selected(0), whole);
            ASSERT_EQ(selected(2), tenth);
        }
    }
}

TEST_F(TurnedMileSpeed, WhatIsTurnedBeyondTheRangeIsClampedToIt) {
    picker->checkMetricAndInformDelegate(31.1);
    EXPECT_EQ(notices->list.at(0).value.doubleValue(), 13.8888889);
    EXPECT_EQ(notices->list.at(0).value.type(), NSNumber::Type::Double);
    EXPECT_EQ(selectedTitle(0), "31");
    EXPECT_EQ(selectedTitle(2), "1");
    picker->checkMetricAndInformDelegate(31.0);
    EXPECT_EQ(notices->list.at(1).value.doubleValue(), 13.85824);
    picker->setMinValue(boxed(1));
    picker->checkMetricAndInformDelegate(2.2);
    EXPECT_EQ(notices->list.at(2).value.type(), NSNumber::Type::Double);
    EXPECT_EQ(notices->list.at(2).value.doubleValue(), 1.0);
}

TEST_F(TurnedMileSpeed, ARowBeyondTheMaximumIsToldAsTheMaximum) {
    turn(31, 0); // 31.2
    EXPECT_EQ(notices->list.at(0).value.doubleValue(), 13.8888889);
    EXPECT_EQ(selectedTitle(0), "31");
    EXPECT_EQ(selectedTitle(2), "1");
}

TEST_F(TurnedSpeed, WithTheMinimumAboveTheMaximumTheMinimumIsTheLastWord) {
    picker->setMinValue(boxed(9));
    picker->setMaxValue(boxed(4));
    for (const double speed : {1.0, 20.0, 40.0}) {
        picker->checkMetricAndInformDelegate(speed);
        EXPECT_EQ(picker->currentValue().doubleValue(), 9.0);
    }
}

TEST_F(TurnedSpeed, TenthsAreReadAsTheyWereTitledBeforeTheSelection) {
    picker->setMinValue(boxedDouble(1.5277777789999998)); // 5.5
    picker->setCurrentValue(boxedDouble(1.6111111124));   // 5.8
    turn(4, 2);                                           // titled 9
    EXPECT_NEAR(notices->list.at(0).value.doubleValue(), 5.9 * 0.277777778, 1e-12);
}

TEST(TurnedSpeedSubclass, ATitleThatItWritesIsReadAsADecimalNumber) {
    class Quarters : public GXSpeedPickerView {
    public:
        std::optional<std::string> pickerView_titleForRow_forComponent(const Ref<UIPickerView>& wheel, NSInteger row,
                                                                       NSInteger component) override {
            if (component == 2) return "2.5 tenths";
            return GXSpeedPickerView::pickerView_titleForRow_forComponent(wheel, row, component);
        }
    };
    const auto picker = create<Quarters>(CGRectMake(0, 0, 320, 216));
    picker->setIsMetric(true);
    picker->pickerView()->turnToRow_inComponent(4, 0);
    EXPECT_EQ(picker->currentValue().doubleValue(), 4.25 * 0.277777778);
}

TEST_F(TurnedSpeed, AFingerTurnsEachColumnAndTheDelegateIsNotifiedOnceForEach) {
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
    EXPECT_EQ(notices->list[0].value.doubleValue(), 3.0555555579999996); // 11.0
    EXPECT_EQ(notices->list[1].value.doubleValue(), 3.0833333357999995); // 11.1
}

// Delegates

TEST_F(TurnedSpeed, ADelegateMaySetAValueAndTheUnitSystemInItsNotice) {
    const auto other = create<PickerNotices>();
    notices->whenTold = [&](const PickerNotices::Notice&) {
        picker->setDelegate(other);
        picker->setIsMetric(false);
        picker->setCurrentValue(boxed(2)); // 4.47… mph
        notices = nullptr;
    };
    turn(5, 0);
    EXPECT_EQ(selected(0), 4);
    EXPECT_EQ(selected(2), 5);
    turn(5, 0);
    EXPECT_EQ(other->list.size(), 1U);
}

TEST_F(TurnedSpeed, ADelegateMayTakeTheWheelAwayInItsNotice) {
    notices->whenTold = [&](const PickerNotices::Notice&) { picker->setPickerView(nullptr); };
    const Ref<GXMultiValuePickerView> wheel = picker->pickerView();
    wheel->turnToRow_inComponent(5, 0);
    EXPECT_EQ(picker->currentValue().doubleValue(), 1.3888888899999998);
}

TEST_F(TurnedSpeed, AVanishedDelegateIsSkipped) {
    notices = nullptr;
    turn(5, 0);
    EXPECT_EQ(picker->currentValue().doubleValue(), 1.3888888899999998);
}

// Bad input

TEST_F(TurnedSpeed, WithoutAWheelEveryOperationIsSafe) {
    picker->setPickerView(nullptr);
    picker->setMinValue(boxed(2));
    picker->setStepSize(boxed(0));
    picker->setIsMetric(false);
    picker->setIsMetric(true);
    picker->setCurrentValue(boxed(5));
    picker->pickerView_didSelectRow_inComponent(nullptr, 3, 0);
    EXPECT_EQ(notices->list.at(0).value.doubleValue(), 2.0) << "rows 0: 7.0 km/h, held to the range";
}

TEST_F(TurnedSpeed, EmptyAndNaNNumbersStandOnRow0) {
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(NSNumber()); }), (Calls{"select 0 in 0", "select 0 in 2"}));
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxedDouble(notANumber)); }), (Calls{"select 0 in 0", "select 0 in 2"}));
    picker->setMinValue(boxedDouble(notANumber));
    EXPECT_EQ(rows(0), 1);
    EXPECT_EQ(title(0, 0), "0");
    picker->checkMetricAndInformDelegate(notANumber);
    EXPECT_TRUE(std::isnan(notices->list.at(0).value.doubleValue())) << "neither above nor below the range";
}
