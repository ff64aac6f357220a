#pragma once

#include "ApplicationText.h"

namespace gallery {

struct JapaneseTexts {
    static constexpr std::string_view language = "ja";

    static constexpr ApplicationText texts[] = {
        // Pages, sections and rows.
        {"Add workout", "ワークアウトを追加"},
        {"All pickers", "すべてのピッカー"},
        {"Workout", "ワークアウト"},
        {"Workouts", "ワークアウト"},
        {"Best interval", "ベストインターバル"},
        {"Heart", "心臓"},
        {"Conditions", "環境"},
        {"Body", "身体"},
        {"Distance and time", "距離とタイム"},
        {"Distance", "距離"},
        {"Duration", "所要時間"},
        {"Average speed", "平均速度"},
        {"Speed", "速度"},
        {"Pace", "ペース"},
        {"Calories", "カロリー"},
        {"Heart rate", "心拍数"},
        {"Resting pulse", "安静時心拍数"},
        {"Beats per minute", "1分あたりの心拍数"},
        {"Weather", "天気"},
        {"Temperature", "温度"},
        {"Water temperature", "水温"},
        {"Weight", "体重"},
        {"Height", "身長"},
        {"Choose a row to change its value.", "行を選ぶと値を変更できます。"},
        // Settings and their choices.
        {"Settings", "設定"},
        {"Units", "単位"},
        {"Metric", "メートル法"},
        {"Imperial", "ヤードポンド法"},
        {"Kilograms", "キログラム"},
        {"Pounds", "ポンド"},
        {"Stones", "ストーン"},
        {"Text size", "文字サイズ"},
        {"Look", "外観"},
        {"System", "システム"},
        {"Light", "ライト"},
        {"Dark", "ダーク"},
        {"Decimal separator", "小数点記号"},
        {"Automatic", "自動"},
        {"All pages", "すべてのページ"},
        {"Light or dark", "ライトまたはダーク"},
        {"Motion", "アニメーション"},
        {"Full", "標準"},
        {"Reduced", "控えめ"},
        {"Contrast", "コントラスト"},
        {"Normal", "標準"},
        {"High", "高"},
        {"Wheel clicks", "ホイールのクリック音"},
        {"On", "オン"},
        {"Off", "オフ"},
        {"Language", "言語"},
        // Files.
        {"Open", "開く"},
        {"Save", "保存"},
        {"Opened:", "開きました:"},
        {"Saved:", "保存しました:"},
        {"The file could not be read:", "ファイルを読み込めませんでした:"},
        {"The file could not be written:", "ファイルを書き込めませんでした:"},
        {"The file has no number for:", "ファイルに次の数値がありません:"},
        {"A number in the file is out of range:", "ファイル内の数値が範囲外です:"},
        {"The file names no weather that this application knows.", "ファイルに、このアプリで使える天気がありません。"},
        {"This file is damaged, or no workout.", "このファイルは破損しているか、ワークアウトではありません。"},
        {"This file is damaged.", "このファイルは破損しています。"},
        {"This file is no workout.", "このファイルはワークアウトではありません。"},
        {"This workout was saved by a newer version of this application.",
         "このワークアウトは、このアプリの新しいバージョンで保存されています。"},
        // Weather.
        {"clear", "晴れ"},
        {"partly cloudy", "晴れ時々曇り"},
        {"cloudy", "曇り"},
        {"overcast", "厚い雲"},
        {"fog", "霧"},
        {"drizzle", "霧雨"},
        {"rain", "雨"},
        {"showers", "にわか雨"},
        {"thunderstorm", "雷雨"},
        {"sleet", "みぞれ"},
        {"snow", "雪"},
        {"wind", "風"},
    };
};

} // namespace gallery
