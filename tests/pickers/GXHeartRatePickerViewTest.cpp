#include "GXHeartRatePickerView.h"

#include "GXLocalization.h"
#include "KeysAndComments.h"
#include "PickerTest.h"

using namespace gx;

namespace {

constexpr NSInteger average = 0;
constexpr NSInteger spacer = 1;
constexpr NSInteger maximum = 2;

struct HeartRatePicker : PickerTest<GXHeartRatePickerView> {
    NSInteger avg() const { return picker->currentAvgHeartRate().integerValue(); }
    NSInteger max() const { return picker->currentMaxHeartRate().integerValue(); }
    void showNoNullValue() {
        picker->setShouldShowNullValue(false);
        wheel().reloadAllComponents();
    }
};

} // namespace

// Construction

TEST_F(HeartRatePicker, ItIsSetUpStepByStepThroughTheSetters) {
    EXPECT_EQ(wheel().takeCalls(), (Calls{"delegate", "data source",  // the wheel
                                          "reload", "select 0 in 0",  // minimum
                                          "reload", "select 0 in 0",  // maximum
                                          "select 95 in 0 animated",  // average
                                          "select 135 in 2 animated", // maximum rate
                                          "right MAX", "left AVG",    // labels
                                          "select 95 in 0", "select 135 in 2"}));
    EXPECT_TRUE(notices->list.empty());
}

TEST_F(HeartRatePicker, ItsDefaultsAreBoxed64BitIntegers) {
    for (const auto& [number, value] : {std::pair(picker->minValue(), 25),
                                        {picker->maxValue(), 230},
                                        {picker->currentAvgHeartRate(), 120},
                                        {picker->currentMaxHeartRate(), 160},
                                        {picker->minimumGapBetweenAvgAndMax(), 1}}) {
        EXPECT_EQ(number.type(), NSNumber::Type::Integer);
        EXPECT_EQ(number.integerValue(), value);
    }
    EXPECT_TRUE(picker->shouldShowNullValue());
    EXPECT_EQ(picker->stepSize().integerValue(), 1);
    EXPECT_EQ(picker->currentValue().integerValue(), 0);
}

TEST_F(HeartRatePicker, AFreshOneShows120And160BetweenItsLabels) {
    EXPECT_EQ(wheel().numberOfComponents(), 3);
    EXPECT_EQ(selected(average), 95);
    EXPECT_EQ(selectedTitle(average), "120");
    EXPECT_EQ(selected(maximum), 135);
    EXPECT_EQ(selectedTitle(maximum), "160");
    // Columns of 54, 5 and 54 points with gaps of 5 make 123, from 98.5 on; titles and labels are
    // 30 wide.
    EXPECT_NEAR(CGRectGetMinX(wheel().leftDescLabel()->frame()), 98.5 + 54 - 30 - 10 - 30, 1e-5);
    EXPECT_NEAR(CGRectGetMinX(wheel().rightDescLabel()->frame()), 167.5 + 30 + 10, 1e-5);
}

TEST_F(HeartRatePicker, TheOtherInitialisersSetItUpAlike) {
    const auto high = create<GXHeartRatePickerView>(CGRectMake(0, 0, 320, 216), 60.0F);
    EXPECT_EQ(high->currentAvgHeartRate().integerValue(), 120);
    EXPECT_EQ(high->pickerView_rowHeightForComponent(high->pickerView(), 2), 60);
    EXPECT_EQ(high->pickerView()->selectedRowInComponent(maximum), 135);
    const auto coded = create<GXHeartRatePickerView>(create<NSCoder>());
    EXPECT_EQ(coded->currentMaxHeartRate().integerValue(), 160);
    EXPECT_EQ(coded->pickerView()->leftLabelText(), "AVG");
}

TEST(HeartRatePickerLabels, TheyAreLocalised) {
    GXLocalization::setSharedLocalization(create<KeysAndComments>());
    const auto picker = create<GXHeartRatePickerView>(CGRectMake(0, 0, 320, 216));
    GXLocalization::setSharedLocalization(nullptr);
    EXPECT_EQ(picker->pickerView()->leftLabelText(), "AVG|AVG - Heartrate Unit");
    EXPECT_EQ(picker->pickerView()->rightLabelText(), "MAX|MAX - Heartrate Unit");
}

// Rows

