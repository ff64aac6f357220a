#pragma once

#include <string>
#include <string_view>

namespace gallery {

/// Keeps the lines of a text in the text's direction.
///
/// A canvas takes the direction of what it draws from the first letter. Of a Hebrew or Arabic text
/// in several lines, one may begin with a unit ("kg") or have digits alone: drawn by itself, its
/// parts would change places.
class TextDirection {
public:
    TextDirection() = delete;

    /// Whether a text has letters that are read from the right.
    static bool hasLettersFromRight(std::string_view text);
    /// A line of such a text as it has to be drawn: with a mark without ink before it, where its
    /// first letter does not tell the direction.
    static std::string lineOfTextFromRight(const std::string& line);
};

} // namespace gallery
