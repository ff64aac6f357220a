#include "GXWeightPickerView.h"

#include <cmath>

#include "GXLocalization.h"
#include "GXUnitConverter.h"
#include "GXWheelOrders.h"
#include "NSArithmetic.h"
#include "NSLocale.h"

namespace gx {

namespace {

constexpr NSInteger wholeColumn = 0;
constexpr NSInteger separatorColumn = 1;
constexpr NSInteger tenthsColumn = 2;
constexpr NSInteger unitColumn = 3;

// What the product prescribes for the columns.
constexpr CGFloat separatorWidth = 3;
constexpr CGFloat tenthsWidth = 20;
constexpr CGFloat unitWidth = 60;

// No wheel of pounds reaches 771, and this is the last weight that it shows.
constexpr float endOfPounds = 771.0F;
constexpr float lastPounds = 770.9F;

/// The whole numbers that the first column offers: `rows` of them, from `first` upward.
struct WholeNumbers {
    NSInteger rows;
    NSInteger first;
};

WholeNumbers wholeNumbersOf(GXWeightUnit unit) {
    switch (unit) {
    case GXWeightUnitKilogram:
        return {335, 15};
    case GXWeightUnitPound:
        return {737, 34};
    default:
        return {52, 3};
    }
}

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

GXSpokenUnit spokenUnit(GXWeightUnit unit) {
    if (unit == GXWeightUnitKilogram) return GXSpokenUnit::Kilogram;
    return unit == GXWeightUnitPound ? GXSpokenUnit::Pound : GXSpokenUnit::Stone;
}

GXSpokenName spokenNameOfUnit(GXWeightUnit unit) {
    if (unit == GXWeightUnitKilogram) return GXSpokenName::Kilograms;
    return unit == GXWeightUnitPound ? GXSpokenName::Pounds : GXSpokenName::Stones;
}

bool isKnown(GXWeightUnit unit) { return unit <= GXWeightUnitStone; }

GXWeightUnit unitOfRow(NSInteger row) {
    if (row == 1) return GXWeightUnitPound;
    return row == 2 ? GXWeightUnitStone : GXWeightUnitKilogram;
}

} // namespace

bool GXWeightPickerView::initWithFrame(CGRect frame) {
    if (!GXBasePickerView::initWithFrame(frame)) return false;
    initGXWeightPickerView();
    return true;
}

bool GXWeightPickerView::initWithCoder(const Ref<NSCoder>& coder) {
    if (!GXBasePickerView::initWithCoder(coder)) return false;
    initGXWeightPickerView();
    return true;
}

bool GXWeightPickerView::initWithFrame_rowHeight(CGRect frame, float rowHeight) {
    if (!GXBasePickerView::initWithFrame_rowHeight(frame, rowHeight)) return false;
    initGXWeightPickerView();
    return true;
}

void GXWeightPickerView::initGXWeightPickerView() {
    setWeightUnitSelectable(false);
    updateMinMaxWeight();
    setSeparatorText_afterComponent(pickerView(), NSLocale::currentLocale()->objectForKey(NSLocaleDecimalSeparator), wholeColumn);
    reloadAllComponents(pickerView());
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
    if (weightUnitSelectable_) {
        setRightLabelText(pickerView(), std::nullopt);
    } else if (isKnown(weightUnit_)) {
        setRightLabelText(pickerView(), nameOfUnit(weightUnit_));
    }
}

void GXWeightPickerView::updateMinMaxWeight() {
    const Ref<GXBasePickerView> keep = self();
    switch (weightUnit_) {
    case GXWeightUnitKilogram:
        setMinValue(NSNumber::numberWithInt(15));
        setMaxValue(NSNumber::numberWithInt(350));
        break;
    case GXWeightUnitPound:
        setMinValue(NSNumber::numberWithFloat(GXUnitConverter::lbToKg(34.0F)));
        setMaxValue(NSNumber::numberWithFloat(GXUnitConverter::lbToKg(endOfPounds)));
        break;
    case GXWeightUnitStone:
        setMinValue(NSNumber::numberWithFloat(GXUnitConverter::stToKg(3.0F)));
        setMaxValue(NSNumber::numberWithFloat(GXUnitConverter::stToKg(55.0F)));
        break;
    }
}

void GXWeightPickerView::selectCurrentValue() {
    const Ref<GXBasePickerView> keep = self();
    if (currentValue().floatValue() < minValue().floatValue()) return;
    float weight = weightInUnit(currentValue().floatValue(), weightUnit_);
    // Pounds alone are held to the wheel; kilograms and stones beyond it keep their value.
    if (weightUnit_ == GXWeightUnitPound && weight > endOfPounds) {
        setCurrentValue(NSNumber::numberWithFloat(GXUnitConverter::lbToKg(lastPounds)));
        weight = lastPounds;
    }
    const float whole = std::floor(weight);
    const auto row = truncateTo<NSInteger>(whole - static_cast<float>(wholeNumbersOf(weightUnit_).first));
    // A fraction of 0.95 or more is tenth 10, which the wheel shows as 9: 72.96 kg reads 72.9 and not 73.0.
    const auto tenth = truncateTo<NSInteger>(std::round((weight - whole) * 10.0F));
    selectRow_inComponent(pickerView(), row, wholeColumn);
    selectRow_inComponent(pickerView(), tenth, tenthsColumn);
    if (weightUnitSelectable_ && isKnown(weightUnit_)) {
        selectRow_inComponent(pickerView(), static_cast<NSInteger>(weightUnit_), unitColumn);
    }
}

// Answers to the wheel

NSInteger GXWeightPickerView::numberOfComponentsInPickerView(const Ref<UIPickerView>&) { return weightUnitSelectable_ ? 4 : 3; }

NSInteger GXWeightPickerView::pickerView_numberOfRowsInComponent(const Ref<UIPickerView>&, NSInteger component) {
    switch (component) {
    case wholeColumn:
        return wholeNumbersOf(weightUnit_).rows;
    case separatorColumn:
        return 1;
    case tenthsColumn:
        return 10;
    default:
        return 3;
    }
}

std::optional<std::string> GXWeightPickerView::pickerView_titleForRow_forComponent(const Ref<UIPickerView>&, NSInteger row,
                                                                                   NSInteger component) {
    switch (component) {
    case wholeColumn:
        return std::to_string(narrowTo32Bits(wrappingAdd(row, wholeNumbersOf(weightUnit_).first)));
    case tenthsColumn:
        return std::to_string(narrowTo32Bits(row));
    case unitColumn:
        if (const auto name = nameOfUnit(unitOfRow(row))) return "  " + *name; // Apart from the tenths.
        return std::nullopt;
    default:
        return std::nullopt;
    }
}

CGFloat GXWeightPickerView::pickerView_widthForComponent(const Ref<UIPickerView>& pickerView, NSInteger component) {
    switch (component) {
    case wholeColumn:
        return widthWithinAThirdOfWheel(GXBasePickerView::pickerView_widthForComponent(pickerView, wholeColumn), this->pickerView());
    case separatorColumn:
        return separatorWidth;
    case unitColumn:
        return unitWidth;
    default:
        return tenthsWidth;
    }
}

// The user's turns

void GXWeightPickerView::storeWeight(NSInteger wholeRow, NSInteger tenths) {
    const NSInteger whole = wrappingAdd(wholeRow, wholeNumbersOf(weightUnit_).first);
    setCurrentValue(boxedKilograms(static_cast<double>(whole) + static_cast<double>(tenths) / 10.0, weightUnit_));
}

void GXWeightPickerView::pickerView_didSelectRow_inComponent(const Ref<UIPickerView>&, NSInteger row, NSInteger component) {
    const Ref<GXBasePickerView> keep = self();
    switch (component) {
    case wholeColumn:
        storeWeight(row, selectedRowInComponent(pickerView(), tenthsColumn));
        break;
    case tenthsColumn:
        storeWeight(selectedRowInComponent(pickerView(), wholeColumn), row);
        break;
    case unitColumn:
        setWeightUnit(unitOfRow(row));
        reloadComponent(pickerView(), wholeColumn);
        selectCurrentValue();
        break;
    default:
        break;
    }
    informDelegateOfValueChange();
}

// Answers to a screen reader

std::optional<GXSpokenName> GXWeightPickerView::spokenPartOfComponent(NSInteger component) {
    switch (component) {
    case wholeColumn:
        return spokenNameOfUnit(weightUnit_);
    case tenthsColumn:
        return GXSpokenName::Tenths;
    case unitColumn:
        return GXSpokenName::Unit;
    default:
        return std::nullopt;
    }
}

std::optional<std::string> GXWeightPickerView::pickerView_accessibilityValueForRow_forComponent(const Ref<UIPickerView>&, NSInteger row,
                                                                                                NSInteger component) {
    const SpokenRow at = {row, component};
    const GXWeightUnit unit = component == unitColumn ? unitOfRow(row) : weightUnit_;
    return spokenQuantity(spokenNumber(wholeColumn, spokenTitle(tenthsColumn, at), at), spokenUnit(unit));
}

} // namespace gx
