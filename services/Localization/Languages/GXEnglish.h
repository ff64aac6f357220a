#pragma once

#include "GXLanguageTexts.h"

namespace gx {

/// English, the language of the keys: a single text stands for both.
struct GXEnglish {
    static constexpr std::string_view identifier = "en";
    static constexpr std::string_view ownName = "English";
    static constexpr std::string_view decimalSeparator = ".";

    static constexpr GXPluralCategory pluralCategory(const GXPluralOperands& number) {
        return oneIf(number.isWhole() && number.integer == 1);
    }

    static constexpr GXText unitTexts[] = {
        "bpm", "hh:mm", "hh:mm:ss", "mm:ss", "min/km", "min/mi", "AVG", "MAX",  "kg", "lb",  "st", "cm",
        "ft",  "°C",    "°F",       "km",    "mi",     "km/h",   "mph", "kcal", "h",  "min", ", ",
    };

    static constexpr GXAccessibilityNameText accessibilityNames[] = {
        {GXAccessibilityName::Distance, "Distance"},
        {GXAccessibilityName::Duration, "Duration"},
        {GXAccessibilityName::Pace, "Pace"},
        {GXAccessibilityName::Speed, "Speed"},
        {GXAccessibilityName::AverageHeartRate, "Average heart rate"},
        {GXAccessibilityName::MaximumHeartRate, "Maximum heart rate"},
        {GXAccessibilityName::BeatsPerMinute, "Beats per minute"},
        {GXAccessibilityName::Calories, "Calories"},
        {GXAccessibilityName::Weight, "Weight"},
        {GXAccessibilityName::Height, "Height"},
        {GXAccessibilityName::Temperature, "Temperature"},
        {GXAccessibilityName::Icon, "Icon"},
        {GXAccessibilityName::Kilometres, "kilometres"},
        {GXAccessibilityName::Miles, "miles"},
        {GXAccessibilityName::Tenths, "tenths"},
        {GXAccessibilityName::Hundredths, "hundredths"},
        {GXAccessibilityName::Hours, "hours"},
        {GXAccessibilityName::Minutes, "minutes"},
        {GXAccessibilityName::Seconds, "seconds"},
        {GXAccessibilityName::KilometresPerHour, "kilometres per hour"},
        {GXAccessibilityName::MilesPerHour, "miles per hour"},
        {GXAccessibilityName::Kilograms, "kilograms"},
        {GXAccessibilityName::Pounds, "pounds"},
        {GXAccessibilityName::Stones, "stones"},
        {GXAccessibilityName::Centimetres, "centimetres"},
        {GXAccessibilityName::Feet, "feet"},
        {GXAccessibilityName::Inches, "inches"},
        {GXAccessibilityName::Unit, "unit"},
        {GXAccessibilityName::Average, "average"},
        {GXAccessibilityName::Maximum, "maximum"},
        {GXAccessibilityName::NoValue, "no value"},
        {GXAccessibilityName::NameAndPart, "{0}, {1}"},
        {GXAccessibilityName::Sum, "{0} {1}"},
        {GXAccessibilityName::Minus, "minus {0}"},
        {GXAccessibilityName::PerKilometre, "{0} per kilometre"},
        {GXAccessibilityName::PerMile, "{0} per mile"},
    };

    static constexpr GXAccessibilityUnitText accessibilityUnits[] = {
        {GXAccessibilityUnit::Kilometre, {.one = "{0} kilometre", .other = "{0} kilometres"}},
        {GXAccessibilityUnit::Mile, {.one = "{0} mile", .other = "{0} miles"}},
        {GXAccessibilityUnit::Hour, {.one = "{0} hour", .other = "{0} hours"}},
        {GXAccessibilityUnit::Minute, {.one = "{0} minute", .other = "{0} minutes"}},
        {GXAccessibilityUnit::Second, {.one = "{0} second", .other = "{0} seconds"}},
        {GXAccessibilityUnit::KilometrePerHour, {.one = "{0} kilometre per hour", .other = "{0} kilometres per hour"}},
        {GXAccessibilityUnit::MilePerHour, {.one = "{0} mile per hour", .other = "{0} miles per hour"}},
        {GXAccessibilityUnit::BeatPerMinute, {.one = "{0} beat per minute", .other = "{0} beats per minute"}},
        {GXAccessibilityUnit::Kilocalorie, {.one = "{0} kilocalorie", .other = "{0} kilocalories"}},
        {GXAccessibilityUnit::Kilogram, {.one = "{0} kilogram", .other = "{0} kilograms"}},
        {GXAccessibilityUnit::Pound, {.one = "{0} pound", .other = "{0} pounds"}},
        {GXAccessibilityUnit::Stone, {.one = "{0} stone", .other = "{0} stones"}},
        {GXAccessibilityUnit::Centimetre, {.one = "{0} centimetre", .other = "{0} centimetres"}},
        {GXAccessibilityUnit::Foot, {.one = "{0} foot", .other = "{0} feet"}},
        {GXAccessibilityUnit::Inch, {.one = "{0} inch", .other = "{0} inches"}},
        {GXAccessibilityUnit::DegreeCelsius, {.one = "{0} degree Celsius", .other = "{0} degrees Celsius"}},
        {GXAccessibilityUnit::DegreeFahrenheit, {.one = "{0} degree Fahrenheit", .other = "{0} degrees Fahrenheit"}},
    };
};

} // namespace gx
