#pragma once

#include "GXLanguageTexts.h"

namespace gx {

/// French.
struct GXFrench {
    static constexpr std::string_view identifier = "fr";
    static constexpr std::string_view ownName = "Français";
    static constexpr std::string_view decimalSeparator = ",";

    static constexpr GXPluralCategory pluralCategory(const GXPluralOperands& number) {
        return oneIf(number.integer <= 1); // 0, 1 and 1.9
    }

    static constexpr GXText unitTexts[] = {
        {"bpm", "bpm"},     {"hh:mm", "hh:mm"},   {"hh:mm:ss", "hh:mm:ss"},
        {"mm:ss", "mm:ss"}, {"min/km", "min/km"}, {"min/mi", "min/mi"},
        {"AVG", "MOY"},     {"MAX", "MAX"},       {"kg", "kg"},
        {"lb", "lb"},       {"st", "st"},         {"cm", "cm"},
        {"ft", "pi"},       {"°C", "°C"},         {"°F", "°F"},
        {"km", "km"},       {"mi", "mi"},         {"km/h", "km/h"},
        {"mph", "mi/h"},    {"kcal", "kcal"},     {"h", "h"},
        {"min", "min"},     {", ", ", "},
    };

    static constexpr GXAccessibilityNameText accessibilityNames[] = {
        {GXAccessibilityName::Distance, "Distance"},
        {GXAccessibilityName::Duration, "Durée"},
        {GXAccessibilityName::Pace, "Allure"},
        {GXAccessibilityName::Speed, "Vitesse"},
        {GXAccessibilityName::AverageHeartRate, "Fréquence cardiaque moyenne"},
        {GXAccessibilityName::MaximumHeartRate, "Fréquence cardiaque maximale"},
        {GXAccessibilityName::BeatsPerMinute, "Battements par minute"},
        {GXAccessibilityName::Calories, "Calories"},
        {GXAccessibilityName::Weight, "Poids"},
        {GXAccessibilityName::Height, "Taille"},
        {GXAccessibilityName::Temperature, "Température"},
        {GXAccessibilityName::Icon, "Icône"},
        {GXAccessibilityName::Kilometres, "kilomètres"},
        {GXAccessibilityName::Miles, "miles"},
        {GXAccessibilityName::Tenths, "dixièmes"},
        {GXAccessibilityName::Hundredths, "centièmes"},
        {GXAccessibilityName::Hours, "heures"},
        {GXAccessibilityName::Minutes, "minutes"},
        {GXAccessibilityName::Seconds, "secondes"},
        {GXAccessibilityName::KilometresPerHour, "kilomètres par heure"},
        {GXAccessibilityName::MilesPerHour, "miles par heure"},
        {GXAccessibilityName::Kilograms, "kilogrammes"},
        {GXAccessibilityName::Pounds, "livres"},
        {GXAccessibilityName::Stones, "stones"},
        {GXAccessibilityName::Centimetres, "centimètres"},
        {GXAccessibilityName::Feet, "pieds"},
        {GXAccessibilityName::Inches, "pouces"},
        {GXAccessibilityName::Unit, "unité"},
        {GXAccessibilityName::Average, "moyenne"},
        {GXAccessibilityName::Maximum, "maximum"},
        {GXAccessibilityName::NoValue, "aucune valeur"},
        {GXAccessibilityName::NameAndPart, "{0}, {1}"},
        {GXAccessibilityName::Sum, "{0} {1}"},
        {GXAccessibilityName::Minus, "moins {0}"},
        {GXAccessibilityName::PerKilometre, "{0} par kilomètre"},
        {GXAccessibilityName::PerMile, "{0} par mile"},
    };

    static constexpr GXAccessibilityUnitText accessibilityUnits[] = {
        {GXAccessibilityUnit::Kilometre, {.one = "{0} kilomètre", .other = "{0} kilomètres"}},
        {GXAccessibilityUnit::Mile, {.one = "{0} mile", .other = "{0} miles"}},
        {GXAccessibilityUnit::Hour, {.one = "{0} heure", .other = "{0} heures"}},
        {GXAccessibilityUnit::Minute, {.one = "{0} minute", .other = "{0} minutes"}},
        {GXAccessibilityUnit::Second, {.one = "{0} seconde", .other = "{0} secondes"}},
        {GXAccessibilityUnit::KilometrePerHour, {.one = "{0} kilomètre par heure", .other = "{0} kilomètres par heure"}},
        {GXAccessibilityUnit::MilePerHour, {.one = "{0} mile par heure", .other = "{0} miles par heure"}},
        {GXAccessibilityUnit::BeatPerMinute, {.one = "{0} battement par minute", .other = "{0} battements par minute"}},
        {GXAccessibilityUnit::Kilocalorie, {.one = "{0} kilocalorie", .other = "{0} kilocalories"}},
        {GXAccessibilityUnit::Kilogram, {.one = "{0} kilogramme", .other = "{0} kilogrammes"}},
        {GXAccessibilityUnit::Pound, {.one = "{0} livre", .other = "{0} livres"}},
        {GXAccessibilityUnit::Stone, {.one = "{0} stone", .other = "{0} stones"}},
        {GXAccessibilityUnit::Centimetre, {.one = "{0} centimètre", .other = "{0} centimètres"}},
        {GXAccessibilityUnit::Foot, {.one = "{0} pied", .other = "{0} pieds"}},
        {GXAccessibilityUnit::Inch, {.one = "{0} pouce", .other = "{0} pouces"}},
        {GXAccessibilityUnit::DegreeCelsius, {.one = "{0} degré Celsius", .other = "{0} degrés Celsius"}},
        {GXAccessibilityUnit::DegreeFahrenheit, {.one = "{0} degré Fahrenheit", .other = "{0} degrés Fahrenheit"}},
    };
};

} // namespace gx
