#include "GXPacePickerView.h"

#include <cmath>
#include <limits>

#include "GXLocalization.h"
#include "KeysAndComments.h"
#include "PickerTest.h"

using namespace gx;

namespace {
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinite = std::numeric_limits<double>::infinity();

using PacePicker = PickerTest<GXPacePickerView>;
/// In minutes per kilometre, which a picker is only after it has been told.
struct MetricPacePicker : PacePicker {
    MetricPacePicker() { picker->setIsMetric(true); }
    /// The speed of a pace per kilometre.
    static NSNumber pace(int minutes, int seconds) { return boxedDouble(1000.0 / (minutes * 60 + seconds)); }
};
using Titles = std::vector<std::string>;
template <class Test>
Titles titlesOf(Test& test, NSInteger component) {
    Titles titles;
    for (NSInteger row = 0; row < test.rows(component); ++row) titles.push_back(test.title(row, component).value_or("(nothing)"));
    return titles;
}
/// As in "1:40"; "none" for nothing.
std::string written(const std::optional<GXPacePickerView::Components>& components) {
    if (!components) return "none";
    EXPECT_EQ(components->minutes.type(), NSNumber::Type::Int);
    EXPECT_EQ(components->seconds.type(), NSNumber::Type::Int);
    return std::to_string(components->minutes.intValue()) + ":" + std::to_string(components->seconds.intValue());
}
} // namespace

// Set-up

TEST_F(PacePicker, ItIsSetUpStepByStepThroughTheSetters) {
    EXPECT_EQ(wheel().takeCalls(), (Calls{"delegate", "data source",                  // the wheel
                                          "reload", "select 0 in 0", "select 0 in 2", // maximum
                                          "reload", "select 0 in 0", "select 0 in 2", // minimum
                                          // current value
                                          "select 0 in 0", "select 3 in 2", "reload 2", "right min/mi", "separator : after 0", "reload"}));
    for (const auto& [number, value] :
         {std::pair(picker->maxValue(), 0.2777777777777778), {picker->minValue(), 11.11111111111111}, {picker->currentValue(), 10.0}}) {
        EXPECT_EQ(number.type(), NSNumber::Type::Double);
        EXPECT_EQ(number.doubleValue(), value);
    }
    EXPECT_EQ(picker->minutesStepSize(), 1);
    EXPECT_EQ(picker->secondsStepSize(), 5);
    EXPECT_FALSE(picker->isMetric());
}

TEST_F(PacePicker, AFreshOneGoesFrom2To96MinutesAMile) {
    EXPECT_EQ(wheel().numberOfComponents(), 3);
    EXPECT_EQ(rows(0), 95);
    EXPECT_EQ(title(0, 0), "02");
    EXPECT_EQ(title(94, 0), "96");
    EXPECT_EQ(rows(1), 1);
    EXPECT_EQ(title(0, 1), std::nullopt);
    // At 2:41, in the minute of the minimum's 2:25.
    EXPECT_EQ(titlesOf(*this, 2), (Titles{"25", "30", "35", "40", "45", "50", "55"}));
    EXPECT_EQ(selectedTitle(0), "02");
    EXPECT_EQ(selectedTitle(2), "40");
    EXPECT_EQ(wheel().rightDescLabel()->text(), "min/mi");
    EXPECT_EQ(wheel().separatorAfterComponent(0)->text(), ":");
}

TEST_F(MetricPacePicker, InKilometresItGoesFrom1To60Minutes) {
    EXPECT_EQ(rows(0), 60);
    EXPECT_EQ(title(0, 0), "01");
    EXPECT_EQ(title(59, 0), "60");
    EXPECT_EQ(selectedTitle(0), "01");
    EXPECT_EQ(selectedTitle(2), "40");
}

TEST(PacePickerConstruction, TheOtherInitialisersSetItUpAlike) {
    const auto high = create<GXPacePickerView>(CGRectMake(0, 0, 320, 216), 60.0F);
    EXPECT_EQ(high->currentValue().doubleValue(), 10.0);
    EXPECT_EQ(high->pickerView_rowHeightForComponent(high->pickerView(), 0), 60);
    const auto coded = create<GXPacePickerView>(create<NSCoder>());
    EXPECT_EQ(coded->minValue().doubleValue(), 11.11111111111111);
    EXPECT_EQ(coded->pickerView()->rightLabelText(), "min/mi");
}

// Properties

