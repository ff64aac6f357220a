#include "TextDirection.h"

#include <cstddef>
#include <optional>

namespace gallery {

namespace {

constexpr const char* rightToLeftMark = "\u200F";

bool isFromRight(unsigned code) {
    return (code >= 0x05D0 && code <= 0x05F4) || (code >= 0x0620 && code <= 0x065F) || (code >= 0x066E && code <= 0x06EF);
}

/// Whether the first letter is read from the right; nothing if there is none. Letters of two bytes
/// are enough: they include Hebrew and Arabic.
std::optional<bool> isFirstLetterFromRight(std::string_view text) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if ((byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z')) return false;
        if (byte < 0xC3 || byte > 0xDF || i + 1 == text.size()) continue;
        const unsigned code = ((byte & 0x1FU) << 6U) | (static_cast<unsigned char>(text[i + 1]) & 0x3FU);
        if (isFromRight(code)) return true;
        if (code < 0x0530) return false; // Latin, Greek, Cyrillic.
    }
    return std::nullopt;
}

} // namespace

bool TextDirection::hasLettersFromRight(std::string_view text) {
    for (std::size_t i = 0; i + 1 < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if (byte < 0xD6 || byte > 0xDB) continue;
        if (isFromRight(((byte & 0x1FU) << 6U) | (static_cast<unsigned char>(text[i + 1]) & 0x3FU))) return true;
    }
    return false;
}

std::string TextDirection::lineOfTextFromRight(const std::string& line) {
    return isFirstLetterFromRight(line).value_or(false) ? line : rightToLeftMark + line;
}

} // namespace gallery
