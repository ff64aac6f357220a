// Accessibility texts of the pickers: the names of their components and the value that these show.

#include <array>

#include "AccessibilityTextTest.h"
#include "GXBpmPickerView.h"
#include "GXCaloriesPickerView.h"
#include "GXDistanceAndDurationPicker.h"
#include "GXDistancePickerView.h"
#include "GXDurationPickerView.h"
#include "GXHeartRatePickerView.h"
#include "GXHeightPickerView.h"
#include "GXIconPickerView.h"
#include "GXPacePickerView.h"
#include "GXSpeedPickerView.h"
#include "GXTemperaturePickerView.h"
#include "GXWeightPickerCell.h"
#include "GXWeightPickerView.h"

using namespace gx;

TEST_F(PickerAccessibilityText, Distance) {
    const auto picker = metricPicker<GXDistancePickerView>(boxed(5300));
    EXPECT_EQ(labelsOf(picker), (Texts{"Distance, kilometres", "Distance, tenths"}));
    EXPECT_EQ(valueOf(picker), "5.3 kilometres");
    picker->setNumberOfFractionUnits(2);
    picker->setCurrentValue(boxed(1000));
    EXPECT_EQ(labelsOf(picker), (Texts{"Distance, kilometres", "Distance, tenths", "Distance, hundredths"}));
    EXPECT_EQ(valueOf(picker), "1.00 kilometres");
    picker->setIsMetric(false);
    picker->setCurrentValue(boxed(1700)); // 1.056 miles.
    EXPECT_EQ(labelsOf(picker), (Texts{"Distance, miles", "Distance, tenths", "Distance, hundredths"}));
    EXPECT_EQ(valueOf(picker), "1.05 miles");
}

TEST_F(PickerAccessibilityText, DistanceInGerman) {
    speak("de");
    const auto picker = metricPicker<GXDistancePickerView>(boxed(5300));
    EXPECT_EQ(labelsOf(picker), (Texts{"Distanz, Kilometer", "Distanz, Zehntel"}));
    EXPECT_EQ(valueOf(picker), "5,3 Kilometer");
}

TEST_F(PickerAccessibilityText, ADistanceHasATextInEveryLanguage) {
    const std::vector<std::array<std::string, 3>> expected = {
        {"en", "Distance, tenths", "5.3 kilometres"},   {"de", "Distanz, Zehntel", "5,3 Kilometer"},
        {"fr", "Distance, dixièmes", "5,3 kilomètres"}, {"es", "Distancia, décimas", "5,3 kilómetros"},
        {"it", "Distanza, decimi", "5,3 chilometri"},   {"pt", "Distância, décimos", "5,3 quilômetros"},
        {"nl", "Afstand, tienden", "5,3 kilometer"},    {"pl", "Dystans, dziesiąte", "5,3 kilometra"},
        {"ru", "Расстояние, десятые", "5,3 километра"}, {"tr", "Mesafe, onda birler", "5,3 kilometre"},
        {"ja", "距離、小数第一位", "5.3 キロメートル"}, {"zh-Hans", "距离，十分位", "5.3公里"},
        {"ko", "거리, 소수 첫째 자리", "5.3킬로미터"},
    };
    for (const auto& [language, label, value] : expected) {
        speak(language);
        const auto picker = metricPicker<GXDistancePickerView>(boxed(5300));
        EXPECT_EQ(labelsOf(picker).at(1), label);
        EXPECT_EQ(valueOf(picker), value);
    }
}

TEST_F(PickerAccessibilityText, ASelectionUpdatesTheWholeMeasurement) {
    const auto picker = metricPicker<GXDistancePickerView>(boxed(5300));
    picker->accessibilityElements().at(0)->increment();
    EXPECT_EQ(valueOf(picker), "6.3 kilometres");
    picker->accessibilityElements().at(1)->decrement();
    EXPECT_EQ(valueOf(picker), "6.2 kilometres");
    EXPECT_NEAR(picker->currentValue().doubleValue(), 6200, 1e-6);
}

TEST_F(PickerAccessibilityText, AnotherRowIsReadAsIfItsComponentHadSelectedIt) {
    const auto picker = metricPicker<GXDistancePickerView>(boxed(5300));
    const Ref<UIPickerView> wheel = picker->pickerView();
    EXPECT_EQ(picker->pickerView_accessibilityValueForRow_forComponent(wheel, 12, 0), "12.3 kilometres");
    EXPECT_EQ(picker->pickerView_accessibilityValueForRow_forComponent(wheel, 9, 2), "5.9 kilometres");
}

