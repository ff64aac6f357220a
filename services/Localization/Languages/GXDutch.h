#pragma once

#include "GXLanguageTexts.h"

namespace gx {

/// Dutch.
struct GXDutch {
    static constexpr std::string_view identifier = "nl";
    static constexpr std::string_view ownName = "Nederlands";
    static constexpr std::string_view decimalSeparator = ",";

    static constexpr GXPluralCategory pluralCategory(const GXPluralOperands& number) {
        return oneIf(number.isWhole() && number.integer == 1);
    }

    static constexpr GXText unitTexts[] = {
        {"bpm", "sl/min"},  {"hh:mm", "uu:mm"},   {"hh:mm:ss", "uu:mm:ss"},
        {"mm:ss", "mm:ss"}, {"min/km", "min/km"}, {"min/mi", "min/mi"},
        {"AVG", "GEM"},     {"MAX", "MAX"},       {"kg", "kg"},
        {"lb", "lb"},       {"st", "st"},         {"cm", "cm"},
        {"ft", "ft"},       {"°C", "°C"},         {"°F", "°F"},
        {"km", "km"},       {"mi", "mi"},         {"km/h", "km/u"},
        {"mph", "mi/h"},    {"kcal", "kcal"},     {"h", "u"},
        {"min", "min"},     {", ", ", "},
    };

    static constexpr GXAccessibilityNameText accessibilityNames[] = {
        {GXAccessibilityName::Distance, "Afstand"},
        {GXAccessibilityName::Duration, "Duur"},
        {GXAccessibilityName::Pace, "Tempo"},
        {GXAccessibilityName::Speed, "Snelheid"},
        {GXAccessibilityName::AverageHeartRate, "Gemiddelde hartslag"},
        {GXAccessibilityName::MaximumHeartRate, "Maximale hartslag"},
        {GXAccessibilityName::BeatsPerMinute, "Slagen per minuut"},
        {GXAccessibilityName::Calories, "Calorieën"},
        {GXAccessibilityName::Weight, "Gewicht"},
        {GXAccessibilityName::Height, "Lengte"},
        {GXAccessibilityName::Temperature, "Temperatuur"},
        {GXAccessibilityName::Icon, "Pictogram"},
        {GXAccessibilityName::Kilometres, "kilometer"},
        {GXAccessibilityName::Miles, "mijl"},
        {GXAccessibilityName::Tenths, "tienden"},
        {GXAccessibilityName::Hundredths, "honderdsten"},
        {GXAccessibilityName::Hours, "uren"},
        {GXAccessibilityName::Minutes, "minuten"},
        {GXAccessibilityName::Seconds, "seconden"},
        {GXAccessibilityName::KilometresPerHour, "kilometer per uur"},
        {GXAccessibilityName::MilesPerHour, "mijl per uur"},
        {GXAccessibilityName::Kilograms, "kilogram"},
        {GXAccessibilityName::Pounds, "pond"},
        {GXAccessibilityName::Stones, "stone"},
        {GXAccessibilityName::Centimetres, "centimeter"},
        {GXAccessibilityName::Feet, "voet"},
        {GXAccessibilityName::Inches, "inch"},
        {GXAccessibilityName::Unit, "eenheid"},
        {GXAccessibilityName::Average, "gemiddelde"},
        {GXAccessibilityName::Maximum, "maximum"},
        {GXAccessibilityName::NoValue, "geen waarde"},
        {GXAccessibilityName::NameAndPart, "{0}, {1}"},
        {GXAccessibilityName::Sum, "{0} {1}"},
        {GXAccessibilityName::Minus, "min {0}"},
        {GXAccessibilityName::PerKilometre, "{0} per kilometer"},
        {GXAccessibilityName::PerMile, "{0} per mijl"},
    };

    static constexpr GXAccessibilityUnitText accessibilityUnits[] = {
        {GXAccessibilityUnit::Kilometre, {.one = "{0} kilometer", .other = "{0} kilometer"}},
        {GXAccessibilityUnit::Mile, {.one = "{0} mijl", .other = "{0} mijl"}},
        {GXAccessibilityUnit::Hour, {.one = "{0} uur", .other = "{0} uur"}},
        {GXAccessibilityUnit::Minute, {.one = "{0} minuut", .other = "{0} minuten"}},
        {GXAccessibilityUnit::Second, {.one = "{0} seconde", .other = "{0} seconden"}},
        {GXAccessibilityUnit::KilometrePerHour, {.one = "{0} kilometer per uur", .other = "{0} kilometer per uur"}},
        {GXAccessibilityUnit::MilePerHour, {.one = "{0} mijl per uur", .other = "{0} mijl per uur"}},
        {GXAccessibilityUnit::BeatPerMinute, {.one = "{0} slag per minuut", .other = "{0} slagen per minuut"}},
        {GXAccessibilityUnit::Kilocalorie, {.one = "{0} kilocalorie", .other = "{0} kilocalorieën"}},
        {GXAccessibilityUnit::Kilogram, {.one = "{0} kilogram", .other = "{0} kilogram"}},
        {GXAccessibilityUnit::Pound, {.one = "{0} pond", .other = "{0} pond"}},
        {GXAccessibilityUnit::Stone, {.one = "{0} stone", .other = "{0} stone"}},
        {GXAccessibilityUnit::Centimetre, {.one = "{0} centimeter", .other = "{0} centimeter"}},
        {GXAccessibilityUnit::Foot, {.one = "{0} voet", .other = "{0} voet"}},
        {GXAccessibilityUnit::Inch, {.one = "{0} inch", .other = "{0} inch"}},
        {GXAccessibilityUnit::DegreeCelsius, {.one = "{0} graad Celsius", .other = "{0} graden Celsius"}},
        {GXAccessibilityUnit::DegreeFahrenheit, {.one = "{0} graad Fahrenheit", .other = "{0} graden Fahrenheit"}},
    };
};

} // namespace gx
