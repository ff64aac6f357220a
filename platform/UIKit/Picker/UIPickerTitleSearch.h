#pragma once

#include <functional>
#include <optional>
#include <string>

#include "NSObject.h"

namespace gx {

/// Finds the row of a column whose title a typed text spells, without reading every title.
///
/// Numbers are found by their value, so that "5" also spells "05" and ".5", and without what stands behind them, so that it spells "5'". In
/// a column whose titles are whole numbers in order, upward or downward (the first title may be something else, such as a dash for no
/// value), their row is found by halving: a billion rows take a few dozen questions. Everything else is looked for in the first
/// `longestWalk` rows. Other texts are found by how a title begins.
class UIPickerTitleSearch {
public:
    /// The title of a row, as the delegate gives it; nothing for none.
    using Titles = std::function<std::optional<std::string>(NSInteger row)>;

    /// Columns that are no numbers in order are short: units, names.
    static constexpr NSInteger longestWalk = 1000;

    struct Result {
        /// The row that the text spells, if there is one.
        std::optional<NSInteger> row;
        /// Whether there are titles that begin with the text, and go on.
        bool canGrow = false;
        friend bool operator==(const Result&, const Result&) = default;
    };
    /// `text` is in the form of `UIPickerTyping::readableForm`; an empty one finds nothing. Titles are asked for while it runs, and not
    /// afterwards.
    static Result resultOfText_amongRows(const std::u32string& text, NSInteger count, const Titles& titles);
};

} // namespace gx
