#include <gtest/gtest.h>

#include "PageStub.h"
#include "WebFont.h"
#include "WebTextEngine.h"

using namespace gx;
using namespace gx::web;

namespace {

struct WebTextEngineTest : testing::Test {
    WebTextEngineTest() { PageStub::reset(); }
    WebTextEngine engine;
    std::vector<std::string>& measured = PageStub::page().measured;
    Ref<UIFont> font = WebFont::fontWithNumber_size(3, 22);
};

} // namespace

TEST_F(WebTextEngineTest, ATextIsMeasuredByThePageOnce) {
    EXPECT_EQ(engine.sizeOfText_font("abc", *font), CGSizeMake(30, 22));
    EXPECT_EQ(engine.sizeOfText_font("abc", *font), CGSizeMake(30, 22));
    EXPECT_EQ(measured, (std::vector<std::string>{"3:abc"}));
}

TEST_F(WebTextEngineTest, EachFontAndSizeIsMeasuredOnItsOwn) {
    engine.setSystemFont(8);
    engine.sizeOfText_font("a", *font);
    EXPECT_EQ(engine.sizeOfText_font("a", *WebFont::fontWithNumber_size(3, 30)), CGSizeMake(10, 30));
    engine.sizeOfText_font("a", *WebFont::fontWithNumber_size(4, 22));
    engine.sizeOfText_font("a", *UIFont::systemFontOfSize_weight(22));
    EXPECT_EQ(measured, (std::vector<std::string>{"3:a", "3:a", "4:a", "8:a"}));
}

TEST_F(WebTextEngineTest, LateFontsHaveEverythingMeasuredAgain) {
    engine.sizeOfText_font("a", *font);
    PageStub::page().widthOfByte = 12;
    EXPECT_EQ(engine.sizeOfText_font("a", *font), CGSizeMake(10, 22));
    engine.forgetMeasures();
    EXPECT_EQ(engine.sizeOfText_font("a", *font), CGSizeMake(12, 22));
}

TEST_F(WebTextEngineTest, ItKeepsFourThousandTextsAndThenBeginsAgain) {
    for (int i = 0; i < 4000; ++i) engine.sizeOfText_font(std::to_string(i), *font);
    engine.sizeOfText_font("0", *font);
    EXPECT_EQ(measured.size(), 4000U);
    engine.sizeOfText_font("one more", *font);
    engine.sizeOfText_font("0", *font);
    EXPECT_EQ(measured.size(), 4002U);
}
