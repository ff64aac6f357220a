#include "NSNumber.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

using namespace gx;

namespace {
constexpr double inf = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr std::int32_t lowest32 = -2147483647 - 1;
constexpr std::int32_t highest32 = 2147483647;
constexpr std::int64_t lowest64 = -9223372036854775807LL - 1;
constexpr std::int64_t highest64 = 9223372036854775807LL;
} // namespace

// Every type, read as every type

TEST(NSNumber, ABoolReadsAsOneOrZero) {
    const NSNumber yes = NSNumber::numberWithBool(true);
    EXPECT_EQ(yes.type(), NSNumber::Type::Bool);
    EXPECT_TRUE(yes.boolValue());
    EXPECT_EQ(yes.intValue(), 1);
    EXPECT_EQ(yes.integerValue(), 1);
    EXPECT_EQ(yes.floatValue(), 1.0F);
    EXPECT_EQ(yes.doubleValue(), 1.0);
    const NSNumber no = NSNumber::numberWithBool(false);
    EXPECT_FALSE(no.boolValue());
    EXPECT_EQ(no.intValue(), 0);
    EXPECT_EQ(no.integerValue(), 0);
    EXPECT_EQ(no.floatValue(), 0.0F);
    EXPECT_EQ(no.doubleValue(), 0.0);
    EXPECT_TRUE(no) << "a box, although it holds false";
}

TEST(NSNumber, AnIntReadsAsEveryType) {
    const NSNumber number = NSNumber::numberWithInt(-42);
    EXPECT_EQ(number.type(), NSNumber::Type::Int);
    EXPECT_TRUE(number.boolValue());
    EXPECT_EQ(number.intValue(), -42);
    EXPECT_EQ(number.integerValue(), -42);
    EXPECT_EQ(number.floatValue(), -42.0F);
    EXPECT_EQ(number.doubleValue(), -42.0);
    EXPECT_FALSE(NSNumber::numberWithInt(0).boolValue());
}

TEST(NSNumber, TheEndsOfAnIntAreExactInAllButAFloat) {
    EXPECT_EQ(NSNumber::numberWithInt(highest32).intValue(), highest32);
    EXPECT_EQ(NSNumber::numberWithInt(highest32).integerValue(), 2147483647);
    EXPECT_EQ(NSNumber::numberWithInt(highest32).doubleValue(), 2147483647.0);
    EXPECT_EQ(NSNumber::numberWithInt(highest32).floatValue(), 2147483648.0F);
    EXPECT_EQ(NSNumber::numberWithInt(lowest32).intValue(), lowest32);
    EXPECT_EQ(NSNumber::numberWithInt(lowest32).integerValue(), -2147483648LL);
    EXPECT_EQ(NSNumber::numberWithInt(lowest32).doubleValue(), -2147483648.0);
    EXPECT_EQ(NSNumber::numberWithInt(lowest32).floatValue(), -2147483648.0F);
}

TEST(NSNumber, AnIntegerReadsAsEveryType) {
    const NSNumber number = NSNumber::numberWithInteger(7);
    EXPECT_EQ(number.type(), NSNumber::Type::Integer);
    EXPECT_TRUE(number.boolValue());
    EXPECT_EQ(number.intValue(), 7);
    EXPECT_EQ(number.integerValue(), 7);
    EXPECT_EQ(number.floatValue(), 7.0F);
    EXPECT_EQ(number.doubleValue(), 7.0);
    EXPECT_FALSE(NSNumber::numberWithInteger(0).boolValue());
}

TEST(NSNumber, AFloatReadsAsEveryType) {
    const NSNumber number = NSNumber::numberWithFloat(2.75F);
    EXPECT_EQ(number.type(), NSNumber::Type::Float);
    EXPECT_TRUE(number.boolValue());
    EXPECT_EQ(number.intValue(), 2);
    EXPECT_EQ(number.integerValue(), 2);
    EXPECT_EQ(number.floatValue(), 2.75F);
    EXPECT_EQ(number.doubleValue(), 2.75);
}

TEST(NSNumber, ADoubleReadsAsEveryType) {
    const NSNumber number = NSNumber::numberWithDouble(-3.5);
    EXPECT_EQ(number.type(), NSNumber::Type::Double);
    EXPECT_TRUE(number.boolValue());
    EXPECT_EQ(number.intValue(), -3);
    EXPECT_EQ(number.integerValue(), -3);
    EXPECT_EQ(number.floatValue(), -3.5F);
    EXPECT_EQ(number.doubleValue(), -3.5);
}

// Integers to narrower integers

