#include "GXDurationPickerView.h"

#include <limits>

#include "GXLocalization.h"
#include "KeysAndComments.h"
#include "PickerTest.h"

using namespace gx;

namespace {
constexpr NSInteger highest = std::numeric_limits<NSInteger>::max();
constexpr NSInteger lowest = std::numeric_limits<NSInteger>::min();

using DurationPicker = PickerTest<GXDurationPickerView>;
struct SecondsPicker : DurationPicker {
    SecondsPicker() { picker->setType(GXDurationTypeHoursMinutesSeconds); }
};
struct MinutesPicker : DurationPicker {
    MinutesPicker() {
        picker->setType(GXDurationTypeMinutesSeconds);
        picker->setMaxValue(boxed(3599000));
    }
};

constexpr int milliseconds(int hours, int minutes, int seconds) { return ((hours * 60 + minutes) * 60 + seconds) * 1000; }

template <class Test>
std::vector<std::string> titlesOf(Test& test, NSInteger component) {
    std::vector<std::string> titles;
    for (NSInteger row = 0; row < test.rows(component); ++row) titles.push_back(test.title(row, component).value_or("(nothing)"));
    return titles;
}
using Titles = std::vector<std::string>;
} // namespace

// Set-up

TEST_F(DurationPicker, ItIsSetUpStepByStepThroughTheSetters) {
    // the wheel
    EXPECT_EQ(wheel().takeCalls(), (Calls{"delegate", "data source",
                                          // minimum
                                          "reload", "select 0 in 0", "select 0 in 0", "select 0 in 2",
                                          // maximum
                                          "reload", "select 0 in 0", "select 0 in 0", "select 0 in 2",
                                          // current value
                                          "select 0 in 0", "select 0 in 0", "select 5 in 2", "right hh:mm", "separator : after 0",
                                          "separator  after 2", "reload"}));
    for (const NSNumber& number : {picker->minValue(), picker->maxValue(), picker->currentValue()}) {
        EXPECT_EQ(number.type(), NSNumber::Type::Int);
    }
    EXPECT_EQ(picker->minValue().intValue(), 0);
    EXPECT_EQ(picker->maxValue().intValue(), 356400000);
    EXPECT_EQ(picker->currentValue().intValue(), 300000);
    EXPECT_EQ(picker->type(), 0);
    EXPECT_EQ(picker->hoursStepSize(), 1);
    EXPECT_EQ(picker->minutesStepSize(), 1);
    EXPECT_EQ(picker->secondsStepSize(), 5);
}

TEST_F(DurationPicker, AFreshOneShows5MinutesBelow99Hours) {
    EXPECT_EQ(wheel().numberOfComponents(), 3);
    EXPECT_EQ(rows(0), 99);
    EXPECT_EQ(title(0, 0), "00");
    EXPECT_EQ(title(98, 0), "98");
    EXPECT_EQ(rows(2), 60);
    EXPECT_EQ(title(59, 2), "59");
    EXPECT_EQ(selected(0), 0);
    EXPECT_EQ(selected(2), 5);
    EXPECT_EQ(selectedTitle(2), "05");
    EXPECT_EQ(wheel().rightDescLabel()->text(), "hh:mm");
    EXPECT_EQ(wheel().separatorAfterComponent(0)->text(), ":");
    EXPECT_EQ(wheel().separatorAfterComponent(2)->text(), "");
}

TEST(DurationPickerConstruction, TheOtherInitialisersSetItUpAlike) {
    const auto high = create<GXDurationPickerView>(CGRectMake(0, 0, 320, 216), 60.0F);
    EXPECT_EQ(high->currentValue().intValue(), 300000);
    EXPECT_EQ(high->pickerView_rowHeightForComponent(high->pickerView(), 0), 60);
    const auto coded = create<GXDurationPickerView>(create<NSCoder>());
    EXPECT_EQ(coded->maxValue().intValue(), 356400000);
    EXPECT_EQ(coded->pickerView()->rightLabelText(), "hh:mm");
}

// Layouts

TEST_F(DurationPicker, ALayoutPutsItsNameAndSeparatorsOnTheWheelThenReloadsAndSelects) {
    EXPECT_EQ(callsOf([&] { picker->setType(0); }), Calls{});
    EXPECT_EQ(callsOf([&] { picker->setType(1); }), (Calls{"right hh:mm:ss", "separator : after 0", "separator : after 2", "reload",
                                                           "select 0 in 0", "select 0 in 0", "select 5 in 2", "select 0 in 4"}));
    EXPECT_EQ(callsOf([&] { picker->setType(2); }),
              (Calls{"right mm:ss", "separator : after 0", "separator  after 2", "reload", "select 5 in 0", "select 0 in 2"}));
    EXPECT_EQ(callsOf([&] { picker->setType(0); }), (Calls{"right hh:mm", "separator : after 0", "separator  after 2", "reload",
                                                           "select 0 in 0", "select 0 in 0", "select 5 in 2"}));
}

