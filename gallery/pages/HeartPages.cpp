#include "HeartPages.h"

#include <array>

#include "NumberFormat.h"
#include "Translations.h"
#include <GXUIPickers/GXBpmPickerView.h>
#include <GXUIPickers/GXHeartRatePickerView.h>

using namespace gx;

namespace gallery {

namespace {

// Heart rate

PickerDemo makeHeartRateDemo(const NoticeHandler& report) {
    const auto picker = create<GXHeartRatePickerView>(CGRectZero);

    // Each spin brings two notices: the maximum as component 1, then the average as component 0.
    PickerDemo demo = pickerDemo(picker, report, "bpm", [picker](const NSNumber& rate, NSInteger component) {
        const auto& wheel = picker->pickerView();
        const std::string name = (component == 0 ? wheel->leftLabelText() : wheel->rightLabelText()).value_or("");
        return name + " " + (rate.integerValue() == 0 ? "–" : NumberFormat::decimal(rate.doubleValue(), 0));
    });
    demo.options = {
        {"Row for no value",
         {"Shown", "Hidden"},
         0,
         [picker](std::size_t choice) {
             picker->setShouldShowNullValue(choice == 0);
             picker->pickerView()->reloadAllComponents(); // The titles follow with a reload.
         },
         {}},
        {"Least gap",
         {"1", "5", "20"},
         0,
         [picker](std::size_t choice) {
             picker->setMinimumGapBetweenAvgAndMax(NSNumber::numberWithInt(std::array{1, 5, 20}.at(choice)));
         },
         {}},
    };
    // This picker has two rates of its own instead of the current value.
    demo.values = [picker] { return std::vector<NSNumber>{picker->currentAvgHeartRate(), picker->currentMaxHeartRate()}; };
    demo.setValues = [picker](const std::vector<NSNumber>& values) {
        if (values.size() != 2) return;
        picker->setCurrentAvgHeartRate(values[0]);
        picker->setCurrentMaxHeartRate(values[1]);
    };
    return demo;
}

// Beats per minute

PickerDemo makeBpmDemo(const NoticeHandler& report) {
    const auto picker = create<GXBpmPickerView>(CGRectZero);

    PickerDemo demo = pickerDemo(picker, report, "bpm", [picker](const NSNumber& rate, NSInteger) {
        return NumberFormat::decimal(rate.doubleValue(), 0) + " " + unitBesideWheel(picker);
    });
    demo.options = {
        stepOption("Step", {1, 5, 10}, 2, [picker](std::int32_t step) { picker->setStepSize(NSNumber::numberWithInt(step)); }),
        {"Range",
         {Translations::filled("{0} to {1}", "0", "240"), Translations::filled("{0} to {1}", "40", "220")},
         0,
         [picker](std::size_t choice) {
             picker->setMinValue(NSNumber::numberWithInt(choice == 0 ? 0 : 40));
             // The maximum itself is not offered.
             picker->setMaxValue(NSNumber::numberWithInt(choice == 0 ? 240 : 220));
         },
         {}},
    };
    return demo;
}

} // namespace

PickerPageDescription heartRatePage() {
    return {"Heart rate", "Average and maximum at once; each wheel makes room for the other. Values in beats per minute.",
            makeHeartRateDemo};
}

PickerPageDescription bpmPage() {
    return {"Beats per minute", "One heart or cadence rate in even steps. The value is what the wheel shows.", makeBpmDemo};
}

} // namespace gallery
