#pragma once

#include "GXLanguageTexts.h"

namespace gx {

/// Italian.
struct GXItalian {
    static constexpr std::string_view identifier = "it";
    static constexpr std::string_view ownName = "Italiano";
    static constexpr std::string_view decimalSeparator = ",";

    static constexpr GXPluralCategory pluralCategory(const GXPluralOperands& number) {
        return oneIf(number.isWhole() && number.integer == 1);
    }

    static constexpr GXText unitTexts[] = {
        {"bpm", "bpm"},     {"hh:mm", "hh:mm"},   {"hh:mm:ss", "hh:mm:ss"},
        {"mm:ss", "mm:ss"}, {"min/km", "min/km"}, {"min/mi", "min/mi"},
        {"AVG", "MEDIA"},   {"MAX", "MAX"},       {"kg", "kg"},
        {"lb", "lb"},       {"st", "st"},         {"cm", "cm"},
        {"ft", "ft"},       {"°C", "°C"},         {"°F", "°F"},
        {"km", "km"},       {"mi", "mi"},         {"km/h", "km/h"},
        {"mph", "mi/h"},    {"kcal", "kcal"},
    };

    static constexpr GXAccessibilityNameText accessibilityNames[] = {
        {GXAccessibilityName::Distance, "Distanza"},
        {GXAccessibilityName::Duration, "Durata"},
        {GXAccessibilityName::Pace, "Ritmo"},
        {GXAccessibilityName::Speed, "Velocità"},
        {GXAccessibilityName::AverageHeartRate, "Frequenza cardiaca media"},
        {GXAccessibilityName::MaximumHeartRate, "Frequenza cardiaca massima"},
        {GXAccessibilityName::BeatsPerMinute, "Battiti al minuto"},
        {GXAccessibilityName::Calories, "Calorie"},
        {GXAccessibilityName::Weight, "Peso"},
        {GXAccessibilityName::Height, "Altezza"},
        {GXAccessibilityName::Temperature, "Temperatura"},
        {GXAccessibilityName::Icon, "Icona"},
        {GXAccessibilityName::Kilometres, "chilometri"},
        {GXAccessibilityName::Miles, "miglia"},
        {GXAccessibilityName::Tenths, "decimi"},
        {GXAccessibilityName::Hundredths, "centesimi"},
        {GXAccessibilityName::Hours, "ore"},
        {GXAccessibilityName::Minutes, "minuti"},
        {GXAccessibilityName::Seconds, "secondi"},
        {GXAccessibilityName::KilometresPerHour, "chilometri all'ora"},
        {GXAccessibilityName::MilesPerHour, "miglia all'ora"},
        {GXAccessibilityName::Kilograms, "chilogrammi"},
        {GXAccessibilityName::Pounds, "libbre"},
        {GXAccessibilityName::Stones, "stone"},
        {GXAccessibilityName::Centimetres, "centimetri"},
        {GXAccessibilityName::Feet, "piedi"},
        {GXAccessibilityName::Inches, "pollici"},
        {GXAccessibilityName::Unit, "unità"},
        {GXAccessibilityName::Average, "media"},
        {GXAccessibilityName::Maximum, "massima"},
        {GXAccessibilityName::NoValue, "nessun valore"},
        {GXAccessibilityName::NameAndPart, "{0}, {1}"},
        {GXAccessibilityName::Sum, "{0} {1}"},
        {GXAccessibilityName::Minus, "meno {0}"},
        {GXAccessibilityName::PerKilometre, "{0} al chilometro"},
        {GXAccessibilityName::PerMile, "{0} al miglio"},
    };

    static constexpr GXAccessibilityUnitText accessibilityUnits[] = {
        {GXAccessibilityUnit::Kilometre, {.one = "{0} chilometro", .other = "{0} chilometri"}},
        {GXAccessibilityUnit::Mile, {.one = "{0} miglio", .other = "{0} miglia"}},
        {GXAccessibilityUnit::Hour, {.one = "{0} ora", .other = "{0} ore"}},
        {GXAccessibilityUnit::Minute, {.one = "{0} minuto", .other = "{0} minuti"}},
        {GXAccessibilityUnit::Second, {.one = "{0} secondo", .other = "{0} secondi"}},
        {GXAccessibilityUnit::KilometrePerHour, {.one = "{0} chilometro all'ora", .other = "{0} chilometri all'ora"}},
        {GXAccessibilityUnit::MilePerHour, {.one = "{0} miglio all'ora", .other = "{0} miglia all'ora"}},
        {GXAccessibilityUnit::BeatPerMinute, {.one = "{0} battito al minuto", .other = "{0} battiti al minuto"}},
        {GXAccessibilityUnit::Kilocalorie, {.one = "{0} chilocaloria", .other = "{0} chilocalorie"}},
        {GXAccessibilityUnit::Kilogram, {.one = "{0} chilogrammo", .other = "{0} chilogrammi"}},
        {GXAccessibilityUnit::Pound, {.one = "{0} libbra", .other = "{0} libbre"}},
        {GXAccessibilityUnit::Stone, {.one = "{0} stone", .other = "{0} stone"}},
        {GXAccessibilityUnit::Centimetre, {.one = "{0} centimetro", .other = "{0} centimetri"}},
        {GXAccessibilityUnit::Foot, {.one = "{0} piede", .other = "{0} piedi"}},
        {GXAccessibilityUnit::Inch, {.one = "{0} pollice", .other = "{0} pollici"}},
        {GXAccessibilityUnit::DegreeCelsius, {.one = "{0} grado Celsius", .other = "{0} gradi Celsius"}},
        {GXAccessibilityUnit::DegreeFahrenheit, {.one = "{0} grado Fahrenheit", .other = "{0} gradi Fahrenheit"}},
    };

