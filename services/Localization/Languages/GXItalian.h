#pragma once

#include "GXLanguageTexts.h"

namespace gx {

/// Italian.
struct GXItalian {
    static constexpr std::string_view identifier = "it";
    static constexpr std::string_view ownName = "Italiano";
    static constexpr std::string_view decimalSeparator = ",";

    static constexpr GXPluralCategory pluralCategory(const GXPluralOperands& number) {
        return oneIf(number.isWhole() && number.integer == 1);
    }

    static constexpr GXText unitTexts[] = {
        {"bpm", "bpm"},     {"hh:mm", "hh:mm"},   {"hh:mm:ss", "hh:mm:ss"},
        {"mm:ss", "mm:ss"}, {"min/km", "min/km"}, {"min/mi", "min/mi"},
        {"AVG", "MEDIA"},   {"MAX", "MAX"},       {"kg", "kg"},
        {"lb", "lb"},       {"st", "st"},         {"cm", "cm"},
        {"ft", "ft"},       {"°C", "°C"},         {"°F", "°F"},
        {"km", "km"},       {"mi", "mi"},         {"km/h", "km/h"},
        {"mph", "mi/h"},    {"kcal", "kcal"},     {"h", "h"},
        {"min", "min"},     {", ", ", "},
    };

    static constexpr GXAccessibilityNameText accessibilityNames[] = {
        {GXAccessibilityName::Distance, "Distanza"},
        {GXAccessibilityName::Duration, "Durata"},
        {GXAccessibilityName::Pace, "Ritmo"},
        {GXAccessibilityName::Speed, "Velocità"},
        {GXAccessibilityName::AverageHeartRate, "Frequenza cardiaca media"},
        {GXAccessibilityName::MaximumHeartRate, "Frequenza cardiaca massima"},
        {GXAccessibilityName::BeatsPerMinute, "Battiti al minuto"},
        {GXAccessibilityName::Calories, "Calorie"},
        {GXAccessibilityName::Weight, "Peso"},
        {GXAccessibilityName::Height, "Altezza"},
        {GXAccessibilityName::Temperature, "Temperatura"},
        {GXAccessibilityName::Icon, "Icona"},
        {GXAccessibilityName::Kilometres, "chilometri"},
        {GXAccessibilityName::Miles, "miglia"},
        {GXAccessibilityName::Tenths, "decimi"},
        {GXAccessibilityName::Hundredths, "centesimi"},
        {GXAccessibilityName::Hours, "ore"},
        {GXAccessibilityName::Minutes, "minuti"},
        {GXAccessibilityName::Seconds, "secondi"},
        {GXAccessibilityName::KilometresPerHour, "chilometri all'ora"},
        {GXAccessibilityName::MilesPerHour, "miglia all'ora"},
        {GXAccessibilityName::Kilograms, "chilogrammi"},
        {GXAccessibilityName::Pounds, "libbre"},
        {GXAccessibilityName::Stones, "stone"},
        {GXAccessibilityName::Centimetres, "centimetri"},
        {GXAccessibilityName::Feet, "piedi"},
        {GXAccessibilityName::Inches, "pollici"},
        {GXAccessibilityName::Unit, "unità"},
        {GXAccessibilityName::Average, "media"},
        {GXAccessibilityName::Maximum, "massima"},
        {GXAccessibilityName::NoValue, "nessun valore"},
        {GXAccessibilityName::NameAndPart, "{0}, {1}"},
        {GXAccessibilityName::Sum, "{0} {1}"},
        {GXAccessibilityName::Minus, "meno {0}"},
        {GXAccessibilityName::PerKilometre, "{0} al chilometro"},
        {GXAccessibilityName::PerMile, "{0} al miglio"},
    };

    static constexpr GXAccessibilityUnitText accessibilityUnits[] = {
        {GXAccessibilityUnit::Kilometre, {.one = "{0} chilometro", .other = "{0} chilometri"}},
        {GXAccessibilityUnit::Mile, {.one = "{0} miglio", .other = "{0} miglia"}},
        {GXAccessibilityUnit::Hour, {.one = "{0} ora", .other = "{0} ore"}},
        {GXAccessibilityUnit::Minute, {.one = "{0} minuto", .other = "{0} minuti"}},
        {GXAccessibilityUnit::Second, {.one = "{0} secondo", .other = "{0} secondi"}},
        {GXAccessibilityUnit::KilometrePerHour, {.one = "{0} chilometro all'ora", .other = "{0} chilometri all'ora"}},
        {GXAccessibilityUnit::MilePerHour, {.one = "{0} miglio all'ora", .other = "{0} miglia all'ora"}},
        {GXAccessibilityUnit::BeatPerMinute, {.one = "{0} battito al minuto", .other = "{0} battiti al minuto"}},
        {GXAccessibilityUnit::Kilocalorie, {.one = "{0} chilocaloria", .other = "{0} chilocalorie"}},
        {GXAccessibilityUnit::Kilogram, {.one = "{0} chilogrammo", .other = "{0} chilogrammi"}},
        {GXAccessibilityUnit::Pound, {.one = "{0} libbra", .other = "{0} libbre"}},
        {GXAccessibilityUnit::Stone, {.one = "{0} stone", .other = "{0} stone"}},
        {GXAccessibilityUnit::Centimetre, {.one = "{0} centimetro", .other = "{0} centimetri"}},
        {GXAccessibilityUnit::Foot, {.one = "{0} piede", .other = "{0} piedi"}},
        {GXAccessibilityUnit::Inch, {.one = "{0} pollice", .other = "{0} pollici"}},
        {GXAccessibilityUnit::DegreeCelsius, {.one = "{0} grado Celsius", .other = "{0} gradi Celsius"}},
        {GXAccessibilityUnit::DegreeFahrenheit, {.one = "{0} grado Fahrenheit", .other = "{0} gradi Fahrenheit"}},
    };
};

} // namespace gx
