#include "GXPlural.h"

#include <algorithm>
#include <cstdint>

namespace gx {

namespace {

bool isDigit(char character) { return character >= '0' && character <= '9'; }

bool areDigits(std::string_view text) { return std::all_of(text.begin(), text.end(), isDigit); }

/// The value of the last digits, which are all that a rule looks at; more than that remains more than any of them.
int lastDigits(std::string_view whole) {
    constexpr int aboveAllRules = 100;
    int value = 0;
    for (const char digit : whole) {
        value = value * 10 + (digit - '0');
        if (value >= 10 * aboveAllRules) value = value % aboveAllRules + aboveAllRules;
    }
    return value;
}

bool isOneOf(std::string_view language, std::initializer_list<std::string_view> languages) {
    return std::find(languages.begin(), languages.end(), language) != languages.end();
}

/// In Polish and Russian, 2 to 4, 22 to 24 and so on, but not 12 to 14.
bool isFew(int number) { return number % 10 >= 2 && number % 10 <= 4 && (number % 100 < 12 || number % 100 > 14); }

} // namespace

GXPluralCategory pluralCategoryOfNumber(std::string_view language, std::string_view whole, std::string_view fraction) {
    if (!whole.empty() && (whole.front() == '-' || whole.front() == '+')) whole.remove_prefix(1);
    if (whole.empty() || !areDigits(whole) || !areDigits(fraction)) return GXPluralCategory::Other;
    const int number = lastDigits(whole);
    const bool isWhole = fraction.empty();
    const auto oneIf = [](bool isOne) { return isOne ? GXPluralCategory::One : GXPluralCategory::Other; };
    if (isOneOf(language, {"ja", "zh-Hans", "ko", "tr"})) return GXPluralCategory::Other;
    if (isOneOf(language, {"fr", "pt"})) return oneIf(number <= 1);
    if (isOneOf(language, {"es"})) return oneIf(number == 1 && fraction.find_first_not_of('0') == std::string_view::npos);
    if (language == "pl" || language == "ru") {
        if (!isWhole) return GXPluralCategory::Other;
        const bool isOne = language == "pl" ? number == 1 : number % 10 == 1 && number % 100 != 11;
        if (isOne) return GXPluralCategory::One;
        return isFew(number) ? GXPluralCategory::Few : GXPluralCategory::Many;
    }
    return oneIf(isWhole && number == 1);
}

} // namespace gx
