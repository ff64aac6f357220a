// Pickers by the keyboard: what is typed becomes their value.

#include "GXBpmPickerView.h"
#include "GXDistancePickerView.h"
#include "GXDurationPickerView.h"
#include "GXHeartRatePickerView.h"
#include "GXHeightPickerView.h"
#include "GXTemperaturePickerView.h"
#include "GXWeightPickerView.h"
#include "NSLocale.h"
#include "NSRunLoop.h"
#include "PickerNotices.h"
#include "TestWindow.h"

using namespace gx;
using Code = UIKey::Code;

namespace {

/// A picker in a window, with the focus, and what its delegate is told.
template <class Picker>
struct Typed {
    Ref<Picker> picker;
    Ref<PickerNotices> notices = create<PickerNotices>();
    TestWindow window;

    explicit Typed(const Ref<Picker>& shown) : picker(shown), window(shown) {
        picker->setDelegate(notices);
        window.tick(0);
        EXPECT_TRUE(window.press(Code::Tab));
    }
    std::vector<double> told() {
        window.run(2);
        std::vector<double> values;
        for (const PickerNotices::Notice& notice : notices->list) values.push_back(notice.value.doubleValue());
        notices->list.clear();
        return values;
    }
};

template <class Picker>
Ref<Picker> make() {
    return create<Picker>(CGRectMake(0, 0, 320, 216));
}

using Values = std::vector<double>;

/// 70 to 200 over 40 to 130, as one number: 120080 is 120/80.
class PressurePicker : public GXBasePickerView {
public:
    NSInteger numberOfComponentsInPickerView(const Ref<UIPickerView>&) override { return 3; }
    NSInteger pickerView_numberOfRowsInComponent(const Ref<UIPickerView>&, NSInteger component) override {
        return component == 1 ? 1 : component == 0 ? 131 : 91;
    }
    std::optional<std::string> pickerView_titleForRow_forComponent(const Ref<UIPickerView>&, NSInteger row, NSInteger component) override {
        if (component == 1) return std::nullopt;
        return std::to_string(row + (component == 0 ? 70 : 40));
    }
    void pickerView_didSelectRow_inComponent(const Ref<UIPickerView>& wheel, NSInteger, NSInteger) override {
        const NSInteger number = (wheel->selectedRowInComponent(0) + 70) * 1000 + wheel->selectedRowInComponent(2) + 40;
        setCurrentValue(NSNumber::numberWithInt(static_cast<int>(number)));
        informDelegateOfValueChange();
    }
    void selectCurrentValue() override {
        const NSInteger number = currentValue().integerValue();
        pickerView()->selectRow_inComponent_animated(number / 1000 - 70, 0, false);
        pickerView()->selectRow_inComponent_animated(number % 1000 - 40, 2, false);
    }

protected:
    void didInitialize() override {
        GXBasePickerView::didInitialize();
        setCurrentValue(NSNumber::numberWithInt(120080));
        pickerView()->setSeparatorText_afterComponent("/", 0);
    }
};

} // namespace

TEST(PickerKeys, TheSeparatorThatAPickerShowsGoesOnToItsNextColumn) {
    Typed typed(make<PressurePicker>());
    typed.window.type("124/79");
    EXPECT_EQ(typed.told(), (Values{124080, 124079}));
    EXPECT_EQ(typed.picker->currentValueText(), "124/79");
    typed.window.press(Code::Left);
    typed.window.type("118 76");
    EXPECT_EQ(typed.told(), (Values{118079, 118076}));
}

TEST(PickerKeys, ADecimalSeparatorGoesOnToTheTenths) {
    const auto picker = make<GXDistancePickerView>();
    picker->setIsMetric(true);
    Typed typed(picker);
    typed.window.type("7.5"); // from 5000 m
    EXPECT_EQ(typed.told(), (Values{7000, 7500}));
    typed.window.press(Code::Left);
    typed.window.type("42,7");
    EXPECT_EQ(typed.told(), (Values{42500, 42700}));
}

TEST(PickerKeys, HundredthsFollowTenths) {
    const auto picker = make<GXDistancePickerView>();
    picker->setIsMetric(true);
    picker->setNumberOfFractionUnits(2);
    Typed typed(picker);
    for (const auto& [text, metres] : {std::pair("5.25", 5250.0), {"5.05", 5050.0}, {"42.195", 42190.0}, {"7.3", 7390.0}}) {
        typed.window.type(text);
        EXPECT_EQ(typed.told().back(), metres) << text;
        typed.window.press(Code::Left);
        typed.window.press(Code::Left);
    }
}