TEST_F(PacePicker, TheUnitSystemNamesTheUnitReloadsAndSelectsButConvertsNoValue) {
    const NSNumber value = picker->currentValue();
    EXPECT_EQ(callsOf([&] { picker->setIsMetric(false); }), Calls{});
    EXPECT_EQ(callsOf([&] { picker->setIsMetric(true); }), (Calls{"right min/km", "reload", "select 0 in 0", "select 2 in 2"}));
    EXPECT_EQ(callsOf([&] { picker->setIsMetric(false); }), (Calls{"right min/mi", "reload", "select 0 in 0", "select 3 in 2"}));
    EXPECT_TRUE(picker->currentValue().isIdenticalTo(value));
    EXPECT_TRUE(notices->list.empty());
}

TEST_F(PacePicker, TheUnitIsTheLocalisers) {
    GXLocalization::setSharedLocalization(create<KeysAndComments>());
    EXPECT_EQ(callsOf([&] { picker->updatePaceUnitLabel(); }), Calls{"right min/mi|unit min/mi (minutes per mile)"});
    const Calls metric = callsOf([&] { picker->setIsMetric(true); });
    GXLocalization::setSharedLocalization(nullptr);
    EXPECT_EQ(metric.at(0), "right min/km|unit min/km (minutes per kilometer)");
}

TEST_F(MetricPacePicker, AStepReloadsButSelectsNothingAndBelow1Becomes1) {
    EXPECT_EQ(callsOf([&] { picker->setSecondsStepSize(15); }), Calls{"reload"});
    EXPECT_EQ(titlesOf(*this, 2), (Titles{"30", "45"}));
    EXPECT_EQ(callsOf([&] { picker->setSecondsStepSize(15); }), Calls{});
    EXPECT_EQ(callsOf([&] { picker->setMinutesStepSize(2); }), Calls{"reload"});
    EXPECT_EQ(rows(0), 30) << "(60 − 1) / 2 + 1";
    EXPECT_EQ(title(1, 0), "03");
    picker->setCurrentValue(pace(2, 0));
    for (const std::int32_t step : {0, -7, 1, std::numeric_limits<std::int32_t>::min()}) {
        EXPECT_EQ(picker->checkStepSize(step), 1);
        picker->setSecondsStepSize(2);
        picker->setSecondsStepSize(step);
        EXPECT_EQ(picker->secondsStepSize(), 1);
        EXPECT_EQ(rows(2), 60);
    }
    EXPECT_EQ(picker->checkStepSize(2), 2);
    picker->setMinutesStepSize(-1);
    EXPECT_EQ(picker->minutesStepSize(), 1);
}

TEST_F(PacePicker, AStepOf0FromASubclassOffersNoSeconds) {
    struct Stepless : GXPacePickerView {
        std::int32_t secondsStepSize() const override { return 0; }
    };
    const Ref<Stepless> stepless = create<Stepless>(CGRectMake(0, 0, 320, 216));
    stepless->setIsMetric(true);
    stepless->setCurrentValue(MetricPacePicker::pace(5, 0));
    EXPECT_EQ(stepless->pickerView_numberOfRowsInComponent(stepless->pickerView(), 2), 0);
}

// Pace and speed

TEST_F(PacePicker, APacePerMileIs1609Point344TimesThatPerMetre) {
    EXPECT_EQ(picker->pacePerMeterToPacePerMile(1.0), 1609.344);
    EXPECT_EQ(picker->pacePerMeterToPacePerMile(0.5), 804.672);
}

TEST_F(PacePicker, ASpeedIsShownAsThePaceRoundedToSeconds) {
    EXPECT_EQ(written(picker->componentsFromValue(boxedDouble(11.11111111111111))), "2:25");
    EXPECT_EQ(written(picker->componentsFromValue(boxedDouble(0.2777777777777778))), "96:34");
    EXPECT_EQ(written(picker->componentsFromValue(boxedDouble(10))), "2:41");
    picker->setIsMetric(true);
    EXPECT_EQ(written(picker->componentsFromValue(boxedDouble(11.11111111111111))), "1:30");
    EXPECT_EQ(written(picker->componentsFromValue(boxedDouble(0.2777777777777778))), "60:0");
    EXPECT_EQ(written(picker->componentsFromValue(boxedFloat(10))), "1:40");
    EXPECT_EQ(written(picker->componentsFromValue(boxed(10))), "1:40");
}

