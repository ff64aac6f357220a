#pragma once

#include <string>

#include "GXExport.h"
#include "UIColor.h"
#include "UIFont.h"

namespace gx {

class UILabel;

/// A font of the style sheet with its colour: family, size, weight and colour of a text.
///
/// Immutable, so a style sheet shares one object with all its users. To measure a text, use
/// `font()`.
class GX_EXPORT GXStyleSheetFont : public NSObject {
public:
    /// `family` is empty for the host's own interface family. A `size` that is not above 0, or no
    /// number, becomes `UIFont::labelFontSize`.
    static Ref<GXStyleSheetFont> fontWithFamily_size_weight_color(std::string family, CGFloat size, UIFontWeight weight,
                                                                  const UIColor& color);

    // By value: the style sheet may drop this object during the expression that reads it.

    /// Never empty, and always the same object.
    Ref<UIFont> font() const { return font_; }
    /// Empty for the host's own interface family.
    std::string familyName() const { return font_->familyName(); }
    /// In points, above 0.
    CGFloat pointSize() const { return font_->pointSize(); }
    /// How bold the text is.
    UIFontWeight weight() const { return font_->weight(); }
    /// The colour of the text, with a value for each look.
    UIColor color() const { return color_; }

private:
    Ref<UIFont> font_ = UIFont::systemFontOfSize_weight(UIFont::labelFontSize);
    UIColor color_ = UIColor::labelColor();
};

/// Gives the label the font and the text colour. Attributes of an attributed text go before both.
/// A no-op without a label or a font.
GX_EXPORT void setStyleSheetFont(const Ref<UILabel>& label, const Ref<GXStyleSheetFont>& font);

} // namespace gx
