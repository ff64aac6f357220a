#include "GalleryWeatherIcons.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

using namespace gallery;
using namespace gx;

namespace {

constexpr UIUserInterfaceStyle looks[] = {UIUserInterfaceStyle::Light, UIUserInterfaceStyle::Dark};

std::uint8_t alphaAt(const UIImage& image, int x, int y) {
    return image.pixels()[static_cast<std::size_t>(y * image.pixelWidth() + x) * 4 + 3];
}

} // namespace

TEST(GalleryWeatherIcons, TheKindsStandInTheirOrder) {
    const char* identifiers[] = {"clear", "partly-cloudy", "cloudy",       "overcast", "fog",  "drizzle",
                                 "rain",  "showers",       "thunderstorm", "sleet",    "snow", "wind"};
    ASSERT_EQ(GalleryWeatherIcons::count, 12U);
    for (std::size_t i = 0; i < 12; ++i) EXPECT_EQ(GalleryWeatherIcons::identifier(i), identifiers[i]);
}

TEST(GalleryWeatherIcons, NamesAreWhatAPersonSays) {
    EXPECT_EQ(GalleryWeatherIcons::name(0), "clear");
    EXPECT_EQ(GalleryWeatherIcons::name(1), "partly cloudy");
    EXPECT_EQ(GalleryWeatherIcons::name(8), "thunderstorm");
    EXPECT_EQ(GalleryWeatherIcons::name(11), "wind");
    for (std::size_t i = 0; i < 12; ++i) {
        EXPECT_FALSE(GalleryWeatherIcons::name(i).empty());
        EXPECT_EQ(GalleryWeatherIcons::name(i).find('-'), std::string::npos);
    }
}

TEST(GalleryWeatherIcons, AnIdentifierLeadsBackToItsKindAlone) {
    std::set<std::string> identifiers;
    for (std::size_t i = 0; i < 12; ++i) {
        identifiers.insert(GalleryWeatherIcons::identifier(i));
        EXPECT_EQ(GalleryWeatherIcons::indexOfIdentifier(GalleryWeatherIcons::identifier(i)), i);
    }
    EXPECT_EQ(identifiers.size(), 12U);
}

TEST(GalleryWeatherIcons, AnUnknownIdentifierIsNoKind) {
    EXPECT_EQ(GalleryWeatherIcons::indexOfIdentifier("hail"), std::nullopt);
    EXPECT_EQ(GalleryWeatherIcons::indexOfIdentifier(""), std::nullopt);
    EXPECT_EQ(GalleryWeatherIcons::indexOfIdentifier("Clear"), std::nullopt);
    EXPECT_EQ(GalleryWeatherIcons::indexOfIdentifier("partly cloudy"), std::nullopt) << "the name, not the identifier";
    EXPECT_EQ(GalleryWeatherIcons::indexOfIdentifier("clea"), std::nullopt);
    EXPECT_EQ(GalleryWeatherIcons::indexOfIdentifier("clear "), std::nullopt);
}

TEST(GalleryWeatherIcons, AnIndexBeyondTheLastHasNoNameAndNoIdentifier) {
    EXPECT_EQ(GalleryWeatherIcons::name(12), "");
    EXPECT_EQ(GalleryWeatherIcons::identifier(12), "");
    EXPECT_EQ(GalleryWeatherIcons::identifier(static_cast<std::size_t>(-1)), "");
}

TEST(GalleryWeatherIcons, TheImagesAreDrawnOnce) {
    const auto images = GalleryWeatherIcons::images();
    ASSERT_TRUE(images);
    EXPECT_EQ(images->size(), 12U);
    EXPECT_EQ(GalleryWeatherIcons::images(), images);
}

TEST(GalleryWeatherIcons, EachHasTheNameOfItsKindForAScreenReader) {
    const auto images = GalleryWeatherIcons::images();
    for (std::size_t i = 0; i < images->size(); ++i) EXPECT_EQ((*images)[i]->accessibilityLabel(), GalleryWeatherIcons::name(i));
}

TEST(GalleryWeatherIcons, EachIs48PointsWideAndHighWithThreePixelsAPoint) {
    for (const Ref<UIImage>& image : *GalleryWeatherIcons::images()) {
        for (const UIUserInterfaceStyle look : looks) {
            EXPECT_EQ(image->resolved(look).size(), CGSizeMake(48, 48));
            EXPECT_EQ(image->resolved(look).pixelWidth(), 144);
            EXPECT_EQ(image->resolved(look).pixelHeight(), 144);
        }
    }
}

TEST(GalleryWeatherIcons, EachShowsSomethingWithinAClearBorder) {
    constexpr int border = 6; // 2 points.
    for (const Ref<UIImage>& image : *GalleryWeatherIcons::images()) {
        for (const UIUserInterfaceStyle look : looks) {
            int opaque = 0;
            int atBorder = 0;
            for (int y = 0; y < 144; ++y) {
                for (int x = 0; x < 144; ++x) {
                    const std::uint8_t alpha = alphaAt(image->resolved(look), x, y);
                    const bool isInside = std::min(x, y) >= border && std::max(x, y) < 144 - border;
                    if (alpha == 255) ++opaque;
                    if (alpha > 0 && !isInside) ++atBorder;
                }
            }
            EXPECT_GT(opaque, 144 * 144 / 20) << *image->accessibilityLabel();
            EXPECT_EQ(atBorder, 0) << *image->accessibilityLabel();
        }
    }
}

TEST(GalleryWeatherIcons, EdgesAreSmooth) {
    for (const Ref<UIImage>& image : *GalleryWeatherIcons::images()) {
        int partlyCovered = 0;
        for (int y = 0; y < 144; ++y) {
            for (int x = 0; x < 144; ++x) {
                const std::uint8_t alpha = alphaAt(*image, x, y);
                if (alpha > 0 && alpha < 255) ++partlyCovered;
            }
        }
        EXPECT_GT(partlyCovered, 100) << *image->accessibilityLabel();
    }
}

TEST(GalleryWeatherIcons, NoTwoAreAlikeInAnyLook) {
    std::vector<const UIImage*> pictures;
    for (const Ref<UIImage>& image : *GalleryWeatherIcons::images()) {
        for (const UIUserInterfaceStyle look : looks) pictures.push_back(&image->resolved(look));
    }
    ASSERT_EQ(pictures.size(), 24U);
    for (std::size_t i = 0; i < pictures.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j) EXPECT_FALSE(pictures[i]->pixels() == pictures[j]->pixels()) << i << " and " << j;
    }
}

TEST(GalleryWeatherIcons, BothLooksHaveTheSameOutline) {
    for (const Ref<UIImage>& image : *GalleryWeatherIcons::images()) {
        int different = 0;
        for (int y = 0; y < 144; ++y) {
            for (int x = 0; x < 144; ++x) {
                const std::uint8_t dark = alphaAt(image->resolved(UIUserInterfaceStyle::Dark), x, y);
                if (alphaAt(*image, x, y) != dark) ++different;
            }
        }
        EXPECT_EQ(different, 0) << *image->accessibilityLabel();
    }
}
