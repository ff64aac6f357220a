#include "NSArithmetic.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

using namespace gx;

namespace {
constexpr std::int32_t lowest32 = -2147483647 - 1;
constexpr std::int32_t highest32 = 2147483647;
constexpr std::int64_t lowest64 = -9223372036854775807LL - 1;
constexpr std::int64_t highest64 = 9223372036854775807LL;
constexpr double inf = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
} // namespace

TEST(NSArithmetic, SumsInRangeAreThePlainSums) {
    EXPECT_EQ(wrappingAdd<std::int32_t>(40, 2), 42);
    EXPECT_EQ(wrappingAdd<std::int64_t>(-40, -2), -42);
    EXPECT_EQ(wrappingSubtract<std::int32_t>(40, 42), -2);
    EXPECT_EQ(wrappingMultiply<std::int64_t>(-6, 7), -42);
}

TEST(NSArithmetic, SumsWrapAtTheEnds) {
    EXPECT_EQ(wrappingAdd<std::int32_t>(highest32, 1), lowest32);
    EXPECT_EQ(wrappingAdd<std::int32_t>(lowest32, -1), highest32);
    EXPECT_EQ(wrappingAdd<std::int64_t>(highest64, 1), lowest64);
    EXPECT_EQ(wrappingAdd<std::int64_t>(lowest64, lowest64), 0);
}

TEST(NSArithmetic, DifferencesWrapAtTheEnds) {
    EXPECT_EQ(wrappingSubtract<std::int32_t>(lowest32, 1), highest32);
    EXPECT_EQ(wrappingSubtract<std::int32_t>(0, lowest32), lowest32);
    EXPECT_EQ(wrappingSubtract<std::int64_t>(highest64, -1), lowest64);
    EXPECT_EQ(wrappingSubtract<std::int64_t>(highest64, lowest64), -1);
}

TEST(NSArithmetic, ProductsKeepTheLowBits) {
    EXPECT_EQ(wrappingMultiply<std::int32_t>(65536, 65536), 0);
    EXPECT_EQ(wrappingMultiply<std::int32_t>(65536, 32768), lowest32);
    EXPECT_EQ(wrappingMultiply<std::int32_t>(highest32, highest32), 1);
    EXPECT_EQ(wrappingMultiply<std::int32_t>(lowest32, -1), lowest32);
    EXPECT_EQ(wrappingMultiply<std::int64_t>(4294967296LL, 4294967296LL), 0);
    EXPECT_EQ(wrappingMultiply<std::int64_t>(highest64, 2), -2);
    EXPECT_EQ(wrappingMultiply<std::int64_t>(lowest64, -1), lowest64);
}

TEST(NSArithmetic, QuotientsTruncateTowardZero) {
    EXPECT_EQ(quotient<std::int64_t>(7, 2), 3);
    EXPECT_EQ(quotient<std::int64_t>(-7, 2), -3);
    EXPECT_EQ(quotient<std::int64_t>(7, -2), -3);
    EXPECT_EQ(quotient<std::int64_t>(-7, -2), 3);
    EXPECT_EQ(quotient<std::int32_t>(lowest32, 2), -1073741824);
}

TEST(NSArithmetic, AQuotientByZeroIsZero) {
    EXPECT_EQ(quotient<std::int64_t>(7, 0), 0);
    EXPECT_EQ(quotient<std::int64_t>(0, 0), 0);
    EXPECT_EQ(quotient<std::int32_t>(lowest32, 0), 0);
}

TEST(NSArithmetic, AQuotientByMinusOneNegatesAndTheLowestWrapsToItself) {
    EXPECT_EQ(quotient<std::int64_t>(5, -1), -5);
    EXPECT_EQ(quotient<std::int64_t>(highest64, -1), lowest64 + 1);
    EXPECT_EQ(quotient<std::int64_t>(lowest64, -1), lowest64);
    EXPECT_EQ(quotient<std::int32_t>(lowest32, -1), lowest32);
}

TEST(NSArithmetic, ARemainderHasTheSignOfTheDividend) {
    EXPECT_EQ(gx::remainder<std::int64_t>(7, 3), 1);
    EXPECT_EQ(gx::remainder<std::int64_t>(-7, 3), -1);
    EXPECT_EQ(gx::remainder<std::int64_t>(7, -3), 1);
    EXPECT_EQ(gx::remainder<std::int32_t>(-6, 3), 0);
}

