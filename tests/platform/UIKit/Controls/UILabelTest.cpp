#include "UILabel.h"

#include <gtest/gtest.h>

#include "RecordingCanvas.h"
#include "UITextEngine.h"
#include "UIWindow.h"

using namespace gx;
using Calls = std::vector<std::string>;

namespace {

/// Ten points a code point, twenty a line, and counts how often it measures.
struct CountingEngine : UIFixedWidthTextEngine {
    int count = 0;
    CGSize sizeOfText_font(std::string_view text, const UIFont& font) override {
        ++count;
        return UIFixedWidthTextEngine::sizeOfText_font(text, font);
    }
};

struct UILabelTest : testing::Test {
    Ref<CountingEngine> engine = create<CountingEngine>();
    Ref<UILabel> label = create<UILabel>(CGRectMake(5, 6, 100, 40));
    RecordingCanvas canvas;

    UILabelTest() {
        UITextEngine::setShared(engine);
        label->setTextColor(UIColor::blackColor());
    }
    ~UILabelTest() override { UITextEngine::setShared(nullptr); }

    Calls drawn() {
        canvas.calls.clear();
        canvas.fontSizes.clear();
        label->renderInContext(canvas);
        return canvas.painted();
    }
    Calls drawnInWidth(CGFloat width) {
        label->setFrame(CGRectMake(0, 0, width, 20));
        return drawn();
    }
};

} // namespace

TEST_F(UILabelTest, ANewLabelShowsNothing) {
    EXPECT_EQ(label->text(), std::nullopt);
    EXPECT_FALSE(label->attributedText());
    EXPECT_FALSE(label->showsSomething());
    EXPECT_EQ(label->textAlignment(), NSTextAlignmentLeft);
    EXPECT_EQ(label->font()->pointSize(), 17);
    EXPECT_EQ(create<UILabel>()->textColor(), UIColor::labelColor());
    EXPECT_EQ(drawn(), Calls{});
}

TEST_F(UILabelTest, ItTakesNoTouches) {
    EXPECT_FALSE(label->isUserInteractionEnabled());
    EXPECT_FALSE(create<UILabel>(create<NSCoder>())->isUserInteractionEnabled());
    EXPECT_FALSE(create<UILabel>()->isUserInteractionEnabled());
}

TEST_F(UILabelTest, AnEmptyTextShowsNothingAndIsNotTheSameAsNone) {
    label->setText("");
    EXPECT_EQ(label->text(), "");
    EXPECT_FALSE(label->showsSomething());
    EXPECT_EQ(drawn(), Calls{});
    EXPECT_EQ(label->sizeThatFits({}), CGSizeMake(0, 20));
    label->setText(std::nullopt);
    EXPECT_EQ(label->sizeThatFits({}), CGSizeMake(0, 0));
}

TEST_F(UILabelTest, ATextIsCentredOnTheHeightAndAlignedOnTheWidth) {
    label->setText("abc");
    EXPECT_TRUE(label->showsSomething());
    // 30 by 20 points in 100 by 40.
    EXPECT_EQ(drawn(), Calls{"text abc at 0 10 with 0 0 0 1"});
    label->setTextAlignment(NSTextAlignmentCenter);
    EXPECT_EQ(drawn(), Calls{"text abc at 35 10 with 0 0 0 1"});
    label->setTextAlignment(NSTextAlignmentRight);
    EXPECT_EQ(drawn(), Calls{"text abc at 70 10 with 0 0 0 1"});
}

TEST_F(UILabelTest, ATextIsPlacedInBoundsThatAreScrolled) {
    label->setText("abc");
    label->setTextAlignment(NSTextAlignmentRight);
    label->setBounds(CGRectMake(1000, 2000, 100, 40));
    EXPECT_EQ(drawn(), Calls{"text abc at 1070 2010 with 0 0 0 1"});
}

