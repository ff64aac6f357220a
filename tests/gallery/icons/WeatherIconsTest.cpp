#include "WeatherIcons.h"

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

TEST(WeatherIcons, TheKindsStandInTheirOrder) {
    const char* identifiers[] = {"clear", "partly-cloudy", "cloudy",       "overcast", "fog",  "drizzle",
                                 "rain",  "showers",       "thunderstorm", "sleet",    "snow", "wind"};
    ASSERT_EQ(WeatherIcons::count, 12U);
    for (std::size_t i = 0; i < 12; ++i) EXPECT_EQ(WeatherIcons::identifier(i), identifiers[i]);
}

TEST(WeatherIcons, NamesAreWhatAPersonSays) {
    EXPECT_EQ(WeatherIcons::name(0), "clear");
    EXPECT_EQ(WeatherIcons::name(1), "partly cloudy");
    EXPECT_EQ(WeatherIcons::name(8), "thunderstorm");
    EXPECT_EQ(WeatherIcons::name(11), "wind");
    for (std::size_t i = 0; i < 12; ++i) {
        EXPECT_FALSE(WeatherIcons::name(i).empty());
        EXPECT_EQ(WeatherIcons::name(i).find('-'), std::string::npos);
    }
}

TEST(WeatherIcons, AnIdentifierLeadsBackToItsKindAlone) {
    std::set<std::string> identifiers;
    for (std::size_t i = 0; i < 12; ++i) {
        identifiers.insert(WeatherIcons::identifier(i));
        EXPECT_EQ(WeatherIcons::indexOfIdentifier(WeatherIcons::identifier(i)), i);
    }
    EXPECT_EQ(identifiers.size(), 12U);
}

TEST(WeatherIcons, AnUnknownIdentifierIsNoKind) {
    EXPECT_EQ(WeatherIcons::indexOfIdentifier("hail"), std::nullopt);
    EXPECT_EQ(WeatherIcons::indexOfIdentifier(""), std::nullopt);
    EXPECT_EQ(WeatherIcons::indexOfIdentifier("Clear"), std::nullopt);
    EXPECT_EQ(WeatherIcons::indexOfIdentifier("partly cloudy"), std::nullopt) << "the name, not the identifier";
    EXPECT_EQ(WeatherIcons::indexOfIdentifier("clea"), std::nullopt);
    EXPECT_EQ(WeatherIcons::indexOfIdentifier("clear "), std::nullopt);
}

TEST(WeatherIcons, AnIndexBeyondTheLastHasNoNameAndNoIdentifier) {
    EXPECT_EQ(WeatherIcons::name(12), "");
    EXPECT_EQ(WeatherIcons::identifier(12), "");
    EXPECT_EQ(WeatherIcons::identifier(static_cast<std::size_t>(-1)), "");
}

TEST(WeatherIcons, TheImagesAreDrawnOnce) {
    const auto images = WeatherIcons::images();
    ASSERT_TRUE(images);
    EXPECT_EQ(images->size(), 12U);
    EXPECT_EQ(WeatherIcons::images(), images);
}

TEST(WeatherIcons, EachHasTheNameOfItsKindForAScreenReader) {
    const auto images = WeatherIcons::images();
    for (std::size_t i = 0; i < images->size(); ++i) EXPECT_EQ((*images)[i]->accessibilityLabel(), WeatherIcons::name(i));
}

TEST(WeatherIcons, EachIs48PointsWideAndHighWithThreePixelsAPoint) {
    for (const Ref<UIImage>& image : *WeatherIcons::images()) {
        for (const UIUserInterfaceStyle look : looks) {
            EXPECT_EQ(image->resolved(look).size(), CGSizeMake(48, 48));
            EXPECT_EQ(image->resolved(look).pixelWidth(), 144);
            EXPECT_EQ(image->resolved(look).pixelHeight(), 144);
        }
    }
}

TEST(WeatherIcons, EachShowsSomethingWithinAClearBorder) {
    constexpr int border = 6; // 2 points.
    for (const Ref<UIImage>& image : *WeatherIcons::images()) {
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

TEST(WeatherIcons, EdgesAreSmooth) {
    for (const Ref<UIImage>& image : *WeatherIcons::images()) {
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

TEST(WeatherIcons, NoTwoAreAlikeInAnyLook) {
    std::vector<const UIImage*> pictures;
    for (const Ref<UIImage>& image : *WeatherIcons::images()) {
        for (const UIUserInterfaceStyle look : looks) pictures.push_back(&image->resolved(look));
    }
    ASSERT_EQ(pictures.size(), 24U);
    for (std::size_t i = 0; i < pictures.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j) EXPECT_FALSE(pictures[i]->pixels() == pictures[j]->pixels()) << i << " and " << j;
    }
}

TEST(WeatherIcons, BothLooksHaveTheSameOutline) {
    for (const Ref<UIImage>& image : *WeatherIcons::images()) {
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