    static constexpr GXText applicationTexts[] = {
        // Pages, sections and rows.
        {"Add workout", "Aggiungi allenamento"},
        {"All pickers", "Tutti i selettori"},
        {"Workout", "Allenamento"},
        {"Workouts", "Allenamenti"},
        {"Best interval", "Miglior intervallo"},
        {"Heart", "Cuore"},
        {"Conditions", "Condizioni"},
        {"Body", "Corpo"},
        {"Distance and time", "Distanza e tempo"},
        {"Distance", "Distanza"},
        {"Duration", "Durata"},
        {"Average speed", "Velocità media"},
        {"Speed", "Velocità"},
        {"Pace", "Passo"},
        {"Calories", "Calorie"},
        {"Heart rate", "Frequenza cardiaca"},
        {"Resting pulse", "Battito a riposo"},
        {"Beats per minute", "Battiti al minuto"},
        {"Weather", "Meteo"},
        {"Temperature", "Temperatura"},
        {"Water temperature", "Temperatura acqua"},
        {"Weight", "Peso"},
        {"Height", "Altezza"},
        {"Choose a row to change its value.", "Scegli una riga per modificarne il valore."},
        // Settings and their choices.
        {"Settings", "Impostazioni"},
        {"Units", "Unità"},
        {"Metric", "Metriche"},
        {"Imperial", "Imperiali"},
        {"Kilograms", "Chilogrammi"},
        {"Pounds", "Libbre"},
        {"Stones", "Stone"},
        {"Text size", "Dimensione testo"},
        {"Look", "Aspetto"},
        {"System", "Sistema"},
        {"Light", "Chiaro"},
        {"Dark", "Scuro"},
        {"Decimal separator", "Separatore decimale"},
        {"Automatic", "Automatico"},
        {"All pages", "Tutte le pagine"},
        {"Light or dark", "Chiaro o scuro"},
        {"Motion", "Movimento"},
        {"Full", "Completo"},
        {"Reduced", "Ridotto"},
        {"Contrast", "Contrasto"},
        {"Normal", "Normale"},
        {"High", "Alto"},
        {"Wheel clicks", "Clic dei selettori"},
        {"On", "Sì"},
        {"Off", "No"},
        {"Language", "Lingua"},
        // Files.
        {"Open", "Apri"},
        {"Save", "Salva"},
        {"Opened:", "Aperto:"},
        {"Saved:", "Salvato:"},
        {"The file could not be read:", "Impossibile leggere il file:"},
        {"The file could not be written:", "Impossibile scrivere il file:"},
        {"The file has no number for:", "Nel file manca il numero per:"},
        {"A number in the file is out of range:", "Un numero nel file è fuori dai limiti:"},
        {"The file names no weather that this application knows.", "Il file non indica un meteo noto a questa applicazione."},
        {"This file is damaged, or no workout.", "Questo file è danneggiato o non è un allenamento."},
        {"This file is damaged.", "Questo file è danneggiato."},
        {"This file is no workout.", "Questo file non è un allenamento."},
        {"This workout was saved by a newer version of this application.",
         "Questo allenamento è stato salvato da una versione più recente di questa applicazione."},
        // Weather.
        {"clear", "sereno"},
        {"partly cloudy", "parzialmente nuvoloso"},
        {"cloudy", "nuvoloso"},
        {"overcast", "coperto"},
        {"fog", "nebbia"},
        {"drizzle", "pioviggine"},
        {"rain", "pioggia"},
        {"showers", "rovesci"},
        {"thunderstorm", "temporale"},
        {"sleet", "nevischio"},
        {"snow", "neve"},
        {"wind", "vento"},
    };
};

} // namespace gx
