#include "GXStyleSheetFont.h"

#include <limits>

#include <gtest/gtest.h>

#include "UILabel.h"

namespace gx {
namespace {

const UIColor red = UIColor::colorWithHex(0xC02020);

Ref<GXStyleSheetFont> boldRed() { return GXStyleSheetFont::fontWithFamily_size_weight_color("Serif", 31, UIFontWeight::Bold, red); }

TEST(GXStyleSheetFont, DescribesTheFontThatItGives) {
    const auto description = boldRed();
    EXPECT_EQ(description->familyName(), "Serif");
    EXPECT_EQ(description->pointSize(), 31);
    EXPECT_EQ(description->weight(), UIFontWeight::Bold);
    EXPECT_EQ(description->color(), red);
    EXPECT_EQ(description->font()->familyName(), "Serif");
    EXPECT_EQ(description->font()->pointSize(), 31);
    EXPECT_EQ(description->font()->weight(), UIFontWeight::Bold);
}

TEST(GXStyleSheetFont, GivesTheSameFontEachTime) {
    const auto description = boldRed();
    const Ref<UIFont> first = description->font();
    EXPECT_EQ(description->font(), first);
}

TEST(GXStyleSheetFont, TakesTheUsualSizeForOneThatIsNone) {
    for (const CGFloat size : {0.0, -1.0, std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()}) {
        const auto description = GXStyleSheetFont::fontWithFamily_size_weight_color("", size, UIFontWeight::Regular, red);
        EXPECT_EQ(description->pointSize(), UIFont::labelFontSize);
    }
}

TEST(GXStyleSheetFont, HasAFontAlsoWithoutADescription) {
    const auto description = create<GXStyleSheetFont>();
    ASSERT_TRUE(description->font());
    EXPECT_EQ(description->pointSize(), UIFont::labelFontSize);
    EXPECT_EQ(description->color(), UIColor::labelColor());
}

TEST(SetStyleSheetFont, GivesALabelFontAndColour) {
    const auto label = create<UILabel>(CGRect{});
    const auto description = boldRed();
    setStyleSheetFont(label, description);
    EXPECT_EQ(label->font(), description->font());
    EXPECT_EQ(label->textColor(), red);
}

TEST(SetStyleSheetFont, LeavesTheTextOfALabelAlone) {
    const auto label = create<UILabel>(CGRect{});
    label->setText("km");
    setStyleSheetFont(label, boldRed());
    EXPECT_EQ(label->text(), "km");
}

TEST(SetStyleSheetFont, DoesNothingWithoutALabelOrADescription) {
    const auto label = create<UILabel>(CGRect{});
    const Ref<UIFont> font = label->font();
    setStyleSheetFont(label, nullptr);
    EXPECT_EQ(label->font(), font);
    EXPECT_EQ(label->textColor(), UIColor::labelColor());

    const auto description = boldRed();
    setStyleSheetFont(nullptr, description);
    EXPECT_EQ(description->color(), red);
}

} // namespace
} // namespace gx
