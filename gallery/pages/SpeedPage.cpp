#include "GalleryPages.h"
#include "NumberFormat.h"
#include <GXUIPickers/GXSpeedPickerView.h>

using namespace gx;

namespace gallery {

namespace {

GalleryExhibit makeExhibit(const GalleryReport& report) {
    const auto picker = create<GXSpeedPickerView>(CGRectZero);
    picker->setCurrentValue(NSNumber::numberWithDouble(picker->kphToMps(12.5)));

    GalleryExhibit exhibit = exhibitOf(picker, report, "m/s", [picker](const NSNumber& speed, NSInteger) {
        const double shown = picker->isMetric() ? picker->mpsToKph(speed.doubleValue()) : picker->mpsToMph(speed.doubleValue());
        return NumberFormat::decimal(shown, 1) + " " + unitBesideWheel(picker);
    });
    exhibit.options = {
        {"Unit system", {"Metric", "Imperial"}, 0, [picker](std::size_t choice) { picker->setIsMetric(choice == 0); }, {}},
    };
    return exhibit;
}

} // namespace

GalleryPageDescription speedPage() {
    return {"Speed", "Kilometres or miles per hour with one decimal. The value is in metres per second.", makeExhibit};
}

} // namespace gallery