TEST(PickerKeys, ANumberThatIsNotThereLeavesTheValueAsItWas) {
    const auto distance = make<GXDistancePickerView>();
    distance->setIsMetric(true);
    distance->setCurrentValue(NSNumber::numberWithDouble(12300));
    Typed kilometres(distance);
    kilometres.window.type("30000");
    kilometres.told();
    EXPECT_EQ(distance->currentValue().doubleValue(), 12300);
    kilometres.window.type("42.195"); // One digit more than there is.
    EXPECT_EQ(kilometres.told().back(), 42100);

    const auto beats = make<GXBpmPickerView>();
    beats->setCurrentValue(NSNumber::numberWithInteger(60));
    Typed rate(beats);
    for (const char* text : {"240", "300", "125"}) {
        rate.window.type(text);
        rate.told();
        EXPECT_EQ(beats->currentValue().integerValue(), 60) << text;
    }
    rate.window.type("230");
    EXPECT_EQ(rate.told(), Values{230});

    const auto temperature = make<GXTemperaturePickerView>();
    temperature->setIsMetric(true);
    temperature->setStepSize(NSNumber::numberWithInteger(1));
    Typed degrees(temperature);
    for (const char* text : {"-25", "70"}) {
        degrees.window.type(text);
        degrees.told();
        EXPECT_EQ(temperature->currentValue().doubleValue(), 20) << text;
    }

    const auto weight = make<GXWeightPickerView>();
    weight->setCurrentValue(NSNumber::numberWithDouble(81.3));
    Typed kilograms(weight);
    kilograms.window.type("3.5"); // The lightest is heavier.
    EXPECT_EQ(kilograms.told(), Values{});
}

TEST(PickerKeys, FeetAndInchesAreTypedWithAnyMarkBetweenThem) {
    const auto picker = make<GXHeightPickerView>();
    picker->setIsMetric(false);
    picker->setHeightInCm(165);
    TestWindow window(picker);
    window.tick(0);
    EXPECT_TRUE(window.press(Code::Tab));
    // Of the feet, which begin at 4, and of the inches.
    using Rows = std::pair<NSInteger, NSInteger>;
    for (const auto& [text, rows] : {std::pair("6'1", Rows{2, 1}), {"5.9", {1, 9}}, {"4:10", {0, 10}}, {"5'9\"", {1, 9}}}) {
        window.press(Code::Left);
        window.press(Code::Left);
        window.type(text);
        window.run(2);
        EXPECT_EQ(Rows(picker->selectedRowInComponent(0), picker->selectedRowInComponent(1)), rows) << text;
    }
}

TEST(PickerKeys, TenthsBelowTheMinimumAreThereOnceTheWholeUnitHasLeftIt) {
    const auto picker = make<GXDistancePickerView>();
    picker->setIsMetric(true);
    picker->setMinValue(NSNumber::numberWithInt(700));
    picker->setCurrentValue(NSNumber::numberWithInt(700));
    Typed typed(picker);
    typed.window.typeCharacter("5");
    typed.window.typeCharacter(".");
    typed.window.typeCharacter("2");
    typed.window.run(2);
    EXPECT_EQ(picker->currentValue().doubleValue(), 5200);
}

TEST(PickerKeys, AColonGoesFromHoursToMinutes) {
    const auto picker = make<GXDurationPickerView>();
    Typed typed(picker);
    const NSInteger components = picker->pickerView()->numberOfComponents();
    ASSERT_GE(components, 2);
    typed.window.type("1:30");
    typed.window.run(2);
    const auto titleIn = [&](NSInteger component) {
        return picker->pickerView_titleForRow_forComponent(picker->pickerView(), picker->pickerView()->selectedRowInComponent(component),
                                                           component);
    };
    EXPECT_EQ(titleIn(0), "01");
    EXPECT_EQ(titleIn(2), "30");
}

