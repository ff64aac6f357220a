#include <limits>

#include "GXWeightPickerView.h"
#include "PickerTest.h"
#include "TestWindow.h"

using namespace gx;

namespace {

constexpr NSInteger highest = std::numeric_limits<NSInteger>::max();
constexpr NSInteger lowest = std::numeric_limits<NSInteger>::min();
constexpr float infinity = std::numeric_limits<float>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

struct WeightSelection : PickerTest<GXWeightPickerView> {
    Calls callsOfSetting(NSNumber kilograms) {
        return callsOf([&] { picker->setCurrentValue(kilograms); });
    }
    void showUnit(GXWeightUnit unit) {
        picker->setWeightUnit(unit);
        picker->updateMinMaxWeight();
    }
    double kilograms() const { return picker->currentValue().doubleValue(); }
};

} // namespace

// Values in kilograms

TEST_F(WeightSelection, AValueSelectsItsWholeKilogramsAndItsNearestTenth) {
    EXPECT_EQ(callsOfSetting(boxedDouble(72.46)), (Calls{"select 57 in 0", "select 5 in 2"}));
    EXPECT_EQ(selectedTitle(0), "72");
    EXPECT_EQ(callsOfSetting(boxedDouble(72.25)), (Calls{"select 57 in 0", "select 3 in 2"})) << "halves go up";
    EXPECT_EQ(callsOfSetting(boxedDouble(72.24)), (Calls{"select 57 in 0", "select 2 in 2"}));
    EXPECT_EQ(callsOfSetting(boxed(15)), (Calls{"select 0 in 0", "select 0 in 2"}));
    EXPECT_EQ(callsOfSetting(boxedDouble(349.9)), (Calls{"select 334 in 0", "select 9 in 2"}));
    EXPECT_TRUE(notices->list.empty());
}

TEST_F(WeightSelection, AFractionThatRoundsToTenTenthsIsNotCarried) {
    EXPECT_EQ(callsOfSetting(boxedDouble(72.94)), (Calls{"select 57 in 0", "select 9 in 2"}));
    EXPECT_EQ(callsOfSetting(boxedDouble(72.95)), (Calls{"select 57 in 0", "select 9 in 2"})) << "72.949997 in single precision";
    EXPECT_EQ(callsOfSetting(boxedDouble(72.96)), (Calls{"select 57 in 0", "select 10 in 2"}));
    EXPECT_EQ(selected(0), 57);
    EXPECT_EQ(selected(2), 9);
}

TEST_F(WeightSelection, AValueBelowTheMinimumSelectsNothing) {
    picker->setCurrentValue(boxed(80));
    EXPECT_EQ(callsOfSetting(boxedDouble(14.99)), Calls{});
    EXPECT_EQ(kilograms(), 14.99);
    EXPECT_EQ(selected(0), 65);
}

TEST_F(WeightSelection, WithALowerMinimumARowBelow0IsAskedFor) {
    picker->setMinValue(boxed(-10));
    EXPECT_EQ(callsOfSetting(boxedDouble(14.5)), (Calls{"select -1 in 0", "select 5 in 2"}));
    EXPECT_EQ(callsOfSetting(boxedDouble(-0.5)), (Calls{"select -16 in 0", "select 5 in 2"})) << "the whole number below";
}

TEST_F(WeightSelection, KilogramsAndStonesAreNotClampedToTheWheel) {
    EXPECT_EQ(callsOfSetting(boxed(350)), (Calls{"select 335 in 0", "select 0 in 2"}));
    EXPECT_EQ(selected(0), 334);
    EXPECT_EQ(kilograms(), 350);
    showUnit(GXWeightUnitStone);
    EXPECT_EQ(callsOfSetting(boxed(350)), (Calls{"select 52 in 0", "select 1 in 2"})); // 55.116 st
    EXPECT_EQ(kilograms(), 350);
}

// Pounds and stones

TEST_F(WeightSelection, InPoundsAndStonesTheConvertedWeightIsSelected) {
    showUnit(GXWeightUnitPound);
    EXPECT_EQ(callsOfSetting(boxed(80)), (Calls{"select 142 in 0", "select 4 in 2"})); // 176.37 lb
    EXPECT_EQ(kilograms(), 80);
    showUnit(GXWeightUnitStone);
    EXPECT_EQ(callsOfSetting(boxed(80)), (Calls{"select 9 in 0", "select 6 in 2"})); // 12.598 st
}

