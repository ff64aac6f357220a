#pragma once

#include "GXBasePickerView.h"
#include "GXDistanceFormatter.h"
#include "GXExport.h"
#include "GXRounding.h" // How it stores the distances that are picked.

namespace gx {

/// Picks a distance with one or two decimal places: a component of whole kilometres or miles, the
/// locale's decimal separator, and a component for each decimal digit. From 0 to 300 km, starting
/// at 5 km and in miles until `setIsMetric`.
///
/// Values are metres in both unit systems, any boxed number.
/// - A selection by the user stores a boxed double, clamped to the range.
/// - What the application sets is not clamped: its rows are passed to the wheel as they are.
/// - Empty and NaN numbers read as 0 where a row or a digit is worked out, and what is too large
///   for one is clamped to 32 bits.
///
/// The delegate is notified once after each selection, for component 0, whatever the component.
///
/// Where the rules look uneven, the user sees this:
/// - The whole kilometres go up to the last one that begins below the maximum (300.5 km still
///   offers 300), the miles stop one whole mile short: a mile that is not complete within the range
///   is not offered.
/// - While the value lies in the minimum's whole unit, the digits begin at the minimum's digits;
///   the hundredths do so whatever the tenths are. In miles they begin at the first digit that is
///   not below the minimum.
/// - Lengths in miles are rounded up, never down, so that a digit that was picked does not come
///   back one lower.
class GX_EXPORT GXDistancePickerView : public GXBasePickerView {
public:
    /// Decimal places, 1 or 2; anything else is ignored. Default 1. A change reloads the wheel but
    /// selects nothing: a new column shows the row that was last requested of it.
    virtual std::int32_t numberOfFractionUnits() const { return numberOfFractionUnits_; }
    virtual void setNumberOfFractionUnits(std::int32_t count);

    /// Names the unit; its unit system decides how the whole units are written and the rows
    /// selected.
    ///
    /// Held strongly; made when first needed, for the unit system of that moment. `setIsMetric`
    /// keeps it and the picker in step. The setter stores only, so with a formatter of another unit
    /// system titles are in one unit and row counts in the other.
    virtual Ref<GXDistanceFormatter> distanceFormatter();
    virtual void setDistanceFormatter(Ref<GXDistanceFormatter> formatter) { distanceFormatter_ = std::move(formatter); }

    /// Changes what is shown, not the value. Does nothing if the flag stays.
    void setIsMetric(bool isMetric) override;
    /// Metres. Stores, selects, and reloads the wheel, since the digits offered depend on the
    /// value.
    void setCurrentValue(NSNumber value) override;

    /// Rounded up to the next float.
    virtual float meterToMiles(double meters) const;
    /// International miles of 5280 feet to metres, rounded up to the next float.
    virtual float milesToMeter(double miles) const;
    /// Takes what the wheel shows, in thousandths of the whole unit (1230 is 1.23 km or 1.23 mi):
    /// converts it to metres, clamps it to the range (the minimum, should it lie above the
    /// maximum), sets it and informs the delegate.
    virtual void checkMetricAndInformDelegate(double value);

    void selectCurrentValue() override;

    // What the wheel queries. Components: whole units, separator, tenths, hundredths; any other one
    // is a row without a title.

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
        initGXDistancePickerView();
    }
    /// Sets range, value, decimal places and texts to those above.
    virtual void initGXDistancePickerView();
    void showTexts() override;
    std::optional<GXAccessibilityName> accessibilityMeasurement() const override { return GXAccessibilityName::Distance; }
    std::optional<GXAccessibilityName> accessibilityPartOfComponent(NSInteger component) override;

private:
    void selectCurrentKilometers();
    void selectCurrentMiles();
    void showUnit();
    bool isFormatterMetric();

    std::int32_t wholeUnits(double meters) const;
    bool isOnMinimumsWholeUnit() const;
    std::int32_t firstDigitOffered(NSInteger component) const;
    NSInteger wholeUnitRows() const;
    NSInteger firstWholeUnit();
    NSInteger selectedNumber(const Ref<UIPickerView>& pickerView, NSInteger component);

    std::int32_t numberOfFractionUnits_ = 1;
    Ref<GXDistanceFormatter> distanceFormatter_;
};

} // namespace gx
