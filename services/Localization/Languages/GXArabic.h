#pragma once

#include "GXLanguageTexts.h"

namespace gx {

/// The plural is that of 3 to 10, the accusative that of 11 to 99.
constexpr GXPluralForms arabicForms(std::string_view singular, std::string_view plural, std::string_view accusative) {
    return {.zero = singular, .one = singular, .two = singular, .few = plural, .many = accusative, .other = singular};
}

/// Arabic, with the digits 0 to 9.
///
/// Units inflect as counted nouns do: the plural from 3 to 10, the accusative from 11 to 99, else
/// the singular. CLDR leaves some of them as they are.
struct GXArabic {
    static constexpr std::string_view identifier = "ar";
    static constexpr std::string_view ownName = "العربية";
    static constexpr std::string_view decimalSeparator = ".";

    /// By the value, so that "1.0" is "one" as well. The last two digits of 103 count as 3, but
    /// those of 100, 101 and 102 have no form of their own.
    static constexpr GXPluralCategory pluralCategory(const GXPluralOperands& number) {
        if (!number.isFractionZero) return GXPluralCategory::Other;
        if (number.integer == 0) return GXPluralCategory::Zero;
        if (number.integer == 1) return GXPluralCategory::One;
        if (number.integer == 2) return GXPluralCategory::Two;
        const int tens = number.integer % 100;
        if (tens < 3) return GXPluralCategory::Other;
        return tens <= 10 ? GXPluralCategory::Few : GXPluralCategory::Many;
    }

    static constexpr GXText unitTexts[] = {
        {"bpm", "نبضة/د"},  {"hh:mm", "hh:mm"}, {"hh:mm:ss", "hh:mm:ss"},
        {"mm:ss", "mm:ss"}, {"min/km", "د/كم"}, {"min/mi", "د/ميل"},
        {"AVG", "متوسط"},   {"MAX", "أقصى"},    {"kg", "كغم"},
        {"lb", "رطل"},      {"st", "ستون"},     {"cm", "سم"},
        {"ft", "قدم"},      {"°C", "°م"},       {"°F", "°ف"},
        {"km", "كم"},       {"mi", "ميل"},      {"km/h", "كم/س"},
        {"mph", "ميل/س"},   {"kcal", "سعرة"},   {"h", "س"},
        {"min", "د"},       {", ", "، "},
    };

    static constexpr GXAccessibilityNameText accessibilityNames[] = {
        {GXAccessibilityName::Distance, "المسافة"},
        {GXAccessibilityName::Duration, "المدة"},
        {GXAccessibilityName::Pace, "الوتيرة"},
        {GXAccessibilityName::Speed, "السرعة"},
        {GXAccessibilityName::AverageHeartRate, "متوسط معدل نبض القلب"},
        {GXAccessibilityName::MaximumHeartRate, "أقصى معدل لنبض القلب"},
        {GXAccessibilityName::BeatsPerMinute, "النبضات في الدقيقة"},
        {GXAccessibilityName::Calories, "السعرات الحرارية"},
        {GXAccessibilityName::Weight, "الوزن"},
        {GXAccessibilityName::Height, "الطول"},
        {GXAccessibilityName::Temperature, "درجة الحرارة"},
        {GXAccessibilityName::Icon, "أيقونة"},
        {GXAccessibilityName::Kilometres, "كيلومترات"},
        {GXAccessibilityName::Miles, "أميال"},
        {GXAccessibilityName::Tenths, "أعشار"},
        {GXAccessibilityName::Hundredths, "أجزاء من المئة"},
        {GXAccessibilityName::Hours, "ساعات"},
        {GXAccessibilityName::Minutes, "دقائق"},
        {GXAccessibilityName::Seconds, "ثوان"},
        {GXAccessibilityName::KilometresPerHour, "كيلومترات في الساعة"},
        {GXAccessibilityName::MilesPerHour, "أميال في الساعة"},
        {GXAccessibilityName::Kilograms, "كيلوغرامات"},
        {GXAccessibilityName::Pounds, "أرطال"},
        {GXAccessibilityName::Stones, "ستون"},
        {GXAccessibilityName::Centimetres, "سنتيمترات"},
        {GXAccessibilityName::Feet, "أقدام"},
        {GXAccessibilityName::Inches, "بوصات"},
        {GXAccessibilityName::Unit, "الوحدة"},
        {GXAccessibilityName::Average, "المتوسط"},
        {GXAccessibilityName::Maximum, "الحد الأقصى"},
        {GXAccessibilityName::NoValue, "لا توجد قيمة"},
        {GXAccessibilityName::NameAndPart, "{0}، {1}"},
        {GXAccessibilityName::Sum, "{0} و{1}"},
        {GXAccessibilityName::Minus, "سالب {0}"},
        {GXAccessibilityName::PerKilometre, "{0} لكل كيلومتر"},
        {GXAccessibilityName::PerMile, "{0} لكل ميل"},
    };

    static constexpr GXAccessibilityUnitText accessibilityUnits[] = {
        {GXAccessibilityUnit::Kilometre, arabicForms("{0} كيلومتر", "{0} كيلومترات", "{0} كيلومترًا")},
        {GXAccessibilityUnit::Mile, arabicForms("{0} ميل", "{0} أميال", "{0} ميلًا")},
        {GXAccessibilityUnit::Hour, arabicForms("{0} ساعة", "{0} ساعات", "{0} ساعة")},
        {GXAccessibilityUnit::Minute, arabicForms("{0} دقيقة", "{0} دقائق", "{0} دقيقة")},
        {GXAccessibilityUnit::Second, arabicForms("{0} ثانية", "{0} ثوان", "{0} ثانية")},
        {GXAccessibilityUnit::KilometrePerHour, arabicForms("{0} كيلومتر في الساعة", "{0} كيلومترات في الساعة", "{0} كيلومترًا في الساعة")},
        {GXAccessibilityUnit::MilePerHour, arabicForms("{0} ميل في الساعة", "{0} أميال في الساعة", "{0} ميلًا في الساعة")},
        {GXAccessibilityUnit::BeatPerMinute, arabicForms("{0} نبضة في الدقيقة", "{0} نبضات في الدقيقة", "{0} نبضة في الدقيقة")},
        {GXAccessibilityUnit::Kilocalorie, arabicForms("{0} سعرة حرارية", "{0} سعرات حرارية", "{0} سعرة حرارية")},
        {GXAccessibilityUnit::Kilogram, arabicForms("{0} كيلوغرام", "{0} كيلوغرامات", "{0} كيلوغرامًا")},
        {GXAccessibilityUnit::Pound, arabicForms("{0} رطل", "{0} أرطال", "{0} رطلًا")},
        {GXAccessibilityUnit::Stone, arabicForms("{0} ستون", "{0} ستون", "{0} ستون")},
        {GXAccessibilityUnit::Centimetre, arabicForms("{0} سنتيمتر", "{0} سنتيمترات", "{0} سنتيمترًا")},
        {GXAccessibilityUnit::Foot, arabicForms("{0} قدم", "{0} أقدام", "{0} قدمًا")},
        {GXAccessibilityUnit::Inch, arabicForms("{0} بوصة", "{0} بوصات", "{0} بوصة")},
        {GXAccessibilityUnit::DegreeCelsius, arabicForms("{0} درجة مئوية", "{0} درجات مئوية", "{0} درجة مئوية")},
        {GXAccessibilityUnit::DegreeFahrenheit, arabicForms("{0} درجة فهرنهايت", "{0} درجات فهرنهايت", "{0} درجة فهرنهايت")},
    };
};

} // namespace gx
