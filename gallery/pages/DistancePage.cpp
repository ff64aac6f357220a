#include "GalleryPages.h"
#include "NumberFormat.h"
#include <GXUIPickers/GXDistancePickerView.h>

using namespace gx;

namespace gallery {

namespace {

GalleryExhibit makeExhibit(const GalleryReport& report) {
    const auto picker = create<GXDistancePickerView>(CGRectZero);
    picker->setCurrentValue(NSNumber::numberWithInt(5300));

    GalleryExhibit exhibit = exhibitOf(picker, report, "m", [picker](const NSNumber& meters, NSInteger) {
        const double shown = picker->isMetric() ? meters.doubleValue() / 1000 : picker->meterToMiles(meters.doubleValue());
        return NumberFormat::decimal(shown, picker->numberOfFractionUnits()) + " " + unitBesideWheel(picker);
    });
    exhibit.options = {
        {"Unit system", {"Metric", "Imperial"}, 0, [picker](std::size_t choice) { picker->setIsMetric(choice == 0); }, {}},
        {"Decimals",
         {"1", "2"},
         0,
         [picker](std::size_t choice) {
             picker->setNumberOfFractionUnits(choice == 0 ? 1 : 2);
             picker->selectCurrentValue(); // The new column stands where it was last asked to.
         },
         {}},
    };
    return exhibit;
}

} // namespace

GalleryPageDescription distancePage() {
    return {"Distance", "Kilometres or miles with one or two decimals. The value is in metres.", makeExhibit};
}

} // namespace gallery
