#pragma once

#include "ApplicationText.h"

namespace gallery {

struct PolishTexts {
    static constexpr std::string_view language = "pl";

    static constexpr ApplicationText texts[] = {
        // Pages, sections and rows.
        {"Add workout", "Dodaj trening"},
        {"All pickers", "Wszystkie selektory"},
        {"Workout", "Trening"},
        {"Workouts", "Treningi"},
        {"Best interval", "Najlepszy interwał"},
        {"Heart", "Serce"},
        {"Conditions", "Warunki"},
        {"Body", "Ciało"},
        {"Distance and time", "Dystans i czas"},
        {"Distance", "Dystans"},
        {"Duration", "Czas trwania"},
        {"Average speed", "Średnia prędkość"},
        {"Speed", "Prędkość"},
        {"Pace", "Tempo"},
        {"Calories", "Kalorie"},
        {"Heart rate", "Tętno"},
        {"Resting pulse", "Tętno spoczynkowe"},
        {"Beats per minute", "Uderzenia na minutę"},
        {"Weather", "Pogoda"},
        {"Temperature", "Temperatura"},
        {"Water temperature", "Temperatura wody"},
        {"Weight", "Waga"},
        {"Height", "Wzrost"},
        {"Choose a row to change its value.", "Wybierz wiersz, aby zmienić jego wartość."},
        // Settings and their choices.
        {"Settings", "Ustawienia"},
        {"Units", "Jednostki"},
        {"Metric", "Metryczne"},
        {"Imperial", "Imperialne"},
        {"Kilograms", "Kilogramy"},
        {"Pounds", "Funty"},
        {"Stones", "Kamienie"},
        {"Text size", "Rozmiar tekstu"},
        {"Look", "Wygląd"},
        {"System", "Systemowy"},
        {"Light", "Jasny"},
        {"Dark", "Ciemny"},
        {"Decimal separator", "Separator dziesiętny"},
        {"Automatic", "Automatyczny"},
        {"All pages", "Wszystkie strony"},
        {"Light or dark", "Jasny lub ciemny"},
        {"Motion", "Animacje"},
        {"Full", "Pełne"},
        {"Reduced", "Ograniczone"},
        {"Contrast", "Kontrast"},
        {"Normal", "Normalny"},
        {"High", "Wysoki"},
        {"Wheel clicks", "Klikanie pokręteł"},
        {"On", "Wł."},
        {"Off", "Wył."},
        {"Language", "Język"},
        // Files.
        {"Open", "Otwórz"},
        {"Save", "Zapisz"},
        {"Opened:", "Otwarto:"},
        {"Saved:", "Zapisano:"},
        {"The file could not be read:", "Nie udało się odczytać pliku:"},
        {"The file could not be written:", "Nie udało się zapisać pliku:"},
        {"The file has no number for:", "W pliku brakuje liczby:"},
        {"A number in the file is out of range:", "Liczba w pliku jest poza zakresem:"},
        {"The file names no weather that this application knows.", "Plik nie podaje pogody znanej tej aplikacji."},
        {"This file is damaged, or no workout.", "Ten plik jest uszkodzony lub nie zawiera treningu."},
        {"This file is damaged.", "Ten plik jest uszkodzony."},
        {"This file is no workout.", "Ten plik nie zawiera treningu."},
        {"This workout was saved by a newer version of this application.", "Ten trening zapisano w nowszej wersji tej aplikacji."},
        // Weather.
        {"clear", "bezchmurnie"},
        {"partly cloudy", "częściowo pochmurno"},
        {"cloudy", "pochmurno"},
        {"overcast", "pełne zachmurzenie"},
        {"fog", "mgła"},
        {"drizzle", "mżawka"},
        {"rain", "deszcz"},
        {"showers", "przelotny deszcz"},
        {"thunderstorm", "burza"},
        {"sleet", "deszcz ze śniegiem"},
        {"snow", "śnieg"},
        {"wind", "wiatr"},
    };
};

} // namespace gallery
