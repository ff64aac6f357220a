#include "IconCanvas.h"

#include <gtest/gtest.h>

using namespace gallery;
using namespace gx;

namespace {

using Color = std::vector<int>; // Red, green, blue, alpha.

Color colorAt(const Ref<UIImage>& image, int x, int y) {
    const auto first = static_cast<std::size_t>(y * image->pixelWidth() + x) * 4;
    const auto& pixels = image->pixels();
    return {pixels[first], pixels[first + 1], pixels[first + 2], pixels[first + 3]};
}

/// Corners at (2, 2) and (6, 6).
SmoothShape square() { return SmoothShape::polygon({{2, 2}, {6, 2}, {6, 6}, {2, 6}}, 0); }

} // namespace

TEST(IconCanvas, AFilledShapeCoversItsPixelsAndNoOthers) {
    IconCanvas canvas(8, 1);
    canvas.fill(square(), 0x102030);
    const Ref<UIImage> image = canvas.image();
    ASSERT_TRUE(image);
    EXPECT_EQ(image->size(), CGSizeMake(8, 8));
    for (int y = 0; y < 8; ++y) {
        for (int x = 0; x < 8; ++x) {
            const bool isInside = x >= 2 && x < 6 && y >= 2 && y < 6;
            EXPECT_EQ(colorAt(image, x, y), isInside ? (Color{0x10, 0x20, 0x30, 255}) : (Color{0, 0, 0, 0})) << x << ", " << y;
        }
    }
}

TEST(IconCanvas, AScaleGivesMorePixelsAPoint) {
    IconCanvas canvas(8, 2);
    canvas.fill(square(), 0xFFFFFF);
    const Ref<UIImage> image = canvas.image();
    EXPECT_EQ(image->pixelWidth(), 16);
    EXPECT_EQ(image->size(), CGSizeMake(8, 8));
    EXPECT_EQ(colorAt(image, 3, 8)[3], 0);
    EXPECT_EQ(colorAt(image, 4, 8)[3], 255);
    EXPECT_EQ(colorAt(image, 11, 8)[3], 255);
    EXPECT_EQ(colorAt(image, 12, 8)[3], 0);
}

TEST(IconCanvas, AnEdgeWithinAPixelCoversItInPartInTheFullColor) {
    IconCanvas canvas(8, 1);
    canvas.fill(square().moved(0.5, 0), 0x4080C0);
    const Ref<UIImage> image = canvas.image();
    EXPECT_EQ(colorAt(image, 2, 4), (Color{0x40, 0x80, 0xC0, 128})) << "half of it";
    EXPECT_EQ(colorAt(image, 3, 4), (Color{0x40, 0x80, 0xC0, 255}));
    EXPECT_EQ(colorAt(image, 6, 4), (Color{0x40, 0x80, 0xC0, 128}));
    EXPECT_EQ(colorAt(image, 7, 4), (Color{0, 0, 0, 0}));
}

TEST(IconCanvas, WhatComesLaterLiesOnTopAndErasingClears) {
    IconCanvas canvas(8, 1);
    canvas.fill(square(), 0xFF0000);
    canvas.fill(square().moved(2, 0), 0x0000FF);
    canvas.erase(square().moved(0, 2));
    const Ref<UIImage> image = canvas.image();
    EXPECT_EQ(colorAt(image, 3, 3), (Color{255, 0, 0, 255}));
    EXPECT_EQ(colorAt(image, 4, 3), (Color{0, 0, 255, 255}));
    EXPECT_EQ(colorAt(image, 3, 4), (Color{0, 0, 0, 0}));
    EXPECT_EQ(colorAt(image, 6, 4), (Color{0, 0, 255, 255}));
}

TEST(IconCanvas, WhatReachesBeyondThePictureIsCutOff) {
    IconCanvas canvas(4, 1);
    canvas.fill(SmoothShape::circle({0, 0}, 100), 0x00FF00);
    canvas.fill(SmoothShape::circle({-50, 90}, 10), 0xFF0000);
    const Ref<UIImage> image = canvas.image();
    for (int i = 0; i < 16; ++i) EXPECT_EQ(colorAt(image, i % 4, i / 4), (Color{0, 255, 0, 255}));
}

TEST(IconCanvas, AShapeWithoutPointsCoversNothing) {
    IconCanvas canvas(4, 1);
    canvas.fill(SmoothShape::stroke({}, 4), 0xFF0000);
    canvas.fill(SmoothShape::polygon({}, 4), 0xFF0000);
    canvas.fill(SmoothShape::united({}, 4), 0xFF0000);
    EXPECT_EQ(canvas.image()->pixels(), std::vector<std::uint8_t>(64, 0));
}

TEST(IconCanvas, WithoutSizeThereIsNoImage) {
    for (const auto& [side, scale] : {std::pair{0, 1}, {1, 0}, {-2, -2}}) {
        IconCanvas canvas(side, scale);
        canvas.fill(square(), 0xFF0000);
        EXPECT_FALSE(canvas.image());
    }
}