TEST_F(DurationPicker, TheNamesAreTheLocalisers) {
    GXLocalization::setSharedLocalization(create<KeysAndComments>());
    picker->setType(1);
    const auto withSeconds = wheel().rightLabelText();
    picker->setType(2);
    const auto withoutHours = wheel().rightLabelText();
    picker->setType(0);
    GXLocalization::setSharedLocalization(nullptr);
    EXPECT_EQ(withSeconds, "hh:mm:ss|hh:mm:ss");
    EXPECT_EQ(withoutHours, "mm:ss|mm:ss");
    EXPECT_EQ(wheel().rightLabelText(), "hh:mm|hh:mm");
}

TEST_F(SecondsPicker, WithSecondsThereAreFiveColumns) {
    EXPECT_EQ(wheel().numberOfComponents(), 5);
    EXPECT_EQ(titlesOf(*this, 4), (Titles{"00", "05", "10", "15", "20", "25", "30", "35", "40", "45", "50", "55"}));
    EXPECT_EQ(picker->pickerView_widthForComponent(picker->pickerView(), 2), 30.0);
    EXPECT_EQ(picker->pickerView_widthForComponent(picker->pickerView(), 0), 50.0);
    EXPECT_EQ(picker->pickerView_widthForComponent(picker->pickerView(), 4), 50.0);
}

TEST_F(DurationPicker, AnUnknownLayoutIsStoredAndHasNoRows) {
    for (const NSInteger type : {NSInteger{3}, NSInteger{-1}, lowest, highest}) {
        EXPECT_EQ(callsOf([&] { picker->setType(type); }), Calls{"reload"}) << "texts stay, nothing is selected";
        EXPECT_EQ(picker->type(), type);
        EXPECT_EQ(wheel().numberOfComponents(), 3);
        EXPECT_EQ(rows(0), 0);
        EXPECT_EQ(rows(1), 1);
        EXPECT_EQ(rows(2), 0);
        EXPECT_EQ(picker->value_forComponent(356400000, 0), 0);
        EXPECT_EQ(picker->stepSizeForComponent(4), 1);
    }
    EXPECT_EQ(wheel().rightLabelText(), "hh:mm");
    picker->pickerView_didSelectRow_inComponent(picker->pickerView(), 0, 0);
    EXPECT_EQ(notices->list.at(0).value.type(), NSNumber::Type::Float);
    EXPECT_EQ(notices->list.at(0).value.floatValue(), 0.0F);
}

TEST_F(DurationPicker, SeparatorColumnsAre5WideAndAnyOtherColumnIsARowWithoutATitle) {
    for (const NSInteger component : {-1, 1, 3, 5, 6, 7}) {
        EXPECT_EQ(picker->pickerView_numberOfRowsInComponent(picker->pickerView(), component), 1);
        EXPECT_EQ(title(0, component), std::nullopt);
        EXPECT_EQ(picker->pickerView_widthForComponent(picker->pickerView(), component), component == 6 ? 50.0 : 5.0);
    }
    EXPECT_EQ(picker->pickerView_widthForComponent(picker->pickerView(), 2), 50.0) << "without seconds below them";
}

// Steps

TEST_F(DurationPicker, AStepReloadsButSelectsNothing) {
    EXPECT_EQ(callsOf([&] { picker->setHoursStepSize(2); }), Calls{"reload"});
    EXPECT_EQ(callsOf([&] { picker->setMinutesStepSize(15); }), Calls{"reload"});
    EXPECT_EQ(callsOf([&] { picker->setSecondsStepSize(10); }), Calls{"reload"});
    EXPECT_EQ(callsOf([&] { picker->setSecondsStepSize(10); }), Calls{});
    EXPECT_EQ(rows(0), 49) << "99 / 2";
    EXPECT_EQ(title(48, 0), "96");
    EXPECT_EQ(titlesOf(*this, 2), (Titles{"00", "15", "30", "45"}));
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxed(milliseconds(7, 50, 0))); }),
              (Calls{"select 3 in 0", "select 3 in 0", "select 3 in 2"}));
}

TEST_F(DurationPicker, AStepBelow1Becomes1) {
    for (const std::int32_t step : {0, -3, 1, std::numeric_limits<std::int32_t>::min()}) {
        EXPECT_EQ(picker->checkStepSize(step), 1);
        picker->setSecondsStepSize(7);
        picker->setSecondsStepSize(step);
        EXPECT_EQ(picker->secondsStepSize(), 1);
    }
    EXPECT_EQ(picker->checkStepSize(2), 2);
    EXPECT_EQ(callsOf([&] { picker->setHoursStepSize(0); }), Calls{}) << "it is 1 already";
    EXPECT_EQ(callsOf([&] { picker->setMinutesStepSize(-1); }), Calls{});
}

