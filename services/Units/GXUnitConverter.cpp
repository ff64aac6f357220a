#include "GXUnitConverter.h"

#include "GXRounding.h"

namespace gx {

namespace {
// The international pound is exactly this many kilograms (agreement of 1959), and a stone is 14
// pounds.
constexpr double kilogramsPerPound = 0.45359237;
constexpr double kilogramsPerStone = 6.35029318;
// A Celsius degree is 9/5 of a Fahrenheit degree, and water freezes at 32 °F.
constexpr double fahrenheitOfFreezing = 32;
} // namespace

float GXUnitConverter::kgToLb(float kilograms) { return toNearestFloat(static_cast<double>(kilograms) / kilogramsPerPound); }

float GXUnitConverter::lbToKg(float pounds) { return toBiggerFloat(static_cast<double>(pounds) * kilogramsPerPound); }

float GXUnitConverter::kgToSt(float kilograms) { return toNearestFloat(static_cast<double>(kilograms) / kilogramsPerStone); }

float GXUnitConverter::stToKg(float stones) { return toBiggerFloat(static_cast<double>(stones) * kilogramsPerStone); }

float GXUnitConverter::temperatureCtoF(float celsius) {
    return toNearestFloat(static_cast<double>(celsius) * 9 / 5 + fahrenheitOfFreezing);
}

float GXUnitConverter::temperatureFtoC(float fahrenheit) {
    return toBiggerFloat((static_cast<double>(fahrenheit) - fahrenheitOfFreezing) * 5 / 9);
}

} // namespace gx
