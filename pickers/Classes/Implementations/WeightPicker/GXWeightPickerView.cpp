#include "GXWeightPickerView.h"

#include <array>
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

/// All that differs from unit to unit. Another unit is another row, and another `GXWeightUnit`.
struct WeightUnit {
    /// The whole numbers that the first column offers, which are the unit's range; `end` is
    /// exclusive.
    NSInteger first;
    NSInteger end;
    NSInteger count() const { return end - first; }
    float (*fromKilograms)(float weight);
    /// Nothing for kilograms, whose values are not rounded to single precision.
    float (*toKilograms)(float weight);
    const char* name;
    const char* comment;
    GXAccessibilityUnit accessibilityUnit;
    GXAccessibilityName accessibilityName;
};

/// In the order of `GXWeightUnit`, which is that of the unit column's rows.
constexpr std::array<WeightUnit, 3> weightUnits = {{
    {15, 350, [](float weight) { return weight; }, nullptr, "kg", "unit kg (kilogram)", GXAccessibilityUnit::Kilogram,
     GXAccessibilityName::Kilograms},
    {34, 771, [](float weight) { return GXUnitConverter::kgToLb(weight); }, [](float weight) { return GXUnitConverter::lbToKg(weight); },
     "lb", "unit lb (pound)", GXAccessibilityUnit::Pound, GXAccessibilityName::Pounds},
    {3, 55, [](float weight) { return GXUnitConverter::kgToSt(weight); }, [](float weight) { return GXUnitConverter::stToKg(weight); },
     "st", "unit st (stones)", GXAccessibilityUnit::Stone, GXAccessibilityName::Stones},
}};

/// The last weight that the wheel of pounds shows.
constexpr float lastPounds = 770.9F;

bool isKnown(GXWeightUnit unit) { return unit < weightUnits.size(); }

/// A unit that is none of these is shown like the last one.
const WeightUnit& rulesOf(GXWeightUnit unit) { return isKnown(unit) ? weightUnits[static_cast<std::size_t>(unit)] : weightUnits.back(); }

GXWeightUnit unitOfRow(NSInteger row) {
    const bool exists = row >= 0 && row < static_cast<NSInteger>(weightUnits.size());
    return exists ? static_cast<GXWeightUnit>(row) : GXWeightUnitKilogram;
}

NSNumber boxedKilograms(double weight, const WeightUnit& unit) {
    if (!unit.toKilograms) return NSNumber::numberWithDouble(weight);
    return NSNumber::numberWithFloat(unit.toKilograms(static_cast<float>(weight)));
}

NSNumber boxedBound(NSInteger weight, const WeightUnit& unit) {
    if (!unit.toKilograms) return NSNumber::numberWithInt(static_cast<std::int32_t>(weight));
    return boxedKilograms(static_cast<double>(weight), unit);
}

std::optional<std::string> nameOfUnit(GXWeightUnit unit) {
    const WeightUnit& rules = rulesOf(unit);
    return GXLocalization::sharedLocalization()->localizedStringWithKey_comment(rules.name, rules.comment);
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
    if (!isKnown(unit)) return;
    setMinValue(boxedBound(rulesOf(unit).first, rulesOf(unit)));
    setMaxValue(boxedBound(rulesOf(unit).end, rulesOf(unit)));
}

void GXWeightPickerView::selectCurrentValue() {
    const Ref<GXBasePickerView> keep = self();
    if (currentValue().floatValue() < minValue().floatValue()) return;
    float weight = rulesOf(weightUnit()).fromKilograms(currentValue().floatValue());
    // Pounds alone are clamped to the wheel; kilograms and stones beyond it keep their value.
    if (weightUnit_ == GXWeightUnitPound && weight > static_cast<float>(rulesOf(GXWeightUnitPound).end)) {
        setCurrentValue(NSNumber::numberWithFloat(GXUnitConverter::lbToKg(lastPounds)));
        weight = lastPounds;
    }
    const float whole = std::floor(weight);
    const auto row = truncateTo<NSInteger>(whole - static_cast<float>(rulesOf(weightUnit()).first));
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
        return rulesOf(weightUnit()).count();
    case separatorComponent:
        return 1;
    case tenthsComponent:
        return 10;
    default:
        return static_cast<NSInteger>(weightUnits.size());
    }
}

std::optional<std::string> GXWeightPickerView::pickerView_titleForRow_forComponent(const Ref<UIPickerView>&, NSInteger row,
                                                                                   NSInteger component) {
    switch (component) {
    case wholeComponent:
        return std::to_string(narrowTo32Bits(wrappingAdd(row, rulesOf(weightUnit()).first)));
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
    const NSInteger whole = wrappingAdd(wholeRow, rulesOf(weightUnit()).first);
    setCurrentValue(boxedKilograms(static_cast<double>(whole) + static_cast<double>(tenths) / 10.0, rulesOf(weightUnit())));
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
        return rulesOf(weightUnit()).accessibilityName;
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
    return accessibilityQuantity(reportedNumber(wholeComponent, reportedTitle(tenthsComponent, at), at), rulesOf(unit).accessibilityUnit);
}

} // namespace gx
