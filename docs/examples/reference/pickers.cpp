// Examples of the reference: the pickers.

#include <GXUIPickers/GXUIPickers.h>
#include <gtest/gtest.h>

#include <string>

using namespace gx;

namespace {

const CGRect frame = CGRectMake(0, 0, 320, 216);

// [GXBasePickerView GXBasePickerViewDelegate]
/// - The delegate is held weakly: keep it alive yourself. A temporary stops debug builds.
/// - Nothing is clamped: a value outside the range is kept, and selects a row that is not there.
/// - The maximum is exclusive: the last row lies below it.
/// - Setters never call the delegate, gestures always do.
struct Log : GXBasePickerViewDelegate {
    void pickerView_didChangeCurrentValue_forComponent(const Ref<GXBasePickerView>& sender, const NSNumber& value, NSInteger) override {
        from = sender;
        picked = value;
    }
    Ref<GXBasePickerView> from;
    NSNumber picked;
};
// [GXBasePickerView GXBasePickerViewDelegate]

TEST(ReferenceExamples, Bases) {
    // [GXBasePickerView GXBasePickerViewDelegate]
    const auto floors = create<GXBasePickerView>(frame);
    floors->setMinValue(NSNumber::numberWithInt(-2));
    floors->setMaxValue(NSNumber::numberWithInt(13));
    const auto log = std::make_shared<Log>();
    floors->setDelegate(log);
    floors->setCurrentValue(NSNumber::numberWithInt(3));
    EXPECT_EQ(floors->currentValueText(), "3");
    EXPECT_FALSE(log->picked);                          // Set by the program.
    floors->pickerView()->turnToRow_inComponent(14, 0); // As a user does.
    EXPECT_EQ(log->picked.integerValue(), 12);
    // [GXBasePickerView GXBasePickerViewDelegate]
}

TEST(ReferenceExamples, Rates) {
    // [GXBpmPickerView]
    /// - Rows are 10 apart: a value between two shows on the lower one.
    /// - For an average and a maximum use `GXHeartRatePickerView`.
    const auto picker = create<GXBpmPickerView>(frame);
    picker->setCurrentValue(NSNumber::numberWithInt(87));
    EXPECT_EQ(picker->currentValueText(), "80 bpm");
    EXPECT_EQ(picker->currentValue().integerValue(), 87); // What was set stays.
    // [GXBpmPickerView]
}

TEST(ReferenceExamples, Energies) {
    // [GXCaloriesPickerView]
    /// - Kilocalories in both unit systems: `setIsMetric` changes nothing.
    /// - The unit is put there at construction and by `reloadData`; another formatter does not show
    ///   at once.
    const auto picker = create<GXCaloriesPickerView>(frame);
    picker->setCurrentValue(NSNumber::numberWithInt(450));
    EXPECT_EQ(picker->currentValueText(), "450 kcal");
    // [GXCaloriesPickerView]
}

TEST(ReferenceExamples, Distances) {
    // [GXDistancePickerView]
    /// - Values are metres in both unit systems; the wheel begins in miles until
    ///   `setIsMetric(true)`.
    /// - A value that the program sets is not clamped, one that the user picks is.
    /// - Switching the unit system keeps the metres, so the digits shown may be uneven.
    const auto picker = create<GXDistancePickerView>(frame);
    picker->setIsMetric(true);
    picker->setNumberOfFractionUnits(2);
    picker->setCurrentValue(NSNumber::numberWithDouble(5250));
    EXPECT_EQ(picker->currentValueText(), "5.25 km");
    picker->pickerView()->turnToRow_inComponent(42, 0); // The whole kilometres.
    EXPECT_EQ(picker->currentValue().doubleValue(), 42250);
    // [GXDistancePickerView]
}

TEST(ReferenceExamples, Durations) {
    // [GXDurationPickerView]
    /// - Values are milliseconds. What the program sets is clamped to the range too.
    /// - The maximum is exclusive.
    /// - A new step selects nothing: set the value again afterwards.
    /// - Minutes and seconds need a maximum below an hour.
    const auto picker = create<GXDurationPickerView>(frame);
    picker->setType(GXDurationTypeHoursMinutesSeconds);
    picker->setCurrentValue(NSNumber::numberWithInt(((1 * 60 + 5) * 60 + 30) * 1000));
    EXPECT_EQ(picker->currentValueText(), "1:05:30");
    picker->pickerView()->turnToRow_inComponent(27, 2); // The minutes.
    EXPECT_EQ(picker->currentValue().integerValue(), ((1 * 60 + 27) * 60 + 30) * 1000);
    // [GXDurationPickerView]
}

// [GXHeartRatePickerView GXHeartRatePickerViewDelegate]
/// - The delegate is called twice for a gesture: the maximum as component 1, then the average as 0.
/// - `currentValue` is not the rates'; set and read `currentAvgHeartRate` and
///   `currentMaxHeartRate`.
/// - A new bound or step selects `currentValue` again: set the rates afterwards.
/// - 0 is "no value", not a rate.
struct Rates : GXHeartRatePickerViewDelegate {
    void pickerView_didChangeCurrentValue_forComponent(const Ref<GXBasePickerView>&, const NSNumber& rate, NSInteger component) override {
        (component == 0 ? average : maximum) = rate.integerValue();
    }
    NSInteger average = 0;
    NSInteger maximum = 0;
};
// [GXHeartRatePickerView GXHeartRatePickerViewDelegate]

TEST(ReferenceExamples, HeartRates) {
    // [GXHeartRatePickerView GXHeartRatePickerViewDelegate]
    const auto picker = create<GXHeartRatePickerView>(frame);
    const auto rates = std::make_shared<Rates>();
    picker->setDelegate(rates);
    picker->setMinimumGapBetweenAvgAndMax(NSNumber::numberWithInt(5));
    picker->pickerView()->turnToRow_inComponent(145, 0); // 25 + 145 beats on average …
    EXPECT_EQ(rates->average, 170);
    EXPECT_EQ(rates->maximum, 175); // … push the maximum of 160 up.
    // [GXHeartRatePickerView GXHeartRatePickerViewDelegate]
}

// [GXHeightPickerView GXHeightPickerViewDelegate]
/// - It is itself a wheel: leave its data source and delegate alone, and set `heightDelegate`.
/// - Switching the unit is a selection: 180 cm become 5 feet 11 inches, and with that 180.34 cm.
/// - The unit's row is selected in a later pass of the run loop.
struct Height : GXHeightPickerViewDelegate {
    void heightPickerView_didSelectHeightInCm_metric(const Ref<GXHeightPickerView>&, CGFloat height, bool) override {
        centimetres = height;
    }
    CGFloat centimetres = 0;
};
// [GXHeightPickerView GXHeightPickerViewDelegate]

TEST(ReferenceExamples, Heights) {
    // [GXHeightPickerView GXHeightPickerViewDelegate]
    const auto picker = create<GXHeightPickerView>(frame);
    const auto height = std::make_shared<Height>();
    picker->setHeightDelegate(height);
    picker->setIsMetric(true);
    picker->setHeightInCm(176);
    NSRunLoop::mainRunLoop()->runPass();
    EXPECT_EQ(picker->currentValueText(), "176 cm");
    picker->turnToRow_inComponent(62, 0); // 120 + 62 centimetres.
    EXPECT_EQ(height->centimetres, 182);
    // [GXHeightPickerView GXHeightPickerViewDelegate]
}

TEST(ReferenceExamples, Paces) {
    // [GXPacePickerView GXPacePickerView::Components]
    /// - Values are speeds in metres per second: the faster the pace, the larger the number. So
    ///   `minValue` is the larger of the bounds.
    /// - 0 and what is slower than the range reads as 0:00 or the slowest pace, not as "no value".
    const auto picker = create<GXPacePickerView>(frame);
    picker->setIsMetric(true);
    picker->setCurrentValue(NSNumber::numberWithDouble(1000.0 / 285)); // 4:45 a kilometre.
    EXPECT_EQ(picker->currentValueText(), "4:45 min/km");
    EXPECT_EQ(picker->componentsFromValue(picker->currentValue())->seconds.intValue(), 45);
    // [GXPacePickerView GXPacePickerView::Components]
}

TEST(ReferenceExamples, Speeds) {
    // [GXSpeedPickerView]
    /// - Values are metres per second in both unit systems.
    /// - The conversion factors are rounded: picking 5.0 mph shows 4.0 afterwards, while the stored
    ///   value is the one that was picked.
    /// - Leave the step at 1.
    const auto picker = create<GXSpeedPickerView>(frame);
    picker->setIsMetric(true);
    picker->setCurrentValue(NSNumber::numberWithDouble(7.0)); // 25.2 km/h.
    EXPECT_EQ(picker->currentValueText(), "25.2 km/h");
    // [GXSpeedPickerView]
}

TEST(ReferenceExamples, Temperatures) {
    // [GXTemperaturePickerView]
    /// - Values, bounds and step are degrees Celsius in both units.
    /// - Fahrenheit rows do not lie where the Celsius rows do: picking one in the other unit may
    ///   change the value by part of a step.
    /// - Nothing is clamped.
    const auto picker = create<GXTemperaturePickerView>(frame);
    EXPECT_EQ(picker->currentValueText(), "66 °F"); // The row at or below 20 °C.
    picker->setIsMetric(true);
    EXPECT_EQ(picker->currentValueText(), "20 °C");
    // [GXTemperaturePickerView]
}

TEST(ReferenceExamples, Weights) {
    // [GXWeightPickerView]
    /// - Values are kilograms in every unit; stones are decimal.
    /// - A fresh picker has no value in its range: set one.
    /// - After `setWeightUnit` set the value again, and call `updateMinMaxWeight` for the bounds.
    const auto picker = create<GXWeightPickerView>(frame);
    picker->setWeightUnit(GXWeightUnitKilogram);
    picker->setCurrentValue(NSNumber::numberWithDouble(72.5));
    EXPECT_EQ(picker->currentValueText(), "72.5 kg");
    // [GXWeightPickerView]
}

TEST(ReferenceExamples, Icons) {
    // [GXIconPickerView]
    /// - The value is an index. Keep the minimum within the list, and the step at 1.
    /// - Setting the very list that is shown does nothing: make a new one to change it.
    /// - Label the images, or a screen reader has nothing to say.
    const auto picker = create<GXIconPickerView>(frame);
    GXIconPickerView::Images images;
    for (const char* name : {"Sun", "Rain", "Snow"}) {
        images.push_back(UIImage::imageWithHostHandle_size(static_cast<std::int64_t>(images.size()), CGSizeMake(40, 40)));
        images.back()->setAccessibilityLabel(name);
    }
    picker->setIconImages(std::make_shared<const GXIconPickerView::Images>(images));
    picker->setCurrentValue(NSNumber::numberWithInt(2));
    EXPECT_EQ(picker->currentValueText(), "Snow");
    // [GXIconPickerView]
}

TEST(ReferenceExamples, DistancesAndDurations) {
    // [GXDistanceAndDurationPicker GXCompositePickerView]
    /// - It has no numbers of its own: set and read the inner pickers.
    /// - After `setDelegate` the sender is the inner picker, and the component is 0 for both.
    /// - Large texts may stack the wheels: give it the height of `smallestHeightForWidth`.
    const auto picker = create<GXDistanceAndDurationPicker>(frame);
    const auto log = std::make_shared<Log>();
    picker->setDelegate(log);
    picker->setIsMetric(true);
    picker->durationPicker()->setCurrentValue(NSNumber::numberWithInt(27 * 60 * 1000));
    EXPECT_EQ(picker->currentValueText(), "5.0 km, 0:27 h");
    picker->distancePicker()->pickerView()->turnToRow_inComponent(10, 0);
    EXPECT_EQ(log->from, picker->distancePicker());
    EXPECT_EQ(log->picked.doubleValue(), 10000);
    EXPECT_FALSE(picker->isStacked());
    // [GXDistanceAndDurationPicker GXCompositePickerView]
}

TEST(ReferenceExamples, Weathers) {
    // [GXWeatherAndTemperaturePickerView]
    /// - The weather has no rows until `weatherPicker()->setIconImages`.
    /// - Before `setDelegate` nothing is reported; afterwards the inner pickers report, each as the
    ///   sender.
    const auto picker = create<GXWeatherAndTemperaturePickerView>(frame);
    picker->setIsMetric(true);
    picker->temperaturePicker()->setCurrentValue(NSNumber::numberWithInt(-5));
    EXPECT_EQ(picker->temperaturePicker()->currentValueText(), "-5 °C");
    EXPECT_EQ(picker->weatherPicker()->pickerView()->numberOfRowsInComponent(0), 0);
    // [GXWeatherAndTemperaturePickerView]
}

} // namespace