TEST_F(WeightSelection, MoreThan771PoundsBecome770Point9) {
    showUnit(GXWeightUnitPound);
    // 349.71973 kg are 771.0 lb in single precision: beyond the last row, but not more than 771.
    EXPECT_EQ(callsOfSetting(boxedFloat(349.71973F)), (Calls{"select 737 in 0", "select 0 in 2"}));
    EXPECT_EQ(picker->currentValue().floatValue(), 349.71973F);
    // The next float is 771.00006 lb. The replacement selects its rows when it is set, and the
    // selection that found it once more.
    EXPECT_EQ(callsOfSetting(boxedFloat(349.71976F)), (Calls{"select 736 in 0", "select 9 in 2", "select 736 in 0", "select 9 in 2"}));
    EXPECT_EQ(picker->currentValue().floatValue(), 349.67438F);
    EXPECT_EQ(picker->currentValue().type(), NSNumber::Type::Float);
    EXPECT_EQ(selectedTitle(0), "770");
    EXPECT_EQ(selectedTitle(2), "9");
    picker->setCurrentValue(boxedFloat(infinity));
    EXPECT_EQ(picker->currentValue().floatValue(), 349.67438F);
    EXPECT_TRUE(notices->list.empty());
}

TEST_F(WeightSelection, AMinimumAboveTheReplacementStillEnds) {
    showUnit(GXWeightUnitPound);
    picker->setMinValue(boxed(400));
    EXPECT_EQ(callsOfSetting(boxed(500)), (Calls{"select 736 in 0", "select 9 in 2"}));
    EXPECT_EQ(picker->currentValue().floatValue(), 349.67438F);
}

TEST_F(WeightSelection, TheStonesWheelReachesFrom3To54Point9) {
    showUnit(GXWeightUnitStone);
    turn(51, 0);
    EXPECT_EQ(turn(9, 2), (Calls{"select 51 in 0", "select 9 in 2"}));
    EXPECT_EQ(picker->currentValue().floatValue(), 348.63113F); // 54.9 st
    turn(0, 0);
    EXPECT_EQ(turn(0, 2), (Calls{"select 0 in 0", "select 0 in 2"}));
    EXPECT_EQ(picker->currentValue().floatValue(), 19.05088F);
}

TEST_F(WeightSelection, EveryWeightThatIsPickedStaysPickedInEveryUnit) {
    for (const GXWeightUnit unit : {GXWeightUnitKilogram, GXWeightUnitPound, GXWeightUnitStone}) {
        showUnit(unit);
        for (NSInteger row = 0; row < rows(0); ++row) {
            turn(row, 0);
            const NSInteger tenth = row % 10;
            turn(tenth, 2);
            ASSERT_EQ(selected(0), row);
            ASSERT_EQ(selected(2), tenth);
        }
    }
}

TEST_F(WeightSelection, TheUnitsRowIsSelectedLastWhereThereIsAColumnForIt) {
    picker->setWeightUnitSelectable(true);
    EXPECT_EQ(callsOfSetting(boxed(70)), (Calls{"select 55 in 0", "select 0 in 2", "select 0 in 3"}));
    picker->setWeightUnit(GXWeightUnitStone);
    EXPECT_EQ(callsOfSetting(boxed(70)), (Calls{"select 8 in 0", "select 0 in 2", "select 2 in 3"}));
    picker->setWeightUnit(GXWeightUnitPound);
    // 154.32 lb
    EXPECT_EQ(callsOfSetting(boxed(70)), (Calls{"select 120 in 0", "select 3 in 2", "select 1 in 3"}));
}

// The user's turns

TEST_F(WeightSelection, ASelectionInEitherValueColumnStoresKilogramsAsADoubleAndTellsOnce) {
    EXPECT_EQ(turn(57, 0), (Calls{"select 57 in 0", "select 0 in 2"}));
    EXPECT_EQ(kilograms(), 72.0);
    EXPECT_EQ(turn(4, 2), (Calls{"select 57 in 0", "select 4 in 2"}));
    EXPECT_EQ(kilograms(), 72.4);
    EXPECT_EQ(turn(58, 0), (Calls{"select 58 in 0", "select 4 in 2"}));
    EXPECT_EQ(kilograms(), 73.4);
    EXPECT_EQ(picker->currentValue().type(), NSNumber::Type::Double);
    ASSERT_EQ(notices->list.size(), 3U);
    EXPECT_EQ(notices->list[1].value.doubleValue(), 72.4);
    for (const auto& notice : notices->list) EXPECT_EQ(notice.component, 0);
}

