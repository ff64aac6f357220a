#include "GXTemperaturePickerView.h"

#include <limits>

#include "GXLocalization.h"
#include "KeysAndComments.h"
#include "PickerTest.h"
#include "TestWindow.h"

using namespace gx;

namespace {

using TemperaturePicker = PickerTest<GXTemperaturePickerView>;

struct CelsiusPicker : TemperaturePicker {
    CelsiusPicker() { picker->setIsMetric(true); }
};

} // namespace

// Construction

TEST_F(TemperaturePicker, ItIsSetUpStepByStepThroughTheSetters) {
    EXPECT_EQ(wheel().takeCalls(), (Calls{"delegate", "data source",  // the wheel
                                          "reload", "select 36 in 0", // minimum: from -4 to 32 °F
                                          "reload", "select 36 in 0", // maximum
                                          "reload", "select 7 in 0",  // step
                                          // current value: from -4 to 68 °F
                                          "select 14 in 0", "right °F"}));
    EXPECT_TRUE(notices->list.empty());
}

TEST_F(TemperaturePicker, ItsRangeIsBoxedIn64BitIntegersAndItsValueAsAFloat) {
    for (const auto& [number, value] : {std::pair(picker->minValue(), -20), {picker->maxValue(), 60}, {picker->stepSize(), 5}}) {
        EXPECT_EQ(number.type(), NSNumber::Type::Integer);
        EXPECT_EQ(number.integerValue(), value);
    }
    EXPECT_EQ(picker->currentValue().type(), NSNumber::Type::Float);
    EXPECT_EQ(picker->currentValue().floatValue(), 20.0F);
}

TEST_F(TemperaturePicker, AFreshOneShows66AmongMinus4To131DegreesFahrenheit) {
    EXPECT_FALSE(picker->isMetric());
    EXPECT_EQ(wheel().numberOfComponents(), 1);
    EXPECT_EQ(rows(), 28);
    EXPECT_EQ(title(0), "-4");
    EXPECT_EQ(title(1), "1");
    EXPECT_EQ(title(2), "6");
    EXPECT_EQ(title(27), "131");
    EXPECT_EQ(selected(), 14);
    EXPECT_EQ(selectedTitle(), "66");
    EXPECT_EQ(wheel().rightDescLabel()->text(), "°F");
}

TEST_F(TemperaturePicker, TheOtherInitialisersSetItUpAlike) {
    const auto high = create<GXTemperaturePickerView>(CGRectMake(0, 0, 320, 216), 60.0F);
    EXPECT_EQ(high->pickerView()->selectedRowInComponent(0), 14);
    EXPECT_EQ(high->pickerView_rowHeightForComponent(high->pickerView(), 0), 60);
    const auto coded = create<GXTemperaturePickerView>(create<NSCoder>());
    EXPECT_EQ(coded->pickerView()->selectedRowInComponent(0), 14);
    EXPECT_EQ(coded->pickerView()->rightLabelText(), "°F");
}

TEST(TemperaturePickerLabel, ItIsLocalised) {
    GXLocalization::setSharedLocalization(create<KeysAndComments>());
    const auto picker = create<GXTemperaturePickerView>(CGRectMake(0, 0, 320, 216));
    EXPECT_EQ(picker->pickerView()->rightLabelText(), "°F|°F");
    picker->setIsMetric(true);
    EXPECT_EQ(picker->pickerView()->rightLabelText(), "°C|°C");
    GXLocalization::setSharedLocalization(nullptr);
    picker->updateTemperaturUnitLabel();
    EXPECT_EQ(picker->pickerView()->rightLabelText(), "°C");
}

// The unit

TEST_F(TemperaturePicker, AnotherUnitLabelsReloadsAndReselectsAndTheSameOneDoesNothing) {
    EXPECT_EQ(callsOf([&] { picker->setIsMetric(false); }), Calls{});
    EXPECT_EQ(callsOf([&] { picker->setIsMetric(true); }), (Calls{"right °C", "reload", "select 8 in 0"}));
    EXPECT_EQ(callsOf([&] { picker->setIsMetric(true); }), Calls{});
    EXPECT_EQ(callsOf([&] { picker->setIsMetric(false); }), (Calls{"right °F", "reload", "select 14 in 0"}));
    EXPECT_EQ(picker->currentValue().floatValue(), 20.0F) << "the value is the same temperature in both";
    EXPECT_TRUE(notices->list.empty());
}

