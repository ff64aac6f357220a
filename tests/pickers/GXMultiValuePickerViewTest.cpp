#include "GXMultiValuePickerView.h"
#include "CastTo.h"

#include "GXStyleSheet.h"
#include "PickerTest.h"
#include "RecordingCanvas.h"
#include "TestWindow.h"
#include "UITextEngine.h"
#include "WheelSource.h"

using namespace gx;

namespace {

/// Columns of given widths with a fixed title each, in the required form.
struct Source : NSObject, UIPickerViewDataSource, GXMultiValuePickerViewDelegate {
    std::vector<CGFloat> widths = {80};
    std::string lastTitle = "9999"; // 40 points in the fixed-width text engine
    NSInteger rowCount = 10;
    int measured = 0;

    NSInteger numberOfComponentsInPickerView(const Ref<UIPickerView>&) override { return static_cast<NSInteger>(widths.size()); }
    NSInteger pickerView_numberOfRowsInComponent(const Ref<UIPickerView>&, NSInteger) override { return rowCount; }
    CGFloat pickerView_widthForComponent(const Ref<UIPickerView>&, NSInteger component) override {
        return widths[static_cast<std::size_t>(component)];
    }
    CGFloat pickerView_rowHeightForComponent(const Ref<UIPickerView>&, NSInteger) override { return 40; }
    std::optional<std::string> pickerView_titleForRow_forComponent(const Ref<UIPickerView>&, NSInteger row, NSInteger) override {
        return row == rowCount - 1 ? lastTitle : "1";
    }
};

class HalfAsWideAsHigh : public UITextEngine {
public:
    CGSize sizeOfText_font(std::string_view text, const UIFont& font) override {
        return {0.5 * font.pointSize() * static_cast<CGFloat>(text.size()), font.pointSize()};
    }
};

Ref<GXStyleSheetFont> fontOfSize(CGFloat size) {
    return GXStyleSheetFont::fontWithFamily_size_weight_color("", size, UIFontWeight::Medium, UIColor::blackColor());
}

struct MultiValue : testing::Test {
    Ref<Source> source = create<Source>();
    Ref<GXMultiValuePickerView> wheel = create<GXMultiValuePickerView>(CGRectMake(0, 0, 320, 216));

    void connect() {
        wheel->setDelegate(source);
        wheel->setDataSource(source);
    }
    static bool isDrawn(const Ref<UILabel>& label) {
        RecordingCanvas canvas;
        label->drawRect(canvas, label->bounds());
        return !canvas.painted().empty();
    }
};

} // namespace

TEST_F(MultiValue, BothLabelsExistFromTheStartAndAreEmpty) {
    for (const Ref<UILabel>& label : {wheel->leftDescLabel(), wheel->rightDescLabel()}) {
        ASSERT_TRUE(label);
        EXPECT_EQ(label->superview(), wheel);
        EXPECT_FALSE(label->text());
        EXPECT_TRUE(CGRectIsNull(label->frame()));
        EXPECT_EQ(label->backgroundColor(), UIColor::clearColor());
        EXPECT_EQ(label->font(), GXStyleSheet::globalStyleSheet()->pickerLabelFont()->font());
    }
    EXPECT_TRUE(wheel->showsSelectionIndicator());
    EXPECT_FALSE(wheel->leftLabelText());
    EXPECT_FALSE(wheel->rightLabelText());
}

TEST_F(MultiValue, ASingleColumnsRightLabelStarts10PointsRightOfTheColumn) {
    connect();
    wheel->setRightLabelText("bpm");
    // 160 + 0.5 · 80 + 10; centred on 108.
    EXPECT_EQ(wheel->rightDescLabel()->frame(), CGRectMake(210, 98, 30, 20));
    EXPECT_EQ(wheel->rightDescLabel()->text(), "bpm");
    EXPECT_EQ(wheel->rightLabelText(), "bpm");
}

