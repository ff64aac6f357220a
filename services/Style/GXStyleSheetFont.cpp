#include "GXStyleSheetFont.h"

#include <utility>

#include "UILabel.h"

namespace gx {

Ref<GXStyleSheetFont> GXStyleSheetFont::fontWithFamily_size_weight_color(std::string family, CGFloat size, UIFontWeight weight,
                                                                         const UIColor& color) {
    auto description = create<GXStyleSheetFont>();
    description->font_ = UIFont::fontWithName_size_weight(std::move(family), size, weight);
    description->color_ = color;
    return description;
}

void setStyleSheetFont(const Ref<UILabel>& label, const Ref<GXStyleSheetFont>& font) {
    if (!label || !font) return;
    label->setFont(font->font());
    label->setTextColor(font->color());
}

} // namespace gx
