#include <array>

#include "GalleryPages.h"
#include "NumberFormat.h"
#include <GXUIPickers/GXCaloriesPickerView.h>

using namespace gx;

namespace gallery {

namespace {

GalleryExhibit makeExhibit(const GalleryReport& report) {
    const auto picker = create<GXCaloriesPickerView>(CGRectZero);
    picker->setCurrentValue(NSNumber::numberWithInt(450));

    GalleryExhibit exhibit = exhibitOf(picker, report, "kcal", [picker](const NSNumber& calories, NSInteger) {
        return NumberFormat::decimal(calories.doubleValue(), 0) + " " + unitBesideWheel(picker);
    });
    exhibit.options = {
        {"Step",
         {"10", "50", "100"},
         0,
         [picker](std::size_t choice) {
             picker->setStepSize(NSNumber::numberWithInt(std::array{10, 50, 100}.at(choice)));
         },
         {}},
        {"Range",
         {"Below 100000", "Below 2000"},
         0,
         [picker](std::size_t choice) { picker->setMaxValue(NSNumber::numberWithInt(choice == 0 ? 100000 : 2000)); },
         {}},
    };
    return exhibit;
}

} // namespace

GalleryPageDescription caloriesPage() {
    return {"Calories", "An amount of energy, in ten thousand rows if need be. The value is what the wheel shows.", makeExhibit};
}

} // namespace gallery
