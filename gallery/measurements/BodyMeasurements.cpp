#include <algorithm>

#include "GalleryMeasurements.h"
#include "WheelReading.h"
#include <GXUIPickers/GXHeightPickerCell.h>
#include <GXUIPickers/GXHeightPickerView.h>
#include <GXUIPickers/GXStyleSheet.h>
#include <GXUIPickers/GXWeightPickerCell.h>
#include <GXUIPickers/GXWeightPickerView.h>

using namespace gx;

namespace gallery {

namespace {

using Weight = GalleryPickerMeasurement<GXWeightPickerCell, GXWeightPickerView>;

void configureWeight(GXWeightPickerView& picker, const GalleryWorkout& workout, const GallerySettings& settings) {
    picker.setWeightUnit(settings.weightUnit);
    picker.updateMinMaxWeight();
    // Pounds and stones begin a little higher than kilograms; what lies below stands on their first row.
    picker.setCurrentValue(NSNumber::numberWithDouble(std::max(workout.weight, picker.minValue().doubleValue())));
}

void takeWeight(GalleryWorkout& workout, const GXWeightPickerView&, const Ref<GXBasePickerView>&, const NSNumber& value) {
    workout.weight = value.doubleValue();
}

std::string weightInWords(const Ref<GXWeightPickerView>& picker) { return WheelReading::amountOnWheel(picker); }

/// The height picker is a wheel itself, with a delegate of its own kind, and so is its row. The user may also choose the unit on it.
class HeightMeasurement : public GalleryMeasurement, public GXHeightPickerViewDelegate {
public:
    static Ref<GalleryMeasurement> measurement(std::string name, std::shared_ptr<GalleryWorkout> workout, GallerySettings settings) {
        auto made = create<HeightMeasurement>();
        made->isMetric_ = settings.isMetric;
        made->setUp(std::move(name), GXHeightPickerCell::cellIdentifier(), std::move(workout), std::move(settings));
        return made;
    }

    /// "176 cm", or "5' 9\"".
    std::string valueInWords() override {
        if (!reader_) reader_ = create<GXHeightPickerView>(CGRectZero);
        configure(*reader_);
        const auto title = [this](NSInteger component) {
            const NSInteger row = reader_->selectedRowInComponent(component);
            const auto shown = reader_->pickerView_attributedTitleForRow_forComponent(reader_, row, component);
            return shown ? shown->string() : "";
        };
        return title(0) + " " + title(1);
    }

    void registerCellInTable(UITableView& table) const override {
        table.registerClass_forCellReuseIdentifier<GXHeightPickerCell>(cellIdentifier());
    }

    void showInCell(const Ref<UITableViewCell>& cell) override {
        const auto host = std::dynamic_pointer_cast<GXHeightPickerCell>(cell);
        if (!host || !host->pickerView()) return;
        // This cell alone has no background of its own.
        host->setBackgroundColor(GXStyleSheet::globalStyleSheet()->tableBgColor());
        // Its rows are black until they are given another tint; the label colour shows in both looks.
        host->pickerView()->setTintColor(UIColor::labelColor());
        configure(*host->pickerView());
        host->pickerView()->setHeightDelegate(refTo(this));
    }

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
    Ref<GXHeightPickerView> reader_;
};

} // namespace

GalleryMeasurementGroup bodyMeasurements(const std::shared_ptr<GalleryWorkout>& workout, const GallerySettings& settings) {
    return {"Body",
            {Weight::measurement("Weight", workout, settings, configureWeight, takeWeight, weightInWords),
             HeightMeasurement::measurement("Height", workout, settings)}};
}

} // namespace gallery
