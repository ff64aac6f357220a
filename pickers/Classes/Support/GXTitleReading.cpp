#include "GXTitleReading.h"

#include <charconv>
#include <limits>
#include <string_view>

namespace gx {

namespace {

// Fractions are read so far: finer digits change no double, and this is the largest power of ten
// that a double holds exactly.
constexpr double finestScale = 1e22;

bool isDigit(char character) { return character >= '0' && character <= '9'; }

/// The title without its leading blanks.
std::string_view withoutBlanks(const std::optional<std::string>& title) {
    if (!title) return {};
    const std::string_view text = *title;
    const std::size_t start = text.find_first_not_of(" \t\n\v\f\r");
    return start == std::string_view::npos ? std::string_view{} : text.substr(start);
}

/// Takes a sign off the text; returns whether it was a minus.
bool takeMinus(std::string_view& text) {
    const bool isNegative = text.substr(0, 1) == "-";
    if (isNegative || text.substr(0, 1) == "+") text.remove_prefix(1);
    return isNegative;
}

} // namespace

NSInteger integerValueOfTitle(const std::optional<std::string>& title) {
    std::string_view text = withoutBlanks(title);
    // What reads the digits takes a minus but no plus.
    if (text.substr(0, 1) == "+") text.remove_prefix(text.substr(0, 2) == "+-" ? text.size() : 1);
    NSInteger value = 0;
    const std::from_chars_result result = std::from_chars(text.data(), text.data() + text.size(), value);
    if (result.ec != std::errc::result_out_of_range) return value;
    return text.front() == '-' ? std::numeric_limits<NSInteger>::min() : std::numeric_limits<NSInteger>::max();
}

double doubleValueOfTitle(const std::optional<std::string>& title) {
    std::string_view text = withoutBlanks(title);
    const bool isNegative = takeMinus(text);
    // The digits are gathered into one whole number and divided once, so that there is but one
    // rounding.
    double digits = 0;
    double scale = 1;
    bool isFraction = false;
    for (const char character : text) {
        if (character == '.' && !isFraction) {
            isFraction = true;
        } else if (!isDigit(character)) {
            break;
        } else if (scale < finestScale) {
            digits = digits * 10 + (character - '0');
            if (isFraction) scale *= 10;
        }
    }
    return isNegative ? -digits / scale : digits / scale;
}

} // namespace gx
