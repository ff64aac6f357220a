#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include <GXUIPickers/GXBasePickerViewDelegate.h>
#include <GXUIPickers/GXHeightPickerView.h>
#include <GXUIPickers/GXIconPickerView.h>

#include "PickerProperty.h"

namespace gx::elements {

/// One picker with its properties as plain numbers, as hosts give them that know no classes of this
/// library: attributes of a page, properties of QML.
///
/// A property that decides what is shown selects the present value again. A picker of a kind has
/// the properties that its `get` returns something for.
class PropertyPicker : public NSObject, public GXBasePickerViewDelegate, public GXHeightPickerViewDelegate {
public:
    /// The picker; never empty.
    virtual Ref<UIView> view() const = 0;
    /// Its wheels from the left; a composite has two.
    virtual std::vector<Ref<UIPickerView>> wheels() const = 0;
    /// Values in the picker's base unit, flags as 0 and 1; nothing for a property that it does not
    /// have.
    virtual std::optional<double> get(PickerProperty property) const = 0;
    /// Returns whether the picker has the property. Any number may come: where the picker takes an
    /// integer, fractions are cut off, NaN is 0, and what is too large the largest. `didChange` is
    /// not called.
    virtual bool set(PickerProperty property, double value) = 0;
    // A picker that shows icons keeps them. NOLINTBEGIN(performance-unnecessary-value-param)
    /// What an icon picker shows; ignored by all others.
    virtual void setIcons(Ref<const GXIconPickerView::Images> /*icons*/) {}
    // NOLINTEND(performance-unnecessary-value-param)
    virtual Ref<const GXIconPickerView::Images> icons() const { return nullptr; }
    /// Reads texts and fonts again, in the largest fonts that fit.
    virtual void reload() = 0;
    /// The value as it is shown.
    virtual std::string text() const = 0;
    virtual void setAccessibilityLabel(std::optional<std::string> label) { view()->setAccessibilityLabel(std::move(label)); }

    /// Gives another picker of the same kind all that this one has.
    void copyTo(PropertyPicker& other) const;
    /// Called after the user has selected something.
    std::function<void()> didChange;

    void pickerView_didChangeCurrentValue_forComponent(const Ref<GXBasePickerView>& pickerView, const NSNumber& value,
                                                       NSInteger component) override;
    void heightPickerView_didSelectHeightInCm_metric(const Ref<GXHeightPickerView>& pickerView, CGFloat height, bool metric) override;
};

} // namespace gx::elements
