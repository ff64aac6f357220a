#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string>

#include "CGGeometry.h"
#include "NSNumber.h"

/// Reads decisions out of a target's bytes. Once they are used up every decision is 0, false or
/// empty.
///
/// One call has at most one decision among its arguments: compilers work arguments out in any order
/// (but for those in braces), and the same bytes have to do the same with each.
class FuzzBytes {
public:
    FuzzBytes(const std::uint8_t* data, std::size_t size) : data_(data), left_(size) {}

    bool isEmpty() const { return left_ == 0; }
    std::uint8_t byte() {
        if (left_ == 0) return 0;
        --left_;
        return *data_++;
    }
    /// From 0 to `count` − 1; `count` is from 1 to 256.
    unsigned below(unsigned count) { return byte() % count; }
    bool flag() { return (byte() & 1) != 0; }

    /// Small ones, the ends of the ranges, and any.
    gx::NSInteger integer() {
        constexpr auto largest = std::numeric_limits<gx::NSInteger>::max();
        constexpr std::array<gx::NSInteger, 10> odd = {largest,
                                                       -largest - 1,
                                                       -largest,
                                                       std::numeric_limits<std::int32_t>::max(),
                                                       std::numeric_limits<std::int32_t>::min(),
                                                       std::int64_t{1} << 32,
                                                       100'000,
                                                       3'600'000,
                                                       -1,
                                                       largest / 2};
        const unsigned kind = below(8);
        if (kind < 5) return byte();
        if (kind == 5) return odd[below(odd.size())];
        return kind == 6 ? -static_cast<gx::NSInteger>(byte()) : raw<gx::NSInteger>();
    }
    std::int32_t smallInteger() { return gx::NSNumber::numberWithInteger(integer()).intValue(); }
    /// Plausible ones, those that are no numbers or beyond all ranges, and any.
    double number() {
        using Limits = std::numeric_limits<double>;
        constexpr std::array<double, 12> odd = {Limits::quiet_NaN(),
                                                Limits::infinity(),
                                                -Limits::infinity(),
                                                Limits::max(),
                                                Limits::lowest(),
                                                Limits::denorm_min(),
                                                -0.0,
                                                9.3e18,
                                                -9.3e18,
                                                3.5e38,
                                                1e-9,
                                                2147483648.5};
        const unsigned kind = below(8);
        if (kind < 3) return byte();
        if (kind == 3) return byte() / 10.0 - 5;
        if (kind == 4) return byte() * 1000.0;
        if (kind == 5) return odd[below(odd.size())];
        return kind == 6 ? -static_cast<double>(byte()) : raw<double>();
    }
    float smallNumber() { return gx::NSNumber::numberWithDouble(number()).floatValue(); }
    /// Any kind of box, or none.
    gx::NSNumber box() {
        switch (below(6)) {
        case 0:
            return gx::NSNumber::numberWithInteger(integer());
        case 1:
            return gx::NSNumber::numberWithDouble(number());
        case 2:
            return gx::NSNumber::numberWithFloat(smallNumber());
        case 3:
            return gx::NSNumber::numberWithInt(smallInteger());
        case 4:
            return gx::NSNumber::numberWithBool(flag());
        default:
            return {};
        }
    }
    gx::CGPoint point() {
        if (below(8) == 0) return {number(), number()};
        return {byte() * 1.5, byte() * 1.5};
    }
    gx::CGRect rect() {
        if (below(3) == 0) return {{number(), number()}, {number(), number()}};
        return {{byte() / 2.0, byte() / 2.0}, {byte() * 2.0, byte() * 2.0}};
    }
    /// What people type at a wheel, character by character: digits, minus signs, separators and
    /// blanks of several scripts, and the beginnings of units.
    std::string typedText() {
        constexpr std::array<const char*, 12> odd = {"-", "\xe2\x88\x92", ".",       ",", "\xd9\xab", ":", "k", "m", "P",
                                                     " ", "\xe2\x80\x8f", "\xd9\xac"};
        std::string result;
        for (unsigned left = below(8) == 7 ? below(6) : 1; left > 0; --left) {
            const unsigned which = below(32);
            if (which < 10) {
                result += static_cast<char>('0' + which);
            } else if (which < 20) {
                result += "\xd9"; // Arabic-Indic digits.
                result += static_cast<char>(0xA0 + which - 10);
            } else {
                result += odd[which - 20];
            }
        }
        return result;
    }
    /// Bytes as they come, so seldom valid UTF-8; or the texts that wheels show.
    std::string text() {
        constexpr std::array<const char*, 8> shown = {"1",
                                                      "12",
                                                      "3.5",
                                                      ":",
                                                      "kg",
                                                      "",
                                                      "\xd9\xa3",
                                                      "\xe2\x88\x92"
                                                      "7"};
        if (flag()) return shown[below(shown.size())];
        std::string result;
        for (unsigned left = below(12); left > 0; --left) result += static_cast<char>(byte());
        return result;
    }

private:
    template <class T>
    T raw() {
        std::array<std::uint8_t, sizeof(T)> bytes = {};
        for (std::uint8_t& each : bytes) each = byte();
        T value;
        std::memcpy(&value, bytes.data(), sizeof value);
        return value;
    }

    const std::uint8_t* data_;
    std::size_t left_;
};