TEST_F(MultiValue, OfSeveralColumnsTheRightLabelStarts10PointsAfterTheWidestTitleOfTheLast) {
    source->widths = {80, 5, 60};
    connect();
    wheel->setRightLabelText("km");
    // The columns span 80 + 5 + 5 + 5 + 60 = 155, from 82.5; the last starts at 177.5, its widest
    // title ends 40 further.
    EXPECT_EQ(wheel->rightDescLabel()->frame(), CGRectMake(227.5, 98, 20, 20));
}

TEST_F(MultiValue, TheLeftLabelEnds10PointsBeforeTheWidestTitleOfTheFirst) {
    source->widths = {80, 80};
    connect();
    wheel->setLeftLabelText("AVG");
    // The columns span 165 from 77.5; the first ends at 157.5, its widest title begins at 117.5,
    // the label is 30 wide.
    EXPECT_EQ(wheel->leftDescLabel()->frame(), CGRectMake(77.5, 98, 30, 20));
    wheel->setFrame(CGRectMake(0, 0, 305, 216)); // Now the first column ends at 150.
    wheel->layoutIfNeeded();
    auto engine = create<UIFixedWidthTextEngine>();
    engine->setCodePointWidth(12.5);
    UITextEngine::setShared(engine);
    source->lastTitle = "ten";     // 37.5
    wheel->setLeftLabelText("Ab"); // 25
    UITextEngine::setShared(nullptr);
    EXPECT_EQ(wheel->leftDescLabel()->frame(), CGRectMake(150 - 37.5 - 10 - 25, 98, 25, 20));
}

TEST_F(MultiValue, LabelsArePlacedOnceBothSourcesAreThere) {
    wheel->setRightLabelText("bpm");
    EXPECT_TRUE(CGRectIsNull(wheel->rightDescLabel()->frame()));
    wheel->setDelegate(source);
    EXPECT_TRUE(CGRectIsNull(wheel->rightDescLabel()->frame())) << "no data source yet";
    wheel->setDataSource(source);
    EXPECT_EQ(wheel->rightDescLabel()->frame(), CGRectMake(210, 98, 30, 20));
    EXPECT_FALSE(CGRectIsNull(wheel->leftDescLabel()->frame()));
}

TEST_F(MultiValue, LayoutReloadAndEitherSourcePlaceTheLabelsAgain) {
    connect();
    wheel->setRightLabelText("bpm");
    const auto rightX = [&] { return CGRectGetMinX(wheel->rightDescLabel()->frame()); };
    source->widths = {100};
    EXPECT_EQ(rightX(), 210);
    wheel->reloadAllComponents();
    EXPECT_EQ(rightX(), 220);
    source->widths = {120};
    wheel->setFrame(CGRectMake(0, 0, 300, 216));
    wheel->layoutIfNeeded();
    EXPECT_EQ(rightX(), 220); // 150 + 60 + 10
    source->widths = {80};
    wheel->setDataSource(source);
    EXPECT_EQ(rightX(), 200);
    source->widths = {100};
    wheel->setDelegate(source);
    EXPECT_EQ(rightX(), 210);
}

TEST_F(MultiValue, OnlyTheLabelWhoseTextIsSetIsPlacedAgain) {
    connect();
    wheel->setLeftLabelText("L");
    wheel->setRightLabelText("R");
    const CGRect right = wheel->rightDescLabel()->frame();
    source->lastTitle = "99999";
    source->widths = {100};
    wheel->setLeftLabelText("LL");
    EXPECT_EQ(wheel->rightDescLabel()->frame(), right);
}

TEST_F(MultiValue, WithoutALaidOutRowTheLabelsArePlacedByTheZeroRectangle) {
    wheel->setFrame(CGRectZero);
    source->widths = {80, 80};
    connect();
    wheel->setRightLabelText("km");
    wheel->setLeftLabelText("AVG");
    EXPECT_EQ(wheel->rightDescLabel()->frame(), CGRectMake(50, -10, 20, 20)); // 0 + 40 + 10
    EXPECT_EQ(wheel->leftDescLabel()->frame(), CGRectMake(-80, -10, 30, 20)); // 0 − 40 − 10 − 30
}

