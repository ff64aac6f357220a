// High contrast: colours that keep apart, and a wheel with more edges and less fading.

#include <algorithm>
#include <cmath>

#include "RecordingCanvas.h"
#include "TestWindow.h"
#include "UILabel.h"
#include "WheelSource.h"

using namespace gx;

namespace {

constexpr UIUserInterfaceStyle light = UIUserInterfaceStyle::Light;
constexpr UIUserInterfaceStyle dark = UIUserInterfaceStyle::Dark;
constexpr UIAccessibilityContrast normal = UIAccessibilityContrast::Normal;
constexpr UIAccessibilityContrast high = UIAccessibilityContrast::High;

double linear(double channel) { return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4); }

double luminance(const UIColorComponents& color) {
    return 0.2126 * linear(color.red) + 0.7152 * linear(color.green) + 0.0722 * linear(color.blue);
}

/// The contrast ratio as the W3C defines it in its Web Content Accessibility Guidelines: 1 for one
/// colour, 21 for black on white.
double ratio(const UIColorComponents& first, const UIColorComponents& second) {
    const double a = luminance(first) + 0.05;
    const double b = luminance(second) + 0.05;
    return a > b ? a / b : b / a;
}

/// What is seen of a colour with alpha that lies over an opaque one.
UIColorComponents over(const UIColorComponents& top, const UIColorComponents& below) {
    const auto mix = [&top](double a, double b) { return top.alpha * a + (1 - top.alpha) * b; };
    return {mix(top.red, below.red), mix(top.green, below.green), mix(top.blue, below.blue), 1};
}

/// White, and what the style sheet lays behind pickers in the dark.
UIColorComponents backgroundOf(UIUserInterfaceStyle style) {
    return style == light ? UIColorComponents{1, 1, 1, 1} : UIColorComponents{0x1C / 255.0, 0x1E / 255.0, 0x22 / 255.0, 1};
}

struct ContrastWheelTest : testing::Test {
    Ref<WheelSource> source = create<WheelSource>();
    Ref<UIPickerView> wheel = wheelWithSource(source);
    TestWindow window{wheel};

    std::vector<std::string> callsOfDrawing() {
        RecordingCanvas canvas;
        window->draw(canvas);
        return canvas.takeCalls();
    }
    static std::vector<std::string> startingWith(const std::string& start, const std::vector<std::string>& calls) {
        std::vector<std::string> found;
        for (const std::string& call : calls) {
            if (call.starts_with(start)) found.push_back(call);
        }
        return found;
    }
};

} // namespace

TEST(UIColor, HasValuesOfItsOwnForHighContrastInEitherLook) {
    const UIColor pair = UIColor::colorWithLight_dark(UIColor::colorWithWhite_alpha(0.25, 1), UIColor::colorWithWhite_alpha(0.75, 1));
    const UIColor strong = UIColor::colorWithLight_dark(UIColor::blackColor(), UIColor::whiteColor());
    const UIColor color = UIColor::colorWithNormal_highContrast(pair, strong);
    EXPECT_EQ(color.resolved(light), (UIColorComponents{0.25, 0.25, 0.25, 1})) << "normal unless asked otherwise";
    EXPECT_EQ(color.resolved(light, normal), (UIColorComponents{0.25, 0.25, 0.25, 1}));
    EXPECT_EQ(color.resolved(dark, normal), (UIColorComponents{0.75, 0.75, 0.75, 1}));
    EXPECT_EQ(color.resolved(light, high), (UIColorComponents{0, 0, 0, 1}));
    EXPECT_EQ(color.resolved(dark, high), (UIColorComponents{1, 1, 1, 1}));
    EXPECT_NE(color, pair);
    EXPECT_EQ(pair.resolved(dark, high), (UIColorComponents{0.75, 0.75, 0.75, 1})) << "a colour without others keeps its own";
}

