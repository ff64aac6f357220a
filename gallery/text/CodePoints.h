#pragma once

#include <cstddef>
#include <string_view>

namespace gallery {

/// A code point of a text in UTF-8.
struct CodePoint {
    char32_t code = 0;
    std::size_t start = 0; ///< its first byte
    std::size_t end = 0;   ///< behind its last one
};

/// The one whose first byte is at a place within the text. Bytes that are no UTF-8 are read as some
/// code point, each once.
inline CodePoint codePointAt(std::string_view text, std::size_t place) {
    const auto first = static_cast<unsigned char>(text[place]);
    CodePoint point = {first, place, place + 1};
    if (first >= 0xC0) point.code = first & (first >= 0xF0 ? 0x07U : first >= 0xE0 ? 0x0FU : 0x1FU);
    for (; point.end < text.size(); ++point.end) {
        const auto next = static_cast<unsigned char>(text[point.end]);
        const bool continues = (next & 0xC0U) == 0x80U;
        if (!continues) break;
        point.code = (point.code << 6U) | (next & 0x3FU);
    }
    return point;
}

} // namespace gallery
