#include "GalleryPages.h"
#include "NumberFormat.h"
#include <GXUIPickers/GXLocalization.h>
#include <GXUIPickers/GXUnitConverter.h>
#include <GXUIPickers/GXWeightPickerView.h>

using namespace gx;

namespace gallery {

namespace {

std::string inWords(GXWeightUnit unit, const NSNumber& kilograms) {
    const auto words = [](double weight, const char* key) {
        const auto name = GXLocalization::sharedLocalization()->localizedStringWithKey_comment(key, "unit of a weight");
        return NumberFormat::decimal(weight, 1) + " " + name.value_or("");
    };
    if (unit == GXWeightUnitPound) return words(static_cast<double>(GXUnitConverter::kgToLb(kilograms.floatValue())), "lb");
    if (unit == GXWeightUnitStone) return words(static_cast<double>(GXUnitConverter::kgToSt(kilograms.floatValue())), "st");
    return words(kilograms.doubleValue(), "kg");
}

GalleryExhibit makeExhibit(const GalleryReport& report) {
    const auto picker = create<GXWeightPickerView>(CGRectZero);
    picker->setCurrentValue(NSNumber::numberWithDouble(72.5));

    GalleryExhibit exhibit = exhibitOf(picker, report, "kg",
                                       [picker](const NSNumber& kilograms, NSInteger) { return inWords(picker->weightUnit(), kilograms); });
    exhibit.options = {
        {"Unit",
         {"Kilograms", "Pounds", "Stones"},
         0,
         [picker](std::size_t choice) {
             picker->setWeightUnit(static_cast<GXWeightUnit>(choice));
             picker->updateMinMaxWeight();
             picker->selectCurrentValue();
         },
         [picker] { return static_cast<std::size_t>(picker->weightUnit()); }},
        {"Unit on the wheel",
         {"Beside it", "As a column"},
         0,
         [picker](std::size_t choice) {
             picker->setWeightUnitSelectable(choice == 1);
             picker->selectCurrentValue(); // The new column stands on the unit only then.
         },
         {}},
    };
    return exhibit;
}

} // namespace

GalleryPageDescription weightPage() {
    return {"Weight", "Kilograms, pounds or stones with one decimal. The value is in kilograms.", makeExhibit};
}

} // namespace gallery
