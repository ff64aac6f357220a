#include "GXHeightPickerView.h"

#include <algorithm>
#include <cmath>

#include "GXLocalization.h"
#include "GXPickerAccessibility.h"
#include "GXStyleSheet.h"
#include "GXValueText.h"
#include "NSArithmetic.h"
#include "UITextEngine.h"

namespace gx {

namespace {

// The rows: 120 to 220 cm, 4 to 6 feet, 0 to 11 inches.
constexpr NSInteger lowestCentimetres = 120;
constexpr NSInteger centimetreRows = 101;
constexpr NSInteger lowestFeet = 4;
constexpr NSInteger feetRows = 3;
constexpr NSInteger inchRows = 12;
constexpr NSInteger unitRows = 2;
constexpr NSInteger unitRowMetric = 0;
constexpr NSInteger unitRowImperial = 1;
constexpr NSInteger metricUnitComponent = 1;
constexpr NSInteger imperialUnitComponent = 2;

// In points, at every text size. Prescribed by the product.
constexpr CGFloat centimetreWidth = 100;
constexpr CGFloat otherWidth = 60;
constexpr CGFloat standardRowHeight = 40;

// What is shown without a height: 180 cm, or 5 feet 10 inches.
constexpr NSInteger defaultCentimetreRow = 60;
constexpr NSInteger defaultFeetRow = 1;
constexpr NSInteger defaultInchRow = 10;

// 1 / 30.48 and 1 / 2.54, to as many digits as the product prescribes.
constexpr double feetPerCentimetre = 0.032808399;
constexpr double inchesPerCentimetre = 0.393700787;
constexpr double inchesPerFoot = 12;
// Back to centimetres in single precision.
constexpr float centimetresPerFoot = 30.48F;
constexpr float centimetresPerInch = 2.54F;

} // namespace

bool GXHeightPickerView::initWithFrame(CGRect frame) {
    if (!UIPickerView::initWithFrame(frame)) return false;
    setupSelf();
    return true;
}

void GXHeightPickerView::awakeFromNib() {
    UIPickerView::awakeFromNib();
    setupSelf();
}

GXHeightPickerView::~GXHeightPickerView() {
    // What is left of the wheel must not query this part of it any more.
    UIPickerView::setDataSource({});
    UIPickerView::setDelegate({});
}

void GXHeightPickerView::setupSelf() {
    const Ref<GXHeightPickerView> keep = refTo(this);
    setDataSource(refTo(this));
    setDelegate(refTo(this));
    setTintColor(UIColor::blackColor());
}

void GXHeightPickerView::tintColorDidChange() {
    UIPickerView::tintColorDidChange();
    UIPickerView::reloadAllComponents();
}

// The height

void GXHeightPickerView::setHeightInCm(CGFloat height) {
    heightInCm_ = height;
    reload();
}

void GXHeightPickerView::setIsMetric(bool isMetric) {
    if (isMetric != isMetric_) exchangeComponents(metricUnitComponent, imperialUnitComponent);
    isMetric_ = isMetric;
    titleFont_ = nullptr; // Other columns, other titles.
    reload();
}

void GXHeightPickerView::reloadData() {
    titleFont_ = nullptr; // The unit's names may be longer.
    reloadAllComponents();
}

void GXHeightPickerView::reload() {
    const Ref<GXHeightPickerView> keep = refTo(this);
    // The rows are requested before the wheel knows the new columns. It keeps the requests, so that
    // the right rows appear with the reload.
    calculatePickerValues();
    reloadAllComponents();
    performSelectorOnMainThread_waitUntilDone(&GXHeightPickerView::reload2ndStage, false);
}

void GXHeightPickerView::reload2ndStage() {
    if (isMetric()) {
        selectRow_inComponent_animated(unitRowMetric, metricUnitComponent, false);
    } else {
        selectRow_inComponent_animated(unitRowImperial, imperialUnitComponent, false);
    }
}

void GXHeightPickerView::calculatePickerValues() {
    const Ref<GXHeightPickerView> keep = refTo(this);
    if (isMetric()) {
        const bool isGiven = heightInCm() > 0;
        const auto row = truncateTo<NSInteger>(heightInCm() - static_cast<double>(lowestCentimetres));
        selectRow_inComponent_animated(isGiven ? row : defaultCentimetreRow, 0, false);
        return;
    }
    NSInteger feetRow = defaultFeetRow;
    NSInteger inchRow = defaultInchRow;
    if (heightInCm() >= static_cast<double>(lowestCentimetres)) { // False for what is no number.
        const double feet = std::floor(heightInCm() * feetPerCentimetre);
        if (feet < lowestFeet) {
            feetRow = inchRow = 0;
        } else if (feet < lowestFeet + feetRows) {
            feetRow = truncateTo<NSInteger>(feet) - lowestFeet;
            // Up to 12, which the wheel shows as 11: 182 cm read 5 feet 11 inches and not 6 feet.
            inchRow = truncateTo<NSInteger>(std::round(heightInCm() * inchesPerCentimetre - feet * inchesPerFoot));
        } else {
            feetRow = feetRows - 1;
            inchRow = inchRows - 1;
        }
    }
    selectRow_inComponent_animated(feetRow, 0, false);
    selectRow_inComponent_animated(inchRow, 1, false);
}

void GXHeightPickerView::recalculateHeight() {
    const Ref<GXHeightPickerView> keep = refTo(this);
    if (isMetric()) {
        setHeightInCm(static_cast<CGFloat>(wrappingAdd(selectedRowInComponent(0), lowestCentimetres)));
    } else {
        const float feet = static_cast<float>(wrappingAdd(selectedRowInComponent(0), lowestFeet)) * centimetresPerFoot;
        const float inches = static_cast<float>(selectedRowInComponent(1)) * centimetresPerInch;
        const float height = feet + inches;
        setHeightInCm(CGFloat{height});
    }
    if (const Ref<GXHeightPickerViewDelegate> receiver = heightDelegate().lock()) {
        receiver->heightPickerView_didSelectHeightInCm_metric(keep, heightInCm(), isMetric());
    }
}

Ref<NSAttributedString> GXHeightPickerView::styleString(std::optional<std::string> text) const {
    if (!text) return nullptr;
    return NSAttributedString::attributedStringWithString_attributes(*std::move(text), {nullptr, tintColor()});
}

Ref<UIFont> GXHeightPickerView::titleFont() {
    const double scale = GXStyleSheet::globalStyleSheet()->textScale();
    if (scale == 1) return UIPickerView::titleFont();
    if (!titleFont_ || titleScale_ != scale) titleFont_ = scaledTitleFont(scale);
    titleScale_ = scale;
    return titleFont_;
}

Ref<UIFont> GXHeightPickerView::scaledTitleFont(double scale) {
    const Ref<UIFont> font = UIPickerView::titleFont();
    const Ref<UITextEngine> engine = UITextEngine::shared();
    double fitting = scale;
    for (NSInteger component = 0; component < numberOfComponentsInPickerView(nullptr); ++component) {
        const CGFloat width = pickerView_widthForComponent(nullptr, component);
        for (NSInteger row = 0; row < pickerView_numberOfRowsInComponent(nullptr, component); ++row) {
            const std::optional<std::string> title = titleOfRow(row, shownIn(component));
            const CGSize size = title ? engine->sizeOfText_font(*title, *font) : CGSize{};
            if (size.width > 0 && size.height > 0) fitting = std::min({fitting, width / size.width, standardRowHeight / size.height});
        }
    }
    return UIFont::systemFontOfSize_weight(std::floor(fitting * font->pointSize()), font->weight());
}

std::string GXHeightPickerView::currentValueText() {
    const Ref<GXHeightPickerView> keep = refTo(this);
    const auto titleOf = [this](NSInteger component) {
        return titleOfRow(selectedRowInComponent(component), shownIn(component)).value_or(std::string());
    };
    if (!isMetric()) return joinedBySpace(titleOf(0), titleOf(1));
    // The row of the unit follows only in a later pass of the run loop.
    return joinedBySpace(titleOf(0), titleOfRow(unitRowMetric, Shown::Unit).value_or(std::string()));
}

// What the wheel queries

GXHeightPickerView::Shown GXHeightPickerView::shownIn(NSInteger component) const {
    if (component == 0) return isMetric() ? Shown::Centimetres : Shown::Feet;
    return component == 1 && !isMetric() ? Shown::Inches : Shown::Unit;
}

std::optional<std::string> GXHeightPickerView::titleOfRow(NSInteger row, Shown shown) const {
    switch (shown) {
    case Shown::Centimetres:
        return std::to_string(narrowTo32Bits(wrappingAdd(row, lowestCentimetres)));
    case Shown::Feet:
        return std::to_string(narrowTo32Bits(wrappingAdd(row, lowestFeet))) + "'";
    case Shown::Inches:
        return std::to_string(narrowTo32Bits(row)) + "\"";
    case Shown::Unit:
        break;
    }
    const Ref<GXLocalization> localization = GXLocalization::sharedLocalization();
    return row == unitRowMetric ? localization->localizedStringWithKey_comment("cm", "unit cm (centimeter)")
                                : localization->localizedStringWithKey_comment("ft", "unit ft (feet)");
}

NSInteger GXHeightPickerView::numberOfComponentsInPickerView(const Ref<UIPickerView>&) { return isMetric() ? 2 : 3; }

NSInteger GXHeightPickerView::pickerView_numberOfRowsInComponent(const Ref<UIPickerView>&, NSInteger component) {
    switch (shownIn(component)) {
    case Shown::Centimetres:
        return centimetreRows;
    case Shown::Feet:
        return feetRows;
    case Shown::Inches:
        return inchRows;
    case Shown::Unit:
        break;
    }
    return unitRows;
}

CGFloat GXHeightPickerView::pickerView_widthForComponent(const Ref<UIPickerView>&, NSInteger component) {
    return shownIn(component) == Shown::Centimetres ? centimetreWidth : otherWidth;
}

CGFloat GXHeightPickerView::pickerView_rowHeightForComponent(const Ref<UIPickerView>&, NSInteger) { return standardRowHeight; }

Ref<NSAttributedString> GXHeightPickerView::pickerView_attributedTitleForRow_forComponent(const Ref<UIPickerView>&, NSInteger row,
                                                                                          NSInteger component) {
    return styleString(titleOfRow(row, shownIn(component)));
}

void GXHeightPickerView::pickerView_didSelectRow_inComponent(const Ref<UIPickerView>&, NSInteger row, NSInteger component) {
    const Ref<GXHeightPickerView> keep = refTo(this);
    if (component == (isMetric() ? metricUnitComponent : imperialUnitComponent)) {
        setIsMetric(row == unitRowMetric);
        calculatePickerValues();
    }
    recalculateHeight();
}

// Accessibility texts

std::optional<std::string> GXHeightPickerView::pickerView_accessibilityLabelForComponent(const Ref<UIPickerView>&, NSInteger component) {
    const auto partOf = [](Shown shown) {
        switch (shown) {
        case Shown::Centimetres:
            return GXAccessibilityName::Centimetres;
        case Shown::Feet:
            return GXAccessibilityName::Feet;
        case Shown::Inches:
            return GXAccessibilityName::Inches;
        case Shown::Unit:
            break;
        }
        return GXAccessibilityName::Unit;
    };
    return accessibilityLabelText(accessibilityLabel(), GXAccessibilityName::Height, partOf(shownIn(component)));
}

std::optional<std::string> GXHeightPickerView::pickerView_accessibilityValueForRow_forComponent(const Ref<UIPickerView>&, NSInteger row,
                                                                                                NSInteger component) {
    const auto rowOf = [this, row, component](NSInteger index) { return index == component ? row : announcedRowInComponent(index); };
    if (isMetric()) return accessibilitySum({{wrappingAdd(rowOf(0), lowestCentimetres), GXAccessibilityUnit::Centimetre}});
    return accessibilitySum({{wrappingAdd(rowOf(0), lowestFeet), GXAccessibilityUnit::Foot}, {rowOf(1), GXAccessibilityUnit::Inch}});
}

} // namespace gx
