#include "GXDistancePickerCell.h"
#include "GXDistancePickerView.h"
#include "GXDurationPickerCell.h"
#include "GXDurationPickerView.h"
#include "GXPacePickerCell.h"
#include "GXPacePickerView.h"
#include "GalleryMeasurements.h"
#include "GalleryWords.h"

using namespace gx;

namespace gallery {

namespace {

using Distance = GalleryPickerMeasurement<GXDistancePickerCell, GXDistancePickerView>;
using Duration = GalleryPickerMeasurement<GXDurationPickerCell, GXDurationPickerView>;
using Pace = GalleryPickerMeasurement<GXPacePickerCell, GXPacePickerView>;

void configureDistance(GXDistancePickerView& picker, const GalleryWorkout& workout, const GallerySettings& settings) {
    picker.setIsMetric(settings.isMetric);
    picker.setNumberOfFractionUnits(2);
    picker.setCurrentValue(NSNumber::numberWithDouble(workout.intervalDistance));
}

void takeDistance(GalleryWorkout& workout, const GXDistancePickerView&, const Ref<GXBasePickerView>&, const NSNumber& value) {
    workout.intervalDistance = value.doubleValue();
}

std::string distanceInWords(const Ref<GXDistancePickerView>& picker) { return GalleryWords::amountOnWheel(picker); }

void configureDuration(GXDurationPickerView& picker, const GalleryWorkout& workout, const GallerySettings&) {
    picker.setType(GXDurationTypeHoursMinutesSeconds);
    picker.setSecondsStepSize(1);
    picker.setCurrentValue(NSNumber::numberWithDouble(workout.intervalDuration));
}

void takeDuration(GalleryWorkout& workout, const GXDurationPickerView&, const Ref<GXBasePickerView>&, const NSNumber& value) {
    workout.intervalDuration = value.doubleValue();
}

/// Without the layout's name: hours, minutes and seconds are known by their colons.
std::string durationInWords(const Ref<GXDurationPickerView>& picker) { return GalleryWords::clockOnWheel(picker); }

void configurePace(GXPacePickerView& picker, const GalleryWorkout& workout, const GallerySettings& settings) {
    picker.setIsMetric(settings.isMetric);
    picker.setSecondsStepSize(1);
    picker.setCurrentValue(NSNumber::numberWithDouble(workout.intervalPace));
}

void takePace(GalleryWorkout& workout, const GXPacePickerView&, const Ref<GXBasePickerView>&, const NSNumber& value) {
    workout.intervalPace = value.doubleValue();
}

std::string paceInWords(const Ref<GXPacePickerView>& picker) { return GalleryWords::clockOnWheel(picker) + " " + unitBesideWheel(picker); }

} // namespace

GalleryMeasurementGroup intervalMeasurements(const std::shared_ptr<GalleryWorkout>& workout, const GallerySettings& settings) {
    return {"Best interval",
            {Distance::measurement("Distance", workout, settings, configureDistance, takeDistance, distanceInWords),
             Duration::measurement("Duration", workout, settings, configureDuration, takeDuration, durationInWords),
             Pace::measurement("Pace", workout, settings, configurePace, takePace, paceInWords)}};
}

} // namespace gallery
