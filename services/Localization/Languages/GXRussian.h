#pragma once

#include "GXLanguageTexts.h"

namespace gx {

/// Russian.
struct GXRussian {
    static constexpr std::string_view identifier = "ru";
    static constexpr std::string_view ownName = "Русский";
    static constexpr std::string_view decimalSeparator = ",";

    /// 21 is "one" and 22 "few", but 11 and 12 are "many".
    static constexpr GXPluralCategory pluralCategory(const GXPluralOperands& number) {
        if (!number.isWhole()) return GXPluralCategory::Other;
        if (number.integer % 10 == 1 && number.integer % 100 != 11) return GXPluralCategory::One;
        return number.endsInTwoToFour() ? GXPluralCategory::Few : GXPluralCategory::Many;
    }

    static constexpr GXText unitTexts[] = {
        {"bpm", "уд/мин"},  {"hh:mm", "чч:мм"},   {"hh:mm:ss", "чч:мм:сс"},
        {"mm:ss", "мм:сс"}, {"min/km", "мин/км"}, {"min/mi", "мин/ми"},
        {"AVG", "СРЕД"},    {"MAX", "МАКС"},      {"kg", "кг"},
        {"lb", "фнт"},      {"st", "стн"},        {"cm", "см"},
        {"ft", "фт"},       {"°C", "°C"},         {"°F", "°F"},
        {"km", "км"},       {"mi", "ми"},         {"km/h", "км/ч"},
        {"mph", "ми/ч"},    {"kcal", "ккал"},     {"h", "ч"},
        {"min", "мин"},     {", ", ", "},
    };

    static constexpr GXAccessibilityNameText accessibilityNames[] = {
        {GXAccessibilityName::Distance, "Расстояние"},
        {GXAccessibilityName::Duration, "Длительность"},
        {GXAccessibilityName::Pace, "Темп"},
        {GXAccessibilityName::Speed, "Скорость"},
        {GXAccessibilityName::AverageHeartRate, "Средний пульс"},
        {GXAccessibilityName::MaximumHeartRate, "Максимальный пульс"},
        {GXAccessibilityName::BeatsPerMinute, "Удары в минуту"},
        {GXAccessibilityName::Calories, "Калории"},
        {GXAccessibilityName::Weight, "Вес"},
        {GXAccessibilityName::Height, "Рост"},
        {GXAccessibilityName::Temperature, "Температура"},
        {GXAccessibilityName::Icon, "Значок"},
        {GXAccessibilityName::Kilometres, "километры"},
        {GXAccessibilityName::Miles, "мили"},
        {GXAccessibilityName::Tenths, "десятые"},
        {GXAccessibilityName::Hundredths, "сотые"},
        {GXAccessibilityName::Hours, "часы"},
        {GXAccessibilityName::Minutes, "минуты"},
        {GXAccessibilityName::Seconds, "секунды"},
        {GXAccessibilityName::KilometresPerHour, "километры в час"},
        {GXAccessibilityName::MilesPerHour, "мили в час"},
        {GXAccessibilityName::Kilograms, "килограммы"},
        {GXAccessibilityName::Pounds, "фунты"},
        {GXAccessibilityName::Stones, "стоуны"},
        {GXAccessibilityName::Centimetres, "сантиметры"},
        {GXAccessibilityName::Feet, "футы"},
        {GXAccessibilityName::Inches, "дюймы"},
        {GXAccessibilityName::Unit, "единица измерения"},
        {GXAccessibilityName::Average, "среднее"},
        {GXAccessibilityName::Maximum, "максимум"},
        {GXAccessibilityName::NoValue, "нет значения"},
        {GXAccessibilityName::NameAndPart, "{0}, {1}"},
        {GXAccessibilityName::Sum, "{0} {1}"},
        {GXAccessibilityName::Minus, "минус {0}"},
        {GXAccessibilityName::PerKilometre, "{0} на километр"},
        {GXAccessibilityName::PerMile, "{0} на милю"},
    };

    static constexpr GXAccessibilityUnitText accessibilityUnits[] = {
        {GXAccessibilityUnit::Kilometre,
         {.one = "{0} километр", .few = "{0} километра", .many = "{0} километров", .other = "{0} километра"}},
        {GXAccessibilityUnit::Mile, {.one = "{0} миля", .few = "{0} мили", .many = "{0} миль", .other = "{0} мили"}},
        {GXAccessibilityUnit::Hour, {.one = "{0} час", .few = "{0} часа", .many = "{0} часов", .other = "{0} часа"}},
        {GXAccessibilityUnit::Minute, {.one = "{0} минута", .few = "{0} минуты", .many = "{0} минут", .other = "{0} минуты"}},
        {GXAccessibilityUnit::Second, {.one = "{0} секунда", .few = "{0} секунды", .many = "{0} секунд", .other = "{0} секунды"}},
        {GXAccessibilityUnit::KilometrePerHour,
         {.one = "{0} километр в час", .few = "{0} километра в час", .many = "{0} километров в час", .other = "{0} километра в час"}},
        {GXAccessibilityUnit::MilePerHour,
         {.one = "{0} миля в час", .few = "{0} мили в час", .many = "{0} миль в час", .other = "{0} мили в час"}},
        {GXAccessibilityUnit::BeatPerMinute,
         {.one = "{0} удар в минуту", .few = "{0} удара в минуту", .many = "{0} ударов в минуту", .other = "{0} удара в минуту"}},
        {GXAccessibilityUnit::Kilocalorie,
         {.one = "{0} килокалория", .few = "{0} килокалории", .many = "{0} килокалорий", .other = "{0} килокалории"}},
        {GXAccessibilityUnit::Kilogram,
         {.one = "{0} килограмм", .few = "{0} килограмма", .many = "{0} килограммов", .other = "{0} килограмма"}},
        {GXAccessibilityUnit::Pound, {.one = "{0} фунт", .few = "{0} фунта", .many = "{0} фунтов", .other = "{0} фунта"}},
        {GXAccessibilityUnit::Stone, {.one = "{0} стоун", .few = "{0} стоуна", .many = "{0} стоунов", .other = "{0} стоуна"}},
        {GXAccessibilityUnit::Centimetre,
         {.one = "{0} сантиметр", .few = "{0} сантиметра", .many = "{0} сантиметров", .other = "{0} сантиметра"}},
        {GXAccessibilityUnit::Foot, {.one = "{0} фут", .few = "{0} фута", .many = "{0} футов", .other = "{0} фута"}},
        {GXAccessibilityUnit::Inch, {.one = "{0} дюйм", .few = "{0} дюйма", .many = "{0} дюймов", .other = "{0} дюйма"}},
        {GXAccessibilityUnit::DegreeCelsius,
         {.one = "{0} градус Цельсия", .few = "{0} градуса Цельсия", .many = "{0} градусов Цельсия", .other = "{0} градуса Цельсия"}},
        {GXAccessibilityUnit::DegreeFahrenheit,
         {.one = "{0} градус Фаренгейта",
          .few = "{0} градуса Фаренгейта",
          .many = "{0} градусов Фаренгейта",
          .other = "{0} градуса Фаренгейта"}},
    };
};

} // namespace gx
