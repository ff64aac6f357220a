#pragma once

#include "ApplicationText.h"

namespace gallery {

struct SimplifiedChineseTexts {
    static constexpr std::string_view language = "zh-Hans";

    static constexpr ApplicationText texts[] = {
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

} // namespace gallery
