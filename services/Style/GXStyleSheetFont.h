#pragma once

#include <string>

#include "UIColor.h"
#include "UIFont.h"

namespace gx {

class UILabel;

/// How the style sheet wants a text to look: family, size, weight and colour. Immutable, so a style sheet hands the same one to everybody;
/// whoever measures text takes its `font()`.
class GXStyleSheetFont : public NSObject {
public:
    /// `family` is empty for the host's own interface family; a `size` in points that is not above 0, or no number, becomes
    /// `UIFont::labelFontSize`.
    static Ref<GXStyleSheetFont> fontWithFamily_size_weight_color(std::string family, CGFloat size, UIFontWeight weight,
                                                                  const UIColor& color);

    /// Never empty and always the same object, so asking for it costs nothing.
    const Ref<UIFont>& font() const { return font_; }
    const std::string& familyName() const { return font_->familyName(); }
    CGFloat pointSize() const { return font_->pointSize(); }
    UIFontWeight weight() const { return font_->weight(); }
    const UIColor& color() const { return color_; }

private:
    Ref<UIFont> font_ = UIFont::systemFontOfSize_weight(UIFont::labelFontSize);
    UIColor color_ = UIColor::labelColor();
};

/// Gives the label the font and, as its text colour, the colour of the description. Attributes that an attributed text brings along go on
/// standing before both. An absent label or description does nothing.
void setStyleSheetFont(const Ref<UILabel>& label, const Ref<GXStyleSheetFont>& font);

} // namespace gx
