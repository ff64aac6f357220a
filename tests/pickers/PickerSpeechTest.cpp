// What pickers say to a screen reader: the names of their columns and the value that stands on them.

#include <array>

#include <gtest/gtest.h>

#include "GXBpmPickerView.h"
#include "GXCaloriesPickerView.h"
#include "GXDistanceAndDurationPicker.h"
#include "GXDistancePickerView.h"
#include "GXDurationPickerView.h"
#include "GXHeartRatePickerView.h"
#include "GXHeightPickerView.h"
#include "GXIconPickerView.h"
#include "GXLocalization.h"
#include "GXPacePickerView.h"
#include "GXSpeedPickerView.h"
#include "GXTemperaturePickerView.h"
#include "GXWeightPickerCell.h"
#include "GXWeightPickerView.h"
#include "NSLocale.h"
#include "NSRunLoop.h"
#include "PickerTest.h"

using namespace gx;

namespace {

constexpr CGRect place = {{0, 0}, {320, 216}};

/// Puts language and locale back.
struct PickerSpeech : testing::Test {
    ~PickerSpeech() override {
        NSLocale::setCurrentLocale(nullptr);
        GXLocalization::setSharedLocalization(nullptr);
        NSRunLoop::mainRunLoop()->runPass(); // The height picker sets its unit right there.
    }
    static void speak(const std::string& language) {
        NSLocale::setCurrentLocale(NSLocale::localeWithIdentifier(language));
        GXLocalization::sharedLocalization()->setLanguage(language);
    }
};

using Texts = std::vector<std::string>;

Texts labelsOf(const Ref<UIView>& view) {
    Texts texts;
    for (const auto& element : view->accessibilityElements()) texts.push_back(element->label().value_or("(none)"));
    return texts;
}
Texts valuesOf(const Ref<UIView>& view) {
    Texts texts;
    for (const auto& element : view->accessibilityElements()) texts.push_back(element->value().value_or("(none)"));
    return texts;
}
/// The one value that all columns say.
std::string valueOf(const Ref<UIView>& view) {
    const Texts values = valuesOf(view);
    EXPECT_FALSE(values.empty());
    for (const std::string& value : values) EXPECT_EQ(value, values[0]);
    return values.empty() ? "" : values[0];
}

template <class Picker>
Ref<Picker> metricPicker(const NSNumber& value) {
    const auto picker = create<Picker>(place);
    picker->setIsMetric(true);
    picker->setCurrentValue(value);
    return picker;
}
Ref<GXDurationPickerView> durationOfType(NSInteger type, int milliseconds) {
    const auto picker = create<GXDurationPickerView>(place);
    picker->setType(type);
    picker->setSecondsStepSize(1);
    picker->setCurrentValue(boxed(milliseconds));
    return picker;
}

} // namespace