TEST_F(MetricPacePicker, SecondsAreRoundedWithHalvesAwayFrom0BeforeTheyAreSplit) {
    EXPECT_EQ(written(picker->components(boxedDouble(0.0895))), "1:30");
    EXPECT_EQ(written(picker->components(boxedDouble(0.0894999))), "1:29");
    EXPECT_EQ(written(picker->components(boxedDouble(3.5996))), "60:0");
    EXPECT_EQ(written(picker->components(boxedDouble(0.0595))), "1:0");
    EXPECT_EQ(written(picker->components(boxedDouble(0))), "0:0");
}

TEST_F(MetricPacePicker, WhatHasNoPaceIsNothingOr0) {
    EXPECT_EQ(written(picker->components(boxedDouble(-0.001))), "none");
    EXPECT_EQ(written(picker->components(boxedDouble(-0.0))), "0:0");
    EXPECT_EQ(written(picker->components(boxedDouble(notANumber))), "0:0");
    EXPECT_EQ(written(picker->components(boxedDouble(infinite))), "2147483647:7");
    EXPECT_EQ(written(picker->components(boxedDouble(1e9))), "2147483647:7");
    EXPECT_EQ(written(picker->components(NSNumber())), "0:0");
    EXPECT_EQ(written(picker->componentsFromValue(boxed(-5))), "none");
    EXPECT_EQ(written(picker->componentsFromValue(boxed(0))), "0:0");
    EXPECT_EQ(written(picker->componentsFromValue(boxedDouble(-0.0))), "0:0");
    EXPECT_EQ(written(picker->componentsFromValue(boxedDouble(infinite))), "0:0");
    EXPECT_EQ(written(picker->componentsFromValue(NSNumber())), "0:0");
}

// Rows

TEST_F(MetricPacePicker, OnTheMinimumsMinuteTheSecondsBeginAtTheMinimums) {
    EXPECT_EQ(titlesOf(*this, 2), (Titles{"30", "35", "40", "45", "50", "55"})) << "at 1:40";
    picker->setCurrentValue(pace(1, 59));
    EXPECT_EQ(rows(2), 6);
    picker->setCurrentValue(pace(2, 0));
    EXPECT_EQ(titlesOf(*this, 2), (Titles{"00", "05", "10", "15", "20", "25", "30", "35", "40", "45", "50", "55"}));
    picker->setMinValue(pace(1, 33));
    picker->setCurrentValue(pace(1, 40));
    EXPECT_EQ(titlesOf(*this, 2), (Titles{"33", "38", "43", "48", "53"})) << "the last step below 60";
}

TEST_F(MetricPacePicker, OnTheMaximumsMinuteTheSecondsEndWithTheMaximums) {
    picker->setCurrentValue(picker->maxValue());
    EXPECT_EQ(titlesOf(*this, 2), Titles{"00"});
    EXPECT_EQ(selectedTitle(0), "60");
    picker->setMaxValue(pace(3, 20));
    picker->setCurrentValue(pace(3, 10));
    EXPECT_EQ(titlesOf(*this, 2), (Titles{"00", "05", "10", "15", "20"}));
    picker->setMaxValue(pace(3, 19));
    EXPECT_EQ(rows(2), 4);
    picker->setCurrentValue(pace(2, 59));
    EXPECT_EQ(rows(2), 12);
}

TEST_F(MetricPacePicker, WithBothBoundsInTheValuesMinuteTheMaximumsSecondsDoNotCount) {
    picker->setMaxValue(pace(1, 50));
    EXPECT_EQ(rows(0), 1);
    EXPECT_EQ(rows(2), 6);
}

TEST_F(MetricPacePicker, ATitleBelow10GetsA0Before) {
    picker->setCurrentValue(pace(2, 0));
    EXPECT_EQ(title(1, 2), "05");
    EXPECT_EQ(title(2, 2), "10");
    EXPECT_EQ(title(-1, 2), "0-5") << "also below 0";
    EXPECT_EQ(title(2147483647, 0), "0-2147483648") << "and beyond 32 bits";
}

TEST_F(PacePicker, SeparatorsAre5WideAndAnyOtherColumnIsLikeThem) {
    for (const NSInteger component : {-1, 1, 3, 4, 5, 6, 7}) {
        EXPECT_EQ(picker->pickerView_numberOfRowsInComponent(picker->pickerView(), component), 1);
        EXPECT_EQ(title(0, component), std::nullopt);
        EXPECT_EQ(picker->pickerView_widthForComponent(picker->pickerView(), component), 5.0);
    }
    EXPECT_EQ(picker->pickerView_widthForComponent(picker->pickerView(), 0), 50.0);
    EXPECT_EQ(picker->pickerView_widthForComponent(picker->pickerView(), 2), 50.0);
}