TEST_F(PickerAccessibilityText, ALabelOfTheApplicationsReplacesTheMeasurement) {
    const auto picker = metricPicker<GXDistancePickerView>(boxed(5300));
    picker->setAccessibilityLabel("Run");
    EXPECT_EQ(labelsOf(picker), (Texts{"Run, kilometres", "Run, tenths"}));
    const auto bpm = create<GXBpmPickerView>(place);
    bpm->setAccessibilityLabel("Cadence");
    EXPECT_EQ(labelsOf(bpm), Texts{"Cadence"});
}

TEST_F(PickerAccessibilityText, Speed) {
    const auto picker = metricPicker<GXSpeedPickerView>(boxedDouble(12.5 / 3.6));
    EXPECT_EQ(labelsOf(picker), (Texts{"Speed, kilometres per hour", "Speed, tenths"}));
    EXPECT_EQ(valueOf(picker), "12.5 kilometres per hour");
    picker->setIsMetric(false); // 7.77 miles per hour.
    EXPECT_EQ(labelsOf(picker), (Texts{"Speed, miles per hour", "Speed, tenths"}));
    EXPECT_EQ(valueOf(picker), "7.8 miles per hour");
    speak("de");
    const auto german = metricPicker<GXSpeedPickerView>(boxedDouble(12.5 / 3.6));
    EXPECT_EQ(labelsOf(german), (Texts{"Geschwindigkeit, Kilometer pro Stunde", "Geschwindigkeit, Zehntel"}));
    EXPECT_EQ(valueOf(german), "12,5 Kilometer pro Stunde");
}

TEST_F(PickerAccessibilityText, Pace) {
    // 5:15 per kilometre.
    const auto picker = metricPicker<GXPacePickerView>(boxedDouble(1000.0 / 315));
    EXPECT_EQ(labelsOf(picker), (Texts{"Pace, minutes", "Pace, seconds"}));
    EXPECT_EQ(valueOf(picker), "5 minutes 15 seconds per kilometre");
    picker->setCurrentValue(boxedDouble(1000.0 / 300));
    EXPECT_EQ(valueOf(picker), "5 minutes per kilometre");
    speak("de");
    EXPECT_EQ(labelsOf(picker), (Texts{"Tempo, Minuten", "Tempo, Sekunden"}));
    EXPECT_EQ(valueOf(picker), "5 Minuten pro Kilometer");
    picker->setIsMetric(false); // 300 s/km are 482.8, so 8:03 per mile, on the row of 8:00.
    EXPECT_EQ(valueOf(picker), "8 Minuten pro Meile");
}

TEST_F(PickerAccessibilityText, Duration) {
    const auto hours = durationOfType(GXDurationTypeHoursMinutes, 80 * 60000);
    EXPECT_EQ(labelsOf(hours), (Texts{"Duration, hours", "Duration, minutes"}));
    EXPECT_EQ(valueOf(hours), "1 hour 20 minutes");
    const auto all = durationOfType(GXDurationTypeHoursMinutesSeconds, 2 * 3600000 + 61000);
    EXPECT_EQ(labelsOf(all), (Texts{"Duration, hours", "Duration, minutes", "Duration, seconds"}));
    EXPECT_EQ(valueOf(all), "2 hours 1 minute 1 second");
    const auto minutes = durationOfType(GXDurationTypeMinutesSeconds, 65000);
    minutes->setMaxValue(boxed(3000000));
    EXPECT_EQ(labelsOf(minutes), (Texts{"Duration, minutes", "Duration, seconds"}));
    EXPECT_EQ(valueOf(minutes), "1 minute 5 seconds");
    speak("de");
    EXPECT_EQ(valueOf(all), "2 Stunden 1 Minute 1 Sekunde");
    speak("pl");
    EXPECT_EQ(valueOf(hours), "1 godzina 20 minut");
}

TEST_F(PickerAccessibilityText, APartOfADurationThatIsZeroHasNoText) {
    EXPECT_EQ(valueOf(durationOfType(GXDurationTypeHoursMinutes, 3600000)), "1 hour");
    EXPECT_EQ(valueOf(durationOfType(GXDurationTypeHoursMinutes, 300000)), "5 minutes");
    EXPECT_EQ(valueOf(durationOfType(GXDurationTypeHoursMinutesSeconds, 3605000)), "1 hour 5 seconds");
    EXPECT_EQ(valueOf(durationOfType(GXDurationTypeHoursMinutes, 0)), "0 minutes");
    EXPECT_EQ(valueOf(durationOfType(GXDurationTypeHoursMinutesSeconds, 0)), "0 seconds");
}

