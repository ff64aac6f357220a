#pragma once

#include <cstdint>
#include <string>

#include <GXUIPickers/NSNumber.h>

namespace gallery {

/// Numbers as a person reads them, and as the program holds them.
class NumberFormat {
public:
    NumberFormat() = delete;

    /// Rounded to `digits` decimals (0 to 6), halves away from zero: "5.3" or "5,3", with the
    /// decimal separator of the current locale. "–" for what is not finite or too large to count.
    /// Isolated if it is negative.
    static std::string decimal(double value, int digits);
    /// A number and a Latin unit that keep their order in a right-to-left locale; the same text in
    /// others.
    static std::string isolated(const std::string& text);
    /// Minutes and seconds, "5:07".
    static std::string minutes(std::int64_t seconds);
    /// Hours and minutes, "1:05".
    static std::string hours(std::int64_t minutes);
    /// "1:20:07".
    static std::string clock(std::int64_t seconds);
    /// What is in the box: integers as they are, others with a point and one to four decimals.
    static std::string boxed(const gx::NSNumber& number);
};

} // namespace gallery