TEST(UIColor, KeepsItsHighContrastWhenLooksAreCombinedAndAlphaChanges) {
    const UIColor grey = UIColor::colorWithNormal_highContrast(UIColor::colorWithWhite_alpha(0.5, 1), UIColor::blackColor());
    const UIColor combined = UIColor::colorWithLight_dark(UIColor::whiteColor(), grey);
    EXPECT_EQ(combined.resolved(light, high), (UIColorComponents{1, 1, 1, 1}));
    EXPECT_EQ(combined.resolved(dark, high), (UIColorComponents{0, 0, 0, 1}));
    const UIColor faint = combined.colorWithAlphaComponent(0.5);
    EXPECT_EQ(faint.resolved(dark, normal), (UIColorComponents{0.5, 0.5, 0.5, 0.5}));
    EXPECT_EQ(faint.resolved(dark, high), (UIColorComponents{0, 0, 0, 0.5}));
}

TEST(UIColor, TextsAndTintHaveAContrastOf7To1AtHighContrast) {
    EXPECT_NEAR(ratio({0, 0, 0, 1}, {1, 1, 1, 1}), 21, 1e-9);
    for (const UIUserInterfaceStyle style : {light, dark}) {
        const UIColorComponents background = backgroundOf(style);
        const UIColorComponents band = over(UIColor::tertiarySystemFillColor().resolved(style, high), background);
        for (const UIColor& color : {UIColor::labelColor(), UIColor::secondaryLabelColor(), UIColor::systemBlueColor()}) {
            EXPECT_GE(ratio(color.resolved(style, high), background), 7);
            EXPECT_GE(ratio(color.resolved(style, high), band), 7) << "on the band";
            EXPECT_GT(ratio(color.resolved(style, high), background), ratio(color.resolved(style, normal), background));
        }
        const UIColorComponents bandBefore = over(UIColor::tertiarySystemFillColor().resolved(style, normal), background);
        EXPECT_GT(ratio(band, background), ratio(bandBefore, background)) << "and the band stands out more";
    }
    EXPECT_EQ(UIColor::labelColor().resolved(light, high), (UIColorComponents{0, 0, 0, 1}));
    EXPECT_EQ(UIColor::labelColor().resolved(dark, high), (UIColorComponents{1, 1, 1, 1}));
}

TEST(UIColor, RowsBesideTheSelectionIndicatorAndUnderTheFocusMarkKeep7To1) {
    for (const UIUserInterfaceStyle style : {light, dark}) {
        UIColorComponents beside = UIColor::labelColor().resolved(style, high);
        beside.alpha = 0.8;
        EXPECT_GE(ratio(over(beside, backgroundOf(style)), backgroundOf(style)), 7);
        UIColorComponents mark = UIColor::systemBlueColor().resolved(style, high);
        mark.alpha = 0.14;
        const UIColorComponents marked = over(mark, over(UIColor::tertiarySystemFillColor().resolved(style, high), backgroundOf(style)));
        EXPECT_GE(ratio(UIColor::labelColor().resolved(style, high), marked), 7);
    }
}

TEST(UIColor, TextsOfARowBelowThePointerKeep7To1) {
    for (const UIUserInterfaceStyle style : {light, dark}) {
        UIColorComponents mark = UIColor::tertiarySystemFillColor().resolved(style, high);
        mark.alpha = 0.18;
        const UIColorComponents marked = over(mark, backgroundOf(style));
        for (const UIColor& color : {UIColor::labelColor(), UIColor::secondaryLabelColor()}) {
            EXPECT_GE(ratio(over(mark, color.resolved(style, high)), marked), 7) << "the mark covers the text too";
        }
    }
}

TEST(UIWindow, DrawsAgainWhenItsContrastChangesAndSetsThatOfTheCanvas) {
    const auto label = create<UILabel>(CGRectMake(0, 0, 100, 20));
    label->setText("a");
    TestWindow window(label);
    window.runUntilStill();
    EXPECT_EQ(window->accessibilityContrast(), normal);
    window->setAccessibilityContrast(normal);
    EXPECT_FALSE(window.tick(TestWindow::frame)) << "nothing has changed";
    window->setAccessibilityContrast(high);
    EXPECT_TRUE(window.tick(TestWindow::frame));
    RecordingCanvas canvas;
    window->draw(canvas);
    EXPECT_EQ(canvas.accessibilityContrast(), high);
    EXPECT_EQ(canvas.painted(), (std::vector<std::string>{"text a at 0 0 with 0 0 0 1"}));
    canvas.calls.clear();
    window->setUserInterfaceStyle(dark);
    window->draw(canvas);
    EXPECT_EQ(canvas.painted(), (std::vector<std::string>{"text a at 0 0 with 1 1 1 1"}));
}