TEST_F(PickerAccessibilityText, HeartRate) {
    const auto picker = create<GXHeartRatePickerView>(place);
    picker->setCurrentAvgHeartRate(boxed(142));
    picker->setCurrentMaxHeartRate(boxed(181));
    EXPECT_EQ(labelsOf(picker), (Texts{"Average heart rate", "Maximum heart rate"}));
    EXPECT_EQ(valuesOf(picker), (Texts{"142 beats per minute", "181 beats per minute"}));
    picker->setCurrentAvgHeartRate(boxed(25));
    EXPECT_EQ(valuesOf(picker), (Texts{"no value", "181 beats per minute"}));
    speak("de");
    EXPECT_EQ(labelsOf(picker), (Texts{"Durchschnittliche Herzfrequenz", "Maximale Herzfrequenz"}));
    EXPECT_EQ(valuesOf(picker), (Texts{"kein Wert", "181 Schläge pro Minute"}));
    speak("en");
    picker->setShouldShowNullValue(false);
    EXPECT_EQ(valuesOf(picker).at(0), "25 beats per minute");
    picker->setAccessibilityLabel("Pulse");
    EXPECT_EQ(labelsOf(picker), (Texts{"Pulse, average", "Pulse, maximum"}));
}

TEST_F(PickerAccessibilityText, BeatsPerMinuteAndCalories) {
    const auto bpm = create<GXBpmPickerView>(place);
    const auto calories = create<GXCaloriesPickerView>(place);
    calories->setCurrentValue(boxed(450));
    EXPECT_EQ(labelsOf(bpm), Texts{"Beats per minute"});
    EXPECT_EQ(valueOf(bpm), "160 beats per minute");
    EXPECT_EQ(labelsOf(calories), Texts{"Calories"});
    EXPECT_EQ(valueOf(calories), "450 kilocalories");
    speak("de");
    EXPECT_EQ(labelsOf(bpm), Texts{"Schläge pro Minute"});
    EXPECT_EQ(valueOf(bpm), "160 Schläge pro Minute");
    EXPECT_EQ(labelsOf(calories), Texts{"Kalorien"});
    EXPECT_EQ(valueOf(calories), "450 Kilokalorien");
}

TEST_F(PickerAccessibilityText, Weight) {
    const auto picker = create<GXWeightPickerView>(place);
    picker->setCurrentValue(boxedDouble(72.5));
    EXPECT_EQ(labelsOf(picker), (Texts{"Weight, kilograms", "Weight, tenths"}));
    EXPECT_EQ(valueOf(picker), "72.5 kilograms");
    picker->setWeightUnitSelectable(true);
    picker->setWeightUnit(GXWeightUnitPound);
    picker->setCurrentValue(boxedDouble(72.6)); // 160.06 lb.
    EXPECT_EQ(labelsOf(picker), (Texts{"Weight, pounds", "Weight, tenths", "Weight, unit"}));
    EXPECT_EQ(valueOf(picker), "160.1 pounds");
    picker->setWeightUnit(GXWeightUnitStone);
    picker->setCurrentValue(boxedDouble(72.6)); // 11.43 st.
    EXPECT_EQ(labelsOf(picker), (Texts{"Weight, stones", "Weight, tenths", "Weight, unit"}));
    EXPECT_EQ(valueOf(picker), "11.4 stones");
    speak("de");
    const auto german = create<GXWeightPickerView>(place);
    german->setCurrentValue(boxedDouble(72.5));
    EXPECT_EQ(labelsOf(german), (Texts{"Gewicht, Kilogramm", "Gewicht, Zehntel"}));
    EXPECT_EQ(valueOf(german), "72,5 Kilogramm");
}

TEST_F(PickerAccessibilityText, Height) {
    const auto picker = create<GXHeightPickerView>(place);
    picker->setIsMetric(true);
    picker->setHeightInCm(176);
    NSRunLoop::mainRunLoop()->runPass();
    EXPECT_EQ(labelsOf(picker), (Texts{"Height, centimetres", "Height, unit"}));
    EXPECT_EQ(valueOf(picker), "176 centimetres");
    picker->setIsMetric(false); // 69.29 inches.
    NSRunLoop::mainRunLoop()->runPass();
    EXPECT_EQ(labelsOf(picker), (Texts{"Height, feet", "Height, inches", "Height, unit"}));
    EXPECT_EQ(valueOf(picker), "5 feet 9 inches");
    picker->setHeightInCm(183); // 6 feet and 0.05 inches.
    EXPECT_EQ(valueOf(picker), "6 feet");
    picker->setAccessibilityLabel("Größe des Kindes");
    speak("de");
    EXPECT_EQ(labelsOf(picker), (Texts{"Größe des Kindes, Fuß", "Größe des Kindes, Zoll", "Größe des Kindes, Einheit"}));
    picker->setHeightInCm(155); // 61.02 inches.
    EXPECT_EQ(valueOf(picker), "5 Fuß 1 Zoll");
}

