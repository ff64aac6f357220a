#include "WebFont.h"

#include <charconv>
#include <cstddef>
#include <iterator>

namespace gx::web {

Ref<UIFont> WebFont::fontWithNumber_size(std::int32_t number, CGFloat size) {
    return UIFont::fontWithName_size_weight(std::to_string(number), size, UIFontWeight::Regular);
}

std::int32_t WebFont::numberOf(const UIFont& font, std::int32_t systemFont) {
    const std::string& family = font.familyName();
    std::int32_t number = systemFont;
    std::from_chars(family.data(), std::next(family.data(), static_cast<std::ptrdiff_t>(family.size())), number);
    return number;
}

} // namespace gx::web
