#include "MovementPages.h"

#include <memory>

#include "NumberFormat.h"
#include <GXUIPickers/GXDistancePickerView.h>
#include <GXUIPickers/GXDurationPickerView.h>
#include <GXUIPickers/GXLocalization.h>
#include <GXUIPickers/GXPacePickerView.h>
#include <GXUIPickers/GXSpeedPickerView.h>

using namespace gx;

namespace gallery {

namespace {

// Distance

PickerDemo makeDistanceDemo(const NoticeHandler& report) {
    const auto picker = create<GXDistancePickerView>(CGRectZero);
    picker->setCurrentValue(NSNumber::numberWithInt(5300));

    PickerDemo demo = pickerDemo(picker, report, "m", [picker](const NSNumber& meters, NSInteger) {
        const double shown = picker->isMetric() ? meters.doubleValue() / 1000 : picker->meterToMiles(meters.doubleValue());
        return NumberFormat::decimal(shown, picker->numberOfFractionUnits()) + " " + unitBesideWheel(picker);
    });
    demo.options = {
        unitSystemOption(picker),
        {"Decimals",
         {"1", "2"},
         0,
         [picker](std::size_t choice) {
             picker->setNumberOfFractionUnits(choice == 0 ? 1 : 2);
             picker->selectCurrentValue(); // The new column shows the row that was last requested.
         },
         {}},
    };
    return demo;
}

// Duration

constexpr std::int32_t second = 1000;
constexpr std::int32_t minute = 60 * second;
constexpr std::int32_t hour = 60 * minute;

std::string durationInWords(NSInteger type, const NSNumber& milliseconds) {
    const NSInteger seconds = milliseconds.integerValue() / second;
    const auto unit = [](const char* key) {
        return " " + GXLocalization::sharedLocalization()->localizedStringWithKey_comment(key, "unit of a duration").value_or("");
    };
    if (type == GXDurationTypeHoursMinutes) return NumberFormat::hours(seconds / 60) + unit("h");
    if (type == GXDurationTypeMinutesSeconds) return NumberFormat::minutes(seconds) + unit("min");
    return NumberFormat::clock(seconds);
}

/// The maximum is exclusive. Minutes and seconds alone cannot show an hour.
void setRange(const Ref<GXDurationPickerView>& picker, bool isBounded) {
    const bool hasHours = picker->type() != GXDurationTypeMinutesSeconds;
    picker->setMinValue(NSNumber::numberWithInt(!isBounded ? 0 : hasHours ? 30 * minute : 0));
    picker->setMaxValue(NSNumber::numberWithInt(!isBounded ? (hasHours ? 99 * hour : hour - second) : hasHours ? 4 * hour : 20 * minute));
    picker->selectCurrentValue();
}

PickerDemo makeDurationDemo(const NoticeHandler& report) {
    const auto picker = create<GXDurationPickerView>(CGRectZero);
    picker->setCurrentValue(NSNumber::numberWithInt(hour + 20 * minute));
    const auto isBounded = std::make_shared<bool>(false);

    PickerDemo demo = pickerDemo(
        picker, report, "ms", [picker](const NSNumber& milliseconds, NSInteger) { return durationInWords(picker->type(), milliseconds); });
    // A new step reloads the wheel and selects nothing, so the application does.
    demo.options = {
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
        stepOption("Step of hours", {1, 2, 6}, 0,
                   [picker](std::int32_t step) {
                       picker->setHoursStepSize(step);
                       picker->selectCurrentValue();
                   }),
        stepOption("Step of minutes", {1, 5, 15}, 0,
                   [picker](std::int32_t step) {
                       picker->setMinutesStepSize(step);
                       picker->selectCurrentValue();
                   }),
        stepOption("Step of seconds", {1, 5, 15}, 1,
                   [picker](std::int32_t step) {
                       picker->setSecondsStepSize(step);
                       picker->selectCurrentValue();
                   }),
    };
    return demo;
}

// Pace

/// 5:15 per kilometre, as metres per second.
constexpr double startingSpeed = 1000.0 / (5 * 60 + 15);

PickerDemo makePaceDemo(const NoticeHandler& report) {
    const auto picker = create<GXPacePickerView>(CGRectZero);
    picker->setCurrentValue(NSNumber::numberWithDouble(startingSpeed));

    PickerDemo demo = pickerDemo(picker, report, "m/s", [picker](const NSNumber& speed, NSInteger) {
        const auto pace = picker->componentsFromValue(speed);
        const NSInteger seconds = pace ? pace->minutes.integerValue() * 60 + pace->seconds.integerValue() : 0;
        return NumberFormat::minutes(seconds) + " " + unitBesideWheel(picker);
    });
    demo.options = {
        unitSystemOption(picker),
        stepOption("Step of seconds", {1, 5, 15}, 1,
                   [picker](std::int32_t step) {
                       picker->setSecondsStepSize(step);
                       // A new step reloads the wheel and selects nothing.
                       picker->selectCurrentValue();
                   }),
    };
    return demo;
}

// Speed

PickerDemo makeSpeedDemo(const NoticeHandler& report) {
    const auto picker = create<GXSpeedPickerView>(CGRectZero);
    picker->setCurrentValue(NSNumber::numberWithDouble(picker->kphToMps(12.5)));

    PickerDemo demo = pickerDemo(picker, report, "m/s", [picker](const NSNumber& speed, NSInteger) {
        const double shown = picker->isMetric() ? picker->mpsToKph(speed.doubleValue()) : picker->mpsToMph(speed.doubleValue());
        return NumberFormat::decimal(shown, 1) + " " + unitBesideWheel(picker);
    });
    demo.options = {
        unitSystemOption(picker),
    };
    return demo;
}

} // namespace

PickerPageDescription distancePage() {
    return {"Distance", "Kilometres or miles with one or two decimals. The value is in metres.", makeDistanceDemo};
}

PickerPageDescription durationPage() {
    return {"Duration", "Hours, minutes and seconds in three layouts. The value is in milliseconds.", makeDurationDemo};
}

PickerPageDescription pacePage() {
    return {"Pace", "Minutes and seconds per kilometre or mile. The value is the speed, in metres per second.", makePaceDemo};
}

PickerPageDescription speedPage() {
    return {"Speed", "Kilometres or miles per hour with one decimal. The value is in metres per second.", makeSpeedDemo};
}

} // namespace gallery
