#include "WebPicker.h"

namespace gx::web {

void WebPicker::copyTo(WebPicker& other) const {
    if (const auto images = icons()) other.setIcons(images);
    for (std::int32_t i = 0; i < static_cast<std::int32_t>(WebProperty::Count); ++i) {
        const auto property = static_cast<WebProperty>(i);
        if (const std::optional<double> value = get(property)) other.set(property, *value);
    }
}

void WebPicker::pickerView_didChangeCurrentValue_forComponent(const Ref<GXBasePickerView>&, const NSNumber&, NSInteger) {
    if (didChange) didChange();
}

void WebPicker::heightPickerView_didSelectHeightInCm_metric(const Ref<GXHeightPickerView>&, CGFloat, bool) {
    if (didChange) didChange();
}

} // namespace gx::web