TEST_F(ContrastWheelTest, RowsBesideTheSelectionIndicatorFadeByAFifthAndNoMore) {
    window->setAccessibilityContrast(high);
    wheel->selectRow_inComponent_animated(50, 0, false);
    const std::vector<std::string> alphas = startingWith("alpha", callsOfDrawing());
    ASSERT_EQ(alphas.size(), 5U) << "the next ones would be cut by the edge";
    EXPECT_EQ(std::count(alphas.begin(), alphas.end(), "alpha 1"), 1);
    EXPECT_EQ(std::count(alphas.begin(), alphas.end(), "alpha 0.8"), 4);
}

TEST_F(ContrastWheelTest, TheSelectionIndicatorHasAnOutlineAtHighContrastAlone) {
    EXPECT_EQ(startingWith("fill", callsOfDrawing()).size(), 1U);
    window->setAccessibilityContrast(high);
    const std::vector<std::string> fills = startingWith("fill", callsOfDrawing());
    ASSERT_EQ(fills.size(), 5U);
    // The selection indicator is 304 by 40 points, 8 from the sides and around 108.
    EXPECT_TRUE(fills[0].starts_with("fill 8 88 304 40 with")) << fills[0];
    EXPECT_TRUE(fills[1].starts_with("fill 8 88 304 1.5 with")) << fills[1];
    EXPECT_TRUE(fills[2].starts_with("fill 8 126.5 304 1.5 with")) << fills[2];
    EXPECT_TRUE(fills[3].starts_with("fill 8 88 1.5 40 with")) << fills[3];
    EXPECT_TRUE(fills[4].starts_with("fill 310.5 88 1.5 40 with")) << fills[4];
    wheel->setShowsSelectionIndicator(false);
    EXPECT_TRUE(startingWith("fill", callsOfDrawing()).empty());
}

TEST_F(ContrastWheelTest, TheMarkOfTheFocusLiesOverTheOutline) {
    window->setAccessibilityContrast(high);
    wheel->becomeFirstResponder();
    window.press(UIKey::Code::Down);
    window.runUntilStill();
    const std::vector<std::string> fills = startingWith("fill", callsOfDrawing());
    ASSERT_EQ(fills.size(), 8U);
    // The column of 80 points in the middle, and its bars of 2 points, which leave out the rounded
    // corners.
    EXPECT_TRUE(fills[5].starts_with("fill 120 88 80 40 with")) << fills[5];
    EXPECT_TRUE(fills[6].starts_with("fill 128 88 64 2 with")) << fills[6];
    EXPECT_TRUE(fills[7].starts_with("fill 128 126 64 2 with")) << fills[7];
}

TEST_F(ContrastWheelTest, AWheelInMidSpinGoesOnInTheOtherLookWithTheNextFrame) {
    window.fling({160, 108}, {160, 8}, 10); // To row 10.
    window.run(0.1);
    const NSInteger before = wheel->rowInSelectionIndicatorOfComponent(0);
    EXPECT_FALSE(startingWith("text " + std::to_string(before) + " ", callsOfDrawing()).empty());
    window->setUserInterfaceStyle(dark);
    EXPECT_TRUE(window.tick(TestWindow::frame));
    EXPECT_TRUE(wheel->isTurning());
    const auto texts = startingWith("text", callsOfDrawing());
    ASSERT_FALSE(texts.empty());
    // 0xF4F5F7 as parts of 255.
    for (const std::string& text : texts) EXPECT_NE(text.find("with 0.956863 0.960784 0.968627 1"), std::string::npos) << text;
    EXPECT_TRUE(source->notices.empty());
    window.runUntilStill();
    EXPECT_EQ(source->notices, (std::vector<WheelSource::Notice>{{10, 0}}));
}
