#include "NSAttributedString.h"

#include <gtest/gtest.h>

#include "UITextEngine.h"

using namespace gx;

namespace {

/// Notes the font that it was asked to measure with.
struct FontNotingEngine : UIFixedWidthTextEngine {
    CGFloat size = 0;
    UIFontWeight weight = UIFontWeight::Regular;
    std::string family;
    CGSize sizeOfText_font(std::string_view text, const UIFont& font) override {
        size = font.pointSize();
        weight = font.weight();
        family = font.familyName();
        return UIFixedWidthTextEngine::sizeOfText_font(text, font);
    }
};

struct NSAttributedStringTest : testing::Test {
    Ref<FontNotingEngine> engine = create<FontNotingEngine>();
    NSAttributedStringTest() { UITextEngine::setShared(engine); }
    ~NSAttributedStringTest() override { UITextEngine::setShared(nullptr); }
};

} // namespace

TEST_F(NSAttributedStringTest, ItKeepsItsTextAndAttributes) {
    const Ref<UIFont> font = UIFont::systemFontOfSize_weight(30);
    const auto text = NSAttributedString::attributedStringWithString_attributes("km", {font, UIColor::whiteColor()});
    EXPECT_EQ(text->string(), "km");
    EXPECT_EQ(text->attributes().font, font);
    EXPECT_EQ(text->attributes().foregroundColor, UIColor::whiteColor());
}

TEST_F(NSAttributedStringTest, AttributesMayBeAbsent) {
    const auto text = NSAttributedString::attributedStringWithString_attributes("", {});
    EXPECT_EQ(text->string(), "");
    EXPECT_FALSE(text->attributes().font);
    EXPECT_FALSE(text->attributes().foregroundColor);
}

TEST_F(NSAttributedStringTest, ATextIsMeasuredInTheFontOfItsAttributes) {
    const Ref<UIFont> font = UIFont::fontWithName_size_weight("Serif", 30, UIFontWeight::Bold);
    EXPECT_EQ(sizeWithAttributes("km/h", {font, std::nullopt}), CGSizeMake(40, 20));
    EXPECT_EQ(engine->size, 30);
    EXPECT_EQ(engine->weight, UIFontWeight::Bold);
    EXPECT_EQ(engine->family, "Serif");
}

TEST_F(NSAttributedStringTest, ATextWithoutAFontIsMeasuredInTheSystemFont) {
    EXPECT_EQ(sizeWithAttributes("km", {}), CGSizeMake(20, 20));
    EXPECT_EQ(engine->size, 17);
    EXPECT_EQ(engine->weight, UIFontWeight::Regular);
    EXPECT_EQ(engine->family, "");
}
