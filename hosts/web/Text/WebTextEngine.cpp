#include "WebTextEngine.h"

#include "WebFont.h"
#include "WebPage.h"

namespace gx::web {

namespace {

/// By Fowler, Noll and Vo.
std::uint32_t hashOf(std::string_view text, std::int32_t font) {
    std::uint32_t hash = 2166136261U ^ static_cast<std::uint32_t>(font);
    for (const char character : text) hash = (hash ^ static_cast<unsigned char>(character)) * 16777619U;
    return hash;
}

} // namespace

/// The slot of a measure, or the free one where it would be.
std::uint16_t& WebTextEngine::slotOf(std::string_view text, std::int32_t font, CGFloat fontSize) {
    for (std::size_t at = hashOf(text, font);; ++at) {
        std::uint16_t& slot = slots_[at % slotCount];
        if (slot == 0) return slot;
        const Measure& measure = measures_[slot - 1U];
        if (measure.font == font && measure.fontSize == fontSize && measure.text == text) return slot;
    }
}

CGSize WebTextEngine::sizeOfText_font(std::string_view text, const UIFont& font) {
    const std::int32_t number = WebFont::numberOf(font, systemFont_);
    const CGFloat fontSize = font.pointSize();
    if (const std::uint16_t known = slotOf(text, number, fontSize); known != 0) return measures_[known - 1U].size;
    std::array<double, 2> size = {};
    gx_page_measure_text(number, fontSize, text.data(), static_cast<std::int32_t>(text.size()), size.data());
    if (measures_.size() == highestCount) forgetMeasures();
    measures_.push_back({number, fontSize, std::string(text), {size[0], size[1]}});
    slotOf(text, number, fontSize) = static_cast<std::uint16_t>(measures_.size());
    return measures_.back().size;
}

void WebTextEngine::forgetMeasures() {
    measures_.clear();
    slots_.fill(0);
}

} // namespace gx::web