TEST_F(DurationPicker, EachColumnHasTheStepOfItsUnit) {
    picker->setHoursStepSize(2);
    picker->setMinutesStepSize(3);
    picker->setSecondsStepSize(4);
    for (const NSInteger type : {1, 0}) {
        picker->setType(type);
        EXPECT_EQ(picker->stepSizeForComponent(0), 2);
        EXPECT_EQ(picker->stepSizeForComponent(2), 3);
        for (const NSInteger component : {-1, 1, 3, 4, 5}) EXPECT_EQ(picker->stepSizeForComponent(component), 4);
    }
    picker->setType(2);
    EXPECT_EQ(picker->stepSizeForComponent(0), 3);
    for (const NSInteger component : {-1, 1, 2, 3, 4, 5}) EXPECT_EQ(picker->stepSizeForComponent(component), 4);
}

// Units

TEST_F(DurationPicker, HoursDoNotWrapAndMinutesAndSecondsDo) {
    EXPECT_EQ(picker->hoursFromMilliseconds(3599999), 0);
    EXPECT_EQ(picker->hoursFromMilliseconds(3600000), 1);
    EXPECT_EQ(picker->hoursFromMilliseconds(356400000), 99);
    EXPECT_EQ(picker->hoursFromMilliseconds(milliseconds(200, 0, 0)), 200);
    EXPECT_EQ(picker->minutesFromMilliseconds(59999), 0);
    EXPECT_EQ(picker->minutesFromMilliseconds(60000), 1);
    EXPECT_EQ(picker->minutesFromMilliseconds(3599999), 59);
    EXPECT_EQ(picker->minutesFromMilliseconds(3600000), 0);
    EXPECT_EQ(picker->secondsFromMilliseconds(999), 0);
    EXPECT_EQ(picker->secondsFromMilliseconds(59999), 59);
    EXPECT_EQ(picker->secondsFromMilliseconds(60000), 0);
}

TEST_F(DurationPicker, NegativeDurationsKeepTheirSignAndShowAs0) {
    EXPECT_EQ(picker->hoursFromMilliseconds(-3600000), -1);
    EXPECT_EQ(picker->minutesFromMilliseconds(-90000), -1);
    EXPECT_EQ(picker->secondsFromMilliseconds(-90000), -30);
    for (const NSInteger component : {0, 2, 4}) EXPECT_EQ(picker->value_forComponent(-5430000, component), 0);
}

TEST_F(DurationPicker, UnitsOfExtremesWrapIn32Bits) {
    // 2562047788015 hours; its low 32 bits are 2247279599.
    EXPECT_EQ(picker->hoursFromMilliseconds(highest), -2047687697);
    EXPECT_EQ(picker->minutesFromMilliseconds(highest), 12);
    EXPECT_EQ(picker->secondsFromMilliseconds(highest), 55);
    EXPECT_EQ(picker->hoursFromMilliseconds(lowest), 2047687697);
    EXPECT_EQ(picker->minutesFromMilliseconds(lowest), -12);
    EXPECT_EQ(picker->secondsFromMilliseconds(lowest), -55);
}

TEST_F(DurationPicker, EachColumnShowsItsUnitOfTheBounds) {
    picker->setMinValue(boxed(milliseconds(1, 2, 3)));
    picker->setMaxValue(boxed(milliseconds(40, 50, 55)));
    for (const NSInteger type : {1, 0}) {
        picker->setType(type);
        EXPECT_EQ(picker->minValueForComponent(0), 1);
        EXPECT_EQ(picker->minValueForComponent(2), 2);
        for (const NSInteger component : {-1, 1, 4, 7}) EXPECT_EQ(picker->minValueForComponent(component), 3);
        EXPECT_EQ(picker->maxValueForComponent(0), 40);
        EXPECT_EQ(picker->maxValueForComponent(2), 50);
        EXPECT_EQ(picker->maxValueForComponent(4), 55);
    }
    picker->setType(2);
    EXPECT_EQ(picker->minValueForComponent(0), 2);
    EXPECT_EQ(picker->minValueForComponent(2), 3);
    EXPECT_EQ(picker->maxValueForComponent(0), 50);
    EXPECT_EQ(picker->maxValueForComponent(4), 55);
}

// Rows

TEST_F(DurationPicker, TheMaximumsHourIsOfferedOnlyIfItHasMinutes) {
    picker->setMaxValue(boxed(milliseconds(1, 30, 0)));
    EXPECT_EQ(titlesOf(*this, 0), (Titles{"00", "01"}));
    EXPECT_EQ(rows(2), 60) << "at 0:05";
    picker->setCurrentValue(boxed(milliseconds(1, 5, 0)));
    EXPECT_EQ(rows(2), 30);
    EXPECT_EQ(title(29, 2), "29");
    picker->setMaxValue(boxed(milliseconds(1, 0, 59)));
    EXPECT_EQ(rows(0), 1);
    picker->setMaxValue(boxed(milliseconds(1, 1, 0)));
    EXPECT_EQ(rows(0), 2);
}

