#include "RecordingCanvas.h"

#include <limits>

#include <gtest/gtest.h>

using namespace gx;
using Calls = std::vector<std::string>;

namespace {
Ref<UIImage> twoByOne() { return UIImage::imageWithPixels_width_height_scale(std::vector<std::uint8_t>(8, 0), 2, 1, 1); }
} // namespace

TEST(UIGraphicsContext, ColoursArriveResolvedForTheLook) {
    RecordingCanvas canvas;
    const UIColor color = UIColor::colorWithLight_dark(UIColor::blackColor(), UIColor::whiteColor());
    EXPECT_EQ(canvas.userInterfaceStyle(), UIUserInterfaceStyle::Light);
    canvas.fillRect(CGRectMake(1, 2, 3, 4), color);
    canvas.setUserInterfaceStyle(UIUserInterfaceStyle::Dark);
    EXPECT_EQ(canvas.userInterfaceStyle(), UIUserInterfaceStyle::Dark);
    canvas.fillRect(CGRectMake(1, 2, 3, 4), color, 2);
    canvas.drawText("km", *UIFont::systemFontOfSize_weight(9), color, {5, 6});
    EXPECT_EQ(canvas.calls, (Calls{"fill 1 2 3 4 with 0 0 0 1", "fill 1 2 3 4 with 1 1 1 1 rounded 2", "text km at 5 6 with 1 1 1 1"}));
    EXPECT_EQ(canvas.fontSizes, std::vector<CGFloat>{9});
}

TEST(UIGraphicsContext, WhatIsClearInTheLookIsNotDrawn) {
    RecordingCanvas canvas;
    const UIColor onlyDark = UIColor::colorWithLight_dark(UIColor::clearColor(), UIColor::whiteColor());
    canvas.fillRect(CGRectMake(0, 0, 1, 1), onlyDark);
    canvas.drawText("km", *UIFont::systemFontOfSize_weight(9), onlyDark, {});
    EXPECT_EQ(canvas.calls, Calls{});
    canvas.setUserInterfaceStyle(UIUserInterfaceStyle::Dark);
    canvas.fillRect(CGRectMake(0, 0, 1, 1), onlyDark);
    EXPECT_EQ(canvas.calls, Calls{"fill 0 0 1 1 with 1 1 1 1"});
}

TEST(UIGraphicsContext, NothingIsDrawnIntoAnEmptyRectangle) {
    RecordingCanvas canvas;
    for (const CGRect rect :
         {CGRectZero, CGRectNull, CGRectMake(0, 0, 5, 0), CGRectMake(0, 0, std::numeric_limits<CGFloat>::quiet_NaN(), 5)}) {
        canvas.fillRect(rect, UIColor::blackColor());
        canvas.drawImage(*twoByOne(), rect);
    }
    EXPECT_EQ(canvas.calls, Calls{});
}

TEST(UIGraphicsContext, AnEmptyTextIsNotDrawn) {
    RecordingCanvas canvas;
    canvas.drawText("", *UIFont::systemFontOfSize_weight(9), UIColor::blackColor(), {});
    EXPECT_EQ(canvas.calls, Calls{});
}

TEST(UIGraphicsContext, AnImageIsDrawnIntoItsRectangle) {
    RecordingCanvas canvas;
    canvas.drawImage(*twoByOne(), CGRectMake(1, 2, 30, 40));
    EXPECT_EQ(canvas.calls, Calls{"image 2 by 1 in 1 2 30 40"});
}

TEST(UIGraphicsContext, APairOfImagesArrivesResolvedForTheLook) {
    RecordingCanvas canvas;
    const Ref<UIImage> larger = UIImage::imageWithPixels_width_height_scale(std::vector<std::uint8_t>(32, 0), 4, 2, 2);
    const Ref<UIImage> pair = UIImage::imageWithLight_dark(twoByOne(), larger);
    ASSERT_TRUE(pair);
    canvas.drawImage(*pair, CGRectMake(1, 2, 30, 40));
    canvas.setUserInterfaceStyle(UIUserInterfaceStyle::Dark);
    canvas.drawImage(*pair, CGRectMake(1, 2, 30, 40));
    EXPECT_EQ(canvas.calls, (Calls{"image 2 by 1 in 1 2 30 40", "image 4 by 2 in 1 2 30 40"}));
}