TEST_F(CelsiusPicker, ItShows20AmongMinus20To55Degrees) {
    EXPECT_EQ(rows(), 16);
    EXPECT_EQ(title(0), "-20");
    EXPECT_EQ(title(1), "-15");
    EXPECT_EQ(title(15), "55") << "the maximum has no row";
    EXPECT_EQ(selected(), 8);
    EXPECT_EQ(selectedTitle(), "20");
}

TEST_F(TemperaturePicker, AFahrenheitRowOncePickedMayShowAsALowerCelsiusRow) {
    turn(14); // 66 °F
    EXPECT_NEAR(picker->currentValue().doubleValue(), 18.89, 0.005);
    picker->setIsMetric(true);
    EXPECT_EQ(selected(), 7); // (18 + 20) / 5
    EXPECT_EQ(selectedTitle(), "15");
}

// Values

TEST_F(CelsiusPicker, AValueIsCutToWholeDegreesAndItsRowTruncatedTowardTheMinimum) {
    const auto row = [&](NSNumber value) { return callsOf([&] { picker->setCurrentValue(value); }); };
    EXPECT_EQ(row(boxedDouble(22.7)), (Calls{"select 8 in 0"}));
    EXPECT_EQ(row(boxed(24)), (Calls{"select 8 in 0"}));
    EXPECT_EQ(row(boxed(25)), (Calls{"select 9 in 0"}));
    EXPECT_EQ(row(boxed(-20)), (Calls{"select 0 in 0"}));
    EXPECT_EQ(row(boxed(-22)), (Calls{"select 0 in 0"})) << "less than a step below the minimum";
    EXPECT_EQ(row(boxed(-24)), (Calls{"select 0 in 0"}));
    EXPECT_EQ(row(boxedDouble(-24.9)), (Calls{"select 0 in 0"}));
    EXPECT_EQ(row(boxed(-25)), (Calls{"select -1 in 0"}));
    EXPECT_EQ(row(boxed(-27)), (Calls{"select -1 in 0"}));
    EXPECT_EQ(selected(), 0);
    EXPECT_EQ(row(boxed(60)), (Calls{"select 16 in 0"}));
    EXPECT_EQ(selected(), 15);
}

TEST_F(TemperaturePicker, AValueSelectsTheFahrenheitRowAtOrBelowIt) {
    const auto row = [&](NSNumber value) { return callsOf([&] { picker->setCurrentValue(value); }); };
    EXPECT_EQ(row(boxedFloat(-20.0F)), (Calls{"select 0 in 0"}));
    EXPECT_EQ(row(boxedFloat(-17.25F)), (Calls{"select 0 in 0"})); // 0.95 °F
    EXPECT_EQ(row(boxedFloat(-17.0F)), (Calls{"select 1 in 0"}));  // 1.4 °F
    // 68.9 °F: the fraction counts, but 71 is the next row
    EXPECT_EQ(row(boxedFloat(20.5F)), (Calls{"select 14 in 0"}));
    // 71.06 °F; cut to 21 °C it would be 69.8 °F
    EXPECT_EQ(row(boxedDouble(21.7)), (Calls{"select 15 in 0"}));
    EXPECT_EQ(row(boxed(-22)), (Calls{"select 0 in 0"}));  // -3.6 °F from the minimum
    EXPECT_EQ(row(boxed(-27)), (Calls{"select -2 in 0"})); // -12.6 °F from the minimum
    EXPECT_EQ(row(boxed(60)), (Calls{"select 28 in 0"}));
    EXPECT_EQ(selected(), 27);
}

TEST_F(TemperaturePicker, AMinimumWithAFractionInFahrenheitIsAddedBeforeTheFractionIsCutOff) {
    picker->setMinValue(boxed(-18)); // -0.4 °F
    EXPECT_EQ(title(0), "0");
    EXPECT_EQ(title(1), "4");
    EXPECT_EQ(title(2), "9");
    EXPECT_EQ(title(3), "14");
    EXPECT_EQ(rows(), 28); // 140.4 / 5
    for (NSInteger row = 0; row < 28; ++row) {
        turn(row);
        EXPECT_EQ(selected(), row) << "a row that was picked stays";
    }
}