TEST_F(MultiValue, ATextOfNothingHasNoSize) {
    connect();
    wheel->setRightLabelText("bpm");
    wheel->setRightLabelText(std::nullopt);
    EXPECT_EQ(wheel->rightDescLabel()->frame(), CGRectMake(210, 108, 0, 0));
    EXPECT_FALSE(wheel->rightDescLabel()->text());
}

TEST_F(MultiValue, ASeparatorIsCentredOnTheColumnThatFollows) {
    source->widths = {60, 5, 60, 60};
    connect();
    wheel->setSeparatorText_afterComponent(":", 1);
    // 60 + 5 + 5 + 5 + 60 + 5 + 60 = 200 from 60; column 2 spans 135 to 195.
    const Ref<UILabel> colon = wheel->separatorAfterComponent(1);
    ASSERT_TRUE(colon);
    EXPECT_EQ(colon->center(), CGPointMake(165, 108));
    EXPECT_EQ(colon->frame(), CGRectMake(160, 98, 10, 20));
    EXPECT_EQ(colon->font(), GXStyleSheet::globalStyleSheet()->pickerValueFont()->font());
    EXPECT_EQ(colon->superview(), wheel);
}

TEST_F(MultiValue, ASeparatorSetBeforeBothSourcesAreThereIsLost) {
    wheel->setSeparatorText_afterComponent(":", 0);
    wheel->setDelegate(source);
    wheel->setSeparatorText_afterComponent(":", 0);
    source->widths = {80, 5, 80};
    wheel->setDataSource(source);
    wheel->reloadAllComponents();
    EXPECT_FALSE(wheel->separatorAfterComponent(0));
}

TEST_F(MultiValue, ASeparatorAfterTheLastColumnIsNeverPlaced) {
    source->widths = {80, 80};
    connect();
    wheel->setSeparatorText_afterComponent(":", 1);
    wheel->reloadAllComponents();
    wheel->layoutIfNeeded();
    const Ref<UILabel> label = wheel->separatorAfterComponent(1);
    EXPECT_EQ(label->frame(), CGRectMake(0, 0, 10, 20)) << "sized, but at the origin";
    EXPECT_FALSE(isDrawn(label)) << "the wheel's corner is no place for it";
    source->widths = {80, 80, 80};
    wheel->reloadAllComponents();
    EXPECT_TRUE(isDrawn(label));
    source->widths = {80, 80};
    wheel->reloadAllComponents();
    EXPECT_FALSE(isDrawn(label)) << "its column is gone";
}

TEST_F(MultiValue, InASingleColumnNoSeparatorIsPlaced) {
    connect();
    wheel->setSeparatorText_afterComponent(":", 0);
    EXPECT_EQ(wheel->separatorAfterComponent(0)->frame().origin, CGPointMake(0, 0));
    EXPECT_FALSE(isDrawn(wheel->separatorAfterComponent(0)));
}

TEST_F(MultiValue, TheSameLabelIsTextedAgain) {
    source->widths = {80, 5, 80};
    connect();
    wheel->setSeparatorText_afterComponent(":", 0);
    const Ref<UILabel> label = wheel->separatorAfterComponent(0);
    const std::size_t subviews = wheel->subviews().size();
    wheel->setSeparatorText_afterComponent("::", 0);
    EXPECT_EQ(wheel->separatorAfterComponent(0), label);
    EXPECT_EQ(wheel->subviews().size(), subviews);
    EXPECT_EQ(label->text(), "::");
    EXPECT_EQ(label->bounds().size, CGSizeMake(20, 20));
}

TEST_F(MultiValue, AValueFontReachesSeparatorsAtTheirNextPlacementButNotTheirSize) {
    source->widths = {80, 5, 80};
    connect();
    wheel->setSeparatorText_afterComponent(":", 0);
    const Ref<UILabel> label = wheel->separatorAfterComponent(0);
    const auto font = GXStyleSheetFont::fontWithFamily_size_weight_color("", 50.0, UIFontWeight::Bold, UIColor::blackColor());
    wheel->setCustomValueFont(font);
    EXPECT_NE(label->font(), font->font());
    wheel->reloadAllComponents();
    EXPECT_EQ(label->font(), font->font());
    EXPECT_EQ(label->bounds().size, CGSizeMake(10, 20));
}

