#include "GXUnitConverter.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

namespace gx {
namespace {

using Converter = GXUnitConverter;

using Conversion = float (*)(float);

constexpr float infinity = std::numeric_limits<float>::infinity();
constexpr float largest = std::numeric_limits<float>::max();

struct Picked {
    int whole;
    int tenth;
};

/// A weight as a wheel of wholes and a wheel of tenths give it to the converter, and as they show
/// what was kept.
Picked roundTrip(Picked picked, Conversion toKilograms, Conversion fromKilograms) {
    const double sum = picked.whole + picked.tenth / 10.0;
    const float kept = toKilograms(static_cast<float>(sum));
    const float shown = fromKilograms(kept);
    const float whole = std::floor(shown);
    return {static_cast<int>(whole), static_cast<int>(std::round((shown - whole) * 10.0F))};
}

void expectEveryTenthToComeBack(int firstWhole, int lastWhole, Conversion toKilograms, Conversion fromKilograms) {
    for (int whole = firstWhole; whole <= lastWhole; ++whole) {
        for (int tenth = 0; tenth <= 9; ++tenth) {
            const Picked shown = roundTrip({whole, tenth}, toKilograms, fromKilograms);
            EXPECT_EQ(shown.whole, whole) << "picked " << whole << "." << tenth;
            EXPECT_EQ(shown.tenth, tenth) << "picked " << whole << "." << tenth;
        }
    }
}

TEST(GXUnitConverter, EveryPickedTenthOfAPoundComesBackToItself) {
    expectEveryTenthToComeBack(34, 770, Converter::lbToKg, Converter::kgToLb);
}

TEST(GXUnitConverter, EveryPickedTenthOfAStoneComesBackToItself) {
    expectEveryTenthToComeBack(3, 54, Converter::stToKg, Converter::kgToSt);
}

TEST(GXUnitConverter, TheHighestPoundsOfAWheelComeBackWithinFloatPrecision) {
    // Neighbouring floats lie 2^-14 apart here.
    EXPECT_NEAR(Converter::kgToLb(Converter::lbToKg(770.9F)), 770.9F, 0.000061035F);
}

/// The row that a Fahrenheit wheel shows for what it keeps of row `picked`, its rows counted from
/// `minimum` degrees Celsius.
int fahrenheitRoundTrip(int picked, int minimum, int step) {
    const float first = Converter::temperatureCtoF(static_cast<float>(minimum));
    const float fahrenheit = first + static_cast<float>(step * picked);
    const float kept = Converter::temperatureFtoC(fahrenheit);
    return static_cast<int>(std::trunc(Converter::temperatureCtoF(kept) - first)) / step;
}

TEST(GXUnitConverter, EveryRowOfAFahrenheitWheelComesBackToItself) {
    for (int row = 0; row < 28; ++row) EXPECT_EQ(fahrenheitRoundTrip(row, -20, 5), row);
}

TEST(GXUnitConverter, EveryRowComesBackToItselfWhereTheFahrenheitMinimumIsWhole) {
    for (int minimum = -100; minimum <= 100; minimum += 5) {
        for (int step = 1; step <= 10; ++step) {
            for (int row = 0; row * step < 200; ++row) {
                EXPECT_EQ(fahrenheitRoundTrip(row, minimum, step), row) << "minimum " << minimum << " °C, step " << step;
            }
        }
    }
}

TEST(GXUnitConverter, NothingComesBackLowerThanItWas) {
    for (int tenths = -20000; tenths <= 20000; ++tenths) {
        const float given = static_cast<float>(tenths / 10.0);
        EXPECT_GE(Converter::kgToLb(Converter::lbToKg(given)), given);
        EXPECT_GE(Converter::kgToSt(Converter::stToKg(given)), given);
        EXPECT_GE(Converter::temperatureCtoF(Converter::temperatureFtoC(given)), given);
    }
}

// The expected floats below were worked out in exact fractions. Each is compared with itself, so
// one unit to either side fails.

TEST(GXUnitConverter, GivesTheFloatNearestToTheWeightInPounds) {
    EXPECT_EQ(Converter::kgToLb(1.0F), 2.20462251F);  // exactly 2.204622622, next 2.20462275
    EXPECT_EQ(Converter::kgToLb(72.5F), 159.835144F); // exactly 159.835140, before 159.835129
    EXPECT_EQ(Converter::kgToLb(15.0F), 33.0693398F); // exactly 33.06933933, before 33.0693359
    EXPECT_EQ(Converter::kgToLb(350.0F), 771.61792F); // exactly 771.617918, before 771.617859
}

TEST(GXUnitConverter, GivesTheFloatNearestToTheWeightInStones) {
    EXPECT_EQ(Converter::kgToSt(1.0F), 0.157473043F);  // exactly 0.1574730444, next 0.157473058
    EXPECT_EQ(Converter::kgToSt(72.5F), 11.4167957F);  // exactly 11.41679572, next 11.4167967
    EXPECT_EQ(Converter::kgToSt(6.35029316F), 1.0F);   // exactly 0.9999999968, before 0.99999994
    EXPECT_EQ(Converter::kgToSt(349.9F), 55.0998192F); // exactly 55.09981728, before 55.0998154
}

TEST(GXUnitConverter, NeverKeepsLessThanTheWeightPickedInPounds) {
    EXPECT_EQ(Converter::lbToKg(1.0F), 0.45359239F);   // exactly 0.45359237, nearest 0.45359236
    EXPECT_EQ(Converter::lbToKg(34.0F), 15.4221411F);  // exactly 15.42214058, nearest 15.4221401
    EXPECT_EQ(Converter::lbToKg(160.5F), 72.8015823F); // exactly 72.801575385, nearest 72.8015747
    EXPECT_EQ(Converter::lbToKg(771.0F), 349.719727F); // exactly 349.71971727, nearest 349.719727
    EXPECT_EQ(Converter::lbToKg(-1.0F), -0.45359236F); // exactly -0.45359237
}

TEST(GXUnitConverter, NeverKeepsLessThanTheWeightPickedInStones) {
    EXPECT_EQ(Converter::stToKg(1.0F), 6.35029364F);   // exactly 6.35029318, nearest 6.35029316
    EXPECT_EQ(Converter::stToKg(3.0F), 19.0508804F);   // exactly 19.05087954, nearest 19.0508804
    EXPECT_EQ(Converter::stToKg(55.0F), 349.266144F);  // exactly 349.2661249, nearest 349.266113
    EXPECT_EQ(Converter::stToKg(-1.0F), -6.35029316F); // exactly -6.35029318
}

TEST(GXUnitConverter, GivesTheFloatNearestToTheTemperatureInFahrenheit) {
    EXPECT_EQ(Converter::temperatureCtoF(-40.0F), -40.0F);
    EXPECT_EQ(Converter::temperatureCtoF(-20.0F), -4.0F);
    EXPECT_EQ(Converter::temperatureCtoF(0.0F), 32.0F);
    EXPECT_EQ(Converter::temperatureCtoF(60.0F), 140.0F);
    // before -0.400000036, next -0.399999976
    EXPECT_EQ(Converter::temperatureCtoF(-18.0F), -0.4F);
    // exactly 72.86000137, next 72.8600082
    EXPECT_EQ(Converter::temperatureCtoF(22.7F), 72.8600006F);
    // exactly 99.98600082, next 99.9860077
    EXPECT_EQ(Converter::temperatureCtoF(37.7700005F), 99.9860001F);
}

TEST(GXUnitConverter, NeverKeepsLessThanTheTemperaturePickedInFahrenheit) {
    EXPECT_EQ(Converter::temperatureFtoC(-40.0F), -40.0F);
    EXPECT_EQ(Converter::temperatureFtoC(-4.0F), -20.0F);
    EXPECT_EQ(Converter::temperatureFtoC(32.0F), 0.0F);
    EXPECT_EQ(Converter::temperatureFtoC(131.0F), 55.0F);
    // exactly -17.22222222, before -17.2222233
    EXPECT_EQ(Converter::temperatureFtoC(1.0F), -17.2222214F);
    // exactly 18.88888889, before 18.8888874
    EXPECT_EQ(Converter::temperatureFtoC(66.0F), 18.8888893F);
    // exactly 37.94444614, before 37.9444427
    EXPECT_EQ(Converter::temperatureFtoC(100.3F), 37.9444466F);
}

TEST(GXUnitConverter, HandsNaNAndInfinitiesOn) {
    for (const Conversion conversion : {Converter::kgToLb, Converter::lbToKg, Converter::kgToSt, Converter::stToKg,
                                        Converter::temperatureCtoF, Converter::temperatureFtoC}) {
        EXPECT_TRUE(std::isnan(conversion(std::numeric_limits<float>::quiet_NaN())));
        EXPECT_EQ(conversion(infinity), infinity);
        EXPECT_EQ(conversion(-infinity), -infinity);
    }
}

TEST(GXUnitConverter, ReturnsInfinityOrTheLowestFloatBeyondTheRange) {
    EXPECT_EQ(Converter::kgToLb(largest), infinity);
    EXPECT_EQ(Converter::kgToLb(-largest), -infinity);
    EXPECT_EQ(Converter::stToKg(largest), infinity);
    EXPECT_EQ(Converter::stToKg(-largest), -largest);
    EXPECT_EQ(Converter::temperatureCtoF(largest), infinity);
    EXPECT_EQ(Converter::temperatureCtoF(-largest), -infinity);
    EXPECT_LT(Converter::lbToKg(largest), largest);
    EXPECT_LT(Converter::kgToSt(largest), largest);
    EXPECT_LT(Converter::temperatureFtoC(largest), largest);
}

} // namespace
} // namespace gx
