#include "UIImage.h"

#include <limits>

#include <gtest/gtest.h>

using namespace gx;

namespace {

std::vector<std::uint8_t> bytes(std::size_t count) { return std::vector<std::uint8_t>(count, 7); }

/// A square with a byte value to tell it by.
Ref<UIImage> square(int pixels, double scale, std::uint8_t value) {
    const auto count = static_cast<std::size_t>(pixels * pixels * 4);
    return UIImage::imageWithPixels_width_height_scale(std::vector<std::uint8_t>(count, value), pixels, pixels, scale);
}

struct Loader : UIImageLoader {
    std::string asked;
    Ref<UIImage> imageWithContentsOfFile(const std::string& path) override {
        asked = path;
        if (path != "sun.png") return nullptr;
        return UIImage::imageWithPixels_width_height_scale(bytes(4), 1, 1, 1);
    }
};

struct UIImageTest : testing::Test {
    ~UIImageTest() override { UIImageLoader::setShared(nullptr); }
};

} // namespace

TEST_F(UIImageTest, ItsSizeInPointsIsItsPixelsByItsScale) {
    const Ref<UIImage> image = UIImage::imageWithPixels_width_height_scale(bytes(24), 3, 2, 2);
    ASSERT_TRUE(image);
    EXPECT_EQ(image->pixelWidth(), 3);
    EXPECT_EQ(image->pixelHeight(), 2);
    EXPECT_EQ(image->scale(), 2);
    EXPECT_EQ(image->size(), CGSizeMake(1.5, 1));
    EXPECT_EQ(image->pixels(), bytes(24));
}

TEST_F(UIImageTest, ThePixelsMustFitTheSize) {
    EXPECT_FALSE(UIImage::imageWithPixels_width_height_scale(bytes(23), 3, 2, 1));
    EXPECT_FALSE(UIImage::imageWithPixels_width_height_scale(bytes(25), 3, 2, 1));
    EXPECT_FALSE(UIImage::imageWithPixels_width_height_scale({}, 3, 2, 1));
    EXPECT_TRUE(UIImage::imageWithPixels_width_height_scale(bytes(24), 2, 3, 1));
}

TEST_F(UIImageTest, SizesMustBeAboveZero) {
    EXPECT_FALSE(UIImage::imageWithPixels_width_height_scale({}, 0, 0, 1));
    EXPECT_FALSE(UIImage::imageWithPixels_width_height_scale({}, 0, 5, 1));
    EXPECT_FALSE(UIImage::imageWithPixels_width_height_scale({}, 5, 0, 1));
    EXPECT_FALSE(UIImage::imageWithPixels_width_height_scale(bytes(4), -1, -1, 1));
    EXPECT_FALSE(UIImage::imageWithPixels_width_height_scale(bytes(4), 1, 1, 0));
    EXPECT_FALSE(UIImage::imageWithPixels_width_height_scale(bytes(4), 1, 1, -2));
    EXPECT_FALSE(UIImage::imageWithPixels_width_height_scale(bytes(4), 1, 1, std::numeric_limits<double>::quiet_NaN()));
    EXPECT_FALSE(UIImage::imageWithPixels_width_height_scale(bytes(4), 1, 1, std::numeric_limits<double>::infinity()))
        << "its size in points would be 0";
}

TEST_F(UIImageTest, TheLargestSizesAreRefusedAndNotWrappedAround) {
    EXPECT_FALSE(UIImage::imageWithPixels_width_height_scale({}, 2147483647, 2147483647, 1));
    EXPECT_FALSE(UIImage::imageWithPixels_width_height_scale({}, 65536, 16384, 1)) << "2^32 bytes";
}

TEST_F(UIImageTest, ItsLabelIsItsAccessibilityText) {
    const Ref<UIImage> image = UIImage::imageWithPixels_width_height_scale(bytes(4), 1, 1, 1);
    EXPECT_EQ(image->accessibilityLabel(), std::nullopt);
    image->setAccessibilityLabel("Sunny");
    EXPECT_EQ(image->accessibilityLabel(), "Sunny");
}

