#pragma once

#include <cstddef>
#include <string_view>

#include <GXUIPickers/UITextEngine.h>

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
        const char next = text[point.end];
        if (gx::UITextEngine::startsCodePoint(next)) break;
        point.code = (point.code << 6U) | (static_cast<unsigned char>(next) & 0x3FU);
    }
    return point;
}

} // namespace gallery
