#include "GalleryMeasurements.h"
#include "WheelReading.h"
#include <GXUIPickers/GXCaloriesPickerCell.h>
#include <GXUIPickers/GXCaloriesPickerView.h>
#include <GXUIPickers/GXDistanceAndDurationCell.h>
#include <GXUIPickers/GXDistanceAndDurationPicker.h>
#include <GXUIPickers/GXSpeedPickerCell.h>
#include <GXUIPickers/GXSpeedPickerView.h>

using namespace gx;

namespace gallery {

namespace {

using DistanceAndDuration = GalleryPickerMeasurement<GXDistanceAndDurationCell, GXDistanceAndDurationPicker>;
using Speed = GalleryPickerMeasurement<GXSpeedPickerCell, GXSpeedPickerView>;
using Calories = GalleryPickerMeasurement<GXCaloriesPickerCell, GXCaloriesPickerView>;

void configureBoth(GXDistanceAndDurationPicker& picker, const GalleryWorkout& workout, const GallerySettings& settings) {
    picker.setIsMetric(settings.isMetric);
    picker.distancePicker()->setCurrentValue(NSNumber::numberWithDouble(workout.distance));
    picker.durationPicker()->setCurrentValue(NSNumber::numberWithDouble(workout.duration));
}

/// The inner pickers report themselves: who has sent it tells what it is.
void takeEither(GalleryWorkout& workout, const GXDistanceAndDurationPicker& picker, const Ref<GXBasePickerView>& sender,
                const NSNumber& value) {
    if (sender == picker.distancePicker()) workout.distance = value.doubleValue();
    if (sender == picker.durationPicker()) workout.duration = value.doubleValue();
}

std::string bothInWords(const Ref<GXDistanceAndDurationPicker>& picker) {
    return WheelReading::amountOnWheel(picker->distancePicker()) + ", " + WheelReading::clockOnWheel(picker->durationPicker()) + " h";
}

void prepareSpeed(GXSpeedPickerView& picker, const GallerySettings& settings) { picker.setIsMetric(settings.isMetric); }

std::string speedInWords(const Ref<GXSpeedPickerView>& picker) { return WheelReading::amountOnWheel(picker); }

std::string caloriesInWords(const Ref<GXCaloriesPickerView>& picker) { return WheelReading::amountOnWheel(picker); }

} // namespace

GalleryMeasurementGroup workoutMeasurements(const std::shared_ptr<GalleryWorkout>& workout, const GallerySettings& settings) {
    return {"Workout",
            {DistanceAndDuration::measurement("Distance and time", workout, settings, configureBoth, takeEither, bothInWords),
             Speed::measurementOfValue("Average speed", workout, settings, &GalleryWorkout::speed, prepareSpeed, speedInWords),
             Calories::measurementOfValue("Calories", workout, settings, &GalleryWorkout::calories, nullptr, caloriesInWords)}};
}

} // namespace gallery