TEST_F(SecondsPicker, TheMaximumsMinuteIsOfferedOnlyIfItHasSeconds) {
    picker->setMaxValue(boxed(milliseconds(1, 30, 20)));
    picker->setCurrentValue(boxed(milliseconds(1, 5, 0)));
    EXPECT_EQ(rows(2), 31);
    EXPECT_EQ(title(30, 2), "30");
    EXPECT_EQ(rows(4), 12);
    picker->setCurrentValue(boxed(milliseconds(1, 30, 0)));
    EXPECT_EQ(titlesOf(*this, 4), (Titles{"00", "05", "10", "15"}));
    picker->setCurrentValue(boxed(milliseconds(1, 29, 0)));
    EXPECT_EQ(rows(4), 12);
    picker->setMaxValue(boxed(milliseconds(1, 30, 0)));
    EXPECT_EQ(rows(2), 30);
    picker->setType(0);
    picker->setMaxValue(boxed(milliseconds(1, 30, 20)));
    EXPECT_EQ(rows(2), 30) << "without a column of seconds they do not count";
}

TEST_F(SecondsPicker, OnTheMinimumsHigherUnitsTheLowerOnesBeginAtTheMinimums) {
    picker->setMinValue(boxed(milliseconds(1, 10, 30)));
    picker->setCurrentValue(boxed(milliseconds(1, 10, 30)));
    EXPECT_EQ(rows(0), 98);
    EXPECT_EQ(title(0, 0), "01");
    EXPECT_EQ(rows(2), 50);
    EXPECT_EQ(title(0, 2), "10");
    EXPECT_EQ(titlesOf(*this, 4), (Titles{"30", "35", "40", "45", "50", "55"}));
    picker->setCurrentValue(boxed(milliseconds(1, 11, 0)));
    EXPECT_EQ(rows(2), 50);
    EXPECT_EQ(rows(4), 12);
    EXPECT_EQ(title(0, 4), "00");
    picker->setCurrentValue(boxed(milliseconds(2, 10, 45)));
    EXPECT_EQ(rows(2), 60);
    EXPECT_EQ(title(0, 2), "00");
    EXPECT_EQ(rows(4), 12) << "the hours count too";
}

TEST_F(SecondsPicker, WithinTheMinimumsAndTheMaximumsHourBothBoundsCount) {
    picker->setMinValue(boxed(milliseconds(1, 10, 10)));
    picker->setMaxValue(boxed(milliseconds(1, 10, 40)));
    EXPECT_EQ(picker->currentValue().integerValue(), milliseconds(1, 10, 10));
    EXPECT_EQ(rows(0), 1);
    EXPECT_EQ(titlesOf(*this, 2), Titles{"10"}) << "(10 − 10) / 1 + 1";
    EXPECT_EQ(titlesOf(*this, 4), (Titles{"10", "15", "20", "25", "30", "35"})) << "(40 − 10) / 5";
}

TEST_F(DurationPicker, MinutesAndSecondsNeedAMaximumBelowAnHour) {
    picker->setType(2);
    EXPECT_EQ(rows(0), 0) << "the minutes of 99 hours are 0";
    picker->setMaxValue(boxed(3599000));
    EXPECT_EQ(rows(0), 60);
    EXPECT_EQ(title(59, 0), "59");
    picker->setMaxValue(boxed(3540000)); // 59:00
    EXPECT_EQ(rows(0), 59);
}

TEST_F(MinutesPicker, MinutesAreTitledFrom00AlthoughTheirRowsCountFromTheMinimum) {
    picker->setMinValue(boxed(90000));
    picker->setCurrentValue(boxed(90000));
    EXPECT_EQ(titlesOf(*this, 2), (Titles{"30", "35", "40", "45", "50", "55"}));
    EXPECT_EQ(selected(0), 0);
    EXPECT_EQ(selected(2), 0);
    EXPECT_EQ(rows(0), 59);
    EXPECT_EQ(title(0, 0), "00");
    EXPECT_EQ(title(58, 0), "58");
}

TEST_F(DurationPicker, TitlesHaveAtLeastTwoDigits) {
    EXPECT_EQ(title(5, 2), "05");
    EXPECT_EQ(title(100, 0), "100");
    EXPECT_EQ(title(-1, 0), "-1");
    EXPECT_EQ(title(highest, 0), "9223372036854775807");
    EXPECT_EQ(title(0, 4), "00");
}
