#include "GXDistancePickerView.h"

#include <cmath>
#include <limits>

#include "NSLocale.h"
#include "PickerTest.h"

using namespace gx;

namespace {
using DistancePicker = PickerTest<GXDistancePickerView>;
/// In kilometres, which a picker is only after it has been told.
struct MetricDistancePicker : DistancePicker {
    MetricDistancePicker() { picker->setIsMetric(true); }
};
using Titles = std::vector<std::string>;
template <class Test>
Titles titlesOf(Test& test, NSInteger component) {
    Titles titles;
    for (NSInteger row = 0; row < test.rows(component); ++row) titles.push_back(test.title(row, component).value_or("(nothing)"));
    return titles;
}
} // namespace

// Set-up

TEST_F(DistancePicker, ItIsSetUpStepByStepThroughTheSetters) {
    EXPECT_EQ(wheel().takeCalls(), (Calls{"delegate", "data source",                  // the wheel
                                          "reload", "select 0 in 0", "select 0 in 2", // maximum
                                          "reload", "select 0 in 0", "select 0 in 2", // minimum
                                          // current value
                                          "select 3 in 0", "select 1 in 2", "reload", "right mi", "separator . after 0"}));
}

TEST_F(DistancePicker, ItStartsAt5000MetresOf300000InBoxesOfTheirOwnTypes) {
    EXPECT_EQ(picker->minValue().type(), NSNumber::Type::Int);
    EXPECT_EQ(picker->minValue().intValue(), 0);
    EXPECT_EQ(picker->maxValue().type(), NSNumber::Type::Int);
    EXPECT_EQ(picker->maxValue().intValue(), 300000);
    EXPECT_EQ(picker->currentValue().type(), NSNumber::Type::Float);
    EXPECT_EQ(picker->currentValue().floatValue(), 5000.0F);
    EXPECT_EQ(picker->stepSize().intValue(), 1);
    EXPECT_EQ(picker->numberOfFractionUnits(), 1);
    EXPECT_FALSE(picker->isMetric());
}

TEST_F(DistancePicker, AFreshOneShows3Point1Of186Miles) {
    EXPECT_EQ(wheel().numberOfComponents(), 3);
    EXPECT_EQ(rows(0), 186);
    EXPECT_EQ(title(185, 0), "185");
    EXPECT_EQ(selectedTitle(0), "3");
    EXPECT_EQ(rows(1), 1);
    EXPECT_EQ(title(0, 1), std::nullopt);
    EXPECT_EQ(rows(2), 10);
    EXPECT_EQ(selectedTitle(2), "1");
    EXPECT_EQ(wheel().rightDescLabel()->text(), "mi");
    EXPECT_EQ(wheel().separatorAfterComponent(0)->text(), ".");
}

TEST_F(MetricDistancePicker, InKilometresItShows5Point0Of300) {
    EXPECT_EQ(wheel().numberOfComponents(), 3);
    EXPECT_EQ(rows(0), 300);
    EXPECT_EQ(title(0, 0), "0");
    EXPECT_EQ(title(299, 0), "299");
    EXPECT_EQ(titlesOf(*this, 2), (Titles{"0", "1", "2", "3", "4", "5", "6", "7", "8", "9"}));
    EXPECT_EQ(selected(0), 5);
    EXPECT_EQ(selected(2), 0);
}

TEST(DistancePickerConstruction, TheSeparatorIsTheLocales) {
    NSLocale::setCurrentLocale(NSLocale::localeWithIdentifier("de_DE"));
    const auto picker = create<GXDistancePickerView>(CGRectMake(0, 0, 320, 216));
    NSLocale::setCurrentLocale(nullptr);
    EXPECT_EQ(picker->pickerView()->separatorAfterComponent(0)->text(), ",");
    const auto notices = create<PickerNotices>();
    picker->setDelegate(notices);
    picker->setIsMetric(true);
    picker->pickerView()->turnToRow_inComponent(7, 2);
    EXPECT_EQ(notices->list.at(0).value.doubleValue(), 5700.0);
}