TEST_F(UIImageTest, APairIsTheOneOrTheOtherByTheLook) {
    const Ref<UIImage> light = square(2, 1, 9);
    const Ref<UIImage> dark = square(2, 1, 1);
    const Ref<UIImage> pair = UIImage::imageWithLight_dark(light, dark);
    ASSERT_TRUE(pair);
    EXPECT_EQ(&pair->resolved(UIUserInterfaceStyle::Light), light.get());
    EXPECT_EQ(&pair->resolved(UIUserInterfaceStyle::Dark), dark.get());
}

TEST_F(UIImageTest, AnImageOfOneLookIsItselfInBoth) {
    const Ref<UIImage> image = square(2, 1, 9);
    EXPECT_EQ(&image->resolved(UIUserInterfaceStyle::Light), image.get());
    EXPECT_EQ(&image->resolved(UIUserInterfaceStyle::Dark), image.get());
}

TEST_F(UIImageTest, APairReturnsSizeAndPixelsOfItsLightPicture) {
    const Ref<UIImage> pair = UIImage::imageWithLight_dark(square(6, 3, 9), square(4, 2, 1));
    ASSERT_TRUE(pair) << "both are 2 by 2 points";
    EXPECT_EQ(pair->size(), CGSizeMake(2, 2));
    EXPECT_EQ(pair->scale(), 3);
    EXPECT_EQ(pair->pixelWidth(), 6);
    EXPECT_EQ(pair->pixelHeight(), 6);
    EXPECT_EQ(pair->pixels(), std::vector<std::uint8_t>(144, 9));
    EXPECT_EQ(pair->resolved(UIUserInterfaceStyle::Dark).pixels(), std::vector<std::uint8_t>(64, 1));
}

TEST_F(UIImageTest, APairNeedsBothInOneSize) {
    EXPECT_FALSE(UIImage::imageWithLight_dark(nullptr, nullptr));
    EXPECT_FALSE(UIImage::imageWithLight_dark(square(2, 1, 9), nullptr));
    EXPECT_FALSE(UIImage::imageWithLight_dark(nullptr, square(2, 1, 1)));
    EXPECT_FALSE(UIImage::imageWithLight_dark(square(2, 1, 9), square(3, 1, 1)));
    EXPECT_FALSE(UIImage::imageWithLight_dark(square(2, 1, 9), square(2, 2, 1))) << "half as large in points";
    EXPECT_TRUE(UIImage::imageWithLight_dark(square(2, 1, 9), square(2, 1, 9)));
    const Ref<UIImage> tall = UIImage::imageWithPixels_width_height_scale(bytes(8), 1, 2, 1);
    const Ref<UIImage> wide = UIImage::imageWithPixels_width_height_scale(bytes(8), 2, 1, 1);
    EXPECT_FALSE(UIImage::imageWithLight_dark(tall, wide));
}

TEST_F(UIImageTest, APairOfPairsTakesTheOuterPictures) {
    const Ref<UIImage> day = square(2, 1, 9);
    const Ref<UIImage> night = square(2, 1, 1);
    const Ref<UIImage> pair = UIImage::imageWithLight_dark(UIImage::imageWithLight_dark(day, square(2, 1, 5)),
                                                           UIImage::imageWithLight_dark(square(2, 1, 4), night));
    ASSERT_TRUE(pair);
    EXPECT_EQ(&pair->resolved(UIUserInterfaceStyle::Light), day.get());
    EXPECT_EQ(&pair->resolved(UIUserInterfaceStyle::Dark), night.get());
    EXPECT_EQ(pair->pixels(), day->pixels());
}

