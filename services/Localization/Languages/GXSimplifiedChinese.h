#pragma once

#include "GXLanguageTexts.h"

namespace gx {

/// Chinese in simplified characters; also for readers of zh-TW, which has no texts of its own.
struct GXSimplifiedChinese {
    static constexpr std::string_view identifier = "zh-Hans";
    static constexpr std::string_view ownName = "简体中文";
    static constexpr std::string_view decimalSeparator = ".";

    static constexpr GXPluralCategory pluralCategory(const GXPluralOperands& /*number*/) { return GXPluralCategory::Other; }

    static constexpr GXText unitTexts[] = {
        {"bpm", "次/分钟"},
        {"hh:mm", "时:分"},
        {"hh:mm:ss", "时:分:秒"},
        {"mm:ss", "分:秒"},
        {"min/km", "分钟/公里"},
        {"min/mi", "分钟/英里"},
        {"AVG", "平均"},
        {"MAX", "最大"},
        {"kg", "公斤"},
        {"lb", "磅"},
        {"st", "英石"},
        {"cm", "厘米"},
        {"ft", "英尺"},
        {"°C", "°C"},
        {"°F", "°F"},
        {"km", "公里"},
        {"mi", "英里"},
        {"km/h", "公里/小时"},
        {"mph", "英里/小时"},
        {"kcal", "千卡"},
        {"h", "小时"},
        {"min", "分钟"},
        {", ", "，"},
    };

    static constexpr GXAccessibilityNameText accessibilityNames[] = {
        {GXAccessibilityName::Distance, "距离"},
        {GXAccessibilityName::Duration, "时长"},
        {GXAccessibilityName::Pace, "配速"},
        {GXAccessibilityName::Speed, "速度"},
        {GXAccessibilityName::AverageHeartRate, "平均心率"},
        {GXAccessibilityName::MaximumHeartRate, "最大心率"},
        {GXAccessibilityName::BeatsPerMinute, "每分钟心跳次数"},
        {GXAccessibilityName::Calories, "卡路里"},
        {GXAccessibilityName::Weight, "体重"},
        {GXAccessibilityName::Height, "身高"},
        {GXAccessibilityName::Temperature, "温度"},
        {GXAccessibilityName::Icon, "图标"},
        {GXAccessibilityName::Kilometres, "公里"},
        {GXAccessibilityName::Miles, "英里"},
        {GXAccessibilityName::Tenths, "十分位"},
        {GXAccessibilityName::Hundredths, "百分位"},
        {GXAccessibilityName::Hours, "小时"},
        {GXAccessibilityName::Minutes, "分钟"},
        {GXAccessibilityName::Seconds, "秒"},
        {GXAccessibilityName::KilometresPerHour, "每小时公里数"},
        {GXAccessibilityName::MilesPerHour, "每小时英里数"},
        {GXAccessibilityName::Kilograms, "公斤"},
        {GXAccessibilityName::Pounds, "磅"},
        {GXAccessibilityName::Stones, "英石"},
        {GXAccessibilityName::Centimetres, "厘米"},
        {GXAccessibilityName::Feet, "英尺"},
        {GXAccessibilityName::Inches, "英寸"},
        {GXAccessibilityName::Unit, "单位"},
        {GXAccessibilityName::Average, "平均"},
        {GXAccessibilityName::Maximum, "最大"},
        {GXAccessibilityName::NoValue, "无数值"},
        {GXAccessibilityName::NameAndPart, "{0}，{1}"},
        {GXAccessibilityName::Sum, "{0}{1}"},
        {GXAccessibilityName::Minus, "负{0}"},
        {GXAccessibilityName::PerKilometre, "每公里{0}"},
        {GXAccessibilityName::PerMile, "每英里{0}"},
    };

    static constexpr GXAccessibilityUnitText accessibilityUnits[] = {
        {GXAccessibilityUnit::Kilometre, {.other = "{0}公里"}},
        {GXAccessibilityUnit::Mile, {.other = "{0}英里"}},
        {GXAccessibilityUnit::Hour, {.other = "{0}小时"}},
        {GXAccessibilityUnit::Minute, {.other = "{0}分钟"}},
        {GXAccessibilityUnit::Second, {.other = "{0}秒"}},
        {GXAccessibilityUnit::KilometrePerHour, {.other = "每小时{0}公里"}},
        {GXAccessibilityUnit::MilePerHour, {.other = "每小时{0}英里"}},
        {GXAccessibilityUnit::BeatPerMinute, {.other = "每分钟{0}次"}},
        {GXAccessibilityUnit::Kilocalorie, {.other = "{0}千卡"}},
        {GXAccessibilityUnit::Kilogram, {.other = "{0}公斤"}},
        {GXAccessibilityUnit::Pound, {.other = "{0}磅"}},
        {GXAccessibilityUnit::Stone, {.other = "{0}英石"}},
        {GXAccessibilityUnit::Centimetre, {.other = "{0}厘米"}},
        {GXAccessibilityUnit::Foot, {.other = "{0}英尺"}},
        {GXAccessibilityUnit::Inch, {.other = "{0}英寸"}},
        {GXAccessibilityUnit::DegreeCelsius, {.other = "{0}摄氏度"}},
        {GXAccessibilityUnit::DegreeFahrenheit, {.other = "{0}华氏度"}},
    };
};

} // namespace gx
