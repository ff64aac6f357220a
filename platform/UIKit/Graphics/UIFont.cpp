#include "UIFont.h"

#include <cmath>

namespace gx {

Ref<UIFont> UIFont::systemFontOfSize_weight(CGFloat size, UIFontWeight weight) { return fontWithName_size_weight("", size, weight); }

Ref<UIFont> UIFont::fontWithName_size_weight(std::string family, CGFloat size, UIFontWeight weight) {
    auto font = create<UIFont>();
    font->family_ = std::move(family);
    font->size_ = size > 0 && std::isfinite(size) ? size : labelFontSize;
    font->weight_ = weight;
    return font;
}

bool UIFont::isEqualToFont(const UIFont& other) const {
    return size_ == other.size_ && weight_ == other.weight_ && family_ == other.family_;
}

} // namespace gx
