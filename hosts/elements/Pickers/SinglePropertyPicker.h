#pragma once

#include <type_traits>
#include <vector>

#include "OwnProperties.h"
#include "PropertyPicker.h"

namespace gx::elements {

/// What the kinds of pickers of one wheel have each of their own.
struct SinglePickerRules {
    Ref<GXBasePickerView> (*make)();
    std::optional<double> (*get)(const GXBasePickerView& picker, PickerProperty property);
    bool (*set)(GXBasePickerView& picker, PickerProperty property, double value);
    void (*selectAgain)(GXBasePickerView& picker);
    bool hasValue;
};

/// A picker of one wheel and a value from a range; with two values for the heart rates.
///
/// One class for all kinds, since a template would be a dozen copies in a browser's download.
class SinglePropertyPicker : public PropertyPicker {
public:
    template <class Picker>
    static constexpr SinglePickerRules rulesOf();
    /// To be called once, at first.
    void setRules(const SinglePickerRules& rules) {
        rules_ = rules;
        picker_ = rules.make();
        // The picker holds its delegate weakly.
        picker_->setDelegate(WeakRef<GXBasePickerViewDelegate>(refTo(this)));
    }

    Ref<UIView> view() const override { return picker_; }
    std::vector<Ref<UIPickerView>> wheels() const override { return {picker_->pickerView()}; }

    std::optional<double> get(PickerProperty property) const override {
        const std::optional<double> own = rules_.get(*picker_, property);
        if (own || (property == PickerProperty::Value && !rules_.hasValue)) return own;
        return rangeProperty(*picker_, property);
    }
    bool set(PickerProperty property, double value) override {
        if (property == PickerProperty::Value && !rules_.hasValue) return false;
        const bool isOwn = rules_.set(*picker_, property, value);
        if (!isOwn && !setRangeProperty(*picker_, property, value)) return false;
        const bool isValue =
            property == PickerProperty::Value || property == PickerProperty::Average || property == PickerProperty::Maximum;
        if (!isValue) selectAgain();
        return true;
    }

    void reload() override {
        picker_->reloadData();
        picker_->sizeFontsToFit();
    }
    std::string text() const override { return picker_->currentValueText(); }

protected:
    GXBasePickerView& picker() const { return *picker_; }
    void selectAgain() const { rules_.selectAgain(*picker_); }

private:
    SinglePickerRules rules_{};
    Ref<GXBasePickerView> picker_;
};

/// The icons are the host's pictures; the value is the index of one.
class IconPropertyPicker final : public SinglePropertyPicker {
public:
    void setIcons(Ref<const GXIconPickerView::Images> icons) override {
        iconPicker().setIconImages(std::move(icons));
        selectAgain();
    }
    Ref<const GXIconPickerView::Images> icons() const override { return iconPicker().iconImages(); }

private:
    /// The one that its rules have made. There is no RTTI here.
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-static-cast-downcast)
    GXIconPickerView& iconPicker() const { return static_cast<GXIconPickerView&>(picker()); }
};

template <class Picker>
constexpr SinglePickerRules SinglePropertyPicker::rulesOf() {
    return {.make = []() -> Ref<GXBasePickerView> { return create<Picker>(CGRectZero); },
            .get = [](const GXBasePickerView& picker,
                      PickerProperty property) { return ownProperty(static_cast<const Picker&>(picker), property); },
            .set = [](GXBasePickerView& picker, PickerProperty property,
                      double value) { return setOwnProperty(static_cast<Picker&>(picker), property, value); },
            .selectAgain = [](GXBasePickerView& picker) { gx::elements::selectAgain(static_cast<Picker&>(picker)); },
            // Two rates are no value: the base's own, which is never chosen, would select the first
            // row.
            .hasValue = !std::is_base_of_v<GXHeartRatePickerView, Picker>};
}

} // namespace gx::elements
