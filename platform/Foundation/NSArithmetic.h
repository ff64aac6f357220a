#pragma once

#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>

/// Arithmetic that is defined for every input, for values that an application may set to anything.
namespace gx {

// Narrower integers would be widened to int on the way, and overflow there.
template <class Integer>
concept WrappingInteger = std::is_signed_v<Integer> && sizeof(Integer) >= sizeof(int);

/// Sums, differences and products that wrap around as two's complement numbers.
template <WrappingInteger Integer>
constexpr Integer wrappingAdd(Integer a, Integer b) {
    using Unsigned = std::make_unsigned_t<Integer>;
    return static_cast<Integer>(static_cast<Unsigned>(a) + static_cast<Unsigned>(b));
}
/// The difference, wrapped around.
template <WrappingInteger Integer>
constexpr Integer wrappingSubtract(Integer a, Integer b) {
    using Unsigned = std::make_unsigned_t<Integer>;
    return static_cast<Integer>(static_cast<Unsigned>(a) - static_cast<Unsigned>(b));
}
/// The product, wrapped around.
template <WrappingInteger Integer>
constexpr Integer wrappingMultiply(Integer a, Integer b) {
    using Unsigned = std::make_unsigned_t<Integer>;
    return static_cast<Integer>(static_cast<Unsigned>(a) * static_cast<Unsigned>(b));
}

/// The quotient truncated toward zero. By zero it is 0; the smallest integer by −1 wraps to itself.
template <WrappingInteger Integer>
constexpr Integer quotient(Integer dividend, Integer divisor) {
    if (divisor == 0) return 0;
    if (divisor == -1) return wrappingSubtract(Integer{0}, dividend);
    return dividend / divisor;
}

/// The remainder with the sign of the dividend. By zero, and by −1, it is 0.
template <WrappingInteger Integer>
constexpr Integer remainder(Integer dividend, Integer divisor) {
    if (divisor == 0 || divisor == -1) return 0;
    return dividend % divisor;
}

/// The integer part of a floating-point number, clamped to the range of the target; a NaN gives 0.
template <class Integer, class Floating>
Integer truncateTo(Floating value) {
    static_assert(std::is_integral_v<Integer> && std::is_floating_point_v<Floating>);
    if (std::isnan(value)) return 0;
    // The largest integer may not be representable; the power of two above it always is.
    const Floating end = std::ldexp(Floating{1}, std::numeric_limits<Integer>::digits);
    if (value >= end) return std::numeric_limits<Integer>::max();
    const Floating start = std::is_signed_v<Integer> ? -end : Floating{0};
    if (value <= start) return std::numeric_limits<Integer>::min();
    return static_cast<Integer>(value);
}

/// 10 to a whole number from 0 to 22, all of which a double has exactly. `std::pow` would bring its
/// tables along, 4 KiB of a browser's download.
constexpr double powerOfTen(int exponent) {
    double power = 1;
    for (int i = 0; i < exponent; ++i) power *= 10;
    return power;
}

/// The low 32 bits of an integer, as a signed number.
constexpr std::int32_t narrowTo32Bits(std::int64_t value) {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(static_cast<std::uint64_t>(value)));
}

} // namespace gx
