#include "TextDirection.h"

#include <cstddef>
#include <optional>

#include "CodePoints.h"

namespace gallery {

namespace {

constexpr const char* rightToLeftMark = "\u200F";

bool isFromRight(char32_t code) {
    return (code >= 0x05D0 && code <= 0x05F4) || (code >= 0x0620 && code <= 0x065F) || (code >= 0x066E && code <= 0x06EF);
}

/// Whether the first letter is read from the right; nothing if there is none. Only scripts that
/// stand in Hebrew and Arabic texts count.
std::optional<bool> isFirstLetterFromRight(std::string_view text) {
    for (std::size_t place = 0; place < text.size();) {
        const CodePoint point = codePointAt(text, place);
        const char32_t code = point.code;
        if (isFromRight(code)) return true;
        const bool isLatin = (code >= 'a' && code <= 'z') || (code >= 'A' && code <= 'Z');
        if (isLatin || (code >= 0x00C0 && code < 0x0530)) return false; // With Greek and Cyrillic.
        place = point.end;
    }
    return std::nullopt;
}

} // namespace

bool TextDirection::hasLettersFromRight(std::string_view text) {
    for (std::size_t place = 0; place < text.size();) {
        const CodePoint point = codePointAt(text, place);
        if (isFromRight(point.code)) return true;
        place = point.end;
    }
    return false;
}

std::string TextDirection::lineOfTextFromRight(const std::string& line) {
    return isFirstLetterFromRight(line).value_or(false) ? line : rightToLeftMark + line;
}

} // namespace gallery
