// A view's rectangles, and points from one view's coordinates in another's.

#include "UIView.h"

namespace gx {

void UIView::setFrame(CGRect frame) {
    if (frame == frame_) return;
    const CGSize sizeBefore = bounds().size;
    frame_ = frame;
    if (bounds().size != sizeBefore) setNeedsLayout();
    setNeedsDisplay();
}

CGRect UIView::bounds() const { return {boundsOrigin_, {CGRectGetWidth(frame_), CGRectGetHeight(frame_)}}; }

void UIView::setBounds(CGRect newBounds) {
    if (newBounds == bounds()) return;
    boundsOrigin_ = newBounds.origin;
    const CGSize size = {CGRectGetWidth(newBounds), CGRectGetHeight(newBounds)};
    if (size != bounds().size) {
        const CGPoint middle = center();
        frame_ = {{middle.x - 0.5 * size.width, middle.y - 0.5 * size.height}, size};
        setNeedsLayout();
    }
    setNeedsDisplay();
}

CGPoint UIView::center() const { return {CGRectGetMidX(frame_), CGRectGetMidY(frame_)}; }

void UIView::setCenter(CGPoint center) {
    const CGSize size = bounds().size;
    setFrame({{center.x - 0.5 * size.width, center.y - 0.5 * size.height}, size});
}

CGPoint UIView::originIn(const UIView* above) const {
    // The point (0, 0) of this view's coordinates, in those of a view above it or, without one, of the topmost view.
    CGPoint point;
    for (const UIView* view = this; view != above && view->superview_; view = view->superview_) {
        point.x += CGRectGetMinX(view->frame_) - view->boundsOrigin_.x;
        point.y += CGRectGetMinY(view->frame_) - view->boundsOrigin_.y;
    }
    return point;
}

CGPoint UIView::originSeenFrom(const UIView& view) const {
    // No further up than both have in common: a view up there may have no place.
    const UIView* common = this;
    while (common && !common->contains(view)) common = common->superview_;
    const CGPoint here = originIn(common);
    const CGPoint there = view.originIn(common);
    return {here.x - there.x, here.y - there.y};
}

CGRect UIView::convertRect_fromView(CGRect rect, const Ref<UIView>& view) const {
    if (!view) return CGRectZero;
    return {convertPoint_fromView(rect.origin, view), rect.size};
}

CGRect UIView::convertRect_toView(CGRect rect, const Ref<UIView>& view) const {
    if (!view) return CGRectZero;
    return {convertPoint_toView(rect.origin, view), rect.size};
}

CGPoint UIView::convertPoint_fromView(CGPoint point, const Ref<UIView>& view) const {
    if (!view) return {};
    const CGPoint origin = view->originSeenFrom(*this);
    return {point.x + origin.x, point.y + origin.y};
}

CGPoint UIView::convertPoint_toView(CGPoint point, const Ref<UIView>& view) const {
    if (!view) return {};
    const CGPoint origin = originSeenFrom(*view);
    return {point.x + origin.x, point.y + origin.y};
}

CGPoint UIView::convertPointFromWindow(CGPoint point) const {
    const CGPoint here = originIn(nullptr);
    return {point.x - here.x, point.y - here.y};
}

Ref<UIView> UIView::hitTest(CGPoint point) {
    if (isHidden_ || !isInteractive_ || alpha_ < lowestTouchableAlpha || !CGRectContainsPoint(bounds(), point)) return nullptr;
    for (auto entry = subviews_.rbegin(); entry != subviews_.rend(); ++entry) {
        UIView& view = **entry;
        const CGPoint inside = {point.x - CGRectGetMinX(view.frame_) + view.boundsOrigin_.x,
                                point.y - CGRectGetMinY(view.frame_) + view.boundsOrigin_.y};
        if (Ref<UIView> hit = view.hitTest(inside)) return hit;
    }
    return refTo(this);
}

} // namespace gx
