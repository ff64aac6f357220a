#include "UIPickerTitleSearch.h"

#include <algorithm>

#include "UIPickerOrderedNumbers.h"
#include "UIPickerTyping.h"

namespace gx {

namespace {

using Number = UIPickerOrderedNumbers::Number;

/// Whether any number is spelled with the digits of this one and more behind them.
bool canGrow(const Number& number, const UIPickerOrderedNumbers& numbers) {
    NSInteger least = number.value;
    NSInteger span = 1;
    for (int digits = number.digits + 1; digits <= std::min(numbers.highestDigitCount(), UIPickerOrderedNumbers::mostDigits); ++digits) {
        least *= 10;
        span *= 10;
        const auto entry =
            number.isNegative ? numbers.entryBetween(least - span + 1, least) : numbers.entryBetween(least, least + span - 1);
        // A 0 is the beginning of "05", but not of 5.
        if (entry && entry->number.digits >= digits) return true;
    }
    return false;
}

UIPickerTitleSearch::Result walk(const std::string& text, NSInteger count, const UIPickerTitleSearch::Titles& titles) {
    UIPickerTitleSearch::Result result;
    std::optional<NSInteger> same;
    std::optional<NSInteger> equal;
    std::optional<NSInteger> beginning;
    const std::optional<Number> number = UIPickerOrderedNumbers::wholeNumber(text);
    for (NSInteger row = 0; row < std::min(count, UIPickerTitleSearch::longestWalk); ++row) {
        const std::optional<std::string> title = titles(row);
        if (!title) continue;
        const std::string form = UIPickerTyping::readableForm(*title);
        const std::optional<Number> titled = UIPickerOrderedNumbers::wholeNumber(form);
        if (form == text) {
            if (!same) same = row;
        } else if (number && titled && titled->value == number->value) {
            if (!equal) equal = row;
        }
        if (form.size() <= text.size() || form.compare(0, text.size(), text) != 0) continue;
        result.canGrow = true;
        if (!beginning) beginning = row;
        // 5 spells 5' and 5 km: only digits would make another number of it.
        const char after = form[text.size()];
        if (number && !equal && after != '.' && !UIPickerTyping::isDigit(after)) equal = row;
    }
    // A number has to be spelled to its end: with rows 10 to 19, a 1 is none of them yet.
    const bool isOfNumber = number || text == "-" || text == "." || text == "-.";
    result.row = same ? same : equal ? equal : isOfNumber ? std::nullopt : beginning;
    return result;
}

} // namespace

UIPickerTitleSearch::Result UIPickerTitleSearch::resultOfText_amongRows(const std::string& text, NSInteger count, const Titles& titles) {
    if (text.empty() || count <= 0) return {};
    const std::optional<Number> number = UIPickerOrderedNumbers::wholeNumber(text);
    if (number) {
        const UIPickerOrderedNumbers numbers(count, titles, UIPickerOrderedNumbers::wholeNumber);
        const auto entry = numbers.entryBetween(number->value, number->value);
        const bool grows = canGrow(*number, numbers);
        if (entry || grows) return {entry ? std::optional(entry->row) : std::nullopt, grows};
    }
    Result result = walk(text, count, titles);
    if (text == "-" && !result.canGrow) {
        result.canGrow = UIPickerOrderedNumbers(count, titles, UIPickerOrderedNumbers::wholeNumber).hasNegative();
    }
    return result;
}

} // namespace gx
