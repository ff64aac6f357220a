#include "GalleryControl.h"

#include <cmath>

#include "GalleryTheme.h"
#include <GXUIPickers/UIKey.h>
#include <GXUIPickers/UIWindow.h>

using namespace gx;

namespace gallery {

void GalleryControl::setFinger(std::optional<std::int64_t> finger) {
    finger_ = finger;
    setNeedsDisplay();
}

bool GalleryControl::isNearStart(const UITouch& touch) const {
    // In the window's coordinates: a list that is scrolled carries the control along under the finger.
    return std::hypot(touch.locationInWindow.x - start_.x, touch.locationInWindow.y - start_.y) <= slop;
}

bool GalleryControl::touchBegan(const UITouch& touch) {
    if (!finger_) {
        start_ = touch.locationInWindow;
        setFinger(touch.identifier);
    }
    UIView::touchBegan(touch);
    return true;
}

void GalleryControl::touchMoved(const UITouch& touch) {
    if (finger_ == touch.identifier && !isNearStart(touch)) setFinger(std::nullopt);
    UIView::touchMoved(touch);
}

void GalleryControl::touchEnded(const UITouch& touch) {
    const Ref<UIView> keep = refTo<UIView>(this);
    const bool isTap = finger_ == touch.identifier && isNearStart(touch);
    if (finger_ == touch.identifier) setFinger(std::nullopt);
    UIView::touchEnded(touch);
    if (isTap) tapped(convertPointFromWindow(touch.locationInWindow));
}

void GalleryControl::touchCancelled(const UITouch& touch) {
    if (finger_ == touch.identifier) setFinger(std::nullopt);
    UIView::touchCancelled(touch);
}

bool GalleryControl::keyPressed(const UIKey& key) {
    const bool isTap = key.code == UIKey::Code::Return || key.code == UIKey::Code::Space;
    if (!isTap || key.isCommand()) return UIView::keyPressed(key);
    const Ref<UIView> keep = refTo<UIView>(this);
    if (!key.isRepeat) tapped(pointOfKeys()); // A key that is held taps once.
    return true;
}

CGPoint GalleryControl::pointOfKeys() const { return {CGRectGetMidX(bounds()), CGRectGetMidY(bounds())}; }

void GalleryControl::drawFocus(UIGraphicsContext& context, CGRect rect, CGFloat cornerRadius) const {
    const Ref<UIWindow> shownIn = window();
    if (shownIn && shownIn->showsFocus() && isFirstResponder()) GalleryTheme::drawOutline(context, rect, cornerRadius);
}

} // namespace gallery
