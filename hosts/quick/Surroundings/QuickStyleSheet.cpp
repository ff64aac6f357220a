#include "QuickStyleSheet.h"

namespace gx::quick {

void QuickStyleSheet::setLooks(const QuickLooks& looks) {
    looks_ = looks;
    // The scale is what the rows' font is to the usual one; beyond its limits fonts stay at them.
    setTextScale(1);
    const CGFloat usualSize = GXStyleSheet::pickerValueFont()->pointSize();
    setTextScale(looks.pixelSize / usualSize);
    const CGFloat size = usualSize * textScale();
    const UIColor text =
        UIColor::colorWithRed_green_blue_alpha(looks.text.redF(), looks.text.greenF(), looks.text.blueF(), looks.text.alphaF());
    // Chosen: on a white or black background as far from it as the library's own secondary texts,
    // 5.3 to 1 at least; at high contrast 7 to 1.
    const double labelAlpha = looks.isHighContrast ? 0.85 : 0.65;
    rowFont_ = GXStyleSheetFont::fontWithFamily_size_weight_color(looks.family, size, UIFontWeight::Medium, text);
    labelFont_ = GXStyleSheetFont::fontWithFamily_size_weight_color(looks.family, size, UIFontWeight::Regular,
                                                                    text.colorWithAlphaComponent(looks.text.alphaF() * labelAlpha));
}

} // namespace gx::quick
