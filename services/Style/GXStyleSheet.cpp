#include "GXStyleSheet.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace gx {

namespace {

// Chosen: room for the value font with a gap that keeps neighbouring rows apart.
constexpr double rowHeight = 40;
// Chosen: an icon has no white space of its own, as a line of text does, and needs some around it.
constexpr double imageRowHeight = 56;
// Chosen. Row titles, unit labels and separators are centred on the height of the row, and of texts
// so centred only those of one size share a baseline. They differ in weight and colour instead.
constexpr CGFloat fontSize = 22;

Ref<GXStyleSheet>& sharedStyleSheet() {
    static Ref<GXStyleSheet> styleSheet = create<GXStyleSheet>();
    return styleSheet;
}

} // namespace

Ref<GXStyleSheet> GXStyleSheet::globalStyleSheet() { return sharedStyleSheet(); }

void GXStyleSheet::setGlobalStyleSheet(Ref<GXStyleSheet> styleSheet) {
    sharedStyleSheet() = styleSheet ? std::move(styleSheet) : create<GXStyleSheet>();
}

double GXStyleSheet::pickerRowHeight() const { return rowHeight * textScale_; }

double GXStyleSheet::pickerImageRowHeight() const { return imageRowHeight * textScale_; }

Ref<GXStyleSheetFont> GXStyleSheet::pickerValueFont() const {
    if (!valueFont_) {
        valueFont_ =
            GXStyleSheetFont::fontWithFamily_size_weight_color("", fontSize * textScale_, UIFontWeight::Medium, UIColor::labelColor());
    }
    return valueFont_;
}

Ref<GXStyleSheetFont> GXStyleSheet::pickerLabelFont() const {
    if (!labelFont_) {
        labelFont_ = GXStyleSheetFont::fontWithFamily_size_weight_color("", fontSize * textScale_, UIFontWeight::Regular,
                                                                        UIColor::secondaryLabelColor());
    }
    return labelFont_;
}

UIColor GXStyleSheet::tableBgColor() const { return UIColor::colorWithLight_dark(UIColor::whiteColor(), UIColor::colorWithHex(0x1C1E22)); }

void GXStyleSheet::setTextScale(double scale) {
    if (std::isnan(scale)) return;
    const double clamped = std::clamp(scale, minTextScale, maxTextScale);
    if (clamped == textScale_) return;
    textScale_ = clamped;
    valueFont_ = nullptr;
    labelFont_ = nullptr;
}

} // namespace gx
