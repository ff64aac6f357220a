// What screen readers speak in Polish and Russian.
//
// Sources. Units: the long unit patterns of the Unicode Common Locale Data Repository for each language, or the words that runners use
// for the same. The names of measurements and columns are the wording of this project.

#include "GXSpokenTables.h"

namespace gx {

namespace {

using spoken::forms;
using Name = GXSpokenTexts::Name;
using Unit = GXSpokenTexts::Unit;

constexpr Name polishNames[] = {
    {GXSpokenName::Distance, "Dystans"},
    {GXSpokenName::Duration, "Czas trwania"},
    {GXSpokenName::Pace, "Tempo"},
    {GXSpokenName::Speed, "Prędkość"},
    {GXSpokenName::AverageHeartRate, "Średnie tętno"},
    {GXSpokenName::MaximumHeartRate, "Maksymalne tętno"},
    {GXSpokenName::BeatsPerMinute, "Uderzenia na minutę"},
    {GXSpokenName::Calories, "Kalorie"},
    {GXSpokenName::Weight, "Waga"},
    {GXSpokenName::Height, "Wzrost"},
    {GXSpokenName::Temperature, "Temperatura"},
    {GXSpokenName::Icon, "Ikona"},
    {GXSpokenName::Kilometres, "kilometry"},
    {GXSpokenName::Miles, "mile"},
    {GXSpokenName::Tenths, "dziesiąte"},
    {GXSpokenName::Hundredths, "setne"},
    {GXSpokenName::Hours, "godziny"},
    {GXSpokenName::Minutes, "minuty"},
    {GXSpokenName::Seconds, "sekundy"},
    {GXSpokenName::KilometresPerHour, "kilometry na godzinę"},
    {GXSpokenName::MilesPerHour, "mile na godzinę"},
    {GXSpokenName::Kilograms, "kilogramy"},
    {GXSpokenName::Pounds, "funty"},
    {GXSpokenName::Stones, "kamienie"},
    {GXSpokenName::Centimetres, "centymetry"},
    {GXSpokenName::Feet, "stopy"},
    {GXSpokenName::Inches, "cale"},
    {GXSpokenName::Unit, "jednostka"},
    {GXSpokenName::Average, "średnia"},
    {GXSpokenName::Maximum, "maksimum"},
    {GXSpokenName::NoValue, "brak wartości"},
    {GXSpokenName::NameAndPart, "{0}, {1}"},
    {GXSpokenName::Sum, "{0} {1}"},
    {GXSpokenName::Minus, "minus {0}"},
    {GXSpokenName::PerKilometre, "{0} na kilometr"},
    {GXSpokenName::PerMile, "{0} na milę"},
};
constexpr Unit polishUnits[] = {
    {GXSpokenUnit::Kilometre, forms("{0} kilometr", "{0} kilometry", "{0} kilometrów", "{0} kilometra")},
    {GXSpokenUnit::Mile, forms("{0} mila", "{0} mile", "{0} mil", "{0} mili")},
    {GXSpokenUnit::Hour, forms("{0} godzina", "{0} godziny", "{0} godzin", "{0} godziny")},
    {GXSpokenUnit::Minute, forms("{0} minuta", "{0} minuty", "{0} minut", "{0} minuty")},
    {GXSpokenUnit::Second, forms("{0} sekunda", "{0} sekundy", "{0} sekund", "{0} sekundy")},
    {GXSpokenUnit::KilometrePerHour,
     forms("{0} kilometr na godzinę", "{0} kilometry na godzinę", "{0} kilometrów na godzinę", "{0} kilometra na godzinę")},
    {GXSpokenUnit::MilePerHour, forms("{0} mila na godzinę", "{0} mile na godzinę", "{0} mil na godzinę", "{0} mili na godzinę")},
    {GXSpokenUnit::BeatPerMinute,
     forms("{0} uderzenie na minutę", "{0} uderzenia na minutę", "{0} uderzeń na minutę", "{0} uderzenia na minutę")},
    {GXSpokenUnit::Kilocalorie, forms("{0} kilokaloria", "{0} kilokalorie", "{0} kilokalorii", "{0} kilokalorii")},
    {GXSpokenUnit::Kilogram, forms("{0} kilogram", "{0} kilogramy", "{0} kilogramów", "{0} kilograma")},
    {GXSpokenUnit::Pound, forms("{0} funt", "{0} funty", "{0} funtów", "{0} funta")},
    {GXSpokenUnit::Stone, forms("{0} kamień", "{0} kamienie", "{0} kamieni", "{0} kamienia")},
    {GXSpokenUnit::Centimetre, forms("{0} centymetr", "{0} centymetry", "{0} centymetrów", "{0} centymetra")},
    {GXSpokenUnit::Foot, forms("{0} stopa", "{0} stopy", "{0} stóp", "{0} stopy")},
    {GXSpokenUnit::Inch, forms("{0} cal", "{0} cale", "{0} cali", "{0} cala")},
    {GXSpokenUnit::DegreeCelsius, forms("{0} stopień Celsjusza", "{0} stopnie Celsjusza", "{0} stopni Celsjusza", "{0} stopnia Celsjusza")},
    {GXSpokenUnit::DegreeFahrenheit,
     forms("{0} stopień Fahrenheita", "{0} stopnie Fahrenheita", "{0} stopni Fahrenheita", "{0} stopnia Fahrenheita")},
};
static_assert(spoken::isComplete(polishNames, polishUnits,
                                 {GXPluralCategory::One, GXPluralCategory::Few, GXPluralCategory::Many, GXPluralCategory::Other}));

constexpr Name russianNames[] = {
    {GXSpokenName::Distance, "Расстояние"},
    {GXSpokenName::Duration, "Длительность"},
    {GXSpokenName::Pace, "Темп"},
    {GXSpokenName::Speed, "Скорость"},
    {GXSpokenName::AverageHeartRate, "Средний пульс"},
    {GXSpokenName::MaximumHeartRate, "Максимальный пульс"},
    {GXSpokenName::BeatsPerMinute, "Удары в минуту"},
    {GXSpokenName::Calories, "Калории"},
    {GXSpokenName::Weight, "Вес"},
    {GXSpokenName::Height, "Рост"},
    {GXSpokenName::Temperature, "Температура"},
    {GXSpokenName::Icon, "Значок"},
    {GXSpokenName::Kilometres, "километры"},
    {GXSpokenName::Miles, "мили"},
    {GXSpokenName::Tenths, "десятые"},
    {GXSpokenName::Hundredths, "сотые"},
    {GXSpokenName::Hours, "часы"},
    {GXSpokenName::Minutes, "минуты"},
    {GXSpokenName::Seconds, "секунды"},
    {GXSpokenName::KilometresPerHour, "километры в час"},
    {GXSpokenName::MilesPerHour, "мили в час"},
    {GXSpokenName::Kilograms, "килограммы"},
    {GXSpokenName::Pounds, "фунты"},
    {GXSpokenName::Stones, "стоуны"},
    {GXSpokenName::Centimetres, "сантиметры"},
    {GXSpokenName::Feet, "футы"},
    {GXSpokenName::Inches, "дюймы"},
    {GXSpokenName::Unit, "единица измерения"},
    {GXSpokenName::Average, "среднее"},
    {GXSpokenName::Maximum, "максимум"},
    {GXSpokenName::NoValue, "нет значения"},
    {GXSpokenName::NameAndPart, "{0}, {1}"},
    {GXSpokenName::Sum, "{0} {1}"},
    {GXSpokenName::Minus, "минус {0}"},
    {GXSpokenName::PerKilometre, "{0} на километр"},
    {GXSpokenName::PerMile, "{0} на милю"},
};
constexpr Unit russianUnits[] = {
    {GXSpokenUnit::Kilometre, forms("{0} километр", "{0} километра", "{0} километров", "{0} километра")},
    {GXSpokenUnit::Mile, forms("{0} миля", "{0} мили", "{0} миль", "{0} мили")},
    {GXSpokenUnit::Hour, forms("{0} час", "{0} часа", "{0} часов", "{0} часа")},
    {GXSpokenUnit::Minute, forms("{0} минута", "{0} минуты", "{0} минут", "{0} минуты")},
    {GXSpokenUnit::Second, forms("{0} секунда", "{0} секунды", "{0} секунд", "{0} секунды")},
    {GXSpokenUnit::KilometrePerHour, forms("{0} километр в час", "{0} километра в час", "{0} километров в час", "{0} километра в час")},
    {GXSpokenUnit::MilePerHour, forms("{0} миля в час", "{0} мили в час", "{0} миль в час", "{0} мили в час")},
    {GXSpokenUnit::BeatPerMinute, forms("{0} удар в минуту", "{0} удара в минуту", "{0} ударов в минуту", "{0} удара в минуту")},
    {GXSpokenUnit::Kilocalorie, forms("{0} килокалория", "{0} килокалории", "{0} килокалорий", "{0} килокалории")},
    {GXSpokenUnit::Kilogram, forms("{0} килограмм", "{0} килограмма", "{0} килограммов", "{0} килограмма")},
    {GXSpokenUnit::Pound, forms("{0} фунт", "{0} фунта", "{0} фунтов", "{0} фунта")},
    {GXSpokenUnit::Stone, forms("{0} стоун", "{0} стоуна", "{0} стоунов", "{0} стоуна")},
    {GXSpokenUnit::Centimetre, forms("{0} сантиметр", "{0} сантиметра", "{0} сантиметров", "{0} сантиметра")},
    {GXSpokenUnit::Foot, forms("{0} фут", "{0} фута", "{0} футов", "{0} фута")},
    {GXSpokenUnit::Inch, forms("{0} дюйм", "{0} дюйма", "{0} дюймов", "{0} дюйма")},
    {GXSpokenUnit::DegreeCelsius, forms("{0} градус Цельсия", "{0} градуса Цельсия", "{0} градусов Цельсия", "{0} градуса Цельсия")},
    {GXSpokenUnit::DegreeFahrenheit,
     forms("{0} градус Фаренгейта", "{0} градуса Фаренгейта", "{0} градусов Фаренгейта", "{0} градуса Фаренгейта")},
};
static_assert(spoken::isComplete(russianNames, russianUnits,
                                 {GXPluralCategory::One, GXPluralCategory::Few, GXPluralCategory::Many, GXPluralCategory::Other}));

} // namespace

constinit const GXSpokenTexts spokenPolish("pl", polishNames, polishUnits);
constinit const GXSpokenTexts spokenRussian("ru", russianNames, russianUnits);

} // namespace gx