TEST_F(WeightSelection, ASelectionInPoundsStoresTheConvertedFloat) {
    showUnit(GXWeightUnitPound);
    turn(166, 0);
    turn(5, 2);
    EXPECT_EQ(picker->currentValue().type(), NSNumber::Type::Float);
    EXPECT_EQ(picker->currentValue().floatValue(), 90.945274F); // 200.5 lb
    EXPECT_EQ(selectedTitle(0), "200");
    EXPECT_EQ(selectedTitle(2), "5");
}

TEST_F(WeightSelection, ASelectionInStonesOrAnUnknownUnitStoresTheConvertedFloat) {
    for (const GXWeightUnit unit : {GXWeightUnitStone, static_cast<GXWeightUnit>(3)}) {
        showUnit(unit);
        turn(9, 0);
        turn(5, 2);
        EXPECT_EQ(picker->currentValue().type(), NSNumber::Type::Float);
        EXPECT_EQ(picker->currentValue().floatValue(), 79.37867F); // 12.5 st
    }
}

TEST_F(WeightSelection, AWholeNumberTakesTheTenthThatTheWheelShows) {
    picker->setCurrentValue(boxedDouble(72.96)); // row 10 of the tenths, shown as 9
    turn(58, 0);
    EXPECT_EQ(kilograms(), 73.9);
}

TEST_F(WeightSelection, AnotherUnitKeepsTheKilogramsAndShowsThemInIt) {
    picker->setWeightUnitSelectable(true);
    picker->setCurrentValue(boxed(80));
    Calls atNotice;
    notices->whenTold = [&](const PickerNotices::Notice&) { atNotice = wheel().takeCalls(); };
    turn(2, 3);
    EXPECT_EQ(atNotice, (Calls{"right (nothing)", "reload", "reload 0", "select 9 in 0", "select 6 in 2", "select 2 in 3"}))
        << "told after the rows were selected";
    EXPECT_EQ(picker->weightUnit(), GXWeightUnitStone);
    EXPECT_EQ(rows(0), 52);
    ASSERT_EQ(notices->list.size(), 1U);
    EXPECT_EQ(notices->list[0].value.doubleValue(), 80);
    EXPECT_EQ(notices->list[0].component, 0);
    EXPECT_EQ(picker->minValue().intValue(), 15) << "the bounds are the application's";
    turn(1, 3);
    EXPECT_EQ(picker->weightUnit(), GXWeightUnitPound);
    EXPECT_EQ(selectedTitle(0), "176");
    turn(0, 3);
    EXPECT_EQ(picker->weightUnit(), GXWeightUnitKilogram);
    EXPECT_EQ(selectedTitle(0), "80");
    EXPECT_EQ(kilograms(), 80);
}

TEST_F(WeightSelection, AUnitRowThatDoesNotExistMeansKilograms) {
    for (const NSInteger row : {NSInteger{-1}, NSInteger{3}, highest}) {
        picker->setWeightUnit(GXWeightUnitStone);
        picker->pickerView_didSelectRow_inComponent(picker->pickerView(), row, 3);
        EXPECT_EQ(picker->weightUnit(), GXWeightUnitKilogram);
    }
}

TEST_F(WeightSelection, AnyOtherColumnChangesNothingButNotifies) {
    picker->setCurrentValue(boxed(80));
    EXPECT_EQ(turn(0, 1), Calls{});
    for (const NSInteger component : {-1, 4, 5, 6, 7}) {
        picker->pickerView_didSelectRow_inComponent(picker->pickerView(), 3, component);
    }
    EXPECT_EQ(wheel().takeCalls(), Calls{});
    ASSERT_EQ(notices->list.size(), 6U);
    for (const auto& notice : notices->list) EXPECT_EQ(notice.value.intValue(), 80);
}

// Fingers. Columns of 54, 3, 20 and 60 points with gaps of 5 make 152, from 84 on.

TEST_F(WeightSelection, AFingerTurnsEachColumnThatHoldsValuesAndNotifiesOnce) {
    picker->setWeightUnitSelectable(true);
    picker->setCurrentValue(boxed(80));
    TestWindow window(picker);
    window.drag({110, 108}, {110, 108 - 126}); // three rows of 40 and the slop
    window.runUntilStill();
    ASSERT_EQ(notices->list.size(), 1U);
    EXPECT_EQ(kilograms(), 83.0);
    window.drag({161, 108}, {161, 108 - 86});
    window.runUntilStill();
    ASSERT_EQ(notices->list.size(), 2U);
    EXPECT_EQ(kilograms(), 83.2);
    window.drag({206, 108}, {206, 108 - 46});
    window.runUntilStill();
    ASSERT_EQ(notices->list.size(), 3U);
    EXPECT_EQ(picker->weightUnit(), GXWeightUnitPound);
    EXPECT_EQ(selectedTitle(0), "183"); // 83.2 kg are 183.42 lb
    EXPECT_EQ(selectedTitle(2), "4");
    EXPECT_EQ(kilograms(), 83.2);
}

