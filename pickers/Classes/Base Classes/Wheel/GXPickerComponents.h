#pragma once

#include <algorithm>
#include <string>

#include "CGGeometry.h"
#include "NSObject.h"

namespace gx {

// What the pickers' components have in common: their numbers, their widths, how they show numbers.

// A number with decimal places. Distance, speed and weight lay it out so.
inline constexpr NSInteger wholeComponent = 0;
inline constexpr NSInteger separatorComponent = 1;
inline constexpr NSInteger tenthsComponent = 2;
inline constexpr NSInteger hundredthsComponent = 3;

// Widths in points. Prescribed by the product.
inline constexpr CGFloat decimalSeparatorWidth = 3;
inline constexpr CGFloat colonWidth = 5;
/// Of a component that the distance and the speed do not have.
inline constexpr CGFloat unknownComponentWidth = 40;

/// A component's own step: at least 1.
inline std::int32_t stepOfAtLeastOne(std::int32_t step) { return std::max(step, 1); }

// Two ways to show minutes and seconds. They differ below 0, which no range in use reaches.

/// At least two characters, a minus included: 5 is "05", -5 is "-5".
inline std::string paddedToTwoCharacters(NSInteger number) {
    std::string text = std::to_string(number);
    return text.size() < 2 ? "0" + text : text;
}
/// A 0 before every number below 10: 5 is "05", -5 is "0-5".
inline std::string withZeroBelowTen(std::int32_t number) { return (number < 10 ? "0" : "") + std::to_string(number); }

} // namespace gx
