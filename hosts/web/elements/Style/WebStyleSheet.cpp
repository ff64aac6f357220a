#include "WebStyleSheet.h"

#include <string>

namespace gx::web {

namespace {

Ref<GXStyleSheetFont> fontOf(std::int32_t number, CGFloat size, const UIColor& color) {
    return GXStyleSheetFont::fontWithFamily_size_weight_color(std::to_string(number), size, UIFontWeight::Regular, color);
}

} // namespace

void WebStyleSheet::setFonts(const WebFonts& fonts) {
    fonts_ = fonts;
    // The scale is what the rows' font is to the usual one; beyond its limits fonts stay at them.
    setTextScale(1);
    const CGFloat usualSize = GXStyleSheet::pickerValueFont()->pointSize();
    setTextScale(fonts.rowSize / usualSize);
    const CGFloat rowSize = usualSize * textScale();
    const CGFloat labelSize = fonts.rowSize > 0 ? fonts.labelSize * rowSize / fonts.rowSize : rowSize;
    rowFont_ = fontOf(fonts.rows, rowSize, UIColor::labelColor());
    labelFont_ = fontOf(fonts.labels, labelSize, UIColor::secondaryLabelColor());
}

} // namespace gx::web
