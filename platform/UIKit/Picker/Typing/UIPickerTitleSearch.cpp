#include "UIPickerTitleSearch.h"

#include <algorithm>

#include "UIPickerTyping.h"

namespace gx {

namespace {

/// A whole number as it is spelled, with leading zeros.
struct Spelled {
    NSInteger value = 0;
    int digits = 0;
    bool isNegative = false;
};

/// What fits into an NSInteger.
constexpr int mostDigits = 18;

std::optional<Spelled> spelledNumber(const std::u32string& text) {
    std::size_t start = 0;
    Spelled number;
    number.isNegative = text.substr(0, 1) == U"-";
    if (number.isNegative) start = 1;
    // The column behind a decimal separator may title its rows with it.
    if (text.substr(start, 1) == U".") ++start;
    if (start == text.size() || text.size() - start > mostDigits) return std::nullopt;
    for (std::size_t i = start; i < text.size(); ++i) {
        if (text[i] < U'0' || text[i] > U'9') return std::nullopt;
        number.value = number.value * 10 + static_cast<NSInteger>(text[i] - U'0');
        ++number.digits;
    }
    if (number.isNegative) number.value = -number.value;
    return number;
}

/// The rows whose titles are numbers in order, smallest first.
class OrderedNumbers {
public:
    OrderedNumbers(NSInteger count, const UIPickerTitleSearch::Titles& titles) : titles_(titles) {
        const bool hasOther = !numberOfRow(0);
        first_ = hasOther ? 1 : 0;
        size_ = std::max<NSInteger>(count - first_, 0);
        if (size_ == 0) return;
        const std::optional<Spelled> first = numberOfRow(first_);
        const std::optional<Spelled> last = numberOfRow(count - 1);
        if (!first || !last) {
            size_ = 0;
            return;
        }
        isDescending_ = last->value < first->value;
        mostDigits_ = std::max(first->digits, last->digits);
        hasNegative_ = first->isNegative || last->isNegative;
    }

    int mostDigits() const { return mostDigits_; }
    bool hasNegative() const { return hasNegative_; }

    struct Entry {
        NSInteger row = 0;
        Spelled number;
    };
    /// The smallest number from `lowest` to `highest`.
    std::optional<Entry> entryBetween(NSInteger lowest, NSInteger highest) const {
        std::optional<Entry> entry;
        NSInteger begin = 0;
        NSInteger end = size_;
        while (begin < end) {
            const NSInteger middle = begin + (end - begin) / 2;
            const std::optional<Spelled> number = numberOfRow(rowAt(middle));
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

private:
    std::optional<Spelled> numberOfRow(NSInteger row) const {
        const std::optional<std::string> title = titles_(row);
        return title ? spelledNumber(UIPickerTyping::readableForm(*title)) : std::nullopt;
    }
    NSInteger rowAt(NSInteger index) const { return first_ + (isDescending_ ? size_ - 1 - index : index); }

    const UIPickerTitleSearch::Titles& titles_;
    NSInteger first_ = 0;
    NSInteger size_ = 0;
    int mostDigits_ = 0;
    bool isDescending_ = false;
    bool hasNegative_ = false;
};

/// Whether any number is spelled with the digits of this one and more behind them.
bool canGrow(const Spelled& number, const OrderedNumbers& numbers) {
    NSInteger least = number.value;
    NSInteger span = 1;
    for (int digits = number.digits + 1; digits <= std::min(numbers.mostDigits(), mostDigits); ++digits) {
        least *= 10;
        span *= 10;
        const auto entry =
            number.isNegative ? numbers.entryBetween(least - span + 1, least) : numbers.entryBetween(least, least + span - 1);
        // A 0 is the beginning of "05", but not of 5.
        if (entry && entry->number.digits >= digits) return true;
    }
    return false;
}

UIPickerTitleSearch::Result walk(const std::u32string& text, NSInteger count, const UIPickerTitleSearch::Titles& titles) {
    UIPickerTitleSearch::Result result;
    std::optional<NSInteger> same;
    std::optional<NSInteger> equal;
    std::optional<NSInteger> beginning;
    const std::optional<Spelled> number = spelledNumber(text);
    for (NSInteger row = 0; row < std::min(count, UIPickerTitleSearch::longestWalk); ++row) {
        const std::optional<std::string> title = titles(row);
        if (!title) continue;
        const std::u32string form = UIPickerTyping::readableForm(*title);
        const std::optional<Spelled> titled = spelledNumber(form);
        if (form == text) {
            if (!same) same = row;
        } else if (number && titled && titled->value == number->value) {
            if (!equal) equal = row;
        }
        if (form.size() <= text.size() || form.compare(0, text.size(), text) != 0) continue;
        result.canGrow = true;
        if (!beginning) beginning = row;
        // 5 spells 5' and 5 km: only digits would make another number of it.
        const char32_t after = form[text.size()];
        if (number && !equal && after != U'.' && (after < U'0' || after > U'9')) equal = row;
    }
    // A number has to be spelled to its end: with rows 10 to 19, a 1 is none of them yet.
    const bool isOfNumber = number || text == U"-" || text == U"." || text == U"-.";
    result.row = same ? same : equal ? equal : isOfNumber ? std::nullopt : beginning;
    return result;
}

} // namespace

UIPickerTitleSearch::Result UIPickerTitleSearch::resultOfText_amongRows(const std::u32string& text, NSInteger count, const Titles& titles) {
    if (text.empty() || count <= 0) return {};
    const std::optional<Spelled> number = spelledNumber(text);
    if (number) {
        const OrderedNumbers numbers(count, titles);
        const auto entry = numbers.entryBetween(number->value, number->value);
        const bool grows = canGrow(*number, numbers);
        if (entry || grows) return {entry ? std::optional(entry->row) : std::nullopt, grows};
    }
    Result result = walk(text, count, titles);
    if (text == U"-" && !result.canGrow) result.canGrow = OrderedNumbers(count, titles).hasNegative();
    return result;
}

} // namespace gx