// From the value to the wheel

TEST_F(MetricPacePicker, EachSetterCallsTheWheelInItsOwnSequence) {
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(pace(4, 25)); }), (Calls{"select 3 in 0", "select 5 in 2", "reload 2"}));
    EXPECT_EQ(callsOf([&] { picker->setMinValue(pace(2, 10)); }), (Calls{"reload", "select 2 in 0", "select 5 in 2"}));
    EXPECT_EQ(callsOf([&] { picker->setMaxValue(pace(20, 0)); }), (Calls{"reload", "select 2 in 0", "select 5 in 2"}));
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(pace(2, 20)); }), (Calls{"select 0 in 0", "select 2 in 2", "reload 2"}));
    EXPECT_EQ(callsOf([&] { picker->selectCurrentValue(); }), (Calls{"select 0 in 0", "select 2 in 2"}));
    picker->setMinutesStepSize(3);
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(pace(9, 59)); }), (Calls{"select 2 in 0", "select 11 in 2", "reload 2"}));
}

TEST_F(MetricPacePicker, ABoundLeavesAValueThatItOvertakesAloneAndNoRowIsBelow0) {
    EXPECT_EQ(callsOf([&] { picker->setMinValue(pace(5, 30)); }), (Calls{"reload", "select 0 in 0", "select 8 in 2"}));
    EXPECT_EQ(picker->currentValue().doubleValue(), 10.0);
    EXPECT_EQ(callsOf([&] { picker->setMinValue(pace(1, 50)); }), (Calls{"reload", "select 0 in 0", "select 0 in 2"})) << "40 − 50";
}

TEST_F(MetricPacePicker, AValueBeyondTheRangeBecomesTheBound) {
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxedDouble(0.2777777777777777)); }),
              (Calls{"select 59 in 0", "select 0 in 2", "reload 2"}));
    EXPECT_TRUE(picker->currentValue().isIdenticalTo(picker->maxValue()));
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxedDouble(11.11111111111112)); }),
              (Calls{"select 0 in 0", "select 0 in 2", "reload 2"}));
    EXPECT_TRUE(picker->currentValue().isIdenticalTo(picker->minValue()));
    for (const double value : {0.2777777777777778, 0.2777777777777779, 11.11111111111111, 11.1111111111111}) {
        const NSNumber kept = boxedDouble(value);
        picker->setCurrentValue(kept);
        EXPECT_TRUE(picker->currentValue().isIdenticalTo(kept));
    }
    EXPECT_TRUE(notices->list.empty());
}

TEST(PacePickerSubclass, ItSeesTheValueThatABoundMakes) {
    class Listening : public GXPacePickerView {
    public:
        std::vector<double> heard;
        void setCurrentValue(NSNumber value) override {
            heard.push_back(value.doubleValue());
            GXPacePickerView::setCurrentValue(std::move(value));
        }
    };
    const auto picker = create<Listening>(CGRectMake(0, 0, 320, 216));
    picker->heard.clear();
    picker->setCurrentValue(boxed(12));
    EXPECT_EQ(picker->heard, (std::vector<double>{12, 11.11111111111111}));
}

TEST_F(MetricPacePicker, WithTheBoundsCrossedTheOneFoundBeyondFirstIsStored) {
    picker->setMinValue(boxed(5));
    picker->setMaxValue(boxed(8));
    picker->setCurrentValue(boxed(6));
    EXPECT_TRUE(picker->currentValue().isIdenticalTo(picker->maxValue())) << "below 8, and above 5";
    picker->setCurrentValue(boxed(4));
    EXPECT_TRUE(picker->currentValue().isIdenticalTo(picker->maxValue()));
    picker->setCurrentValue(boxed(8));
    EXPECT_TRUE(picker->currentValue().isIdenticalTo(picker->minValue())) << "not below 8, but above 5";
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxed(9)); }), (Calls{"select 0 in 0", "select 0 in 2", "reload 2"}))
        << "stored once, on the minimum's own row";
}

TEST_F(MetricPacePicker, NaNIsStoredAndShownAs0) {
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxedDouble(notANumber)); }), (Calls{"select 0 in 0", "select 0 in 2", "reload 2"}));
    EXPECT_TRUE(std::isnan(picker->currentValue().doubleValue()));
}
