#pragma once

#include "GXBasePickerView.h"
#include "GXExport.h"

namespace gx {

/// The units that a weight can be shown in. A picker takes any other number as well, and then
/// counts in stones.
enum GXWeightUnit : NSUInteger { GXWeightUnitKilogram = 0, GXWeightUnitPound = 1, GXWeightUnitStone = 2 };

/// Picks a body weight to a tenth of its unit: 15.0 to 349.9 kg, 34.0 to 770.9 lb or 3.0 to 54.9
/// st. Stones are decimal ones: 3.5 st are three stones and seven pounds.
///
/// Minimum, maximum and current value are kilograms in every unit. What was picked in kilograms is
/// a boxed double, in pounds and stones a boxed float. The rows are fixed for each unit.
/// - Of the bounds only the minimum has an effect: a value below it selects nothing. The maximum is
///   there for the application to read.
/// - `isMetric` and `stepSize` have no effect.
///
/// A fresh picker shows its first rows without having a value in the range; set one.
///
/// Only in pounds is a value that is too large replaced, by 770.9 lb. Otherwise rows that do not
/// exist are requested of the wheel as they are, and a fraction of 0.95 or more requests an
/// eleventh tenth and not the next whole unit.
class GX_EXPORT GXWeightPickerView : public GXBasePickerView {
public:
    /// Default kilograms. The setter gives the wheel the unit's rows and label.
    ///
    /// It neither selects the current value, which the next `setCurrentValue` does, nor sets the
    /// unit's bounds, which `updateMinMaxWeight` does. A unit that is none of the three is shown
    /// and read like stones.
    virtual GXWeightUnit weightUnit() const { return weightUnit_; }
    virtual void setWeightUnit(NSUInteger unit);
    /// Whether the user can choose the unit in a component of its own, instead of reading it beside
    /// the wheel. Default false. The component shows the unit from the next `setCurrentValue` on.
    virtual bool weightUnitSelectable() const { return weightUnitSelectable_; }
    virtual void setWeightUnitSelectable(bool selectable);

    /// Puts the unit beside the wheel, in the user's language of this moment, or nothing while the
    /// unit has a column. An unknown unit leaves the label as it is.
    virtual void updateCurrentRightLabel();
    /// Sets minimum and maximum to the range of the unit. An unknown unit leaves them as they are.
    virtual void updateMinMaxWeight();

    /// Turns the wheel to the current value in the unit shown; a value below the minimum leaves it
    /// where it is. More than 771 lb become 770.9 lb, in the current value too.
    void selectCurrentValue() override;

    // What the wheel queries: whole units, decimal separator, tenths and, if it can be chosen, the
    // unit

    NSInteger numberOfComponentsInPickerView(const Ref<UIPickerView>& pickerView) override;
    NSInteger pickerView_numberOfRowsInComponent(const Ref<UIPickerView>& pickerView, NSInteger component) override;
    std::optional<std::string> pickerView_titleForRow_forComponent(const Ref<UIPickerView>& pickerView, NSInteger row,
                                                                   NSInteger component) override;
    CGFloat pickerView_widthForComponent(const Ref<UIPickerView>& pickerView, NSInteger component) override;
    /// Stores the weight that the wheel now shows, or changes the unit, which leaves the stored
    /// kilograms alone; then informs the delegate, whatever the column.
    void pickerView_didSelectRow_inComponent(const Ref<UIPickerView>& pickerView, NSInteger row, NSInteger component) override;
    std::optional<std::string> pickerView_accessibilityValueForRow_forComponent(const Ref<UIPickerView>& pickerView, NSInteger row,
                                                                                NSInteger component) override;

protected:
    void didInitialize() override {
        GXBasePickerView::didInitialize();
        initGXWeightPickerView();
    }
    /// Sets the range of the unit, which the user cannot choose.
    virtual void initGXWeightPickerView();
    void showTexts() override;
    std::optional<GXAccessibilityName> accessibilityMeasurement() const override { return GXAccessibilityName::Weight; }
    std::optional<GXAccessibilityName> accessibilityPartOfComponent(NSInteger component) override;

private:
    void storeWeight(NSInteger wholeRow, NSInteger tenths);

    GXWeightUnit weightUnit_ = GXWeightUnitKilogram;
    bool weightUnitSelectable_ = false;
};

} // namespace gx
