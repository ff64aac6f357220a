#pragma once

#include <cstdint>
#include <string_view>

#include "CGGeometry.h"
#include "GXExport.h"
#include "NSObject.h"
#include "UIFont.h"

namespace gx {

/// Measures text, on behalf of everything that has to place it.
///
/// A host replaces the shared one by an engine that knows its fonts; without a host it is a
/// fixed-width engine. To measure one text use `sizeWithAttributes`.
class GX_EXPORT UITextEngine : public NSObject {
public:
    /// Never empty. The reference keeps the engine alive when it is replaced while it measures.
    static Ref<UITextEngine> shared();
    /// For everything that measures afterwards. An empty reference restores the fixed-width engine.
    static void setShared(Ref<UITextEngine> engine);

    /// For a host whose texts measure differently from now on, such as when fonts have come late.
    /// Views measure again what they keep; pickers are laid out with `reloadData`.
    static void measuresDidChange();
    /// Another number after each such change, and after `setShared`: for views that keep what they
    /// have measured.
    static std::uint64_t generation();

    /// Whether a byte of UTF-8 starts a code point: each one that does not continue another. For
    /// engines that count code points, and for what cuts a text between them.
    static constexpr bool startsCodePoint(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; }

    /// The size of one line of UTF-8 text: its advance width and the line height of the font. Empty
    /// text has no width and a full line height.
    ///
    /// Any bytes may come, also such that are no UTF-8. Views are placed by the result, so it has
    /// to be finite.
    virtual CGSize sizeOfText_font(std::string_view text, const UIFont& font) = 0;
};

/// Gives every code point the same width and every line the same height, whatever the font. For
/// tests, and where there is no host.
class GX_EXPORT UIFixedWidthTextEngine : public UITextEngine {
public:
    CGSize sizeOfText_font(std::string_view text, const UIFont& font) override;

    /// In points. Default 10.
    CGFloat codePointWidth() const { return codePointWidth_; }
    void setCodePointWidth(CGFloat width) { codePointWidth_ = width; }
    /// In points. Default 20.
    CGFloat lineHeight() const { return lineHeight_; }
    void setLineHeight(CGFloat height) { lineHeight_ = height; }

private:
    // Chosen for tests: round numbers that are easy to add up.
    CGFloat codePointWidth_ = 10;
    CGFloat lineHeight_ = 20;
};

} // namespace gx
