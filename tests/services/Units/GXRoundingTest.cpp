#include "GXRounding.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

namespace gx {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr float largest = std::numeric_limits<float>::max();

TEST(ToBiggerFloat, KeepsWhatAFloatCanHold) {
    EXPECT_EQ(toBiggerFloat(0.5), 0.5F);
    EXPECT_EQ(toBiggerFloat(-3.0), -3.0F);
    EXPECT_EQ(toBiggerFloat(16777216.0), 16777216.0F);
    EXPECT_EQ(toBiggerFloat(static_cast<double>(770.9F)), 770.9F);
    EXPECT_TRUE(std::signbit(toBiggerFloat(-0.0)));
}

// The floats around 1 are 1 - 2^-24, 1 and 1 + 2^-23.
TEST(ToBiggerFloat, GoesUpFromBelowAndFromAboveTheMiddleOfTwoFloats) {
    EXPECT_EQ(toBiggerFloat(1.00000001), 1.00000012F);
    EXPECT_EQ(toBiggerFloat(1.0000001), 1.00000012F);
    EXPECT_EQ(toBiggerFloat(0.99999999), 1.0F);
    EXPECT_EQ(toBiggerFloat(0.99999995), 1.0F);
}

TEST(ToBiggerFloat, GoesTowardZeroBelowZero) {
    EXPECT_EQ(toBiggerFloat(-1.00000001), -1.0F);
    EXPECT_EQ(toBiggerFloat(-1.0000001), -1.0F);
    EXPECT_EQ(toBiggerFloat(-0.99999999), -0.99999994F);
}

TEST(ToBiggerFloat, GivesTheSmallestFloatForASmallerPositiveNumber) {
    EXPECT_EQ(toBiggerFloat(1e-300), std::numeric_limits<float>::denorm_min());
    EXPECT_EQ(toBiggerFloat(-1e-300), 0.0F);
}

TEST(ToBiggerFloat, IsDefinedBeyondTheRangeOfAFloat) {
    EXPECT_TRUE(std::isnan(toBiggerFloat(std::numeric_limits<double>::quiet_NaN())));
    EXPECT_EQ(toBiggerFloat(infinity), std::numeric_limits<float>::infinity());
    EXPECT_EQ(toBiggerFloat(-infinity), -std::numeric_limits<float>::infinity());
    EXPECT_EQ(toBiggerFloat(1e300), std::numeric_limits<float>::infinity());
    EXPECT_EQ(toBiggerFloat(-1e300), -largest);
    // A hair above the largest float there is none to go up to.
    EXPECT_EQ(toBiggerFloat(std::nextafter(static_cast<double>(largest), infinity)), largest);
}

TEST(ToNearestFloat, TakesTheCloserOfTwoFloatsAndTheEvenOneInTheMiddle) {
    EXPECT_EQ(toNearestFloat(1.00000005), 1.0F);
    EXPECT_EQ(toNearestFloat(1.00000007), 1.00000012F);
    EXPECT_EQ(toNearestFloat(16777217.0), 16777216.0F);
    EXPECT_EQ(toNearestFloat(16777219.0), 16777220.0F);
}

TEST(ToNearestFloat, IsDefinedBeyondTheRangeOfAFloat) {
    EXPECT_TRUE(std::isnan(toNearestFloat(std::numeric_limits<double>::quiet_NaN())));
    EXPECT_EQ(toNearestFloat(1e300), std::numeric_limits<float>::infinity());
    EXPECT_EQ(toNearestFloat(-1e300), -std::numeric_limits<float>::infinity());
}

} // namespace
} // namespace gx
