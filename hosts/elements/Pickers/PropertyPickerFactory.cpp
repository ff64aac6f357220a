#include "PropertyPickerFactory.h"

#include "CompositePropertyPickers.h"
#include "HeightPropertyPicker.h"
#include "SinglePropertyPicker.h"

namespace gx::elements {

namespace {

/// Nothing for a kind that is not built: no code of it is needed then.
template <PickerKind kind, class Picker, class Element = SinglePropertyPicker>
Ref<PropertyPicker> single() {
    if constexpr (!isBuilt(kind)) {
        return nullptr;
    } else {
        const Ref<Element> element = create<Element>();
        element->setRules(SinglePropertyPicker::rulesOf<Picker>());
        return element;
    }
}

template <PickerKind kind, class Element>
Ref<PropertyPicker> other() {
    if constexpr (!isBuilt(kind)) {
        return nullptr;
    } else {
        const Ref<Element> element = create<Element>();
        element->becomeDelegate();
        return element;
    }
}

} // namespace

Ref<PropertyPicker> pickerOfKind(PickerKind kind) {
    switch (kind) {
    case PickerKind::Number:
        return single<PickerKind::Number, GXBasePickerView>();
    case PickerKind::Bpm:
        return single<PickerKind::Bpm, GXBpmPickerView>();
    case PickerKind::Calories:
        return single<PickerKind::Calories, GXCaloriesPickerView>();
    case PickerKind::Distance:
        return single<PickerKind::Distance, GXDistancePickerView>();
    case PickerKind::DistanceAndDuration:
        return other<PickerKind::DistanceAndDuration, DistanceAndDurationPropertyPicker>();
    case PickerKind::Duration:
        return single<PickerKind::Duration, GXDurationPickerView>();
    case PickerKind::HeartRate:
        return single<PickerKind::HeartRate, GXHeartRatePickerView>();
    case PickerKind::Height:
        return other<PickerKind::Height, HeightPropertyPicker>();
    case PickerKind::Icon:
        return single<PickerKind::Icon, GXIconPickerView, IconPropertyPicker>();
    case PickerKind::Pace:
        return single<PickerKind::Pace, GXPacePickerView>();
    case PickerKind::Speed:
        return single<PickerKind::Speed, GXSpeedPickerView>();
    case PickerKind::Temperature:
        return single<PickerKind::Temperature, GXTemperaturePickerView>();
    case PickerKind::WeatherAndTemperature:
        return other<PickerKind::WeatherAndTemperature, WeatherAndTemperaturePropertyPicker>();
    case PickerKind::Weight:
        return single<PickerKind::Weight, GXWeightPickerView>();
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
