#include "HeightPropertyPicker.h"

namespace gx::elements {

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
