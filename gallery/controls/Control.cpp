#include "Control.h"

#include <cmath>

#include "Theme.h"
#include <GXUIPickers/UIKey.h>
#include <GXUIPickers/UIWindow.h>

using namespace gx;

namespace gallery {

void Control::setFinger(std::optional<std::int64_t> finger) {
    finger_ = finger;
    setNeedsDisplay();
}

bool Control::isNearStart(const UITouch& touch) const {
    // In the window's coordinates, since a list that scrolls moves the control under the finger.
    return std::hypot(touch.locationInWindow.x - start_.x, touch.locationInWindow.y - start_.y) <= slop;
}

bool Control::touchBegan(const UITouch& touch) {
    if (!finger_) {
        start_ = touch.locationInWindow;
        setFinger(touch.identifier);
    }
    UIView::touchBegan(touch);
    return true;
}

void Control::touchMoved(const UITouch& touch) {
    if (finger_ == touch.identifier && !isNearStart(touch)) setFinger(std::nullopt);
    UIView::touchMoved(touch);
}

void Control::touchEnded(const UITouch& touch) {
    const Ref<UIView> keep = refTo<UIView>(this);
    const bool isTap = finger_ == touch.identifier && isNearStart(touch);
    if (finger_ == touch.identifier) setFinger(std::nullopt);
    UIView::touchEnded(touch);
    if (isTap) tapped(convertPointFromWindow(touch.locationInWindow));
}

void Control::touchCancelled(const UITouch& touch) {
    if (finger_ == touch.identifier) setFinger(std::nullopt);
    UIView::touchCancelled(touch);
}

std::optional<UIPointerStyle> Control::hoverMoved(CGPoint locationInWindow) {
    const CGPoint point = convertPointFromWindow(locationInWindow);
    const bool looksDifferent = !hover_ || looksDifferentAt(*hover_, point);
    hover_ = point;
    if (looksDifferent) setNeedsDisplay();
    return UIPointerStyle::Press;
}

void Control::hoverEnded() {
    hover_.reset();
    setNeedsDisplay();
}

bool Control::keyPressed(const UIKey& key) {
    const bool isTap = key.code == UIKey::Code::Return || key.code == UIKey::Code::Space;
    if (!isTap || key.isCommand()) return UIView::keyPressed(key);
    const Ref<UIView> keep = refTo<UIView>(this);
    if (!key.isRepeat) tapped(pointOfKeys()); // A key that is held taps once.
    return true;
}

CGPoint Control::pointOfKeys() const { return {CGRectGetMidX(bounds()), CGRectGetMidY(bounds())}; }

void Control::drawFocus(UIGraphicsContext& context, CGRect rect, CGFloat cornerRadius) const {
    const Ref<UIWindow> shownIn = window();
    if (shownIn && shownIn->showsFocus() && isFirstResponder()) Theme::drawOutline(context, rect, cornerRadius);
}

} // namespace gallery
