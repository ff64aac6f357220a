#pragma once

#include "ApplicationText.h"

namespace gallery {

struct DutchTexts {
    static constexpr std::string_view language = "nl";

    static constexpr ApplicationText texts[] = {
        // Pages, sections and rows.
        {"Add workout", "Training toevoegen"},
        {"All pickers", "Alle kiezers"},
        {"Workout", "Training"},
        {"Workouts", "Trainingen"},
        {"Best interval", "Beste interval"},
        {"Heart", "Hart"},
        {"Conditions", "Omstandigheden"},
        {"Body", "Lichaam"},
        {"Distance and time", "Afstand en tijd"},
        {"Distance", "Afstand"},
        {"Duration", "Duur"},
        {"Average speed", "Gemiddelde snelheid"},
        {"Speed", "Snelheid"},
        {"Pace", "Tempo"},
        {"Calories", "Calorieën"},
        {"Heart rate", "Hartslag"},
        {"Resting pulse", "Hartslag in rust"},
        {"Beats per minute", "Slagen per minuut"},
        {"Weather", "Weer"},
        {"Temperature", "Temperatuur"},
        {"Water temperature", "Watertemperatuur"},
        {"Weight", "Gewicht"},
        {"Height", "Lengte"},
        {"Choose a row to change its value.", "Kies een rij om de waarde te wijzigen."},
        // Settings and their choices.
        {"Settings", "Instellingen"},
        {"Units", "Eenheden"},
        {"Metric", "Metrisch"},
        {"Imperial", "Imperiaal"},
        {"Kilograms", "Kilogram"},
        {"Pounds", "Pond"},
        {"Stones", "Stone"},
        {"Text size", "Tekstgrootte"},
        {"Look", "Weergave"},
        {"System", "Systeem"},
        {"Light", "Licht"},
        {"Dark", "Donker"},
        {"Decimal separator", "Decimaalteken"},
        {"Automatic", "Automatisch"},
        {"All pages", "Alle pagina's"},
        {"Light or dark", "Licht of donker"},
        {"Motion", "Beweging"},
        {"Full", "Volledig"},
        {"Reduced", "Verminderd"},
        {"Contrast", "Contrast"},
        {"Normal", "Normaal"},
        {"High", "Hoog"},
        {"Wheel clicks", "Klikgeluid"},
        {"On", "Aan"},
        {"Off", "Uit"},
        {"Language", "Taal"},
        // Files.
        {"Open", "Openen"},
        {"Save", "Opslaan"},
        {"Opened:", "Geopend:"},
        {"Saved:", "Opgeslagen:"},
        {"The file could not be read:", "Het bestand kon niet worden gelezen:"},
        {"The file could not be written:", "Het bestand kon niet worden geschreven:"},
        {"The file has no number for:", "Het bestand bevat geen getal voor:"},
        {"A number in the file is out of range:", "Een getal in het bestand valt buiten het bereik:"},
        {"The file names no weather that this application knows.", "Het bestand noemt geen weer dat deze app kent."},
        {"This file is damaged, or no workout.", "Dit bestand is beschadigd of geen training."},
        {"This file is damaged.", "Dit bestand is beschadigd."},
        {"This file is no workout.", "Dit bestand is geen training."},
        {"This workout was saved by a newer version of this application.",
         "Deze training is opgeslagen met een nieuwere versie van deze app."},
        // Weather.
        {"clear", "onbewolkt"},
        {"partly cloudy", "half bewolkt"},
        {"cloudy", "bewolkt"},
        {"overcast", "betrokken"},
        {"fog", "mist"},
        {"drizzle", "motregen"},
        {"rain", "regen"},
        {"showers", "buien"},
        {"thunderstorm", "onweer"},
        {"sleet", "natte sneeuw"},
        {"snow", "sneeuw"},
        {"wind", "wind"},
    };
};

} // namespace gallery