TEST_F(UILabelTest, ALineHigherThanTheBoundsStaysCentred) {
    label->setText("abc");
    label->setFrame(CGRectMake(0, 0, 100, 10));
    EXPECT_EQ(drawn(), Calls{"text abc at 0 -5 with 0 0 0 1"});
}

TEST_F(UILabelTest, TheFittingSizeIsTheTexts) {
    label->setText("abc");
    EXPECT_EQ(label->sizeThatFits({5, 5}), CGSizeMake(30, 20)) << "whatever there is room for";
    label->sizeToFit();
    EXPECT_EQ(label->frame(), CGRectMake(5, 6, 30, 20));
    EXPECT_EQ(drawn(), Calls{"text abc at 0 0 with 0 0 0 1"});
}

TEST_F(UILabelTest, ATextThatIsTooLongEndsInAnEllipsis) {
    label->setText("abcdef");
    EXPECT_EQ(drawnInWidth(60), Calls{"text abcdef at 0 0 with 0 0 0 1"});
    EXPECT_EQ(drawnInWidth(59), Calls{"text abcd\u2026 at 0 0 with 0 0 0 1"});
    EXPECT_EQ(drawnInWidth(50), Calls{"text abcd\u2026 at 0 0 with 0 0 0 1"});
    EXPECT_EQ(drawnInWidth(49), Calls{"text abc\u2026 at 0 0 with 0 0 0 1"});
    EXPECT_EQ(drawnInWidth(20), Calls{"text a\u2026 at 0 0 with 0 0 0 1"});
    EXPECT_EQ(drawnInWidth(5), Calls{"text \u2026 at 0 0 with 0 0 0 1"}) << "at least that there is something";
}

TEST_F(UILabelTest, ABoundsThatIsAHairTooNarrowIsNoReasonToCut) {
    label->setText("abcdef");
    label->setTextAlignment(NSTextAlignmentRight);
    EXPECT_EQ(drawnInWidth(59.995), Calls{"text abcdef at -0.005 0 with 0 0 0 1"});
    EXPECT_EQ(drawnInWidth(59.985), Calls{"text abcd\u2026 at 9.985 0 with 0 0 0 1"});
}

TEST_F(UILabelTest, WhatIsCutIsAlignedAsItIs) {
    label->setText("abcdef");
    label->setTextAlignment(NSTextAlignmentRight);
    EXPECT_EQ(drawnInWidth(59), Calls{"text abcd\u2026 at 9 0 with 0 0 0 1"});
    label->setTextAlignment(NSTextAlignmentCenter);
    EXPECT_EQ(drawn(), Calls{"text abcd\u2026 at 4.5 0 with 0 0 0 1"});
}

TEST_F(UILabelTest, ATextIsCutBetweenCodePoints) {
    label->setText("\u00e4\u20ac\U0001F3C3z");
    EXPECT_EQ(drawnInWidth(40), Calls{"text \u00e4\u20ac\U0001F3C3z at 0 0 with 0 0 0 1"});
    EXPECT_EQ(drawnInWidth(39), Calls{"text \u00e4\u20ac\u2026 at 0 0 with 0 0 0 1"});
    EXPECT_EQ(drawnInWidth(29), Calls{"text \u00e4\u2026 at 0 0 with 0 0 0 1"});
    EXPECT_EQ(drawnInWidth(19), Calls{"text \u2026 at 0 0 with 0 0 0 1"});
}

TEST_F(UILabelTest, ATextIsCutBetweenCodePointsAlsoWhereHalfOfOneWouldFit) {
    struct ByteEngine : UITextEngine {
        CGSize sizeOfText_font(std::string_view text, const UIFont&) override { return {10.0 * static_cast<CGFloat>(text.size()), 20}; }
    };
    UITextEngine::setShared(create<ByteEngine>());
    label->setText("\u00e4\u00e4\u00e4\u00e4");
    // 65 points hold six bytes, three of them the ellipsis: there is room for one and a half of the
    // others.
    EXPECT_EQ(drawnInWidth(65), Calls{"text \u00e4\u2026 at 0 0 with 0 0 0 1"});
}

