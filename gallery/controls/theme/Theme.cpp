#include "Theme.h"

#include <algorithm>
#include <array>
#include <cmath>

#include <GXUIPickers/GXStyleSheet.h>
#include <GXUIPickers/UIGraphicsContext.h>

using namespace gx;

namespace gallery {

namespace {

UIColor lightDark(unsigned light, unsigned dark) {
    return UIColor::colorWithLight_dark(UIColor::colorWithHex(light), UIColor::colorWithHex(dark));
}

/// A colour with other values at high contrast.
UIColor contrasting(const UIColor& normal, unsigned light, unsigned dark) {
    return UIColor::colorWithNormal_highContrast(normal, lightDark(light, dark));
}

constexpr CGFloat bodySize = 15;

} // namespace

UIColor Theme::background() { return lightDark(0xF3F4F6, 0x0E1013); }
UIColor Theme::sidebar() { return lightDark(0xFBFBFC, 0x15171B); }
UIColor Theme::card() { return lightDark(0xFFFFFF, 0x1B1E23); }
UIColor Theme::hairline() { return contrasting(lightDark(0xE6E8EC, 0x2A2E35), 0x6B727E, 0x8F97A3); }
UIColor Theme::text() { return UIColor::labelColor(); }
UIColor Theme::secondaryText() { return UIColor::secondaryLabelColor(); }
UIColor Theme::accent() { return contrasting(lightDark(0x0B7269, 0x56CDBF), 0x00453F, 0x8FF0E4); }
UIColor Theme::warning() { return contrasting(lightDark(0xB3261E, 0xFF8A80), 0x7A110B, 0xFFC1BB); }
UIColor Theme::accentFill() {
    return UIColor::colorWithLight_dark(UIColor::colorWithHex(0x0B7269, 0.10), UIColor::colorWithHex(0x56CDBF, 0.15));
}
UIColor Theme::track() { return contrasting(lightDark(0xEBEDF0, 0x272B32), 0xD3D7DD, 0x2C3038); }
UIColor Theme::thumb() { return contrasting(lightDark(0xFFFFFF, 0x454B56), 0xFFFFFF, 0x0E1013); }
UIColor Theme::pressed() {
    return UIColor::colorWithLight_dark(UIColor::colorWithWhite_alpha(0, 0.06), UIColor::colorWithWhite_alpha(1, 0.08));
}

UIColor Theme::hovered() {
    const UIColor normal = UIColor::colorWithLight_dark(UIColor::colorWithWhite_alpha(0, 0.035), UIColor::colorWithWhite_alpha(1, 0.05));
    return UIColor::colorWithNormal_highContrast(normal, pressed());
}

double Theme::textScale() { return GXStyleSheet::globalStyleSheet()->textScale(); }

Ref<UIFont> Theme::font(TextStyle style) {
    struct Font {
        CGFloat size = bodySize;
        UIFontWeight weight = UIFontWeight::Regular;
        double scale = 0;
        Ref<UIFont> scaledFont = nullptr;
    };
    // In the order of `TextStyle`.
    static std::array<Font, 7> fonts = {{{28, UIFontWeight::Bold},
                                         {17, UIFontWeight::Semibold},
                                         {bodySize, UIFontWeight::Regular},
                                         {bodySize, UIFontWeight::Semibold},
                                         {13, UIFontWeight::Regular},
                                         {13, UIFontWeight::Semibold},
                                         {13, UIFontWeight::Medium}}};
    Font& found = fonts.at(static_cast<std::size_t>(style));
    const double scale = textScale();
    if (!found.scaledFont || found.scale != scale) {
        const CGFloat aboveBody = std::max(0.0, found.size - bodySize);
        const CGFloat size = std::min(found.size * scale, (found.size - aboveBody) * scale + aboveBody);
        found.scaledFont = UIFont::systemFontOfSize_weight(std::round(size), found.weight);
        found.scale = scale;
    }
    return found.scaledFont;
}

// A line grows by some 18 points for each step of 1; the room above and below it hardly needs to.
CGFloat Theme::controlHeight() { return 40 + std::round(20 * std::max(0.0, textScale() - 1)); }
CGFloat Theme::barHeight() { return controlHeight() + 16; }
CGFloat Theme::sidebarWidth() { return std::round(grown(232)); }
CGFloat Theme::sidebarBreakpoint() { return grown(720); }
CGFloat Theme::scaled(CGFloat length) { return length * textScale(); }
CGFloat Theme::grown(CGFloat length) { return std::max(length, scaled(length)); }

void Theme::drawOutline(UIGraphicsContext& context, CGRect rect, CGFloat cornerRadius) {
    constexpr CGFloat width = 2;
    constexpr double rightAngle = 1.5707963267948966;
    // Straight lines, and around each corner dots that are close enough to look like a line, since
    // a canvas fills rectangles but has no outlines.
    const CGFloat radius = std::clamp(cornerRadius, width, 0.5 * std::min(rect.size.width, rect.size.height));
    const CGFloat right = CGRectGetMaxX(rect);
    const CGFloat bottom = CGRectGetMaxY(rect);
    for (const CGFloat y : {rect.origin.y, bottom - width}) {
        context.fillRect(CGRectMake(rect.origin.x + radius, y, rect.size.width - 2 * radius, width), accent());
    }
    for (const CGFloat x : {rect.origin.x, right - width}) {
        context.fillRect(CGRectMake(x, rect.origin.y + radius, width, rect.size.height - 2 * radius), accent());
    }
    constexpr int dots = 24;
    const CGFloat reach = radius - 0.5 * width;
    for (int i = 0; i <= dots; ++i) {
        const double angle = i * rightAngle / dots;
        const CGFloat dx = radius - reach * std::cos(angle) - 0.5 * width;
        const CGFloat dy = radius - reach * std::sin(angle) - 0.5 * width;
        for (const CGFloat x : {rect.origin.x + dx, right - dx - width}) {
            for (const CGFloat y : {rect.origin.y + dy, bottom - dy - width}) {
                context.fillRect(CGRectMake(x, y, width, width), accent(), 0.5 * width);
            }
        }
    }
}

void Theme::layOutAgain(const Ref<UIView>& view) {
    view->setNeedsLayout();
    view->setNeedsDisplay();
    for (const Ref<UIView>& below : view->subviews()) layOutAgain(below);
}

Ref<UIView> Theme::makeCard() {
    auto view = create<UIView>(CGRectZero);
    view->setBackgroundColor(card());
    view->setCornerRadius(cardRadius);
    return view;
}

} // namespace gallery
