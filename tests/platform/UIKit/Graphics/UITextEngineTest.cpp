#include "UITextEngine.h"

#include <gtest/gtest.h>

#include "NSAttributedString.h"

using namespace gx;

namespace {

/// As wide as the font is large, for each byte.
struct ByteEngine : UITextEngine {
    CGSize sizeOfText_font(std::string_view text, const UIFont& font) override {
        return {static_cast<CGFloat>(text.size()) * font.pointSize(), font.pointSize() + 2};
    }
};

struct UITextEngineTest : testing::Test {
    Ref<UIFont> font = UIFont::systemFontOfSize_weight(17);
    ~UITextEngineTest() override { UITextEngine::setShared(nullptr); }

    CGSize sizeOf(std::string_view text) const { return UITextEngine::shared()->sizeOfText_font(text, *font); }
};

} // namespace

TEST_F(UITextEngineTest, WithoutAHostACodePointIsTenWideAndALineTwentyHigh) {
    EXPECT_EQ(sizeOf("abc"), CGSizeMake(30, 20));
    EXPECT_EQ(sizeOf("a b"), CGSizeMake(30, 20));
}

TEST_F(UITextEngineTest, TheWidthCountsCodePointsAndNotBytes) {
    EXPECT_EQ(sizeOf("\u00e4\u00f6"), CGSizeMake(20, 20)) << "two bytes each";
    EXPECT_EQ(sizeOf("5 \u20ac"), CGSizeMake(30, 20)) << "three bytes for the last";
    EXPECT_EQ(sizeOf("\U0001F3C3"), CGSizeMake(10, 20)) << "four bytes";
}

TEST_F(UITextEngineTest, AnEmptyTextHasNoWidthAndAFullLine) { EXPECT_EQ(sizeOf(""), CGSizeMake(0, 20)); }

TEST_F(UITextEngineTest, TheFontMakesNoDifferenceWithoutAHost) {
    EXPECT_EQ(UITextEngine::shared()->sizeOfText_font("abc", *UIFont::systemFontOfSize_weight(40, UIFontWeight::Bold)), CGSizeMake(30, 20));
}

TEST_F(UITextEngineTest, TheFixedSizesCanBeSet) {
    const auto engine = create<UIFixedWidthTextEngine>();
    engine->setCodePointWidth(7.5);
    engine->setLineHeight(11);
    EXPECT_EQ(engine->codePointWidth(), 7.5);
    EXPECT_EQ(engine->lineHeight(), 11);
    EXPECT_EQ(engine->sizeOfText_font("abcd", *font), CGSizeMake(30, 11));
}

TEST_F(UITextEngineTest, ANewSharedEngineMeasuresFromThenOn) {
    UITextEngine::setShared(create<ByteEngine>());
    EXPECT_EQ(sizeOf("\u00e4"), CGSizeMake(34, 19));
    EXPECT_EQ(sizeWithAttributes("ab", {font, std::nullopt}), CGSizeMake(34, 19));
}

TEST_F(UITextEngineTest, AnEmptyReferenceRestoresFreshFixedWidths) {
    auto wide = create<UIFixedWidthTextEngine>();
    wide->setCodePointWidth(99);
    UITextEngine::setShared(wide);
    EXPECT_EQ(sizeOf("a"), CGSizeMake(99, 20));
    UITextEngine::setShared(nullptr);
    EXPECT_EQ(sizeOf("a"), CGSizeMake(10, 20));
}
