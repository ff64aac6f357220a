#include "WebTextEngine.h"

#include <array>

#include "WebFont.h"
#include "WebPage.h"

namespace gx::web {

CGSize WebTextEngine::sizeOfText_font(std::string_view text, const UIFont& font) {
    const Key key = {WebFont::numberOf(font, systemFont_), font.pointSize()};
    auto& sizes = sizes_[key];
    if (const auto known = sizes.find(text); known != sizes.end()) return known->second;
    std::array<double, 2> size = {};
    gx_page_measure_text(key.font, key.size, text.data(), static_cast<std::int32_t>(text.size()), size.data());
    const CGSize measured = {size[0], size[1]};
    if (++count_ > highestCount) {
        sizes_.clear();
        count_ = 1;
    }
    sizes_[key].emplace(text, measured);
    return measured;
}

} // namespace gx::web
