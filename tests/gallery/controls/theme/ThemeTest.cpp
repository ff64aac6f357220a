#include "Theme.h"

#include <gtest/gtest.h>

#include "GXStyleSheet.h"
#include "UIFont.h"

using namespace gallery;
using namespace gx;

TEST(ThemeTest, TextsAndControlsGrowWithTheTextScale) {
    const auto sizes = [](double scale) {
        GXStyleSheet::globalStyleSheet()->setTextScale(scale);
        std::vector<CGFloat> found;
        for (const auto style : {Theme::TextStyle::Title, Theme::TextStyle::Heading, Theme::TextStyle::Body, Theme::TextStyle::Caption})
            found.push_back(Theme::font(style)->pointSize());
        found.push_back(Theme::controlHeight());
        found.push_back(Theme::barHeight());
        found.push_back(Theme::sidebarBreakpoint());
        return found;
    };
    EXPECT_EQ(sizes(1), (std::vector<CGFloat>{28, 17, 15, 13, 40, 56, 720}));
    EXPECT_EQ(sizes(0.8), (std::vector<CGFloat>{22, 14, 12, 10, 40, 56, 720}));
    EXPECT_EQ(sizes(2), (std::vector<CGFloat>{43, 32, 30, 26, 60, 76, 1440}));
    EXPECT_EQ(sizes(3), (std::vector<CGFloat>{58, 47, 45, 39, 80, 96, 2160}));
    const auto font = Theme::font(Theme::TextStyle::Body);
    EXPECT_EQ(Theme::font(Theme::TextStyle::Body), font) << "the same object as long as the scale is the same";
    GXStyleSheet::setGlobalStyleSheet(nullptr);
    EXPECT_EQ(Theme::font(Theme::TextStyle::Body)->pointSize(), 15);
}
