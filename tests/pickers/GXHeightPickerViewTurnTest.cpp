#include <limits>

#include "HeightPickerTest.h"
#include "TestWindow.h"

using namespace gx;

namespace {
constexpr NSInteger highest = std::numeric_limits<NSInteger>::max();
constexpr NSInteger lowest = std::numeric_limits<NSInteger>::min();
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
} // namespace

// The user's turns

TEST_F(MetricHeightPicker, ASelectionStoresWholeCentimetresAndTellsOnce) {
    picker->setHeightInCm(175.6);
    EXPECT_EQ(turn(55, 0), (Calls{"select 55 in 0", "reload"}));
    expectTold(175, true);
    turn(0, 0);
    expectTold(120, true);
    turn(100, 0);
    expectTold(220, true);
}

TEST_F(HeightPicker, ASelectionStoresFeetAndInchesAddedInSinglePrecision) {
    picker->setHeightInCm(100);
    EXPECT_EQ(turn(10, 1), (Calls{"select 1 in 0", "select 10 in 1", "reload"}));
    expectTold(177.79998779296875, false); // 5 × 30.48 + 10 × 2.54
    EXPECT_EQ(turn(2, 0), (Calls{"select 2 in 0", "select 10 in 1", "reload"}));
    EXPECT_NEAR(notices->list.at(0).height, 208.28, 0.0001);
    notices->list.clear();
    turn(11, 1);
    expectTold(210.82000732421875, false); // 6 × 30.48 + 11 × 2.54
}

TEST_F(HeightPicker, FiveFeetStoredInSinglePrecisionLieAHairBelowAndShowAs4Feet11Inches) {
    picker->setHeightInCm(121.92);
    EXPECT_EQ(turn(1, 0), (Calls{"select 0 in 0", "select 12 in 1", "reload"}));
    expectTold(152.39999389648438, false);
    EXPECT_EQ(shown(0) + shown(1), "4'11\"");
}

TEST_F(HeightPicker, EveryOtherHeightThatIsPickedStaysPicked) {
    picker->setHeightInCm(130);
    for (NSInteger feet = 0; feet < 3; ++feet) {
        for (NSInteger inches = 0; inches < 12; ++inches) {
            if (feet == 1 && inches == 0) continue;
            picker->selectRow_inComponent_animated(feet, 0, false);
            turn(inches, 1);
            EXPECT_EQ(selected(0), feet);
            EXPECT_EQ(selected(1), inches);
        }
    }
}

TEST_F(MetricHeightPicker, AUnitSwitchShowsTheHeightInTheNewUnitAndThenTakesTheHeightOfItsRows) {
    picker->setHeightInCm(180);
    pass();
    EXPECT_EQ(turn(1, 1), (Calls{"select 1 in 0", "select 11 in 1", "reload", // the unit
                                                                              // on the new columns
                                 "select 1 in 0", "select 11 in 1",
                                 // the height of the rows
                                 "select 1 in 0", "select 11 in 1", "reload"}));
    expectTold(180.33999633789062, false); // 152.4 + 27.94
    EXPECT_EQ(callsOf(pass), (Calls{"select 1 in 2", "select 1 in 2"}));
    EXPECT_EQ(shown(0) + shown(1) + shown(2), "5'11\"ft");

    EXPECT_EQ(turn(0, 2), (Calls{"select 60 in 0", "reload", "select 60 in 0", "select 60 in 0", "reload"}));
    expectTold(180, true);
    EXPECT_EQ(callsOf(pass), (Calls{"select 0 in 1", "select 0 in 1"}));
    EXPECT_EQ(shown(0) + shown(1), "180cm");
}

TEST_F(MetricHeightPicker, TheUnitThatIsShownPickedAgainNotifiesToo) {
    picker->setHeightInCm(175.6);
    pass();
    turn(0, 1);
    expectTold(175, true);
}

TEST_F(HeightPicker, OnlyTheFirstUnitRowIsMetric) {
    picker->setHeightInCm(180);
    for (const NSInteger row : {lowest, NSInteger{-1}, NSInteger{1}, NSInteger{2}, highest}) {
        picker->setIsMetric(true);
        picker->pickerView_didSelectRow_inComponent(picker, row, 1);
        EXPECT_FALSE(picker->isMetric());
    }
}

