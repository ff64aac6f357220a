#include <gtest/gtest.h>

#include <UIImage.h>

#include "PageStub.h"
#include "WebCanvas.h"
#include "WebFont.h"

using namespace gx;
using namespace gx::web;

namespace {

struct WebCanvasTest : testing::Test {
    WebCanvasTest() { PageStub::reset(); }
    WebCanvas canvas;
    PageStub& page = PageStub::page();
    Ref<UIFont> font = WebFont::fontWithNumber_size(3, 22);
};

} // namespace

TEST_F(WebCanvasTest, TextsCarryTheirFontAndPlace) {
    canvas.translate(10, 20);
    canvas.drawText("km", *font, UIColor::labelColor(), {1, 2});
    ASSERT_EQ(page.texts.size(), 1U);
    EXPECT_EQ(page.texts[0].text, "km");
    EXPECT_EQ(page.texts[0].font, 3);
    EXPECT_EQ(page.texts[0].size, 22);
    EXPECT_EQ(page.texts[0].x, 11);
    EXPECT_EQ(page.texts[0].y, 22);
    EXPECT_EQ(page.texts[0].alpha, 1);
    EXPECT_FALSE(page.texts[0].isRow);
}

TEST_F(WebCanvasTest, ATextInTheSystemFontHasTheElementsFont) {
    canvas.setSystemFont(7);
    canvas.drawText("cm", *UIFont::systemFontOfSize_weight(17), UIColor::labelColor(), {});
    ASSERT_EQ(page.texts.size(), 1U);
    EXPECT_EQ(page.texts[0].font, 7);
    EXPECT_EQ(page.texts[0].size, 17);
}

TEST_F(WebCanvasTest, WhatIsScaledIsARowAndKnowsItsPlaceWithoutTheScale) {
    canvas.saveState();
    canvas.translate(100, 50);
    canvas.scale(0.5, 0.25);
    canvas.translate(-100, -20);
    canvas.multiplyAlpha(0.4);
    canvas.drawText("5", *font, UIColor::labelColor(), {110, 20});
    canvas.restoreState();
    canvas.drawText("km", *font, UIColor::labelColor(), {});
    ASSERT_EQ(page.texts.size(), 2U);
    EXPECT_TRUE(page.texts[0].isRow);
    EXPECT_EQ(page.texts[0].x, 105);
    EXPECT_EQ(page.texts[0].y, 50);
    EXPECT_EQ(page.texts[0].scaleX, 0.5);
    EXPECT_EQ(page.texts[0].scaleY, 0.25);
    EXPECT_EQ(page.texts[0].alpha, 0.4);
    EXPECT_EQ(page.texts[0].home, 0);
    EXPECT_FALSE(page.texts[1].isRow);
    EXPECT_EQ(page.texts[1].alpha, 1);
}

TEST_F(WebCanvasTest, RectanglesAreToldByWhatTheyAreFor) {
    canvas.fillRect(CGRectMake(1, 2, 30, 40), UIColor::tertiarySystemFillColor(), 8);
    canvas.fillRect(CGRectMake(1, 2, 30, 1), UIColor::secondaryLabelColor());
    canvas.fillRect(CGRectMake(1, 2, 3, 4), UIColor::systemBlueColor().colorWithAlphaComponent(0.25), 8);
    ASSERT_EQ(page.rects.size(), 3U);
    EXPECT_EQ(page.rects[0].shape, 0);
    EXPECT_EQ(page.rects[0].width, 30);
    EXPECT_EQ(page.rects[0].alpha, 1) << "the page says how faint it is";
    EXPECT_EQ(page.rects[1].shape, 1);
    EXPECT_EQ(page.rects[2].shape, 2);
    EXPECT_EQ(page.rects[2].alpha, 0.25);
}

TEST_F(WebCanvasTest, NothingIsSentThatCannotBeSeen) {
    canvas.drawText("", *font, UIColor::labelColor(), {});
    canvas.drawText("a", *font, UIColor::clearColor(), {});
    canvas.fillRect(CGRectZero, UIColor::blackColor());
    canvas.fillRect(CGRectMake(0, 0, 1, 1), UIColor::clearColor());
    canvas.multiplyAlpha(0);
    canvas.drawText("a", *font, UIColor::labelColor(), {});
    EXPECT_TRUE(page.texts.empty());
    EXPECT_TRUE(page.rects.empty());
}

TEST_F(WebCanvasTest, PicturesOfThePageGoByTheirHandlesAndPixelsNowhere) {
    canvas.drawImage(*UIImage::imageWithHostHandle_size(4, {24, 24}), CGRectMake(1, 2, 48, 48));
    canvas.drawImage(*UIImage::imageWithPixels_width_height_scale(std::vector<std::uint8_t>(4), 1, 1, 1), CGRectMake(0, 0, 1, 1));
    ASSERT_EQ(page.images.size(), 1U);
    EXPECT_EQ(page.images[0].handle, 4);
    EXPECT_EQ(page.images[0].x, 1);
    EXPECT_EQ(page.images[0].width, 48);
}

TEST_F(WebCanvasTest, RestoringTooOftenIsANoOp) {
    canvas.translate(5, 5);
    canvas.restoreState();
    canvas.drawText("a", *font, UIColor::labelColor(), {});
    ASSERT_EQ(page.texts.size(), 1U);
    EXPECT_EQ(page.texts[0].x, 5);
}
