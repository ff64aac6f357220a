#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace gx {

/// The plural categories of the Unicode Common Locale Data Repository (CLDR).
enum class GXPluralCategory { Zero, One, Two, Few, Many, Other };
inline constexpr int GXPluralCategoryCount = 6;

/// The properties of a number that the plural rules of languages depend on.
///
/// They are those of the digits that are shown: English has "1 kilometre" but "1.0 kilometres".
struct GXPluralOperands {
    /// Numbers from here on are reduced: rules look at the last two digits, or compare with less.
    static constexpr int limit = 1000;

    /// The digits before the separator. From `limit` on, 100 and the last two of them.
    int integer = 0;
    bool hasFraction = false;
    /// Whether the fraction is absent or only zeros.
    bool isFractionZero = true;

    constexpr bool isWhole() const { return !hasFraction; }
    /// 2 to 4, 22 to 24 and so on, but not 12 to 14, as Slavic languages have it.
    constexpr bool endsInTwoToFour() const {
        const int tens = integer % 100;
        return integer % 10 >= 2 && integer % 10 <= 4 && (tens < 12 || tens > 14);
    }

    static constexpr bool areDigits(std::string_view text) {
        return std::all_of(text.begin(), text.end(), [](char character) { return character >= '0' && character <= '9'; });
    }

    /// Of `whole` without a sign, and `fraction`; both digits only.
    static constexpr GXPluralOperands operandsOfDigits(std::string_view whole, std::string_view fraction) {
        GXPluralOperands operands;
        for (const char digit : whole) {
            operands.integer = operands.integer * 10 + (digit - '0');
            if (operands.integer >= limit) operands.integer = operands.integer % 100 + 100;
        }
        operands.hasFraction = !fraction.empty();
        operands.isFractionZero = fraction.find_first_not_of('0') == std::string_view::npos;
        return operands;
    }
};

/// A plural rule as a text: a digit, the number of a `GXPluralCategory`, for each group of numbers
/// that a rule can tell apart.
struct GXPluralTable {
    /// Larger integers have the category of 100 and their last two digits.
    static constexpr int integerCount = 200;
    static constexpr std::size_t size = 3 * static_cast<std::size_t>(integerCount);

    /// Whole numbers come first, then those with a fraction of zeros, then all others.
    static constexpr std::size_t indexOf(const GXPluralOperands& operands) {
        const std::size_t group = operands.isWhole() ? 0 : operands.isFractionZero ? 1 : 2;
        const int integer = operands.integer < integerCount ? operands.integer : operands.integer % 100 + 100;
        return group * static_cast<std::size_t>(integerCount) + static_cast<std::size_t>(integer);
    }
};

/// The rule of languages with two categories.
constexpr GXPluralCategory oneIf(bool isOne) { return isOne ? GXPluralCategory::One : GXPluralCategory::Other; }

} // namespace gx
