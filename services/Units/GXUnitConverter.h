#pragma once

namespace gx {

/// The conversions between the units that values are kept in (kilograms, degrees Celsius) and those that a wheel may show instead.
/// Never instantiated. Distances, speeds, durations and heights are converted by their own pickers.
///
/// Every operation works in double precision and narrows once. Away from kilograms and Celsius the result is the nearest float; back to
/// them it is the next float that is not below the result. So what is picked in pounds, stones or degrees Fahrenheit comes back as it was
/// or a hair higher, never lower: digits that are cut off stay the ones that were picked. That holds for the number that is handed in:
/// callers that add it up first do well to narrow their sum the same way.
///
/// Any float is taken, negative ones too: NaN gives NaN, an infinity the same infinity; a result above the range of a float is infinity
/// and one below it is -infinity, or from `stToKg`, which rounds upward, the lowest float.
class GXUnitConverter {
public:
    GXUnitConverter() = delete;

    static float kgToLb(float kilograms);
    static float lbToKg(float pounds);
    /// In decimal stones: 3.5 are three stones and seven pounds.
    static float kgToSt(float kilograms);
    /// From decimal stones.
    static float stToKg(float stones);
    static float temperatureCtoF(float celsius);
    static float temperatureFtoC(float fahrenheit);
};

} // namespace gx
