#include "UIScrollIndicator.h"

#include <algorithm>

#include "NSLocale.h"

namespace gx {

namespace {

// In points, chosen by eye.
constexpr CGFloat thickness = 4;
constexpr CGFloat inset = 4;
constexpr CGFloat shortestKnob = 32;

} // namespace

void UIScrollIndicator::show() {
    alpha_ = 1;
    fadeStart_.reset();
}

bool UIScrollIndicator::advanceToTime(NSTimeInterval time, bool isInUse, bool fades) {
    if (!isVisible()) return false;
    const double before = alpha_;
    if (isInUse) {
        show();
        return alpha_ != before;
    }
    if (!fadeStart_) fadeStart_ = time + waitDuration;
    const NSTimeInterval faded = time - *fadeStart_;
    if (faded >= 0) alpha_ = fades ? std::clamp(1 - faded / fadeDuration, 0.0, alpha_) : 0;
    return alpha_ != before;
}

void UIScrollIndicator::draw(UIGraphicsContext& context, CGRect area, CGFloat contentHeight) const {
    const CGFloat highestOffset = contentHeight - area.size.height;
    if (!isVisible() || !(highestOffset > 0)) return;
    const CGFloat room = area.size.height - 2 * inset;
    const CGFloat length = std::min(room, std::max(shortestKnob, area.size.height * area.size.height / contentHeight));
    const CGFloat top = CGRectGetMinY(area);
    const CGFloat y = top + inset + (room - length) * std::clamp(top, 0.0, highestOffset) / highestOffset;
    const bool isMirrored = NSLocale::currentLocale()->isRightToLeft();
    const CGFloat x = isMirrored ? CGRectGetMinX(area) + inset : CGRectGetMaxX(area) - inset - thickness;
    context.saveState();
    if (alpha_ < 1) context.multiplyAlpha(alpha_);
    context.fillRect(CGRectMake(x, y, thickness, length), UIColor::tertiarySystemFillColor(), 0.5 * thickness);
    context.restoreState();
}

} // namespace gx
