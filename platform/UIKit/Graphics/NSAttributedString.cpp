#include "NSAttributedString.h"

#include "UITextEngine.h"

namespace gx {

Ref<NSAttributedString> NSAttributedString::attributedStringWithString_attributes(std::string string, NSTextAttributes attributes) {
    auto result = create<NSAttributedString>();
    result->string_ = std::move(string);
    result->attributes_ = std::move(attributes);
    return result;
}

CGSize sizeWithAttributes(std::string_view text, const NSTextAttributes& attributes) {
    static const Ref<UIFont> systemFont = UIFont::systemFontOfSize_weight(UIFont::labelFontSize);
    const UIFont& font = attributes.font ? *attributes.font : *systemFont;
    return UITextEngine::shared()->sizeOfText_font(text, font);
}

} // namespace gx
