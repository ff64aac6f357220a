#include "UIColor.h"

#include <limits>

#include <gtest/gtest.h>

using namespace gx;

namespace {
constexpr UIUserInterfaceStyle light = UIUserInterfaceStyle::Light;
constexpr UIUserInterfaceStyle dark = UIUserInterfaceStyle::Dark;
} // namespace

TEST(UIColor, ComponentsAreKeptAsGivenInBothLooks) {
    const UIColor color = UIColor::colorWithRed_green_blue_alpha(0.25, 0.5, 0.75, 0.125);
    EXPECT_EQ(color.resolved(light), (UIColorComponents{0.25, 0.5, 0.75, 0.125}));
    EXPECT_EQ(color.resolved(dark), (UIColorComponents{0.25, 0.5, 0.75, 0.125}));
}

TEST(UIColor, ComponentsAreClamped) {
    EXPECT_EQ(UIColor::colorWithRed_green_blue_alpha(-0.1, 1.1, 0, 1).resolved(light), (UIColorComponents{0, 1, 0, 1}));
    const double inf = std::numeric_limits<double>::infinity();
    EXPECT_EQ(UIColor::colorWithRed_green_blue_alpha(inf, -inf, std::numeric_limits<double>::quiet_NaN(), 2).resolved(light),
              (UIColorComponents{1, 0, 0, 1}));
}

TEST(UIColor, WhiteGivesTheSameGreyInAllChannels) {
    EXPECT_EQ(UIColor::colorWithWhite_alpha(0.5, 0.25).resolved(light), (UIColorComponents{0.5, 0.5, 0.5, 0.25}));
}

TEST(UIColor, AHexNumberNamesRedGreenAndBlue) {
    EXPECT_EQ(UIColor::colorWithHex(0xFF0000).resolved(light), (UIColorComponents{1, 0, 0, 1}));
    EXPECT_EQ(UIColor::colorWithHex(0x00FF00).resolved(light), (UIColorComponents{0, 1, 0, 1}));
    EXPECT_EQ(UIColor::colorWithHex(0x0000FF, 0.5).resolved(light), (UIColorComponents{0, 0, 1, 0.5}));
    EXPECT_EQ(UIColor::colorWithHex(0x336699).resolved(light), (UIColorComponents{0.2, 0.4, 0.6, 1}));
    EXPECT_EQ(UIColor::colorWithHex(0xAA000000).resolved(light), (UIColorComponents{0, 0, 0, 1})) << "the highest byte says nothing";
}

TEST(UIColor, AColourMayDifferBetweenTheLooks) {
    const UIColor color = UIColor::colorWithLight_dark(UIColor::blackColor(), UIColor::whiteColor());
    EXPECT_EQ(color.resolved(light), (UIColorComponents{0, 0, 0, 1}));
    EXPECT_EQ(color.resolved(dark), (UIColorComponents{1, 1, 1, 1}));
    const UIColor turned = UIColor::colorWithLight_dark(UIColor::clearColor(), color);
    EXPECT_EQ(turned.resolved(light), (UIColorComponents{0, 0, 0, 0}));
    EXPECT_EQ(turned.resolved(dark), (UIColorComponents{1, 1, 1, 1})) << "the dark value of the dark one";
}

TEST(UIColor, AnotherAlphaChangesBothLooksAndNothingElse) {
    const UIColor color = UIColor::colorWithLight_dark(UIColor::blackColor(), UIColor::whiteColor()).colorWithAlphaComponent(0.5);
    EXPECT_EQ(color.resolved(light), (UIColorComponents{0, 0, 0, 0.5}));
    EXPECT_EQ(color.resolved(dark), (UIColorComponents{1, 1, 1, 0.5}));
    EXPECT_EQ(color.colorWithAlphaComponent(7).resolved(light).alpha, 1);
    EXPECT_EQ(color.colorWithAlphaComponent(-7).resolved(dark).alpha, 0);
}

TEST(UIColor, ColoursAreEqualWhenBothLooksAre) {
    EXPECT_EQ(UIColor::colorWithHex(0xFFFFFF), UIColor::whiteColor());
    EXPECT_EQ(UIColor(), UIColor::clearColor());
    EXPECT_FALSE(UIColor::colorWithLight_dark(UIColor::whiteColor(), UIColor::blackColor()) == UIColor::whiteColor());
    EXPECT_FALSE(UIColor::clearColor() == UIColor::blackColor());
}

TEST(UIColor, TextIsDarkOnLightAndLightOnDark) {
    for (const UIColor& color : {UIColor::labelColor(), UIColor::secondaryLabelColor()}) {
        EXPECT_LT(color.resolved(light).green, 0.5);
        EXPECT_GT(color.resolved(dark).green, 0.5);
        EXPECT_EQ(color.resolved(light).alpha, 1);
    }
    EXPECT_LT(UIColor::tertiarySystemFillColor().resolved(light).alpha, 0.5) << "lets through what lies behind it";
}
