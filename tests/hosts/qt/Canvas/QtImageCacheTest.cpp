#include <gtest/gtest.h>

#include <QPainter>

#include "QtImageCache.h"

using namespace gx;
using gx::qt::QtImageCache;

namespace {

Ref<UIImage> imageOfSide(int side, std::uint8_t value = 100) {
    std::vector<std::uint8_t> pixels(static_cast<std::size_t>(side) * static_cast<std::size_t>(side) * 4, value);
    return UIImage::imageWithPixels_width_height_scale(std::move(pixels), side, side, 1);
}

TEST(QtImageCache, APictureIsConvertedOnce) {
    QtImageCache cache;
    const Ref<UIImage> picture = imageOfSide(16, 255);
    const QImage first = cache.imageOfSize(*picture, 16, 16);
    EXPECT_EQ(first.size(), QSize(16, 16));
    EXPECT_EQ(first.pixel(3, 3), 0xffffffffU);
    EXPECT_EQ(cache.imageOfSize(*picture, 16, 16).cacheKey(), first.cacheKey());
    EXPECT_EQ(cache.conversionCount(), 1U);
    EXPECT_EQ(cache.byteCount(), 1024U);
}

TEST(QtImageCache, HalvesAsFarAsTheSizeAllows) {
    QtImageCache cache;
    const Ref<UIImage> picture = imageOfSide(64);
    EXPECT_EQ(cache.imageOfSize(*picture, 33, 33).width(), 64);
    EXPECT_EQ(cache.imageOfSize(*picture, 32, 32).width(), 32);
    EXPECT_EQ(cache.imageOfSize(*picture, 15, 17).width(), 32);
    EXPECT_EQ(cache.imageOfSize(*picture, 5, 5).width(), 8);
    EXPECT_EQ(cache.imageOfSize(*picture, 0, 0).width(), 1);
    EXPECT_EQ(cache.imageOfSize(*picture, 200, 200).width(), 64);
    // 64, 32, 16, 8, 4, 2 and 1.
    EXPECT_EQ(cache.conversionCount(), 7U);
    EXPECT_EQ(cache.byteCount(), 4U * (4096 + 1024 + 256 + 64 + 16 + 4 + 1));
}

/// Whatever fills it: opaque and translucent colours, radii in fractions, and whole ellipses.
TEST(QtImageCache, ARoundedRectIsPixelForPixelWhatQtFills) {
    QtImageCache cache;
    for (int i = 0; i < 300; ++i) {
        const QSize size(20 + i * 7 % 300, 10 + i * 11 % 90);
        const double radius = 1 + i * 0.37;
        const float part = static_cast<float>(i) / 300;
        const QColor color = QColor::fromRgbF(part, 1 - part, 0.31F, i % 3 == 0 ? 1.0F : 0.05F + 0.9F * part);
        QImage filled(size, QImage::Format_ARGB32_Premultiplied);
        filled.fill(Qt::transparent);
        QPainter painter(&filled);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        painter.drawRoundedRect(filled.rect(), radius, radius);
        painter.end();
        ASSERT_EQ(cache.roundedRect(size, radius, radius, color), filled) << i;
    }
}

TEST(QtImageCache, APictureWithoutPixelsIsEmpty) {
    QtImageCache cache;
    EXPECT_TRUE(cache.imageOfSize(*UIImage::imageWithHostHandle_size(1, {16, 16}), 16, 16).isNull());
}

TEST(QtImageCache, ReleasesExpiredPictures) {
    QtImageCache cache;
    cache.imageOfSize(*imageOfSide(16), 16, 16);
    const Ref<UIImage> second = imageOfSide(8);
    cache.imageOfSize(*second, 8, 8);
    EXPECT_EQ(cache.pictureCount(), 1U);
    EXPECT_EQ(cache.byteCount(), 256U);
}

TEST(QtImageCache, ANewPictureAtAnOldAddressIsConverted) {
    QtImageCache cache;
    for (int i = 0; i < 50; ++i) {
        const auto value = static_cast<std::uint8_t>(i % 2 == 0 ? 0 : 255);
        const Ref<UIImage> picture = imageOfSide(4, value);
        EXPECT_EQ(qAlpha(cache.imageOfSize(*picture, 4, 4).pixel(0, 0)), value);
    }
}

TEST(QtImageCache, RemovesTheLeastRecentlyUsedPicture) {
    QtImageCache cache(2 * 256);
    const Ref<UIImage> first = imageOfSide(8);
    const Ref<UIImage> second = imageOfSide(8);
    const Ref<UIImage> third = imageOfSide(8);
    cache.imageOfSize(*first, 8, 8);
    cache.imageOfSize(*second, 8, 8);
    cache.imageOfSize(*first, 8, 8);
    cache.imageOfSize(*third, 8, 8);
    EXPECT_EQ(cache.pictureCount(), 2U);
    EXPECT_EQ(cache.conversionCount(), 3U);
    cache.imageOfSize(*first, 8, 8);
    EXPECT_EQ(cache.conversionCount(), 3U);
    cache.imageOfSize(*second, 8, 8);
    EXPECT_EQ(cache.conversionCount(), 4U);
}

TEST(QtImageCache, AHalvingThatOverflowsLeavesThePictureInUse) {
    QtImageCache cache(300);
    const Ref<UIImage> picture = imageOfSide(8);
    EXPECT_EQ(cache.imageOfSize(*picture, 4, 4).width(), 4);
    EXPECT_EQ(cache.pictureCount(), 1U);
    EXPECT_EQ(cache.byteCount(), 320U);
    cache.purge();
    EXPECT_EQ(cache.byteCount(), 0U);
}

} // namespace
