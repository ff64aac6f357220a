#include "UIFont.h"

#include <limits>

#include <gtest/gtest.h>

using namespace gx;

TEST(UIFont, TheSystemFontHasNoFamilyNameAndIsRegularByDefault) {
    const Ref<UIFont> font = UIFont::systemFontOfSize_weight(21);
    EXPECT_EQ(font->familyName(), "");
    EXPECT_EQ(font->pointSize(), 21);
    EXPECT_EQ(font->weight(), UIFontWeight::Regular);
    EXPECT_EQ(UIFont::systemFontOfSize_weight(21, UIFontWeight::Bold)->weight(), UIFontWeight::Bold);
}

TEST(UIFont, ANamedFontKeepsItsNameSizeAndWeight) {
    const Ref<UIFont> font = UIFont::fontWithName_size_weight("Serif", 12.5, UIFontWeight::Medium);
    EXPECT_EQ(font->familyName(), "Serif");
    EXPECT_EQ(font->pointSize(), 12.5);
    EXPECT_EQ(font->weight(), UIFontWeight::Medium);
}

TEST(UIFont, ASizeThatIsNotAboveZeroBecomesTheSizeOfLabels) {
    for (const double size : {0.0, -1.0, std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()}) {
        EXPECT_EQ(UIFont::systemFontOfSize_weight(size)->pointSize(), 17) << size;
    }
    EXPECT_EQ(UIFont::systemFontOfSize_weight(0.5)->pointSize(), 0.5);
}

TEST(UIFont, FontsAreEqualByFamilySizeAndWeight) {
    const Ref<UIFont> font = UIFont::fontWithName_size_weight("Serif", 12, UIFontWeight::Medium);
    EXPECT_TRUE(font->isEqualToFont(*UIFont::fontWithName_size_weight("Serif", 12, UIFontWeight::Medium)));
    EXPECT_FALSE(font->isEqualToFont(*UIFont::fontWithName_size_weight("Sans", 12, UIFontWeight::Medium)));
    EXPECT_FALSE(font->isEqualToFont(*UIFont::fontWithName_size_weight("Serif", 13, UIFontWeight::Medium)));
    EXPECT_FALSE(font->isEqualToFont(*UIFont::fontWithName_size_weight("Serif", 12, UIFontWeight::Bold)));
}
