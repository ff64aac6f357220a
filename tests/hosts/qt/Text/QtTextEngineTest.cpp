#include <gtest/gtest.h>

#include "QtTextEngine.h"

using namespace gx;
using gx::qt::QtTextEngine;

namespace {

struct QtTextEngineTest : testing::Test {
    QtTextEngineTest() { engine->setInterfaceFamily("Inter"); }
    double width(std::string_view text, double size, UIFontWeight weight = UIFontWeight::Regular) {
        return engine->sizeOfText_font(text, *UIFont::systemFontOfSize_weight(size, weight)).width;
    }
    Ref<QtTextEngine> engine = create<QtTextEngine>();
};

// The font's own tables: 2816 units an em, ascender 2728, descender −680; "0" is 1760 wide, "m"
// 2448 and in bold 2568.
// Qt keeps 64ths of a pixel of a thousand.
constexpr double precision = 1e-3;

TEST_F(QtTextEngineTest, AWidthIsTheAdvanceOfTheFont) {
    EXPECT_NEAR(width("0", 22), 13.75, precision);
    EXPECT_NEAR(width("m", 22), 19.125, precision);
}

TEST_F(QtTextEngineTest, ASizeMayBeAFractionOfAPoint) {
    EXPECT_NEAR(width("0", 22.4), 14.0, precision);
    EXPECT_NEAR(width("0", 22.5), 14.0625, precision);
    EXPECT_NEAR(width("0", 0.8), 0.5, precision);
}

TEST_F(QtTextEngineTest, EachWeightHasItsOwnWidths) {
    EXPECT_NEAR(width("m", 22, UIFontWeight::Medium), 2488 * 22 / 2816.0, precision);
    EXPECT_NEAR(width("m", 22, UIFontWeight::Semibold), 2528 * 22 / 2816.0, precision);
    EXPECT_NEAR(width("m", 22, UIFontWeight::Bold), 20.0625, precision);
}

TEST_F(QtTextEngineTest, ALineIsAsHighAsAscentAndDescentWhateverTheText) {
    const Ref<UIFont> font = UIFont::systemFontOfSize_weight(22);
    EXPECT_NEAR(engine->sizeOfText_font("0", *font).height, 26.625, precision);
    EXPECT_NEAR(engine->sizeOfText_font("", *font).height, 26.625, precision);
    EXPECT_EQ(engine->sizeOfText_font("", *font).width, 0);
    EXPECT_NEAR(engine->faceOfFont(*font).ascent, 2728 / 2816.0, precision);
}

TEST_F(QtTextEngineTest, ATextIsMeasuredOnceForAllSizes) {
    width("10:42", 22);
    width("10:42", 22);
    width("10:42", 17.5);
    EXPECT_EQ(engine->measureCount(), 1U);
    width("10:42", 22, UIFontWeight::Bold);
    EXPECT_EQ(engine->measureCount(), 2U);
}

TEST_F(QtTextEngineTest, NumbersTakeNoPlaceInTheCache) {
    EXPECT_EQ(width("0", 22), width("0", 11) * 2);
    for (int i = 0; i < 1000; ++i) width(std::to_string(i), 10);
    EXPECT_EQ(engine->measureCount(), 0U);
}

TEST_F(QtTextEngineTest, BoundsTheNumberOfCachedTexts) {
    for (int i = 0; i < 4097; ++i) width(std::to_string(i) + " h", 10);
    EXPECT_EQ(engine->measureCount(), 4097U);
    width("4096 h", 10);
    width("1 h", 10);
    EXPECT_EQ(engine->measureCount(), 4097U);
    width("0 h", 10); // The one that was unused for longest has gone.
    EXPECT_EQ(engine->measureCount(), 4098U);
}

TEST_F(QtTextEngineTest, OneFamilyByTwoNamesIsMeasuredAlike) {
    const Ref<UIFont> named = UIFont::fontWithName_size_weight("Inter", 22, UIFontWeight::Bold);
    EXPECT_EQ(engine->sizeOfText_font("88 km", *named).width, width("88 km", 22, UIFontWeight::Bold));
}

TEST_F(QtTextEngineTest, AnotherInterfaceFamilyIsMeasuredAgain) {
    const Ref<UIFont> font = UIFont::systemFontOfSize_weight(22);
    const auto before = engine->faceOfFont(*font).identifier;
    width("0 h", 22);
    engine->setInterfaceFamily("Inter Semi Bold");
    EXPECT_NE(engine->faceOfFont(*font).identifier, before);
    EXPECT_EQ(engine->interfaceFamily(), "Inter Semi Bold");
    width("0 h", 22);
    EXPECT_EQ(engine->measureCount(), 2U);
}

TEST_F(QtTextEngineTest, InvalidUTF8HasAWidth) {
    EXPECT_GT(width("\xff\xfe", 22), 0);
    EXPECT_GT(width(std::string_view("0\0"
                                     "0",
                                     3),
                    22),
              27);
}

} // namespace