TEST(PickerKeys, TemperaturesBelowZeroBeginWithAMinus) {
    const auto picker = make<GXTemperaturePickerView>();
    picker->setIsMetric(true);
    picker->setMinValue(NSNumber::numberWithInt(-20));
    picker->setMaxValue(NSNumber::numberWithInt(45));
    picker->setStepSize(NSNumber::numberWithInt(1));
    Typed typed(picker);
    typed.window.type("-4");
    EXPECT_EQ(typed.told(), (Values{-4}));
    typed.window.type("36");
    EXPECT_EQ(typed.told(), (Values{36}));
}

TEST(PickerKeys, StepsAreTypedAndWhatLiesBetweenThemIsNotThere) {
    const auto picker = make<GXTemperaturePickerView>(); // -20 to 55 degrees in steps of 5
    picker->setIsMetric(true);
    Typed typed(picker);
    typed.window.type("-15");
    EXPECT_EQ(typed.told(), (Values{-15}));
    typed.window.type("36");
    EXPECT_EQ(typed.told(), (Values{}));
}

TEST(PickerKeys, AHeartRateOfThreeDigitsIsTyped) {
    const auto picker = make<GXHeartRatePickerView>();
    Typed typed(picker);
    ASSERT_NE(picker->currentAvgHeartRate().integerValue(), 143);
    typed.window.type("143");
    typed.window.run(2);
    EXPECT_EQ(picker->currentAvgHeartRate().integerValue(), 143);
}

TEST(PickerKeys, TheUnitOfAWeightIsChosenByItsLetters) {
    const auto picker = make<GXWeightPickerView>();
    Typed typed(picker);
    const auto& wheel = picker->pickerView();
    const NSInteger unit = wheel->numberOfComponents() - 1;
    for (NSInteger i = 0; i < unit; ++i) typed.window.press(Code::Right);
    ASSERT_EQ(wheel->componentOfKeys(), unit);
    for (NSInteger row = 0; row < wheel->numberOfRowsInComponent(unit); ++row) {
        const std::string title = picker->pickerView_titleForRow_forComponent(wheel, row, unit).value_or("");
        typed.window.type(title.substr(title.find_first_not_of(' ')));
        typed.window.run(2);
        EXPECT_EQ(wheel->selectedRowInComponent(unit), row) << title;
    }
}

TEST(PickerKeys, AHeightOfCentimetresIsTypedThoughItTitlesItsRowsInColours) {
    const auto picker = make<GXHeightPickerView>();
    picker->setIsMetric(true);
    picker->setHeightInCm(180);
    TestWindow window(picker);
    window.press(Code::Tab);
    window.type("165");
    window.run(2);
    EXPECT_EQ(picker->heightInCm(), 165);
}

TEST(PickerKeys, TheUnitOfAHeightStaysChosenWhileFeetAndInchesComeAndGo) {
    // Shows the unit on its new column.
    const auto pass = [] { NSRunLoop::mainRunLoop()->runPass(); };
    const auto picker = make<GXHeightPickerView>();
    picker->setIsMetric(true);
    picker->setHeightInCm(165);
    pass();
    TestWindow window(picker);
    window.press(Code::Tab);
    window.press(Code::Right);
    ASSERT_EQ(picker->componentOfKeys(), 1);
    for (int times = 0; times < 2; ++times) {
        window.press(Code::Down);
        window.runUntilStill();
        pass();
        EXPECT_FALSE(picker->isMetric());
        EXPECT_EQ(picker->componentOfKeys(), 2);
        EXPECT_EQ(picker->selectedRowInComponent(1), 5) << "165 cm are 5 feet 4.96 inches";
        window.press(Code::Up);
        window.runUntilStill();
        pass();
        EXPECT_TRUE(picker->isMetric());
        EXPECT_EQ(picker->componentOfKeys(), 1);
        EXPECT_EQ(picker->heightInCm(), 165) << "5 feet 5 inches are 165.1 cm";
    }
}

TEST(PickerKeys, TheInchesOfAHeightAreNotChosenAsItsUnit) {
    const auto picker = make<GXHeightPickerView>();
    picker->setHeightInCm(165);
    TestWindow window(picker);
    window.press(Code::Tab);
    window.press(Code::Right);
    ASSERT_EQ(picker->componentOfKeys(), 1);
    picker->setIsMetric(true);
    EXPECT_EQ(picker->componentOfKeys(), 0) << "there are no inches any more";
    picker->setIsMetric(false);
    EXPECT_EQ(picker->componentOfKeys(), 1);
    NSRunLoop::mainRunLoop()->runPass();
}
