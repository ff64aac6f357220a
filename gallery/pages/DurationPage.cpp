#include <array>
#include <memory>

#include "GalleryPages.h"
#include "NumberFormat.h"
#include <GXUIPickers/GXDurationPickerView.h>

using namespace gx;

namespace gallery {

namespace {

constexpr std::int32_t second = 1000;
constexpr std::int32_t minute = 60 * second;
constexpr std::int32_t hour = 60 * minute;

std::string inWords(NSInteger type, const NSNumber& milliseconds) {
    const NSInteger seconds = milliseconds.integerValue() / second;
    if (type == GXDurationTypeHoursMinutes) return NumberFormat::hours(seconds / 60) + " h";
    if (type == GXDurationTypeMinutesSeconds) return NumberFormat::minutes(seconds) + " min";
    return NumberFormat::clock(seconds);
}

/// The maximum is exclusive. Minutes and seconds alone cannot show an hour.
void setRange(const Ref<GXDurationPickerView>& picker, bool isBounded) {
    const bool hasHours = picker->type() != GXDurationTypeMinutesSeconds;
    picker->setMinValue(NSNumber::numberWithInt(!isBounded ? 0 : hasHours ? 30 * minute : 0));
    picker->setMaxValue(NSNumber::numberWithInt(!isBounded ? (hasHours ? 99 * hour : hour - second) : hasHours ? 4 * hour : 20 * minute));
    picker->selectCurrentValue();
}

GalleryExhibit makeExhibit(const GalleryReport& report) {
    const auto picker = create<GXDurationPickerView>(CGRectZero);
    picker->setCurrentValue(NSNumber::numberWithInt(hour + 20 * minute));
    const auto isBounded = std::make_shared<bool>(false);

    GalleryExhibit exhibit = exhibitOf(picker, report, "ms",
                                       [picker](const NSNumber& milliseconds, NSInteger) { return inWords(picker->type(), milliseconds); });
    // A new step reloads the wheel and selects nothing: that is for the application to do.
    exhibit.options = {
        {"Layout",
         {"h:m", "h:m:s", "m:s"},
         0,
         [picker, isBounded](std::size_t choice) {
             picker->setType(static_cast<NSInteger>(choice));
             setRange(picker, *isBounded);
         },
         {}},
        {"Range",
         {"All", "Bounded"},
         0,
         [picker, isBounded](std::size_t choice) {
             *isBounded = choice == 1;
             setRange(picker, *isBounded);
         },
         {}},
        {"Step of hours",
         {"1", "2", "6"},
         0,
         [picker](std::size_t choice) {
             picker->setHoursStepSize(std::array{1, 2, 6}.at(choice));
             picker->selectCurrentValue();
         },
         {}},
        {"Step of minutes",
         {"1", "5", "15"},
         0,
         [picker](std::size_t choice) {
             picker->setMinutesStepSize(std::array{1, 5, 15}.at(choice));
             picker->selectCurrentValue();
         },
         {}},
        {"Step of seconds",
         {"1", "5", "15"},
         1,
         [picker](std::size_t choice) {
             picker->setSecondsStepSize(std::array{1, 5, 15}.at(choice));
             picker->selectCurrentValue();
         },
         {}},
    };
    return exhibit;
}

} // namespace

GalleryPageDescription durationPage() {
    return {"Duration", "Hours, minutes and seconds in three layouts. The value is in milliseconds.", makeExhibit};
}

} // namespace gallery
