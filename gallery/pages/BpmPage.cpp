#include <array>

#include "GalleryPages.h"
#include "NumberFormat.h"
#include <GXUIPickers/GXBpmPickerView.h>

using namespace gx;

namespace gallery {

namespace {

GalleryExhibit makeExhibit(const GalleryReport& report) {
    const auto picker = create<GXBpmPickerView>(CGRectZero);

    GalleryExhibit exhibit = exhibitOf(picker, report, "bpm", [picker](const NSNumber& rate, NSInteger) {
        return NumberFormat::decimal(rate.doubleValue(), 0) + " " + unitBesideWheel(picker);
    });
    exhibit.options = {
        {"Step",
         {"1", "5", "10"},
         2,
         [picker](std::size_t choice) {
             picker->setStepSize(NSNumber::numberWithInt(std::array{1, 5, 10}.at(choice)));
         },
         {}},
        {"Range",
         {"0 to 240", "40 to 220"},
         0,
         [picker](std::size_t choice) {
             picker->setMinValue(NSNumber::numberWithInt(choice == 0 ? 0 : 40));
             picker->setMaxValue(NSNumber::numberWithInt(choice == 0 ? 240 : 220)); // The maximum itself is not offered.
         },
         {}},
    };
    return exhibit;
}

} // namespace

GalleryPageDescription bpmPage() {
    return {"Beats per minute", "One heart or cadence rate in even steps. The value is what the wheel shows.", makeExhibit};
}

} // namespace gallery
