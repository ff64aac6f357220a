#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include <GXUIPickers/CGGeometry.h>

namespace gallery {

/// Breaks a text into lines that are not wider than a width.
///
/// 1. At spaces, after hyphens, and between the characters of Chinese and Japanese, but not before
///    a full stop or a small kana, nor within a word in katakana, nor between a number and the word
///    behind it ("18 °C") where both fit in one line.
/// 2. A word that is wider than a line begins a line of its own and is divided with a hyphen,
///    before a consonant that a vowel follows ("Gesch-windig-keit"); a name such as
///    "workout-2026.json" after its own signs.
/// 3. Where there is no such place, a word is divided between any two characters, without a hyphen.
///
/// So a text is never cut. A line is wider only if it is a single character.
class LineBreaks {
public:
    using WidthOf = std::function<gx::CGFloat(std::string_view text)>;

    LineBreaks() = delete;

    static std::vector<std::string> linesOfText_width(std::string_view text, gx::CGFloat width, const WidthOf& widthOf);
};

} // namespace gallery
