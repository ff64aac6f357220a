#include "WebMath.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>

namespace gx::web {
namespace {

/// FNV-1a of the bytes of many numbers: one number that another program can compute.
class Hash {
public:
    void add(double number) {
        std::uint64_t bits = 0;
        std::memcpy(&bits, &number, sizeof bits);
        for (unsigned shift = 0; shift < 64; shift += 8) value_ = (value_ ^ ((bits >> shift) & 255U)) * 0x100000001b3;
    }
    [[nodiscard]] std::uint64_t value() const { return value_; }

private:
    std::uint64_t value_ = 0xcbf29ce484222325;
};

// The expected numbers were printed by a program that calls wasi-libc's own functions.

TEST(WebMath, AnglesAreReducedAsByTheLibraryToTheBit) {
    const auto one = WebMath::reducedAngle(1.25);
    EXPECT_EQ(one.quarters, 1);
    EXPECT_EQ(one.rest[0], -0x1.487ed5110b461p-2);
    EXPECT_EQ(one.rest[1], -0x1.a626331p-58);

    const auto many = WebMath::reducedAngle(100);
    EXPECT_EQ(many.quarters, 64);
    EXPECT_EQ(many.rest[0], -0x1.0fdaa22168c23p-1);
    EXPECT_EQ(many.rest[1], -0x1.3131988p-55);

    Hash hash;
    for (int i = 51; i <= 100; ++i) {
        for (const double angle : {i / 64.0, -i / 64.0}) {
            const auto reduced = WebMath::reducedAngle(angle);
            hash.add(reduced.quarters);
            for (const double part : reduced.rest) hash.add(part);
        }
    }
    EXPECT_EQ(hash.value(), 0x2afbc717f6145f6dU);
}

TEST(WebMath, AnglesBesideAMultipleOfARightAngleKeepTheirPrecision) {
    // 355/113 is nearly π: what is left of it has twenty bits less.
    const auto reduced = WebMath::reducedAngle(355.0 / 113.0);
    EXPECT_EQ(reduced.quarters, 2);
    EXPECT_DOUBLE_EQ(reduced.rest[0], 2.6676418928250194e-07);
    // The double nearest to π, less π.
    EXPECT_DOUBLE_EQ(WebMath::reducedAngle(0x1.921fb54442d18p+1).rest[0], -1.2246467991473532e-16);
}

TEST(WebMath, HypotenusesAreThoseOfTheLibraryToTheBit) {
    EXPECT_EQ(WebMath::hypot(119.1, 20), 0x1.e3120240326f5p+6);
    EXPECT_EQ(WebMath::hypot(-20, 119.1), 0x1.e3120240326f5p+6);
    EXPECT_EQ(WebMath::hypot(0, 3), 3);
    EXPECT_EQ(WebMath::hypot(0, 0), 0);
    Hash hash;
    for (int i = 1; i <= 40; ++i) {
        for (int k = 1; k <= 40; ++k) hash.add(WebMath::hypot(i * 5.3, k * 0.7));
    }
    EXPECT_EQ(hash.value(), 0xc6f65211c97968feU);
}

TEST(WebMath, AnglesOfPointsAreThoseOfTheLibrary) {
    EXPECT_EQ(WebMath::atan2(0, 5), 0);
    EXPECT_DOUBLE_EQ(WebMath::atan2(3, 0), 1.5707963267948966);
    EXPECT_DOUBLE_EQ(WebMath::atan2(1, 1), 0.7853981633974483);
    EXPECT_DOUBLE_EQ(WebMath::atan2(20, 119.1), 0.16637383334941835);
}

TEST(WebMath, HalvesAreRoundedAwayFromZero) {
    EXPECT_EQ(WebMath::round(2.5), 3);
    EXPECT_EQ(WebMath::round(-2.5), -3);
    EXPECT_EQ(WebMath::round(2.4999999999999996), 2);
    EXPECT_EQ(WebMath::round(0.49999999999999994), 0);
    EXPECT_TRUE(std::signbit(WebMath::round(-0.4)));
    EXPECT_EQ(WebMath::round(4503599627370495.5), 4503599627370496);
    EXPECT_EQ(WebMath::round(-4503599627370497), -4503599627370497);
    EXPECT_EQ(WebMath::round(std::numeric_limits<double>::infinity()), std::numeric_limits<double>::infinity());
    EXPECT_TRUE(std::isnan(WebMath::round(std::numeric_limits<double>::quiet_NaN())));
}

} // namespace
} // namespace gx::web
