#include "UIColor.h"

namespace gx {

namespace {
double clampedToUnit(double value) {
    if (!(value > 0)) return 0; // also NaN
    return value < 1 ? value : 1;
}
} // namespace

UIColor UIColor::colorWithRed_green_blue_alpha(double red, double green, double blue, double alpha) {
    return UIColor({clampedToUnit(red), clampedToUnit(green), clampedToUnit(blue), clampedToUnit(alpha)});
}

UIColor UIColor::colorWithWhite_alpha(double white, double alpha) { return colorWithRed_green_blue_alpha(white, white, white, alpha); }

UIColor UIColor::colorWithHex(unsigned rgb, double alpha) {
    const auto channel = [rgb](unsigned shift) { return ((rgb >> shift) & 0xFFU) / 255.0; };
    return colorWithRed_green_blue_alpha(channel(16), channel(8), channel(0), alpha);
}

UIColor UIColor::colorWithLight_dark(const UIColor& light, const UIColor& dark) {
    UIColor color;
    color.normal_ = {light.normal_.light, dark.normal_.dark};
    color.high_ = {light.high_.light, dark.high_.dark};
    return color;
}

UIColor UIColor::colorWithNormal_highContrast(const UIColor& normal, const UIColor& high) {
    UIColor color;
    color.normal_ = normal.normal_;
    color.high_ = high.high_;
    return color;
}

UIColor UIColor::clearColor() { return {}; }
UIColor UIColor::blackColor() { return colorWithWhite_alpha(0, 1); }
UIColor UIColor::whiteColor() { return colorWithWhite_alpha(1, 1); }

UIColor UIColor::labelColor() {
    return colorWithNormal_highContrast(colorWithLight_dark(colorWithHex(0x16181D), colorWithHex(0xF4F5F7)),
                                        colorWithLight_dark(blackColor(), whiteColor()));
}
UIColor UIColor::secondaryLabelColor() {
    return colorWithNormal_highContrast(colorWithLight_dark(colorWithHex(0x646B78), colorWithHex(0x9CA3B0)),
                                        colorWithLight_dark(colorWithHex(0x30353F), colorWithHex(0xDDE1E8)));
}
UIColor UIColor::systemBlueColor() {
    return colorWithNormal_highContrast(colorWithLight_dark(colorWithHex(0x0A66D8), colorWithHex(0x5AA2FF)),
                                        colorWithLight_dark(colorWithHex(0x00378F), colorWithHex(0xB3D6FF)));
}
UIColor UIColor::tertiarySystemFillColor() {
    return colorWithNormal_highContrast(colorWithLight_dark(colorWithHex(0x767D8A, 0.14), colorWithHex(0x8D95A3, 0.22)),
                                        colorWithLight_dark(colorWithHex(0x767D8A, 0.26), colorWithHex(0x8D95A3, 0.26)));
}

UIColor UIColor::colorWithAlphaComponent(double alpha) const {
    UIColor color = *this;
    color.normal_.light.alpha = color.normal_.dark.alpha = clampedToUnit(alpha);
    color.high_.light.alpha = color.high_.dark.alpha = clampedToUnit(alpha);
    return color;
}

const UIColorComponents& UIColor::resolved(UIUserInterfaceStyle style, UIAccessibilityContrast contrast) const {
    const Pair& pair = contrast == UIAccessibilityContrast::High ? high_ : normal_;
    return style == UIUserInterfaceStyle::Dark ? pair.dark : pair.light;
}

} // namespace gx