TEST(DistancePickerConstruction, TheOtherInitialisersSetItUpAlike) {
    const auto high = create<GXDistancePickerView>(CGRectMake(0, 0, 320, 216), 60.0F);
    EXPECT_EQ(high->currentValue().floatValue(), 5000.0F);
    EXPECT_EQ(high->pickerView_rowHeightForComponent(high->pickerView(), 2), 60);
    const auto coded = create<GXDistancePickerView>(create<NSCoder>());
    EXPECT_EQ(coded->maxValue().intValue(), 300000);
    EXPECT_EQ(coded->pickerView()->rightLabelText(), "mi");
}

// Conversions

TEST_F(DistancePicker, LengthsAreRoundedUpToTheNextFloat) {
    // One mile is 1609.3439975… m by these factors; the nearest float lies below it.
    EXPECT_EQ(picker->milesToMeter(1.0), 1609.3441162109375F);
    EXPECT_EQ(picker->milesToMeter(1.23), 1979.4931640625F);
    EXPECT_EQ(picker->milesToMeter(3.1), 4988.966796875F);
    EXPECT_EQ(picker->meterToMiles(1000.0), 0.6213712096214294F);
    EXPECT_EQ(picker->meterToMiles(5000.0), 3.106856107711792F);
    EXPECT_EQ(picker->meterToMiles(300000.0), 186.41136169433594F);
    EXPECT_EQ(picker->meterToMiles(0), 0.0F);
    EXPECT_TRUE(std::isnan(picker->meterToMiles(std::numeric_limits<double>::quiet_NaN())));
}

TEST_F(DistancePicker, AMileThatGoesToMetresAndBackIsNotBelowItself) {
    EXPECT_EQ(picker->meterToMiles(double{picker->milesToMeter(1.0)}), 1.0000001192092896F);
    for (int tenths = 0; tenths < 1860; ++tenths) {
        const double miles = tenths / 10.0;
        ASSERT_GE(double{picker->meterToMiles(double{picker->milesToMeter(miles)})}, miles);
    }
}

// Unit systems

TEST_F(DistancePicker, TheUnitSystemReloadsNamesTheUnitAndSelectsButConvertsNoValue) {
    const NSNumber value = picker->currentValue();
    EXPECT_EQ(callsOf([&] { picker->setIsMetric(true); }), (Calls{"reload", "right km", "select 5 in 0", "select 0 in 2"}));
    EXPECT_TRUE(picker->distanceFormatter()->metric());
    EXPECT_EQ(callsOf([&] { picker->setIsMetric(true); }), Calls{});
    EXPECT_EQ(callsOf([&] { picker->setIsMetric(false); }), (Calls{"reload", "right mi", "select 3 in 0", "select 1 in 2"}));
    EXPECT_FALSE(picker->distanceFormatter()->metric());
    EXPECT_TRUE(picker->currentValue().isIdenticalTo(value));
    EXPECT_EQ(selectedTitle(0), "3");
    EXPECT_EQ(selectedTitle(2), "1");
    EXPECT_TRUE(notices->list.empty());
}

TEST_F(DistancePicker, TheFormatterIsMadeOnceAndAnotherOneIsStoredOnly) {
    const Ref<GXDistanceFormatter> first = picker->distanceFormatter();
    EXPECT_EQ(first->style(), 1);
    EXPECT_TRUE(first->usingUnit());
    EXPECT_EQ(picker->distanceFormatter(), first);
    const auto other = create<GXDistanceFormatter>(1, false, true);
    EXPECT_EQ(callsOf([&] { picker->setDistanceFormatter(other); }), Calls{});
    picker->setIsMetric(true);
    EXPECT_TRUE(other->metric());
    EXPECT_FALSE(first->metric());
    picker->setDistanceFormatter(nullptr);
    EXPECT_TRUE(picker->distanceFormatter()->metric()) << "made anew for the unit system of the moment";
}

