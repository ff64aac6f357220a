#include <gtest/gtest.h>

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
