#include "UIImage.h"

#include <limits>

#include <gtest/gtest.h>

using namespace gx;

namespace {

std::vector<std::uint8_t> bytes(std::size_t count) { return std::vector<std::uint8_t>(count, 7); }

struct Loader : UIImageLoader {
    std::string asked;
    Ref<UIImage> imageWithContentsOfFile(const std::string& path) override {
        asked = path;
        if (path != "sun.png") return nullptr;
        return UIImage::imageWithPixels_width_height_scale(bytes(4), 1, 1, 1);
    }
};

struct Image : testing::Test {
    ~Image() override { UIImageLoader::setShared(nullptr); }
};

} // namespace

TEST_F(Image, ItsSizeInPointsIsItsPixelsByItsScale) {
    const Ref<UIImage> image = UIImage::imageWithPixels_width_height_scale(bytes(24), 3, 2, 2);
    ASSERT_TRUE(image);
    EXPECT_EQ(image->pixelWidth(), 3);
    EXPECT_EQ(image->pixelHeight(), 2);
    EXPECT_EQ(image->scale(), 2);
    EXPECT_EQ(image->size(), CGSizeMake(1.5, 1));
    EXPECT_EQ(image->pixels(), bytes(24));
}

TEST_F(Image, ThePixelsMustFitTheSize) {
    EXPECT_FALSE(UIImage::imageWithPixels_width_height_scale(bytes(23), 3, 2, 1));
    EXPECT_FALSE(UIImage::imageWithPixels_width_height_scale(bytes(25), 3, 2, 1));
    EXPECT_FALSE(UIImage::imageWithPixels_width_height_scale({}, 3, 2, 1));
    EXPECT_TRUE(UIImage::imageWithPixels_width_height_scale(bytes(24), 2, 3, 1));
}

TEST_F(Image, SizesMustBeAboveZero) {
    EXPECT_FALSE(UIImage::imageWithPixels_width_height_scale({}, 0, 0, 1));
    EXPECT_FALSE(UIImage::imageWithPixels_width_height_scale({}, 0, 5, 1));
    EXPECT_FALSE(UIImage::imageWithPixels_width_height_scale(bytes(4), -1, -1, 1));
    EXPECT_FALSE(UIImage::imageWithPixels_width_height_scale(bytes(4), 1, 1, 0));
    EXPECT_FALSE(UIImage::imageWithPixels_width_height_scale(bytes(4), 1, 1, -2));
    EXPECT_FALSE(UIImage::imageWithPixels_width_height_scale(bytes(4), 1, 1, std::numeric_limits<double>::quiet_NaN()));
    EXPECT_FALSE(UIImage::imageWithPixels_width_height_scale(bytes(4), 1, 1, std::numeric_limits<double>::infinity()))
        << "its size in points would be 0";
}

TEST_F(Image, TheLargestSizesAreRefusedAndNotWrappedAround) {
    EXPECT_FALSE(UIImage::imageWithPixels_width_height_scale({}, 2147483647, 2147483647, 1));
    EXPECT_FALSE(UIImage::imageWithPixels_width_height_scale({}, 65536, 16384, 1)) << "2^32 bytes";
}

TEST_F(Image, AScreenReaderSaysItsLabel) {
    const Ref<UIImage> image = UIImage::imageWithPixels_width_height_scale(bytes(4), 1, 1, 1);
    EXPECT_EQ(image->accessibilityLabel(), std::nullopt);
    image->setAccessibilityLabel("Sunny");
    EXPECT_EQ(image->accessibilityLabel(), "Sunny");
}

TEST_F(Image, WithoutAHostNoFileIsRead) {
    EXPECT_FALSE(UIImageLoader::shared());
    EXPECT_FALSE(UIImage::imageWithContentsOfFile("sun.png"));
}

TEST_F(Image, AFileIsReadByTheLoaderOfTheHost) {
    const auto loader = std::make_shared<Loader>();
    UIImageLoader::setShared(loader);
    EXPECT_TRUE(UIImage::imageWithContentsOfFile("sun.png"));
    EXPECT_EQ(loader->asked, "sun.png");
    EXPECT_FALSE(UIImage::imageWithContentsOfFile("moon.png"));
    EXPECT_EQ(loader->asked, "moon.png");
}