TEST_F(DistancePicker, TitlesAndSelectionGoByTheFormatterAndCountsByThePicker) {
    picker->setMinValue(boxed(5000));
    picker->setDistanceFormatter(create<GXDistanceFormatter>(1, true, true));
    EXPECT_EQ(title(0, 0), "5") << "kilometres";
    EXPECT_EQ(rows(0), 183) << "295 km are 183.3 mi";
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxed(7300)); }), (Calls{"select 2 in 0", "select 3 in 2", "reload"}));
    picker->checkMetricAndInformDelegate(8000);
    EXPECT_EQ(notices->list.at(0).value.doubleValue(), 8000.0) << "taken as metres";
}

// Fraction digits

TEST_F(MetricDistancePicker, OneOrTwoDecimalPlacesAreTakenAndNothingElse) {
    for (const std::int32_t count : {0, -1, 3, 1, std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()}) {
        EXPECT_EQ(callsOf([&] { picker->setNumberOfFractionUnits(count); }), Calls{});
        EXPECT_EQ(picker->numberOfFractionUnits(), 1);
        EXPECT_EQ(wheel().numberOfComponents(), 3);
    }
    EXPECT_EQ(callsOf([&] { picker->setNumberOfFractionUnits(2); }), Calls{"reload"}) << "and nothing is selected";
    EXPECT_EQ(wheel().numberOfComponents(), 4);
    EXPECT_EQ(rows(3), 10);
    EXPECT_EQ(callsOf([&] { picker->setNumberOfFractionUnits(2); }), Calls{});
    EXPECT_EQ(callsOf([&] { picker->setNumberOfFractionUnits(1); }), Calls{"reload"});
    EXPECT_EQ(wheel().numberOfComponents(), 3);
}

TEST_F(MetricDistancePicker, TwoDecimalPlacesAreSelectedFromTheLeft) {
    picker->setNumberOfFractionUnits(2);
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxedDouble(12349.9)); }),
              (Calls{"select 12 in 0", "select 3 in 2", "select 4 in 3", "reload"}));
    picker->setIsMetric(false); // 7.674… mi
    EXPECT_EQ(callsOf([&] { picker->selectCurrentValue(); }), (Calls{"select 7 in 0", "select 6 in 2", "select 7 in 3"}));
}

// Rows

TEST_F(MetricDistancePicker, AKilometreThatBeginsBelowTheMaximumIsOffered) {
    picker->setMaxValue(boxed(299999));
    EXPECT_EQ(rows(0), 300);
    picker->setMaxValue(boxed(300001));
    EXPECT_EQ(rows(0), 301);
    picker->setMaxValue(boxedDouble(1000.5));
    EXPECT_EQ(rows(0), 2) << "parts of a metre count";
    picker->setMaxValue(boxed(1000));
    EXPECT_EQ(rows(0), 1);
}

TEST_F(DistancePicker, AMileThatIsNotCompleteIsNotOffered) {
    picker->setMaxValue(boxed(1609)); // 0.9998 mi
    EXPECT_EQ(rows(0), 0);
    picker->setMaxValue(boxed(1610));
    EXPECT_EQ(rows(0), 1);
    picker->setMaxValue(boxedDouble(1609.9)); // Parts of a metre do not count.
    EXPECT_EQ(rows(0), 0);
}

TEST_F(DistancePicker, WholeUnitsAreTitledFromTheMinimums) {
    picker->setMinValue(boxed(5000));
    EXPECT_EQ(title(0, 0), "3");
    EXPECT_EQ(title(7, 0), "10");
    picker->setIsMetric(true);
    picker->setMinValue(boxed(2999));
    EXPECT_EQ(title(0, 0), "2");
    EXPECT_EQ(title(-1, 0), "1");
}

TEST_F(MetricDistancePicker, OnTheMinimumsKilometreTheTenthsBeginAtItsDigit) {
    picker->setMinValue(boxed(1500));
    picker->setCurrentValue(boxed(1700));
    EXPECT_EQ(titlesOf(*this, 2), (Titles{"5", "6", "7", "8", "9"}));
    EXPECT_EQ(selected(2), 2);
    EXPECT_EQ(selectedTitle(2), "7");
    picker->setCurrentValue(boxed(1999));
    EXPECT_EQ(rows(2), 5);
    picker->setCurrentValue(boxed(2000));
    EXPECT_EQ(rows(2), 10);
    picker->setCurrentValue(boxed(2300));
    EXPECT_EQ(rows(2), 10);
    EXPECT_EQ(title(0, 2), "0");
    EXPECT_EQ(selectedTitle(2), "3");
}