TEST_F(TemperaturePicker, TheStepIsTakenInTheUnitShown) {
    picker->setStepSize(boxed(10));
    EXPECT_EQ(rows(), 14);
    EXPECT_EQ(title(13), "126");
    picker->setIsMetric(true);
    EXPECT_EQ(rows(), 8);
    EXPECT_EQ(title(7), "50");
}

TEST_F(TemperaturePicker, BoundsAreReadByTheirWholeDegreesInBothUnits) {
    picker->setMinValue(boxedDouble(-20.9));
    picker->setMaxValue(boxedFloat(60.9F));
    picker->setStepSize(boxedDouble(5.9));
    EXPECT_EQ(rows(), 28);
    EXPECT_EQ(title(0), "-4");
    picker->setIsMetric(true);
    EXPECT_EQ(rows(), 16);
    EXPECT_EQ(title(0), "-20");
}

TEST_F(CelsiusPicker, ABoundReloadsAndThenReselects) {
    EXPECT_EQ(callsOf([&] { picker->setMinValue(boxed(0)); }), (Calls{"reload", "select 4 in 0"}));
    EXPECT_EQ(callsOf([&] { picker->setMaxValue(boxed(30)); }), (Calls{"reload", "select 4 in 0"}));
    EXPECT_EQ(callsOf([&] { picker->setStepSize(boxed(0)); }), (Calls{"reload", "select 20 in 0"})) << "a step of 0 becomes 1";
    EXPECT_EQ(callsOf([&] { picker->setMinValue(boxed(25)); }), (Calls{"reload", "select -5 in 0"})) << "not held to the minimum";
}

// The user's turns

TEST_F(CelsiusPicker, ASelectionStoresTheRowsDegreesAsAFloatReselectsAndTellsOnce) {
    EXPECT_EQ(turn(0), (Calls{"select 0 in 0"}));
    EXPECT_EQ(turn(3), (Calls{"select 3 in 0"}));
    ASSERT_EQ(notices->list.size(), 2U);
    EXPECT_EQ(notices->list[0].value.doubleValue(), -20.0);
    EXPECT_EQ(notices->list[1].value.doubleValue(), -5.0);
    EXPECT_EQ(notices->list[1].value.type(), NSNumber::Type::Float);
    EXPECT_EQ(notices->list[1].component, 0);
    EXPECT_EQ(notices->list[1].picker, picker);
    EXPECT_EQ(picker->currentValue().doubleValue(), -5.0);
}

TEST_F(TemperaturePicker, ASelectionInFahrenheitStoresTheRowsDegreesInCelsius) {
    EXPECT_EQ(turn(0), (Calls{"select 0 in 0"}));
    EXPECT_EQ(turn(1), (Calls{"select 1 in 0"}));
    EXPECT_EQ(turn(27), (Calls{"select 27 in 0"}));
    ASSERT_EQ(notices->list.size(), 3U);
    EXPECT_EQ(notices->list[0].value.doubleValue(), -20.0);
    EXPECT_NEAR(notices->list[1].value.doubleValue(), -17.22, 0.005); // 1 °F
    EXPECT_EQ(notices->list[2].value.doubleValue(), 55.0);            // 131 °F
    EXPECT_EQ(notices->list[1].value.type(), NSNumber::Type::Float);
    EXPECT_EQ(notices->list[1].component, 0);
}

TEST_F(TemperaturePicker, EveryRowThatIsPickedStaysPicked) {
    for (const bool isMetric : {false, true}) {
        picker->setIsMetric(isMetric);
        for (NSInteger row = 0; row < rows(); ++row) {
            turn(row);
            EXPECT_EQ(selected(), row);
        }
    }
}

TEST_F(TemperaturePicker, FromAMinimumWithAFractionInFahrenheitAPickedRowMayGoBackByOneButItsValueStays) {
    picker->setMinValue(NSNumber::numberWithInteger(-16)); // 3.2 °F
    picker->setStepSize(NSNumber::numberWithInteger(2));
    EXPECT_EQ(title(31), "65");
    turn(31);
    EXPECT_NEAR(picker->currentValue().doubleValue(), 18.4444, 0.00005); // 65.2 °F, less 32, by 1.8
    EXPECT_EQ(selectedTitle(), "63");
    ASSERT_EQ(notices->list.size(), 1U);
    EXPECT_EQ(notices->list[0].value.doubleValue(), picker->currentValue().doubleValue());
}

