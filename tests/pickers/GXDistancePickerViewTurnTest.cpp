#include <cmath>
#include <limits>

#include "GXDistancePickerView.h"
#include "PickerTest.h"
#include "TestWindow.h"

using namespace gx;

namespace {
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinite = std::numeric_limits<double>::infinity();

using TurnedMiles = PickerTest<GXDistancePickerView>;
struct TurnedKilometres : TurnedMiles {
    TurnedKilometres() { picker->setIsMetric(true); }
    double told(std::size_t index) { return notices->list.at(index).value.doubleValue(); }
};
} // namespace

TEST_F(TurnedKilometres, ASelectionStoresABoxedDoubleAndSendsOneNoticeForComponent0) {
    turn(4, 2);
    EXPECT_EQ(picker->currentValue().type(), NSNumber::Type::Double);
    EXPECT_EQ(picker->currentValue().doubleValue(), 5400.0);
    ASSERT_EQ(notices->list.size(), 1U);
    EXPECT_EQ(notices->list[0].picker, picker);
    EXPECT_TRUE(notices->list[0].value.isIdenticalTo(picker->currentValue()));
    EXPECT_EQ(notices->list[0].component, 0);
}

TEST_F(TurnedKilometres, WithOneDecimalPlaceTheWholeUnitsReloadTheSeparatorAlone) {
    EXPECT_EQ(turn(12, 0), (Calls{"select 12 in 0", "select 0 in 2", "reload", "reload 1", "select 12 in 0", "select 0 in 2"}));
    EXPECT_EQ(turn(7, 2), (Calls{"select 12 in 0", "select 7 in 2", "reload", "reload 2", "select 12 in 0", "select 7 in 2"}));
    EXPECT_EQ(turn(0, 1), (Calls{"select 12 in 0", "select 7 in 2", "reload", "select 12 in 0", "select 7 in 2"}));
    EXPECT_EQ(told(0), 12000.0);
    EXPECT_EQ(told(1), 12700.0);
    EXPECT_EQ(told(2), 12700.0);
}

TEST_F(TurnedKilometres, WithTwoTheReloadsStopOneColumnShortToo) {
    picker->setNumberOfFractionUnits(2);
    EXPECT_EQ(turn(1, 0), (Calls{"select 1 in 0", "select 0 in 2", "select 0 in 3", "reload", "reload 1", "reload 2", "select 1 in 0",
                                 "select 0 in 2", "select 0 in 3"}));
    EXPECT_EQ(turn(2, 2), (Calls{"select 1 in 0", "select 2 in 2", "select 0 in 3", "reload", "reload 2", "reload 3", "select 1 in 0",
                                 "select 2 in 2", "select 0 in 3"}));
    EXPECT_EQ(turn(3, 3),
              (Calls{"select 1 in 0", "select 2 in 2", "select 3 in 3", "reload", "select 1 in 0", "select 2 in 2", "select 3 in 3"}));
    EXPECT_EQ(told(2), 1230.0);
}

TEST_F(TurnedMiles, MilesAreStoredAsMetresRoundedUp) {
    picker->setNumberOfFractionUnits(2);
    turn(1, 0);
    turn(2, 2);
    EXPECT_EQ(turn(3, 3),
              (Calls{"select 1 in 0", "select 2 in 2", "select 3 in 3", "reload", "select 1 in 0", "select 2 in 2", "select 3 in 3"}));
    ASSERT_EQ(notices->list.size(), 3U);
    EXPECT_EQ(notices->list[2].value.type(), NSNumber::Type::Double);
    EXPECT_EQ(notices->list[2].value.doubleValue(), 1979.4931640625);
    EXPECT_EQ(selectedTitle(0), "1");
    EXPECT_EQ(selectedTitle(2), "2");
    EXPECT_EQ(selectedTitle(3), "3");
}

TEST_F(TurnedMiles, EveryMileThatIsPickedStaysOnItsRow) {
    turn(0, 2);
    for (NSInteger mile = 1; mile < 186; ++mile) {
        turn(mile, 0);
        ASSERT_EQ(selected(0), mile);
        ASSERT_EQ(selected(2), 0);
    }
}

TEST_F(TurnedKilometres, DigitsAreReadFromTheTitlesAndNotFromTheRows) {
    picker->setMinValue(boxed(1500));
    picker->setCurrentValue(boxed(1700));
    turn(4, 2);
    EXPECT_EQ(told(0), 1900.0);
    turn(1, 0);
    EXPECT_EQ(told(1), 2900.0);
}

TEST_F(TurnedKilometres, WhatIsTurnedBeyondTheRangeIsClampedToIt) {
    picker->setMinValue(boxed(1500));
    picker->setMaxValue(boxed(3200));
    picker->setCurrentValue(boxed(2300));
    turn(0, 0); // 1.3
    EXPECT_EQ(told(0), 1500.0);
    EXPECT_EQ(selectedTitle(2), "5");
    picker->checkMetricAndInformDelegate(3200.5);
    EXPECT_EQ(told(1), 3200.0);
    picker->checkMetricAndInformDelegate(3200.0);
    EXPECT_EQ(told(2), 3200.0);
    picker->checkMetricAndInformDelegate(3199.0);
    EXPECT_EQ(told(3), 3199.0);
    EXPECT_EQ(picker->currentValue().type(), NSNumber::Type::Double);
}

