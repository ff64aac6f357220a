#pragma once

#include <optional>
#include <string>

#include "GXAccessibilityTexts.h"
#include "GXDurationType.h"

namespace gx {

enum class GXDurationUnit { Hours, Minutes, Seconds };

/// What a type of the duration picker shows in which component.
///
/// Any number may be a type: an unknown one has neither a name nor units.
class GXDurationLayout {
public:
    // The components of values, by their units. A separator follows each but the last.
    static constexpr NSInteger highest = 0;
    static constexpr NSInteger middle = 2;
    static constexpr NSInteger lowest = 4;

    explicit GXDurationLayout(NSInteger type) : type_(type) {}

    bool hasHours() const { return type_ == GXDurationTypeHoursMinutes || hasThreeUnits(); }
    bool hasThreeUnits() const { return type_ == GXDurationTypeHoursMinutesSeconds; }
    bool hasMinutesAndSecondsAlone() const { return type_ == GXDurationTypeMinutesSeconds; }
    static bool holdsValues(NSInteger component) { return component == highest || component == middle || component == lowest; }
    /// The component that has neither of the higher units has that of seconds.
    std::optional<GXDurationUnit> unitOfComponent(NSInteger component) const;

    /// The key and comment of the text beside the wheel, such as "hh:mm".
    std::optional<std::string> name() const;
    std::optional<GXAccessibilityName> accessibilityPartOfComponent(NSInteger component) const;
    /// The whole duration, of the numbers in the components of values.
    std::optional<std::string> accessibilityText(NSInteger highestNumber, NSInteger middleNumber, NSInteger lowestNumber) const;

private:
    NSInteger type_;
};

} // namespace gx
