#include "WorkoutMeasurements.h"

#include "PickerMeasurement.h"
#include <GXUIPickers/GXCaloriesPickerCell.h>
#include <GXUIPickers/GXCaloriesPickerView.h>
#include <GXUIPickers/GXDistanceAndDurationCell.h>
#include <GXUIPickers/GXDistanceAndDurationPicker.h>
#include <GXUIPickers/GXDistancePickerCell.h>
#include <GXUIPickers/GXDurationPickerCell.h>
#include <GXUIPickers/GXPacePickerCell.h>
#include <GXUIPickers/GXPacePickerView.h>
#include <GXUIPickers/GXSpeedPickerCell.h>
#include <GXUIPickers/GXSpeedPickerView.h>

using namespace gx;

namespace gallery {

namespace {

using DistanceAndDuration = PickerMeasurement<GXDistanceAndDurationCell, GXDistanceAndDurationPicker>;
using Speed = PickerMeasurement<GXSpeedPickerCell, GXSpeedPickerView>;
using Calories = PickerMeasurement<GXCaloriesPickerCell, GXCaloriesPickerView>;
using Distance = PickerMeasurement<GXDistancePickerCell, GXDistancePickerView>;
using Duration = PickerMeasurement<GXDurationPickerCell, GXDurationPickerView>;
using Pace = PickerMeasurement<GXPacePickerCell, GXPacePickerView>;

void configureBoth(GXDistanceAndDurationPicker& picker, const Workout& workout, const Settings& settings) {
    picker.setIsMetric(settings.isMetric);
    picker.distancePicker()->setCurrentValue(NSNumber::numberWithDouble(workout.distance));
    picker.durationPicker()->setCurrentValue(NSNumber::numberWithDouble(workout.duration));
}

/// The inner pickers report themselves: the sender tells which value it is.
void takeEither(Workout& workout, const GXDistanceAndDurationPicker& picker, const Ref<GXBasePickerView>& sender, const NSNumber& value) {
    if (sender == picker.distancePicker()) workout.distance = value.doubleValue();
    if (sender == picker.durationPicker()) workout.duration = value.doubleValue();
}

void prepareSpeed(GXSpeedPickerView& picker, const Settings& settings) { picker.setIsMetric(settings.isMetric); }

void prepareDistance(GXDistancePickerView& picker, const Settings& settings) {
    picker.setIsMetric(settings.isMetric);
    picker.setNumberOfFractionUnits(2);
}

void prepareDuration(GXDurationPickerView& picker, const Settings&) {
    picker.setType(GXDurationTypeHoursMinutesSeconds);
    picker.setSecondsStepSize(1);
}

void preparePace(GXPacePickerView& picker, const Settings& settings) {
    picker.setIsMetric(settings.isMetric);
    picker.setSecondsStepSize(1);
}

} // namespace

MeasurementGroup workoutMeasurements(const std::shared_ptr<Workout>& workout, const Settings& settings) {
    return {"Workout",
            {DistanceAndDuration::measurement("Distance and time", workout, settings, configureBoth, takeEither),
             Speed::measurementOfValue("Average speed", workout, settings, &Workout::speed, prepareSpeed),
             Calories::measurementOfValue("Calories", workout, settings, &Workout::calories, nullptr)}};
}

MeasurementGroup intervalMeasurements(const std::shared_ptr<Workout>& workout, const Settings& settings) {
    return {"Best interval",
            {Distance::measurementOfValue("Distance", workout, settings, &Workout::intervalDistance, prepareDistance),
             Duration::measurementOfValue("Duration", workout, settings, &Workout::intervalDuration, prepareDuration),
             Pace::measurementOfValue("Pace", workout, settings, &Workout::intervalPace, preparePace)}};
}

} // namespace gallery
