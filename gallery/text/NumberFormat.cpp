#include "NumberFormat.h"

#include <algorithm>
#include <cmath>

#include <GXUIPickers/NSLocale.h>

using namespace gx;

namespace gallery {

namespace {

std::string twoDigits(std::int64_t value) { return (value < 10 ? "0" : "") + std::to_string(value); }

std::string decimalWithSeparator(double value, int digits, const std::string& separator) {
    // Below this every whole number is a double, so that nothing is lost on the way to an integer.
    constexpr double tooLarge = 9e15;
    const int decimals = std::clamp(digits, 0, 6);
    std::int64_t scale = 1;
    for (int i = 0; i < decimals; ++i) scale *= 10;
    const double scaled = std::round(value * static_cast<double>(scale));
    if (!(std::fabs(scaled) < tooLarge)) return "–";
    const auto whole = static_cast<std::int64_t>(std::fabs(scaled));
    std::string text = std::to_string(whole / scale);
    if (decimals > 0) {
        const std::string fraction = std::to_string(whole % scale);
        text += separator + std::string(static_cast<std::size_t>(decimals) - fraction.size(), '0') + fraction;
    }
    return scaled < 0 ? "−" + text : text;
}

} // namespace

std::string NumberFormat::decimal(double value, int digits) {
    const auto separator = NSLocale::currentLocale()->objectForKey(NSLocaleDecimalSeparator);
    const std::string text = decimalWithSeparator(value, digits, separator.value_or("."));
    // Beside a unit in Arabic the sign would stand behind the digits.
    return text.find("−") == 0 ? isolated(text) : text;
}

std::string NumberFormat::isolated(const std::string& text) {
    // It closes what it opens. NOLINTNEXTLINE(misc-misleading-bidirectional)
    return NSLocale::currentLocale()->isRightToLeft() ? "\u2066" + text + "\u2069" : text;
}

std::string NumberFormat::minutes(std::int64_t seconds) { return std::to_string(seconds / 60) + ":" + twoDigits(seconds % 60); }

std::string NumberFormat::hours(std::int64_t minutes) { return std::to_string(minutes / 60) + ":" + twoDigits(minutes % 60); }

std::string NumberFormat::clock(std::int64_t seconds) { return hours(seconds / 60) + ":" + twoDigits(seconds % 60); }

std::string NumberFormat::boxed(const NSNumber& number) {
    if (number.type() != NSNumber::Type::Float && number.type() != NSNumber::Type::Double) return std::to_string(number.integerValue());
    std::string text = decimalWithSeparator(number.doubleValue(), 4, ".");
    const std::size_t point = text.find('.');
    if (point == std::string::npos) return text;
    // The first decimal stays: it tells a floating-point box from an integer.
    text.erase(std::max(point + 2, text.find_last_not_of('0') + 1));
    return text;
}

} // namespace gallery
