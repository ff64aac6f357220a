#include "GXWeatherAndTemperaturePickerView.h"

#include "CompositeTest.h"
#include "FingerTurn.h"
#include "IconImages.h"

using namespace gx;

namespace {

struct WeatherAndTemperature : testing::Test {
    WeatherAndTemperature() {
        picker->setIsMetric(true);
        picker->weatherPicker()->setIconImages(iconImages(3));
        notices = create<PickerNotices>();
    }

    Ref<GXMultiValuePickerView> weatherWheel() const { return picker->weatherPicker()->pickerView(); }
    Ref<GXMultiValuePickerView> temperatureWheel() const { return picker->temperaturePicker()->pickerView(); }
    void expectFrames(CGRect weather, CGRect temperature) {
        EXPECT_EQ(picker->weatherPicker()->frame(), weather);
        EXPECT_EQ(picker->temperaturePicker()->frame(), temperature);
        picker->layoutIfNeeded();
        EXPECT_EQ(weatherWheel()->bounds(), (CGRect{{0, 0}, weather.size}));
        EXPECT_EQ(temperatureWheel()->bounds(), (CGRect{{0, 0}, temperature.size}));
    }
    static CGFloat rowHeight(const Ref<GXBasePickerView>& inner) { return inner->pickerView_rowHeightForComponent(inner->pickerView(), 0); }

    Ref<GXWeatherAndTemperaturePickerView> picker = create<GXWeatherAndTemperaturePickerView>(upright);
    Ref<PickerNotices> notices;
};

} // namespace

// Construction

TEST_F(WeatherAndTemperature, ItHasTwoPickersAndNoWheelOfItsOwn) {
    EXPECT_FALSE(picker->pickerView());
    EXPECT_TRUE(picker->constraints().empty());
    EXPECT_EQ(picker->subviews(), (std::vector<Ref<UIView>>{picker->weatherPicker(), picker->temperaturePicker()}));
    EXPECT_EQ(picker->temperaturePicker()->currentValue().floatValue(), 20.0F);
    EXPECT_FALSE(picker->weatherPicker()->delegate().lock());
    EXPECT_FALSE(picker->temperaturePicker()->delegate().lock());
}

TEST_F(WeatherAndTemperature, TheWeatherHasNoRowsUntilItIsGivenImages) {
    const auto fresh = create<GXWeatherAndTemperaturePickerView>(upright);
    EXPECT_FALSE(fresh->weatherPicker()->iconImages());
    EXPECT_EQ(fresh->weatherPicker()->pickerView()->numberOfRowsInComponent(0), 0);
    EXPECT_EQ(weatherWheel()->numberOfRowsInComponent(0), 3);
}

TEST_F(WeatherAndTemperature, RowsAreAsHighAsTheStyleSheetSaysOfImagesOrAsGiven) {
    struct Style : GXStyleSheet {
        double pickerImageRowHeight() const override { return 70.1; }
    };
    GXStyleSheet::setGlobalStyleSheet(create<Style>());
    const auto styled = create<GXWeatherAndTemperaturePickerView>(upright);
    const auto coded = create<GXWeatherAndTemperaturePickerView>(create<NSCoder>());
    const auto given = create<GXWeatherAndTemperaturePickerView>(upright, 60.0F);
    GXStyleSheet::setGlobalStyleSheet(nullptr);
    for (const auto& made : {styled, coded}) {
        // Kept in single precision.
        EXPECT_EQ(rowHeight(made->weatherPicker()), 70.0999984741211);
        EXPECT_EQ(rowHeight(made->temperaturePicker()), 70.0999984741211);
    }
    EXPECT_EQ(rowHeight(given->weatherPicker()), 60);
    EXPECT_EQ(rowHeight(given->temperaturePicker()), 60);
    EXPECT_EQ(given->temperaturePicker()->pickerView()->rowSizeForComponent(0).height, 60);
    EXPECT_FALSE(given->pickerView());
    EXPECT_EQ(given->subviews().size(), 2U);
}

TEST_F(WeatherAndTemperature, OneFromACoderIsSetUpAlike) {
    const auto coder = create<NSCoder>();
    coder->encodeCGRect_forKey(CGRectMake(7, 8, 320, 216), "frame");
    const auto restored = create<GXWeatherAndTemperaturePickerView>(coder);
    EXPECT_EQ(restored->weatherPicker()->frame(), CGRectMake(0, 0, 130, 216));
    EXPECT_EQ(restored->temperaturePicker()->frame(), CGRectMake(130, 0, 190, 216));
    EXPECT_FALSE(restored->pickerView());
}

