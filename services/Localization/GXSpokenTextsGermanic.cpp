// What screen readers speak in English, German and Dutch.
//
// Sources. Units: the long unit patterns of the Unicode Common Locale Data Repository for each language, or the words that runners use
// for the same. The names of measurements and columns are the wording of this project.

#include "GXSpokenTables.h"

namespace gx {

namespace {

using spoken::forms;
using Name = GXSpokenTexts::Name;
using Unit = GXSpokenTexts::Unit;

constexpr Name englishNames[] = {
    {GXSpokenName::Distance, "Distance"},
    {GXSpokenName::Duration, "Duration"},
    {GXSpokenName::Pace, "Pace"},
    {GXSpokenName::Speed, "Speed"},
    {GXSpokenName::AverageHeartRate, "Average heart rate"},
    {GXSpokenName::MaximumHeartRate, "Maximum heart rate"},
    {GXSpokenName::BeatsPerMinute, "Beats per minute"},
    {GXSpokenName::Calories, "Calories"},
    {GXSpokenName::Weight, "Weight"},
    {GXSpokenName::Height, "Height"},
    {GXSpokenName::Temperature, "Temperature"},
    {GXSpokenName::Icon, "Icon"},
    {GXSpokenName::Kilometres, "kilometres"},
    {GXSpokenName::Miles, "miles"},
    {GXSpokenName::Tenths, "tenths"},
    {GXSpokenName::Hundredths, "hundredths"},
    {GXSpokenName::Hours, "hours"},
    {GXSpokenName::Minutes, "minutes"},
    {GXSpokenName::Seconds, "seconds"},
    {GXSpokenName::KilometresPerHour, "kilometres per hour"},
    {GXSpokenName::MilesPerHour, "miles per hour"},
    {GXSpokenName::Kilograms, "kilograms"},
    {GXSpokenName::Pounds, "pounds"},
    {GXSpokenName::Stones, "stones"},
    {GXSpokenName::Centimetres, "centimetres"},
    {GXSpokenName::Feet, "feet"},
    {GXSpokenName::Inches, "inches"},
    {GXSpokenName::Unit, "unit"},
    {GXSpokenName::Average, "average"},
    {GXSpokenName::Maximum, "maximum"},
    {GXSpokenName::NoValue, "no value"},
    {GXSpokenName::NameAndPart, "{0}, {1}"},
    {GXSpokenName::Sum, "{0} {1}"},
    {GXSpokenName::Minus, "minus {0}"},
    {GXSpokenName::PerKilometre, "{0} per kilometre"},
    {GXSpokenName::PerMile, "{0} per mile"},
};
constexpr Unit englishUnits[] = {
    {GXSpokenUnit::Kilometre, forms("{0} kilometre", "{0} kilometres")},
    {GXSpokenUnit::Mile, forms("{0} mile", "{0} miles")},
    {GXSpokenUnit::Hour, forms("{0} hour", "{0} hours")},
    {GXSpokenUnit::Minute, forms("{0} minute", "{0} minutes")},
    {GXSpokenUnit::Second, forms("{0} second", "{0} seconds")},
    {GXSpokenUnit::KilometrePerHour, forms("{0} kilometre per hour", "{0} kilometres per hour")},
    {GXSpokenUnit::MilePerHour, forms("{0} mile per hour", "{0} miles per hour")},
    {GXSpokenUnit::BeatPerMinute, forms("{0} beat per minute", "{0} beats per minute")},
    {GXSpokenUnit::Kilocalorie, forms("{0} kilocalorie", "{0} kilocalories")},
    {GXSpokenUnit::Kilogram, forms("{0} kilogram", "{0} kilograms")},
    {GXSpokenUnit::Pound, forms("{0} pound", "{0} pounds")},
    {GXSpokenUnit::Stone, forms("{0} stone", "{0} stones")},
    {GXSpokenUnit::Centimetre, forms("{0} centimetre", "{0} centimetres")},
    {GXSpokenUnit::Foot, forms("{0} foot", "{0} feet")},
    {GXSpokenUnit::Inch, forms("{0} inch", "{0} inches")},
    {GXSpokenUnit::DegreeCelsius, forms("{0} degree Celsius", "{0} degrees Celsius")},
    {GXSpokenUnit::DegreeFahrenheit, forms("{0} degree Fahrenheit", "{0} degrees Fahrenheit")},
};
static_assert(spoken::isComplete(englishNames, englishUnits, {GXPluralCategory::One, GXPluralCategory::Other}));

constexpr Name germanNames[] = {
    {GXSpokenName::Distance, "Distanz"},
    {GXSpokenName::Duration, "Dauer"},
    {GXSpokenName::Pace, "Tempo"},
    {GXSpokenName::Speed, "Geschwindigkeit"},
    {GXSpokenName::AverageHeartRate, "Durchschnittliche Herzfrequenz"},
    {GXSpokenName::MaximumHeartRate, "Maximale Herzfrequenz"},
    {GXSpokenName::BeatsPerMinute, "Schläge pro Minute"},
    {GXSpokenName::Calories, "Kalorien"},
    {GXSpokenName::Weight, "Gewicht"},
    {GXSpokenName::Height, "Größe"},
    {GXSpokenName::Temperature, "Temperatur"},
    {GXSpokenName::Icon, "Symbol"},
    {GXSpokenName::Kilometres, "Kilometer"},
    {GXSpokenName::Miles, "Meilen"},
    {GXSpokenName::Tenths, "Zehntel"},
    {GXSpokenName::Hundredths, "Hundertstel"},
    {GXSpokenName::Hours, "Stunden"},
    {GXSpokenName::Minutes, "Minuten"},
    {GXSpokenName::Seconds, "Sekunden"},
    {GXSpokenName::KilometresPerHour, "Kilometer pro Stunde"},
    {GXSpokenName::MilesPerHour, "Meilen pro Stunde"},
    {GXSpokenName::Kilograms, "Kilogramm"},
    {GXSpokenName::Pounds, "Pfund"},
    {GXSpokenName::Stones, "Stones"},
    {GXSpokenName::Centimetres, "Zentimeter"},
    {GXSpokenName::Feet, "Fuß"},
    {GXSpokenName::Inches, "Zoll"},
    {GXSpokenName::Unit, "Einheit"},
    {GXSpokenName::Average, "Durchschnitt"},
    {GXSpokenName::Maximum, "Maximum"},
    {GXSpokenName::NoValue, "kein Wert"},
    {GXSpokenName::NameAndPart, "{0}, {1}"},
    {GXSpokenName::Sum, "{0} {1}"},
    {GXSpokenName::Minus, "minus {0}"},
    {GXSpokenName::PerKilometre, "{0} pro Kilometer"},
    {GXSpokenName::PerMile, "{0} pro Meile"},
};
constexpr Unit germanUnits[] = {
    {GXSpokenUnit::Kilometre, forms("{0} Kilometer", "{0} Kilometer")},
    {GXSpokenUnit::Mile, forms("{0} Meile", "{0} Meilen")},
    {GXSpokenUnit::Hour, forms("{0} Stunde", "{0} Stunden")},
    {GXSpokenUnit::Minute, forms("{0} Minute", "{0} Minuten")},
    {GXSpokenUnit::Second, forms("{0} Sekunde", "{0} Sekunden")},
    {GXSpokenUnit::KilometrePerHour, forms("{0} Kilometer pro Stunde", "{0} Kilometer pro Stunde")},
    {GXSpokenUnit::MilePerHour, forms("{0} Meile pro Stunde", "{0} Meilen pro Stunde")},
    {GXSpokenUnit::BeatPerMinute, forms("{0} Schlag pro Minute", "{0} Schläge pro Minute")},
    {GXSpokenUnit::Kilocalorie, forms("{0} Kilokalorie", "{0} Kilokalorien")},
    {GXSpokenUnit::Kilogram, forms("{0} Kilogramm", "{0} Kilogramm")},
    {GXSpokenUnit::Pound, forms("{0} Pfund", "{0} Pfund")},
    {GXSpokenUnit::Stone, forms("{0} Stone", "{0} Stones")},
    {GXSpokenUnit::Centimetre, forms("{0} Zentimeter", "{0} Zentimeter")},
    {GXSpokenUnit::Foot, forms("{0} Fuß", "{0} Fuß")},
    {GXSpokenUnit::Inch, forms("{0} Zoll", "{0} Zoll")},
    {GXSpokenUnit::DegreeCelsius, forms("{0} Grad Celsius", "{0} Grad Celsius")},
    {GXSpokenUnit::DegreeFahrenheit, forms("{0} Grad Fahrenheit", "{0} Grad Fahrenheit")},
};
static_assert(spoken::isComplete(germanNames, germanUnits, {GXPluralCategory::One, GXPluralCategory::Other}));

constexpr Name dutchNames[] = {
    {GXSpokenName::Distance, "Afstand"},
    {GXSpokenName::Duration, "Duur"},
    {GXSpokenName::Pace, "Tempo"},
    {GXSpokenName::Speed, "Snelheid"},
    {GXSpokenName::AverageHeartRate, "Gemiddelde hartslag"},
    {GXSpokenName::MaximumHeartRate, "Maximale hartslag"},
    {GXSpokenName::BeatsPerMinute, "Slagen per minuut"},
    {GXSpokenName::Calories, "Calorieën"},
    {GXSpokenName::Weight, "Gewicht"},
    {GXSpokenName::Height, "Lengte"},
    {GXSpokenName::Temperature, "Temperatuur"},
    {GXSpokenName::Icon, "Pictogram"},
    {GXSpokenName::Kilometres, "kilometer"},
    {GXSpokenName::Miles, "mijl"},
    {GXSpokenName::Tenths, "tienden"},
    {GXSpokenName::Hundredths, "honderdsten"},
    {GXSpokenName::Hours, "uren"},
    {GXSpokenName::Minutes, "minuten"},
    {GXSpokenName::Seconds, "seconden"},
    {GXSpokenName::KilometresPerHour, "kilometer per uur"},
    {GXSpokenName::MilesPerHour, "mijl per uur"},
    {GXSpokenName::Kilograms, "kilogram"},
    {GXSpokenName::Pounds, "pond"},
    {GXSpokenName::Stones, "stone"},
    {GXSpokenName::Centimetres, "centimeter"},
    {GXSpokenName::Feet, "voet"},
    {GXSpokenName::Inches, "inch"},
    {GXSpokenName::Unit, "eenheid"},
    {GXSpokenName::Average, "gemiddelde"},
    {GXSpokenName::Maximum, "maximum"},
    {GXSpokenName::NoValue, "geen waarde"},
    {GXSpokenName::NameAndPart, "{0}, {1}"},
    {GXSpokenName::Sum, "{0} {1}"},
    {GXSpokenName::Minus, "min {0}"},
    {GXSpokenName::PerKilometre, "{0} per kilometer"},
    {GXSpokenName::PerMile, "{0} per mijl"},
};
constexpr Unit dutchUnits[] = {
    {GXSpokenUnit::Kilometre, forms("{0} kilometer", "{0} kilometer")},
    {GXSpokenUnit::Mile, forms("{0} mijl", "{0} mijl")},
    {GXSpokenUnit::Hour, forms("{0} uur", "{0} uur")},
    {GXSpokenUnit::Minute, forms("{0} minuut", "{0} minuten")},
    {GXSpokenUnit::Second, forms("{0} seconde", "{0} seconden")},
    {GXSpokenUnit::KilometrePerHour, forms("{0} kilometer per uur", "{0} kilometer per uur")},
    {GXSpokenUnit::MilePerHour, forms("{0} mijl per uur", "{0} mijl per uur")},
    {GXSpokenUnit::BeatPerMinute, forms("{0} slag per minuut", "{0} slagen per minuut")},
    {GXSpokenUnit::Kilocalorie, forms("{0} kilocalorie", "{0} kilocalorieën")},
    {GXSpokenUnit::Kilogram, forms("{0} kilogram", "{0} kilogram")},
    {GXSpokenUnit::Pound, forms("{0} pond", "{0} pond")},
    {GXSpokenUnit::Stone, forms("{0} stone", "{0} stone")},
    {GXSpokenUnit::Centimetre, forms("{0} centimeter", "{0} centimeter")},
    {GXSpokenUnit::Foot, forms("{0} voet", "{0} voet")},
    {GXSpokenUnit::Inch, forms("{0} inch", "{0} inch")},
    {GXSpokenUnit::DegreeCelsius, forms("{0} graad Celsius", "{0} graden Celsius")},
    {GXSpokenUnit::DegreeFahrenheit, forms("{0} graad Fahrenheit", "{0} graden Fahrenheit")},
};
static_assert(spoken::isComplete(dutchNames, dutchUnits, {GXPluralCategory::One, GXPluralCategory::Other}));

} // namespace

constinit const GXSpokenTexts spokenEnglish("en", englishNames, englishUnits);
constinit const GXSpokenTexts spokenGerman("de", germanNames, germanUnits);
constinit const GXSpokenTexts spokenDutch("nl", dutchNames, dutchUnits);

} // namespace gx
