#include "WheelReading.h"

#include <GXUIPickers/UILabel.h>

using namespace gx;

namespace gallery {

std::string WheelReading::numberOnWheel(const Ref<GXBasePickerView>& picker) {
    const auto wheel = picker ? picker->pickerView() : nullptr;
    if (!wheel) return "";
    std::string words;
    const NSInteger count = wheel->numberOfComponents();
    for (NSInteger component = 0; component < count; ++component) {
        const NSInteger row = wheel->selectedRowInComponent(component);
        words += picker->pickerView_titleForRow_forComponent(wheel, row, component).value_or("");
        const auto separator = wheel->separatorAfterComponent(static_cast<NSUInteger>(component));
        if (separator && component + 1 < count) words += separator->text().value_or("");
    }
    return words;
}

std::string WheelReading::clockOnWheel(const Ref<GXBasePickerView>& picker) {
    const std::string clock = numberOnWheel(picker);
    const bool hasZero = clock.size() > 1 && clock[0] == '0' && clock[1] != ':';
    return hasZero ? clock.substr(1) : clock;
}

std::string WheelReading::amountOnWheel(const Ref<GXBasePickerView>& picker) {
    const auto wheel = picker ? picker->pickerView() : nullptr;
    const std::string unit = wheel ? wheel->rightLabelText().value_or("") : "";
    const std::string number = numberOnWheel(picker);
    return unit.empty() ? number : number + " " + unit;
}

} // namespace gallery
