#include "GalleryShapes.h"

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
GalleryShape square() { return GalleryShape::polygon({{2, 2}, {6, 2}, {6, 6}, {2, 6}}, 0); }

} // namespace

TEST(GalleryShape, DistancesAreInPointsAndNegativeInside) {
    const GalleryShape circle = GalleryShape::circle({10, 10}, 4);
    EXPECT_DOUBLE_EQ(circle.distance({10, 10}), -4);
    EXPECT_DOUBLE_EQ(circle.distance({13, 14}), 1) << "5 from the center";
    const GalleryShape line = GalleryShape::stroke({{0, 0}, {10, 0}, {10, 10}}, 2);
    EXPECT_DOUBLE_EQ(line.distance({5, 3}), 2);
    EXPECT_DOUBLE_EQ(line.distance({-4, -3}), 4) << "5 from the round end";
    EXPECT_DOUBLE_EQ(line.distance({12, 5}), 1);
    EXPECT_DOUBLE_EQ(square().distance({4, 3}), -1);
    EXPECT_DOUBLE_EQ(square().distance({4, 1}), 1);
    EXPECT_DOUBLE_EQ(square().distance({9, 10}), 5);
}

TEST(GalleryShape, GrownMovedAndScaledItIsAsManyPointsAway) {
    const GalleryShape circle = GalleryShape::circle({2, 0}, 1);
    EXPECT_DOUBLE_EQ(circle.grown(2).distance({7, 0}), 2);
    EXPECT_DOUBLE_EQ(circle.moved(3, 4).distance({5, 4}), -1);
    EXPECT_DOUBLE_EQ(circle.scaled(3).distance({6, 0}), -3);
}

TEST(GalleryShape, AFilletFillsTheCreaseAndNothingElse) {
    const GalleryShape left = GalleryShape::circle({0, 0}, 5);
    const GalleryShape right = GalleryShape::circle({8, 0}, 5);
    EXPECT_DOUBLE_EQ(GalleryShape::united({left, right}, 0).distance({4, 3}), 0) << "both edges pass there";
    EXPECT_DOUBLE_EQ(GalleryShape::united({left, right}, 2).distance({4, 3}), -0.5) << "a quarter of the fillet";
    EXPECT_DOUBLE_EQ(GalleryShape::united({left, right}, 2).distance({-7, 0}), 2);
}

TEST(GalleryShape, ItsBoundsReachAsFarAsItDoes) {
    EXPECT_EQ(GalleryShape::circle({10, 20}, 4).bounds(), CGRectMake(6, 16, 8, 8));
    EXPECT_EQ(GalleryShape::stroke({{0, 0}, {10, 5}}, 2).bounds(), CGRectMake(-1, -1, 12, 7));
    EXPECT_EQ(square().grown(1).bounds(), CGRectMake(1, 1, 6, 6));
}

TEST(GalleryShape, AnArcGoesFromTheRightClockwise) {
    const std::vector<CGPoint> arc = galleryArc({10, 20}, 5, 0, 90);
    EXPECT_NEAR(arc.front().x, 15, 1e-9);
    EXPECT_NEAR(arc.front().y, 20, 1e-9);
    EXPECT_NEAR(arc.back().x, 10, 1e-9);
    EXPECT_NEAR(arc.back().y, 25, 1e-9) << "down, since y grows downward";
}

TEST(GallerySketch, AFilledShapeCoversItsPixelsAndNoOthers) {
    GallerySketch sketch(8, 1);
    sketch.fill(square(), 0x102030);
    const Ref<UIImage> image = sketch.image();
    ASSERT_TRUE(image);
    EXPECT_EQ(image->size(), CGSizeMake(8, 8));
    for (int y = 0; y < 8; ++y) {
        for (int x = 0; x < 8; ++x) {
            const bool isInside = x >= 2 && x < 6 && y >= 2 && y < 6;
            EXPECT_EQ(colorAt(image, x, y), isInside ? (Color{0x10, 0x20, 0x30, 255}) : (Color{0, 0, 0, 0})) << x << ", " << y;
        }
    }
}

TEST(GallerySketch, AScaleGivesMorePixelsAPoint) {
    GallerySketch sketch(8, 2);
    sketch.fill(square(), 0xFFFFFF);
    const Ref<UIImage> image = sketch.image();
    EXPECT_EQ(image->pixelWidth(), 16);
    EXPECT_EQ(image->size(), CGSizeMake(8, 8));
    EXPECT_EQ(colorAt(image, 3, 8)[3], 0);
    EXPECT_EQ(colorAt(image, 4, 8)[3], 255);
    EXPECT_EQ(colorAt(image, 11, 8)[3], 255);
    EXPECT_EQ(colorAt(image, 12, 8)[3], 0);
}

TEST(GallerySketch, AnEdgeWithinAPixelCoversItInPartInTheFullColor) {
    GallerySketch sketch(8, 1);
    sketch.fill(square().moved(0.5, 0), 0x4080C0);
    const Ref<UIImage> image = sketch.image();
    EXPECT_EQ(colorAt(image, 2, 4), (Color{0x40, 0x80, 0xC0, 128})) << "half of it";
    EXPECT_EQ(colorAt(image, 3, 4), (Color{0x40, 0x80, 0xC0, 255}));
    EXPECT_EQ(colorAt(image, 6, 4), (Color{0x40, 0x80, 0xC0, 128}));
    EXPECT_EQ(colorAt(image, 7, 4), (Color{0, 0, 0, 0}));
}

TEST(GallerySketch, WhatComesLaterLiesOnTopAndErasingClears) {
    GallerySketch sketch(8, 1);
    sketch.fill(square(), 0xFF0000);
    sketch.fill(square().moved(2, 0), 0x0000FF);
    sketch.erase(square().moved(0, 2));
    const Ref<UIImage> image = sketch.image();
    EXPECT_EQ(colorAt(image, 3, 3), (Color{255, 0, 0, 255}));
    EXPECT_EQ(colorAt(image, 4, 3), (Color{0, 0, 255, 255}));
    EXPECT_EQ(colorAt(image, 3, 4), (Color{0, 0, 0, 0}));
    EXPECT_EQ(colorAt(image, 6, 4), (Color{0, 0, 255, 255}));
}

TEST(GallerySketch, WhatReachesBeyondThePictureIsCutOff) {
    GallerySketch sketch(4, 1);
    sketch.fill(GalleryShape::circle({0, 0}, 100), 0x00FF00);
    sketch.fill(GalleryShape::circle({-50, 90}, 10), 0xFF0000);
    const Ref<UIImage> image = sketch.image();
    for (int i = 0; i < 16; ++i) EXPECT_EQ(colorAt(image, i % 4, i / 4), (Color{0, 255, 0, 255}));
}

TEST(GallerySketch, AShapeWithoutPointsCoversNothing) {
    GallerySketch sketch(4, 1);
    sketch.fill(GalleryShape::stroke({}, 4), 0xFF0000);
    sketch.fill(GalleryShape::polygon({}, 4), 0xFF0000);
    sketch.fill(GalleryShape::united({}, 4), 0xFF0000);
    EXPECT_EQ(sketch.image()->pixels(), std::vector<std::uint8_t>(64, 0));
}

TEST(GallerySketch, WithoutSizeThereIsNoImage) {
    for (const auto& [side, scale] : {std::pair{0, 1}, {1, 0}, {-2, -2}}) {
        GallerySketch sketch(side, scale);
        sketch.fill(square(), 0xFF0000);
        EXPECT_FALSE(sketch.image());
    }
}
