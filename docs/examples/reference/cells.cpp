// Examples of the reference: cells with a picker.

#include <GXUIPickers/GXUIPickers.h>
#include <gtest/gtest.h>

#include <memory>

using namespace gx;

namespace {

// [GXBasePickerCell]
/// - Declare a `cellIdentifier` of your own: without one the class takes the place of other cells
///   without one, and debug builds stop.
/// - A cell that is used again keeps its picker with values, fonts and delegate: set all that
///   differs from row to row.
class LapsCell : public GXBasePickerCell {
public:
    static std::string cellIdentifier() { return "LapsCellIdentifier"; }

protected:
    void makePicker() override { showNewPicker<GXBasePickerView>(); }
};
// [GXBasePickerCell]

TEST(ReferenceExamples, PickerCells) {
    // [GXBasePickerCell]
    const auto table = create<UITableView>(CGRectMake(0, 0, 320, 480));
    table->registerClass_forCellReuseIdentifier<LapsCell>(LapsCell::cellIdentifier());
    const auto cell = std::static_pointer_cast<LapsCell>(table->dequeueReusableCellWithIdentifier(LapsCell::cellIdentifier()));
    cell->pickerView()->setCurrentValue(NSNumber::numberWithInt(12));
    EXPECT_EQ(cell->pickerView()->currentValueText(), "12");
    // [GXBasePickerCell]
}

TEST(ReferenceExamples, HeightCells) {
    // [GXHeightPickerCell]
    /// - Its picker is no `GXBasePickerView`: set `heightInCm` and `heightDelegate`.
    /// - It has no background of its own.
    const auto cell = create<GXHeightPickerCell>(UITableViewCellStyleDefault, GXHeightPickerCell::cellIdentifier());
    cell->pickerView()->setIsMetric(true);
    cell->pickerView()->setHeightInCm(176);
    EXPECT_EQ(cell->pickerView()->currentValueText(), "176 cm");
    // [GXHeightPickerCell]
}

TEST(ReferenceExamples, BpmPickerCells) {
    // [GXBpmPickerCell]
    /// - A cell that is used again keeps its picker with value, units and delegate.
    const auto table = create<UITableView>(CGRectMake(0, 0, 320, 480));
    table->registerClass_forCellReuseIdentifier<GXBpmPickerCell>(GXBpmPickerCell::cellIdentifier());
    const auto cell =
        std::static_pointer_cast<GXBpmPickerCell>(table->dequeueReusableCellWithIdentifier(GXBpmPickerCell::cellIdentifier()));
    cell->pickerView()->setCurrentValue(NSNumber::numberWithInt(90));
    EXPECT_EQ(cell->pickerView()->currentValueText(), "90 bpm");
    // [GXBpmPickerCell]
}

TEST(ReferenceExamples, CaloriesPickerCells) {
    // [GXCaloriesPickerCell]
    /// - A cell that is used again keeps its picker with value, units and delegate.
    const auto table = create<UITableView>(CGRectMake(0, 0, 320, 480));
    table->registerClass_forCellReuseIdentifier<GXCaloriesPickerCell>(GXCaloriesPickerCell::cellIdentifier());
    const auto cell =
        std::static_pointer_cast<GXCaloriesPickerCell>(table->dequeueReusableCellWithIdentifier(GXCaloriesPickerCell::cellIdentifier()));
    cell->pickerView()->setCurrentValue(NSNumber::numberWithInt(450));
    EXPECT_EQ(cell->pickerView()->currentValueText(), "450 kcal");
    // [GXCaloriesPickerCell]
}

TEST(ReferenceExamples, DistanceAndDurationCells) {
    // [GXDistanceAndDurationCell]
    /// - A cell that is used again keeps its picker with value, units and delegate.
    /// - Set the values of the inner pickers; the cell's picker has none.
    const auto table = create<UITableView>(CGRectMake(0, 0, 320, 480));
    table->registerClass_forCellReuseIdentifier<GXDistanceAndDurationCell>(GXDistanceAndDurationCell::cellIdentifier());
    const auto cell = std::static_pointer_cast<GXDistanceAndDurationCell>(
        table->dequeueReusableCellWithIdentifier(GXDistanceAndDurationCell::cellIdentifier()));
    cell->pickerView()->setIsMetric(true);
    EXPECT_EQ(cell->pickerView()->currentValueText(), "5.0 km, 0:05 h");
    // [GXDistanceAndDurationCell]
}

TEST(ReferenceExamples, DistancePickerCells) {
    // [GXDistancePickerCell]
    /// - A cell that is used again keeps its picker with value, units and delegate.
    /// - Rows of metres and of miles need cells that each set `isMetric`.
    const auto table = create<UITableView>(CGRectMake(0, 0, 320, 480));
    table->registerClass_forCellReuseIdentifier<GXDistancePickerCell>(GXDistancePickerCell::cellIdentifier());
    const auto cell =
        std::static_pointer_cast<GXDistancePickerCell>(table->dequeueReusableCellWithIdentifier(GXDistancePickerCell::cellIdentifier()));
    cell->pickerView()->setIsMetric(true);
    EXPECT_EQ(cell->pickerView()->currentValueText(), "5.0 km");
    // [GXDistancePickerCell]
}

TEST(ReferenceExamples, DurationPickerCells) {
    // [GXDurationPickerCell]
    /// - A cell that is used again keeps its picker with value, units and delegate.
    const auto table = create<UITableView>(CGRectMake(0, 0, 320, 480));
    table->registerClass_forCellReuseIdentifier<GXDurationPickerCell>(GXDurationPickerCell::cellIdentifier());
    const auto cell =
        std::static_pointer_cast<GXDurationPickerCell>(table->dequeueReusableCellWithIdentifier(GXDurationPickerCell::cellIdentifier()));
    cell->pickerView()->setCurrentValue(NSNumber::numberWithInt(27 * 60000));
    EXPECT_EQ(cell->pickerView()->currentValueText(), "0:27 h");
    // [GXDurationPickerCell]
}

TEST(ReferenceExamples, HeartRatePickerCells) {
    // [GXHeartRatePickerCell]
    /// - A cell that is used again keeps its picker with value, units and delegate.
    /// - The rates are the picker's own: cast `pickerView()` to set them.
    const auto table = create<UITableView>(CGRectMake(0, 0, 320, 480));
    table->registerClass_forCellReuseIdentifier<GXHeartRatePickerCell>(GXHeartRatePickerCell::cellIdentifier());
    const auto cell =
        std::static_pointer_cast<GXHeartRatePickerCell>(table->dequeueReusableCellWithIdentifier(GXHeartRatePickerCell::cellIdentifier()));
    const auto picker = std::static_pointer_cast<GXHeartRatePickerView>(cell->pickerView());
    picker->setCurrentAvgHeartRate(NSNumber::numberWithInt(142));
    EXPECT_EQ(picker->currentValueText(), "AVG 142, MAX 160");
    // [GXHeartRatePickerCell]
}

TEST(ReferenceExamples, PacePickerCells) {
    // [GXPacePickerCell]
    /// - A cell that is used again keeps its picker with value, units and delegate.
    const auto table = create<UITableView>(CGRectMake(0, 0, 320, 480));
    table->registerClass_forCellReuseIdentifier<GXPacePickerCell>(GXPacePickerCell::cellIdentifier());
    const auto cell =
        std::static_pointer_cast<GXPacePickerCell>(table->dequeueReusableCellWithIdentifier(GXPacePickerCell::cellIdentifier()));
    cell->pickerView()->setIsMetric(true);
    EXPECT_EQ(cell->pickerView()->currentValueText(), "1:40 min/km");
    // [GXPacePickerCell]
}

TEST(ReferenceExamples, SpeedPickerCells) {
    // [GXSpeedPickerCell]
    /// - A cell that is used again keeps its picker with value, units and delegate.
    const auto table = create<UITableView>(CGRectMake(0, 0, 320, 480));
    table->registerClass_forCellReuseIdentifier<GXSpeedPickerCell>(GXSpeedPickerCell::cellIdentifier());
    const auto cell =
        std::static_pointer_cast<GXSpeedPickerCell>(table->dequeueReusableCellWithIdentifier(GXSpeedPickerCell::cellIdentifier()));
    cell->pickerView()->setIsMetric(true);
    EXPECT_EQ(cell->pickerView()->currentValueText(), "10.0 km/h");
    // [GXSpeedPickerCell]
}

TEST(ReferenceExamples, TemperaturePickerCells) {
    // [GXTemperaturePickerCell]
    /// - A cell that is used again keeps its picker with value, units and delegate.
    const auto table = create<UITableView>(CGRectMake(0, 0, 320, 480));
    table->registerClass_forCellReuseIdentifier<GXTemperaturePickerCell>(GXTemperaturePickerCell::cellIdentifier());
    const auto cell = std::static_pointer_cast<GXTemperaturePickerCell>(
        table->dequeueReusableCellWithIdentifier(GXTemperaturePickerCell::cellIdentifier()));
    cell->pickerView()->setIsMetric(true);
    EXPECT_EQ(cell->pickerView()->currentValueText(), "20 °C");
    // [GXTemperaturePickerCell]
}

TEST(ReferenceExamples, WeatherAndTemperaturePickerCells) {
    // [GXWeatherAndTemperaturePickerCell]
    /// - A cell that is used again keeps its picker with value, units and delegate.
    /// - Give its weather picker images, or it shows none.
    const auto table = create<UITableView>(CGRectMake(0, 0, 320, 480));
    table->registerClass_forCellReuseIdentifier<GXWeatherAndTemperaturePickerCell>(GXWeatherAndTemperaturePickerCell::cellIdentifier());
    const auto cell = std::static_pointer_cast<GXWeatherAndTemperaturePickerCell>(
        table->dequeueReusableCellWithIdentifier(GXWeatherAndTemperaturePickerCell::cellIdentifier()));
    const auto picker = std::static_pointer_cast<GXWeatherAndTemperaturePickerView>(cell->pickerView());
    picker->setIsMetric(true);
    EXPECT_EQ(picker->temperaturePicker()->currentValueText(), "20 °C");
    // [GXWeatherAndTemperaturePickerCell]
}

TEST(ReferenceExamples, WeightPickerCells) {
    // [GXWeightPickerCell]
    /// - A cell that is used again keeps its picker with value, units and delegate.
    const auto table = create<UITableView>(CGRectMake(0, 0, 320, 480));
    table->registerClass_forCellReuseIdentifier<GXWeightPickerCell>(GXWeightPickerCell::cellIdentifier());
    const auto cell =
        std::static_pointer_cast<GXWeightPickerCell>(table->dequeueReusableCellWithIdentifier(GXWeightPickerCell::cellIdentifier()));
    cell->pickerView()->setCurrentValue(NSNumber::numberWithDouble(72.5));
    EXPECT_EQ(cell->pickerView()->currentValueText(), "72.5 kg");
    // [GXWeightPickerCell]
}

} // namespace