TEST(NSNumber, AnIntegerNarrowsModuloThirtyTwoBits) {
    const auto narrowed = [](std::int64_t value) { return NSNumber::numberWithInteger(value).intValue(); };
    EXPECT_EQ(narrowed(2147483647), 2147483647);
    EXPECT_EQ(narrowed(2147483648LL), lowest32);
    EXPECT_EQ(narrowed(2147483649LL), -2147483647);
    EXPECT_EQ(narrowed(-2147483647LL), -2147483647);
    EXPECT_EQ(narrowed(-2147483648LL), lowest32);
    EXPECT_EQ(narrowed(-2147483649LL), 2147483647);
    EXPECT_EQ(narrowed(4294967295LL), -1);
    EXPECT_EQ(narrowed(4294967296LL), 0);
    EXPECT_EQ(narrowed(4294967297LL), 1);
    EXPECT_EQ(narrowed(highest64), -1);
    EXPECT_EQ(narrowed(lowest64), 0);
}

TEST(NSNumber, AnIntegerWhoseLowBitsAreZeroIsStillTrue) {
    EXPECT_TRUE(NSNumber::numberWithInteger(4294967296LL).boolValue());
    EXPECT_TRUE(NSNumber::numberWithInteger(256).boolValue());
    EXPECT_TRUE(NSNumber::numberWithInteger(lowest64).boolValue());
}

TEST(NSNumber, TheEndsOfAnIntegerComeBack) {
    EXPECT_EQ(NSNumber::numberWithInteger(highest64).integerValue(), highest64);
    EXPECT_EQ(NSNumber::numberWithInteger(lowest64).integerValue(), lowest64);
    EXPECT_EQ(NSNumber::numberWithInteger(highest64 - 1).integerValue(), 9223372036854775806LL);
    EXPECT_EQ(NSNumber::numberWithInteger(lowest64 + 1).integerValue(), -9223372036854775807LL);
}

// Integers to floating point

TEST(NSNumber, AnIntegerBeyondTheDigitsOfAFloatRoundsToTheNearestEven) {
    EXPECT_EQ(NSNumber::numberWithInteger(16777216).floatValue(), 16777216.0F);
    EXPECT_EQ(NSNumber::numberWithInteger(16777217).floatValue(), 16777216.0F);
    EXPECT_EQ(NSNumber::numberWithInteger(16777218).floatValue(), 16777218.0F);
    EXPECT_EQ(NSNumber::numberWithInteger(16777219).floatValue(), 16777220.0F);
    EXPECT_EQ(NSNumber::numberWithInt(16777217).floatValue(), 16777216.0F);
    EXPECT_EQ(NSNumber::numberWithInt(-16777219).floatValue(), -16777220.0F);
}

TEST(NSNumber, AnIntegerBeyondTheDigitsOfADoubleRoundsToTheNearestEven) {
    EXPECT_EQ(NSNumber::numberWithInteger(9007199254740993LL).doubleValue(), 9007199254740992.0);
    EXPECT_EQ(NSNumber::numberWithInteger(9007199254740995LL).doubleValue(), 9007199254740996.0);
    EXPECT_EQ(NSNumber::numberWithInteger(4611686018427387905LL).doubleValue(), 4611686018427387904.0);
    EXPECT_EQ(NSNumber::numberWithInteger(4611686018427387905LL).floatValue(), 4611686018427387904.0F);
    EXPECT_EQ(NSNumber::numberWithInteger(highest64).doubleValue(), 9223372036854775808.0);
    EXPECT_EQ(NSNumber::numberWithInteger(lowest64).doubleValue(), -9223372036854775808.0);
}

TEST(NSNumber, AnIntegerBecomesAFloatInOneRounding) {
    // 2^62 + 2^38 + 1 lies just above the middle between the floats 2^62 and 2^62 + 2^39. A double
    // on the way would lose the 1 and fall back to the even one below.
    EXPECT_EQ(NSNumber::numberWithInteger(4611686293305294849LL).floatValue(), 4611686568183201792.0F);
    EXPECT_EQ(NSNumber::numberWithInteger(-4611686293305294849LL).floatValue(), -4611686568183201792.0F);
    EXPECT_EQ(NSNumber::numberWithInteger(4611686293305294848LL).floatValue(), 4611686018427387904.0F) << "the middle itself";
}

// Floating point to integers

