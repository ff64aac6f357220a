#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "CanvasDrawing.h"
#include "QtCanvas.h"

using namespace gx;
using gx::qt::QtCanvas;
using gx::qt::QtTextEngine;
using gx::qt::QtTextImageCache;

namespace {

const UIColor red = UIColor::colorWithHex(0xff0000);

Ref<UIFont> valueFont() { return UIFont::systemFontOfSize_weight(22); }

class TextAtScale : public testing::TestWithParam<double> {};
INSTANTIATE_TEST_SUITE_P(OneTwoThree, TextAtScale, testing::Values(1.0, 2.0, 3.0));

TEST_P(TextAtScale, TextIsDrawnWhereItWasMeasured) {
    const double scale = GetParam();
    const CGSize size = QtTextEngine::shared()->sizeOfText_font("88", *valueFont());
    const QImage image = drawn(120, 60, scale, [](QtCanvas& canvas) { canvas.drawText("88", *valueFont(), red, {20, 10}); });
    const QRect ink = inkOf(image);
    EXPECT_GE(ink.left(), std::floor(20 * scale));
    EXPECT_LE(ink.right() + 1, std::ceil((20 + size.width) * scale) + 1);
    EXPECT_GE(ink.top(), std::floor(10 * scale));
    EXPECT_LE(ink.bottom() + 1, std::ceil((10 + size.height) * scale));
    // An 8 keeps little air to its sides, so the ink nearly fills the measure.
    EXPECT_GT(ink.width(), (size.width - 4) * scale);
    // Its foot lies an ascent, 2728/2816 of an em, below the top.
    EXPECT_NEAR(ink.bottom() + 1, (10 + 22 * 2728 / 2816.0) * scale, 1.5);
}

TEST_P(TextAtScale, ALongTextIsAsWideAsMeasured) {
    const double scale = GetParam();
    const std::string text(30, 'm');
    const double measured = QtTextEngine::shared()->sizeOfText_font(text, *valueFont()).width;
    const QImage image = drawn(700, 60, scale, [&](QtCanvas& canvas) { canvas.drawText(text, *valueFont(), red, {20, 10}); });
    const QRect ink = inkOf(image);
    EXPECT_GE(ink.left(), 20 * scale);
    EXPECT_LE(ink.right() + 1, (20 + measured) * scale + 1);
    EXPECT_GT(ink.width(), (measured - 4) * scale);
}

TEST_P(TextAtScale, TextAtItsOwnSizeLiesOnWholePixels) {
    const double scale = GetParam();
    const auto textAt = [scale](double x, double y) {
        return drawn(60, 50, scale, [&](QtCanvas& canvas) { canvas.drawText("42", *valueFont(), red, {x, y}); });
    };
    const QImage onPixels = textAt(10, 10);
    const QImage between = textAt(10 + 0.3 / scale, 10);
    EXPECT_EQ(onPixels, between);
}

TEST(QtCanvasText, SqueezedTextMovesEvenly) {
    const auto textAt = [](double y) {
        return drawn(60, 60, 1, [&](QtCanvas& canvas) {
            canvas.translate(10, y);
            canvas.scale(1, 0.5);
            canvas.drawText("42", *valueFont(), red, {0, 0});
        });
    };
    EXPECT_NE(textAt(10), textAt(10.3));
    const QRect ink = inkOf(textAt(10));
    // Digits are 2048 of 2816 units high: 16 points, here 8. They end (10 + 21.3 / 2) from the top.
    EXPECT_NEAR(ink.height(), 8, 2);
    EXPECT_NEAR(ink.bottom() + 1, 20.7, 1.5);
}

TEST(QtCanvasText, TheSameTextIsSetOnce) {
    const auto texts = std::make_shared<QtTextImageCache>();
    QtCanvas canvas(QtTextEngine::shared(), texts);
    QImage image = clearImage(100, 100, 2);
    const auto drawTwice = [](QtCanvas& used) {
        used.drawText("42", *valueFont(), red, {0, 0});
        used.multiplyAlpha(0.5);
        used.translate(3, 30);
        used.scale(1, 0.7);
        used.drawText("42", *valueFont(), red, {0, 0});
        used.scale(0.9, 0.7); // A row that turns away grows narrower, too.
        used.drawText("42", *valueFont(), red, {0, 0});
    };
    drawOn(image, canvas, drawTwice);
    drawOn(image, canvas, drawTwice);
    EXPECT_EQ(texts->missCount(), 1U);
    EXPECT_EQ(texts->hitCount(), 5U);
}

TEST(QtCanvasText, AnEnlargedTextIsSharp) {
    const QImage image = drawn(300, 300, 1, [](QtCanvas& canvas) {
        canvas.scale(7, 7);
        canvas.drawText("1", *valueFont(), red, {2, 2});
    });
    // The end of the 1 is clear within two pixels; one set at 22 points would fade over seven.
    const QRect ink = inkOf(image);
    const int stem = ink.right() - 4;
    EXPECT_EQ(qAlpha(image.pixel(stem, ink.bottom() - 2)), 255);
    EXPECT_EQ(qAlpha(image.pixel(stem, ink.bottom() + 1)), 0);
}

TEST(QtCanvasText, TextTooLargeForAnImageIsDrawnDirectly) {
    const auto texts = std::make_shared<QtTextImageCache>();
    QtCanvas canvas(QtTextEngine::shared(), texts);
    QImage image = clearImage(200, 200, 1);
    const Ref<UIFont> huge = UIFont::systemFontOfSize_weight(8000);
    drawOn(image, canvas, [&](QtCanvas& used) {
        used.multiplyAlpha(0.5);
        // The foot of the 1, whose stem is 700 to 900 points wide, lies at 7750.
        used.drawText("1", *huge, red, {-2200, -7600});
        used.fillRect(CGRectMake(0, 190, 10, 10), red);
    });
    EXPECT_EQ(texts->imageCount(), 0U);
    EXPECT_NEAR(qAlpha(image.pixel(100, 100)), 128, 1);
    EXPECT_EQ(qAlpha(image.pixel(100, 180)), 0);
    EXPECT_NEAR(qAlpha(image.pixel(5, 195)), 128, 1);
}

TEST(QtCanvasText, TextHasTheAlphaOfTheCanvas) {
    const auto strongest = [](double alpha) {
        const QImage image = drawn(60, 50, 2, [alpha](QtCanvas& canvas) {
            canvas.multiplyAlpha(alpha);
            canvas.drawText("1", *valueFont(), red, {10, 10});
        });
        int most = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) most = std::max(most, qAlpha(image.pixel(x, y)));
        }
        return most;
    };
    EXPECT_EQ(strongest(1), 255);
    EXPECT_NEAR(strongest(0.4), 102, 1);
    EXPECT_EQ(strongest(0), 0);
    EXPECT_EQ(strongest(std::numeric_limits<double>::quiet_NaN()), 0);
}

TEST(QtCanvasText, AChangingScaleNeedsFewImages) {
    const auto texts = std::make_shared<QtTextImageCache>();
    QtCanvas canvas(QtTextEngine::shared(), texts);
    QImage image = clearImage(100, 100, 3);
    drawOn(image, canvas, [](QtCanvas& used) {
        for (int hundredths = 26; hundredths <= 400; ++hundredths) {
            used.saveState();
            used.scale(hundredths / 100.0, hundredths / 100.0);
            used.drawText("42", *valueFont(), red, {0, 0});
            used.restoreState();
        }
    });
    // Up to a half, the whole, twice and four times the frame's own resolution.
    EXPECT_EQ(texts->missCount(), 4U);
}

} // namespace
