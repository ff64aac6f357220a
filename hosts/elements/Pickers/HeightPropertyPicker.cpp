#include "HeightPropertyPicker.h"

#include <algorithm>

#include <GXUIPickers/GXStyleSheet.h>

namespace gx::elements {

namespace {

/// What feet, inches and the unit need side by side at a scale of 1, in points; measured.
constexpr CGFloat usualWidth = 190;

} // namespace

double HeightWheel::scale() const {
    const double wanted = GXStyleSheet::globalStyleSheet()->textScale();
    return std::min(wanted, std::max(bounds().size.width / usualWidth, 1.0));
}

CGFloat HeightWheel::pickerView_widthForComponent(const Ref<UIPickerView>& pickerView, NSInteger component) {
    return scale() * GXHeightPickerView::pickerView_widthForComponent(pickerView, component);
}

CGFloat HeightWheel::pickerView_rowHeightForComponent(const Ref<UIPickerView>& pickerView, NSInteger component) {
    return scale() * GXHeightPickerView::pickerView_rowHeightForComponent(pickerView, component);
}

Ref<NSAttributedString> HeightWheel::styleString(std::optional<std::string> text) const {
    if (!text) return nullptr;
    const UIColor color = GXStyleSheet::globalStyleSheet()->pickerValueFont()->color();
    return NSAttributedString::attributedStringWithString_attributes(*std::move(text), {nullptr, color});
}

Ref<UIFont> HeightWheel::titleFont() {
    const Ref<GXStyleSheet> styleSheet = GXStyleSheet::globalStyleSheet();
    const Ref<GXStyleSheetFont> font = styleSheet->pickerValueFont();
    const double relativeScale = scale() / styleSheet->textScale();
    if (relativeScale == 1) return font->font();
    if (fittedFrom_ != font->font() || fittedScale_ != relativeScale) {
        fittedFrom_ = font->font();
        fittedScale_ = relativeScale;
        fittedFont_ = GXStyleSheetFont::fontWithFamily_size_weight_color(font->familyName(), relativeScale * font->pointSize(),
                                                                         font->weight(), font->color())
                          ->font();
    }
    return fittedFont_;
}

// The properties

std::optional<double> HeightPropertyPicker::get(PickerProperty property) const {
    if (property == PickerProperty::Metric) return picker_->isMetric() ? 1 : 0;
    if (property == PickerProperty::Value) return picker_->heightInCm();
    return std::nullopt;
}

bool HeightPropertyPicker::set(PickerProperty property, double value) {
    if (property == PickerProperty::Metric) {
        picker_->setIsMetric(value != 0);
    } else if (property == PickerProperty::Value) {
        picker_->setHeightInCm(value);
    } else {
        return false;
    }
    return true;
}

} // namespace gx::elements
