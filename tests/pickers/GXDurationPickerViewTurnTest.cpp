#include <limits>

#include "GXDurationPickerView.h"
#include "PickerTest.h"
#include "TestWindow.h"

using namespace gx;

namespace {
constexpr NSInteger highest = std::numeric_limits<NSInteger>::max();
constexpr NSInteger lowest = std::numeric_limits<NSInteger>::min();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

using TurnedDuration = PickerTest<GXDurationPickerView>;
struct TurnedSeconds : TurnedDuration {
    TurnedSeconds() { picker->setType(GXDurationTypeHoursMinutesSeconds); }
};
struct TurnedMinutes : TurnedDuration {
    TurnedMinutes() {
        picker->setType(GXDurationTypeMinutesSeconds);
        picker->setMaxValue(boxed(3599000));
    }
};

constexpr int milliseconds(int hours, int minutes, int seconds) { return ((hours * 60 + minutes) * 60 + seconds) * 1000; }
} // namespace

// From the value to the wheel

TEST_F(TurnedDuration, BoundsAndValuesOrderTheWheelInTheirOwnSequence) {
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxed(milliseconds(3, 25, 59))); }),
              (Calls{"select 3 in 0", "select 3 in 0", "select 25 in 2"}));
    EXPECT_EQ(callsOf([&] { picker->setMinValue(boxed(milliseconds(3, 20, 0))); }),
              (Calls{"reload", "select 0 in 0", "select 0 in 0", "select 5 in 2"}));
    EXPECT_EQ(callsOf([&] { picker->setMaxValue(boxed(milliseconds(5, 0, 0))); }),
              (Calls{"reload", "select 0 in 0", "select 0 in 0", "select 5 in 2"}));
    EXPECT_TRUE(notices->list.empty());
}

TEST_F(TurnedDuration, AValueBeyondABoundIsSelectedThroughTheSetterAndThenOnceMore) {
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxed(356400001)); }),
              (Calls{"select 99 in 0", "select 99 in 0", "select 0 in 2", "select 99 in 0", "select 99 in 0", "select 0 in 2"}));
    EXPECT_EQ(picker->currentValue().type(), NSNumber::Type::Integer);
    EXPECT_EQ(picker->currentValue().integerValue(), 356400000);
    picker->setCurrentValue(boxed(-1));
    EXPECT_EQ(picker->currentValue().type(), NSNumber::Type::Integer);
    EXPECT_EQ(picker->currentValue().integerValue(), 0);
    for (const int value : {356400000, 356399999, 0, 1}) {
        picker->setCurrentValue(boxed(value));
        EXPECT_EQ(picker->currentValue().type(), NSNumber::Type::Int) << "kept as given";
        EXPECT_EQ(picker->currentValue().intValue(), value);
    }
    EXPECT_TRUE(notices->list.empty());
}

TEST_F(TurnedDuration, ABoundThatOvertakesTheValueTakesItAlong) {
    picker->setMinValue(boxed(600000));
    EXPECT_EQ(picker->currentValue().type(), NSNumber::Type::Integer);
    EXPECT_EQ(picker->currentValue().integerValue(), 600000);
    picker->setMinValue(boxed(0));
    picker->setMaxValue(boxed(120000));
    EXPECT_EQ(picker->currentValue().integerValue(), 120000);
}

TEST_F(TurnedDuration, WithTheMinimumAboveTheMaximumTheMaximumIsStored) {
    picker->setMinValue(boxed(600000));
    picker->setMaxValue(boxed(300000));
    EXPECT_EQ(picker->currentValue().integerValue(), 300000);
    for (const int value : {0, 299999, 300000, 450000, 600000, 700000}) {
        picker->setCurrentValue(boxed(value));
        EXPECT_EQ(picker->currentValue().type(), NSNumber::Type::Integer) << value;
        EXPECT_EQ(picker->currentValue().integerValue(), 300000) << value;
    }
    // The minimum first, within it the maximum, then each goes on: three times the same rows.
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxed(0)); }).size(), 9U);
    picker->setMaxValue(boxed(900000));
    picker->setCurrentValue(boxed(0));
    EXPECT_EQ(picker->currentValue().integerValue(), 600000) << "uncrossed, both hold again";
}

