#pragma once

#include <array>
#include <string>
#include <vector>

#include <GXUIPickers/UITextEngine.h>

namespace gx::web {

/// Measures texts by the page's own canvas, and keeps what it has measured.
class WebTextEngine final : public UITextEngine {
public:
    CGSize sizeOfText_font(std::string_view text, const UIFont& font) override;

    /// The page's font for texts in the system font.
    void setSystemFont(std::int32_t font) { systemFont_ = font; }
    /// For fonts that have come late: everything is measured again.
    void forgetMeasures();

private:
    struct Measure {
        std::int32_t font;
        CGFloat fontSize;
        std::string text;
        CGSize size;
    };

    /// Chosen: all texts of a page full of pickers, in some hundred kilobytes.
    static constexpr std::size_t highestCount = 4000;
    /// A power of two above twice the count, so that few texts meet in a slot.
    static constexpr std::size_t slotCount = 8192;

    std::uint16_t& slotOf(std::string_view text, std::int32_t font, CGFloat fontSize);

    std::vector<Measure> measures_;
    /// A hash table: 0, or one more than the index of a measure.
    ///
    /// A measure whose slot is taken is in the next free one.
    std::array<std::uint16_t, slotCount> slots_{};
    std::int32_t systemFont_ = 0;
};

} // namespace gx::web