TEST_F(MultiValue, ASeparatorIsDrawnWholeAndInTheMiddleWhateverFontCameLater) {
    UITextEngine::setShared(create<HalfAsWideAsHigh>());
    source->widths = {80, 5, 80};
    connect();
    wheel->setCustomValueFont(fontOfSize(20));
    wheel->setSeparatorText_afterComponent(":", 0);
    const Ref<UILabel> label = wheel->separatorAfterComponent(0);
    const auto drawnWithSize = [&](CGFloat size) {
        wheel->setCustomValueFont(fontOfSize(size));
        wheel->reloadAllComponents();
        EXPECT_EQ(label->bounds(), CGRectMake(0, 0, 10, 20));
        RecordingCanvas canvas;
        label->drawRect(canvas, label->bounds());
        return canvas.painted();
    };
    EXPECT_EQ(drawnWithSize(20), std::vector<std::string>{"text : at 0 0 with 0 0 0 1"});
    EXPECT_EQ(drawnWithSize(60), std::vector<std::string>{"text : at -10 -20 with 0 0 0 1"});
    EXPECT_EQ(drawnWithSize(10), std::vector<std::string>{"text : at 2.5 5 with 0 0 0 1"});
    UITextEngine::setShared(nullptr);
}

TEST_F(MultiValue, ALabelFontReachesBothLabelsAtOnce) {
    connect();
    const auto font = GXStyleSheetFont::fontWithFamily_size_weight_color("", 50.0, UIFontWeight::Bold, UIColor::blackColor());
    wheel->setCustomLabelFont(font);
    EXPECT_EQ(wheel->leftDescLabel()->font(), font->font());
    EXPECT_EQ(wheel->rightDescLabel()->font(), font->font());
    wheel->setCustomLabelFont(nullptr);
    EXPECT_EQ(wheel->leftDescLabel()->font(), GXStyleSheet::globalStyleSheet()->pickerLabelFont()->font());
}

TEST_F(MultiValue, LabelsStayWhereTheyAreWhileAColumnSpinsAndAnotherReloads) {
    source->widths = {80, 80};
    source->rowCount = 1000;
    connect();
    wheel->setLeftLabelText("AVG");
    wheel->setRightLabelText("MAX");
    const CGRect left = wheel->leftDescLabel()->frame();
    const CGRect right = wheel->rightDescLabel()->frame();
    TestWindow window(wheel);
    window.fling({110, 200}, {110, 20}, 6);
    window.fling({210, 200}, {210, 20}, 6);
    window.run(0.3);
    EXPECT_FALSE(wheel->viewForRow_forComponent(0, 0)) << "the rows they report are out of sight";
    wheel->reloadAllComponents();
    window.tick(0.01);
    EXPECT_EQ(wheel->leftDescLabel()->frame(), left);
    EXPECT_EQ(wheel->rightDescLabel()->frame(), right);
}

TEST_F(MultiValue, AReloadMeasuresEachTextAsOftenAsItPlacesALabel) {
    struct Engine : UIFixedWidthTextEngine {
        int asked = 0;
        CGSize sizeOfText_font(std::string_view text, const UIFont& font) override {
            ++asked;
            return UIFixedWidthTextEngine::sizeOfText_font(text, font);
        }
    };
    connect();
    wheel->setLeftLabelText("a");
    wheel->setRightLabelText("b");
    const auto engine = create<Engine>();
    UITextEngine::setShared(engine);
    wheel->reloadAllComponents();
    UITextEngine::setShared(nullptr);
    // For each of the two labels its own text and the widest title.
    EXPECT_EQ(engine->asked, 4);
}

TEST_F(MultiValue, WithoutColumnsNothingBreaks) {
    source->widths = {};
    struct Careful : Source {
        CGFloat pickerView_widthForComponent(const Ref<UIPickerView>&, NSInteger) override { return 0; }
    };
    const auto careful = create<Careful>();
    careful->widths = {};
    wheel->setDelegate(careful);
    wheel->setDataSource(careful);
    wheel->setRightLabelText("km");
    wheel->reloadAllComponents();
    wheel->layoutIfNeeded();
    EXPECT_EQ(wheel->numberOfComponents(), 0);
}

