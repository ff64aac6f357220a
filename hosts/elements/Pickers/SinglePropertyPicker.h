#pragma once

#include <type_traits>
#include <vector>

#include "OwnProperties.h"
#include "PropertyPicker.h"

namespace gx::elements {

/// A picker of one wheel and a value from a range; with two values for the heart rates.
template <class Picker>
class SinglePropertyPicker : public PropertyPicker {
public:
    Ref<UIView> view() const override { return picker_; }
    std::vector<Ref<UIPickerView>> wheels() const override { return {picker_->pickerView()}; }

    std::optional<double> get(PickerProperty property) const override {
        const std::optional<double> own = ownProperty(*picker_, property);
        if (own || (property == PickerProperty::Value && !hasValue)) return own;
        return rangeProperty(*picker_, property);
    }
    bool set(PickerProperty property, double value) override {
        if (property == PickerProperty::Value && !hasValue) return false;
        const bool isOwn = setOwnProperty(*picker_, property, value);
        if (!isOwn && !setRangeProperty(*picker_, property, value)) return false;
        const bool isValue =
            property == PickerProperty::Value || property == PickerProperty::Average || property == PickerProperty::Maximum;
        if (!isValue) selectAgain(*picker_);
        return true;
    }

    void reload() override {
        picker_->reloadData();
        picker_->sizeFontsToFit();
    }
    std::string text() const override { return picker_->currentValueText(); }

    /// To be called once: the picker holds its delegate weakly.
    void follow() { picker_->setDelegate(WeakRef<GXBasePickerViewDelegate>(refTo(this))); }

protected:
    const Ref<Picker>& picker() const { return picker_; }

private:
    /// Two rates are no value: the base's own, which is never chosen, would select the first row.
    static constexpr bool hasValue = !std::is_base_of_v<GXHeartRatePickerView, Picker>;

    Ref<Picker> picker_ = create<Picker>(CGRectZero);
};

/// The icons are the host's pictures; the value is the index of one.
class IconPropertyPicker final : public SinglePropertyPicker<GXIconPickerView> {
public:
    void setIcons(Ref<const GXIconPickerView::Images> icons) override {
        picker()->setIconImages(std::move(icons));
        selectAgain(*picker());
    }
    Ref<const GXIconPickerView::Images> icons() const override { return picker()->iconImages(); }
};

} // namespace gx::elements
