#pragma once

#include "GXLanguageTexts.h"

namespace gx {

/// German.
struct GXGerman {
    static constexpr std::string_view identifier = "de";
    static constexpr std::string_view ownName = "Deutsch";
    static constexpr std::string_view decimalSeparator = ",";

    static constexpr GXPluralCategory pluralCategory(const GXPluralOperands& number) {
        return oneIf(number.isWhole() && number.integer == 1);
    }

    static constexpr GXText unitTexts[] = {
        {"bpm", "S/min"},   {"hh:mm", "hh:mm"},   {"hh:mm:ss", "hh:mm:ss"},
        {"mm:ss", "mm:ss"}, {"min/km", "min/km"}, {"min/mi", "min/mi"},
        {"AVG", "Ø"},       {"MAX", "MAX"},       {"kg", "kg"},
        {"lb", "lb"},       {"st", "st"},         {"cm", "cm"},
        {"ft", "ft"},       {"°C", "°C"},         {"°F", "°F"},
        {"km", "km"},       {"mi", "mi"},         {"km/h", "km/h"},
        {"mph", "mi/h"},    {"kcal", "kcal"},     {"h", "h"},
        {"min", "min"},     {", ", ", "},
    };

    static constexpr GXAccessibilityNameText accessibilityNames[] = {
        {GXAccessibilityName::Distance, "Distanz"},
        {GXAccessibilityName::Duration, "Dauer"},
        {GXAccessibilityName::Pace, "Tempo"},
        {GXAccessibilityName::Speed, "Geschwindigkeit"},
        {GXAccessibilityName::AverageHeartRate, "Durchschnittliche Herzfrequenz"},
        {GXAccessibilityName::MaximumHeartRate, "Maximale Herzfrequenz"},
        {GXAccessibilityName::BeatsPerMinute, "Schläge pro Minute"},
        {GXAccessibilityName::Calories, "Kalorien"},
        {GXAccessibilityName::Weight, "Gewicht"},
        {GXAccessibilityName::Height, "Größe"},
        {GXAccessibilityName::Temperature, "Temperatur"},
        {GXAccessibilityName::Icon, "Symbol"},
        {GXAccessibilityName::Kilometres, "Kilometer"},
        {GXAccessibilityName::Miles, "Meilen"},
        {GXAccessibilityName::Tenths, "Zehntel"},
        {GXAccessibilityName::Hundredths, "Hundertstel"},
        {GXAccessibilityName::Hours, "Stunden"},
        {GXAccessibilityName::Minutes, "Minuten"},
        {GXAccessibilityName::Seconds, "Sekunden"},
        {GXAccessibilityName::KilometresPerHour, "Kilometer pro Stunde"},
        {GXAccessibilityName::MilesPerHour, "Meilen pro Stunde"},
        {GXAccessibilityName::Kilograms, "Kilogramm"},
        {GXAccessibilityName::Pounds, "Pfund"},
        {GXAccessibilityName::Stones, "Stones"},
        {GXAccessibilityName::Centimetres, "Zentimeter"},
        {GXAccessibilityName::Feet, "Fuß"},
        {GXAccessibilityName::Inches, "Zoll"},
        {GXAccessibilityName::Unit, "Einheit"},
        {GXAccessibilityName::Average, "Durchschnitt"},
        {GXAccessibilityName::Maximum, "Maximum"},
        {GXAccessibilityName::NoValue, "kein Wert"},
        {GXAccessibilityName::NameAndPart, "{0}, {1}"},
        {GXAccessibilityName::Sum, "{0} {1}"},
        {GXAccessibilityName::Minus, "minus {0}"},
        {GXAccessibilityName::PerKilometre, "{0} pro Kilometer"},
        {GXAccessibilityName::PerMile, "{0} pro Meile"},
    };

    static constexpr GXAccessibilityUnitText accessibilityUnits[] = {
        {GXAccessibilityUnit::Kilometre, {.one = "{0} Kilometer", .other = "{0} Kilometer"}},
        {GXAccessibilityUnit::Mile, {.one = "{0} Meile", .other = "{0} Meilen"}},
        {GXAccessibilityUnit::Hour, {.one = "{0} Stunde", .other = "{0} Stunden"}},
        {GXAccessibilityUnit::Minute, {.one = "{0} Minute", .other = "{0} Minuten"}},
        {GXAccessibilityUnit::Second, {.one = "{0} Sekunde", .other = "{0} Sekunden"}},
        {GXAccessibilityUnit::KilometrePerHour, {.one = "{0} Kilometer pro Stunde", .other = "{0} Kilometer pro Stunde"}},
        {GXAccessibilityUnit::MilePerHour, {.one = "{0} Meile pro Stunde", .other = "{0} Meilen pro Stunde"}},
        {GXAccessibilityUnit::BeatPerMinute, {.one = "{0} Schlag pro Minute", .other = "{0} Schläge pro Minute"}},
        {GXAccessibilityUnit::Kilocalorie, {.one = "{0} Kilokalorie", .other = "{0} Kilokalorien"}},
        {GXAccessibilityUnit::Kilogram, {.one = "{0} Kilogramm", .other = "{0} Kilogramm"}},
        {GXAccessibilityUnit::Pound, {.one = "{0} Pfund", .other = "{0} Pfund"}},
        {GXAccessibilityUnit::Stone, {.one = "{0} Stone", .other = "{0} Stones"}},
        {GXAccessibilityUnit::Centimetre, {.one = "{0} Zentimeter", .other = "{0} Zentimeter"}},
        {GXAccessibilityUnit::Foot, {.one = "{0} Fuß", .other = "{0} Fuß"}},
        {GXAccessibilityUnit::Inch, {.one = "{0} Zoll", .other = "{0} Zoll"}},
        {GXAccessibilityUnit::DegreeCelsius, {.one = "{0} Grad Celsius", .other = "{0} Grad Celsius"}},
        {GXAccessibilityUnit::DegreeFahrenheit, {.one = "{0} Grad Fahrenheit", .other = "{0} Grad Fahrenheit"}},
    };
};

} // namespace gx