TEST_F(UILabelTest, ALongTextIsCutWithFewMeasurements) {
    const std::string text(1000, 'x');
    label->setText(text);
    engine->count = 0;
    // 5000 points hold 500 code points, the last of them the ellipsis. Halving 1000 places takes
    // ten steps at most; the whole text and the result are measured besides.
    EXPECT_EQ(drawnInWidth(5000), Calls{"text " + text.substr(0, 499) + "\u2026 at 0 0 with 0 0 0 1"});
    EXPECT_LE(engine->count, 12);
}

TEST_F(UILabelTest, ATextIsCutAtEveryWidthWhereItFits) {
    label->setText("abcdefgh");
    for (std::size_t shown = 1; shown <= 7; ++shown) {
        const std::string expected = std::string("abcdefgh").substr(0, shown - 1) + "\u2026";
        const CGFloat width = 10 * static_cast<CGFloat>(shown);
        EXPECT_EQ(drawnInWidth(width), Calls{"text " + expected + " at 0 0 with 0 0 0 1"});
    }
}

TEST_F(UILabelTest, AnEngineThatReplacesItselfLivesUntilItHasMeasured) {
    /// Restores the default while it measures, and notes whether it was destroyed by that.
    struct Resigning : UIFixedWidthTextEngine {
        bool* isDestroyed = nullptr;
        bool* wasDestroyedInCall = nullptr;
        ~Resigning() override { *isDestroyed = true; }
        CGSize sizeOfText_font(std::string_view text, const UIFont& font) override {
            const bool* const destroyed = isDestroyed;
            bool* const inCall = wasDestroyedInCall;
            const CGSize size = UIFixedWidthTextEngine::sizeOfText_font(text, font);
            UITextEngine::setShared(nullptr);
            *inCall = *inCall || *destroyed;
            return size;
        }
    };
    bool isDestroyed = false;
    bool wasDestroyedInCall = false;
    const auto share = [&] {
        isDestroyed = false;
        const auto resigning = create<Resigning>();
        resigning->isDestroyed = &isDestroyed;
        resigning->wasDestroyedInCall = &wasDestroyedInCall;
        UITextEngine::setShared(resigning);
    };
    label->setText("abcdef");
    share();
    EXPECT_EQ(label->sizeThatFits({}), CGSizeMake(60, 20));
    EXPECT_TRUE(isDestroyed);
    share();
    EXPECT_EQ(drawnInWidth(49), Calls{"text abc\u2026 at 0 0 with 0 0 0 1"});
    EXPECT_TRUE(isDestroyed);
    share();
    EXPECT_EQ(sizeWithAttributes("ab", {}), CGSizeMake(20, 20));
    EXPECT_TRUE(isDestroyed);
    EXPECT_FALSE(wasDestroyedInCall);
}

TEST_F(UILabelTest, ATextOfStrayBytesIsCutWithoutEnd) {
    label->setText("a\x80\x80\x80");
    engine->setCodePointWidth(1000);
    EXPECT_EQ(drawnInWidth(10), Calls{"text \u2026 at 0 0 with 0 0 0 1"});
}

TEST_F(UILabelTest, ATextIsMeasuredOnceHoweverOftenItIsDrawn) {
    label->setText("abc");
    engine->count = 0;
    drawn();
    EXPECT_EQ(engine->count, 1);
    drawn();
    label->setFrame(CGRectMake(50, 60, 100, 80)); // The width stays.
    label->setTextAlignment(NSTextAlignmentRight);
    label->setTextColor(UIColor::whiteColor());
    label->setText("abc");
    drawn();
    EXPECT_EQ(engine->count, 1);
}

