#include "WebPickerFactory.h"

#include "WebCompositePickers.h"
#include "WebHeightPicker.h"
#include "WebSinglePicker.h"

namespace gx::web {

namespace {

template <class Picker>
Ref<WebPicker> made() {
    const Ref<Picker> picker = create<Picker>();
    picker->follow();
    return picker;
}

} // namespace

Ref<WebPicker> pickerOfKind(WebPickerKind kind) {
    switch (kind) {
    case WebPickerKind::Number:
        return made<WebSinglePicker<GXBasePickerView>>();
    case WebPickerKind::Bpm:
        return made<WebSinglePicker<GXBpmPickerView>>();
    case WebPickerKind::Calories:
        return made<WebSinglePicker<GXCaloriesPickerView>>();
    case WebPickerKind::Distance:
        return made<WebSinglePicker<GXDistancePickerView>>();
    case WebPickerKind::DistanceAndDuration:
        return made<WebDistanceAndDurationPicker>();
    case WebPickerKind::Duration:
        return made<WebSinglePicker<GXDurationPickerView>>();
    case WebPickerKind::HeartRate:
        return made<WebSinglePicker<GXHeartRatePickerView>>();
    case WebPickerKind::Height:
        return made<WebHeightPicker>();
    case WebPickerKind::Icon:
        return made<WebIconPicker>();
    case WebPickerKind::Pace:
        return made<WebSinglePicker<GXPacePickerView>>();
    case WebPickerKind::Speed:
        return made<WebSinglePicker<GXSpeedPickerView>>();
    case WebPickerKind::Temperature:
        return made<WebSinglePicker<GXTemperaturePickerView>>();
    case WebPickerKind::WeatherAndTemperature:
        return made<WebWeatherAndTemperaturePicker>();
    case WebPickerKind::Weight:
        return made<WebSinglePicker<GXWeightPickerView>>();
    default:
        return nullptr;
    }
}

double valueInIndicator(const WebPicker& picker, WebPickerKind kind, WebProperty property) {
    // A copy comes to rest there, so that the picker's own rules give the value.
    const Ref<WebPicker> copy = pickerOfKind(kind);
    if (!copy) return picker.get(property).value_or(0);
    copy->view()->setFrame(picker.view()->frame());
    picker.copyTo(*copy);
    const std::vector<Ref<UIPickerView>> here = picker.wheels();
    const std::vector<Ref<UIPickerView>> there = copy->wheels();
    for (std::size_t i = 0; i < here.size() && i < there.size(); ++i) {
        for (NSInteger component = 0; component < here[i]->numberOfComponents(); ++component) {
            const NSInteger row = here[i]->rowInSelectionIndicatorOfComponent(component);
            if (row != here[i]->selectedRowInComponent(component)) there[i]->turnToRow_inComponent(row, component);
        }
    }
    return copy->get(property).value_or(0);
}

} // namespace gx::web
