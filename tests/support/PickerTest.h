#pragma once

#include <gtest/gtest.h>

#include "PickerNotices.h"
#include "RecordingWheel.h"

using Calls = std::vector<std::string>;

/// A picker of 320 by 216 points on a recording wheel, with a delegate that notes what it is told.
template <class Picker>
struct PickerTest : testing::Test {
    PickerTest() : PickerTest(gx::create<Picker, gx::CGRect>) {}
    explicit PickerTest(gx::Ref<Picker> (*make)(const gx::CGRect& frame)) {
        RecordingWheel::install();
        picker = make(gx::CGRectMake(0, 0, 320, 216));
        RecordingWheel::uninstall();
        notices = gx::create<PickerNotices>();
        picker->setDelegate(notices);
    }

    RecordingWheel& wheel() { return RecordingWheel::under(picker); }
    gx::NSInteger rows(gx::NSInteger component = 0) { return wheel().numberOfRowsInComponent(component); }
    gx::NSInteger selected(gx::NSInteger component = 0) { return wheel().selectedRowInComponent(component); }
    std::optional<std::string> title(gx::NSInteger row, gx::NSInteger component = 0) {
        return picker->pickerView_titleForRow_forComponent(picker->pickerView(), row, component);
    }
    std::optional<std::string> selectedTitle(gx::NSInteger component = 0) { return title(selected(component), component); }
    /// Spins as a user does; returns the calls that reached the wheel.
    Calls turn(gx::NSInteger row, gx::NSInteger component = 0) {
        wheel().takeCalls();
        wheel().turnToRow_inComponent(row, component);
        return wheel().takeCalls();
    }
    template <class Act>
    Calls callsOf(Act act) {
        wheel().takeCalls();
        act();
        return wheel().takeCalls();
    }

    gx::Ref<Picker> picker;
    gx::Ref<PickerNotices> notices;
};

inline gx::NSNumber boxed(int value) { return gx::NSNumber::numberWithInt(value); }
inline gx::NSNumber boxedInteger(gx::NSInteger value) { return gx::NSNumber::numberWithInteger(value); }
inline gx::NSNumber boxedFloat(float value) { return gx::NSNumber::numberWithFloat(value); }
inline gx::NSNumber boxedDouble(double value) { return gx::NSNumber::numberWithDouble(value); }
