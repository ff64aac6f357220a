#include "GalleryMeasurements.h"
#include "WheelReading.h"
#include <GXUIPickers/GXDistancePickerCell.h>
#include <GXUIPickers/GXDistancePickerView.h>
#include <GXUIPickers/GXDurationPickerCell.h>
#include <GXUIPickers/GXDurationPickerView.h>
#include <GXUIPickers/GXPacePickerCell.h>
#include <GXUIPickers/GXPacePickerView.h>

using namespace gx;

namespace gallery {

namespace {

using Distance = GalleryPickerMeasurement<GXDistancePickerCell, GXDistancePickerView>;
using Duration = GalleryPickerMeasurement<GXDurationPickerCell, GXDurationPickerView>;
using Pace = GalleryPickerMeasurement<GXPacePickerCell, GXPacePickerView>;

void prepareDistance(GXDistancePickerView& picker, const GallerySettings& settings) {
    picker.setIsMetric(settings.isMetric);
    picker.setNumberOfFractionUnits(2);
}

std::string distanceInWords(const Ref<GXDistancePickerView>& picker) { return WheelReading::amountOnWheel(picker); }

void prepareDuration(GXDurationPickerView& picker, const GallerySettings&) {
    picker.setType(GXDurationTypeHoursMinutesSeconds);
    picker.setSecondsStepSize(1);
}

/// Without the layout's name: hours, minutes and seconds are known by their colons.
std::string durationInWords(const Ref<GXDurationPickerView>& picker) { return WheelReading::clockOnWheel(picker); }

void preparePace(GXPacePickerView& picker, const GallerySettings& settings) {
    picker.setIsMetric(settings.isMetric);
    picker.setSecondsStepSize(1);
}

std::string paceInWords(const Ref<GXPacePickerView>& picker) { return WheelReading::clockOnWheel(picker) + " " + unitBesideWheel(picker); }

} // namespace

GalleryMeasurementGroup intervalMeasurements(const std::shared_ptr<GalleryWorkout>& workout, const GallerySettings& settings) {
    return {
        "Best interval",
        {Distance::measurementOfValue("Distance", workout, settings, &GalleryWorkout::intervalDistance, prepareDistance, distanceInWords),
         Duration::measurementOfValue("Duration", workout, settings, &GalleryWorkout::intervalDuration, prepareDuration, durationInWords),
         Pace::measurementOfValue("Pace", workout, settings, &GalleryWorkout::intervalPace, preparePace, paceInWords)}};
}

} // namespace gallery