TEST_F(MetricDistancePicker, OnTheMinimumsKilometreTheHundredthsBeginAtItsDigitWhateverTheTenths) {
    picker->setNumberOfFractionUnits(2);
    picker->setMinValue(boxed(1230));
    for (const int value : {1230, 1299, 1930}) {
        picker->setCurrentValue(boxed(value));
        EXPECT_EQ(titlesOf(*this, 3), (Titles{"3", "4", "5", "6", "7", "8", "9"})) << value;
    }
    picker->setCurrentValue(boxed(2000));
    EXPECT_EQ(rows(3), 10);
}

TEST_F(DistancePicker, OnTheMinimumsMileDigitsBeginAtTheFirstOneThatIsNotBelowIt) {
    picker->setNumberOfFractionUnits(2);
    picker->setMinValue(boxed(1000)); // 0.621… mi
    picker->setCurrentValue(boxed(1500));
    EXPECT_EQ(titlesOf(*this, 2), (Titles{"7", "8", "9"}));
    EXPECT_EQ(titlesOf(*this, 3), (Titles{"3", "4", "5", "6", "7", "8", "9"}));
    EXPECT_EQ(selectedTitle(0), "0");
    EXPECT_EQ(selectedTitle(2), "9");
    picker->setCurrentValue(boxed(1610)); // 1.0004 mi
    EXPECT_EQ(rows(2), 10);
    EXPECT_EQ(rows(3), 10);
    picker->setCurrentValue(boxed(1609)); // 0.9998 mi
    EXPECT_EQ(rows(2), 3);
}

TEST_F(DistancePicker, OfferedDigitsAreRoundedUpAsFloatsAndSelectedOnesAsDoubles) {
    // A tenth of a mile, as a float 0.100000001490…: times ten it is 1 as a float, and above 1 as a
    // double.
    picker->setMinValue(boxedDouble(160.9344));
    picker->setCurrentValue(boxed(350)); // 0.217… mi
    EXPECT_EQ(title(0, 2), "1");
    EXPECT_EQ(rows(2), 9);
    EXPECT_EQ(selected(2), 0) << "2 − 2";
}

// Selection

TEST_F(MetricDistancePicker, EachSetterCallsTheWheelInItsOwnSequence) {
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxed(12345)); }), (Calls{"select 12 in 0", "select 3 in 2", "reload"}));
    EXPECT_EQ(callsOf([&] { picker->setMinValue(boxed(1500)); }), (Calls{"reload", "select 11 in 0", "select 3 in 2"}));
    EXPECT_EQ(callsOf([&] { picker->setMaxValue(boxed(20000)); }), (Calls{"reload", "select 11 in 0", "select 3 in 2"}));
    EXPECT_EQ(callsOf([&] { picker->setStepSize(boxed(2)); }), (Calls{"reload", "select 5 in 0", "select 3 in 2"})) << "12 / 2 − 1";
}

TEST_F(MetricDistancePicker, KilometresAreNotClampedToTheRowsThereAre) {
    picker->setMinValue(boxed(1500));
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxed(1200)); }), (Calls{"select 0 in 0", "select -3 in 2", "reload"}));
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxed(500)); }), (Calls{"select -1 in 0", "select 5 in 2", "reload"}));
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxed(400000)); }), (Calls{"select 399 in 0", "select 0 in 2", "reload"}));
    EXPECT_EQ(picker->currentValue().intValue(), 400000) << "what the application sets is kept";
}

