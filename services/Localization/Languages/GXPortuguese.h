#pragma once

#include "GXLanguageTexts.h"

namespace gx {

/// Portuguese as written in Brazil; also for readers of pt-PT, which has no texts of its own.
struct GXPortuguese {
    static constexpr std::string_view identifier = "pt";
    static constexpr std::string_view ownName = "Português";
    static constexpr std::string_view decimalSeparator = ",";

    static constexpr GXPluralCategory pluralCategory(const GXPluralOperands& number) {
        return oneIf(number.integer <= 1); // 0, 1 and 1.9
    }

    static constexpr GXText unitTexts[] = {
        {"bpm", "bpm"},     {"hh:mm", "hh:mm"},   {"hh:mm:ss", "hh:mm:ss"},
        {"mm:ss", "mm:ss"}, {"min/km", "min/km"}, {"min/mi", "min/mi"},
        {"AVG", "MÉD"},     {"MAX", "MÁX"},       {"kg", "kg"},
        {"lb", "lb"},       {"st", "st"},         {"cm", "cm"},
        {"ft", "ft"},       {"°C", "°C"},         {"°F", "°F"},
        {"km", "km"},       {"mi", "mi"},         {"km/h", "km/h"},
        {"mph", "mph"},     {"kcal", "kcal"},     {"h", "h"},
        {"min", "min"},     {", ", ", "},
    };

    static constexpr GXAccessibilityNameText accessibilityNames[] = {
        {GXAccessibilityName::Distance, "Distância"},
        {GXAccessibilityName::Duration, "Duração"},
        {GXAccessibilityName::Pace, "Ritmo"},
        {GXAccessibilityName::Speed, "Velocidade"},
        {GXAccessibilityName::AverageHeartRate, "Frequência cardíaca média"},
        {GXAccessibilityName::MaximumHeartRate, "Frequência cardíaca máxima"},
        {GXAccessibilityName::BeatsPerMinute, "Batimentos por minuto"},
        {GXAccessibilityName::Calories, "Calorias"},
        {GXAccessibilityName::Weight, "Peso"},
        {GXAccessibilityName::Height, "Altura"},
        {GXAccessibilityName::Temperature, "Temperatura"},
        {GXAccessibilityName::Icon, "Ícone"},
        {GXAccessibilityName::Kilometres, "quilômetros"},
        {GXAccessibilityName::Miles, "milhas"},
        {GXAccessibilityName::Tenths, "décimos"},
        {GXAccessibilityName::Hundredths, "centésimos"},
        {GXAccessibilityName::Hours, "horas"},
        {GXAccessibilityName::Minutes, "minutos"},
        {GXAccessibilityName::Seconds, "segundos"},
        {GXAccessibilityName::KilometresPerHour, "quilômetros por hora"},
        {GXAccessibilityName::MilesPerHour, "milhas por hora"},
        {GXAccessibilityName::Kilograms, "quilogramas"},
        {GXAccessibilityName::Pounds, "libras"},
        {GXAccessibilityName::Stones, "stones"},
        {GXAccessibilityName::Centimetres, "centímetros"},
        {GXAccessibilityName::Feet, "pés"},
        {GXAccessibilityName::Inches, "polegadas"},
        {GXAccessibilityName::Unit, "unidade"},
        {GXAccessibilityName::Average, "média"},
        {GXAccessibilityName::Maximum, "máxima"},
        {GXAccessibilityName::NoValue, "sem valor"},
        {GXAccessibilityName::NameAndPart, "{0}, {1}"},
        {GXAccessibilityName::Sum, "{0} {1}"},
        {GXAccessibilityName::Minus, "menos {0}"},
        {GXAccessibilityName::PerKilometre, "{0} por quilômetro"},
        {GXAccessibilityName::PerMile, "{0} por milha"},
    };

    static constexpr GXAccessibilityUnitText accessibilityUnits[] = {
        {GXAccessibilityUnit::Kilometre, {.one = "{0} quilômetro", .other = "{0} quilômetros"}},
        {GXAccessibilityUnit::Mile, {.one = "{0} milha", .other = "{0} milhas"}},
        {GXAccessibilityUnit::Hour, {.one = "{0} hora", .other = "{0} horas"}},
        {GXAccessibilityUnit::Minute, {.one = "{0} minuto", .other = "{0} minutos"}},
        {GXAccessibilityUnit::Second, {.one = "{0} segundo", .other = "{0} segundos"}},
        {GXAccessibilityUnit::KilometrePerHour, {.one = "{0} quilômetro por hora", .other = "{0} quilômetros por hora"}},
        {GXAccessibilityUnit::MilePerHour, {.one = "{0} milha por hora", .other = "{0} milhas por hora"}},
        {GXAccessibilityUnit::BeatPerMinute, {.one = "{0} batimento por minuto", .other = "{0} batimentos por minuto"}},
        {GXAccessibilityUnit::Kilocalorie, {.one = "{0} quilocaloria", .other = "{0} quilocalorias"}},
        {GXAccessibilityUnit::Kilogram, {.one = "{0} quilograma", .other = "{0} quilogramas"}},
        {GXAccessibilityUnit::Pound, {.one = "{0} libra", .other = "{0} libras"}},
        {GXAccessibilityUnit::Stone, {.one = "{0} stone", .other = "{0} stones"}},
        {GXAccessibilityUnit::Centimetre, {.one = "{0} centímetro", .other = "{0} centímetros"}},
        {GXAccessibilityUnit::Foot, {.one = "{0} pé", .other = "{0} pés"}},
        {GXAccessibilityUnit::Inch, {.one = "{0} polegada", .other = "{0} polegadas"}},
        {GXAccessibilityUnit::DegreeCelsius, {.one = "{0} grau Celsius", .other = "{0} graus Celsius"}},
        {GXAccessibilityUnit::DegreeFahrenheit, {.one = "{0} grau Fahrenheit", .other = "{0} graus Fahrenheit"}},
    };
};

} // namespace gx