TEST_F(WeightSelection, AFingerCannotTurnTheSeparator) {
    TestWindow window(picker);
    // Three columns of 54, 3 and 20 points make 87, from 116.5 on: the separator's lies at 175.5.
    window.drag({177, 108}, {177, 108 - 46});
    window.runUntilStill();
    EXPECT_TRUE(notices->list.empty());
}

// Delegates

TEST_F(WeightSelection, ADelegateMaySetUnitAndValueAndReplaceItselfInItsNotice) {
    notices->whenTold = [&](const PickerNotices::Notice&) {
        picker->setWeightUnit(GXWeightUnitPound);
        picker->setCurrentValue(boxed(80));
        notices = nullptr;
    };
    turn(3, 0);
    EXPECT_EQ(selectedTitle(0), "176");
    turn(0, 2);
    EXPECT_NEAR(kilograms(), 79.83, 0.005); // 176.0 lb
}

// Bad input

TEST_F(WeightSelection, WithoutAWheelEveryOperationIsSafe) {
    picker->setPickerView(nullptr);
    picker->setWeightUnitSelectable(true);
    picker->setWeightUnit(GXWeightUnitPound);
    picker->updateMinMaxWeight();
    picker->setCurrentValue(boxed(500));
    EXPECT_EQ(picker->currentValue().floatValue(), 349.67438F);
    EXPECT_EQ(picker->pickerView_widthForComponent(nullptr, 0), 0.0);
    picker->pickerView_didSelectRow_inComponent(nullptr, 0, 3);
    picker->pickerView_didSelectRow_inComponent(nullptr, 20, 0);
    EXPECT_EQ(kilograms(), 35.0);
    picker->pickerView_didSelectRow_inComponent(nullptr, 3, 2);
    EXPECT_EQ(kilograms(), 15.3);
}

TEST_F(WeightSelection, EmptyAndNaNNumbersReadAs0) {
    EXPECT_EQ(callsOfSetting(NSNumber()), Calls{}) << "0 is below the minimum";
    EXPECT_EQ(callsOfSetting(boxedDouble(notANumber)), (Calls{"select 0 in 0", "select 0 in 2"})) << "no number is not below";
    picker->setMinValue(NSNumber());
    EXPECT_EQ(callsOfSetting(NSNumber()), (Calls{"select -15 in 0", "select 0 in 2"}));
    picker->setMinValue(boxedDouble(notANumber));
    EXPECT_EQ(callsOfSetting(boxed(20)), (Calls{"select 5 in 0", "select 0 in 2"}));
}

TEST_F(WeightSelection, HugeAndInfiniteWeightsAskForTheFurthestRow) {
    EXPECT_EQ(callsOfSetting(boxedFloat(infinity)), (Calls{"select 9223372036854775807 in 0", "select 0 in 2"}));
    EXPECT_EQ(callsOfSetting(boxedDouble(1e300)), (Calls{"select 9223372036854775807 in 0", "select 0 in 2"}));
    showUnit(GXWeightUnitStone);
    EXPECT_EQ(callsOfSetting(boxedFloat(3e38F)), (Calls{"select 9223372036854775807 in 0", "select 0 in 2"}));
    EXPECT_EQ(callsOfSetting(boxedFloat(-infinity)), Calls{});
}

TEST_F(WeightSelection, NoRowColumnOrUnitLeavesTheWheelWithoutItsRows) {
    picker->setWeightUnitSelectable(true);
    for (const NSUInteger unit : {0U, 1U, 2U, 3U, 4000000000U}) {
        for (NSInteger component = -1; component <= 7; ++component) {
            for (const NSInteger row : {lowest, NSInteger{-1}, NSInteger{5}, highest}) {
                picker->setWeightUnit(static_cast<GXWeightUnit>(unit));
                title(row, component);
                picker->pickerView_didSelectRow_inComponent(picker->pickerView(), row, component);
                picker->setMinValue(boxedInteger(row));
                picker->setMaxValue(boxedInteger(lowest));
                picker->setStepSize(boxedInteger(row));
                picker->layoutIfNeeded();
                EXPECT_GE(selected(0), 0);
                EXPECT_LT(selected(0), rows(0));
            }
        }
    }
}