TEST_F(MultiValue, WithoutSourcesLayoutAndReloadLeaveTheLabelsWhereTheyAre) {
    wheel->setRightLabelText("km");
    wheel->reloadAllComponents();
    wheel->layoutIfNeeded();
    EXPECT_TRUE(CGRectIsNull(wheel->rightDescLabel()->frame()));
}

TEST_F(MultiValue, AReloadInTheMiddleOfALayoutPlacesTheLabelsAllTheSame) {
    struct Reloading : Source {
        int reloads = 0;
        std::optional<std::string> pickerView_titleForRow_forComponent(const Ref<UIPickerView>& asking, NSInteger row,
                                                                       NSInteger component) override {
            if (reloads > 0) {
                --reloads;
                asking->reloadAllComponents();
            }
            return Source::pickerView_titleForRow_forComponent(asking, row, component);
        }
    };
    const auto reloading = create<Reloading>();
    source = reloading;
    connect();
    wheel->setRightLabelText("bpm");
    reloading->reloads = 1;
    wheel->reloadAllComponents();
    wheel->layoutIfNeeded();
    EXPECT_EQ(reloading->reloads, 0);
    EXPECT_EQ(wheel->rightDescLabel()->frame(), CGRectMake(210, 98, 30, 20)) << "160 + 0.5 · 80 + 10; centred on 108";
}

TEST_F(MultiValue, LabelsThatFollowAnywayAreNotPlacedAgain) {
    connect();
    TestWindow window(wheel);
    window.tick(0);
    wheel->setLabelsFollowReading(true);
    EXPECT_FALSE(window.tick(0));
    wheel->setLabelsFollowReading(false);
    EXPECT_TRUE(window.tick(0));
}

TEST_F(MultiValue, AFactoryPutsAnApplicationsWheelUnderPickers) {
    RecordingWheel::install();
    const auto own = GXMultiValuePickerView::wheelWithFrame(CGRectMake(0, 0, 10, 20));
    EXPECT_TRUE(isExactly<RecordingWheel>(*own));
    EXPECT_EQ(own->frame(), CGRectMake(0, 0, 10, 20));
    GXMultiValuePickerView::setFactory([](CGRect) { return Ref<GXMultiValuePickerView>(); });
    EXPECT_TRUE(GXMultiValuePickerView::wheelWithFrame(CGRectZero));
    GXMultiValuePickerView::setFactory(nullptr);
    EXPECT_FALSE(isExactly<RecordingWheel>(*GXMultiValuePickerView::wheelWithFrame(CGRectZero)));
}

TEST_F(MultiValue, AWheelFromACoderHasItsLabels) {
    const auto restored = create<GXMultiValuePickerView>(create<NSCoder>());
    ASSERT_TRUE(restored);
    EXPECT_TRUE(restored->leftDescLabel());
    EXPECT_TRUE(restored->rightDescLabel());
}

TEST(GXMultiValuePickerView, ADataSourceWithoutADelegateLeavesTheLabelsWhereTheyAre) {
    class OneRow : public NSObject, public UIPickerViewDataSource {
    public:
        NSInteger numberOfComponentsInPickerView(const Ref<UIPickerView>&) override { return 1; }
        NSInteger pickerView_numberOfRowsInComponent(const Ref<UIPickerView>&, NSInteger) override { return 1; }
    };
    const auto source = create<OneRow>();
    const auto wheel = create<GXMultiValuePickerView>(CGRectMake(0, 0, 320, 216));
    wheel->setRightLabelText("kg");
    wheel->rightDescLabel()->setFrame(CGRectMake(1, 2, 3, 4));
    wheel->setDataSource(source);
    EXPECT_EQ(wheel->rightDescLabel()->frame(), CGRectMake(1, 2, 3, 4));
    EXPECT_EQ(wheel->numberOfComponents(), 1);
}
