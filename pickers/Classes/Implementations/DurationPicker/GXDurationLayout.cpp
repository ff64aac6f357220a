#include "GXDurationLayout.h"

#include "GXPickerAccessibility.h"

namespace gx {

std::optional<GXDurationUnit> GXDurationLayout::unitOfComponent(NSInteger component) const {
    if (hasHours()) {
        if (component == highest) return GXDurationUnit::Hours;
        return component == middle ? GXDurationUnit::Minutes : GXDurationUnit::Seconds;
    }
    if (hasMinutesAndSecondsAlone()) return component == highest ? GXDurationUnit::Minutes : GXDurationUnit::Seconds;
    return std::nullopt;
}

std::optional<std::string> GXDurationLayout::name() const {
    switch (type_) {
    case GXDurationTypeHoursMinutes:
        return "hh:mm";
    case GXDurationTypeHoursMinutesSeconds:
        return "hh:mm:ss";
    case GXDurationTypeMinutesSeconds:
        return "mm:ss";
    default:
        return std::nullopt;
    }
}

std::optional<GXAccessibilityName> GXDurationLayout::accessibilityPartOfComponent(NSInteger component) const {
    const std::optional<GXDurationUnit> unit = holdsValues(component) ? unitOfComponent(component) : std::nullopt;
    if (!unit) return std::nullopt;
    switch (*unit) {
    case GXDurationUnit::Hours:
        return GXAccessibilityName::Hours;
    case GXDurationUnit::Minutes:
        return GXAccessibilityName::Minutes;
    case GXDurationUnit::Seconds:
        break;
    }
    return GXAccessibilityName::Seconds;
}

std::optional<std::string> GXDurationLayout::accessibilityText(NSInteger highestNumber, NSInteger middleNumber,
                                                               NSInteger lowestNumber) const {
    switch (type_) {
    case GXDurationTypeHoursMinutes:
        return accessibilitySum({{highestNumber, GXAccessibilityUnit::Hour}, {middleNumber, GXAccessibilityUnit::Minute}});
    case GXDurationTypeHoursMinutesSeconds:
        return accessibilitySum({{highestNumber, GXAccessibilityUnit::Hour},
                                 {middleNumber, GXAccessibilityUnit::Minute},
                                 {lowestNumber, GXAccessibilityUnit::Second}});
    case GXDurationTypeMinutesSeconds:
        return accessibilitySum({{highestNumber, GXAccessibilityUnit::Minute}, {middleNumber, GXAccessibilityUnit::Second}});
    default:
        return std::nullopt;
    }
}

} // namespace gx
