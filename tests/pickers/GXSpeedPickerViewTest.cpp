#include "GXSpeedPickerView.h"

#include "NSLocale.h"
#include "PickerTest.h"

using namespace gx;

namespace {

using SpeedPicker = PickerTest<GXSpeedPickerView>;
/// In kilometres per hour, which a picker is only after it has been told.
struct MetricSpeedPicker : SpeedPicker {
    MetricSpeedPicker() { picker->setIsMetric(true); }
};
using Titles = std::vector<std::string>;
template <class Test>
Titles titlesOf(Test& test, NSInteger component) {
    Titles titles;
    for (NSInteger row = 0; row < test.rows(component); ++row) titles.push_back(test.title(row, component).value_or("(nothing)"));
    return titles;
}
const Titles allDigits{"0", "1", "2", "3", "4", "5", "6", "7", "8", "9"};
} // namespace

// Set-up

TEST_F(SpeedPicker, ItIsSetUpStepByStepThroughTheSetters) {
    EXPECT_EQ(wheel().takeCalls(), (Calls{"delegate", "data source",                  // the wheel
                                          "reload", "select 0 in 0", "select 0 in 2", // maximum
                                          "reload", "select 0 in 0", "select 0 in 2", // minimum
                                          // current value
                                          "select 6 in 0", "select 2 in 2", "right mph", "separator . after 0"}));
    for (const auto& [number, value] :
         {std::pair(picker->maxValue(), 13.8888889), {picker->minValue(), 0.0}, {picker->currentValue(), 2.7777777799999996}}) {
        EXPECT_EQ(number.type(), NSNumber::Type::Double);
        EXPECT_EQ(number.doubleValue(), value);
    }
    EXPECT_EQ(picker->stepSize().intValue(), 1);
    EXPECT_FALSE(picker->isMetric());
    EXPECT_FALSE(picker->speedFormatter()->metric());
    EXPECT_EQ(picker->speedFormatter()->style(), 1);
    EXPECT_TRUE(picker->speedFormatter()->usingUnit());
}

TEST_F(SpeedPicker, AFreshOneShows6Point2Of32MilesPerHour) {
    EXPECT_EQ(picker->maxSpeedInMphOrKph(), 31.06855960818818);
    EXPECT_EQ(picker->minSpeedInMphOrKph(), 0.0);
    EXPECT_EQ(picker->currentSpeedInMphOrKph(), 6.2137119216376355);
    EXPECT_EQ(wheel().numberOfComponents(), 3);
    EXPECT_EQ(rows(0), 32);
    EXPECT_EQ(title(0, 0), "0");
    EXPECT_EQ(title(31, 0), "31");
    EXPECT_EQ(rows(1), 1);
    EXPECT_EQ(title(0, 1), std::nullopt);
    EXPECT_EQ(titlesOf(*this, 2), allDigits);
    EXPECT_EQ(selectedTitle(0), "6");
    EXPECT_EQ(selectedTitle(2), "2");
    EXPECT_EQ(wheel().rightDescLabel()->text(), "mph");
    EXPECT_EQ(wheel().separatorAfterComponent(0)->text(), ".");
}

TEST_F(MetricSpeedPicker, InKilometresItShows10Point0Of51) {
    EXPECT_EQ(picker->maxSpeedInMphOrKph(), 50.000000039999996);
    EXPECT_EQ(picker->currentSpeedInMphOrKph(), 10.000000007999999);
    EXPECT_EQ(rows(0), 51);
    EXPECT_EQ(title(0, 0), "0");
    EXPECT_EQ(title(50, 0), "50");
    EXPECT_EQ(titlesOf(*this, 2), allDigits);
    EXPECT_EQ(selected(0), 10);
    EXPECT_EQ(selected(2), 0);
}

TEST(SpeedPickerConstruction, TheSeparatorIsTheLocales) {
    NSLocale::setCurrentLocale(NSLocale::localeWithIdentifier("de_DE"));
    const auto picker = create<GXSpeedPickerView>(CGRectMake(0, 0, 320, 216));
    NSLocale::setCurrentLocale(nullptr);
    EXPECT_EQ(picker->pickerView()->separatorAfterComponent(0)->text(), ",");
    picker->setIsMetric(true);
    picker->pickerView()->turnToRow_inComponent(3, 2);
    EXPECT_NEAR(picker->currentValue().doubleValue(), 10.3 * 0.277777778, 1e-12);
}

TEST(SpeedPickerConstruction, TheOtherInitialisersSetItUpAlike) {
    const auto high = create<GXSpeedPickerView>(CGRectMake(0, 0, 320, 216), 60.0F);
    EXPECT_EQ(high->currentValue().doubleValue(), 2.7777777799999996);
    EXPECT_EQ(high->pickerView_rowHeightForComponent(high->pickerView(), 0), 60);
    const auto coded = create<GXSpeedPickerView>(create<NSCoder>());
    EXPECT_EQ(coded->maxValue().doubleValue(), 13.8888889);
    EXPECT_EQ(coded->pickerView()->rightLabelText(), "mph");
}

// Conversions and copies

