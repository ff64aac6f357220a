#pragma once

#include "GXBasePickerView.h"
#include "GXExport.h"

namespace gx {

/// Picks a running pace, minutes and seconds per kilometre or per mile, and stores the speed that
/// it means. From 1:30 to 60:00 per kilometre, starting at 1:40, in minutes per mile until
/// `setIsMetric`.
///
/// Values are metres per second in both unit systems, any boxed number; a selection by the user
/// stores a boxed double. The faster the pace, the larger the speed: `minValue` is the fastest
/// pace, and so the largest number, and `maxValue` the slowest pace, the smallest. The wheel begins
/// at the minimum's pace and includes the maximum's.
///
/// The current value is clamped to the range, also where the application sets it; a new bound
/// leaves it alone. Should `maxValue` be above `minValue`, a value becomes the bound that it is
/// found beyond first, the maximum before the minimum.
/// - NaN is stored as it is.
/// - A speed below 0 has no pace and reads as 0:00, as do 0, NaN and an empty number.
/// - What is too slow for 32 bits of seconds is clamped to those.
///
/// The delegate is notified once after each selection, for component 0, whatever the component,
/// with the clamped value.
///
/// Where the rules look uneven, the user sees this:
/// - On the minimum's minute the seconds begin at the minimum's and stop before 60; on the
///   maximum's they end with the maximum's.
/// - With minutes in steps, a selection takes the step for the minimum's minutes too (from 1:30 in
///   steps of 2, the second row reads 03 and gives 4 minutes), so steps of minutes fit a minimum
///   below one minute.
class GX_EXPORT GXPacePickerView : public GXBasePickerView {
public:
    /// What the wheel shows of a pace: boxed 32-bit integers, the seconds 0 to 59.
    struct Components {
        NSNumber minutes; ///< from 0
        NSNumber seconds; ///< 0 to 59
    };

    /// From one row to the next. Defaults 1 and 5; a step below 1 becomes 1. A change reloads but
    /// selects nothing.
    virtual std::int32_t minutesStepSize() const { return minutesStepSize_; }
    virtual void setMinutesStepSize(std::int32_t step);
    /// As the step of the minutes, in seconds.
    virtual std::int32_t secondsStepSize() const { return secondsStepSize_; }
    virtual void setSecondsStepSize(std::int32_t step);
    /// The step, at least 1.
    virtual std::int32_t checkStepSize(std::int32_t step) const;

    /// Changes what is shown, not the value. Does nothing if the flag stays.
    void setIsMetric(bool isMetric) override;
    /// Metres per second. Clamped to the range by a further call with the bound; otherwise stores,
    /// selects, and reloads the seconds.
    void setCurrentValue(NSNumber value) override;
    /// Puts the name of the unit beside the wheel.
    virtual void updatePaceUnitLabel();

    /// Per metre to per mile; so 1 becomes the metres of a mile.
    virtual double pacePerMeterToPacePerMile(double pace) const;
    /// Of a speed in metres per second; a speed of 0 is a pace of 0. Nothing for a negative one.
    virtual std::optional<Components> componentsFromValue(const NSNumber& value) const;
    /// Of a pace in seconds per metre, rounded to whole seconds per kilometre or mile. Nothing for
    /// a negative one.
    virtual std::optional<Components> components(const NSNumber& secondsPerMeter) const;

    void selectCurrentValue() override;
    /// "4:45 min/km", without a zero before the minutes.
    std::string currentValueText() override;

    // What the wheel queries. Components: minutes, separator, seconds; any other one is like the
    // separator.

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
        initGXPacePickerView();
    }
    /// Sets steps, range, value and texts to those above.
    virtual void initGXPacePickerView();
    void showTexts() override;
    std::optional<GXAccessibilityName> accessibilityMeasurement() const override { return GXAccessibilityName::Pace; }
    std::optional<GXAccessibilityName> accessibilityPartOfComponent(NSInteger component) override;

private:
    struct Pace {
        std::int32_t minutes = 0;
        std::int32_t seconds = 0;
    };

    void setCurrentValueToBound(NSNumber bound);
    Pace paceOfValue(const NSNumber& value) const;
    std::int32_t rowsOfSeconds() const;
    double selectedSeconds();

    std::int32_t minutesStepSize_ = 1;
    std::int32_t secondsStepSize_ = 5;
    bool isSettingBound_ = false;
};

} // namespace gx