TEST(NSArithmetic, ARemainderByZeroAndByMinusOneIsZero) {
    EXPECT_EQ(gx::remainder<std::int64_t>(7, 0), 0);
    EXPECT_EQ(gx::remainder<std::int64_t>(7, -1), 0);
    EXPECT_EQ(gx::remainder<std::int64_t>(lowest64, -1), 0);
    EXPECT_EQ(gx::remainder<std::int32_t>(lowest32, -1), 0);
}

TEST(NSArithmetic, AFloatingNumberLosesItsFraction) {
    EXPECT_EQ(truncateTo<std::int64_t>(2.9), 2);
    EXPECT_EQ(truncateTo<std::int64_t>(-2.9), -2);
    EXPECT_EQ(truncateTo<std::int32_t>(2.9F), 2);
    EXPECT_EQ(truncateTo<std::uint32_t>(2.9), 2U);
}

TEST(NSArithmetic, ATruncatedNumberIsClampedToTheTarget) {
    EXPECT_EQ(truncateTo<std::int32_t>(2147483647.9), highest32);
    EXPECT_EQ(truncateTo<std::int32_t>(2147483648.0), highest32);
    EXPECT_EQ(truncateTo<std::int32_t>(-2147483648.9), lowest32);
    EXPECT_EQ(truncateTo<std::int32_t>(-2147483649.0), lowest32);
    EXPECT_EQ(truncateTo<std::int64_t>(9223372036854775808.0), highest64);
    EXPECT_EQ(truncateTo<std::int64_t>(9223372036854774784.0), 9223372036854774784LL);
    EXPECT_EQ(truncateTo<std::int64_t>(-9223372036854775808.0F), lowest64);
    EXPECT_EQ(truncateTo<std::int64_t>(inf), highest64);
    EXPECT_EQ(truncateTo<std::int64_t>(-inf), lowest64);
    EXPECT_EQ(truncateTo<std::int64_t>(notANumber), 0);
}

TEST(NSArithmetic, AnUnsignedTargetClampsNegativeNumbersToZero) {
    EXPECT_EQ(truncateTo<std::uint64_t>(-0.5), 0U);
    EXPECT_EQ(truncateTo<std::uint64_t>(-1.0), 0U);
    EXPECT_EQ(truncateTo<std::uint64_t>(18446744073709549568.0), 18446744073709549568ULL);
    EXPECT_EQ(truncateTo<std::uint64_t>(18446744073709551616.0), 18446744073709551615ULL);
    EXPECT_EQ(truncateTo<std::uint32_t>(4294967295.5), 4294967295U);
    EXPECT_EQ(truncateTo<std::uint32_t>(4294967296.0), 4294967295U);
    EXPECT_EQ(truncateTo<std::uint32_t>(notANumber), 0U);
}

TEST(NSArithmetic, NarrowingKeepsTheLowThirtyTwoBits) {
    EXPECT_EQ(narrowTo32Bits(-5), -5);
    EXPECT_EQ(narrowTo32Bits(2147483647LL), highest32);
    EXPECT_EQ(narrowTo32Bits(2147483648LL), lowest32);
    EXPECT_EQ(narrowTo32Bits(-2147483648LL), lowest32);
    EXPECT_EQ(narrowTo32Bits(-2147483649LL), highest32);
    EXPECT_EQ(narrowTo32Bits(4294967295LL), -1);
    EXPECT_EQ(narrowTo32Bits(lowest64), 0);
    EXPECT_EQ(narrowTo32Bits(highest64), -1);
}

TEST(NSArithmetic, PowersOfTenAreExact) {
    constexpr double powers[] = {1,    1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                 1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
    int exponent = 0;
    for (const double power : powers) {
        EXPECT_EQ(powerOfTen(exponent), power);
        EXPECT_EQ(powerOfTen(exponent), std::pow(10, exponent));
        ++exponent;
    }
}

TEST(NSArithmetic, TheIntegerOperationsCanBeUsedInConstants) {
    static_assert(wrappingAdd(highest64, std::int64_t{1}) == lowest64);
    static_assert(wrappingMultiply(lowest32, lowest32) == 0);
    static_assert(quotient(lowest32, -1) == lowest32);
    static_assert(remainder(lowest64, std::int64_t{-1}) == 0);
    static_assert(narrowTo32Bits(4294967297LL) == 1);
}