TEST(TurnedDurationSubclass, ASetterThatMovesTheBoundFurtherIsCalledOnceForIt) {
    class Restless : public GXDurationPickerView {
    public:
        int calls = 0;
        NSInteger added = 0;
        void setCurrentValue(NSNumber value) override {
            ++calls;
            GXDurationPickerView::setCurrentValue(boxedInteger(value.integerValue() + added));
        }
    };
    const auto picker = create<Restless>(CGRectMake(0, 0, 320, 216));
    for (const NSInteger added : {1, -1}) {
        picker->added = added;
        picker->calls = 0;
        picker->setCurrentValue(boxed(added > 0 ? 356400000 : 0));
        EXPECT_EQ(picker->calls, 2);
        EXPECT_EQ(picker->currentValue().integerValue(), added > 0 ? 356400001 : -1);
    }
}

TEST_F(TurnedSeconds, SecondsGoByTheMinutesAloneWhenTheyAreSelected) {
    picker->setMinValue(boxed(milliseconds(1, 10, 30)));
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxed(milliseconds(1, 10, 45))); }),
              (Calls{"select 0 in 0", "select 0 in 0", "select 0 in 2", "select 3 in 4"}));
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxed(milliseconds(2, 10, 45))); }),
              (Calls{"select 1 in 0", "select 1 in 0", "select 10 in 2", "select 3 in 4"}));
    EXPECT_EQ(selectedTitle(4), "15") << "row 3 of those from 00";
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxed(milliseconds(2, 10, 10))); }),
              (Calls{"select 1 in 0", "select 1 in 0", "select 10 in 2", "select 0 in 4"}))
        << "not before the first row";
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxed(milliseconds(2, 11, 45))); }),
              (Calls{"select 1 in 0", "select 1 in 0", "select 11 in 2", "select 9 in 4"}));
}

TEST_F(TurnedMinutes, MinutesAreDividedBeforeTheMinimumIsTakenOff) {
    picker->setMinutesStepSize(5);
    picker->setMinValue(boxed(milliseconds(0, 10, 0)));
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxed(milliseconds(0, 20, 25))); }), (Calls{"select 0 in 0", "select 5 in 2"}));
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxed(milliseconds(0, 59, 0))); }), (Calls{"select 1 in 0", "select 0 in 2"}));
    EXPECT_EQ(rows(0), 10) << "(59 − 10) / 5 + 1";
    EXPECT_EQ(title(1, 0), "05");
}

TEST_F(TurnedDuration, HoursAreDividedAfterTheMinimumIsTakenOff) {
    picker->setHoursStepSize(5);
    picker->setMinValue(boxed(milliseconds(10, 0, 0)));
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxed(milliseconds(20, 25, 0))); }),
              (Calls{"select 2 in 0", "select 2 in 0", "select 25 in 2"}));
}

// From the wheel to the value

TEST_F(TurnedDuration, ASelectionStoresABoxedFloatAndSendsOneNoticeForComponent0) {
    EXPECT_EQ(turn(2, 0),
              (Calls{"select 2 in 0", "select 2 in 0", "select 5 in 2", "reload 2", "select 2 in 0", "select 2 in 0", "select 5 in 2"}));
    ASSERT_EQ(notices->list.size(), 1U);
    EXPECT_EQ(notices->list[0].picker, picker);
    EXPECT_EQ(notices->list[0].value.type(), NSNumber::Type::Float);
    EXPECT_EQ(notices->list[0].value.floatValue(), 7500000.0F);
    EXPECT_EQ(notices->list[0].component, 0);
    EXPECT_TRUE(notices->list[0].value.isIdenticalTo(picker->currentValue()));
    EXPECT_EQ(turn(59, 2), (Calls{"select 2 in 0", "select 2 in 0", "select 59 in 2", "select 2 in 0", "select 2 in 0", "select 59 in 2"}));
    EXPECT_EQ(notices->list.at(1).value.floatValue(), 10740000.0F);
}

TEST_F(TurnedSeconds, AColumnReloadsThoseBelowIt) {
    const Calls selections{"select 2 in 0", "select 2 in 0", "select 7 in 2", "select 3 in 4"};
    picker->setCurrentValue(boxed(milliseconds(2, 7, 15)));
    const auto withReloads = [&](const Calls& reloads) {
        Calls calls = selections;
        calls.insert(calls.end(), reloads.begin(), reloads.end());
        calls.insert(calls.end(), selections.begin(), selections.end());
        return calls;
    };
    EXPECT_EQ(turn(2, 0), withReloads({"reload 2", "reload 4"}));
    EXPECT_EQ(turn(7, 2), withReloads({"reload 4"}));
    EXPECT_EQ(turn(3, 4), withReloads({}));
    EXPECT_EQ(turn(0, 1), withReloads({}));
    EXPECT_EQ(turn(0, 3), withReloads({}));
    EXPECT_EQ(notices->list.size(), 5U);
}

