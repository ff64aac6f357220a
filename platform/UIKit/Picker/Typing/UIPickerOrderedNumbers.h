#pragma once

#include <functional>
#include <optional>
#include <string>

#include "NSObject.h"

namespace gx {

/// The numbers that the titles of a column's rows are, if they are numbers in order, upward or
/// downward. The first title may be something else, such as a dash for no value.
///
/// It reads the first two titles and the last one, and halves from there: a billion rows take a few
/// dozen queries. Titles are queried while operations run, and the function has to live as long.
class UIPickerOrderedNumbers {
public:
    /// Returns the title of a row, as the delegate gives it; nothing for none.
    using Titles = std::function<std::optional<std::string>(NSInteger row)>;

    /// A number as it is spelled: 36.5 has the value 365 with one decimal.
    struct Number {
        NSInteger value = 0;
        int digits = 0;   ///< with leading zeros
        int decimals = 0; ///< behind a separator that follows digits
        bool isNegative = false;
    };
    /// What fits into an NSInteger.
    static constexpr int mostDigits = 18;

    /// Texts are in the form of `UIPickerTyping::readableForm`.
    using Reading = std::optional<Number> (*)(const std::string& text);
    /// Whole numbers and nothing else, for typing: "5", "05", "-5" and, for a column behind a
    /// separator, ".5", which counts as 5.
    static std::optional<Number> wholeNumber(const std::string& text);
    /// The number that a title begins with, if no other follows: also 5 of "5'", and 36.5.
    static std::optional<Number> leadingNumber(const std::string& text);

    UIPickerOrderedNumbers(NSInteger count, const Titles& titles, Reading reading);

    bool isEmpty() const { return size_ == 0; }
    /// The row of the first number: 1 if a title that is none goes before it, else 0.
    NSInteger firstRow() const { return firstRow_; }
    int highestDigitCount() const { return highestDigitCount_; }
    bool hasNegative() const { return hasNegative_; }
    std::optional<Number> numberOfRow(NSInteger row) const;

    struct Entry {
        NSInteger row = 0;
        Number number;
    };
    /// The smallest number from `lowest` to `highest`.
    std::optional<Entry> entryBetween(NSInteger lowest, NSInteger highest) const;

    // The numbers that the column shows

    struct Shown {
        double value = 0;
        double minimum = 0;
        double maximum = 0;
        double step = 1;
    };
    /// Of a row and its column. The step is that between the first two numbers, and a first title
    /// that is no number counts as one step before them.
    ///
    /// Nothing if the row's title is no number between the first and the last one.
    std::optional<Shown> shownAtRow(NSInteger row) const;
    /// The row whose number is nearest; of two the one with the larger number. There has to be a
    /// number, and `shown` may not be NaN.
    NSInteger rowNearestTo(double shown) const;

private:
    NSInteger rowAt(NSInteger index) const { return firstRow_ + (isDescending_ ? size_ - 1 - index : index); }
    NSInteger lastRow() const { return firstRow_ + size_ - 1; }
    double shownOf(const Number& number) const;
    double stepAtFirst() const;

    const Titles& titles_;
    Reading reading_;
    NSInteger firstRow_ = 0;
    NSInteger size_ = 0;
    Number first_;
    Number last_;
    int highestDigitCount_ = 0;
    bool isDescending_ = false;
    bool hasNegative_ = false;
};

} // namespace gx
