#include "UIColor.h"

namespace gx {

namespace {
double heldToUnit(double value) {
    if (!(value > 0)) return 0; // also NaN
    return value < 1 ? value : 1;
}
} // namespace

UIColor UIColor::colorWithRed_green_blue_alpha(double red, double green, double blue, double alpha) {
    return UIColor({heldToUnit(red), heldToUnit(green), heldToUnit(blue), heldToUnit(alpha)});
}

UIColor UIColor::colorWithWhite_alpha(double white, double alpha) { return colorWithRed_green_blue_alpha(white, white, white, alpha); }

UIColor UIColor::colorWithHex(unsigned rgb, double alpha) {
    const auto channel = [rgb](unsigned shift) { return ((rgb >> shift) & 0xFFU) / 255.0; };
    return colorWithRed_green_blue_alpha(channel(16), channel(8), channel(0), alpha);
}

UIColor UIColor::colorWithLight_dark(const UIColor& light, const UIColor& dark) {
    UIColor color;
    color.light_ = light.light_;
    color.dark_ = dark.dark_;
    return color;
}

UIColor UIColor::clearColor() { return {}; }
UIColor UIColor::blackColor() { return colorWithWhite_alpha(0, 1); }
UIColor UIColor::whiteColor() { return colorWithWhite_alpha(1, 1); }
UIColor UIColor::labelColor() { return colorWithLight_dark(colorWithHex(0x16181D), colorWithHex(0xF4F5F7)); }
UIColor UIColor::secondaryLabelColor() { return colorWithLight_dark(colorWithHex(0x646B78), colorWithHex(0x9CA3B0)); }
UIColor UIColor::systemBlueColor() { return colorWithLight_dark(colorWithHex(0x0A66D8), colorWithHex(0x5AA2FF)); }
UIColor UIColor::tertiarySystemFillColor() { return colorWithLight_dark(colorWithHex(0x767D8A, 0.14), colorWithHex(0x8D95A3, 0.22)); }

UIColor UIColor::colorWithAlphaComponent(double alpha) const {
    UIColor color = *this;
    color.light_.alpha = color.dark_.alpha = heldToUnit(alpha);
    return color;
}

const UIColorComponents& UIColor::resolved(UIUserInterfaceStyle style) const {
    return style == UIUserInterfaceStyle::Dark ? dark_ : light_;
}

} // namespace gx
