#include "GXWeightPickerView.h"

#include <cmath>

#include "GXLocalization.h"
#include "GXPickerAccessibility.h"
#include "GXPickerComponents.h"
#include "GXUnitConverter.h"
#include "GXWheelCalls.h"
#include "NSArithmetic.h"

namespace gx {

namespace {

/// Where other pickers have the hundredths.
constexpr NSInteger unitComponent = hundredthsComponent;

// Widths in points. Prescribed by the product.
constexpr CGFloat tenthsWidth = 20;
constexpr CGFloat unitWidth = 60;

/// The whole numbers that the first column offers, which are the unit's range; `end` is exclusive.
struct WholeNumbers {
    NSInteger first;
    NSInteger end;
    NSInteger count() const { return end - first; }
};

WholeNumbers wholeNumbersOf(GXWeightUnit unit) {
    switch (unit) {
    case GXWeightUnitKilogram:
        return {15, 350};
    case GXWeightUnitPound:
        return {34, 771};
    default:
        return {3, 55};
    }
}

/// The last weight that the wheel of pounds shows.
constexpr float lastPounds = 770.9F;

float weightInUnit(float kilograms, GXWeightUnit unit) {
    switch (unit) {
    case GXWeightUnitKilogram:
        return kilograms;
    case GXWeightUnitPound:
        return GXUnitConverter::kgToLb(kilograms);
    default:
        return GXUnitConverter::kgToSt(kilograms);
    }
}

NSNumber boxedKilograms(double weight, GXWeightUnit unit) {
    switch (unit) {
    case GXWeightUnitKilogram:
        return NSNumber::numberWithDouble(weight);
    case GXWeightUnitPound:
        return NSNumber::numberWithFloat(GXUnitConverter::lbToKg(static_cast<float>(weight)));
    default:
        return NSNumber::numberWithFloat(GXUnitConverter::stToKg(static_cast<float>(weight)));
    }
}

std::optional<std::string> nameOfUnit(GXWeightUnit unit) {
    const Ref<GXLocalization> localization = GXLocalization::sharedLocalization();
    switch (unit) {
    case GXWeightUnitPound:
        return localization->localizedStringWithKey_comment("lb", "unit lb (pound)");
    case GXWeightUnitStone:
        return localization->localizedStringWithKey_comment("st", "unit st (stones)");
    default:
        return localization->localizedStringWithKey_comment("kg", "unit kg (kilogram)");
    }
}

// A unit that is none of the three is shown like stones.

GXAccessibilityUnit accessibilityUnitOf(GXWeightUnit unit) {
    if (unit == GXWeightUnitKilogram) return GXAccessibilityUnit::Kilogram;
    return unit == GXWeightUnitPound ? GXAccessibilityUnit::Pound : GXAccessibilityUnit::Stone;
}

GXAccessibilityName accessibilityNameOf(GXWeightUnit unit) {
    if (unit == GXWeightUnitKilogram) return GXAccessibilityName::Kilograms;
    return unit == GXWeightUnitPound ? GXAccessibilityName::Pounds : GXAccessibilityName::Stones;
}

bool isKnown(GXWeightUnit unit) { return unit <= GXWeightUnitStone; }

GXWeightUnit unitOfRow(NSInteger row) {
    if (row == 1) return GXWeightUnitPound;
    return row == 2 ? GXWeightUnitStone : GXWeightUnitKilogram;
}

} // namespace

void GXWeightPickerView::initGXWeightPickerView() {
    setWeightUnitSelectable(false);
    updateMinMaxWeight();
    showDecimalSeparator(pickerView());
    reloadAllComponents(pickerView());
}

void GXWeightPickerView::showTexts() {
    const Ref<GXBasePickerView> keep = self();
    updateCurrentRightLabel();
    showDecimalSeparator(pickerView());
}

// The unit

void GXWeightPickerView::setWeightUnit(NSUInteger unit) {
    const Ref<GXBasePickerView> keep = self();
    weightUnit_ = static_cast<GXWeightUnit>(unit);
    updateCurrentRightLabel();
    reloadAllComponents(pickerView());
}

void GXWeightPickerView::setWeightUnitSelectable(bool selectable) {
    const Ref<GXBasePickerView> keep = self();
    weightUnitSelectable_ = selectable;
    updateCurrentRightLabel();
    reloadAllComponents(pickerView());
}

void GXWeightPickerView::updateCurrentRightLabel() {
    const Ref<GXBasePickerView> keep = self();
    if (weightUnitSelectable()) {
        setRightLabelText(pickerView(), std::nullopt);
    } else if (isKnown(weightUnit())) {
        const std::optional<std::string> name = nameOfUnit(weightUnit());
        setRightLabelText(pickerView(), name);
    }
}

void GXWeightPickerView::updateMinMaxWeight() {
    const Ref<GXBasePickerView> keep = self();
    const GXWeightUnit unit = weightUnit();
    const WholeNumbers range = wholeNumbersOf(unit);
    switch (unit) {
    case GXWeightUnitKilogram:
        setMinValue(NSNumber::numberWithInt(static_cast<std::int32_t>(range.first)));
        setMaxValue(NSNumber::numberWithInt(static_cast<std::int32_t>(range.end)));
        break;
    case GXWeightUnitPound:
        setMinValue(NSNumber::numberWithFloat(GXUnitConverter::lbToKg(static_cast<float>(range.first))));
        setMaxValue(NSNumber::numberWithFloat(GXUnitConverter::lbToKg(static_cast<float>(range.end))));
        break;
    case GXWeightUnitStone:
        setMinValue(NSNumber::numberWithFloat(GXUnitConverter::stToKg(static_cast<float>(range.first))));
        setMaxValue(NSNumber::numberWithFloat(GXUnitConverter::stToKg(static_cast<float>(range.end))));
        break;
    }
}

void GXWeightPickerView::selectCurrentValue() {
    const Ref<GXBasePickerView> keep = self();
    if (currentValue().floatValue() < minValue().floatValue()) return;
    float weight = weightInUnit(currentValue().floatValue(), weightUnit());
    // Pounds alone are clamped to the wheel; kilograms and stones beyond it keep their value.
    if (weightUnit_ == GXWeightUnitPound && weight > static_cast<float>(wholeNumbersOf(GXWeightUnitPound).end)) {
        setCurrentValue(NSNumber::numberWithFloat(GXUnitConverter::lbToKg(lastPounds)));
        weight = lastPounds;
    }
    const float whole = std::floor(weight);
    const auto row = truncateTo<NSInteger>(whole - static_cast<float>(wholeNumbersOf(weightUnit()).first));
    // A fraction of 0.95 or more is tenth 10, which the wheel shows as 9: 72.96 kg reads 72.9 and
    // not 73.0.
    const auto tenth = truncateTo<NSInteger>(std::round((weight - whole) * 10.0F));
    selectRow_inComponent(pickerView(), row, wholeComponent);
    selectRow_inComponent(pickerView(), tenth, tenthsComponent);
    if (weightUnitSelectable() && isKnown(weightUnit())) {
        selectRow_inComponent(pickerView(), static_cast<NSInteger>(weightUnit()), unitComponent);
    }
}

// What the wheel queries

NSInteger GXWeightPickerView::numberOfComponentsInPickerView(const Ref<UIPickerView>&) { return weightUnitSelectable() ? 4 : 3; }

NSInteger GXWeightPickerView::pickerView_numberOfRowsInComponent(const Ref<UIPickerView>&, NSInteger component) {
    switch (component) {
    case wholeComponent:
        return wholeNumbersOf(weightUnit()).count();
    case separatorComponent:
        return 1;
    case tenthsComponent:
        return 10;
    default:
        return 3;
    }
}

std::optional<std::string> GXWeightPickerView::pickerView_titleForRow_forComponent(const Ref<UIPickerView>&, NSInteger row,
                                                                                   NSInteger component) {
    switch (component) {
    case wholeComponent:
        return std::to_string(narrowTo32Bits(wrappingAdd(row, wholeNumbersOf(weightUnit()).first)));
    case tenthsComponent:
        return std::to_string(narrowTo32Bits(row));
    case unitComponent:
        // Apart from the tenths.
        if (const auto name = nameOfUnit(unitOfRow(row))) return "  " + *name;
        return std::nullopt;
    default:
        return std::nullopt;
    }
}

CGFloat GXWeightPickerView::pickerView_widthForComponent(const Ref<UIPickerView>& pickerView, NSInteger component) {
    switch (component) {
    case wholeComponent:
        return widthWithinAThirdOfWheel(GXBasePickerView::pickerView_widthForComponent(pickerView, wholeComponent), this->pickerView());
    case separatorComponent:
        return decimalSeparatorWidth;
    case unitComponent:
        return unitWidth;
    default:
        return tenthsWidth;
    }
}

// The user's selections

void GXWeightPickerView::storeWeight(NSInteger wholeRow, NSInteger tenths) {
    const NSInteger whole = wrappingAdd(wholeRow, wholeNumbersOf(weightUnit()).first);
    setCurrentValue(boxedKilograms(static_cast<double>(whole) + static_cast<double>(tenths) / 10.0, weightUnit()));
}

void GXWeightPickerView::pickerView_didSelectRow_inComponent(const Ref<UIPickerView>&, NSInteger row, NSInteger component) {
    const Ref<GXBasePickerView> keep = self();
    switch (component) {
    case wholeComponent:
        storeWeight(row, selectedRowInComponent(pickerView(), tenthsComponent));
        break;
    case tenthsComponent:
        storeWeight(selectedRowInComponent(pickerView(), wholeComponent), row);
        break;
    case unitComponent:
        setWeightUnit(unitOfRow(row));
        reloadComponent(pickerView(), wholeComponent);
        selectCurrentValue();
        break;
    default:
        break;
    }
    informDelegateOfValueChange();
}

// Accessibility texts

std::optional<GXAccessibilityName> GXWeightPickerView::accessibilityPartOfComponent(NSInteger component) {
    switch (component) {
    case wholeComponent:
        return accessibilityNameOf(weightUnit());
    case tenthsComponent:
        return GXAccessibilityName::Tenths;
    case unitComponent:
        return GXAccessibilityName::Unit;
    default:
        return std::nullopt;
    }
}

std::optional<std::string> GXWeightPickerView::pickerView_accessibilityValueForRow_forComponent(const Ref<UIPickerView>&, NSInteger row,
                                                                                                NSInteger component) {
    const RowInComponent at = {row, component};
    const GXWeightUnit unit = component == unitComponent ? unitOfRow(row) : weightUnit();
    return accessibilityQuantity(reportedNumber(wholeComponent, reportedTitle(tenthsComponent, at), at), accessibilityUnitOf(unit));
}

} // namespace gx