TEST_F(MetricDistancePicker, HundredthsAreMovedOnlyWhereTheTenthsDigitIs0) {
    picker->setNumberOfFractionUnits(2);
    picker->setMinValue(boxed(1030));
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxed(1050)); }), (Calls{"select 0 in 0", "select 0 in 2", "select 2 in 3", "reload"}));
    EXPECT_EQ(selectedTitle(3), "5");
    picker->setMinValue(boxed(1230));
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxed(1250)); }), (Calls{"select 0 in 0", "select 0 in 2", "select 5 in 3", "reload"}));
    EXPECT_EQ(selectedTitle(3), "8") << "row 5 of those from 3";
    picker->setMinValue(boxed(1030));
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxed(2050)); }), (Calls{"select 1 in 0", "select 0 in 2", "select 5 in 3", "reload"}));
}

TEST_F(DistancePicker, DigitsOfMilesBelowTheFirstOneOfferedStandOnThat) {
    picker->setNumberOfFractionUnits(2);
    picker->setMinValue(boxed(1000)); // offers 7 and 3
    const std::vector<std::pair<int, Calls>> cases{
        // 0.621: 6 − 7, 2 − 3
        {1000, {"select 0 in 0", "select 0 in 2", "select 0 in 3", "reload"}},
        // 0.702: 7 − 7, 0 − 3
        {1130, {"select 0 in 0", "select 0 in 2", "select 0 in 3", "reload"}},
        // 0.745: 7 − 7, 4 − 3
        {1200, {"select 0 in 0", "select 0 in 2", "select 1 in 3", "reload"}},
        // 0.807: 8 − 7, so 0 as it is
        {1300, {"select 0 in 0", "select 1 in 2", "select 0 in 3", "reload"}},
        // 1.056: the first tenth, but not of the first mile
        {1700, {"select 1 in 0", "select 0 in 2", "select 5 in 3", "reload"}},
        {2000, {"select 1 in 0", "select 2 in 2", "select 4 in 3", "reload"}}, // 1.242
    };
    for (const auto& [value, calls] : cases) {
        EXPECT_EQ(callsOf([&, v = value] { picker->setCurrentValue(boxed(v)); }), calls) << value;
    }
}

TEST_F(DistancePicker, MilesGoByTheRowThatTheWheelThenStandsOn) {
    picker->setMinValue(boxed(1000));
    picker->setMaxValue(boxed(1000)); // no whole miles, so the wheel shows row 0
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxed(5000)); }), (Calls{"select 3 in 0", "select 0 in 2", "reload"})) << "1 − 7";
}

// Widths and columns that do not exist

TEST_F(DistancePicker, ColumnsAreAtMostAThirdOfTheWheelAndTheSeparator3Wide) {
    // "185"
    EXPECT_EQ(picker->pickerView_widthForComponent(picker->pickerView(), 0), 30 * 1.7999999523162842);
    EXPECT_EQ(picker->pickerView_widthForComponent(picker->pickerView(), 1), 3.0);
    EXPECT_EQ(picker->pickerView_widthForComponent(picker->pickerView(), 2), 50.0);
    const auto narrow = create<UIPickerView>(CGRectMake(0, 0, 100, 216));
    for (const NSInteger component : {0, 2, 3}) EXPECT_EQ(picker->pickerView_widthForComponent(narrow, component), 33.0);
    EXPECT_EQ(picker->pickerView_widthForComponent(narrow, 1), 3.0);
    EXPECT_EQ(picker->pickerView_widthForComponent(nullptr, 0), picker->pickerView_widthForComponent(picker->pickerView(), 0))
        << "the picker's own, if none asks";
}

TEST_F(DistancePicker, AnyOtherColumnIsARowWithoutATitle) {
    for (const NSInteger component : {-1, 4, 5, 6, 7}) {
        EXPECT_EQ(picker->pickerView_numberOfRowsInComponent(picker->pickerView(), component), 1);
        EXPECT_EQ(title(0, component), std::nullopt);
        EXPECT_EQ(picker->pickerView_widthForComponent(picker->pickerView(), component), 40.0);
    }
    EXPECT_EQ(picker->pickerView_numberOfRowsInComponent(picker->pickerView(), 3), 10) << "also while it is not shown";
}