TEST(NSNumber, FractionsTruncateTowardZero) {
    for (const double value : {0.0, -0.0, 0.5, 0.999999, -0.5, -0.999999}) {
        EXPECT_EQ(NSNumber::numberWithDouble(value).intValue(), 0) << value;
        EXPECT_EQ(NSNumber::numberWithDouble(value).integerValue(), 0) << value;
    }
    EXPECT_EQ(NSNumber::numberWithDouble(1.999999).intValue(), 1);
    EXPECT_EQ(NSNumber::numberWithDouble(-1.999999).intValue(), -1);
    EXPECT_EQ(NSNumber::numberWithFloat(-7.875F).integerValue(), -7);
}

TEST(NSNumber, ADoubleAroundTheEndsOfAnIntSaturates) {
    const auto read = [](double value) { return NSNumber::numberWithDouble(value).intValue(); };
    EXPECT_EQ(read(2147483646.5), 2147483646);
    EXPECT_EQ(read(2147483647.0), 2147483647);
    EXPECT_EQ(read(2147483647.5), 2147483647);
    EXPECT_EQ(read(2147483648.0), 2147483647);
    EXPECT_EQ(read(4294967297.0), 2147483647) << "no wrapping";
    EXPECT_EQ(read(-2147483647.5), -2147483647);
    EXPECT_EQ(read(-2147483648.0), lowest32);
    EXPECT_EQ(read(-2147483648.5), lowest32);
    EXPECT_EQ(read(-2147483649.0), lowest32);
    EXPECT_EQ(read(-1e300), lowest32);
}

TEST(NSNumber, ALargeDoubleSaturatesWhenReadAsAnInteger) {
    const auto read = [](double value) { return NSNumber::numberWithDouble(value).integerValue(); };
    EXPECT_EQ(read(2147483648.0), 2147483648LL) << "fits 64 bits";
    EXPECT_EQ(read(9223372036854774784.0), 9223372036854774784LL) << "the last double below 2^63";
    EXPECT_EQ(read(9223372036854775808.0), highest64);
    EXPECT_EQ(read(9223372036854777856.0), highest64);
    EXPECT_EQ(read(-9223372036854774784.0), -9223372036854774784LL);
    EXPECT_EQ(read(-9223372036854775808.0), lowest64);
    EXPECT_EQ(read(-9223372036854777856.0), lowest64);
    EXPECT_EQ(read(1e300), highest64);
    EXPECT_EQ(read(-1e300), lowest64);
}

TEST(NSNumber, AFloatAroundTheEndsOfTheIntegersSaturates) {
    EXPECT_EQ(NSNumber::numberWithFloat(2147483520.0F).intValue(), 2147483520) << "the last float below 2^31";
    EXPECT_EQ(NSNumber::numberWithFloat(2147483648.0F).intValue(), 2147483647);
    EXPECT_EQ(NSNumber::numberWithFloat(-2147483648.0F).intValue(), lowest32);
    EXPECT_EQ(NSNumber::numberWithFloat(-2147483904.0F).intValue(), lowest32);
    EXPECT_EQ(NSNumber::numberWithFloat(9223371487098961920.0F).integerValue(), 9223371487098961920LL) << "the last float below 2^63";
    EXPECT_EQ(NSNumber::numberWithFloat(9223372036854775808.0F).integerValue(), highest64);
    EXPECT_EQ(NSNumber::numberWithFloat(-9223372036854775808.0F).integerValue(), lowest64);
    EXPECT_EQ(NSNumber::numberWithFloat(-3e38F).integerValue(), lowest64);
}

TEST(NSNumber, InfinitiesSaturateAndStayInfinite) {
    const NSNumber above = NSNumber::numberWithDouble(inf);
    EXPECT_TRUE(above.boolValue());
    EXPECT_EQ(above.intValue(), highest32);
    EXPECT_EQ(above.integerValue(), highest64);
    EXPECT_EQ(above.floatValue(), std::numeric_limits<float>::infinity());
    EXPECT_EQ(above.doubleValue(), inf);
    const NSNumber below = NSNumber::numberWithFloat(-std::numeric_limits<float>::infinity());
    EXPECT_TRUE(below.boolValue());
    EXPECT_EQ(below.intValue(), lowest32);
    EXPECT_EQ(below.integerValue(), lowest64);
    EXPECT_EQ(below.floatValue(), -std::numeric_limits<float>::infinity());
    EXPECT_EQ(below.doubleValue(), -inf);
}

TEST(NSNumber, NoNumberReadsAsIntegerZeroAndStaysNoNumber) {
    for (const NSNumber& number :
         {NSNumber::numberWithDouble(notANumber), NSNumber::numberWithFloat(std::numeric_limits<float>::quiet_NaN())}) {
        EXPECT_TRUE(number);
        EXPECT_FALSE(number.boolValue());
        EXPECT_EQ(number.intValue(), 0);
        EXPECT_EQ(number.integerValue(), 0);
        EXPECT_TRUE(std::isnan(number.floatValue()));
        EXPECT_TRUE(std::isnan(number.doubleValue()));
    }
}

