// The present value of each picker as one text.

#include "GXValueText.h"

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <utility>

#include "GXBpmPickerView.h"
#include "GXCaloriesPickerView.h"
#include "GXDistanceAndDurationPicker.h"
#include "GXHeartRatePickerView.h"
#include "GXHeightPickerView.h"
#include "GXLocalization.h"
#include "GXPacePickerView.h"
#include "GXSpeedPickerView.h"
#include "GXWeatherAndTemperaturePickerView.h"
#include "GXWeightPickerView.h"
#include "NSLocale.h"
#include "NSRunLoop.h"
#include "PickerTest.h"

using namespace gx;

namespace {

/// Pickers that are on no screen, without a size.
class PickerValueText : public testing::Test {
protected:
    void TearDown() override {
        NSLocale::setCurrentLocale(nullptr);
        GXLocalization::setSharedLocalization(nullptr);
    }

    template <class Picker>
    static Ref<Picker> pickerOf(double value, bool isMetric = true) {
        const auto picker = create<Picker>(CGRectZero);
        picker->setIsMetric(isMetric);
        picker->setCurrentValue(boxedDouble(value));
        return picker;
    }
    static std::string height(CGFloat centimetres, bool isMetric) {
        const auto picker = create<GXHeightPickerView>(CGRectZero);
        picker->setIsMetric(isMetric);
        picker->setHeightInCm(centimetres);
        return picker->currentValueText();
    }
};

Ref<UIImage> imageNamed(std::optional<std::string> name) {
    const auto image = UIImage::imageWithPixels_width_height_scale({255, 255, 255, 255}, 1, 1, 1);
    image->setAccessibilityLabel(std::move(name));
    return image;
}

} // namespace

TEST_F(PickerValueText, OfADistanceHasItsDecimalsAndUnit) {
    const auto picker = pickerOf<GXDistancePickerView>(5300);
    EXPECT_EQ(picker->currentValueText(), "5.3 km");
    picker->setNumberOfFractionUnits(2);
    picker->setCurrentValue(boxedDouble(5340));
    EXPECT_EQ(picker->currentValueText(), "5.34 km");
}

TEST_F(PickerValueText, OfADistanceInMilesIsTruncatedAsOnTheWheel) {
    const auto picker = pickerOf<GXDistancePickerView>(1000, false); // 0.6214 miles
    EXPECT_EQ(picker->currentValueText(), "0.6 mi");
    picker->setNumberOfFractionUnits(2);
    picker->selectCurrentValue();
    EXPECT_EQ(picker->currentValueText(), "0.62 mi");
    picker->setCurrentValue(boxedDouble(1601)); // 0.9948 miles
    EXPECT_EQ(picker->currentValueText(), "0.99 mi");
}

TEST_F(PickerValueText, HasTheSeparatorAndUnitsOfTheUser) {
    NSLocale::setCurrentLocale(NSLocale::localeWithIdentifier("de"));
    GXLocalization::sharedLocalization()->setLanguage("de");
    EXPECT_EQ(pickerOf<GXDistancePickerView>(5300)->currentValueText(), "5,3 km");
    EXPECT_EQ(pickerOf<GXBpmPickerView>(60)->currentValueText(), "60 S/min");
}

TEST_F(PickerValueText, OfANumberIsTheNumberAndItsUnit) {
    EXPECT_EQ(pickerOf<GXSpeedPickerView>(12.5 / 3.6)->currentValueText(), "12.5 km/h");
    EXPECT_EQ(pickerOf<GXCaloriesPickerView>(420)->currentValueText(), "420 kcal");
    EXPECT_EQ(pickerOf<GXBpmPickerView>(60)->currentValueText(), "60 bpm");
    EXPECT_EQ(pickerOf<GXTemperaturePickerView>(20)->currentValueText(), "20 °C");
    EXPECT_EQ(pickerOf<GXBasePickerView>(42)->currentValueText(), "42") << "a picker without a unit";
}

TEST_F(PickerValueText, IsThatOfTheRowWhereTheValueLiesBetweenTwo) {
    // Rows of 5 degrees Fahrenheit begin at -4, so that 68 lies between 66 and 71.
    EXPECT_EQ(pickerOf<GXTemperaturePickerView>(20, false)->currentValueText(), "66 °F");
    EXPECT_EQ(pickerOf<GXCaloriesPickerView>(429)->currentValueText(), "420 kcal");
}

