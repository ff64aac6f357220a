#pragma once

// The notation of the tables in tests/reference, which is described at the head of make_tables.py
// there.

#include <gtest/gtest.h>

#include <charconv>
#include <cmath>
#include <string>
#include <vector>

#include "NSNumber.h"

namespace reference {

using Texts = std::vector<std::string>;

inline Texts split(const std::string& text, char separator) {
    Texts parts(1);
    for (const char c : text) {
        if (c == separator)
            parts.emplace_back();
        else
            parts.back() += c;
    }
    return parts;
}

inline std::string joined(const Texts& parts, const char* separator) {
    std::string text;
    for (const std::string& part : parts) text += (text.empty() ? "" : separator) + part;
    return text;
}

/// Without the C locale. What is no number, or has something behind it, is a mistake in the table.
template <class Integer>
Integer integerFrom(const std::string& text, int base = 10) {
    Integer value = 0;
    const char* const end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, value, base);
    EXPECT_TRUE(result.ec == std::errc() && result.ptr == end) << "no number: " << text;
    return value;
}

/// A hex float of a whole mantissa, such as 0x9c4p1 for 5000.
inline double realFrom(const std::string& text) {
    const bool isNegative = text.starts_with('-');
    const Texts parts = split(isNegative ? text.substr(1) : text, 'p');
    if (parts.size() != 2 || !parts[0].starts_with("0x")) {
        ADD_FAILURE() << "no hex float: " << text;
        return 0;
    }
    const double mantissa = static_cast<double>(integerFrom<std::uint64_t>(parts[0].substr(2), 16));
    return std::ldexp(isNegative ? -mantissa : mantissa, integerFrom<int>(parts[1]));
}

inline std::string textOf(double value) {
    if (!std::isfinite(value)) return std::isnan(value) ? "nan" : value > 0 ? "inf" : "-inf";
    if (value == 0) return "0x0p0";
    int power = 0;
    auto mantissa = static_cast<std::uint64_t>(std::ldexp(std::frexp(std::fabs(value), &power), 53));
    for (power -= 53; mantissa % 2 == 0; ++power) mantissa /= 2;
    std::string digits(16, '0');
    const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), mantissa, 16);
    digits.resize(static_cast<std::size_t>(result.ptr - digits.data()));
    return (value < 0 ? "-0x" : "0x") + digits + "p" + std::to_string(power);
}

inline std::string textOf(const gx::NSNumber& number) {
    switch (number.type()) {
    case gx::NSNumber::Type::Int:
        return "i32 " + std::to_string(number.integerValue());
    case gx::NSNumber::Type::Integer:
        return "i64 " + std::to_string(number.integerValue());
    case gx::NSNumber::Type::Float:
        return "f32 " + textOf(number.doubleValue());
    case gx::NSNumber::Type::Double:
        return "f64 " + textOf(number.doubleValue());
    case gx::NSNumber::Type::Bool:
        return "bool " + std::to_string(number.integerValue());
    case gx::NSNumber::Type::None:
        break;
    }
    return "none";
}

inline std::string textOf(gx::NSInteger component, const gx::NSNumber& value) {
    return "told " + std::to_string(component) + " " + textOf(value);
}

/// What a property is set to: a box, or a plain number or flag.
struct Argument {
    gx::NSNumber box;
    gx::NSInteger number = 0;
    double real = 0;

    explicit Argument(const Texts& words) {
        const std::string& kind = words.at(2);
        if (kind == "none") return;
        const std::string& value = words.at(3);
        if (kind == "i32")
            box = gx::NSNumber::numberWithInt(integerFrom<std::int32_t>(value));
        else if (kind == "i64")
            box = gx::NSNumber::numberWithInteger(integerFrom<gx::NSInteger>(value));
        else if (kind == "f32")
            box = gx::NSNumber::numberWithFloat(static_cast<float>(realFrom(value)));
        else if (kind == "f64")
            box = gx::NSNumber::numberWithDouble(realFrom(value));
        else if (kind == "flag" || kind == "number")
            number = integerFrom<gx::NSInteger>(value);
        else if (kind == "real")
            real = realFrom(value);
        else
            ADD_FAILURE() << "unknown kind of number: " << kind;
    }
    bool flag() const { return number != 0; }
    std::int32_t narrow() const { return static_cast<std::int32_t>(number); }
};

} // namespace reference