TEST_F(WeatherAndTemperature, AnApplicationsWheelComesUnderTheInnerPickers) {
    RecordingWheel::install();
    const auto made = create<GXWeatherAndTemperaturePickerView>(upright);
    RecordingWheel::uninstall();
    EXPECT_EQ(RecordingWheel::under(made->weatherPicker()).takeCalls(), (Calls{"delegate", "data source"}));
    EXPECT_EQ(RecordingWheel::under(made->temperaturePicker()).rightLabelText(), "°F");
}

// Frames

TEST_F(WeatherAndTemperature, TheTwoMeetLeftOfTheMiddle) {
    expectFrames(CGRectMake(0, 0, 130, 216), CGRectMake(130, 0, 190, 216));
    EXPECT_TRUE(picker->hitTest({129.5, 108})->isDescendantOfView(picker->weatherPicker()));
    EXPECT_TRUE(picker->hitTest({130, 108})->isDescendantOfView(picker->temperaturePicker()));
}

TEST_F(WeatherAndTemperature, TheyFollowASelectionedScreenAndBack) {
    picker->setFrame(lying);
    expectFrames(CGRectMake(0, 0, 254, 200), CGRectMake(254, 0, 314, 200));
    picker->setFrame(upright);
    expectFrames(CGRectMake(0, 0, 130, 216), CGRectMake(130, 0, 190, 216));
    picker->setFrame(CGRectMake(40, 50, 320, 216));
    expectFrames(CGRectMake(0, 0, 130, 216), CGRectMake(130, 0, 190, 216));
}

TEST_F(WeatherAndTemperature, BelowSixtyPointsTheWeathersFrameHasANegativeWidth) {
    picker->setFrame(CGRectMake(0, 0, 61, 216));
    EXPECT_EQ(picker->weatherPicker()->frame(), CGRectMake(0, 0, 0.5, 216));
    picker->setFrame(CGRectMake(0, 0, 60, 216));
    EXPECT_EQ(picker->weatherPicker()->frame(), CGRectMake(0, 0, 0, 216));
    EXPECT_EQ(picker->temperaturePicker()->frame(), CGRectMake(0, 0, 60, 216));
    picker->setFrame(CGRectMake(0, 0, 59, 216));
    EXPECT_EQ(picker->weatherPicker()->frame(), CGRectMake(0, 0, -0.5, 216));
    picker->layoutIfNeeded();
    picker->setFrame(CGRectNull);
    EXPECT_EQ(picker->weatherPicker()->frame(), CGRectMake(0, 0, -30, 0));
    EXPECT_EQ(picker->temperaturePicker()->frame(), CGRectMake(-30, 0, 30, 0));
}

// Units and numbers

TEST_F(WeatherAndTemperature, TheUnitSystemGoesToBothAndLeavesTheWeatherAlone) {
    picker->weatherPicker()->setCurrentValue(boxed(2));
    EXPECT_EQ(temperatureWheel()->rightLabelText(), "°C");
    picker->setIsMetric(false);
    EXPECT_EQ(temperatureWheel()->rightLabelText(), "°F");
    EXPECT_EQ(weatherWheel()->selectedRowInComponent(0), 2);
    EXPECT_EQ(weatherWheel()->rightLabelText(), std::nullopt);
    EXPECT_FALSE(picker->weatherPicker()->isMetric());
    EXPECT_FALSE(picker->temperaturePicker()->isMetric());
    EXPECT_FALSE(picker->isMetric());
}

TEST_F(WeatherAndTemperature, ItsOwnNumbersShowNothing) {
    picker->setMinValue(boxed(1));
    picker->setCurrentValue(boxed(2));
    EXPECT_EQ(weatherWheel()->numberOfRowsInComponent(0), 3);
    EXPECT_EQ(weatherWheel()->selectedRowInComponent(0), 0);
    EXPECT_EQ(temperatureWheel()->selectedRowInComponent(0), 8); // 20 °C
}

TEST_F(WeatherAndTemperature, EveryOperationIsSafe) {
    expectEveryOperationIsSafe(create<GXWeatherAndTemperaturePickerView>(upright));
    expectEveryOperationIsSafe(create<GXWeatherAndTemperaturePickerView>(upright, 60.0F));
    expectEveryOperationIsSafe(create<GXWeatherAndTemperaturePickerView>(Ref<NSCoder>()));
    const auto cleared = create<GXWeatherAndTemperaturePickerView>(upright);
    cleared->setWeatherPicker(nullptr);
    cleared->setTemperaturePicker(nullptr);
    expectEveryOperationIsSafe(cleared);
}

// Notices