TEST_F(HeartRatePicker, TheAverageHasOneRowLessThanTheMaximumSoThatAMaximumAboveItIsLeft) {
    EXPECT_EQ(rows(average), 204);
    EXPECT_EQ(rows(maximum), 205);
    for (const NSInteger component : {average, maximum}) {
        EXPECT_EQ(title(0, component), "-");
        EXPECT_EQ(title(1, component), "26");
    }
    EXPECT_EQ(title(203, average), "228");
    EXPECT_EQ(title(204, maximum), "229") << "230 itself is not offered";
}

TEST_F(HeartRatePicker, TheSpacerHasTheMaximumsRowsWithoutTitles) {
    EXPECT_EQ(rows(spacer), 205);
    for (const NSInteger row : {-1, 0, 1, 204}) EXPECT_EQ(title(row, spacer), std::nullopt);
    EXPECT_EQ(picker->pickerView_widthForComponent(picker->pickerView(), spacer), 5.0);
}

TEST_F(HeartRatePicker, TheColumnsOfRatesAre1Point8TimesTheirLastTitle) {
    EXPECT_EQ(picker->pickerView_widthForComponent(picker->pickerView(), average), 30 * 1.7999999523162842);
    EXPECT_EQ(picker->pickerView_widthForComponent(picker->pickerView(), maximum), 30 * 1.7999999523162842);
    picker->setMaxValue(boxed(80)); // "78" and "79" give 36
    EXPECT_EQ(picker->pickerView_widthForComponent(picker->pickerView(), average), 50.0);
}

TEST_F(HeartRatePicker, WithoutTheNullRowTheFirstRowIsTheMinimumAndTheSwitchReloadsNothing) {
    EXPECT_EQ(callsOf([&] { picker->setShouldShowNullValue(false); }), Calls{});
    EXPECT_EQ(title(0, average), "25");
    EXPECT_EQ(title(0, maximum), "25");
    EXPECT_EQ(title(1, maximum), "26");
}

TEST_F(HeartRatePicker, ANewGapIsStoredOnly) {
    const NSNumber gap = boxed(30);
    EXPECT_EQ(callsOf([&] { picker->setMinimumGapBetweenAvgAndMax(gap); }), Calls{});
    EXPECT_TRUE(picker->minimumGapBetweenAvgAndMax().isIdenticalTo(gap));
    EXPECT_EQ(max(), 160);
}

TEST_F(HeartRatePicker, TheStepDividesTheRowsButTitlesGoUpByOne) {
    EXPECT_EQ(callsOf([&] { picker->setStepSize(boxed(2)); }), (Calls{"reload", "select 0 in 0"}));
    EXPECT_EQ(rows(average), 101); // 205 / 2 less one
    EXPECT_EQ(rows(maximum), 102);
    EXPECT_EQ(title(2, average), "27");
}

TEST_F(HeartRatePicker, WithoutRowsTheWidthIsMeasuredOnTheNumberBelowTheMinimum) {
    EXPECT_EQ(title(-1, maximum), "24");
    picker->setMinValue(boxed(-99999));
    picker->setMaxValue(boxed(-99999));
    // "-100000"
    EXPECT_EQ(picker->pickerView_widthForComponent(picker->pickerView(), maximum), 70 * 1.7999999523162842);
}

TEST_F(HeartRatePicker, ATitleBeyond32BitsWraps) {
    picker->setMinValue(boxedInteger(2147483647));
    EXPECT_EQ(title(1, maximum), "-2147483648");
}

// Setters

TEST_F(HeartRatePicker, ARateTurnsItsOwnWheelAnimatedAndTellsNobody) {
    const NSNumber first = boxed(150);
    const NSNumber second = boxed(90);
    EXPECT_EQ(callsOf([&] { picker->setCurrentAvgHeartRate(first); }), (Calls{"select 125 in 0 animated"}));
    EXPECT_EQ(callsOf([&] { picker->setCurrentMaxHeartRate(second); }), (Calls{"select 65 in 2 animated"}));
    EXPECT_TRUE(picker->currentAvgHeartRate().isIdenticalTo(first)) << "what the application sets is not held to the gap";
    EXPECT_TRUE(picker->currentMaxHeartRate().isIdenticalTo(second));
    EXPECT_TRUE(notices->list.empty());
}

TEST_F(HeartRatePicker, ARateSetToNothingBecomesItsDefault) {
    picker->setCurrentAvgHeartRate(boxed(99));
    picker->setCurrentMaxHeartRate(boxed(99));
    EXPECT_EQ(callsOf([&] { picker->setCurrentAvgHeartRate(NSNumber()); }), (Calls{"select 95 in 0 animated"}));
    EXPECT_EQ(callsOf([&] { picker->setCurrentMaxHeartRate(NSNumber()); }), (Calls{"select 135 in 2 animated"}));
    EXPECT_EQ(avg(), 120);
    EXPECT_EQ(max(), 160);
    EXPECT_EQ(picker->currentAvgHeartRate().type(), NSNumber::Type::Integer);
    EXPECT_EQ(picker->currentMaxHeartRate().type(), NSNumber::Type::Integer);
}

