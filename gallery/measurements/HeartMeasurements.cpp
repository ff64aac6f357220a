#include "GalleryMeasurements.h"
#include "WheelReading.h"
#include <GXUIPickers/GXBpmPickerCell.h>
#include <GXUIPickers/GXBpmPickerView.h>
#include <GXUIPickers/GXHeartRatePickerCell.h>
#include <GXUIPickers/GXHeartRatePickerView.h>

using namespace gx;

namespace gallery {

namespace {

using HeartRate = GalleryPickerMeasurement<GXHeartRatePickerCell, GXHeartRatePickerView>;
using Pulse = GalleryPickerMeasurement<GXBpmPickerCell, GXBpmPickerView>;

void configureRates(GXHeartRatePickerView& picker, const GalleryWorkout& workout, const GallerySettings&) {
    picker.setCurrentAvgHeartRate(NSNumber::numberWithDouble(workout.averageHeartRate));
    picker.setCurrentMaxHeartRate(NSNumber::numberWithDouble(workout.maximumHeartRate));
}

/// Each turn brings two notices, and both rates are in the picker at either.
void takeRates(GalleryWorkout& workout, const GXHeartRatePickerView& picker, const Ref<GXBasePickerView>&, const NSNumber&) {
    workout.averageHeartRate = picker.currentAvgHeartRate().doubleValue();
    workout.maximumHeartRate = picker.currentMaxHeartRate().doubleValue();
}

/// "Ø 142, MAX 171". Read off the wheel, whose first row stands for no rate.
std::string ratesInWords(const Ref<GXHeartRatePickerView>& picker) {
    const auto& wheel = picker->pickerView();
    const auto words = [&](const std::optional<std::string>& label, NSInteger component) {
        const NSInteger row = wheel->selectedRowInComponent(component);
        const std::string title = picker->pickerView_titleForRow_forComponent(wheel, row, component).value_or("");
        return label.value_or("") + " " + (title == "-" ? "–" : title);
    };
    return words(wheel->leftLabelText(), 0) + ", " + words(wheel->rightLabelText(), wheel->numberOfComponents() - 1);
}

void preparePulse(GXBpmPickerView& picker, const GallerySettings&) {
    if (picker.stepSize().integerValue() != 1) picker.setStepSize(NSNumber::numberWithInt(1));
}

std::string pulseInWords(const Ref<GXBpmPickerView>& picker) { return WheelReading::amountOnWheel(picker); }

} // namespace

GalleryMeasurementGroup heartMeasurements(const std::shared_ptr<GalleryWorkout>& workout, const GallerySettings& settings) {
    return {"Heart",
            {HeartRate::measurement("Heart rate", workout, settings, configureRates, takeRates, ratesInWords),
             Pulse::measurementOfValue("Resting pulse", workout, settings, &GalleryWorkout::restingPulse, preparePulse, pulseInWords)}};
}

} // namespace gallery
