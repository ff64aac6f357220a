#pragma once

#include "GXLanguageTexts.h"

namespace gx {

/// Japanese.
struct GXJapanese {
    static constexpr std::string_view identifier = "ja";
    static constexpr std::string_view ownName = "日本語";
    static constexpr std::string_view decimalSeparator = ".";

    static constexpr GXPluralCategory pluralCategory(const GXPluralOperands& /*number*/) { return GXPluralCategory::Other; }

    static constexpr GXText unitTexts[] = {
        {"bpm", "拍/分"},   {"hh:mm", "時:分"},  {"hh:mm:ss", "時:分:秒"},
        {"mm:ss", "分:秒"}, {"min/km", "分/km"}, {"min/mi", "分/mi"},
        {"AVG", "平均"},    {"MAX", "最大"},     {"kg", "kg"},
        {"lb", "lb"},       {"st", "st"},        {"cm", "cm"},
        {"ft", "ft"},       {"°C", "°C"},        {"°F", "°F"},
        {"km", "km"},       {"mi", "mi"},        {"km/h", "km/h"},
        {"mph", "mph"},     {"kcal", "kcal"},    {"h", "時間"},
        {"min", "分"},      {", ", "、"},
    };

    static constexpr GXAccessibilityNameText accessibilityNames[] = {
        {GXAccessibilityName::Distance, "距離"},
        {GXAccessibilityName::Duration, "所要時間"},
        {GXAccessibilityName::Pace, "ペース"},
        {GXAccessibilityName::Speed, "速度"},
        {GXAccessibilityName::AverageHeartRate, "平均心拍数"},
        {GXAccessibilityName::MaximumHeartRate, "最大心拍数"},
        {GXAccessibilityName::BeatsPerMinute, "毎分の拍数"},
        {GXAccessibilityName::Calories, "カロリー"},
        {GXAccessibilityName::Weight, "体重"},
        {GXAccessibilityName::Height, "身長"},
        {GXAccessibilityName::Temperature, "気温"},
        {GXAccessibilityName::Icon, "アイコン"},
        {GXAccessibilityName::Kilometres, "キロメートル"},
        {GXAccessibilityName::Miles, "マイル"},
        {GXAccessibilityName::Tenths, "小数第一位"},
        {GXAccessibilityName::Hundredths, "小数第二位"},
        {GXAccessibilityName::Hours, "時間"},
        {GXAccessibilityName::Minutes, "分"},
        {GXAccessibilityName::Seconds, "秒"},
        {GXAccessibilityName::KilometresPerHour, "時速キロメートル"},
        {GXAccessibilityName::MilesPerHour, "時速マイル"},
        {GXAccessibilityName::Kilograms, "キログラム"},
        {GXAccessibilityName::Pounds, "ポンド"},
        {GXAccessibilityName::Stones, "ストーン"},
        {GXAccessibilityName::Centimetres, "センチメートル"},
        {GXAccessibilityName::Feet, "フィート"},
        {GXAccessibilityName::Inches, "インチ"},
        {GXAccessibilityName::Unit, "単位"},
        {GXAccessibilityName::Average, "平均"},
        {GXAccessibilityName::Maximum, "最大"},
        {GXAccessibilityName::NoValue, "値なし"},
        {GXAccessibilityName::NameAndPart, "{0}、{1}"},
        {GXAccessibilityName::Sum, "{0} {1}"},
        {GXAccessibilityName::Minus, "マイナス {0}"},
        {GXAccessibilityName::PerKilometre, "1 キロメートルあたり {0}"},
        {GXAccessibilityName::PerMile, "1 マイルあたり {0}"},
    };

    static constexpr GXAccessibilityUnitText accessibilityUnits[] = {
        {GXAccessibilityUnit::Kilometre, {.other = "{0} キロメートル"}},
        {GXAccessibilityUnit::Mile, {.other = "{0} マイル"}},
        {GXAccessibilityUnit::Hour, {.other = "{0} 時間"}},
        {GXAccessibilityUnit::Minute, {.other = "{0} 分"}},
        {GXAccessibilityUnit::Second, {.other = "{0} 秒"}},
        {GXAccessibilityUnit::KilometrePerHour, {.other = "時速 {0} キロメートル"}},
        {GXAccessibilityUnit::MilePerHour, {.other = "時速 {0} マイル"}},
        {GXAccessibilityUnit::BeatPerMinute, {.other = "毎分 {0} 拍"}},
        {GXAccessibilityUnit::Kilocalorie, {.other = "{0} キロカロリー"}},
        {GXAccessibilityUnit::Kilogram, {.other = "{0} キログラム"}},
        {GXAccessibilityUnit::Pound, {.other = "{0} ポンド"}},
        {GXAccessibilityUnit::Stone, {.other = "{0} ストーン"}},
        {GXAccessibilityUnit::Centimetre, {.other = "{0} センチメートル"}},
        {GXAccessibilityUnit::Foot, {.other = "{0} フィート"}},
        {GXAccessibilityUnit::Inch, {.other = "{0} インチ"}},
        {GXAccessibilityUnit::DegreeCelsius, {.other = "摂氏 {0} 度"}},
        {GXAccessibilityUnit::DegreeFahrenheit, {.other = "華氏 {0} 度"}},
    };
};

} // namespace gx