TEST_F(UILabelTest, IsMeasuredAgainAfterAChangeOfTextFontOrWidth) {
    label->setText("abc");
    drawn();
    engine->count = 0;
    label->setText("abcd");
    drawn();
    EXPECT_EQ(engine->count, 1);
    label->setFont(UIFont::systemFontOfSize_weight(30));
    drawn();
    EXPECT_EQ(engine->count, 2);
    label->setFrame(CGRectMake(0, 0, 90, 40));
    drawn();
    EXPECT_EQ(engine->count, 3);
    label->setAttributedText(NSAttributedString::attributedStringWithString_attributes("abcd", {}));
    drawn();
    EXPECT_EQ(engine->count, 4);
}

TEST_F(UILabelTest, AnAttributedTextGoesBeforeTheLabelsOwnFontAndColour) {
    label->setFont(UIFont::systemFontOfSize_weight(10));
    const auto text = NSAttributedString::attributedStringWithString_attributes(
        "xy", {UIFont::systemFontOfSize_weight(33), UIColor::colorWithRed_green_blue_alpha(1, 0, 0, 1)});
    label->setAttributedText(text);
    EXPECT_EQ(label->attributedText(), text);
    EXPECT_EQ(label->text(), "xy");
    EXPECT_TRUE(label->showsSomething());
    EXPECT_EQ(drawn(), Calls{"text xy at 0 10 with 1 0 0 1"});
    EXPECT_EQ(canvas.fontSizes, std::vector<CGFloat>{33});
}

TEST_F(UILabelTest, WhatAnAttributedTextLeavesOpenTheLabelGives) {
    label->setFont(UIFont::systemFontOfSize_weight(10));
    label->setAttributedText(NSAttributedString::attributedStringWithString_attributes("xy", {}));
    EXPECT_EQ(drawn(), Calls{"text xy at 0 10 with 0 0 0 1"});
    EXPECT_EQ(canvas.fontSizes, std::vector<CGFloat>{10});
}

TEST_F(UILabelTest, APlainTextReplacesAnAttributedOneAlsoOfTheSameWords) {
    label->setAttributedText(NSAttributedString::attributedStringWithString_attributes("xy", {nullptr, UIColor::whiteColor()}));
    label->setText("xy");
    EXPECT_FALSE(label->attributedText());
    EXPECT_EQ(drawn(), Calls{"text xy at 0 10 with 0 0 0 1"});
}

TEST_F(UILabelTest, NoAttributedTextIsNoText) {
    label->setAttributedText(NSAttributedString::attributedStringWithString_attributes("xy", {}));
    label->setAttributedText(nullptr);
    EXPECT_EQ(label->text(), std::nullopt);
    EXPECT_EQ(drawn(), Calls{});
}

TEST_F(UILabelTest, AnEmptyReferenceGivesTheSystemFont) {
    label->setFont(UIFont::systemFontOfSize_weight(40, UIFontWeight::Bold));
    label->setFont(nullptr);
    ASSERT_TRUE(label->font());
    EXPECT_EQ(label->font()->pointSize(), 17);
    EXPECT_EQ(label->font()->weight(), UIFontWeight::Regular);
}

TEST_F(UILabelTest, AChangeRequestsAFrameAndTheSameValueDoesNot) {
    const auto window = create<UIWindow>(CGRectMake(0, 0, 200, 200));
    window->addSubview(label);
    window->tick(0);
    label->setText("a");
    EXPECT_TRUE(window->tick(1));
    label->setText("a");
    EXPECT_FALSE(window->tick(1));
    label->setFont(UIFont::systemFontOfSize_weight(30));
    EXPECT_TRUE(window->tick(1));
    label->setFont(UIFont::systemFontOfSize_weight(30));
    EXPECT_FALSE(window->tick(1)) << "another font object, but the same font";
    label->setTextColor(UIColor::whiteColor());
    EXPECT_TRUE(window->tick(1));
    label->setTextColor(UIColor::whiteColor());
    EXPECT_FALSE(window->tick(1));
    label->setTextAlignment(NSTextAlignmentCenter);
    EXPECT_TRUE(window->tick(1));
    label->setTextAlignment(NSTextAlignmentCenter);
    EXPECT_FALSE(window->tick(1));
    const auto text = NSAttributedString::attributedStringWithString_attributes("a", {});
    label->setAttributedText(text);
    EXPECT_TRUE(window->tick(1));
    label->setAttributedText(text);
    EXPECT_FALSE(window->tick(1));
    label->setText(std::nullopt);
    EXPECT_TRUE(window->tick(1));
    label->setText(std::nullopt);
    EXPECT_FALSE(window->tick(1));
    label->setAttributedText(nullptr);
    EXPECT_FALSE(window->tick(1)) << "there was none";
}