TEST_F(SpeedPicker, EachConversionIsOneMultiplicationByARoundedFactor) {
    EXPECT_EQ(picker->mpsToKph(1), 3.6);
    EXPECT_EQ(picker->mpsToMph(1), 2.23693629);
    EXPECT_EQ(picker->kphToMps(1), 0.277777778);
    EXPECT_EQ(picker->mphToMps(1), 0.44704);
    EXPECT_GT(picker->mpsToKph(picker->kphToMps(1)), 1);
    EXPECT_LT(picker->mpsToMph(picker->mphToMps(1)), 1);
}

TEST_F(MetricSpeedPicker, EachSetterRefreshesItsCopyFirst) {
    EXPECT_EQ(callsOf([&] { picker->setMaxValue(boxed(5)); }), (Calls{"reload", "select 10 in 0", "select 0 in 2"}));
    EXPECT_EQ(picker->maxSpeedInMphOrKph(), 18);
    EXPECT_EQ(callsOf([&] { picker->setMinValue(boxed(1)); }), (Calls{"reload", "select 6 in 0", "select 0 in 2"}));
    EXPECT_EQ(picker->minSpeedInMphOrKph(), 3.6);
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxed(3)); }), (Calls{"select 7 in 0", "select 8 in 2"})) << "10.8 − 3.6";
    EXPECT_NEAR(picker->currentSpeedInMphOrKph(), 10.8, 1e-14);
    EXPECT_EQ(picker->currentValue().type(), NSNumber::Type::Int) << "kept as given";
    EXPECT_TRUE(notices->list.empty());
}

TEST_F(MetricSpeedPicker, ACopyMayBeSetAndIsRefreshedAlsoByTheVeryBoxThatIsStored) {
    EXPECT_EQ(callsOf([&] {
                  picker->setMaxSpeedInMphOrKph(20.5);
                  picker->setMinSpeedInMphOrKph(2);
                  picker->setCurrentSpeedInMphOrKph(7.3);
              }),
              Calls{});
    EXPECT_EQ(picker->maxSpeedInMphOrKph(), 20.5);
    EXPECT_EQ(callsOf([&] { picker->selectCurrentValue(); }), (Calls{"select 5 in 0", "select 3 in 2"}));
    EXPECT_EQ(callsOf([&] { picker->setMaxValue(picker->maxValue()); }), Calls{});
    EXPECT_EQ(callsOf([&] { picker->setMinValue(picker->minValue()); }), Calls{});
    EXPECT_EQ(picker->maxSpeedInMphOrKph(), 50.000000039999996);
    EXPECT_EQ(picker->minSpeedInMphOrKph(), 0);
    picker->setCurrentValue(picker->currentValue());
    EXPECT_EQ(picker->currentSpeedInMphOrKph(), 10.000000007999999);
}

TEST_F(SpeedPicker, TheUnitSystemRefreshesTheCopiesAndConvertsNoValue) {
    const NSNumber minimum = picker->minValue();
    const NSNumber maximum = picker->maxValue();
    const NSNumber value = picker->currentValue();
    EXPECT_EQ(callsOf([&] { picker->setIsMetric(false); }), Calls{});
    EXPECT_EQ(callsOf([&] { picker->setIsMetric(true); }), (Calls{"reload", "right km/h", "select 10 in 0", "select 0 in 2"}));
    EXPECT_TRUE(picker->speedFormatter()->metric());
    EXPECT_EQ(callsOf([&] { picker->setIsMetric(false); }), (Calls{"reload", "right mph", "select 6 in 0", "select 2 in 2"}));
    EXPECT_FALSE(picker->speedFormatter()->metric());
    EXPECT_TRUE(picker->minValue().isIdenticalTo(minimum));
    EXPECT_TRUE(picker->maxValue().isIdenticalTo(maximum));
    EXPECT_TRUE(picker->currentValue().isIdenticalTo(value));
    EXPECT_EQ(picker->maxSpeedInMphOrKph(), 31.06855960818818);
    EXPECT_EQ(picker->currentSpeedInMphOrKph(), 6.2137119216376355);
}

TEST_F(SpeedPicker, AnotherFormatterIsStoredOnlyAndFollowsTheUnitSystem) {
    const auto formatter = create<GXSpeedFormatter>(1, false, true);
    EXPECT_EQ(callsOf([&] { picker->setSpeedFormatter(formatter); }), Calls{});
    EXPECT_EQ(picker->speedFormatter(), formatter);
    picker->setIsMetric(true);
    EXPECT_TRUE(formatter->metric());
    picker->setSpeedFormatter(nullptr);
    EXPECT_EQ(callsOf([&] { picker->setIsMetric(false); }).at(1), "right mph") << "made anew for the new unit system";
    EXPECT_TRUE(formatter->metric()) << "no longer the picker's";
}

// Rows

