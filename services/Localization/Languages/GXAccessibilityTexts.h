#pragma once

#include <cstddef>
#include <string>

namespace gx {

/// The names that screen readers read out, and the patterns that join them.
///
/// `GXLocalization::accessibilityTextForName` has the text of each.
enum class GXAccessibilityName {
    // What is measured.
    Distance,
    Duration,
    Pace,
    Speed,
    AverageHeartRate,
    MaximumHeartRate,
    BeatsPerMinute,
    Calories,
    Weight,
    Height,
    Temperature,
    Icon,
    // What a column is for.
    Kilometres,
    Miles,
    Tenths,
    Hundredths,
    Hours,
    Minutes,
    Seconds,
    KilometresPerHour,
    MilesPerHour,
    Kilograms,
    Pounds,
    Stones,
    Centimetres,
    Feet,
    Inches,
    Unit,
    Average,
    Maximum,
    // A row that shows "-".
    NoValue,
    // Patterns. "{0}" and "{1}" are replaced by texts; only the first two patterns have both.
    NameAndPart,  ///< "{0}, {1}": a measurement and the part of it that a column is for
    Sum,          ///< "{0} {1}": two quantities that are one, such as hours and minutes
    Minus,        ///< "minus {0}": a number below 0
    PerKilometre, ///< "{0} per kilometre": a duration
    PerMile       ///< "{0} per mile": a duration
};
/// How many names there are.
inline constexpr std::size_t GXAccessibilityNameCount = 36;

/// The units of the quantities that screen readers read out.
enum class GXAccessibilityUnit {
    Kilometre,
    Mile,
    Hour,
    Minute,
    Second,
    KilometrePerHour,
    MilePerHour,
    BeatPerMinute,
    Kilocalorie,
    Kilogram,
    Pound,
    Stone,
    Centimetre,
    Foot,
    Inch,
    DegreeCelsius,
    DegreeFahrenheit
};
/// How many units there are.
inline constexpr std::size_t GXAccessibilityUnitCount = 17;

/// A number by the digits that are shown, since plural forms depend on them: "1.0" is not "1".
struct GXAccessibilityNumber {
    std::string whole;     ///< with a "-" for a number below 0
    std::string separator; ///< between whole and fraction, as the wheel shows it
    std::string fraction;  ///< empty for a whole number
};

} // namespace gx
