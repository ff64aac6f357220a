#pragma once

#include "GXLanguageTexts.h"

namespace gx {

/// Korean.
struct GXKorean {
    static constexpr std::string_view identifier = "ko";
    static constexpr std::string_view ownName = "한국어";
    static constexpr std::string_view decimalSeparator = ".";

    static constexpr GXPluralCategory pluralCategory(const GXPluralOperands& /*number*/) { return GXPluralCategory::Other; }

    static constexpr GXText unitTexts[] = {
        {"bpm", "bpm"},     {"hh:mm", "시:분"},  {"hh:mm:ss", "시:분:초"},
        {"mm:ss", "분:초"}, {"min/km", "분/km"}, {"min/mi", "분/mi"},
        {"AVG", "평균"},    {"MAX", "최대"},     {"kg", "kg"},
        {"lb", "lb"},       {"st", "st"},        {"cm", "cm"},
        {"ft", "ft"},       {"°C", "°C"},        {"°F", "°F"},
        {"km", "km"},       {"mi", "mi"},        {"km/h", "km/h"},
        {"mph", "mph"},     {"kcal", "kcal"},    {"h", "시간"},
        {"min", "분"},      {", ", ", "},
    };

    static constexpr GXAccessibilityNameText accessibilityNames[] = {
        {GXAccessibilityName::Distance, "거리"},
        {GXAccessibilityName::Duration, "소요 시간"},
        {GXAccessibilityName::Pace, "페이스"},
        {GXAccessibilityName::Speed, "속도"},
        {GXAccessibilityName::AverageHeartRate, "평균 심박수"},
        {GXAccessibilityName::MaximumHeartRate, "최대 심박수"},
        {GXAccessibilityName::BeatsPerMinute, "분당 심박수"},
        {GXAccessibilityName::Calories, "칼로리"},
        {GXAccessibilityName::Weight, "체중"},
        {GXAccessibilityName::Height, "키"},
        {GXAccessibilityName::Temperature, "온도"},
        {GXAccessibilityName::Icon, "아이콘"},
        {GXAccessibilityName::Kilometres, "킬로미터"},
        {GXAccessibilityName::Miles, "마일"},
        {GXAccessibilityName::Tenths, "소수 첫째 자리"},
        {GXAccessibilityName::Hundredths, "소수 둘째 자리"},
        {GXAccessibilityName::Hours, "시간"},
        {GXAccessibilityName::Minutes, "분"},
        {GXAccessibilityName::Seconds, "초"},
        {GXAccessibilityName::KilometresPerHour, "시속 킬로미터"},
        {GXAccessibilityName::MilesPerHour, "시속 마일"},
        {GXAccessibilityName::Kilograms, "킬로그램"},
        {GXAccessibilityName::Pounds, "파운드"},
        {GXAccessibilityName::Stones, "스톤"},
        {GXAccessibilityName::Centimetres, "센티미터"},
        {GXAccessibilityName::Feet, "피트"},
        {GXAccessibilityName::Inches, "인치"},
        {GXAccessibilityName::Unit, "단위"},
        {GXAccessibilityName::Average, "평균"},
        {GXAccessibilityName::Maximum, "최대"},
        {GXAccessibilityName::NoValue, "값 없음"},
        {GXAccessibilityName::NameAndPart, "{0}, {1}"},
        {GXAccessibilityName::Sum, "{0} {1}"},
        {GXAccessibilityName::Minus, "마이너스 {0}"},
        {GXAccessibilityName::PerKilometre, "킬로미터당 {0}"},
        {GXAccessibilityName::PerMile, "마일당 {0}"},
    };

    static constexpr GXAccessibilityUnitText accessibilityUnits[] = {
        {GXAccessibilityUnit::Kilometre, {.other = "{0}킬로미터"}},
        {GXAccessibilityUnit::Mile, {.other = "{0}마일"}},
        {GXAccessibilityUnit::Hour, {.other = "{0}시간"}},
        {GXAccessibilityUnit::Minute, {.other = "{0}분"}},
        {GXAccessibilityUnit::Second, {.other = "{0}초"}},
        {GXAccessibilityUnit::KilometrePerHour, {.other = "시속 {0}킬로미터"}},
        {GXAccessibilityUnit::MilePerHour, {.other = "시속 {0}마일"}},
        {GXAccessibilityUnit::BeatPerMinute, {.other = "분당 {0}회"}},
        {GXAccessibilityUnit::Kilocalorie, {.other = "{0}킬로칼로리"}},
        {GXAccessibilityUnit::Kilogram, {.other = "{0}킬로그램"}},
        {GXAccessibilityUnit::Pound, {.other = "{0}파운드"}},
        {GXAccessibilityUnit::Stone, {.other = "{0}스톤"}},
        {GXAccessibilityUnit::Centimetre, {.other = "{0}센티미터"}},
        {GXAccessibilityUnit::Foot, {.other = "{0}피트"}},
        {GXAccessibilityUnit::Inch, {.other = "{0}인치"}},
        {GXAccessibilityUnit::DegreeCelsius, {.other = "섭씨 {0}도"}},
        {GXAccessibilityUnit::DegreeFahrenheit, {.other = "화씨 {0}도"}},
    };
};

} // namespace gx
