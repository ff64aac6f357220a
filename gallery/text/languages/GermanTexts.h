#pragma once

#include "ApplicationText.h"

namespace gallery {

struct GermanTexts {
    static constexpr std::string_view language = "de";

    static constexpr ApplicationText texts[] = {
        // Pages, sections and rows.
        {"Add workout", "Training hinzufügen"},
        {"All pickers", "Alle Auswahlräder"},
        {"Workout", "Training"},
        {"Workouts", "Trainings"},
        {"Best interval", "Bestes Intervall"},
        {"Heart", "Herz"},
        {"Conditions", "Bedingungen"},
        {"Body", "Körper"},
        {"Distance and time", "Distanz und Zeit"},
        {"Distance", "Distanz"},
        {"Duration", "Dauer"},
        {"Average speed", "Ø-Geschwindigkeit"},
        {"Speed", "Geschwindigkeit"},
        {"Pace", "Pace"},
        {"Calories", "Kalorien"},
        {"Heart rate", "Herzfrequenz"},
        {"Resting pulse", "Ruhepuls"},
        {"Beats per minute", "Schläge pro Minute"},
        {"Weather", "Wetter"},
        {"Temperature", "Temperatur"},
        {"Water temperature", "Wassertemperatur"},
        {"Weight", "Gewicht"},
        {"Height", "Größe"},
        {"Choose a row to change its value.", "Zeile wählen, um den Wert zu ändern."},
        // Settings and their choices.
        {"Settings", "Einstellungen"},
        {"Units", "Einheiten"},
        {"Metric", "Metrisch"},
        {"Imperial", "Imperial"},
        {"Kilograms", "Kilogramm"},
        {"Pounds", "Pfund"},
        {"Stones", "Stone"},
        {"Text size", "Textgröße"},
        {"Look", "Darstellung"},
        {"System", "System"},
        {"Light", "Hell"},
        {"Dark", "Dunkel"},
        {"Decimal separator", "Dezimaltrennzeichen"},
        {"Automatic", "Automatisch"},
        {"All pages", "Alle Seiten"},
        {"Light or dark", "Hell oder dunkel"},
        {"Motion", "Bewegung"},
        {"Full", "Voll"},
        {"Reduced", "Reduziert"},
        {"Contrast", "Kontrast"},
        {"Normal", "Normal"},
        {"High", "Hoch"},
        {"Wheel clicks", "Klicktöne"},
        {"On", "Ein"},
        {"Off", "Aus"},
        {"Language", "Sprache"},
        // Files.
        {"Open", "Öffnen"},
        {"Save", "Speichern"},
        {"Opened:", "Geöffnet:"},
        {"Saved:", "Gespeichert:"},
        {"The file could not be read:", "Die Datei konnte nicht gelesen werden:"},
        {"The file could not be written:", "Die Datei konnte nicht geschrieben werden:"},
        {"The file has no number for:", "In der Datei fehlt die Zahl für:"},
        {"A number in the file is out of range:", "Eine Zahl in der Datei liegt außerhalb des gültigen Bereichs:"},
        {"The file names no weather that this application knows.", "Die Datei nennt kein Wetter, das diese App kennt."},
        {"This file is damaged, or no workout.", "Diese Datei ist beschädigt oder kein Training."},
        {"This file is damaged.", "Diese Datei ist beschädigt."},
        {"This file is no workout.", "Diese Datei ist kein Training."},
        {"This workout was saved by a newer version of this application.",
         "Dieses Training wurde mit einer neueren Version dieser App gespeichert."},
        // Weather.
        {"clear", "klar"},
        {"partly cloudy", "teils bewölkt"},
        {"cloudy", "bewölkt"},
        {"overcast", "bedeckt"},
        {"fog", "Nebel"},
        {"drizzle", "Nieselregen"},
        {"rain", "Regen"},
        {"showers", "Schauer"},
        {"thunderstorm", "Gewitter"},
        {"sleet", "Schneeregen"},
        {"snow", "Schnee"},
        {"wind", "Wind"},
    };
};

} // namespace gallery
