// When the composites show their pickers one above the other, and that they do not otherwise.

#include "GXCompositePickerView.h"

#include "CompositeTest.h"
#include "GXDistanceAndDurationPicker.h"
#include "GXWeatherAndTemperaturePickerView.h"
#include "IconImages.h"
#include "ProportionalTextEngine.h"
#include "RecordingCanvas.h"
#include "TestWindow.h"

using namespace gx;

namespace {

struct CompositePicker : testing::Test {
    CompositePicker() { UITextEngine::setShared(create<ProportionalTextEngine>()); }
    ~CompositePicker() override {
        GXStyleSheet::setGlobalStyleSheet(nullptr);
        UITextEngine::setShared(nullptr);
    }

    static void setTextScale(double scale) { GXStyleSheet::globalStyleSheet()->setTextScale(scale); }
    static Ref<GXDistanceAndDurationPicker> distanceIn(CGFloat width, CGFloat height) {
        return create<GXDistanceAndDurationPicker>(CGRectMake(0, 0, width, height));
    }
    static Ref<GXWeatherAndTemperaturePickerView> weatherIn(CGFloat width, CGFloat height) {
        const auto picker = create<GXWeatherAndTemperaturePickerView>(CGRectMake(0, 0, width, height));
        picker->setIsMetric(true);
        return picker;
    }
    static void expectSideBySide(const Ref<GXDistanceAndDurationPicker>& picker) {
        const CGSize size = picker->bounds().size;
        EXPECT_FALSE(picker->isStacked());
        EXPECT_EQ(picker->distancePicker()->frame(), CGRectMake(0, 0, 0.5 * size.width + 5, size.height));
        EXPECT_EQ(picker->durationPicker()->frame(), CGRectMake(0.5 * size.width - 20, 0, 0.5 * size.width + 20, size.height));
    }
    static void expectStacked(const Ref<GXDistanceAndDurationPicker>& picker) {
        const CGSize size = picker->bounds().size;
        EXPECT_TRUE(picker->isStacked());
        EXPECT_EQ(picker->distancePicker()->frame(), CGRectMake(0, 0, size.width, 0.5 * size.height));
        EXPECT_EQ(picker->durationPicker()->frame(), CGRectMake(0, 0.5 * size.height, size.width, 0.5 * size.height));
    }
    static std::vector<std::string> fillsOf(const Ref<UIView>& picker) {
        picker->layoutIfNeeded();
        RecordingCanvas canvas;
        picker->renderInContext(canvas);
        std::vector<std::string> fills;
        for (const std::string& call : canvas.painted()) {
            if (call.starts_with("fill")) fills.push_back(call.substr(0, call.find(" with")));
        }
        return fills;
    }
};

} // namespace

TEST_F(CompositePicker, IsNeverStackedUpToTheUsualTextSize) {
    for (const double scale : {0.8, 1.0}) {
        setTextScale(scale);
        for (const CGFloat width : {100.0, 320.0, 1200.0}) {
            const auto picker = distanceIn(width, 216);
            expectSideBySide(picker);
            picker->setFrame(CGRectMake(7, 9, width, 2000));
            picker->sizeFontsToFit();
            picker->reloadData();
            expectSideBySide(picker);
        }
        const auto weather = weatherIn(320, 2000);
        weather->sizeFontsToFit();
        EXPECT_FALSE(weather->isStacked());
        EXPECT_EQ(weather->weatherPicker()->frame(), CGRectMake(0, 0, 130, 2000));
        EXPECT_EQ(weather->temperaturePicker()->frame(), CGRectMake(130, 0, 190, 2000));
    }
}

