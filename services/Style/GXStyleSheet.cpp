#include "GXStyleSheet.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace gx {

namespace {

constexpr double rowHeight = 40;
// An icon is drawn without the white space that a line of text brings along, and needs some around it.
constexpr double imageRowHeight = 56;
// One size for values and labels: row titles, unit labels and separators are each centred on the height of the row, and only texts of one
// size that are centred on one line also stand on one baseline. Weight and colour tell them apart instead.
constexpr CGFloat fontSize = 22;

Ref<GXStyleSheet>& sharedStyleSheet() {
    static Ref<GXStyleSheet> styleSheet = create<GXStyleSheet>();
    return styleSheet;
}

} // namespace

const Ref<GXStyleSheet>& GXStyleSheet::globalStyleSheet() { return sharedStyleSheet(); }

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
    const double held = std::clamp(scale, minTextScale, maxTextScale);
    if (held == textScale_) return;
    textScale_ = held;
    valueFont_ = nullptr;
    labelFont_ = nullptr;
}

} // namespace gx
