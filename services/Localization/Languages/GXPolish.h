#pragma once

#include "GXLanguageTexts.h"

namespace gx {

/// Polish.
struct GXPolish {
    static constexpr std::string_view identifier = "pl";
    static constexpr std::string_view ownName = "Polski";
    static constexpr std::string_view decimalSeparator = ",";

    /// 22 is "few", but 12 is "many".
    static constexpr GXPluralCategory pluralCategory(const GXPluralOperands& number) {
        if (!number.isWhole()) return GXPluralCategory::Other;
        if (number.integer == 1) return GXPluralCategory::One;
        return number.endsInTwoToFour() ? GXPluralCategory::Few : GXPluralCategory::Many;
    }

    static constexpr GXText unitTexts[] = {
        {"bpm", "ud./min"}, {"hh:mm", "gg:mm"},   {"hh:mm:ss", "gg:mm:ss"},
        {"mm:ss", "mm:ss"}, {"min/km", "min/km"}, {"min/mi", "min/mi"},
        {"AVG", "ŚR"},      {"MAX", "MAKS"},      {"kg", "kg"},
        {"lb", "lb"},       {"st", "st"},         {"cm", "cm"},
        {"ft", "ft"},       {"°C", "°C"},         {"°F", "°F"},
        {"km", "km"},       {"mi", "mi"},         {"km/h", "km/h"},
        {"mph", "mph"},     {"kcal", "kcal"},     {"h", "godz."},
        {"min", "min"},     {", ", ", "},
    };

    static constexpr GXAccessibilityNameText accessibilityNames[] = {
        {GXAccessibilityName::Distance, "Dystans"},
        {GXAccessibilityName::Duration, "Czas trwania"},
        {GXAccessibilityName::Pace, "Tempo"},
        {GXAccessibilityName::Speed, "Prędkość"},
        {GXAccessibilityName::AverageHeartRate, "Średnie tętno"},
        {GXAccessibilityName::MaximumHeartRate, "Maksymalne tętno"},
        {GXAccessibilityName::BeatsPerMinute, "Uderzenia na minutę"},
        {GXAccessibilityName::Calories, "Kalorie"},
        {GXAccessibilityName::Weight, "Waga"},
        {GXAccessibilityName::Height, "Wzrost"},
        {GXAccessibilityName::Temperature, "Temperatura"},
        {GXAccessibilityName::Icon, "Ikona"},
        {GXAccessibilityName::Kilometres, "kilometry"},
        {GXAccessibilityName::Miles, "mile"},
        {GXAccessibilityName::Tenths, "dziesiąte"},
        {GXAccessibilityName::Hundredths, "setne"},
        {GXAccessibilityName::Hours, "godziny"},
        {GXAccessibilityName::Minutes, "minuty"},
        {GXAccessibilityName::Seconds, "sekundy"},
        {GXAccessibilityName::KilometresPerHour, "kilometry na godzinę"},
        {GXAccessibilityName::MilesPerHour, "mile na godzinę"},
        {GXAccessibilityName::Kilograms, "kilogramy"},
        {GXAccessibilityName::Pounds, "funty"},
        {GXAccessibilityName::Stones, "kamienie"},
        {GXAccessibilityName::Centimetres, "centymetry"},
        {GXAccessibilityName::Feet, "stopy"},
        {GXAccessibilityName::Inches, "cale"},
        {GXAccessibilityName::Unit, "jednostka"},
        {GXAccessibilityName::Average, "średnia"},
        {GXAccessibilityName::Maximum, "maksimum"},
        {GXAccessibilityName::NoValue, "brak wartości"},
        {GXAccessibilityName::NameAndPart, "{0}, {1}"},
        {GXAccessibilityName::Sum, "{0} {1}"},
        {GXAccessibilityName::Minus, "minus {0}"},
        {GXAccessibilityName::PerKilometre, "{0} na kilometr"},
        {GXAccessibilityName::PerMile, "{0} na milę"},
    };

    static constexpr GXAccessibilityUnitText accessibilityUnits[] = {
        {GXAccessibilityUnit::Kilometre,
         {.one = "{0} kilometr", .few = "{0} kilometry", .many = "{0} kilometrów", .other = "{0} kilometra"}},
        {GXAccessibilityUnit::Mile, {.one = "{0} mila", .few = "{0} mile", .many = "{0} mil", .other = "{0} mili"}},
        {GXAccessibilityUnit::Hour, {.one = "{0} godzina", .few = "{0} godziny", .many = "{0} godzin", .other = "{0} godziny"}},
        {GXAccessibilityUnit::Minute, {.one = "{0} minuta", .few = "{0} minuty", .many = "{0} minut", .other = "{0} minuty"}},
        {GXAccessibilityUnit::Second, {.one = "{0} sekunda", .few = "{0} sekundy", .many = "{0} sekund", .other = "{0} sekundy"}},
        {GXAccessibilityUnit::KilometrePerHour,
         {.one = "{0} kilometr na godzinę",
          .few = "{0} kilometry na godzinę",
          .many = "{0} kilometrów na godzinę",
          .other = "{0} kilometra na godzinę"}},
        {GXAccessibilityUnit::MilePerHour,
         {.one = "{0} mila na godzinę", .few = "{0} mile na godzinę", .many = "{0} mil na godzinę", .other = "{0} mili na godzinę"}},
        {GXAccessibilityUnit::BeatPerMinute,
         {.one = "{0} uderzenie na minutę",
          .few = "{0} uderzenia na minutę",
          .many = "{0} uderzeń na minutę",
          .other = "{0} uderzenia na minutę"}},
        {GXAccessibilityUnit::Kilocalorie,
         {.one = "{0} kilokaloria", .few = "{0} kilokalorie", .many = "{0} kilokalorii", .other = "{0} kilokalorii"}},
        {GXAccessibilityUnit::Kilogram,
         {.one = "{0} kilogram", .few = "{0} kilogramy", .many = "{0} kilogramów", .other = "{0} kilograma"}},
        {GXAccessibilityUnit::Pound, {.one = "{0} funt", .few = "{0} funty", .many = "{0} funtów", .other = "{0} funta"}},
        {GXAccessibilityUnit::Stone, {.one = "{0} kamień", .few = "{0} kamienie", .many = "{0} kamieni", .other = "{0} kamienia"}},
        {GXAccessibilityUnit::Centimetre,
         {.one = "{0} centymetr", .few = "{0} centymetry", .many = "{0} centymetrów", .other = "{0} centymetra"}},
        {GXAccessibilityUnit::Foot, {.one = "{0} stopa", .few = "{0} stopy", .many = "{0} stóp", .other = "{0} stopy"}},
        {GXAccessibilityUnit::Inch, {.one = "{0} cal", .few = "{0} cale", .many = "{0} cali", .other = "{0} cala"}},
        {GXAccessibilityUnit::DegreeCelsius,
         {.one = "{0} stopień Celsjusza",
          .few = "{0} stopnie Celsjusza",
          .many = "{0} stopni Celsjusza",
          .other = "{0} stopnia Celsjusza"}},
        {GXAccessibilityUnit::DegreeFahrenheit,
         {.one = "{0} stopień Fahrenheita",
          .few = "{0} stopnie Fahrenheita",
          .many = "{0} stopni Fahrenheita",
          .other = "{0} stopnia Fahrenheita"}},
    };
};

} // namespace gx
