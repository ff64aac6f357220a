#include "GXBasePickerView.h"

#include <algorithm>

#include "GXFontFitting.h"
#include "GXPickerAccessibility.h"
#include "GXStyleSheet.h"
#include "GXValueText.h"
#include "GXWheelCalls.h"
#include "NSArithmetic.h"
#include "NSLayoutConstraint.h"

namespace gx {

namespace {

// A column's width: a single-precision factor on the width of its widest title, and the least that
// a finger hits. Prescribed by the product.
constexpr float widthFactor = 1.8F;
constexpr CGFloat smallestWidth = 50;

} // namespace

bool GXBasePickerView::initWithFrame(CGRect frame) {
    if (!isRestored_ && !UIView::initWithFrame(frame)) return false;
    setUp();
    return true;
}

bool GXBasePickerView::initWithCoder(const Ref<NSCoder>& coder) {
    if (!UIView::initWithCoder(coder)) return false;
    setUp();
    return true;
}

bool GXBasePickerView::initWithFrame_rowHeight(CGRect frame, float rowHeight) {
    givenRowHeight_ = rowHeight;
    return GXBasePickerView::initWithFrame(frame);
}

bool GXBasePickerView::initByFrameWithCoder(const Ref<NSCoder>& coder) {
    isRestored_ = UIView::initWithCoder(coder);
    return isRestored_ && initWithFrame(frame());
}

bool GXBasePickerView::initByFrameWithRowHeight(CGRect frame, float rowHeight) {
    givenRowHeight_ = rowHeight;
    return initWithFrame(frame);
}

void GXBasePickerView::setUp() {
    const Ref<GXBasePickerView> keep = self(); // An application's wheel may drop what made it.
    rowHeight_ = initialRowHeight();
    initGXBasePickerView();
    didInitialize();
}

float GXBasePickerView::initialRowHeight() const {
    return givenRowHeight_ ? *givenRowHeight_ : static_cast<float>(GXStyleSheet::globalStyleSheet()->pickerRowHeight());
}

void GXBasePickerView::initGXBasePickerView() {
    minValue_ = NSNumber::numberWithInt(0);
    maxValue_ = NSNumber::numberWithInt(100);
    stepSize_ = NSNumber::numberWithInt(1);
    currentValue_ = NSNumber::numberWithInt(0);

    const Ref<GXMultiValuePickerView> wheel = GXMultiValuePickerView::wheelWithFrame(bounds());
    setPickerView(wheel);
    wheel->setDelegate(self());
    wheel->setDataSource(self());
    wheel->setTranslatesAutoresizingMaskIntoConstraints(false);
    addSubview(wheel);
    // Not by a format: in a browser's download, reading it would be a part of every picker.
    addConstraints(NSLayoutConstraint::constraintsPinningView_toEdges(
        wheel, {NSLayoutAttribute::Left, NSLayoutAttribute::Right, NSLayoutAttribute::Top, NSLayoutAttribute::Bottom}));
}

void GXBasePickerView::reloadData() {
    const Ref<GXBasePickerView> keep = self();
    // First the rows: the reload gives the labels the fonts that their texts are then measured
    // with.
    reloadAllComponents(pickerView());
    showTexts();
    for (const Ref<GXBasePickerView>& picker : innerPickers()) picker->reloadData();
}

// The value model

void GXBasePickerView::storeBound(NSNumber& bound, NSNumber value) {
    if (value.isIdenticalTo(bound)) return;
    const Ref<GXBasePickerView> keep = self();
    bound = std::move(value);
    reloadAllComponents(pickerView());
    selectCurrentValue();
}

void GXBasePickerView::setMinValue(NSNumber value) { storeBound(minValue_, std::move(value)); }

void GXBasePickerView::setMaxValue(NSNumber value) { storeBound(maxValue_, std::move(value)); }

void GXBasePickerView::setStepSize(NSNumber value) {
    if (value.integerValue() < 1) value = NSNumber::numberWithInteger(1);
    storeBound(stepSize_, std::move(value));
}

void GXBasePickerView::storeStep(std::int32_t& stored, std::int32_t step) const {
    if (step == stored) return;
    stored = step;
    reloadAllComponents(pickerView());
}

void GXBasePickerView::setCurrentValue(NSNumber value) {
    currentValue_ = std::move(value);
    selectCurrentValue();
}

void GXBasePickerView::setClampedValueAndInformDelegate(double value) {
    const Ref<GXBasePickerView> keep = self();
    const double maximum = maxValue().doubleValue();
    const double minimum = minValue().doubleValue();
    if (value > maximum) value = maximum;
    if (value < minimum) value = minimum;
    setCurrentValue(NSNumber::numberWithDouble(value));
    informDelegateOfValueChange();
}

void GXBasePickerView::setCustomValueFont(Ref<GXStyleSheetFont> font) {
    const Ref<GXBasePickerView> keep = self();
    customValueFont_ = font;
    if (const Ref<GXMultiValuePickerView> wheel = pickerView()) wheel->setCustomValueFont(std::move(font));
    reloadAllComponents(pickerView());
}

void GXBasePickerView::setCustomLabelFont(Ref<GXStyleSheetFont> font) {
    const Ref<GXBasePickerView> keep = self();
    customLabelFont_ = font;
    if (const Ref<GXMultiValuePickerView> wheel = pickerView()) wheel->setCustomLabelFont(std::move(font));
    reloadAllComponents(pickerView());
}

NSInteger GXBasePickerView::valueOfRow(NSInteger row) const {
    return wrappingAdd(minValue().integerValue(), wrappingMultiply(stepSize().integerValue(), row));
}

void GXBasePickerView::selectCurrentValue() {
    // The bound is tested as floats but the row counted in integers, so a current value of 0.5
    // above a minimum of 0.7 is below it, while both show row 0.
    if (currentValue().floatValue() < minValue().floatValue()) return;
    const NSInteger distance = wrappingSubtract(currentValue().integerValue(), minValue().integerValue());
    const NSInteger row = quotient(distance, stepSize().integerValue());
    selectRow_inComponent(pickerView(), row, 0);
}

void GXBasePickerView::informDelegateOfValueChange() {
    const Ref<GXBasePickerView> keep = self();
    if (const Ref<GXBasePickerViewDelegate> receiver = delegate().lock()) {
        // The delegate may set another one while it reads this.
        const NSNumber value = currentValue();
        receiver->pickerView_didChangeCurrentValue_forComponent(keep, value, 0);
    }
}

// The current value as a text, and fonts with which the wheel shows all of it

std::string GXBasePickerView::currentValueText() {
    const Ref<GXBasePickerView> keep = self();
    if (const Ref<GXMultiValuePickerView> wheel = pickerView()) {
        return joinedBySpace(textOfSelectedRows(wheel, *this), wheel->rightLabelText().value_or(std::string()));
    }
    std::string text;
    for (const Ref<GXBasePickerView>& picker : innerPickers()) {
        text = joinedByComma(text, picker->currentValueText());
    }
    return text;
}

void GXBasePickerView::addPickersToFit(std::vector<Ref<GXBasePickerView>>& found) {
    if (CGRectIsEmpty(bounds())) return;
    if (pickerView()) found.push_back(self());
    for (const Ref<GXBasePickerView>& picker : innerPickers()) picker->addPickersToFit(found);
}

void GXBasePickerView::sizeFontsToFit() {
    const Ref<GXBasePickerView> keep = self();
    std::vector<Ref<GXBasePickerView>> pickers;
    addPickersToFit(pickers);
    std::vector<Ref<GXMultiValuePickerView>> wheels;
    for (const Ref<GXBasePickerView>& picker : pickers) {
        picker->layoutIfNeeded();
        if (picker->pickerView()) wheels.push_back(picker->pickerView());
    }
    chooseLargestFonts(wheels, [&pickers](const Ref<GXStyleSheetFont>& valueFont, const Ref<GXStyleSheetFont>& labelFont) {
        for (const Ref<GXBasePickerView>& picker : pickers) {
            picker->setCustomValueFont(valueFont);
            picker->setCustomLabelFont(labelFont);
        }
    });
}

CGFloat GXBasePickerView::smallestHeightForWidth(CGFloat) { return fewestRows * CGFloat{rowHeight_}; }

// What the wheel queries

NSInteger GXBasePickerView::numberOfComponentsInPickerView(const Ref<UIPickerView>&) { return 1; }

NSInteger GXBasePickerView::pickerView_numberOfRowsInComponent(const Ref<UIPickerView>&, NSInteger) {
    return quotient(wrappingSubtract(maxValue().integerValue(), minValue().integerValue()), stepSize().integerValue());
}

std::optional<std::string> GXBasePickerView::pickerView_titleForRow_forComponent(const Ref<UIPickerView>&, NSInteger row, NSInteger) {
    return std::to_string(narrowTo32Bits(valueOfRow(row)));
}

CGFloat GXBasePickerView::pickerView_widthForComponent(const Ref<UIPickerView>& pickerView, NSInteger component) {
    const NSInteger rows = pickerView_numberOfRowsInComponent(pickerView, component);
    const auto title = pickerView_titleForRow_forComponent(pickerView, wrappingSubtract<NSInteger>(rows, 1), component);
    // In the label font, although the rows are drawn in the value font: columns keep their widths
    // when only the values are emphasised.
    const Ref<GXStyleSheetFont> font = customLabelFont() ? customLabelFont() : GXStyleSheet::globalStyleSheet()->pickerLabelFont();
    const CGFloat width = title ? sizeWithAttributes(*title, {font ? font->font() : nullptr, std::nullopt}).width : 0;
    return std::max(width * CGFloat{widthFactor}, smallestWidth);
}

CGFloat GXBasePickerView::pickerView_rowHeightForComponent(const Ref<UIPickerView>&, NSInteger) { return CGFloat{rowHeight_}; }

Ref<UIView> GXBasePickerView::pickerView_viewForRow_forComponent_reusingView(const Ref<UIPickerView>& pickerView, NSInteger row,
                                                                             NSInteger component, const Ref<UIView>& view) {
    const Ref<GXBasePickerView> keep = self();
    Ref<UILabel> label = asKindOf<UILabel>(view);
    if (!label) {
        label = create<UILabel>(CGRectNull);
        label->setBackgroundColor(UIColor::clearColor());
    }
    setStyleSheetFont(label, customValueFont() ? customValueFont() : GXStyleSheet::globalStyleSheet()->pickerValueFont());
    if (component == 0) {
        label->setTextAlignment(NSTextAlignmentRight);
    } else {
        const bool isLast = component == numberOfComponentsInPickerView(this->pickerView()) - 1;
        label->setTextAlignment(isLast ? NSTextAlignmentLeft : NSTextAlignmentCenter);
    }
    label->setText(pickerView_titleForRow_forComponent(pickerView, row, component));
    return label;
}

void GXBasePickerView::pickerView_didSelectRow_inComponent(const Ref<UIPickerView>&, NSInteger row, NSInteger) {
    const Ref<GXBasePickerView> keep = self();
    storeCurrentValue(NSNumber::numberWithInteger(valueOfRow(row)));
    informDelegateOfValueChange();
}

// What several pickers of more than one component do

std::optional<std::string> GXBasePickerView::selectedTitle(const Ref<UIPickerView>& pickerView, NSInteger component) {
    const NSInteger row = selectedRowInComponent(pickerView, component);
    return pickerView_titleForRow_forComponent(pickerView, row, component);
}

CGFloat GXBasePickerView::widthOfDigits(const Ref<UIPickerView>& pickerView, NSInteger component) {
    const CGFloat width = GXBasePickerView::pickerView_widthForComponent(pickerView, component);
    return widthWithinAThirdOfWheel(width, pickerView ? pickerView : this->pickerView());
}

// Accessibility texts

std::optional<std::string> GXBasePickerView::pickerView_accessibilityLabelForComponent(const Ref<UIPickerView>&, NSInteger component) {
    const Ref<GXBasePickerView> keep = self();
    return accessibilityLabelText(accessibilityLabel(), accessibilityMeasurement(), accessibilityPartOfComponent(component));
}

std::optional<std::string> GXBasePickerView::pickerView_accessibilityValueForRow_forComponent(const Ref<UIPickerView>& pickerView,
                                                                                              NSInteger row, NSInteger component) {
    return pickerView_titleForRow_forComponent(pickerView, row, component);
}

std::string GXBasePickerView::reportedTitle(NSInteger component, RowInComponent instead) {
    const Ref<GXMultiValuePickerView> wheel = pickerView();
    NSInteger row = 0;
    if (component == instead.component) {
        row = instead.row;
    } else if (wheel) {
        row = wheel->announcedRowInComponent(component);
    }
    return pickerView_titleForRow_forComponent(wheel, row, component).value_or(std::string());
}

GXAccessibilityNumber GXBasePickerView::reportedNumber(NSInteger wholeComponent, std::string fraction, RowInComponent instead) {
    const Ref<GXMultiValuePickerView> wheel = pickerView();
    const Ref<UILabel> separator = wheel ? wheel->separatorAfterComponent(static_cast<NSUInteger>(wholeComponent)) : nullptr;
    std::string between = separator ? separator->text().value_or(std::string()) : std::string();
    return {reportedTitle(wholeComponent, instead), std::move(between), std::move(fraction)};
}

} // namespace gx