TEST_F(TurnedMiles, MilesAreClampedToTheRangeInMetres) {
    picker->setMaxValue(boxed(1979));
    picker->checkMetricAndInformDelegate(1230);
    EXPECT_EQ(notices->list.at(0).value.doubleValue(), 1979.0);
}

TEST_F(TurnedKilometres, WithTheMinimumAboveTheMaximumTheMinimumIsTheLastWord) {
    picker->setMinValue(boxed(9000));
    picker->setMaxValue(boxed(4000));
    for (const double value : {1000.0, 5000.0, 10000.0}) {
        picker->checkMetricAndInformDelegate(value);
        EXPECT_EQ(picker->currentValue().doubleValue(), 9000.0);
    }
}

TEST_F(TurnedKilometres, ATitleThatASubclassWritesIsReadAsANumber) {
    class Worded : public GXDistancePickerView {
    public:
        std::optional<std::string> pickerView_titleForRow_forComponent(const Ref<UIPickerView>& wheel, NSInteger row,
                                                                       NSInteger component) override {
            const auto title = GXDistancePickerView::pickerView_titleForRow_forComponent(wheel, row, component);
            return title ? std::optional<std::string>(*title + " of them") : std::nullopt;
        }
    };
    const auto worded = create<Worded>(CGRectMake(0, 0, 320, 216));
    worded->setIsMetric(true);
    worded->pickerView()->turnToRow_inComponent(31, 0);
    EXPECT_EQ(worded->currentValue().doubleValue(), 31000.0);
}

TEST_F(TurnedKilometres, AFingerTurnsEachColumnAndTheDelegateIsNotifiedOnceForEach) {
    picker->setNumberOfFractionUnits(2);
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
    turnOneRow(3);
    ASSERT_EQ(notices->list.size(), 3U);
    EXPECT_EQ(told(0), 6000.0);
    EXPECT_EQ(told(1), 6100.0);
    EXPECT_EQ(told(2), 6110.0);
}

// Delegates

TEST_F(TurnedKilometres, ADelegateMaySetAValueInItsNotice) {
    notices->whenTold = [&](const PickerNotices::Notice&) { picker->setCurrentValue(boxed(7300)); };
    turn(12, 0);
    EXPECT_EQ(notices->list.size(), 1U);
    EXPECT_EQ(picker->currentValue().intValue(), 7300);
    EXPECT_EQ(selected(0), 7);
    EXPECT_EQ(selected(2), 3);
}

TEST_F(TurnedKilometres, ADelegateMayReplaceItselfAndTheUnitSystemInItsNotice) {
    const auto other = create<PickerNotices>();
    notices->whenTold = [&](const PickerNotices::Notice&) {
        picker->setDelegate(other);
        picker->setIsMetric(false);
        picker->setNumberOfFractionUnits(2);
        notices = nullptr;
    };
    turn(8, 0); // 8000 m are 4.97… mi
    EXPECT_EQ(selected(0), 4);
    EXPECT_EQ(selected(2), 9);
    EXPECT_EQ(selected(3), 7);
    turn(5, 0);
    EXPECT_EQ(other->list.size(), 1U);
}

TEST_F(TurnedKilometres, ADelegateMayTakeTheWheelAwayInItsNotice) {
    notices->whenTold = [&](const PickerNotices::Notice&) { picker->setPickerView(nullptr); };
    const Ref<GXMultiValuePickerView> wheel = picker->pickerView();
    wheel->turnToRow_inComponent(12, 0);
    EXPECT_EQ(picker->currentValue().doubleValue(), 12000.0);
    EXPECT_EQ(notices->list.size(), 1U);
}

TEST_F(TurnedKilometres, AVanishedDelegateIsSkipped) {
    notices = nullptr;
    turn(12, 0);
    EXPECT_EQ(picker->currentValue().doubleValue(), 12000.0);
}

// Bad input

TEST_F(TurnedMiles, WithoutAWheelEveryOperationIsSafe) {
    picker->setPickerView(nullptr);
    picker->setMinValue(boxed(1000));
    picker->setNumberOfFractionUnits(2);
    picker->setIsMetric(true);
    picker->setIsMetric(false);
    picker->setCurrentValue(boxed(2000));
    EXPECT_EQ(picker->currentValue().intValue(), 2000);
    picker->pickerView_didSelectRow_inComponent(nullptr, 3, 0);
    // Row 0 of the whole miles, and no column of digits: 0 mi, clamped to the minimum.
    EXPECT_EQ(notices->list.at(0).value.doubleValue(), 1000.0);
}

TEST_F(TurnedKilometres, EmptyAndNaNNumbersReadAs0) {
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(NSNumber()); }), (Calls{"select 0 in 0", "select 0 in 2", "reload"}));
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxedDouble(notANumber)); }), (Calls{"select 0 in 0", "select 0 in 2", "reload"}));
    picker->setMaxValue(boxedDouble(notANumber));
    EXPECT_EQ(rows(0), 0);
    picker->setMaxValue(boxed(5000));
    picker->setMinValue(NSNumber());
    EXPECT_EQ(rows(0), 5);
    picker->checkMetricAndInformDelegate(notANumber);
    EXPECT_TRUE(std::isnan(notices->list.at(0).value.doubleValue())) << "neither above nor below the range";
}

TEST_F(TurnedKilometres, WholeUnitsBeyond32BitsAreClampedToThem) {
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxedDouble(1e300)); }), (Calls{"select 2147483647 in 0", "select 7 in 2", "reload"}));
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxedDouble(-infinite)); }),
              (Calls{"select -2147483648 in 0", "select -8 in 2", "reload"}));
}
