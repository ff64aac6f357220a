#include "WeatherMeasurements.h"

#include "PickerMeasurement.h"
#include "Translations.h"
#include "WeatherIcons.h"
#include <GXUIPickers/GXTemperaturePickerCell.h>
#include <GXUIPickers/GXWeatherAndTemperaturePickerCell.h>
#include <GXUIPickers/GXWeatherAndTemperaturePickerView.h>

using namespace gx;

namespace gallery {

namespace {

using Weather = PickerMeasurement<GXWeatherAndTemperaturePickerCell, GXWeatherAndTemperaturePickerView>;
using Temperature = PickerMeasurement<GXTemperaturePickerCell, GXTemperaturePickerView>;

void prepareTemperature(GXTemperaturePickerView& picker, const Settings& settings) {
    picker.setIsMetric(settings.isMetric);
    if (picker.stepSize().integerValue() != 1) picker.setStepSize(NSNumber::numberWithInt(1));
}

void configureWeather(GXWeatherAndTemperaturePickerView& picker, const Workout& workout, const Settings& settings) {
    picker.setIsMetric(settings.isMetric);
    picker.weatherPicker()->setAccessibilityLabel(Translations::text("Weather"));
    const auto images = WeatherIcons::images();
    for (std::size_t i = 0; i < images->size(); ++i) (*images)[i]->setAccessibilityLabel(Translations::text(WeatherIcons::name(i)));
    picker.weatherPicker()->setIconImages(images);
    picker.weatherPicker()->setCurrentValue(NSNumber::numberWithInteger(static_cast<NSInteger>(workout.weather)));
    prepareTemperature(*picker.temperaturePicker(), settings);
    picker.temperaturePicker()->setCurrentValue(NSNumber::numberWithDouble(workout.temperature));
}

/// The inner pickers report themselves: the sender tells which value it is.
void takeWeather(Workout& workout, const GXWeatherAndTemperaturePickerView& picker, const Ref<GXBasePickerView>& sender,
                 const NSNumber& value) {
    if (sender == picker.weatherPicker()) workout.weather = static_cast<std::size_t>(value.integerValue());
    if (sender == picker.temperaturePicker()) workout.temperature = value.doubleValue();
}

} // namespace

MeasurementGroup weatherMeasurements(const std::shared_ptr<Workout>& workout, const Settings& settings) {
    return {"Conditions",
            {Weather::measurement("Weather", workout, settings, configureWeather, takeWeather),
             Temperature::measurementOfValue("Water temperature", workout, settings, &Workout::waterTemperature, prepareTemperature)}};
}

} // namespace gallery
