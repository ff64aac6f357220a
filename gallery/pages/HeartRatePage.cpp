#include <array>

#include "GalleryPages.h"
#include "NumberFormat.h"
#include <GXUIPickers/GXHeartRatePickerView.h>

using namespace gx;

namespace gallery {

namespace {

GalleryExhibit makeExhibit(const GalleryReport& report) {
    const auto picker = create<GXHeartRatePickerView>(CGRectZero);

    // Each turn brings two notices: the maximum as component 1, then the average as component 0.
    GalleryExhibit exhibit = exhibitOf(picker, report, "bpm", [picker](const NSNumber& rate, NSInteger component) {
        const auto& wheel = picker->pickerView();
        const std::string name = (component == 0 ? wheel->leftLabelText() : wheel->rightLabelText()).value_or("");
        return name + " " + (rate.integerValue() == 0 ? "–" : NumberFormat::decimal(rate.doubleValue(), 0));
    });
    exhibit.options = {
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
    // This picker keeps its two rates beside the current value of the others.
    exhibit.values = [picker] { return std::vector<NSNumber>{picker->currentAvgHeartRate(), picker->currentMaxHeartRate()}; };
    exhibit.setValues = [picker](const std::vector<NSNumber>& values) {
        if (values.size() != 2) return;
        picker->setCurrentAvgHeartRate(values[0]);
        picker->setCurrentMaxHeartRate(values[1]);
    };
    return exhibit;
}

} // namespace

GalleryPageDescription heartRatePage() {
    return {"Heart rate", "Average and maximum at once; each wheel makes room for the other. Values in beats per minute.", makeExhibit};
}

} // namespace gallery
