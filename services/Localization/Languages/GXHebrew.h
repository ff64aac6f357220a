#pragma once

#include "GXLanguageTexts.h"

namespace gx {

/// With the number in front, two take the same form as more.
constexpr GXPluralForms hebrewForms(std::string_view singular, std::string_view plural) {
    return {.one = singular, .two = plural, .other = plural};
}

/// Hebrew.
struct GXHebrew {
    static constexpr std::string_view identifier = "he";
    static constexpr std::string_view ownName = "עברית";
    static constexpr std::string_view decimalSeparator = ".";

    /// Between 0 and 1 is "one" as well: "0.5 kilometre". "1.0" and "2.0" are "other".
    static constexpr GXPluralCategory pluralCategory(const GXPluralOperands& number) {
        if (!number.isWhole()) return oneIf(number.integer == 0);
        return number.integer == 2 ? GXPluralCategory::Two : oneIf(number.integer == 1);
    }

    static constexpr GXText unitTexts[] = {
        {"bpm", "פע׳/דק׳"}, {"hh:mm", "hh:mm"},    {"hh:mm:ss", "hh:mm:ss"},
        {"mm:ss", "mm:ss"}, {"min/km", "דק׳/ק״מ"}, {"min/mi", "דק׳/מייל"},
        {"AVG", "ממוצע"},   {"MAX", "מרבי"},       {"kg", "ק״ג"},
        {"lb", "lb"},       {"st", "סטון"},        {"cm", "ס״מ"},
        {"ft", "ft"},       {"°C", "°C"},          {"°F", "°F"},
        {"km", "ק״מ"},      {"mi", "מייל"},        {"km/h", "קמ״ש"},
        {"mph", "mph"},     {"kcal", "קק״ל"},      {"h", "שע׳"},
        {"min", "דק׳"},     {", ", ", "},
    };

    static constexpr GXAccessibilityNameText accessibilityNames[] = {
        {GXAccessibilityName::Distance, "מרחק"},
        {GXAccessibilityName::Duration, "משך זמן"},
        {GXAccessibilityName::Pace, "קצב"},
        {GXAccessibilityName::Speed, "מהירות"},
        {GXAccessibilityName::AverageHeartRate, "דופק ממוצע"},
        {GXAccessibilityName::MaximumHeartRate, "דופק מרבי"},
        {GXAccessibilityName::BeatsPerMinute, "פעימות לדקה"},
        {GXAccessibilityName::Calories, "קלוריות"},
        {GXAccessibilityName::Weight, "משקל"},
        {GXAccessibilityName::Height, "גובה"},
        {GXAccessibilityName::Temperature, "טמפרטורה"},
        {GXAccessibilityName::Icon, "סמל"},
        {GXAccessibilityName::Kilometres, "קילומטרים"},
        {GXAccessibilityName::Miles, "מיילים"},
        {GXAccessibilityName::Tenths, "עשיריות"},
        {GXAccessibilityName::Hundredths, "מאיות"},
        {GXAccessibilityName::Hours, "שעות"},
        {GXAccessibilityName::Minutes, "דקות"},
        {GXAccessibilityName::Seconds, "שניות"},
        {GXAccessibilityName::KilometresPerHour, "קילומטרים לשעה"},
        {GXAccessibilityName::MilesPerHour, "מיילים לשעה"},
        {GXAccessibilityName::Kilograms, "קילוגרמים"},
        {GXAccessibilityName::Pounds, "פאונד"},
        {GXAccessibilityName::Stones, "סטון"},
        {GXAccessibilityName::Centimetres, "סנטימטרים"},
        {GXAccessibilityName::Feet, "רגל"},
        {GXAccessibilityName::Inches, "אינץ׳"},
        {GXAccessibilityName::Unit, "יחידה"},
        {GXAccessibilityName::Average, "ממוצע"},
        {GXAccessibilityName::Maximum, "מרבי"},
        {GXAccessibilityName::NoValue, "אין ערך"},
        {GXAccessibilityName::NameAndPart, "{0}, {1}"},
        {GXAccessibilityName::Sum, "{0}, {1}"},
        {GXAccessibilityName::Minus, "מינוס {0}"},
        {GXAccessibilityName::PerKilometre, "{0} לקילומטר"},
        {GXAccessibilityName::PerMile, "{0} למייל"},
    };

    static constexpr GXAccessibilityUnitText accessibilityUnits[] = {
        {GXAccessibilityUnit::Kilometre, hebrewForms("{0} קילומטר", "{0} קילומטרים")},
        {GXAccessibilityUnit::Mile, hebrewForms("{0} מייל", "{0} מייל")},
        {GXAccessibilityUnit::Hour, hebrewForms("{0} שעה", "{0} שעות")},
        {GXAccessibilityUnit::Minute, hebrewForms("{0} דקה", "{0} דקות")},
        {GXAccessibilityUnit::Second, hebrewForms("{0} שנייה", "{0} שניות")},
        {GXAccessibilityUnit::KilometrePerHour, hebrewForms("{0} קילומטר לשעה", "{0} קילומטר לשעה")},
        {GXAccessibilityUnit::MilePerHour, hebrewForms("{0} מייל לשעה", "{0} מייל לשעה")},
        {GXAccessibilityUnit::BeatPerMinute, hebrewForms("{0} פעימה לדקה", "{0} פעימות לדקה")},
        {GXAccessibilityUnit::Kilocalorie, hebrewForms("{0} קילו קלוריה", "{0} קילו קלוריות")},
        {GXAccessibilityUnit::Kilogram, hebrewForms("{0} קילוגרם", "{0} קילוגרם")},
        {GXAccessibilityUnit::Pound, hebrewForms("{0} פאונד", "{0} פאונד")},
        {GXAccessibilityUnit::Stone, hebrewForms("{0} סטון", "{0} סטון")},
        {GXAccessibilityUnit::Centimetre, hebrewForms("{0} סנטימטר", "{0} סנטימטרים")},
        {GXAccessibilityUnit::Foot, hebrewForms("{0} רגל", "{0} רגל")},
        {GXAccessibilityUnit::Inch, hebrewForms("{0} אינץ׳", "{0} אינץ׳")},
        {GXAccessibilityUnit::DegreeCelsius, hebrewForms("{0} מעלת צלזיוס", "{0} מעלות צלזיוס")},
        {GXAccessibilityUnit::DegreeFahrenheit, hebrewForms("{0} מעלת פרנהייט", "{0} מעלות פרנהייט")},
    };
};

} // namespace gx
