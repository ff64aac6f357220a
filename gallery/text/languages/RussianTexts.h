#pragma once

#include "ApplicationText.h"

namespace gallery {

struct RussianTexts {
    static constexpr std::string_view language = "ru";

    static constexpr ApplicationText texts[] = {
        // Pages, sections and rows.
        {"Add workout", "Добавить тренировку"},
        {"All pickers", "Все элементы выбора"},
        {"Workout", "Тренировка"},
        {"Workouts", "Тренировки"},
        {"Best interval", "Лучший интервал"},
        {"Heart", "Сердце"},
        {"Conditions", "Условия"},
        {"Body", "Тело"},
        {"Distance and time", "Дистанция и время"},
        {"Distance", "Дистанция"},
        {"Duration", "Длительность"},
        {"Average speed", "Средняя скорость"},
        {"Speed", "Скорость"},
        {"Pace", "Темп"},
        {"Calories", "Калории"},
        {"Heart rate", "Пульс"},
        {"Resting pulse", "Пульс в покое"},
        {"Beats per minute", "Удары в минуту"},
        {"Weather", "Погода"},
        {"Temperature", "Температура"},
        {"Water temperature", "Температура воды"},
        {"Weight", "Вес"},
        {"Height", "Рост"},
        {"Choose a row to change its value.", "Выберите строку, чтобы изменить её значение."},
        // Settings and their choices.
        {"Settings", "Настройки"},
        {"Units", "Единицы"},
        {"Metric", "Метрические"},
        {"Imperial", "Имперские"},
        {"Kilograms", "Килограммы"},
        {"Pounds", "Фунты"},
        {"Stones", "Стоуны"},
        {"Text size", "Размер текста"},
        {"Look", "Оформление"},
        {"System", "Системное"},
        {"Light", "Светлое"},
        {"Dark", "Тёмное"},
        {"Decimal separator", "Десятичный знак"},
        {"Automatic", "Автоматически"},
        {"All pages", "Все страницы"},
        {"Light or dark", "Светлое или тёмное"},
        {"Motion", "Анимация"},
        {"Full", "Полная"},
        {"Reduced", "Упрощённая"},
        {"Contrast", "Контраст"},
        {"Normal", "Обычный"},
        {"High", "Высокий"},
        {"Wheel clicks", "Щелчки колёсиков"},
        {"On", "Вкл."},
        {"Off", "Выкл."},
        {"Language", "Язык"},
        // Files.
        {"Open", "Открыть"},
        {"Save", "Сохранить"},
        {"Opened:", "Открыто:"},
        {"Saved:", "Сохранено:"},
        {"The file could not be read:", "Не удалось прочитать файл:"},
        {"The file could not be written:", "Не удалось записать файл:"},
        {"The file has no number for:", "В файле нет числа:"},
        {"A number in the file is out of range:", "Число в файле вне допустимого диапазона:"},
        {"The file names no weather that this application knows.", "В файле не указана погода, известная этому приложению."},
        {"This file is damaged, or no workout.", "Файл повреждён или не содержит тренировки."},
        {"This file is damaged.", "Файл повреждён."},
        {"This file is no workout.", "Файл не содержит тренировки."},
        {"This workout was saved by a newer version of this application.", "Тренировка сохранена в более новой версии этого приложения."},
        // Weather.
        {"clear", "ясно"},
        {"partly cloudy", "переменная облачность"},
        {"cloudy", "облачно"},
        {"overcast", "пасмурно"},
        {"fog", "туман"},
        {"drizzle", "морось"},
        {"rain", "дождь"},
        {"showers", "ливни"},
        {"thunderstorm", "гроза"},
        {"sleet", "мокрый снег"},
        {"snow", "снег"},
        {"wind", "ветер"},
    };
};

} // namespace gallery
