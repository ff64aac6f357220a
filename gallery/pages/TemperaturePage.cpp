#include <array>

#include "GalleryPages.h"
#include "NumberFormat.h"
#include <GXUIPickers/GXTemperaturePickerView.h>
#include <GXUIPickers/GXUnitConverter.h>

using namespace gx;

namespace gallery {

namespace {

GalleryExhibit makeExhibit(const GalleryReport& report) {
    const auto picker = create<GXTemperaturePickerView>(CGRectZero);

    GalleryExhibit exhibit = exhibitOf(picker, report, "°C", [picker](const NSNumber& celsius, NSInteger) {
        const float shown = picker->isMetric() ? celsius.floatValue() : GXUnitConverter::temperatureCtoF(celsius.floatValue());
        return NumberFormat::decimal(static_cast<double>(shown), 0) + " " + unitBesideWheel(picker);
    });
    exhibit.options = {
        {"Unit system", {"Metric", "Imperial"}, 0, [picker](std::size_t choice) { picker->setIsMetric(choice == 0); }, {}},
        {"Step",
         {"1", "5", "10"},
         1,
         [picker](std::size_t choice) {
             picker->setStepSize(NSNumber::numberWithInt(std::array{1, 5, 10}.at(choice)));
         },
         {}},
    };
    return exhibit;
}

} // namespace

GalleryPageDescription temperaturePage() {
    return {"Temperature", "Celsius or Fahrenheit in even steps. The value is in degrees Celsius.", makeExhibit};
}

} // namespace gallery