TEST_F(MetricSpeedPicker, OnTheMaximumsWholeNumberTheTenthsEndWithTheMaximums) {
    picker->setCurrentValue(picker->maxValue());
    EXPECT_EQ(selectedTitle(0), "50");
    EXPECT_EQ(titlesOf(*this, 2), Titles{"0"});
    picker->setCurrentValue(boxedDouble(13.861111122199999)); // 49.9
    EXPECT_EQ(rows(2), 10);
    picker->setIsMetric(false);
    picker->setCurrentValue(boxedDouble(13.86)); // 31.004 of 31.069
    EXPECT_EQ(titlesOf(*this, 2), (Titles{"0", "1"})) << "31.07 is rounded to 31.1";
}

TEST_F(MetricSpeedPicker, OnTheMinimumsWholeNumberTheTenthsBeginAtTheMinimums) {
    picker->setMinValue(boxedDouble(1.5277777789999998)); // 5.5
    picker->setCurrentValue(boxedDouble(1.6111111124));   // 5.8
    EXPECT_EQ(titlesOf(*this, 2), (Titles{"5", "6", "7", "8", "9"}));
    EXPECT_EQ(title(0, 0), "5");
    EXPECT_EQ(rows(0), 45) << "44.5 cut off, and one";
    picker->setMaxValue(boxedDouble(1.6111111124));
    EXPECT_EQ(rows(2), 5) << "a maximum on the same whole number does not count";
    EXPECT_EQ(rows(0), 1);
}

TEST_F(MetricSpeedPicker, WithTheMaximumBelowTheMinimumThereAreNoWholeNumbers) {
    picker->setMinValue(boxed(2));
    picker->setMaxValue(boxedDouble(1.99));
    EXPECT_EQ(rows(0), 0);
    picker->setMaxValue(boxed(2));
    EXPECT_EQ(rows(0), 1);
    picker->setMaxValue(boxedDouble(1.5));
    EXPECT_EQ(picker->pickerView_numberOfRowsInComponent(picker->pickerView(), 0), -1) << "−1.8 is rounded down";
}

TEST_F(SpeedPicker, ColumnsAreAtMostAThirdOfTheWheelAndTheSeparator3Wide) {
    const auto narrow = create<UIPickerView>(CGRectMake(0, 0, 100, 216));
    for (const NSInteger component : {0, 2}) {
        EXPECT_EQ(picker->pickerView_widthForComponent(picker->pickerView(), component), 50.0);
        EXPECT_EQ(picker->pickerView_widthForComponent(narrow, component), 33.0);
        EXPECT_EQ(picker->pickerView_widthForComponent(nullptr, component),
                  picker->pickerView_widthForComponent(picker->pickerView(), component))
            << "the picker's own, if none asks";
    }
    EXPECT_EQ(picker->pickerView_widthForComponent(narrow, 1), 3.0);
}

TEST_F(SpeedPicker, AnyOtherColumnIsARowWithoutATitle) {
    for (const NSInteger component : {-1, 3, 4, 5, 6, 7}) {
        EXPECT_EQ(picker->pickerView_numberOfRowsInComponent(picker->pickerView(), component), 1);
        EXPECT_EQ(title(0, component), std::nullopt);
        EXPECT_EQ(picker->pickerView_widthForComponent(picker->pickerView(), component), 40.0);
    }
}

// From the value to the wheel

TEST_F(MetricSpeedPicker, TheDifferenceToTheMinimumIsCutOffAndTheFirstRowMovesTheTenthsByATenthOfIt) {
    picker->setMinValue(boxedDouble(1.5277777789999998)); // 5.5
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxedDouble(1.7222222236)); }), (Calls{"select 0 in 0", "select 1 in 2"})) << "6.2";
    EXPECT_EQ(selectedTitle(0), "5");
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxedDouble(1.8333333348)); }), (Calls{"select 1 in 0", "select 6 in 2"})) << "6.6";
    picker->setMinValue(boxedDouble(1.1111111119999999)); // 4.0: a tenth of it rounds to 0
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxedDouble(1.1944444453999998)); }), (Calls{"select 0 in 0", "select 3 in 2"}))
        << "4.3";
}

TEST_F(MetricSpeedPicker, ValuesOutsideTheRangeAreKeptAndTheirRowsHandedOn) {
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxed(20)); }), (Calls{"select 72 in 0", "select 0 in 2"}));
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxed(-1)); }), (Calls{"select 0 in 0", "select -6 in 2"})) << "−3.6";
    EXPECT_EQ(picker->currentValue().intValue(), -1);
}

TEST_F(MetricSpeedPicker, SelectingDividesByTheStepAndTitlesDoNot) {
    EXPECT_EQ(callsOf([&] { picker->setStepSize(boxed(3)); }), (Calls{"reload", "select 3 in 0", "select 0 in 2"}));
    EXPECT_EQ(title(1, 0), "1");
}

TEST_F(MetricSpeedPicker, TenthsAreRounded) {
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxedDouble(2.79)); }), (Calls{"select 10 in 0", "select 0 in 2"})) << "10.044";
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxedDouble(2.7999)); }), (Calls{"select 10 in 0", "select 1 in 2"})) << "10.07964";
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxedDouble(2.775)); }), (Calls{"select 9 in 0", "select 0 in 2"}))
        << "9.99 is rounded to 10.0, but its whole number is 9";
}
