#include "UIPickerOrderedNumbers.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "NSArithmetic.h"
#include "UIPickerTyping.h"

namespace gx {

// Reading

std::optional<UIPickerOrderedNumbers::Number> UIPickerOrderedNumbers::leadingNumber(const std::string& text) {
    std::size_t at = 0;
    Number number;
    number.isNegative = text.substr(0, 1) == "-";
    if (number.isNegative) at = 1;
    // The column behind a decimal separator may title its rows with it.
    if (text.substr(at, 1) == ".") ++at;
    bool isFraction = false;
    for (; at < text.size(); ++at) {
        const bool isSeparator =
            text[at] == '.' && !isFraction && number.digits > 0 && at + 1 < text.size() && UIPickerTyping::isDigit(text[at + 1]);
        if (isSeparator) {
            isFraction = true;
            continue;
        }
        if (!UIPickerTyping::isDigit(text[at])) break;
        if (++number.digits > mostDigits) return std::nullopt;
        if (isFraction) ++number.decimals;
        number.value = number.value * 10 + static_cast<NSInteger>(text[at] - '0');
    }
    const bool isAlone = std::none_of(text.begin() + static_cast<std::ptrdiff_t>(at), text.end(), UIPickerTyping::isDigit);
    if (number.digits == 0 || !isAlone) return std::nullopt;
    if (number.isNegative) number.value = -number.value;
    return number;
}

std::optional<UIPickerOrderedNumbers::Number> UIPickerOrderedNumbers::wholeNumber(const std::string& text) {
    const std::optional<Number> number = leadingNumber(text);
    return number && number->decimals == 0 && UIPickerTyping::isDigit(text.back()) ? number : std::nullopt;
}

UIPickerOrderedNumbers::UIPickerOrderedNumbers(NSInteger count, const Titles& titles, Reading reading)
    : titles_(titles), reading_(reading) {
    if (count <= 0) return;
    firstRow_ = numberOfRow(0) ? 0 : 1;
    if (firstRow_ >= count) return;
    const std::optional<Number> first = numberOfRow(firstRow_);
    const std::optional<Number> last = numberOfRow(count - 1);
    if (!first || !last || first->decimals != last->decimals) return;
    size_ = count - firstRow_;
    first_ = *first;
    last_ = *last;
    isDescending_ = last_.value < first_.value;
    highestDigitCount_ = std::max(first_.digits, last_.digits);
    hasNegative_ = first_.isNegative || last_.isNegative;
}

std::optional<UIPickerOrderedNumbers::Number> UIPickerOrderedNumbers::numberOfRow(NSInteger row) const {
    const std::optional<std::string> title = titles_(row);
    return title ? reading_(UIPickerTyping::readableForm(*title)) : std::nullopt;
}

std::optional<UIPickerOrderedNumbers::Entry> UIPickerOrderedNumbers::entryBetween(NSInteger lowest, NSInteger highest) const {
    std::optional<Entry> entry;
    NSInteger begin = 0;
    NSInteger end = size_;
    while (begin < end) {
        const NSInteger middle = begin + (end - begin) / 2;
        const std::optional<Number> number = numberOfRow(rowAt(middle));
        if (!number) return std::nullopt; // Not in order after all.
        if (number->value < lowest) {
            begin = middle + 1;
        } else {
            end = middle;
            entry = Entry{rowAt(middle), *number};
        }
    }
    return entry && entry->number.value <= highest ? entry : std::nullopt;
}

// The numbers shown

double UIPickerOrderedNumbers::shownOf(const Number& number) const {
    return static_cast<double>(number.value) / powerOfTen(first_.decimals);
}

/// From the first number to the second, with its sign.
double UIPickerOrderedNumbers::stepAtFirst() const {
    const std::optional<Number> second = size_ > 1 ? numberOfRow(firstRow_ + 1) : std::nullopt;
    const double step = second ? shownOf(*second) - shownOf(first_) : 0;
    return step != 0 ? step : 1;
}

std::optional<UIPickerOrderedNumbers::Shown> UIPickerOrderedNumbers::shownAtRow(NSInteger row) const {
    if (isEmpty()) return std::nullopt;
    const double step = stepAtFirst();
    const double before = shownOf(first_) - step;
    Shown shown;
    shown.minimum = shownOf(isDescending_ ? last_ : first_);
    shown.maximum = shownOf(isDescending_ ? first_ : last_);
    shown.step = std::fabs(step);
    if (firstRow_ == 1) {
        shown.minimum = std::min(shown.minimum, before);
        shown.maximum = std::max(shown.maximum, before);
    }
    if (row < firstRow_) {
        shown.value = before;
        return shown;
    }
    const std::optional<Number> number = numberOfRow(row);
    if (!number || number->decimals != first_.decimals) return std::nullopt;
    shown.value = shownOf(*number);
    const bool isBetween = shown.value >= shown.minimum && shown.value <= shown.maximum;
    return isBetween ? std::optional(shown) : std::nullopt;
}

NSInteger UIPickerOrderedNumbers::rowNearestTo(double shown) const {
    if (firstRow_ == 1) {
        const double step = stepAtFirst();
        const double border = shownOf(first_) - step / 2;
        if (step > 0 ? shown < border : shown > border) return 0;
    }
    const double scaled = shown * powerOfTen(first_.decimals);
    const NSInteger smallestRow = isDescending_ ? lastRow() : firstRow_;
    const NSInteger largestRow = isDescending_ ? firstRow_ : lastRow();
    const auto above = entryBetween(truncateTo<NSInteger>(std::ceil(scaled)), std::numeric_limits<NSInteger>::max());
    if (!above) return largestRow;
    if (above->row == smallestRow) return smallestRow;
    const NSInteger rowBelow = above->row + (isDescending_ ? 1 : -1);
    const std::optional<Number> below = numberOfRow(rowBelow);
    const bool isBelowNearer = below && scaled - static_cast<double>(below->value) < static_cast<double>(above->number.value) - scaled;
    return isBelowNearer ? rowBelow : above->row;
}

} // namespace gx
