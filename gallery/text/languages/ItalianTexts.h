#pragma once

#include "ApplicationText.h"

namespace gallery {

struct ItalianTexts {
    static constexpr std::string_view language = "it";

    static constexpr ApplicationText texts[] = {
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

} // namespace gallery