TEST(NSNumber, AnythingButZeroIsTrue) {
    EXPECT_TRUE(NSNumber::numberWithDouble(0.25).boolValue());
    EXPECT_TRUE(NSNumber::numberWithDouble(-1e-300).boolValue());
    EXPECT_TRUE(NSNumber::numberWithFloat(1e-40F).boolValue());
    EXPECT_FALSE(NSNumber::numberWithDouble(-0.0).boolValue());
    EXPECT_FALSE(NSNumber::numberWithFloat(0.0F).boolValue());
}

// Floating point to floating point

TEST(NSNumber, ADoubleRoundsToTheNearestFloat) {
    EXPECT_EQ(NSNumber::numberWithDouble(0.1).floatValue(), 0.1F);
    EXPECT_EQ(NSNumber::numberWithDouble(16777217.0).floatValue(), 16777216.0F);
    EXPECT_EQ(NSNumber::numberWithDouble(16777217.000001).floatValue(), 16777218.0F);
    EXPECT_EQ(NSNumber::numberWithDouble(1e-60).floatValue(), 0.0F);
    EXPECT_TRUE(std::signbit(NSNumber::numberWithDouble(-0.0).floatValue()));
}

TEST(NSNumber, ADoubleBeyondTheFloatsReadsAsInfinity) {
    EXPECT_EQ(NSNumber::numberWithDouble(3.4028234663852886e38).floatValue(), 3.4028234663852886e38F);
    EXPECT_EQ(NSNumber::numberWithDouble(1e39).floatValue(), std::numeric_limits<float>::infinity());
    EXPECT_EQ(NSNumber::numberWithDouble(-1e39).floatValue(), -std::numeric_limits<float>::infinity());
}

TEST(NSNumber, AFloatIsWidenedAsItIs) {
    EXPECT_EQ(NSNumber::numberWithFloat(0.1F).doubleValue(), 0.100000001490116119384765625);
    EXPECT_EQ(NSNumber::numberWithFloat(0.1F).floatValue(), 0.1F);
}

// Handles

TEST(NSNumber, AnEmptyHandleReturnsZeroFromEveryGetter) {
    const NSNumber nothing;
    EXPECT_FALSE(nothing);
    EXPECT_EQ(nothing.type(), NSNumber::Type::None);
    EXPECT_FALSE(nothing.boolValue());
    EXPECT_EQ(nothing.intValue(), 0);
    EXPECT_EQ(nothing.integerValue(), 0);
    EXPECT_EQ(nothing.floatValue(), 0.0F);
    EXPECT_EQ(nothing.doubleValue(), 0.0);
}

TEST(NSNumber, ACopySharesTheBox) {
    const NSNumber number = NSNumber::numberWithInteger(5);
    // The copy is what is tested
    const NSNumber copy = number; // NOLINT(performance-unnecessary-copy-initialization)
    EXPECT_TRUE(copy.isIdenticalTo(number));
    EXPECT_TRUE(number.isIdenticalTo(copy));
    EXPECT_TRUE(number.isIdenticalTo(number));
}

TEST(NSNumber, EqualValuesInTwoBoxesAreNotIdentical) {
    EXPECT_FALSE(NSNumber::numberWithInteger(5).isIdenticalTo(NSNumber::numberWithInteger(5)));
    EXPECT_FALSE(NSNumber::numberWithBool(true).isIdenticalTo(NSNumber::numberWithBool(true)));
}

TEST(NSNumber, TwoEmptyHandlesAreIdenticalAndAnEmptyOneIsNotABoxedZero) {
    EXPECT_TRUE(NSNumber().isIdenticalTo(NSNumber()));
    EXPECT_FALSE(NSNumber().isIdenticalTo(NSNumber::numberWithInteger(0)));
    EXPECT_FALSE(NSNumber::numberWithInteger(0).isIdenticalTo(NSNumber()));
}

TEST(NSNumber, AssigningAnotherHandleLeavesCopiesOfTheOldOneAlone) {
    NSNumber number = NSNumber::numberWithDouble(1.5);
    const NSNumber before = number;
    number = NSNumber::numberWithDouble(2.5);
    EXPECT_EQ(before.doubleValue(), 1.5);
    EXPECT_EQ(number.doubleValue(), 2.5);
    EXPECT_FALSE(number.isIdenticalTo(before));
}
