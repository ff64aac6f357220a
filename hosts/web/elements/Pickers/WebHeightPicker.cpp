#include "WebHeightPicker.h"

namespace gx::web {

std::optional<double> WebHeightPicker::get(WebProperty property) const {
    if (property == WebProperty::Metric) return picker_->isMetric() ? 1 : 0;
    if (property == WebProperty::Value) return picker_->heightInCm();
    return std::nullopt;
}

bool WebHeightPicker::set(WebProperty property, double value) {
    if (property == WebProperty::Metric) {
        picker_->setIsMetric(value != 0);
    } else if (property == WebProperty::Value) {
        picker_->setHeightInCm(value);
    } else {
        return false;
    }
    return true;
}

} // namespace gx::web
