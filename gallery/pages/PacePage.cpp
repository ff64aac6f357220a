#include <array>

#include "GalleryPages.h"
#include "NumberFormat.h"
#include <GXUIPickers/GXPacePickerView.h>

using namespace gx;

namespace gallery {

namespace {

/// 5:15 per kilometre, as metres per second.
constexpr double startingSpeed = 1000.0 / (5 * 60 + 15);

GalleryExhibit makeExhibit(const GalleryReport& report) {
    const auto picker = create<GXPacePickerView>(CGRectZero);
    picker->setCurrentValue(NSNumber::numberWithDouble(startingSpeed));

    GalleryExhibit exhibit = exhibitOf(picker, report, "m/s", [picker](const NSNumber& speed, NSInteger) {
        const auto pace = picker->componentsFromValue(speed);
        const NSInteger seconds = pace ? pace->minutes.integerValue() * 60 + pace->seconds.integerValue() : 0;
        return NumberFormat::minutes(seconds) + " " + unitBesideWheel(picker);
    });
    exhibit.options = {
        {"Unit system", {"Metric", "Imperial"}, 0, [picker](std::size_t choice) { picker->setIsMetric(choice == 0); }, {}},
        {"Step of seconds",
         {"1", "5", "15"},
         1,
         [picker](std::size_t choice) {
             picker->setSecondsStepSize(std::array{1, 5, 15}.at(choice));
             picker->selectCurrentValue(); // A new step reloads the wheel and selects nothing.
         },
         {}},
    };
    return exhibit;
}

} // namespace

GalleryPageDescription pacePage() {
    return {"Pace", "Minutes and seconds per kilometre or mile. The value is the speed, in metres per second.", makeExhibit};
}

} // namespace gallery
