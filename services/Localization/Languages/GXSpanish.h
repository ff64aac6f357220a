#pragma once

#include "GXLanguageTexts.h"

namespace gx {

/// Spanish.
struct GXSpanish {
    static constexpr std::string_view identifier = "es";
    static constexpr std::string_view ownName = "Español";
    static constexpr std::string_view decimalSeparator = ",";

    static constexpr GXPluralCategory pluralCategory(const GXPluralOperands& number) {
        return oneIf(number.integer == 1 && number.isFractionZero); // 1 and 1.0
    }

    static constexpr GXText unitTexts[] = {
        {"bpm", "lpm"},     {"hh:mm", "hh:mm"},   {"hh:mm:ss", "hh:mm:ss"},
        {"mm:ss", "mm:ss"}, {"min/km", "min/km"}, {"min/mi", "min/mi"},
        {"AVG", "MEDIA"},   {"MAX", "MÁX"},       {"kg", "kg"},
        {"lb", "lb"},       {"st", "st"},         {"cm", "cm"},
        {"ft", "ft"},       {"°C", "°C"},         {"°F", "°F"},
        {"km", "km"},       {"mi", "mi"},         {"km/h", "km/h"},
        {"mph", "mi/h"},    {"kcal", "kcal"},     {"h", "h"},
        {"min", "min"},     {", ", ", "},
    };

    static constexpr GXAccessibilityNameText accessibilityNames[] = {
        {GXAccessibilityName::Distance, "Distancia"},
        {GXAccessibilityName::Duration, "Duración"},
        {GXAccessibilityName::Pace, "Ritmo"},
        {GXAccessibilityName::Speed, "Velocidad"},
        {GXAccessibilityName::AverageHeartRate, "Frecuencia cardíaca media"},
        {GXAccessibilityName::MaximumHeartRate, "Frecuencia cardíaca máxima"},
        {GXAccessibilityName::BeatsPerMinute, "Latidos por minuto"},
        {GXAccessibilityName::Calories, "Calorías"},
        {GXAccessibilityName::Weight, "Peso"},
        {GXAccessibilityName::Height, "Estatura"},
        {GXAccessibilityName::Temperature, "Temperatura"},
        {GXAccessibilityName::Icon, "Icono"},
        {GXAccessibilityName::Kilometres, "kilómetros"},
        {GXAccessibilityName::Miles, "millas"},
        {GXAccessibilityName::Tenths, "décimas"},
        {GXAccessibilityName::Hundredths, "centésimas"},
        {GXAccessibilityName::Hours, "horas"},
        {GXAccessibilityName::Minutes, "minutos"},
        {GXAccessibilityName::Seconds, "segundos"},
        {GXAccessibilityName::KilometresPerHour, "kilómetros por hora"},
        {GXAccessibilityName::MilesPerHour, "millas por hora"},
        {GXAccessibilityName::Kilograms, "kilogramos"},
        {GXAccessibilityName::Pounds, "libras"},
        {GXAccessibilityName::Stones, "stones"},
        {GXAccessibilityName::Centimetres, "centímetros"},
        {GXAccessibilityName::Feet, "pies"},
        {GXAccessibilityName::Inches, "pulgadas"},
        {GXAccessibilityName::Unit, "unidad"},
        {GXAccessibilityName::Average, "media"},
        {GXAccessibilityName::Maximum, "máxima"},
        {GXAccessibilityName::NoValue, "sin valor"},
        {GXAccessibilityName::NameAndPart, "{0}, {1}"},
        {GXAccessibilityName::Sum, "{0} {1}"},
        {GXAccessibilityName::Minus, "menos {0}"},
        {GXAccessibilityName::PerKilometre, "{0} por kilómetro"},
        {GXAccessibilityName::PerMile, "{0} por milla"},
    };

    static constexpr GXAccessibilityUnitText accessibilityUnits[] = {
        {GXAccessibilityUnit::Kilometre, {.one = "{0} kilómetro", .other = "{0} kilómetros"}},
        {GXAccessibilityUnit::Mile, {.one = "{0} milla", .other = "{0} millas"}},
        {GXAccessibilityUnit::Hour, {.one = "{0} hora", .other = "{0} horas"}},
        {GXAccessibilityUnit::Minute, {.one = "{0} minuto", .other = "{0} minutos"}},
        {GXAccessibilityUnit::Second, {.one = "{0} segundo", .other = "{0} segundos"}},
        {GXAccessibilityUnit::KilometrePerHour, {.one = "{0} kilómetro por hora", .other = "{0} kilómetros por hora"}},
        {GXAccessibilityUnit::MilePerHour, {.one = "{0} milla por hora", .other = "{0} millas por hora"}},
        {GXAccessibilityUnit::BeatPerMinute, {.one = "{0} latido por minuto", .other = "{0} latidos por minuto"}},
        {GXAccessibilityUnit::Kilocalorie, {.one = "{0} kilocaloría", .other = "{0} kilocalorías"}},
        {GXAccessibilityUnit::Kilogram, {.one = "{0} kilogramo", .other = "{0} kilogramos"}},
        {GXAccessibilityUnit::Pound, {.one = "{0} libra", .other = "{0} libras"}},
        {GXAccessibilityUnit::Stone, {.one = "{0} stone", .other = "{0} stones"}},
        {GXAccessibilityUnit::Centimetre, {.one = "{0} centímetro", .other = "{0} centímetros"}},
        {GXAccessibilityUnit::Foot, {.one = "{0} pie", .other = "{0} pies"}},
        {GXAccessibilityUnit::Inch, {.one = "{0} pulgada", .other = "{0} pulgadas"}},
        {GXAccessibilityUnit::DegreeCelsius, {.one = "{0} grado Celsius", .other = "{0} grados Celsius"}},
        {GXAccessibilityUnit::DegreeFahrenheit, {.one = "{0} grado Fahrenheit", .other = "{0} grados Fahrenheit"}},
    };
};

} // namespace gx