TEST_F(PickerSpeech, Distance) {
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

TEST_F(PickerSpeech, DistanceInGerman) {
    speak("de");
    const auto picker = metricPicker<GXDistancePickerView>(boxed(5300));
    EXPECT_EQ(labelsOf(picker), (Texts{"Distanz, Kilometer", "Distanz, Zehntel"}));
    EXPECT_EQ(valueOf(picker), "5,3 Kilometer");
}

TEST_F(PickerSpeech, ADistanceIsSaidInEveryLanguage) {
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

TEST_F(PickerSpeech, ATurnSaysTheWholeMeasurementAnew) {
    const auto picker = metricPicker<GXDistancePickerView>(boxed(5300));
    picker->accessibilityElements().at(0)->increment();
    EXPECT_EQ(valueOf(picker), "6.3 kilometres");
    picker->accessibilityElements().at(1)->decrement();
    EXPECT_EQ(valueOf(picker), "6.2 kilometres");
    EXPECT_NEAR(picker->currentValue().doubleValue(), 6200, 1e-6);
}

TEST_F(PickerSpeech, AnotherRowIsSaidAsIfItsColumnStoodThere) {
    const auto picker = metricPicker<GXDistancePickerView>(boxed(5300));
    const Ref<UIPickerView> wheel = picker->pickerView();
    EXPECT_EQ(picker->pickerView_accessibilityValueForRow_forComponent(wheel, 12, 0), "12.3 kilometres");
    EXPECT_EQ(picker->pickerView_accessibilityValueForRow_forComponent(wheel, 9, 2), "5.9 kilometres");
}

TEST_F(PickerSpeech, ALabelOfTheApplicationsReplacesTheMeasurement) {
    const auto picker = metricPicker<GXDistancePickerView>(boxed(5300));
    picker->setAccessibilityLabel("Run");
    EXPECT_EQ(labelsOf(picker), (Texts{"Run, kilometres", "Run, tenths"}));
    const auto bpm = create<GXBpmPickerView>(place);
    bpm->setAccessibilityLabel("Cadence");
    EXPECT_EQ(labelsOf(bpm), Texts{"Cadence"});
}

TEST_F(PickerSpeech, Speed) {
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

TEST_F(PickerSpeech, Pace) {
    const auto picker = metricPicker<GXPacePickerView>(boxedDouble(1000.0 / 315)); // 5:15 per kilometre.
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

TEST_F(PickerSpeech, Duration) {
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

TEST_F(PickerSpeech, APartOfADurationThatIsZeroIsNotSaid) {
    EXPECT_EQ(valueOf(durationOfType(GXDurationTypeHoursMinutes, 3600000)), "1 hour");
    EXPECT_EQ(valueOf(durationOfType(GXDurationTypeHoursMinutes, 300000)), "5 minutes");
    EXPECT_EQ(valueOf(durationOfType(GXDurationTypeHoursMinutesSeconds, 3605000)), "1 hour 5 seconds");
    EXPECT_EQ(valueOf(durationOfType(GXDurationTypeHoursMinutes, 0)), "0 minutes");
    EXPECT_EQ(valueOf(durationOfType(GXDurationTypeHoursMinutesSeconds, 0)), "0 seconds");
}

TEST_F(PickerSpeech, HeartRate) {
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

TEST_F(PickerSpeech, BeatsPerMinuteAndCalories) {
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

TEST_F(PickerSpeech, Weight) {
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

TEST_F(PickerSpeech, Height) {
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

TEST_F(PickerSpeech, TheColumnsOfAHeightKeepTheirHandlesWhenTheUnitSwitches) {
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

TEST_F(PickerSpeech, Temperature) {
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

TEST_F(PickerSpeech, Icon) {
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

TEST_F(PickerSpeech, ANumberOfNothingIsItsTitle) {
    const auto picker = create<GXBasePickerView>(place);
    picker->setCurrentValue(boxed(42));
    EXPECT_EQ(picker->accessibilityElements().at(0)->label(), std::nullopt);
    EXPECT_EQ(valueOf(picker), "42");
    picker->setAccessibilityLabel("Laps");
    EXPECT_EQ(labelsOf(picker), Texts{"Laps"});
}

TEST_F(PickerSpeech, ANumberWithoutATitleIsNotSaid) {
    struct Untitled : GXDistancePickerView {
        std::optional<std::string> pickerView_titleForRow_forComponent(const Ref<UIPickerView>&, NSInteger, NSInteger) override {
            return std::nullopt;
        }
    };
    const auto picker = metricPicker<Untitled>(boxed(5300));
    EXPECT_EQ(picker->pickerView_accessibilityValueForRow_forComponent(picker->pickerView(), 5, 0), std::nullopt);
}

TEST_F(PickerSpeech, ACompositeOffersTheColumnsOfBothPickers) {
    const auto picker = create<GXDistanceAndDurationPicker>(place);
    picker->setIsMetric(true);
    EXPECT_EQ(labelsOf(picker), (Texts{"Distance, kilometres", "Distance, tenths", "Duration, hours", "Duration, minutes"}));
    EXPECT_EQ(valuesOf(picker), (Texts{"5.0 kilometres", "5.0 kilometres", "5 minutes", "5 minutes"}));
}

TEST_F(PickerSpeech, APickersCellIsItsColumns) {
    const auto cell = create<GXWeightPickerCell>(place);
    cell->pickerView()->setCurrentValue(boxedDouble(72.5));
    EXPECT_EQ(labelsOf(cell), (Texts{"Weight, kilograms", "Weight, tenths"}));
}

TEST_F(PickerSpeech, AnApplicationsLocaliserSaysItItsOwnWay) {
    struct OwnWords : GXLocalization {
        std::optional<std::string> accessibilityTextForName(GXSpokenName name) const override {
            if (name == GXSpokenName::Tenths) return std::nullopt;
            return name == GXSpokenName::Distance ? std::optional<std::string>("Way") : GXLocalization::accessibilityTextForName(name);
        }
        std::optional<std::string> accessibilityTextForNumber_unit(const GXSpokenNumber& number, GXSpokenUnit unit) const override {
            if (unit != GXSpokenUnit::Kilometre) return std::nullopt;
            return number.whole + " point " + number.fraction + " clicks";
        }
    };
    GXLocalization::setSharedLocalization(create<OwnWords>());
    const auto picker = metricPicker<GXDistancePickerView>(boxed(5300));
    EXPECT_EQ(labelsOf(picker), (Texts{"Way, kilometres", "Way"}));
    EXPECT_EQ(valueOf(picker), "5 point 3 clicks");
}

TEST_F(PickerSpeech, ALocaliserMayLeaveOutPatternsAndQuantities) {
    struct FewWords : GXLocalization {
        bool hasQuantities = true;
        std::optional<std::string> accessibilityTextForName(GXSpokenName name) const override {
            const bool isLeftOut = name == GXSpokenName::NameAndPart || name == GXSpokenName::PerKilometre;
            return isLeftOut ? std::nullopt : GXLocalization::accessibilityTextForName(name);
        }
        std::optional<std::string> accessibilityTextForNumber_unit(const GXSpokenNumber& number, GXSpokenUnit unit) const override {
            return hasQuantities ? GXLocalization::accessibilityTextForNumber_unit(number, unit) : std::nullopt;
        }
    };
    const auto localization = create<FewWords>();
    GXLocalization::setSharedLocalization(localization);
    const auto picker = metricPicker<GXPacePickerView>(boxedDouble(1000.0 / 315)); // 5:15 per kilometre.
    EXPECT_EQ(labelsOf(picker), (Texts{"Pace", "Pace"}));
    EXPECT_EQ(valueOf(picker), "5 minutes 15 seconds");
    localization->hasQuantities = false;
    EXPECT_EQ(valuesOf(picker), (Texts{"05", "15"})) << "the titles are left to be said";
}

TEST_F(PickerSpeech, AColumnThatHoldsNoPartIsCalledByTheMeasurementAlone) {
    const auto nameOf = [](const Ref<GXBasePickerView>& picker, NSInteger component) {
        return picker->pickerView_accessibilityLabelForComponent(picker->pickerView(), component);
    };
    for (const NSInteger component : {1, 99}) {
        EXPECT_EQ(nameOf(create<GXDistancePickerView>(place), component), "Distance");
        EXPECT_EQ(nameOf(create<GXSpeedPickerView>(place), component), "Speed");
        EXPECT_EQ(nameOf(create<GXPacePickerView>(place), component), "Pace");
        EXPECT_EQ(nameOf(create<GXWeightPickerView>(place), component), "Weight");
        EXPECT_EQ(nameOf(create<GXDurationPickerView>(place), component), "Duration");
    }
    const auto duration = create<GXDurationPickerView>(place);
    duration->setType(99);
    EXPECT_EQ(duration->pickerView_accessibilityValueForRow_forComponent(duration->pickerView(), 0, 0), std::nullopt);
}