TEST_F(CompositePicker, IsStackedWhereLargeTextsNeedItAndTheHeightAllowsIt) {
    setTextScale(2);
    const auto picker = distanceIn(320, 216);
    expectSideBySide(picker);
    picker->setFrame(CGRectMake(0, 0, 320, 359));
    expectSideBySide(picker);
    // Rows of 80 points: two and a quarter of either wheel.
    picker->setFrame(CGRectMake(0, 0, 320, 360));
    expectStacked(picker);
    picker->setFrame(CGRectMake(0, 0, 320, 480));
    expectStacked(picker);
    picker->setFrame(CGRectMake(0, 0, 320, 216));
    expectSideBySide(picker);
    expectStacked(distanceIn(320, 360));
}

TEST_F(CompositePicker, IsSideBySideWhereLargeTextsFitThere) {
    setTextScale(1.1);
    expectSideBySide(distanceIn(1200, 800));
    expectStacked(distanceIn(320, 800));
    setTextScale(3);
    const auto weather = weatherIn(1200, 1000);
    EXPECT_FALSE(weather->isStacked());
    weather->setFrame(CGRectMake(0, 0, 320, 1000));
    EXPECT_TRUE(weather->isStacked());
    EXPECT_EQ(weather->weatherPicker()->frame(), CGRectMake(0, 0, 320, 500));
    EXPECT_EQ(weather->temperaturePicker()->frame(), CGRectMake(0, 500, 320, 500));
}

TEST_F(CompositePicker, HasItsFullTextSizeWhenStacked) {
    setTextScale(2);
    const auto weather = weatherIn(320, 216);
    weather->sizeFontsToFit();
    ASSERT_TRUE(weather->temperaturePicker()->customValueFont());
    EXPECT_LT(weather->temperaturePicker()->customValueFont()->pointSize(), 44);
    weather->setFrame(CGRectMake(0, 0, 320, 600));
    EXPECT_TRUE(weather->isStacked()) << "the fonts that have been fitted to another frame do not count";
    weather->sizeFontsToFit();
    EXPECT_FALSE(weather->temperaturePicker()->customValueFont()) << "the style sheet's own";

    const auto picker = distanceIn(390, 216);
    picker->sizeFontsToFit();
    const CGFloat before = picker->durationPicker()->customValueFont()->pointSize();
    picker->setFrame(CGRectMake(0, 0, 390, 480));
    picker->sizeFontsToFit();
    const Ref<GXStyleSheetFont> font = picker->durationPicker()->customValueFont();
    EXPECT_GT(font ? font->pointSize() : 44, before);
}

TEST_F(CompositePicker, KeepsTheFontsThatAnApplicationHasSet) {
    setTextScale(2);
    const auto picker = distanceIn(320, 216);
    const auto font = GXStyleSheetFont::fontWithFamily_size_weight_color("", 30, UIFontWeight::Bold, UIColor::labelColor());
    picker->distancePicker()->setCustomValueFont(font);
    picker->durationPicker()->setCustomLabelFont(font);
    picker->setFrame(CGRectMake(0, 0, 320, 480));
    expectStacked(picker);
    EXPECT_EQ(picker->distancePicker()->customValueFont(), font);
    EXPECT_EQ(picker->distancePicker()->pickerView()->customValueFont(), font);
    EXPECT_FALSE(picker->distancePicker()->customLabelFont());
    EXPECT_FALSE(picker->durationPicker()->customValueFont());
    EXPECT_EQ(picker->durationPicker()->customLabelFont(), font);
}

TEST_F(CompositePicker, HasASelectionIndicatorForEachWheelWhenStacked) {
    setTextScale(2);
    const auto picker = distanceIn(320, 480);
    // Rows of 80 points in the middle of 240 each.
    EXPECT_EQ(fillsOf(picker), (std::vector<std::string>{"fill 8 80 304 80", "fill 8 80 304 80"}));
    const auto other = create<GXDurationPickerView>(picker->durationPicker()->frame());
    picker->durationPicker()->removeFromSuperview();
    picker->setDurationPicker(other);
    picker->addSubview(other);
    EXPECT_EQ(fillsOf(picker).size(), 2U);
    picker->setFrame(CGRectMake(0, 0, 320, 216));
    EXPECT_EQ(fillsOf(picker), std::vector<std::string>{"fill 8 68 304 80"});
}

