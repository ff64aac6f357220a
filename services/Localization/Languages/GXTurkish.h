#pragma once

#include "GXLanguageTexts.h"

namespace gx {

/// Turkish. A unit stays singular after a number, so there is one category.
struct GXTurkish {
    static constexpr std::string_view identifier = "tr";
    static constexpr std::string_view ownName = "Türkçe";
    static constexpr std::string_view decimalSeparator = ",";

    static constexpr GXPluralCategory pluralCategory(const GXPluralOperands& /*number*/) { return GXPluralCategory::Other; }

    static constexpr GXText unitTexts[] = {
        {"bpm", "atım/dk"}, {"hh:mm", "sa:dk"},  {"hh:mm:ss", "sa:dk:sn"},
        {"mm:ss", "dk:sn"}, {"min/km", "dk/km"}, {"min/mi", "dk/mil"},
        {"AVG", "ORT"},     {"MAX", "MAKS"},     {"kg", "kg"},
        {"lb", "lb"},       {"st", "st"},        {"cm", "cm"},
        {"ft", "fit"},      {"°C", "°C"},        {"°F", "°F"},
        {"km", "km"},       {"mi", "mil"},       {"km/h", "km/sa"},
        {"mph", "mil/sa"},  {"kcal", "kcal"},    {"h", "sa"},
        {"min", "dk"},      {", ", ", "},
    };

    static constexpr GXAccessibilityNameText accessibilityNames[] = {
        {GXAccessibilityName::Distance, "Mesafe"},
        {GXAccessibilityName::Duration, "Süre"},
        {GXAccessibilityName::Pace, "Tempo"},
        {GXAccessibilityName::Speed, "Hız"},
        {GXAccessibilityName::AverageHeartRate, "Ortalama kalp atış hızı"},
        {GXAccessibilityName::MaximumHeartRate, "En yüksek kalp atış hızı"},
        {GXAccessibilityName::BeatsPerMinute, "Dakikadaki atım"},
        {GXAccessibilityName::Calories, "Kalori"},
        {GXAccessibilityName::Weight, "Kilo"},
        {GXAccessibilityName::Height, "Boy"},
        {GXAccessibilityName::Temperature, "Sıcaklık"},
        {GXAccessibilityName::Icon, "Simge"},
        {GXAccessibilityName::Kilometres, "kilometre"},
        {GXAccessibilityName::Miles, "mil"},
        {GXAccessibilityName::Tenths, "onda birler"},
        {GXAccessibilityName::Hundredths, "yüzde birler"},
        {GXAccessibilityName::Hours, "saat"},
        {GXAccessibilityName::Minutes, "dakika"},
        {GXAccessibilityName::Seconds, "saniye"},
        {GXAccessibilityName::KilometresPerHour, "saatte kilometre"},
        {GXAccessibilityName::MilesPerHour, "saatte mil"},
        {GXAccessibilityName::Kilograms, "kilogram"},
        {GXAccessibilityName::Pounds, "libre"},
        {GXAccessibilityName::Stones, "stone"},
        {GXAccessibilityName::Centimetres, "santimetre"},
        {GXAccessibilityName::Feet, "fit"},
        {GXAccessibilityName::Inches, "inç"},
        {GXAccessibilityName::Unit, "birim"},
        {GXAccessibilityName::Average, "ortalama"},
        {GXAccessibilityName::Maximum, "en yüksek"},
        {GXAccessibilityName::NoValue, "değer yok"},
        {GXAccessibilityName::NameAndPart, "{0}, {1}"},
        {GXAccessibilityName::Sum, "{0} {1}"},
        {GXAccessibilityName::Minus, "eksi {0}"},
        {GXAccessibilityName::PerKilometre, "kilometre başına {0}"},
        {GXAccessibilityName::PerMile, "mil başına {0}"},
    };

    static constexpr GXAccessibilityUnitText accessibilityUnits[] = {
        {GXAccessibilityUnit::Kilometre, {.other = "{0} kilometre"}},
        {GXAccessibilityUnit::Mile, {.other = "{0} mil"}},
        {GXAccessibilityUnit::Hour, {.other = "{0} saat"}},
        {GXAccessibilityUnit::Minute, {.other = "{0} dakika"}},
        {GXAccessibilityUnit::Second, {.other = "{0} saniye"}},
        {GXAccessibilityUnit::KilometrePerHour, {.other = "saatte {0} kilometre"}},
        {GXAccessibilityUnit::MilePerHour, {.other = "saatte {0} mil"}},
        {GXAccessibilityUnit::BeatPerMinute, {.other = "dakikada {0} atım"}},
        {GXAccessibilityUnit::Kilocalorie, {.other = "{0} kilokalori"}},
        {GXAccessibilityUnit::Kilogram, {.other = "{0} kilogram"}},
        {GXAccessibilityUnit::Pound, {.other = "{0} libre"}},
        {GXAccessibilityUnit::Stone, {.other = "{0} stone"}},
        {GXAccessibilityUnit::Centimetre, {.other = "{0} santimetre"}},
        {GXAccessibilityUnit::Foot, {.other = "{0} fit"}},
        {GXAccessibilityUnit::Inch, {.other = "{0} inç"}},
        {GXAccessibilityUnit::DegreeCelsius, {.other = "{0} santigrat derece"}},
        {GXAccessibilityUnit::DegreeFahrenheit, {.other = "{0} fahrenhayt derece"}},
    };
};

} // namespace gx
