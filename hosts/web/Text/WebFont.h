#pragma once

#include <cstdint>

#include <GXUIPickers/UIFont.h>

namespace gx::web {

/// The page's fonts as fonts of floor 1: the family of such a font is the number that the page
/// knows it by.
///
/// So one page may have many fonts, and the page alone knows how a font is written.
struct WebFont {
    static Ref<UIFont> fontWithNumber_size(std::int32_t number, CGFloat size);
    /// `systemFont` for the system's own font, which has no number.
    static std::int32_t numberOf(const UIFont& font, std::int32_t systemFont);
};

} // namespace gx::web
