#include "GXStyleSheet.h"

#include <limits>

#include <gtest/gtest.h>

namespace gx {
namespace {

/// Leaves the usual looks to the next test.
class GXStyleSheetTest : public testing::Test {
protected:
    void TearDown() override { GXStyleSheet::setGlobalStyleSheet(nullptr); }
};

/// The looks of an application that wants other rows.
class TallStyleSheet : public GXStyleSheet {
public:
    double pickerRowHeight() const override { return 77; }
};

TEST_F(GXStyleSheetTest, TheGlobalOneIsTheSameOnEveryCall) {
    const Ref<GXStyleSheet> first = GXStyleSheet::globalStyleSheet();
    ASSERT_TRUE(first);
    EXPECT_EQ(GXStyleSheet::globalStyleSheet(), first);
    EXPECT_EQ(GXStyleSheet::globalStyleSheet(), GXStyleSheet::globalStyleSheet());
}

TEST_F(GXStyleSheetTest, AnApplicationReplacesTheGlobalOne) {
    const auto tall = create<TallStyleSheet>();
    GXStyleSheet::setGlobalStyleSheet(tall);
    EXPECT_EQ(GXStyleSheet::globalStyleSheet(), tall);
    EXPECT_EQ(GXStyleSheet::globalStyleSheet()->pickerRowHeight(), 77);
    EXPECT_EQ(GXStyleSheet::globalStyleSheet()->pickerImageRowHeight(), 56);
}

/// Replaces itself while it is called, and notes whether it is gone by then.
class SelfReplacingStyleSheet : public GXStyleSheet {
public:
    ~SelfReplacingStyleSheet() override { isAlive = false; }
    double pickerRowHeight() const override {
        GXStyleSheet::setGlobalStyleSheet(nullptr);
        EXPECT_TRUE(isAlive);
        return isAlive ? GXStyleSheet::pickerRowHeight() : 0;
    }
    Ref<GXStyleSheetFont> pickerValueFont() const override {
        const Ref<GXStyleSheetFont> font = GXStyleSheet::pickerValueFont();
        GXStyleSheet::setGlobalStyleSheet(nullptr);
        return font;
    }
    static inline bool isAlive = true;
};

TEST_F(GXStyleSheetTest, MayReplaceItselfDuringACall) {
    SelfReplacingStyleSheet::isAlive = true;
    GXStyleSheet::setGlobalStyleSheet(create<SelfReplacingStyleSheet>());
    GXStyleSheet::globalStyleSheet()->setTextScale(2);
    EXPECT_EQ(GXStyleSheet::globalStyleSheet()->pickerRowHeight(), 80);
    EXPECT_FALSE(SelfReplacingStyleSheet::isAlive);
    EXPECT_EQ(GXStyleSheet::globalStyleSheet()->pickerRowHeight(), 40);
}

TEST_F(GXStyleSheetTest, AFontOutlivesTheStyleSheetThatGaveIt) {
    GXStyleSheet::setGlobalStyleSheet(create<SelfReplacingStyleSheet>());
    const auto& font = GXStyleSheet::globalStyleSheet()->pickerValueFont()->font();
    const auto& color = GXStyleSheet::globalStyleSheet()->pickerLabelFont()->color();
    GXStyleSheet::setGlobalStyleSheet(nullptr);
    EXPECT_EQ(font->pointSize(), 22);
    EXPECT_EQ(color, UIColor::secondaryLabelColor());
}

TEST_F(GXStyleSheetTest, AnEmptyReferenceRestoresTheUsualLooks) {
    GXStyleSheet::setGlobalStyleSheet(create<TallStyleSheet>());
    GXStyleSheet::setGlobalStyleSheet(nullptr);
    ASSERT_TRUE(GXStyleSheet::globalStyleSheet());
    EXPECT_EQ(GXStyleSheet::globalStyleSheet()->pickerRowHeight(), 40);
}

TEST_F(GXStyleSheetTest, RestoringTheUsualLooksRestoresTheScale) {
    GXStyleSheet::globalStyleSheet()->setTextScale(2);
    GXStyleSheet::setGlobalStyleSheet(nullptr);
    EXPECT_EQ(GXStyleSheet::globalStyleSheet()->textScale(), 1);
}

TEST_F(GXStyleSheetTest, TheUsualLooks) {
    const auto sheet = create<GXStyleSheet>();
    EXPECT_EQ(sheet->textScale(), 1);
    EXPECT_EQ(sheet->pickerRowHeight(), 40);
    EXPECT_EQ(sheet->pickerImageRowHeight(), 56);
    EXPECT_EQ(sheet->pickerValueFont()->familyName(), "");
    EXPECT_EQ(sheet->pickerValueFont()->pointSize(), 22);
    EXPECT_EQ(sheet->pickerValueFont()->weight(), UIFontWeight::Medium);
    EXPECT_EQ(sheet->pickerValueFont()->color(), UIColor::labelColor());
    EXPECT_EQ(sheet->pickerLabelFont()->familyName(), "");
    EXPECT_EQ(sheet->pickerLabelFont()->pointSize(), 22);
    EXPECT_EQ(sheet->pickerLabelFont()->weight(), UIFontWeight::Regular);
    EXPECT_EQ(sheet->pickerLabelFont()->color(), UIColor::secondaryLabelColor());
}

TEST_F(GXStyleSheetTest, ATableCellIsWhiteInTheLightLookAndNearBlackInTheDarkOne) {
    const UIColor color = create<GXStyleSheet>()->tableBgColor();
    EXPECT_EQ(color.resolved(UIUserInterfaceStyle::Light), UIColor::whiteColor().resolved(UIUserInterfaceStyle::Light));
    EXPECT_EQ(color.resolved(UIUserInterfaceStyle::Dark), UIColor::colorWithHex(0x1C1E22).resolved(UIUserInterfaceStyle::Dark));
}

TEST_F(GXStyleSheetTest, FontsAreTheSameObjectsUntilTheScaleChanges) {
    const auto sheet = create<GXStyleSheet>();
    const Ref<GXStyleSheetFont> value = sheet->pickerValueFont();
    const Ref<GXStyleSheetFont> label = sheet->pickerLabelFont();
    sheet->setTextScale(1);
    EXPECT_EQ(sheet->pickerValueFont(), value);
    EXPECT_EQ(sheet->pickerLabelFont(), label);
    sheet->setTextScale(1.5);
    EXPECT_NE(sheet->pickerValueFont(), value);
    EXPECT_NE(sheet->pickerLabelFont(), label);
    EXPECT_EQ(sheet->pickerValueFont(), sheet->pickerValueFont());
    // A font that is still held does not change.
    EXPECT_EQ(value->pointSize(), 22);
}

TEST_F(GXStyleSheetTest, FontsAndRowHeightsScaleTogether) {
    const auto sheet = create<GXStyleSheet>();
    sheet->setTextScale(1.5);
    EXPECT_EQ(sheet->pickerRowHeight(), 60);
    EXPECT_EQ(sheet->pickerImageRowHeight(), 84);
    EXPECT_EQ(sheet->pickerValueFont()->pointSize(), 33);
    EXPECT_EQ(sheet->pickerLabelFont()->pointSize(), 33);
    EXPECT_EQ(sheet->pickerValueFont()->weight(), UIFontWeight::Medium);
    EXPECT_EQ(sheet->pickerLabelFont()->color(), UIColor::secondaryLabelColor());
    sheet->setTextScale(1);
    EXPECT_EQ(sheet->pickerRowHeight(), 40);
    EXPECT_EQ(sheet->pickerValueFont()->pointSize(), 22);
}

TEST_F(GXStyleSheetTest, TheScaleIsClampedToItsLimits) {
    const auto sheet = create<GXStyleSheet>();
    const auto scaleAfter = [&sheet](double scale) {
        sheet->setTextScale(scale);
        return sheet->textScale();
    };
    EXPECT_EQ(scaleAfter(0.79), 0.8);
    EXPECT_EQ(scaleAfter(0.8), 0.8);
    EXPECT_EQ(scaleAfter(0.81), 0.81);
    EXPECT_EQ(scaleAfter(2.99), 2.99);
    EXPECT_EQ(scaleAfter(3), 3);
    EXPECT_EQ(scaleAfter(3.01), 3);
    EXPECT_EQ(scaleAfter(-std::numeric_limits<double>::infinity()), 0.8);
    EXPECT_EQ(scaleAfter(std::numeric_limits<double>::infinity()), 3);
}

TEST_F(GXStyleSheetTest, AScaleThatIsNoNumberIsIgnored) {
    const auto sheet = create<GXStyleSheet>();
    sheet->setTextScale(1.25);
    const Ref<GXStyleSheetFont> value = sheet->pickerValueFont();
    sheet->setTextScale(std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(sheet->textScale(), 1.25);
    EXPECT_EQ(sheet->pickerValueFont(), value);
}

} // namespace
} // namespace gx
