#pragma once

#include <functional>
#include <optional>
#include <string>

#include "NSObject.h"

namespace gx {

/// Finds the row of a column whose title a typed text spells, without reading every title.
///
/// - A number is found by its value, so that "5" also spells "05" and ".5", and without what
///   follows it, so that it spells "5'". Other texts are found by how a title begins.
/// - In a column whose titles are whole numbers in order, upward or downward, the row is found by
///   halving: a billion rows take a few dozen queries. The first title may be something else, such
///   as a dash for no value.
/// - Everything else is looked for in the first `longestWalk` rows.
class UIPickerTitleSearch {
public:
    /// Returns the title of a row, as the delegate gives it; nothing for none.
    using Titles = std::function<std::optional<std::string>(NSInteger row)>;

    /// Chosen: columns that are no numbers in order are short, such as units and names.
    static constexpr NSInteger longestWalk = 1000;

    struct Result {
        /// The row that the text spells, if there is one.
        std::optional<NSInteger> row;
        /// Whether there are titles that begin with the text, and go on.
        bool canGrow = false;
        friend bool operator==(const Result&, const Result&) = default;
    };
    /// `text` is in the form of `UIPickerTyping::readableForm`; an empty one finds nothing. Titles
    /// are queried while it runs, and not afterwards.
    static Result resultOfText_amongRows(const std::string& text, NSInteger count, const Titles& titles);
};

} // namespace gx
