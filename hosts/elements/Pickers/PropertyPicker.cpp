#include "PropertyPicker.h"

namespace gx::elements {

void PropertyPicker::copyTo(PropertyPicker& other) const {
    if (const auto images = icons()) other.setIcons(images);
    for (std::int32_t i = 0; i < static_cast<std::int32_t>(PickerProperty::Count); ++i) {
        const auto property = static_cast<PickerProperty>(i);
        if (const std::optional<double> value = get(property)) other.set(property, *value);
    }
}

void PropertyPicker::pickerView_didChangeCurrentValue_forComponent(const Ref<GXBasePickerView>&, const NSNumber&, NSInteger) {
    if (didChange) didChange();
}

void PropertyPicker::heightPickerView_didSelectHeightInCm_metric(const Ref<GXHeightPickerView>&, CGFloat, bool) {
    if (didChange) didChange();
}

} // namespace gx::elements
