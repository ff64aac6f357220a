#include "BodyMeasurements.h"

#include <algorithm>

#include "PickerMeasurement.h"
#include <GXUIPickers/GXBpmPickerCell.h>
#include <GXUIPickers/GXBpmPickerView.h>
#include <GXUIPickers/GXHeartRatePickerCell.h>
#include <GXUIPickers/GXHeartRatePickerView.h>
#include <GXUIPickers/GXHeightPickerCell.h>
#include <GXUIPickers/GXHeightPickerView.h>
#include <GXUIPickers/GXStyleSheet.h>
#include <GXUIPickers/GXWeightPickerCell.h>

using namespace gx;

namespace gallery {

namespace {

using HeartRate = PickerMeasurement<GXHeartRatePickerCell, GXHeartRatePickerView>;
using Pulse = PickerMeasurement<GXBpmPickerCell, GXBpmPickerView>;
using Weight = PickerMeasurement<GXWeightPickerCell, GXWeightPickerView>;

void configureRates(GXHeartRatePickerView& picker, const Workout& workout, const Settings&) {
    picker.setCurrentAvgHeartRate(NSNumber::numberWithDouble(workout.averageHeartRate));
    picker.setCurrentMaxHeartRate(NSNumber::numberWithDouble(workout.maximumHeartRate));
}

/// Each spin brings two notices, and both rates are in the picker at either.
void takeRates(Workout& workout, const GXHeartRatePickerView& picker, const Ref<GXBasePickerView>&, const NSNumber&) {
    workout.averageHeartRate = picker.currentAvgHeartRate().doubleValue();
    workout.maximumHeartRate = picker.currentMaxHeartRate().doubleValue();
}

void preparePulse(GXBpmPickerView& picker, const Settings&) {
    if (picker.stepSize().integerValue() != 1) picker.setStepSize(NSNumber::numberWithInt(1));
}

void configureWeight(GXWeightPickerView& picker, const Workout& workout, const Settings& settings) {
    picker.setWeightUnit(settings.weightUnit);
    picker.updateMinMaxWeight();
    // Pounds and stones begin a little higher than kilograms; a lower weight shows as the first
    // row.
    picker.setCurrentValue(NSNumber::numberWithDouble(std::max(workout.weight, picker.minValue().doubleValue())));
}

void takeWeight(Workout& workout, const GXWeightPickerView&, const Ref<GXBasePickerView>&, const NSNumber& value) {
    workout.weight = value.doubleValue();
}

/// The height picker is a wheel itself, with a delegate of its own kind, and its cell is of its own
/// kind too. The user may also choose the unit on it.
class HeightMeasurement : public Measurement, public GXHeightPickerViewDelegate {
public:
    static Ref<Measurement> measurement(std::string name, std::shared_ptr<Workout> workout, Settings settings) {
        auto made = create<HeightMeasurement>();
        made->isMetric_ = settings.isMetric;
        made->setUp(std::move(name), GXHeightPickerCell::cellIdentifier(), std::move(workout), std::move(settings));
        return made;
    }

    std::string valueText() override {
        if (picker_) return picker_->currentValueText();
        const Ref<GXHeightPickerView> picker = create<GXHeightPickerView>(CGRectZero);
        configure(*picker);
        return picker->currentValueText();
    }

    void showWorkout() override {
        if (picker_) configure(*picker_);
    }

    void registerCellInTable(UITableView& table) const override {
        table.registerClass_forCellReuseIdentifier<GXHeightPickerCell>(cellIdentifier());
    }

    void showInCell(const Ref<UITableViewCell>& cell) override {
        const auto host = std::dynamic_pointer_cast<GXHeightPickerCell>(cell);
        picker_ = host ? host->pickerView() : nullptr;
        if (!picker_) return;
        // This cell alone has no background of its own.
        host->setBackgroundColor(GXStyleSheet::globalStyleSheet()->tableBgColor());
        // Its rows are black until they are given another tint; the label colour shows in both
        // looks.
        picker_->setTintColor(UIColor::labelColor());
        configure(*picker_);
        picker_->setHeightDelegate(refTo(this));
    }

    void fitPicker() override {} // Its fonts fit by themselves.
    CGFloat smallestPickerHeightForWidth(CGFloat) override { return 0; }

    void heightPickerView_didSelectHeightInCm_metric(const Ref<GXHeightPickerView>&, CGFloat height, bool metric) override {
        const auto keep = refTo(this);
        isMetric_ = metric;
        workout().height = height;
        noteChange();
    }

private:
    void configure(GXHeightPickerView& picker) {
        picker.setIsMetric(isMetric_);
        picker.setHeightInCm(workout().height);
    }

    bool isMetric_ = true;
    Ref<GXHeightPickerView> picker_;
};

} // namespace

MeasurementGroup heartMeasurements(const std::shared_ptr<Workout>& workout, const Settings& settings) {
    return {"Heart",
            {HeartRate::measurement("Heart rate", workout, settings, configureRates, takeRates),
             Pulse::measurementOfValue("Resting pulse", workout, settings, &Workout::restingPulse, preparePulse)}};
}

MeasurementGroup bodyMeasurements(const std::shared_ptr<Workout>& workout, const Settings& settings) {
    return {"Body",
            {Weight::measurement("Weight", workout, settings, configureWeight, takeWeight),
             HeightMeasurement::measurement("Height", workout, settings)}};
}

} // namespace gallery