TEST_F(WeatherAndTemperature, WithoutADelegateTurnsAreTakenAndNobodyIsTold) {
    TestWindow window(picker);
    turnOneRow(window, weatherWheel(), 0);
    turnOneRow(window, temperatureWheel(), 0);
    EXPECT_EQ(picker->weatherPicker()->currentValue().integerValue(), 1);
    EXPECT_EQ(picker->temperaturePicker()->currentValue().floatValue(), 25.0F);
}

TEST_F(WeatherAndTemperature, TheInnerPickersReportToItsDelegateStraight) {
    picker->setDelegate(notices);
    EXPECT_EQ(picker->delegate().lock(), notices);
    TestWindow window(picker);
    turnOneRow(window, weatherWheel(), 0);
    turnOneRow(window, temperatureWheel(), 0);
    ASSERT_EQ(notices->list.size(), 2U);
    EXPECT_EQ(notices->list[0].picker, picker->weatherPicker());
    EXPECT_EQ(notices->list[0].value.integerValue(), 1);
    EXPECT_EQ(notices->list[0].component, 0);
    EXPECT_EQ(notices->list[1].picker, picker->temperaturePicker());
    EXPECT_EQ(notices->list[1].value.floatValue(), 25.0F);
    EXPECT_EQ(notices->list[1].component, 0);
}

TEST_F(WeatherAndTemperature, ADelegateTakenAwayIsTakenFromTheInnerPickersToo) {
    picker->setDelegate(notices);
    picker->setDelegate({});
    weatherWheel()->turnToRow_inComponent(2, 0);
    temperatureWheel()->turnToRow_inComponent(2, 0);
    EXPECT_TRUE(notices->list.empty());
    EXPECT_FALSE(picker->delegate().lock());
}

TEST_F(WeatherAndTemperature, AReplacedInnerPickerIsNoLongerToldAnything) {
    const Ref<GXIconPickerView> old = picker->weatherPicker();
    const auto successor = create<GXIconPickerView>(upright);
    picker->setWeatherPicker(successor);
    EXPECT_FALSE(successor->superview()) << "the setter stores only";
    picker->setDelegate(notices);
    picker->setFrame(lying);
    picker->setIsMetric(false);
    EXPECT_FALSE(old->delegate().lock());
    EXPECT_TRUE(old->isMetric());
    EXPECT_EQ(old->frame(), CGRectMake(0, 0, 130, 216));
    EXPECT_EQ(successor->delegate().lock(), notices);
    EXPECT_EQ(successor->frame(), CGRectMake(0, 0, 254, 200));
}

// Callbacks

TEST_F(WeatherAndTemperature, ADelegateMayDropItInAFingersTurn) {
    picker->setDelegate(notices);
    const WeakRef<GXBasePickerView> weak = picker;
    TestWindow window(picker);
    notices->whenTold = [&](const PickerNotices::Notice&) {
        notices->list.clear();
        picker->setDelegate({});
        picker->removeFromSuperview();
        picker = nullptr;
    };
    const Ref<UIPickerView> wheel = weatherWheel();
    turnOneRow(window, wheel, 0);
    EXPECT_TRUE(weak.expired());
}

TEST_F(WeatherAndTemperature, AnInnerPickerMayTakeBothAwayWhileItIsToldSomething) {
    for (const auto& act : std::vector<std::function<void()>>{[&] { picker->setFrame(lying); }, [&] { picker->setDelegate(notices); },
                                                              [&] { picker->setIsMetric(!picker->isMetric()); }}) {
        const auto meddler = create<MeddlingPicker<GXIconPickerView>>(upright);
        picker->setWeatherPicker(meddler);
        picker->setTemperaturePicker(create<GXTemperaturePickerView>(upright));
        meddler->whenTold = [&] {
            picker->setWeatherPicker(nullptr);
            picker->setTemperaturePicker(nullptr);
        };
        act();
        EXPECT_FALSE(picker->weatherPicker());
        EXPECT_FALSE(picker->temperaturePicker());
    }
}

TEST_F(WeatherAndTemperature, AnInnerPickerMayDropItWhileItIsToldSomething) {
    using Call = void (*)(GXBasePickerView&);
    const Call calls[] = {[](GXBasePickerView& view) { view.setFrame(lying); }, [](GXBasePickerView& view) { view.setDelegate({}); },
                          [](GXBasePickerView& view) { view.setIsMetric(true); }};
    for (const Call call : calls) {
        picker = create<GXWeatherAndTemperaturePickerView>(upright);
        const WeakRef<GXBasePickerView> weak = picker;
        const auto meddler = create<MeddlingPicker<GXIconPickerView>>(upright);
        picker->setWeatherPicker(meddler);
        meddler->whenTold = [&] { picker = nullptr; };
        call(*picker);
        EXPECT_TRUE(weak.expired());
    }
}