TEST_F(TurnedMinutes, InMinutesAndSecondsTheMinutesReloadTheSeconds) {
    EXPECT_EQ(turn(12, 0), (Calls{"select 12 in 0", "select 0 in 2", "reload 2", "select 12 in 0", "select 0 in 2"}));
    EXPECT_EQ(turn(7, 2), (Calls{"select 12 in 0", "select 7 in 2", "select 12 in 0", "select 7 in 2"}));
    EXPECT_EQ(notices->list.at(1).value.floatValue(), 755000.0F);
}

TEST_F(TurnedSeconds, LowerUnitsCountFromTheMinimumsWhereTheyWereShownSo) {
    picker->setMinValue(boxed(milliseconds(1, 10, 30)));
    picker->setCurrentValue(boxed(milliseconds(1, 10, 30)));
    turn(1, 4);
    EXPECT_EQ(notices->list.at(0).value.floatValue(), 4235000.0F); // 1:10:35
    turn(2, 2); // 1:12, still with the minimum's seconds, since the minute was the minimum's
    EXPECT_EQ(notices->list.at(1).value.floatValue(), 4355000.0F); // 1:12:35
    turn(0, 4);
    EXPECT_EQ(notices->list.at(2).value.floatValue(), 4320000.0F); // 1:12:00
}

TEST_F(TurnedSeconds, SecondsGoByTheMinutesAloneWhenTheyAreRead) {
    picker->setMinValue(boxed(milliseconds(1, 10, 30)));
    picker->setCurrentValue(boxed(milliseconds(2, 10, 45)));
    turn(2, 0);
    EXPECT_EQ(notices->list.at(0).value.floatValue(), 11445000.0F); // 3:10:45
}

TEST_F(TurnedDuration, TheMinimumsSecondsGoAlongWhereTheMinutesAreTheMinimums) {
    picker->setMinValue(boxed(milliseconds(1, 10, 30)));
    picker->setCurrentValue(boxed(milliseconds(1, 10, 30)));
    turn(1, 0);
    EXPECT_EQ(notices->list.at(0).value.floatValue(), 7830000.0F) << "2:10:30";
    turn(11, 2); // The minutes were the minimum's before this turn.
    EXPECT_EQ(notices->list.at(1).value.floatValue(), 7890000.0F) << "2:11:30";
    turn(12, 2);
    EXPECT_EQ(notices->list.at(2).value.floatValue(), 7920000.0F) << "2:12:00";
}

TEST_F(TurnedMinutes, MinutesAndSecondsCountFromTheMinimums) {
    picker->setMinValue(boxed(90000));
    picker->setCurrentValue(boxed(90000));
    turn(2, 2);
    EXPECT_EQ(notices->list.at(0).value.floatValue(), 100000.0F); // 1:40
    turn(3, 0);
    EXPECT_EQ(notices->list.at(1).value.floatValue(), 280000.0F); // 4:40
    turn(2, 2);
    EXPECT_EQ(notices->list.at(2).value.floatValue(), 250000.0F); // 4:10
}

TEST_F(TurnedDuration, TheDelegateSeesTheValueClampedToTheRange) {
    picker->setMinValue(boxed(milliseconds(1, 30, 0)));
    picker->setCurrentValue(boxed(milliseconds(2, 10, 0)));
    const Calls calls = turn(0, 0); // 1:10
    ASSERT_EQ(notices->list.size(), 1U);
    EXPECT_EQ(notices->list[0].value.type(), NSNumber::Type::Integer);
    EXPECT_EQ(notices->list[0].value.integerValue(), 5400000);
    // the bound's own setter
    EXPECT_EQ(calls,
              (Calls{"select 0 in 0", "select 0 in 0", "select 0 in 2",
                     // the value's setter
                     "select 0 in 0", "select 0 in 0", "select 0 in 2", "reload 2", "select 0 in 0", "select 0 in 0", "select 0 in 2"}));
}

TEST_F(TurnedSeconds, BeyondThirtySevenHoursAFloatHoldsNotEverySecond) {
    picker->setCurrentValue(boxed(milliseconds(37, 0, 0)));
    turn(1, 4);
    EXPECT_EQ(notices->list.at(0).value.floatValue(), 133205000.0F);
    EXPECT_EQ(selectedTitle(4), "05");
    picker->setCurrentValue(boxed(milliseconds(40, 0, 0)));
    turn(1, 4); // 144005000 lies half way between two floats 16 apart.
    EXPECT_EQ(notices->list.at(1).value.doubleValue(), 144004992.0);
    EXPECT_EQ(selectedTitle(4), "00");
}

