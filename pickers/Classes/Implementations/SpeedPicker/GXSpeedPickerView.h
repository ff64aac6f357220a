#pragma once

#include "GXBasePickerView.h"
#include "GXExport.h"
#include "GXSpeedFormatter.h"

namespace gx {

/// Picks a speed to one decimal place, in kilometres or miles per hour: a component of whole
/// numbers, the locale's decimal separator and a component of tenths. From 0 to 50 km/h, starting
/// at 10 km/h, in miles per hour until `setIsMetric`.
///
/// Values are metres per second in both unit systems, any boxed number. Beside them the picker
/// keeps copies in the unit shown, and all rows are worked out from those; each setter of a value
/// and of the unit system refreshes them.
/// - A selection by the user stores a boxed double, clamped to the range.
/// - What the application sets is not clamped: its rows are passed to the wheel as they are, also
///   negative ones.
/// - Empty and NaN numbers read as row 0, and what is too large for a row or a tenth is clamped to
///   the integers there are.
///
/// The delegate is notified once after each selection, for component 0, whatever the component.
///
/// Where the rules look uneven, the user sees this:
/// - The conversion factors are rounded decimals. A whole number of miles per hour comes back a
///   hair lower, so picking 5.0 mph shows 4.0 afterwards, while 5.0 km/h stays. The stored value is
///   the one that was picked.
/// - With a minimum that has tenths, the row of whole numbers goes by the difference to the
///   minimum, and can be one below the value's own; on the first row, the tenths are moved by a
///   tenth of the minimum, rounded, although they begin at the minimum's tenths.
/// - Rows of whole numbers are 1 apart whatever `stepSize` is, while selecting divides by it: leave
///   it at 1.
class GX_EXPORT GXSpeedPickerView : public GXBasePickerView {
public:
    /// The values in the unit shown. The setters store only; the next setter of the value itself
    /// overwrites them.
    virtual double minSpeedInMphOrKph() const { return minSpeedInMphOrKph_; }
    virtual void setMinSpeedInMphOrKph(double speed) { minSpeedInMphOrKph_ = speed; }
    /// The maximum in the unit shown.
    virtual double maxSpeedInMphOrKph() const { return maxSpeedInMphOrKph_; }
    virtual void setMaxSpeedInMphOrKph(double speed) { maxSpeedInMphOrKph_ = speed; }
    /// The current value in the unit shown.
    virtual double currentSpeedInMphOrKph() const { return currentSpeedInMphOrKph_; }
    virtual void setCurrentSpeedInMphOrKph(double speed) { currentSpeedInMphOrKph_ = speed; }

    /// Names the unit. Held strongly; made when first needed, for the unit system of that
    /// moment, and switched by `setIsMetric`. The setter stores only.
    virtual Ref<GXSpeedFormatter> speedFormatter();
    virtual void setSpeedFormatter(Ref<GXSpeedFormatter> formatter) { speedFormatter_ = std::move(formatter); }

    /// Metres per second. Each refreshes its copy first, also for the box that is stored already.
    void setMinValue(NSNumber value) override;
    void setMaxValue(NSNumber value) override;
    void setCurrentValue(NSNumber value) override;
    /// Changes what is shown, not the values. Does nothing if the flag stays.
    void setIsMetric(bool isMetric) override;

    /// Metres per second to kilometres per hour.
    virtual double mpsToKph(double speed) const;
    /// Metres per second to miles per hour.
    virtual double mpsToMph(double speed) const;
    /// Kilometres per hour to metres per second.
    virtual double kphToMps(double speed) const;
    /// Miles per hour to metres per second.
    virtual double mphToMps(double speed) const;
    /// Takes a speed in the unit shown: converts it, clamps it to the range (the minimum, should it
    /// lie above the maximum), sets it and informs the delegate.
    virtual void checkMetricAndInformDelegate(double speed);

    void selectCurrentValue() override;

    // What the wheel queries. Components: whole numbers, separator, tenths; any other one is a row
    // without a title.

    NSInteger numberOfComponentsInPickerView(const Ref<UIPickerView>& pickerView) override;
    NSInteger pickerView_numberOfRowsInComponent(const Ref<UIPickerView>& pickerView, NSInteger component) override;
    std::optional<std::string> pickerView_titleForRow_forComponent(const Ref<UIPickerView>& pickerView, NSInteger row,
                                                                   NSInteger component) override;
    /// At most a third of the wheel; 3 points for the separator.
    CGFloat pickerView_widthForComponent(const Ref<UIPickerView>& pickerView, NSInteger component) override;
    /// Reads the number that the wheel shows from its titles.
    void pickerView_didSelectRow_inComponent(const Ref<UIPickerView>& pickerView, NSInteger row, NSInteger component) override;
    std::optional<std::string> pickerView_accessibilityValueForRow_forComponent(const Ref<UIPickerView>& pickerView, NSInteger row,
                                                                                NSInteger component) override;

protected:
    void didInitialize() override {
        GXBasePickerView::didInitialize();
        initGXSpeedPickerView();
    }
    /// Sets range, value and texts to those above.
    virtual void initGXSpeedPickerView();
    void showTexts() override;
    std::optional<GXAccessibilityName> accessibilityMeasurement() const override { return GXAccessibilityName::Speed; }
    std::optional<GXAccessibilityName> accessibilityPartOfComponent(NSInteger component) override;

private:
    void showUnit();
    double displayed(const NSNumber& value) const;
    bool isOnMinimumsWholeNumber() const;
    NSInteger rowsOfTenths() const;
    double selectedNumber(const Ref<UIPickerView>& pickerView, NSInteger component);

    double minSpeedInMphOrKph_ = 0;
    double maxSpeedInMphOrKph_ = 0;
    double currentSpeedInMphOrKph_ = 0;
    Ref<GXSpeedFormatter> speedFormatter_;
};

} // namespace gx
