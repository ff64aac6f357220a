#include "PropertyPickerFactory.h"

#include "CompositePropertyPickers.h"
#include "HeightPropertyPicker.h"
#include "SinglePropertyPicker.h"

namespace gx::elements {

namespace {

template <class Picker>
Ref<PropertyPicker> made() {
    const Ref<Picker> picker = create<Picker>();
    picker->follow();
    return picker;
}

} // namespace

Ref<PropertyPicker> pickerOfKind(PickerKind kind) {
    switch (kind) {
    case PickerKind::Number:
        return made<SinglePropertyPicker<GXBasePickerView>>();
    case PickerKind::Bpm:
        return made<SinglePropertyPicker<GXBpmPickerView>>();
    case PickerKind::Calories:
        return made<SinglePropertyPicker<GXCaloriesPickerView>>();
    case PickerKind::Distance:
        return made<SinglePropertyPicker<GXDistancePickerView>>();
    case PickerKind::DistanceAndDuration:
        return made<DistanceAndDurationPropertyPicker>();
    case PickerKind::Duration:
        return made<SinglePropertyPicker<GXDurationPickerView>>();
    case PickerKind::HeartRate:
        return made<SinglePropertyPicker<GXHeartRatePickerView>>();
    case PickerKind::Height:
        return made<HeightPropertyPicker>();
    case PickerKind::Icon:
        return made<IconPropertyPicker>();
    case PickerKind::Pace:
        return made<SinglePropertyPicker<GXPacePickerView>>();
    case PickerKind::Speed:
        return made<SinglePropertyPicker<GXSpeedPickerView>>();
    case PickerKind::Temperature:
        return made<SinglePropertyPicker<GXTemperaturePickerView>>();
    case PickerKind::WeatherAndTemperature:
        return made<WeatherAndTemperaturePropertyPicker>();
    case PickerKind::Weight:
        return made<SinglePropertyPicker<GXWeightPickerView>>();
    default:
        return nullptr;
    }
}

double valueInIndicator(const PropertyPicker& picker, PickerKind kind, PickerProperty property) {
    // A copy comes to rest there, so that the picker's own rules give the value.
    const Ref<PropertyPicker> copy = pickerOfKind(kind);
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

} // namespace gx::elements