TEST_F(UIImageTest, APairHoldsItsPictures) {
    Ref<UIImage> light = square(2, 1, 9);
    Ref<UIImage> dark = square(2, 1, 1);
    const WeakRef<UIImage> weakLight = light;
    const WeakRef<UIImage> weakDark = dark;
    Ref<UIImage> pair = UIImage::imageWithLight_dark(std::move(light), std::move(dark));
    EXPECT_FALSE(weakLight.expired());
    EXPECT_FALSE(weakDark.expired());
    pair = nullptr;
    EXPECT_TRUE(weakLight.expired());
    EXPECT_TRUE(weakDark.expired());
}

TEST_F(UIImageTest, APairBeginsWithTheLabelOfItsLightPictureAndThenHasItsOwn) {
    const Ref<UIImage> light = square(2, 1, 9);
    const Ref<UIImage> dark = square(2, 1, 1);
    light->setAccessibilityLabel("Sunny");
    dark->setAccessibilityLabel("Starry");
    const Ref<UIImage> pair = UIImage::imageWithLight_dark(light, dark);
    EXPECT_EQ(pair->accessibilityLabel(), "Sunny");
    pair->setAccessibilityLabel("Clear");
    EXPECT_EQ(pair->accessibilityLabel(), "Clear");
    EXPECT_EQ(light->accessibilityLabel(), "Sunny");
}

TEST_F(UIImageTest, APictureOfTheHostHasAHandleAndASizeButNoPixels) {
    const Ref<UIImage> image = UIImage::imageWithHostHandle_size(7, {24.5, 12});
    ASSERT_TRUE(image);
    EXPECT_EQ(image->hostHandle(), 7);
    EXPECT_EQ(image->size(), CGSizeMake(24.5, 12));
    EXPECT_TRUE(image->pixels().empty());
    EXPECT_EQ(image->pixelWidth(), 0);
    EXPECT_EQ(square(2, 1, 9)->hostHandle(), std::nullopt);
}

TEST_F(UIImageTest, APictureOfTheHostMustHaveASize) {
    EXPECT_FALSE(UIImage::imageWithHostHandle_size(7, {0, 12}));
    EXPECT_FALSE(UIImage::imageWithHostHandle_size(7, {12, -1}));
    EXPECT_FALSE(UIImage::imageWithHostHandle_size(7, {12, std::numeric_limits<double>::quiet_NaN()}));
    EXPECT_FALSE(UIImage::imageWithHostHandle_size(7, {std::numeric_limits<double>::infinity(), 12}));
}

TEST_F(UIImageTest, PicturesOfTheHostMakeAPair) {
    const Ref<UIImage> light = UIImage::imageWithHostHandle_size(1, {24, 12});
    const Ref<UIImage> dark = UIImage::imageWithHostHandle_size(2, {24, 12});
    const Ref<UIImage> pair = UIImage::imageWithLight_dark(light, dark);
    ASSERT_TRUE(pair);
    EXPECT_EQ(pair->size(), CGSizeMake(24, 12));
    EXPECT_EQ(pair->resolved(UIUserInterfaceStyle::Light).hostHandle(), 1);
    EXPECT_EQ(pair->resolved(UIUserInterfaceStyle::Dark).hostHandle(), 2);
}

TEST_F(UIImageTest, WithoutAHostNoFileIsRead) {
    EXPECT_FALSE(UIImageLoader::shared());
    EXPECT_FALSE(UIImage::imageWithContentsOfFile("sun.png"));
}

TEST_F(UIImageTest, AFileIsReadByTheLoaderOfTheHost) {
    const auto loader = std::make_shared<Loader>();
    UIImageLoader::setShared(loader);
    EXPECT_TRUE(UIImage::imageWithContentsOfFile("sun.png"));
    EXPECT_EQ(loader->asked, "sun.png");
    EXPECT_FALSE(UIImage::imageWithContentsOfFile("moon.png"));
    EXPECT_EQ(loader->asked, "moon.png");
}