TEST_F(TemperaturePicker, AFingerTurnsTheWheelAndTheDelegateIsNotifiedOnce) {
    TestWindow window(picker);
    window.drag({160, 108}, {160, 108 + 46}); // one row of 40 back, and the slop
    window.runUntilStill();
    ASSERT_EQ(notices->list.size(), 1U);
    EXPECT_NEAR(notices->list[0].value.doubleValue(), 16.11, 0.005); // 61 °F
    EXPECT_EQ(selectedTitle(), "61");
}

TEST_F(TemperaturePicker, TheColumnDoesNotMatter) {
    for (NSInteger component = -1; component <= 7; ++component) {
        EXPECT_EQ(title(2, component), "6");
        EXPECT_EQ(picker->pickerView_numberOfRowsInComponent(picker->pickerView(), component), 28);
        picker->pickerView_didSelectRow_inComponent(picker->pickerView(), 0, component);
        EXPECT_EQ(notices->list.back().value.doubleValue(), -20.0);
        EXPECT_EQ(notices->list.back().component, 0);
    }
    EXPECT_EQ(notices->list.size(), 9U);
}

// Delegates

TEST_F(TemperaturePicker, ADelegateMaySwitchTheUnitAndReplaceItselfInItsNotice) {
    notices->whenTold = [&](const PickerNotices::Notice&) {
        picker->setIsMetric(true);
        picker->setCurrentValue(boxed(30));
        notices = nullptr;
    };
    turn(3);
    EXPECT_EQ(selectedTitle(), "30");
    turn(0);
    EXPECT_EQ(picker->currentValue().doubleValue(), -20.0);
}

// Bad input

TEST_F(TemperaturePicker, WithoutAWheelEveryOperationIsSafe) {
    picker->setPickerView(nullptr);
    picker->updateTemperaturUnitLabel();
    picker->setIsMetric(true);
    picker->setCurrentValue(boxed(5));
    picker->setMinValue(boxed(0));
    picker->pickerView_didSelectRow_inComponent(nullptr, 2, 0);
    EXPECT_EQ(notices->list.back().value.doubleValue(), 10.0);
}

TEST_F(TemperaturePicker, CrossedBoundsGiveNoRows) {
    picker->setMinValue(boxed(70));
    EXPECT_EQ(rows(), 0);
    picker->setIsMetric(true);
    EXPECT_EQ(rows(), 0);
    TestWindow window(picker);
    window.drag({160, 108}, {160, 20});
    EXPECT_TRUE(notices->list.empty());
}

TEST_F(TemperaturePicker, EmptyAndNaNNumbersReadAs0) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    picker->setMinValue(boxedDouble(nan));
    EXPECT_EQ(title(0), "32");
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(NSNumber()); }), (Calls{"select 0 in 0"}));
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxedDouble(nan)); }), (Calls{"select 0 in 0"}));
    picker->setIsMetric(true);
    EXPECT_EQ(title(0), "0");
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxedDouble(nan)); }), (Calls{"select 0 in 0"}));
}

TEST_F(TemperaturePicker, InfiniteTemperaturesAskForTheFurthestRows) {
    const float infinity = std::numeric_limits<float>::infinity();
    picker->setStepSize(boxed(1));
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxedFloat(infinity)); }), (Calls{"select 9223372036854775807 in 0"}));
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxedFloat(-infinity)); }), (Calls{"select -9223372036854775808 in 0"}));
}

TEST_F(TemperaturePicker, AFahrenheitTitleBeyond32BitsIsTheLargestOrSmallestAndACelsiusOneWraps) {
    picker->setMinValue(boxedInteger(3000000000));
    EXPECT_EQ(title(0), "2147483647");
    picker->setMinValue(boxedInteger(-3000000000));
    EXPECT_EQ(title(0), "-2147483648");
    picker->setIsMetric(true);
    EXPECT_EQ(title(0), "1294967296");
}
