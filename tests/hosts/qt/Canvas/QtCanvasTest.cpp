#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "CanvasDrawing.h"
#include "QtCanvas.h"

using namespace gx;
using gx::qt::QtCanvas;

namespace {

const UIColor red = UIColor::colorWithHex(0xff0000);

Ref<UIFont> valueFont() { return UIFont::systemFontOfSize_weight(22); }

/// As many pixels a side, all of one colour.
Ref<UIImage> plainImage(int side, std::uint8_t redness, std::uint8_t alpha, double scale = 1) {
    std::vector<std::uint8_t> pixels;
    for (int i = 0; i < side * side; ++i) pixels.insert(pixels.end(), {redness, 0, 0, alpha});
    return UIImage::imageWithPixels_width_height_scale(std::move(pixels), side, side, scale);
}

class AtScale : public testing::TestWithParam<double> {};
INSTANTIATE_TEST_SUITE_P(OneTwoThree, AtScale, testing::Values(1.0, 2.0, 3.0));

TEST_P(AtScale, ARectangleFillsItsPoints) {
    const double scale = GetParam();
    const QImage image = drawn(40, 30, scale, [](QtCanvas& canvas) { canvas.fillRect(CGRectMake(5, 6, 20, 10), red); });
    const auto pixels = [scale](double points) { return static_cast<int>(points * scale); };
    EXPECT_EQ(inkOf(image), QRect(pixels(5), pixels(6), pixels(20), pixels(10)));
    EXPECT_EQ(image.pixel(pixels(10), pixels(10)), 0xffff0000U);
}

TEST(QtCanvas, TransformsAddUp) {
    const QImage image = drawn(100, 100, 2, [](QtCanvas& canvas) {
        canvas.translate(10, 20);
        canvas.scale(2, 0.5);
        canvas.translate(5, 4);
        canvas.fillRect(CGRectMake(0, 0, 10, 10), red);
    });
    EXPECT_EQ(inkOf(image), QRect(40, 44, 40, 10));
}

TEST(QtCanvas, ANegativeScaleMirrors) {
    const QImage image = drawn(60, 60, 1, [](QtCanvas& canvas) {
        canvas.translate(50, 0);
        canvas.scale(-1, 1);
        canvas.fillRect(CGRectMake(0, 50, 10, 10), red);
        canvas.drawText("L", *valueFont(), red, {0, 0});
    });
    EXPECT_EQ(qAlpha(image.pixel(45, 55)), 255);
    EXPECT_EQ(qAlpha(image.pixel(55, 55)), 0);
    const QImage letter = image.copy(0, 0, 60, 40);
    const QRect ink = inkOf(letter);
    EXPECT_GT(qAlpha(letter.pixel(ink.right() - 1, ink.top() + 2)), 100); // The stem.
    EXPECT_EQ(qAlpha(letter.pixel(ink.left() + 1, ink.top() + 2)), 0);
}

TEST(QtCanvas, AlphaMultiplies) {
    const QImage image = drawn(50, 50, 1, [](QtCanvas& canvas) {
        canvas.multiplyAlpha(0.5);
        canvas.fillRect(CGRectMake(0, 0, 10, 10), red);
        canvas.multiplyAlpha(0.5);
        canvas.fillRect(CGRectMake(10, 0, 10, 10), red);
        canvas.fillRect(CGRectMake(20, 0, 10, 10), red.colorWithAlphaComponent(0.5));
        canvas.drawImage(*plainImage(10, 255, 255), CGRectMake(30, 0, 10, 10));
        canvas.fillRect(CGRectMake(0, 20, 20, 20), red, 4);
    });
    EXPECT_NEAR(qAlpha(image.pixel(5, 5)), 128, 1);
    EXPECT_NEAR(qAlpha(image.pixel(15, 5)), 64, 1);
    EXPECT_NEAR(qAlpha(image.pixel(25, 5)), 32, 1);
    EXPECT_NEAR(qAlpha(image.pixel(35, 5)), 64, 1);
    EXPECT_NEAR(qAlpha(image.pixel(10, 30)), 64, 1);
}

TEST(QtCanvas, RestoresTransformClipAndAlpha) {
    const QImage image = drawn(50, 50, 1, [](QtCanvas& canvas) {
        canvas.saveState();
        canvas.translate(10, 10);
        canvas.clipToRect(CGRectMake(0, 0, 5, 5));
        canvas.multiplyAlpha(0.5);
        canvas.fillRect(CGRectMake(0, 0, 20, 20), red);
        canvas.restoreState();
        canvas.fillRect(CGRectMake(30, 30, 10, 10), red);
        canvas.restoreState(); // One too many changes nothing.
    });
    EXPECT_EQ(inkOf(image.copy(0, 0, 30, 30)), QRect(10, 10, 5, 5));
    EXPECT_NEAR(qAlpha(image.pixel(12, 12)), 128, 1);
    EXPECT_EQ(inkOf(image.copy(30, 30, 20, 20)), QRect(0, 0, 10, 10));
    EXPECT_EQ(qAlpha(image.pixel(35, 35)), 255);
}

TEST_P(AtScale, ClipsIntersect) {
    const double scale = GetParam();
    const QImage image = drawn(60, 60, scale, [](QtCanvas& canvas) {
        canvas.clipToRect(CGRectMake(10, 10, 20, 20));
        canvas.clipToRect(CGRectMake(20, 0, 40, 20));
        canvas.fillRect(CGRectMake(0, 0, 60, 60), red);
        canvas.drawText("MMMMM", *valueFont(), red, {0, 0});
        canvas.drawImage(*plainImage(4, 255, 255), CGRectMake(0, 0, 60, 60));
        canvas.fillRect(CGRectMake(0, 0, 60, 60), red, 8);
    });
    const auto pixels = [scale](double points) { return static_cast<int>(points * scale); };
    EXPECT_EQ(inkOf(image), QRect(pixels(20), pixels(10), pixels(10), pixels(10)));
}

TEST(QtCanvas, AnEmptyClipHidesEverything) {
    const QImage image = drawn(30, 30, 1, [](QtCanvas& canvas) {
        canvas.clipToRect(CGRectMake(0, 0, 10, 10));
        canvas.clipToRect(CGRectMake(20, 20, 10, 10));
        canvas.fillRect(CGRectMake(0, 0, 30, 30), red);
        canvas.drawText("M", *valueFont(), red, {0, 0});
    });
    EXPECT_TRUE(inkOf(image).isEmpty());
}

TEST(QtCanvas, KeepsTheHostsClipAndTransform) {
    QImage image = clearImage(60, 60, 1);
    QPainter painter(&image);
    painter.setClipRect(10, 10, 30, 30);
    painter.translate(20, 20);
    QtCanvas canvas;
    canvas.begin(painter);
    canvas.fillRect(CGRectMake(0, 0, 100, 100), red);
    canvas.end();
    EXPECT_EQ(inkOf(image), QRect(20, 20, 20, 20));
    // The painter is as it was.
    EXPECT_EQ(painter.worldTransform(), QTransform::fromTranslate(20, 20));
    EXPECT_EQ(painter.clipBoundingRect(), QRectF(-10, -10, 30, 30));
}

TEST(QtCanvas, KeepsTheRotationOfAPainter) {
    QImage image = clearImage(60, 60, 1);
    QPainter painter(&image);
    painter.translate(50, 0);
    painter.rotate(90);
    QtCanvas canvas;
    canvas.begin(painter);
    canvas.fillRect(CGRectMake(10, 20, 30, 5), red);
    canvas.end();
    EXPECT_EQ(inkOf(image), QRect(25, 10, 5, 30));
}

TEST(QtCanvas, AThinRectangleIsOnePixelThick) {
    const QImage image = drawn(30, 30, 1, [](QtCanvas& canvas) { canvas.fillRect(CGRectMake(0, 10.1, 30, 0.3), red); });
    EXPECT_EQ(inkOf(image), QRect(0, 10, 30, 1));
    EXPECT_EQ(image.pixel(5, 10), 0xffff0000U);
}

TEST(QtCanvas, RoundedCornersAreClear) {
    const QImage image = drawn(40, 40, 2, [](QtCanvas& canvas) { canvas.fillRect(CGRectMake(0, 0, 40, 40), red, 10); });
    EXPECT_EQ(qAlpha(image.pixel(1, 1)), 0);
    EXPECT_EQ(qAlpha(image.pixel(78, 78)), 0);
    EXPECT_EQ(qAlpha(image.pixel(40, 1)), 255);
    EXPECT_EQ(qAlpha(image.pixel(1, 40)), 255);
    // 10 points are 20 pixels; the arc passes 20 − 20 / √2 = 5.9 pixels from both edges.
    EXPECT_EQ(qAlpha(image.pixel(4, 4)), 0);
    EXPECT_EQ(qAlpha(image.pixel(7, 7)), 255);
}

TEST(QtCanvas, NaNDrawsNothing) {
    const double none = std::numeric_limits<double>::quiet_NaN();
    const double endless = std::numeric_limits<double>::infinity();
    const QImage image = drawn(30, 30, 1, [&](QtCanvas& canvas) {
        canvas.drawText("M", *valueFont(), red, {none, 0});
        canvas.drawText("M", *valueFont(), red, {0, endless});
        canvas.drawImage(*plainImage(4, 255, 255), CGRectMake(endless, 0, 10, 10));
        canvas.scale(0, 1);
        canvas.drawText("M", *valueFont(), red, {5, 5});
    });
    EXPECT_TRUE(inkOf(image).isEmpty());
}

TEST(QtCanvas, AnInfiniteRectangleFillsTheClip) {
    const double endless = std::numeric_limits<double>::infinity();
    const QImage image = drawn(30, 30, 1, [&](QtCanvas& canvas) {
        canvas.clipToRect(CGRectMake(5, 5, 10, 10));
        canvas.fillRect(CGRectMake(-1e300, -1e300, endless, endless), red);
        canvas.fillRect(CGRectMake(-1e9, -1e9, 2e9, 2e9), red);
    });
    EXPECT_EQ(inkOf(image), QRect(5, 5, 10, 10));
}

TEST(QtCanvas, AnImageFillsItsRectangle) {
    const QImage image = drawn(60, 60, 2, [](QtCanvas& canvas) {
        canvas.drawImage(*plainImage(20, 200, 255, 2), CGRectMake(5, 5, 10, 10));
        canvas.drawImage(*plainImage(20, 200, 255, 2), CGRectMake(30, 30, 25, 15));
    });
    EXPECT_EQ(inkOf(image.copy(0, 0, 50, 50)), QRect(10, 10, 20, 20));
    EXPECT_EQ(inkOf(image.copy(50, 50, 70, 70)), QRect(10, 10, 50, 30));
    EXPECT_EQ(image.pixel(20, 20), 0xffc80000U);
    EXPECT_EQ(image.pixel(80, 80), 0xffc80000U);
}

TEST(QtCanvas, AnImageMuchSmallerShowsAllItsPixels) {
    // Black and white columns in turn: smaller, they are grey, and not the columns that were hit.
    std::vector<std::uint8_t> pixels;
    for (int i = 0; i < 64 * 64; ++i) {
        const std::uint8_t value = i % 2 == 0 ? 0 : 255;
        pixels.insert(pixels.end(), {value, value, value, 255});
    }
    const Ref<UIImage> stripes = UIImage::imageWithPixels_width_height_scale(std::move(pixels), 64, 64, 1);
    const QImage image = drawn(10, 10, 1, [&](QtCanvas& canvas) { canvas.drawImage(*stripes, CGRectMake(0, 0, 9, 9)); });
    for (int x = 1; x < 8; ++x) EXPECT_NEAR(qRed(image.pixel(x, 4)), 128, 8) << x;
}

TEST(QtCanvas, WithoutAFrameNothingHappens) {
    QtCanvas canvas;
    canvas.fillRect(CGRectMake(0, 0, 10, 10), red);
    canvas.drawText("M", *valueFont(), red, {0, 0});
    canvas.end();
    QImage image = clearImage(20, 20, 1);
    drawOn(image, canvas, [](QtCanvas& used) { used.fillRect(CGRectMake(0, 0, 10, 10), red); });
    EXPECT_EQ(inkOf(image), QRect(0, 0, 10, 10));
}

} // namespace