TEST_F(HeightPicker, AnyOtherColumnTakesTheHeightOfTheRows) {
    for (const bool isMetric : {true, false}) {
        for (const NSInteger component : {-1, 3, 4, 5, 6, 7}) {
            picker->setHeightInCm(0);
            picker->setIsMetric(isMetric);
            picker->pickerView_didSelectRow_inComponent(picker, highest, component);
            expectTold(isMetric ? 180 : 177.79998779296875, isMetric);
        }
    }
    picker->setIsMetric(true);
    picker->pickerView_didSelectRow_inComponent(picker, 0, 2);
    EXPECT_TRUE(picker->isMetric()) << "the imperial unit column is none here";
}

// Fingers. Metric columns of 100 and 60 points with a gap of 5 start at 77.5, imperial ones of 60
// points each at 65.

TEST_F(MetricHeightPicker, AFingerTurnsEachColumnAndNotifiesOnce) {
    picker->setHeightInCm(180);
    pass();
    TestWindow window(picker);
    const auto drag = [&](double x, double y) {
        window.drag({x, 108}, {x, 108 + y});
        window.runUntilStill();
        pass();
        window.runUntilStill();
    };
    drag(127, -126); // three rows of 40 and the slop
    expectTold(183, true);
    drag(212, -46);
    EXPECT_EQ(shown(0) + shown(1) + shown(2), "6'0\"ft");
    expectTold(182.8800048828125, false);
    drag(160, -86);
    EXPECT_EQ(shown(0) + shown(1) + shown(2), "6'2\"ft");
    ASSERT_EQ(notices->list.size(), 1U);
    EXPECT_NEAR(notices->list[0].height, 187.96, 0.0001);
    notices->list.clear();
    drag(95, 46);
    EXPECT_EQ(shown(0) + shown(1) + shown(2), "5'2\"ft");
    ASSERT_EQ(notices->list.size(), 1U);
    EXPECT_NEAR(notices->list[0].height, 157.48, 0.0001);
    notices->list.clear();
    drag(225, 46);
    EXPECT_EQ(shown(0) + shown(1), "157cm");
    expectTold(157, true);
}

// Delegates

TEST_F(HeightPicker, TheDelegateIsHeldWeaklyAndSkippedWhenItDied) {
    EXPECT_EQ(picker->heightDelegate().lock(), notices);
    notices = nullptr;
    EXPECT_FALSE(picker->heightDelegate().lock());
    turn(2, 0);
    EXPECT_NEAR(picker->heightInCm(), 182.88, 0.0001);
}

TEST_F(HeightPicker, ADelegateMaySetValuesAndReplaceItselfInItsNotice) {
    const auto other = create<HeightNotices>();
    notices->whenTold = [&] {
        picker->setIsMetric(true);
        picker->setHeightInCm(190);
        picker->setHeightDelegate(other);
        notices = nullptr;
    };
    turn(2, 0);
    pass();
    EXPECT_EQ(shown(0) + shown(1), "190cm");
    turn(1, 1);
    ASSERT_EQ(other->list.size(), 1U);
    EXPECT_FALSE(other->list[0].metric);
}

TEST_F(HeightPicker, ADelegateMayDropTheLastReferenceToThePickerInItsNotice) {
    const WeakRef<GXHeightPickerView> weak = picker;
    notices->whenTold = [&] {
        notices->list.clear();
        picker = nullptr;
    };
    GXHeightPickerView* const wheel = picker.get(); // The caller holds nothing either.
    wheel->turnToRow_inComponent(0, 2);
    EXPECT_TRUE(weak.expired());
}

TEST_F(HeightPicker, ExtremeRowsAndHeightsEndOnRowsThatThereAre) {
    for (const double height : {-1e308, 1e308, notANumber, infinity, 5e-324}) {
        for (const bool isMetric : {true, false}) {
            picker->setHeightInCm(height);
            picker->setIsMetric(isMetric);
            picker->layoutIfNeeded();
            for (NSInteger component = -1; component <= 7; ++component) {
                EXPECT_FALSE(title(lowest, component).empty());
                EXPECT_FALSE(title(highest, component).empty());
                picker->pickerView_didSelectRow_inComponent(picker, highest, component);
                EXPECT_GE(picker->heightInCm(), 120.0);
                EXPECT_LE(picker->heightInCm(), 220.0);
            }
        }
    }
}