TEST_F(UILabelTest, ItRestoresTextAlignmentAndFontSize) {
    const auto coder = create<NSCoder>();
    coder->encodeString_forKey("abc", "text");
    coder->encodeInteger_forKey(2, "textAlignment");
    coder->encodeDouble_forKey(25, "fontSize");
    coder->encodeCGRect_forKey(CGRectMake(1, 2, 3, 4), "frame");
    const auto restored = create<UILabel>(coder);
    EXPECT_EQ(restored->text(), "abc");
    EXPECT_EQ(restored->textAlignment(), NSTextAlignmentRight);
    EXPECT_EQ(restored->font()->pointSize(), 25);
    EXPECT_EQ(restored->frame(), CGRectMake(1, 2, 3, 4));
}

TEST_F(UILabelTest, ItRestoresEachAlignment) {
    for (const NSTextAlignment alignment : {NSTextAlignmentLeft, NSTextAlignmentCenter, NSTextAlignmentRight, NSTextAlignmentNatural}) {
        const auto coder = create<NSCoder>();
        coder->encodeInteger_forKey(alignment, "textAlignment");
        EXPECT_EQ(create<UILabel>(coder)->textAlignment(), alignment);
    }
}

TEST_F(UILabelTest, WhatACoderLacksKeepsItsDefault) {
    const auto coder = create<NSCoder>();
    coder->encodeInteger_forKey(9, "textAlignment");
    for (const auto& restored : {create<UILabel>(coder), create<UILabel>(Ref<NSCoder>())}) {
        EXPECT_EQ(restored->text(), std::nullopt);
        EXPECT_EQ(restored->textAlignment(), NSTextAlignmentLeft);
        EXPECT_EQ(restored->font()->pointSize(), 17);
    }
}

TEST_F(UILabelTest, NoAttributedTextTakesAPlainOneAway) {
    label->setText("plain");
    label->setAttributedText(nullptr);
    EXPECT_EQ(label->text(), std::nullopt);
    EXPECT_EQ(drawn(), Calls{});
}

TEST_F(UILabelTest, ATextIsMeasuredAgainOnceMeasuresHaveChanged) {
    label->setText("abcde");
    EXPECT_EQ(drawnInWidth(60), Calls{"text abcde at 0 0 with 0 0 0 1"});
    engine->setCodePointWidth(20);
    EXPECT_EQ(drawn(), Calls{"text abcde at 0 0 with 0 0 0 1"});
    UITextEngine::measuresDidChange();
    EXPECT_EQ(drawn(), Calls{"text ab\u2026 at 0 0 with 0 0 0 1"});
}

TEST_F(UILabelTest, ATextIsMeasuredAgainByAnotherEngine) {
    label->setText("abcde");
    EXPECT_EQ(drawnInWidth(60), Calls{"text abcde at 0 0 with 0 0 0 1"});
    const auto wide = create<UIFixedWidthTextEngine>();
    wide->setCodePointWidth(20);
    UITextEngine::setShared(wide);
    EXPECT_EQ(drawn(), Calls{"text ab\u2026 at 0 0 with 0 0 0 1"});
}
