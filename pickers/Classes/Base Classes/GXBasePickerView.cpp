#include "GXBasePickerView.h"

#include <algorithm>

#include "GXFontFitting.h"
#include "GXStyleSheet.h"
#include "GXValueText.h"
#include "GXWheelOrders.h"
#include "NSArithmetic.h"
#include "NSLayoutConstraint.h"

namespace gx {

namespace {

// A column's width: a single-precision factor on the width of its widest title, and the least that a finger hits. Prescribed by the
// product.
constexpr float widthFactor = 1.8F;
constexpr CGFloat smallestWidth = 50;

} // namespace

bool GXBasePickerView::initWithFrame(CGRect frame) {
    if (!UIView::initWithFrame(frame)) return false;
    rowHeight_ = static_cast<float>(GXStyleSheet::globalStyleSheet()->pickerRowHeight());
    initGXBasePickerView();
    return true;
}

bool GXBasePickerView::initWithCoder(const Ref<NSCoder>& coder) {
    if (!UIView::initWithCoder(coder)) return false;
    rowHeight_ = static_cast<float>(GXStyleSheet::globalStyleSheet()->pickerRowHeight());
    initGXBasePickerView();
    return true;
}

bool GXBasePickerView::initWithFrame_rowHeight(CGRect frame, float rowHeight) {
    if (!UIView::initWithFrame(frame)) return false;
    rowHeight_ = rowHeight;
    initGXBasePickerView();
    return true;
}

void GXBasePickerView::initGXBasePickerView() {
    minValue_ = NSNumber::numberWithInt(0);
    maxValue_ = NSNumber::numberWithInt(100);
    stepSize_ = NSNumber::numberWithInt(1);
    currentValue_ = NSNumber::numberWithInt(0);

    const Ref<GXMultiValuePickerView> wheel = GXMultiValuePickerView::wheelWithFrame(bounds());
    pickerView_ = wheel;
    wheel->setDelegate(self());
    wheel->setDataSource(self());
    wheel->setTranslatesAutoresizingMaskIntoConstraints(false);
    addSubview(wheel);
    for (const char* format : {"H:|[_pickerView]|", "V:|[_pickerView]|"}) {
        addConstraints(NSLayoutConstraint::constraintsWithVisualFormat_options_metrics_views(format, 0, {}, {{"_pickerView", wheel}}));
    }
}

// The value model

void GXBasePickerView::storeBound(NSNumber& bound, NSNumber value) {
    if (value.isIdenticalTo(bound)) return;
    const Ref<GXBasePickerView> keep = self();
    bound = std::move(value);
    reloadAllComponents(pickerView_);
    selectCurrentValue();
}

void GXBasePickerView::setMinValue(NSNumber value) { storeBound(minValue_, std::move(value)); }

void GXBasePickerView::setMaxValue(NSNumber value) { storeBound(maxValue_, std::move(value)); }

void GXBasePickerView::setStepSize(NSNumber value) {
    if (value.integerValue() < 1) value = NSNumber::numberWithInteger(1);
    storeBound(stepSize_, std::move(value));
}

void GXBasePickerView::setCurrentValue(NSNumber value) {
    currentValue_ = std::move(value);
    selectCurrentValue();
}

void GXBasePickerView::setCustomValueFont(Ref<GXStyleSheetFont> font) {
    const Ref<GXBasePickerView> keep = self();
    customValueFont_ = std::move(font);
    if (const Ref<GXMultiValuePickerView> wheel = pickerView_) wheel->setCustomValueFont(customValueFont_);
    reloadAllComponents(pickerView_);
}

void GXBasePickerView::setCustomLabelFont(Ref<GXStyleSheetFont> font) {
    const Ref<GXBasePickerView> keep = self();
    customLabelFont_ = std::move(font);
    if (const Ref<GXMultiValuePickerView> wheel = pickerView_) wheel->setCustomLabelFont(customLabelFont_);
    reloadAllComponents(pickerView_);
}

NSInteger GXBasePickerView::valueOfRow(NSInteger row) const {
    return wrappingAdd(minValue_.integerValue(), wrappingMultiply(stepSize_.integerValue(), row));
}

void GXBasePickerView::selectCurrentValue() {
    // The bound is tested as floats but the row counted in integers, so a current value of 0.5 above a minimum of 0.7 is
    // below it, while both stand on row 0.
    if (currentValue_.floatValue() < minValue_.floatValue()) return;
    const NSInteger distance = wrappingSubtract(currentValue_.integerValue(), minValue_.integerValue());
    const NSInteger row = quotient(distance, stepSize_.integerValue());
    selectRow_inComponent(pickerView_, row, 0);
}

void GXBasePickerView::informDelegateOfValueChange() {
    const Ref<GXBasePickerView> keep = self();
    if (const Ref<GXBasePickerViewDelegate> delegate = delegate_.lock()) {
        const NSNumber value = currentValue_; // The delegate may set another one while it reads this.
        delegate->pickerView_didChangeCurrentValue_forComponent(keep, value, 0);
    }
}

// The present value as a text, and fonts with which the wheel shows all of it

std::string GXBasePickerView::currentValueText() {
    const Ref<GXBasePickerView> keep = self();
    if (const Ref<GXMultiValuePickerView> wheel = pickerView_) {
        return joinedBySpace(textOfSelectedRows(wheel, *this), wheel->rightLabelText().value_or(std::string()));
    }
    std::string text;
    for (const Ref<GXBasePickerView>& picker : innerPickers()) {
        const std::string part = picker->currentValueText();
        if (!text.empty() && !part.empty()) text += ", ";
        text += part;
    }
    return text;
}

void GXBasePickerView::addPickersToFit(std::vector<Ref<GXBasePickerView>>& found) {
    if (CGRectIsEmpty(bounds())) return;
    if (pickerView_) found.push_back(self());
    for (const Ref<GXBasePickerView>& picker : innerPickers()) picker->addPickersToFit(found);
}

void GXBasePickerView::sizeFontsToFit() {
    const Ref<GXBasePickerView> keep = self();
    std::vector<Ref<GXBasePickerView>> pickers;
    addPickersToFit(pickers);
    std::vector<Ref<GXMultiValuePickerView>> wheels;
    for (const Ref<GXBasePickerView>& picker : pickers) {
        picker->layoutIfNeeded();
        if (picker->pickerView_) wheels.push_back(picker->pickerView_);
    }
    chooseLargestFonts(wheels, [&pickers](const Ref<GXStyleSheetFont>& valueFont, const Ref<GXStyleSheetFont>& labelFont) {
        for (const Ref<GXBasePickerView>& picker : pickers) {
            picker->setCustomValueFont(valueFont);
            picker->setCustomLabelFont(labelFont);
        }
    });
}

// Answers to the wheel

NSInteger GXBasePickerView::numberOfComponentsInPickerView(const Ref<UIPickerView>&) { return 1; }

NSInteger GXBasePickerView::pickerView_numberOfRowsInComponent(const Ref<UIPickerView>&, NSInteger) {
    return quotient(wrappingSubtract(maxValue_.integerValue(), minValue_.integerValue()), stepSize_.integerValue());
}

std::optional<std::string> GXBasePickerView::pickerView_titleForRow_forComponent(const Ref<UIPickerView>&, NSInteger row, NSInteger) {
    return std::to_string(narrowTo32Bits(valueOfRow(row)));
}

CGFloat GXBasePickerView::pickerView_widthForComponent(const Ref<UIPickerView>& pickerView, NSInteger component) {
    const NSInteger rows = pickerView_numberOfRowsInComponent(pickerView, component);
    const auto title = pickerView_titleForRow_forComponent(pickerView, wrappingSubtract<NSInteger>(rows, 1), component);
    // In the label font, although the rows are drawn in the value font: columns keep their widths when only the values
    // are emphasised.
    const Ref<GXStyleSheetFont> font = customLabelFont_ ? customLabelFont_ : GXStyleSheet::globalStyleSheet()->pickerLabelFont();
    const CGFloat width = title ? sizeWithAttributes(*title, {font ? font->font() : nullptr, std::nullopt}).width : 0;
    return std::max(width * CGFloat{widthFactor}, smallestWidth);
}

CGFloat GXBasePickerView::pickerView_rowHeightForComponent(const Ref<UIPickerView>&, NSInteger) { return CGFloat{rowHeight_}; }

Ref<UIView> GXBasePickerView::pickerView_viewForRow_forComponent_reusingView(const Ref<UIPickerView>& pickerView, NSInteger row,
                                                                             NSInteger component, const Ref<UIView>& view) {
    Ref<UILabel> label = std::dynamic_pointer_cast<UILabel>(view);
    if (!label) {
        label = create<UILabel>(CGRectNull);
        label->setBackgroundColor(UIColor::clearColor());
    }
    setStyleSheetFont(label, customValueFont_ ? customValueFont_ : GXStyleSheet::globalStyleSheet()->pickerValueFont());
    if (component == 0) {
        label->setTextAlignment(NSTextAlignmentRight);
    } else {
        const bool isLast = component == numberOfComponentsInPickerView(pickerView_) - 1;
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

// Answers to a screen reader

std::optional<std::string> GXBasePickerView::pickerView_accessibilityLabelForComponent(const Ref<UIPickerView>&, NSInteger component) {
    return spokenLabel(accessibilityLabel(), spokenMeasurement(), spokenPartOfComponent(component));
}

std::optional<std::string> GXBasePickerView::pickerView_accessibilityValueForRow_forComponent(const Ref<UIPickerView>& pickerView,
                                                                                              NSInteger row, NSInteger component) {
    return pickerView_titleForRow_forComponent(pickerView, row, component);
}

std::string GXBasePickerView::spokenTitle(NSInteger component, SpokenRow row) {
    const NSInteger shown = component == row.component ? row.row : selectedRowInComponent(pickerView_, component);
    return pickerView_titleForRow_forComponent(pickerView_, shown, component).value_or(std::string());
}

GXSpokenNumber GXBasePickerView::spokenNumber(NSInteger wholeComponent, std::string fraction, SpokenRow row) {
    const Ref<GXMultiValuePickerView> wheel = pickerView_;
    const Ref<UILabel> separator = wheel ? wheel->separatorAfterComponent(static_cast<NSUInteger>(wholeComponent)) : nullptr;
    std::string between = separator ? separator->text().value_or(std::string()) : std::string();
    return {spokenTitle(wholeComponent, row), std::move(between), std::move(fraction)};
}

} // namespace gx
