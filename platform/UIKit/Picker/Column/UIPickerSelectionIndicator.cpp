#include "UIPickerSelectionIndicator.h"

#include "UIGraphicsContext.h"

namespace gx {

namespace {

constexpr CGFloat cornerRadius = 8;
// At high contrast. Chosen wide enough to be seen, and narrower than the bars that mark the focus.
constexpr CGFloat outline = 1.5;

// The mark of the focus, chosen by eye: the column's part in the tint, between two bars strong
// enough to be found at a glance.
constexpr double focusFillAlpha = 0.14;
constexpr CGFloat focusCornerRadius = cornerRadius;
constexpr CGFloat focusBarHeight = 2;
// The mark of the pointer, chosen by eye: half of that, without bars; at high contrast as much.
constexpr double hoverFillAlpha = 0.07;
constexpr double strongHoverFillAlpha = focusFillAlpha;

} // namespace

void UIPickerSelectionIndicator::draw(UIGraphicsContext& context, CGRect frame) {
    const bool isOutlined = context.accessibilityContrast() == UIAccessibilityContrast::High;
    // An outline of straight lines has no rounded corners to follow.
    context.fillRect(frame, UIColor::tertiarySystemFillColor(), isOutlined ? 0 : cornerRadius);
    if (!isOutlined) return;
    for (const CGFloat y : {CGRectGetMinY(frame), CGRectGetMaxY(frame) - outline})
        context.fillRect(CGRectMake(frame.origin.x, y, frame.size.width, outline), UIColor::secondaryLabelColor());
    for (const CGFloat x : {CGRectGetMinX(frame), CGRectGetMaxX(frame) - outline})
        context.fillRect(CGRectMake(x, frame.origin.y, outline, frame.size.height), UIColor::secondaryLabelColor());
}

void UIPickerSelectionIndicator::drawFocus(UIGraphicsContext& context, CGRect part, const UIColor& tint) {
    context.fillRect(part, tint.colorWithAlphaComponent(focusFillAlpha), focusCornerRadius);
    const CGFloat width = part.size.width - 2 * focusCornerRadius;
    if (width <= 0) return;
    for (const CGFloat y : {CGRectGetMinY(part), CGRectGetMaxY(part) - focusBarHeight}) {
        context.fillRect(CGRectMake(part.origin.x + focusCornerRadius, y, width, focusBarHeight), tint, 0.5 * focusBarHeight);
    }
}

void UIPickerSelectionIndicator::drawHover(UIGraphicsContext& context, CGRect part, const UIColor& tint) {
    const UIColor fill = UIColor::colorWithNormal_highContrast(tint.colorWithAlphaComponent(hoverFillAlpha),
                                                               tint.colorWithAlphaComponent(strongHoverFillAlpha));
    context.fillRect(part, fill, focusCornerRadius);
}

} // namespace gx
