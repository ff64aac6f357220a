#pragma once

#include <GXUIPickers/GXStyleSheet.h>

namespace gx::web {

/// The fonts of an element, as the page's style sheets give them.
struct WebFonts {
    std::int32_t rows = 0;
    CGFloat rowSize = 0;
    std::int32_t labels = 0;
    CGFloat labelSize = 0;
    friend bool operator==(const WebFonts&, const WebFonts&) = default;
};

/// The looks of one element: the page's fonts, and rows as high as fit them.
///
/// Rows, labels and separators keep the usual proportion to the size of the rows' font.
class WebStyleSheet final : public GXStyleSheet {
public:
    const WebFonts& fonts() const { return fonts_; }
    void setFonts(const WebFonts& fonts);

    Ref<GXStyleSheetFont> pickerValueFont() const override { return rowFont_; }
    Ref<GXStyleSheetFont> pickerLabelFont() const override { return labelFont_; }

private:
    WebFonts fonts_;
    Ref<GXStyleSheetFont> rowFont_;
    Ref<GXStyleSheetFont> labelFont_;
};

} // namespace gx::web
