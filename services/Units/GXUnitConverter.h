#pragma once

#include "GXExport.h"

namespace gx {

/// Converts between the units that values are kept in (kilograms, degrees Celsius) and those that a
/// wheel may show instead.
///
/// Distances, speeds, durations and heights are converted by their own pickers. Operations work in
/// double precision and narrow once:
///
/// - From kilograms and Celsius, to the nearest float.
/// - To them, to the next float that is not below the result. So what is picked in pounds, stones
///   or Fahrenheit comes back equal or slightly higher, and truncation keeps the digits that were
///   picked. A caller that adds up the argument first narrows its sum in the same way.
///
/// Every float is valid. NaN gives NaN, an infinity itself. A result above the range of a float is
/// infinity. One below it is -infinity, or from `stToKg`, which rounds upward, the lowest float.
class GX_EXPORT GXUnitConverter {
public:
    GXUnitConverter() = delete;

    /// Kilograms to pounds, to the nearest float.
    static float kgToLb(float kilograms);
    /// Pounds to kilograms, to the next float that is not below.
    static float lbToKg(float pounds);
    /// In decimal stones: 3.5 are three stones and seven pounds.
    static float kgToSt(float kilograms);
    /// From decimal stones.
    static float stToKg(float stones);
    /// Celsius to Fahrenheit, to the nearest float.
    static float temperatureCtoF(float celsius);
    /// Fahrenheit to Celsius, to the next float that is not below.
    static float temperatureFtoC(float fahrenheit);
};

} // namespace gx