TEST_F(CompositePicker, CountsRowsOfTheStyleSheetsHeightWhereItsOwnAreLower) {
    const auto picker = distanceIn(320, 216);
    setTextScale(2);
    picker->setFrame(CGRectMake(0, 0, 320, 359));
    expectSideBySide(picker);
    picker->setFrame(CGRectMake(0, 0, 320, 360));
    expectStacked(picker);
}

TEST_F(CompositePicker, FollowsANewTextSizeWithReloadData) {
    const auto picker = distanceIn(320, 400);
    setTextScale(2);
    expectSideBySide(picker);
    picker->reloadData();
    expectStacked(picker);
    setTextScale(1);
    picker->reloadData();
    expectSideBySide(picker);
}

TEST_F(CompositePicker, PlacesItsPickersByNewBounds) {
    const auto picker = distanceIn(320, 216);
    picker->setBounds(CGRectMake(0, 0, 400, 300));
    expectSideBySide(picker);
    setTextScale(2);
    picker->setBounds(CGRectMake(0, 0, 320, 500));
    expectStacked(picker);
    const auto weather = weatherIn(320, 216);
    setTextScale(1);
    weather->setBounds(CGRectMake(0, 0, 400, 300));
    EXPECT_EQ(weather->weatherPicker()->frame(), CGRectMake(0, 0, 170, 300));
}

TEST_F(CompositePicker, TellsTheHeightThatItNeeds) {
    const auto beside = distanceIn(320, 216);
    EXPECT_EQ(beside->smallestHeightForWidth(320), 120);
    EXPECT_EQ(beside->smallestHeightForWidth(0), 120);
    EXPECT_EQ(weatherIn(320, 216)->smallestHeightForWidth(320), 168);
    EXPECT_EQ(beside->distancePicker()->smallestHeightForWidth(320), 120);
    setTextScale(2);
    const auto picker = distanceIn(320, 216);
    EXPECT_EQ(picker->smallestHeightForWidth(320), 480);
    EXPECT_EQ(picker->smallestHeightForWidth(0), 480);
    expectSideBySide(picker);
    picker->setFrame(CGRectMake(0, 0, 320, picker->smallestHeightForWidth(320)));
    expectStacked(picker);
    EXPECT_EQ(picker->smallestHeightForWidth(320), 480);
    expectStacked(picker);
    setTextScale(1.1);
    EXPECT_EQ(distanceIn(320, 216)->smallestHeightForWidth(1200), 132);
}

TEST_F(CompositePicker, IsNotStackedWithOnePickerAlone) {
    setTextScale(2);
    const auto picker = distanceIn(320, 216);
    picker->setDurationPicker(nullptr);
    picker->setFrame(CGRectMake(0, 0, 320, 480));
    EXPECT_FALSE(picker->isStacked());
    EXPECT_EQ(picker->distancePicker()->frame(), CGRectMake(0, 0, 165, 480));
    picker->setDistancePicker(nullptr);
    EXPECT_EQ(picker->smallestHeightForWidth(320), 240) << "nothing that needs two";
}

TEST_F(CompositePicker, IsTurnedByFingersWhenStacked) {
    setTextScale(2);
    const auto weather = weatherIn(320, 600);
    weather->weatherPicker()->setIconImages(iconImages(4));
    const auto notices = create<PickerNotices>();
    weather->setDelegate(notices);
    TestWindow window(weather);
    window.drag({160, 150}, {160, 70});
    window.runUntilStill();
    ASSERT_EQ(notices->list.size(), 1U);
    EXPECT_EQ(notices->list[0].picker, weather->weatherPicker());
    EXPECT_EQ(notices->list[0].value.intValue(), 1);
    window.drag({160, 450}, {160, 370});
    window.runUntilStill();
    ASSERT_EQ(notices->list.size(), 2U);
    EXPECT_EQ(notices->list[1].picker, weather->temperaturePicker());
}