TEST_F(PickerAccessibilityText, TheColumnsOfAHeightKeepTheirHandlesWhenTheUnitSwitches) {
    const auto picker = create<GXHeightPickerView>(place);
    picker->setIsMetric(true);
    picker->setHeightInCm(165);
    NSRunLoop::mainRunLoop()->runPass();
    const auto unit = picker->accessibilityElements().at(1);
    ASSERT_EQ(unit->label(), "Height, unit");
    unit->increment(); // Without a window it arrives at once.
    NSRunLoop::mainRunLoop()->runPass();
    EXPECT_FALSE(picker->isMetric());
    EXPECT_EQ(unit->label(), "Height, unit");
    EXPECT_EQ(unit->index(), 1);
    EXPECT_EQ(unit->count(), 2);
    const auto columns = picker->accessibilityElements();
    ASSERT_EQ(columns.size(), 3U);
    EXPECT_TRUE(unit->isSameAs(*columns[2]));
    EXPECT_EQ(unit->frame(), columns[2]->frame());
    EXPECT_FALSE(unit->isSameAs(*columns[1]));
    unit->decrement();
    NSRunLoop::mainRunLoop()->runPass();
    EXPECT_TRUE(picker->isMetric());
    EXPECT_EQ(unit->label(), "Height, unit");
    EXPECT_EQ(unit->index(), 0);
    EXPECT_FALSE(columns[1]->exists()) << "the inches are gone, and did not become the unit";
    columns[1]->increment();
    EXPECT_TRUE(picker->isMetric());
    EXPECT_EQ(picker->heightInCm(), 165);
}

TEST_F(PickerAccessibilityText, Temperature) {
    const auto picker = metricPicker<GXTemperaturePickerView>(boxed(15));
    EXPECT_EQ(labelsOf(picker), Texts{"Temperature"});
    EXPECT_EQ(valueOf(picker), "15 degrees Celsius");
    picker->setCurrentValue(boxed(-5));
    EXPECT_EQ(valueOf(picker), "minus 5 degrees Celsius");
    picker->setIsMetric(false); // 23 °F, on the row of 21: -4, 1, 6, 11, 16, 21.
    EXPECT_EQ(valueOf(picker), "21 degrees Fahrenheit");
    speak("de");
    picker->setCurrentValue(boxed(-20));
    EXPECT_EQ(labelsOf(picker), Texts{"Temperatur"});
    EXPECT_EQ(valueOf(picker), "minus 4 Grad Fahrenheit");
}

TEST_F(PickerAccessibilityText, Icon) {
    const auto sunny = UIImage::imageWithPixels_width_height_scale({0, 0, 0, 255}, 1, 1, 1);
    sunny->setAccessibilityLabel("sunny");
    const auto cloudy = UIImage::imageWithPixels_width_height_scale({0, 0, 0, 255}, 1, 1, 1);
    cloudy->setAccessibilityLabel("partly cloudy");
    const auto unnamed = UIImage::imageWithPixels_width_height_scale({0, 0, 0, 255}, 1, 1, 1);
    const auto picker = create<GXIconPickerView>(place);
    picker->setIconImages(std::make_shared<const GXIconPickerView::Images>(GXIconPickerView::Images{sunny, cloudy, unnamed}));
    EXPECT_EQ(labelsOf(picker), Texts{"Icon"});
    EXPECT_EQ(valueOf(picker), "sunny");
    picker->accessibilityElements().at(0)->increment();
    EXPECT_EQ(valueOf(picker), "partly cloudy");
    picker->accessibilityElements().at(0)->increment();
    EXPECT_EQ(picker->accessibilityElements().at(0)->value(), std::nullopt);
    EXPECT_EQ(picker->pickerView_accessibilityValueForRow_forComponent(picker->pickerView(), 3, 0), std::nullopt) << "there is none";
    picker->setAccessibilityLabel("Weather");
    EXPECT_EQ(labelsOf(picker), Texts{"Weather"});
    picker->setAccessibilityLabel(std::nullopt);
    speak("de");
    EXPECT_EQ(labelsOf(picker), Texts{"Symbol"});
}