TEST_F(TurnedSeconds, AFingerTurnsEachColumnAndTheDelegateIsNotifiedOnceForEach) {
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
    turnOneRow(4);
    ASSERT_EQ(notices->list.size(), 3U);
    EXPECT_EQ(notices->list[0].value.floatValue(), 3900000.0F); // 1:05:00
    EXPECT_EQ(notices->list[1].value.floatValue(), 3960000.0F); // 1:06:00
    EXPECT_EQ(notices->list[2].value.floatValue(), 3965000.0F); // 1:06:05
}

// Delegates

TEST_F(TurnedDuration, ADelegateMaySetAValueAndALayoutInItsNotice) {
    notices->whenTold = [&](const PickerNotices::Notice&) {
        picker->setType(1);
        picker->setCurrentValue(boxed(milliseconds(4, 5, 30)));
    };
    EXPECT_EQ(turn(2, 0).back(), "select 6 in 4");
    EXPECT_EQ(notices->list.size(), 1U);
    EXPECT_EQ(selected(0), 4);
    EXPECT_EQ(selected(2), 5);
    EXPECT_EQ(selected(4), 6);
}

TEST_F(TurnedDuration, ADelegateMayReplaceItselfAndTakeTheWheelAwayInItsNotice) {
    const auto other = create<PickerNotices>();
    const Ref<GXMultiValuePickerView> wheel = picker->pickerView();
    notices->whenTold = [&](const PickerNotices::Notice&) {
        picker->setDelegate(other);
        picker->setPickerView(nullptr);
        notices = nullptr;
    };
    wheel->turnToRow_inComponent(2, 0);
    EXPECT_EQ(picker->currentValue().floatValue(), 7500000.0F);
    picker->setPickerView(wheel);
    wheel->turnToRow_inComponent(3, 0);
    EXPECT_EQ(other->list.size(), 1U);
}

TEST_F(TurnedDuration, AVanishedDelegateIsSkipped) {
    notices = nullptr;
    turn(2, 0);
    EXPECT_EQ(picker->currentValue().floatValue(), 7500000.0F);
}

// Bad input

TEST_F(TurnedDuration, WithoutAWheelEveryOperationIsSafe) {
    picker->setPickerView(nullptr);
    picker->setMinValue(boxed(90000));
    picker->setType(1);
    picker->setSecondsStepSize(1);
    picker->setCurrentValue(boxed(400000000));
    EXPECT_EQ(picker->currentValue().integerValue(), 356400000);
    picker->pickerView_didSelectRow_inComponent(nullptr, 3, 0);
    EXPECT_EQ(notices->list.at(0).value.integerValue(), 90000) << "rows 0, held to the minimum";
}

TEST_F(TurnedDuration, EmptyAndNaNNumbersReadAs0) {
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(NSNumber()); }), (Calls{"select 0 in 0", "select 0 in 0", "select 0 in 2"}));
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxedDouble(notANumber)); }),
              (Calls{"select 0 in 0", "select 0 in 0", "select 0 in 2"}));
    picker->setMinValue(NSNumber());
    EXPECT_EQ(rows(0), 99);
    picker->setMaxValue(boxedDouble(notANumber));
    EXPECT_EQ(rows(0), 0);
    EXPECT_EQ(rows(2), 0);
}

TEST_F(TurnedDuration, ExtremeNumbersNeverLeaveTheWheelWithoutItsRows) {
    const std::vector<NSNumber> numbers{boxedInteger(lowest), boxedInteger(-1), boxedInteger(highest), boxedDouble(notANumber),
                                        boxedDouble(1e300),   boxed(-5430000),  boxed(3723000)};
    constexpr std::int32_t largestStep = std::numeric_limits<std::int32_t>::max();
    for (const NSInteger type : {0, 1, 2, 3}) {
        picker->setType(type);
        for (const NSNumber& minimum : numbers) {
            for (const NSNumber& maximum : numbers) {
                picker->setMinValue(minimum);
                picker->setMaxValue(maximum);
                for (const NSNumber& value : numbers) {
                    picker->setCurrentValue(value);
                    EXPECT_LE(picker->currentValue().integerValue(), maximum.integerValue());
                    for (NSInteger component = 0; component < wheel().numberOfComponents(); ++component) {
                        EXPECT_GE(selected(component), 0);
                        EXPECT_LE(selected(component), std::max<NSInteger>(rows(component) - 1, 0));
                        turn(rows(component) - 1, component);
                    }
                }
            }
        }
        picker->setHoursStepSize(largestStep);
        picker->setMinutesStepSize(largestStep);
        picker->setSecondsStepSize(largestStep);
        picker->layoutIfNeeded();
    }
}
