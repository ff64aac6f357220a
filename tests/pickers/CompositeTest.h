#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <limits>

#include "GXStyleSheet.h"
#include "PickerTest.h"

/// A phone upright, and turned.
inline constexpr gx::CGRect upright = {{0, 0}, {320, 216}};
inline constexpr gx::CGRect lying = {{0, 0}, {568, 200}};

/// Does with a composite what can be done with any picker, and checks that it returns what one
/// without a wheel and without rows.
inline void expectEveryOperationIsSafe(const gx::Ref<gx::GXBasePickerView>& picker) {
    const auto notices = gx::create<PickerNotices>();
    const auto font = gx::GXStyleSheet::globalStyleSheet()->pickerValueFont();
    EXPECT_FALSE(picker->pickerView());
    for (const gx::NSNumber& number : {picker->minValue(), picker->maxValue(), picker->currentValue(), picker->stepSize()}) {
        EXPECT_FALSE(number) << "it was given no range";
    }
    EXPECT_EQ(picker->pickerView_numberOfRowsInComponent(nullptr, 0), 0) << "a division by no step";
    EXPECT_EQ(picker->pickerView_titleForRow_forComponent(nullptr, 7, 0), "0");
    EXPECT_EQ(picker->pickerView_widthForComponent(nullptr, 0), 50);
    EXPECT_EQ(picker->numberOfComponentsInPickerView(nullptr), 1);
    EXPECT_GE(picker->pickerView_rowHeightForComponent(nullptr, 0), 0);
    for (const gx::NSInteger component : {-1, 0, 1, 7}) {
        EXPECT_TRUE(picker->pickerView_viewForRow_forComponent_reusingView(nullptr, 0, component, nullptr));
    }
    picker->setDelegate(notices);
    for (const gx::NSNumber& number :
         {boxed(5), boxedInteger(std::numeric_limits<gx::NSInteger>::min()), boxedInteger(std::numeric_limits<gx::NSInteger>::max()),
          boxedDouble(std::numeric_limits<double>::quiet_NaN()), gx::NSNumber()}) {
        picker->setCurrentValue(number); // Before there is a step, the first time.
        picker->setMinValue(number);
        picker->setMaxValue(number);
        picker->setStepSize(number);
        picker->selectCurrentValue();
        picker->pickerView_didSelectRow_inComponent(nullptr, std::numeric_limits<gx::NSInteger>::max(), 0);
    }
    EXPECT_EQ(picker->stepSize().integerValue(), 1);
    picker->setCurrentValue(boxed(42));
    notices->list.clear();
    picker->informDelegateOfValueChange();
    ASSERT_EQ(notices->list.size(), 1U);
    EXPECT_EQ(notices->list[0].picker, picker);
    EXPECT_EQ(notices->list[0].value.intValue(), 42);
    picker->setCustomValueFont(font);
    picker->setCustomLabelFont(font);
    EXPECT_EQ(picker->customValueFont(), font);
    EXPECT_EQ(picker->customLabelFont(), font);
    for (const bool metric : {true, false}) {
        picker->setIsMetric(metric);
        EXPECT_EQ(picker->isMetric(), metric);
    }
    for (const gx::CGRect& frame : {gx::CGRectNull, gx::CGRectZero, gx::CGRectMake(3, 4, 40, 30), gx::CGRectMake(0, 0, 320, 216)}) {
        picker->setFrame(frame);
        picker->layoutIfNeeded();
    }
    picker->setDelegate({});
    picker->informDelegateOfValueChange();
    EXPECT_EQ(notices->list.size(), 1U);
}

/// An inner picker that does something when it is told its frame, its delegate or its unit system.
template <class Picker>
struct MeddlingPicker : Picker {
    std::function<void()> whenTold;

    void setFrame(gx::CGRect frame) override {
        Picker::setFrame(frame);
        act();
    }
    void setDelegate(gx::WeakRef<gx::GXBasePickerViewDelegate> delegate) override {
        Picker::setDelegate(std::move(delegate));
        act();
    }
    void setIsMetric(bool isMetric) override {
        Picker::setIsMetric(isMetric);
        act();
    }

private:
    void act() {
        const auto action = whenTold; // It outlives whatever it does to this picker.
        if (action) action();
    }
};