TEST_F(HeartRatePicker, ARateBelowTheMinimumIsKeptAndShownOnTheFirstRow) {
    for (const int rate : {24, 10, 0, -7}) {
        EXPECT_EQ(callsOf([&] { picker->setCurrentAvgHeartRate(boxed(rate)); }), (Calls{"select 0 in 0 animated"}));
        EXPECT_EQ(avg(), rate);
        EXPECT_EQ(callsOf([&] { picker->setCurrentMaxHeartRate(boxed(rate)); }), (Calls{"select 0 in 2 animated"}));
        EXPECT_EQ(max(), rate);
    }
}

TEST_F(HeartRatePicker, TheMinimumItselfBecomes0WhereTheNullRowStandsInItsPlace) {
    EXPECT_EQ(callsOf([&] { picker->setCurrentAvgHeartRate(boxed(25)); }), (Calls{"select 0 in 0 animated"}));
    EXPECT_EQ(callsOf([&] { picker->setCurrentMaxHeartRate(boxed(25)); }), (Calls{"select 0 in 2 animated"}));
    EXPECT_EQ(avg(), 0);
    EXPECT_EQ(max(), 0);
    EXPECT_EQ(picker->currentAvgHeartRate().type(), NSNumber::Type::Integer);
    picker->setCurrentAvgHeartRate(boxed(26));
    EXPECT_EQ(avg(), 26);
    EXPECT_EQ(selected(average), 1);
    picker->setShouldShowNullValue(false);
    picker->setCurrentAvgHeartRate(boxed(25));
    picker->setCurrentMaxHeartRate(boxed(25));
    EXPECT_EQ(avg(), 25);
    EXPECT_EQ(max(), 25);
}

TEST_F(HeartRatePicker, ARateAboveTheRangeIsKeptAndItsRowHandedToTheWheel) {
    EXPECT_EQ(callsOf([&] { picker->setCurrentAvgHeartRate(boxed(229)); }), (Calls{"select 204 in 0 animated"}));
    EXPECT_EQ(callsOf([&] { picker->setCurrentMaxHeartRate(boxed(500)); }), (Calls{"select 475 in 2 animated"}));
    EXPECT_EQ(avg(), 229);
    EXPECT_EQ(selected(average), 203);
    EXPECT_EQ(selected(maximum), 204);
}

TEST_F(HeartRatePicker, WithoutRowsForAnAverageNeitherWheelIsTurned) {
    picker->setMaxValue(boxed(26)); // the maximum has one row, the average none
    EXPECT_EQ(rows(average), 0);
    EXPECT_EQ(rows(maximum), 1);
    EXPECT_EQ(callsOf([&] { picker->setCurrentAvgHeartRate(boxed(30)); }), Calls{});
    EXPECT_EQ(callsOf([&] { picker->setCurrentMaxHeartRate(boxed(30)); }), Calls{});
    EXPECT_EQ(max(), 30);
    picker->setMaxValue(boxed(27));
    EXPECT_EQ(rows(average), 1);
    EXPECT_EQ(callsOf([&] { picker->setCurrentMaxHeartRate(boxed(26)); }), (Calls{"select 1 in 2 animated"}));
}

TEST_F(HeartRatePicker, ANewRangePutsTheAverageOnItsFirstRowAndKeepsTheRates) {
    EXPECT_EQ(callsOf([&] { picker->setMinValue(boxed(40)); }), (Calls{"reload", "select 0 in 0"}));
    EXPECT_EQ(callsOf([&] { picker->setMaxValue(boxed(200)); }), (Calls{"reload", "select 0 in 0"}));
    EXPECT_EQ(avg(), 120);
    EXPECT_EQ(max(), 160);
    EXPECT_EQ(callsOf([&] { picker->setCurrentAvgHeartRate(boxed(120)); }), (Calls{"select 80 in 0 animated"}));
}

TEST_F(HeartRatePicker, TheBasesCurrentValueSelectsItsQuotientByTheStepWhateverTheMinimum) {
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxed(7)); }), (Calls{"select 7 in 0"}));
    EXPECT_EQ(callsOf([&] { picker->setStepSize(boxed(3)); }), (Calls{"reload", "select 2 in 0"}));
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxed(-7)); }), (Calls{"select -2 in 0"}));
}