TEST_F(PickerValueText, OfADurationFollowsItsType) {
    const auto picker = pickerOf<GXDurationPickerView>(1650'000); // 27:30
    EXPECT_EQ(picker->currentValueText(), "0:27 h");
    picker->setType(GXDurationTypeHoursMinutesSeconds);
    EXPECT_EQ(picker->currentValueText(), "0:27:30");
    picker->setMaxValue(boxed(3599'000)); // Minutes and seconds cannot show an hour.
    picker->setType(GXDurationTypeMinutesSeconds);
    EXPECT_EQ(picker->currentValueText(), "27:30 min");
    picker->setCurrentValue(boxed(305'000));
    EXPECT_EQ(picker->currentValueText(), "5:05 min");
    picker->setType(GXDurationTypeHoursMinutes);
    picker->setMaxValue(boxed(24 * 3600'000));
    picker->setCurrentValue(boxed(12 * 3600'000));
    EXPECT_EQ(picker->currentValueText(), "12:00 h");
    picker->setType(7);
    EXPECT_EQ(picker->currentValueText().find(" h"), std::string::npos) << "an unknown type has no unit";
}

TEST_F(PickerValueText, OfAPaceBeginsWithoutAZero) {
    const auto picker = pickerOf<GXPacePickerView>(1000.0 / 285);
    EXPECT_EQ(picker->currentValueText(), "4:45 min/km");
    picker->setCurrentValue(boxedDouble(1000.0 / 725));
    EXPECT_EQ(picker->currentValueText(), "12:05 min/km");
}

TEST_F(PickerValueText, OfAWeightNamesTheUnitOnceWhereverTheWheelShowsIt) {
    const auto picker = pickerOf<GXWeightPickerView>(72.5);
    EXPECT_EQ(picker->currentValueText(), "72.5 kg");
    picker->setWeightUnitSelectable(true);
    EXPECT_EQ(picker->currentValueText(), "72.5 kg");
    picker->setWeightUnit(GXWeightUnitPound);
    picker->setCurrentValue(boxedDouble(72.5)); // 159.835
    EXPECT_EQ(picker->currentValueText(), "159.8 lb");
}

TEST_F(PickerValueText, OfHeartRatesNamesBothAndHasADashForNone) {
    const auto picker = create<GXHeartRatePickerView>(CGRectZero);
    picker->setCurrentAvgHeartRate(boxed(142));
    picker->setCurrentMaxHeartRate(boxed(171));
    EXPECT_EQ(picker->currentValueText(), "AVG 142, MAX 171");
    picker->setCurrentAvgHeartRate(boxed(0));
    EXPECT_EQ(picker->currentValueText(), "AVG –, MAX 171");
}

TEST_F(PickerValueText, OfAnIconIsTheLabelOfItsImage) {
    const auto picker = create<GXIconPickerView>(CGRectZero);
    EXPECT_EQ(picker->currentValueText(), "");
    picker->setIconImages(std::make_shared<const GXIconPickerView::Images>(
        GXIconPickerView::Images{imageNamed("sun"), imageNamed("rain"), imageNamed(std::nullopt), nullptr}));
    EXPECT_EQ(picker->currentValueText(), "sun");
    picker->setCurrentValue(boxed(1));
    EXPECT_EQ(picker->currentValueText(), "rain");
    for (const int index : {2, 3}) {
        picker->setCurrentValue(boxed(index));
        EXPECT_EQ(picker->currentValueText(), "") << "image " << index << " has no label";
    }
}

TEST_F(PickerValueText, OfACompositeIsThatOfItsInnerPickers) {
    const auto both = create<GXDistanceAndDurationPicker>(CGRectZero);
    both->setIsMetric(true);
    both->distancePicker()->setCurrentValue(boxed(5300));
    both->durationPicker()->setCurrentValue(boxed(1650'000));
    EXPECT_EQ(both->currentValueText(), "5.3 km, 0:27 h");
    both->setDistancePicker(nullptr);
    EXPECT_EQ(both->currentValueText(), "0:27 h");
    both->setDurationPicker(nullptr);
    EXPECT_EQ(both->currentValueText(), "");

    const auto weather = create<GXWeatherAndTemperaturePickerView>(CGRectZero);
    weather->setIsMetric(true);
    weather->temperaturePicker()->setCurrentValue(boxed(15));
    EXPECT_EQ(weather->currentValueText(), "15 °C") << "an icon without a name adds nothing";
    weather->weatherPicker()->setIconImages(std::make_shared<const GXIconPickerView::Images>(GXIconPickerView::Images{imageNamed("sun")}));
    EXPECT_EQ(weather->currentValueText(), "sun, 15 °C");
}

TEST_F(PickerValueText, OfADurationHasTheUnitOfTheLanguage) {
    GXLocalization::sharedLocalization()->setLanguage("ru");
    const auto picker = pickerOf<GXDurationPickerView>(1650'000);
    EXPECT_EQ(picker->currentValueText(), "0:27 ч");
    picker->setMaxValue(boxed(3599'000));
    picker->setType(GXDurationTypeMinutesSeconds);
    EXPECT_EQ(picker->currentValueText(), "27:30 мин");
}

// U+2066 begins an isolate from left to right, U+2068 one in the direction of its first letter, and
// U+2069 ends both.

TEST_F(PickerValueText, AMinusStaysOnTheLeftOfItsNumberInTextFromTheRight) {
    NSLocale::setCurrentLocale(NSLocale::localeWithIdentifier("ar"));
    GXLocalization::sharedLocalization()->setLanguage("ar");
    EXPECT_EQ(pickerOf<GXTemperaturePickerView>(-15)->currentValueText(), "\u2066-15\u2069 °م");
    EXPECT_EQ(pickerOf<GXTemperaturePickerView>(15)->currentValueText(), "15 °م");
    NSLocale::setCurrentLocale(nullptr);
    EXPECT_EQ(pickerOf<GXTemperaturePickerView>(-15)->currentValueText(), "-15 °م");
}

TEST_F(PickerValueText, ValuesSideBySideKeepTheirOwnDirection) {
    NSLocale::setCurrentLocale(NSLocale::localeWithIdentifier("he"));
    GXLocalization::sharedLocalization()->setLanguage("he");
    const auto weather = create<GXWeatherAndTemperaturePickerView>(CGRectZero);
    weather->setIsMetric(true);
    weather->temperaturePicker()->setCurrentValue(boxed(15));
    EXPECT_EQ(weather->currentValueText(), "15 °C");
    weather->weatherPicker()->setIconImages(std::make_shared<const GXIconPickerView::Images>(GXIconPickerView::Images{imageNamed("גשם")}));
    EXPECT_EQ(weather->currentValueText(), "גשם, \u206815 °C\u2069");
    GXLocalization::sharedLocalization()->setLanguage("ar");
    EXPECT_EQ(weather->currentValueText(), "גשם، \u206815 °C\u2069") << "the unit changes with a reload";
    weather->reloadData();
    EXPECT_EQ(weather->currentValueText(), "גשם، \u206815 °م\u2069");
}

/// Egypt writes a decimal separator of its own; the digits are the rules' own in every locale.
TEST_F(PickerValueText, DigitsAreTheSameInEveryLocale) {
    NSLocale::setCurrentLocale(NSLocale::localeWithIdentifier("ar_EG"));
    GXLocalization::sharedLocalization()->setLanguage("ar_EG");
    EXPECT_EQ(pickerOf<GXDistancePickerView>(5300)->currentValueText(), "5\u066B3 كم");
    NSLocale::setCurrentLocale(NSLocale::localeWithIdentifier("ar"));
    EXPECT_EQ(pickerOf<GXDistancePickerView>(5300)->currentValueText(), "5.3 كم");
}

TEST_F(PickerValueText, OfAHeightIsMetricOrInFeetAndInches) {
    EXPECT_EQ(height(176, true), "176 cm");
    EXPECT_EQ(height(176, false), "5' 9\"");
    EXPECT_EQ(height(0, true), "180 cm") << "as the wheel shows no height";
    EXPECT_EQ(height(300, true), "220 cm") << "the last row";
}

TEST_F(PickerValueText, OfAHeightIsRightBeforeTheUnitsRowFollows) {
    const auto picker = create<GXHeightPickerView>(CGRectZero);
    picker->setHeightInCm(176);
    picker->setIsMetric(true); // The second column still selects the row of 9 inches.
    EXPECT_EQ(picker->currentValueText(), "176 cm");
    NSRunLoop::mainRunLoop()->runPass();
    EXPECT_EQ(picker->currentValueText(), "176 cm");
}

TEST_F(PickerValueText, FollowsTheWheelWhenTheUserTurnsIt) {
    const auto picker = pickerOf<GXDistancePickerView>(5300);
    std::string told;
    const auto notices = create<PickerNotices>();
    notices->whenTold = [&told](const PickerNotices::Notice& notice) { told = notice.picker->currentValueText(); };
    picker->setDelegate(notices);
    picker->pickerView()->turnToRow_inComponent(7, 2);
    EXPECT_EQ(told, "5.7 km");
    EXPECT_EQ(picker->currentValueText(), "5.7 km");
}

TEST_F(PickerValueText, IsEmptyWithoutAWheel) {
    for (const Ref<GXBasePickerView>& picker :
         std::initializer_list<Ref<GXBasePickerView>>{pickerOf<GXDistancePickerView>(1), pickerOf<GXDurationPickerView>(1),
                                                      pickerOf<GXPacePickerView>(1), create<GXHeartRatePickerView>(CGRectZero)}) {
        picker->setPickerView(nullptr);
        EXPECT_EQ(picker->currentValueText(), "");
    }
}

TEST_F(PickerValueText, ATitleMayDropThePicker) {
    struct DroppingPicker : GXBasePickerView {
        std::function<void()> whenAsked;
        std::optional<std::string> pickerView_titleForRow_forComponent(const Ref<UIPickerView>&, NSInteger, NSInteger) override {
            if (const auto act = std::exchange(whenAsked, nullptr)) act();
            return "seven";
        }
    };
    Ref<DroppingPicker> picker = create<DroppingPicker>(CGRectZero);
    DroppingPicker& dropped = *picker;
    dropped.whenAsked = [&picker] {
        picker->setPickerView(nullptr);
        picker = nullptr;
    };
    EXPECT_EQ(dropped.currentValueText(), "seven");
    EXPECT_FALSE(picker);
}

TEST(ValueText, KeepsOneOfTheBlanksBeforeATitle) {
    struct Titles : NSObject, UIPickerViewDataSource, GXMultiValuePickerViewDelegate {
        NSInteger numberOfComponentsInPickerView(const Ref<UIPickerView>&) override { return 4; }
        NSInteger pickerView_numberOfRowsInComponent(const Ref<UIPickerView>&, NSInteger) override { return 1; }
        CGFloat pickerView_widthForComponent(const Ref<UIPickerView>&, NSInteger) override { return 20; }
        std::optional<std::string> pickerView_titleForRow_forComponent(const Ref<UIPickerView>&, NSInteger, NSInteger component) override {
            const std::array<std::optional<std::string>, 4> titles = {"a", "   b", std::nullopt, " c"};
            return titles.at(static_cast<std::size_t>(component));
        }
    };
    const auto titles = create<Titles>();
    const auto wheel = create<GXMultiValuePickerView>(CGRectZero);
    wheel->setDataSource(titles);
    wheel->setDelegate(titles);
    wheel->setSeparatorText_afterComponent("|", 1);
    wheel->setSeparatorText_afterComponent("|", 3);
    EXPECT_EQ(textOfSelectedRows(wheel, *titles), "a b| c") << "a separator after the last column is not shown";
    EXPECT_EQ(textOfSelectedRows(nullptr, *titles), "");
}

TEST(ValueText, ALeadingZeroGoesUnlessItIsTheWholeNumber) {
    EXPECT_EQ(withoutLeadingZero("00:27:30"), "0:27:30");
    EXPECT_EQ(withoutLeadingZero("05:07"), "5:07");
    EXPECT_EQ(withoutLeadingZero("12:00"), "12:00");
    EXPECT_EQ(withoutLeadingZero("0:30"), "0:30");
    EXPECT_EQ(withoutLeadingZero("0"), "0");
    EXPECT_EQ(withoutLeadingZero(""), "");
}
