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
        {"bpm", "次/分钟"},      {"hh:mm", "时:分"}, {"hh:mm:ss", "时:分:秒"}, {"mm:ss", "分:秒"},   {"min/km", "分钟/公里"},
        {"min/mi", "分钟/英里"}, {"AVG", "平均"},    {"MAX", "最大"},          {"kg", "公斤"},       {"lb", "磅"},
        {"st", "英石"},          {"cm", "厘米"},     {"ft", "英尺"},           {"°C", "°C"},         {"°F", "°F"},
        {"km", "公里"},          {"mi", "英里"},     {"km/h", "公里/小时"},    {"mph", "英里/小时"}, {"kcal", "千卡"},
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

    static constexpr GXText applicationTexts[] = {
        // Pages, sections and rows.
        {"Add workout", "添加训练"},
        {"All pickers", "所有选择器"},
        {"Workout", "训练"},
        {"Workouts", "训练"},
        {"Best interval", "最佳间歇"},
        {"Heart", "心脏"},
        {"Conditions", "环境"},
        {"Body", "身体"},
        {"Distance and time", "距离和时间"},
        {"Distance", "距离"},
        {"Duration", "时长"},
        {"Average speed", "平均速度"},
        {"Speed", "速度"},
        {"Pace", "配速"},
        {"Calories", "卡路里"},
        {"Heart rate", "心率"},
        {"Resting pulse", "静息心率"},
        {"Beats per minute", "每分钟心跳次数"},
        {"Weather", "天气"},
        {"Temperature", "温度"},
        {"Water temperature", "水温"},
        {"Weight", "体重"},
        {"Height", "身高"},
        {"Choose a row to change its value.", "选择一行以更改其数值。"},
        // Settings and their choices.
        {"Settings", "设置"},
        {"Units", "单位"},
        {"Metric", "公制"},
        {"Imperial", "英制"},
        {"Kilograms", "公斤"},
        {"Pounds", "磅"},
        {"Stones", "英石"},
        {"Text size", "文字大小"},
        {"Look", "外观"},
        {"System", "跟随系统"},
        {"Light", "浅色"},
        {"Dark", "深色"},
        {"Decimal separator", "小数分隔符"},
        {"Automatic", "自动"},
        {"All pages", "所有页面"},
        {"Light or dark", "浅色或深色"},
        {"Motion", "动态效果"},
        {"Full", "完整"},
        {"Reduced", "减弱"},
        {"Contrast", "对比度"},
        {"Normal", "标准"},
        {"High", "高"},
        {"Wheel clicks", "滚轮音效"},
        {"On", "开"},
        {"Off", "关"},
        {"Language", "语言"},
        // Files.
        {"Open", "打开"},
        {"Save", "保存"},
        {"Opened:", "已打开："},
        {"Saved:", "已保存："},
        {"The file could not be read:", "无法读取文件："},
        {"The file could not be written:", "无法写入文件："},
        {"The file has no number for:", "文件中缺少以下数值："},
        {"A number in the file is out of range:", "文件中的数值超出范围："},
        {"The file names no weather that this application knows.", "文件中没有此应用支持的天气。"},
        {"This file is damaged, or no workout.", "此文件已损坏，或不是训练文件。"},
        {"This file is damaged.", "此文件已损坏。"},
        {"This file is no workout.", "此文件不是训练文件。"},
        {"This workout was saved by a newer version of this application.", "此训练由此应用的更新版本保存。"},
        // Weather.
        {"clear", "晴"},
        {"partly cloudy", "局部多云"},
        {"cloudy", "多云"},
        {"overcast", "阴"},
        {"fog", "雾"},
        {"drizzle", "毛毛雨"},
        {"rain", "雨"},
        {"showers", "阵雨"},
        {"thunderstorm", "雷暴"},
        {"sleet", "雨夹雪"},
        {"snow", "雪"},
        {"wind", "大风"},
    };
};

} // namespace gx
