#pragma once

#include "GXBasePickerView.h"
#include "GXDurationType.h"
#include "GXExport.h"

namespace gx {

class GXDurationLayout;

/// Picks a duration as hours and minutes, hours, minutes and seconds, or minutes and seconds, each
/// number in a component of its own with ":" between them. From 0 up to 99 hours, starting at 5
/// minutes. It has no unit systems.
///
/// Values are milliseconds, any boxed number, read by their integer part; empty and NaN numbers
/// read as 0. The value is clamped to the range whenever it is selected, so also when the
/// application sets it, and is then stored as a boxed integer; with the minimum above the maximum
/// it becomes the maximum. Units beyond 32 bits wrap around.
///
/// A selection by the user stores a boxed float. That holds every second up to 37 hours; longer
/// durations to some milliseconds, so that there a second that was picked may come back as the one
/// before (40:00:05 is 40:00:04.992).
///
/// The delegate is notified once after each selection, for component 0, whatever the component,
/// with the clamped value.
///
/// Where the rules look uneven, the user sees this:
/// - The maximum is exclusive: a unit equal to the maximum's is offered only if a lower unit of the
///   maximum is not 0, and on the maximum's own higher units the lowest one stops a step before it.
/// - While the higher units are the minimum's, the lower ones begin at the minimum's. Seconds go by
///   the minutes alone when they are selected or read, so a minimum of 1:10:30 moves them at 2:10
///   as well; in hours and minutes they are carried along unseen.
/// - In minutes and seconds, the minutes are titled from 00 although they are counted from the
///   minimum's; minutes wrap at 60, so that layout needs a maximum below an hour.
class GX_EXPORT GXDurationPickerView : public GXBasePickerView {
public:
    /// Default `GXDurationTypeHoursMinutes`. A change puts the layout's name and separators on the
    /// wheel, reloads and selects. An unknown type is stored and leaves those texts; its components
    /// have no rows, and a selection there is 0.
    virtual NSInteger type() const { return type_; }
    virtual void setType(NSInteger type);

    /// From one row to the next. Defaults 1, 1 and 5; a step below 1 becomes 1. A change reloads
    /// but selects nothing: the selected rows may show another value until the next selection.
    virtual std::int32_t hoursStepSize() const { return hoursStepSize_; }
    virtual void setHoursStepSize(std::int32_t step) { storeStep(hoursStepSize_, checkStepSize(step)); }
    /// As the step of the hours, in minutes.
    virtual std::int32_t minutesStepSize() const { return minutesStepSize_; }
    virtual void setMinutesStepSize(std::int32_t step) { storeStep(minutesStepSize_, checkStepSize(step)); }
    /// As the step of the hours, in seconds.
    virtual std::int32_t secondsStepSize() const { return secondsStepSize_; }
    virtual void setSecondsStepSize(std::int32_t step) { storeStep(secondsStepSize_, checkStepSize(step)); }
    /// The step, at least 1.
    virtual std::int32_t checkStepSize(std::int32_t step) const;

    /// The hours, not wrapped; the minutes and seconds below 60. With the sign of the milliseconds.
    virtual std::int32_t hoursFromMilliseconds(NSInteger milliseconds) const;
    /// The whole minutes of the last hour, -59 to 59.
    virtual std::int32_t minutesFromMilliseconds(NSInteger milliseconds) const;
    /// The whole seconds of the last minute, -59 to 59.
    virtual std::int32_t secondsFromMilliseconds(NSInteger milliseconds) const;

    /// What the type shows of a duration in a component, at least 0: the component that is neither
    /// of the higher units is that of seconds.
    virtual std::int32_t value_forComponent(NSInteger milliseconds, NSInteger component) const;
    /// The step of the unit in a component, at least 1; 1 for a component without a unit.
    virtual std::int32_t stepSizeForComponent(NSInteger component) const;
    /// What the type shows of the minimum in a component.
    virtual std::int32_t minValueForComponent(NSInteger component) const;
    /// What the type shows of the maximum in a component.
    virtual std::int32_t maxValueForComponent(NSInteger component) const;

    /// Clamps the value first: `setCurrentValue` is called with the bound.
    void selectCurrentValue() override;
    /// "0:27 h", "0:27:30" or "27:30 min", by the type, and without a zero before the first number.
    /// The units are those of the international system, which are alike in all languages.
    std::string currentValueText() override;

    // What the wheel queries. Components 0, 2 and, with three units, 4 hold values; any other one
    // is a row without a title, those between are separators of 5 points.

    NSInteger numberOfComponentsInPickerView(const Ref<UIPickerView>& pickerView) override;
    NSInteger pickerView_numberOfRowsInComponent(const Ref<UIPickerView>& pickerView, NSInteger component) override;
    /// At least two digits.
    std::optional<std::string> pickerView_titleForRow_forComponent(const Ref<UIPickerView>& pickerView, NSInteger row,
                                                                   NSInteger component) override;
    CGFloat pickerView_widthForComponent(const Ref<UIPickerView>& pickerView, NSInteger component) override;
    void pickerView_didSelectRow_inComponent(const Ref<UIPickerView>& pickerView, NSInteger row, NSInteger component) override;
    std::optional<std::string> pickerView_accessibilityValueForRow_forComponent(const Ref<UIPickerView>& pickerView, NSInteger row,
                                                                                NSInteger component) override;

protected:
    void didInitialize() override {
        GXBasePickerView::didInitialize();
        initGXDurationPickerView();
    }
    /// Sets type, steps, range, value and texts to those above.
    virtual void initGXDurationPickerView();
    void showTexts() override;
    std::optional<GXAccessibilityName> accessibilityMeasurement() const override { return GXAccessibilityName::Duration; }
    std::optional<GXAccessibilityName> accessibilityPartOfComponent(NSInteger component) override;

private:
    /// The bound that the value is being set to.
    enum class Clamping { None, ToMinimum, ToMaximum };

    GXDurationLayout layout() const;

    std::int32_t currentValueForComponent(NSInteger component) const;
    bool isOnMinimum(NSInteger component) const { return currentValueForComponent(component) == minValueForComponent(component); }
    bool isOnMaximum(NSInteger component) const { return currentValueForComponent(component) == maxValueForComponent(component); }
    NSInteger rowsOfHighestUnit() const;
    NSInteger rowsOfMiddleUnit() const;
    NSInteger rowsOfLowestUnit() const;
    float selectedSeconds();
    float selectedValue(NSInteger component, float minimum);

    void clampCurrentValue();
    void setCurrentValueToBound(NSInteger bound, Clamping clamping);
    void selectUnits(NSInteger milliseconds);
    void selectMinutesAndSeconds(NSInteger milliseconds);
    void selectRowOfUnit(std::int32_t value, NSInteger component);

    NSInteger type_ = GXDurationTypeHoursMinutes;
    std::int32_t hoursStepSize_ = 1;
    std::int32_t minutesStepSize_ = 1;
    std::int32_t secondsStepSize_ = 5;
    Clamping clamping_ = Clamping::None;
};

} // namespace gx
