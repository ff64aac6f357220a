#include "UIViewNode.h"

#include <algorithm>
#include <cmath>

namespace gx {

bool UIViewNode::init() { return initWithFrame(CGRectZero); }

bool UIViewNode::initWithFrame(CGRect frame) {
    if (!NSObject::init()) return false;
    frame_ = frame;
    return true;
}

bool UIViewNode::initWithCoder(const Ref<NSCoder>& coder) {
    if (!NSObject::init()) return false;
    if (!coder) return true;
    frame_ = coder->decodeCGRectForKey("frame");
    if (coder->containsValueForKey("bounds")) {
        const CGRect bounds = coder->decodeCGRectForKey("bounds");
        boundsOrigin_ = bounds.origin;
        if (!coder->containsValueForKey("frame")) frame_ = {{}, bounds.size};
    }
    isHidden_ = coder->decodeBoolForKey("hidden");
    clipsToBounds_ = coder->decodeBoolForKey("clipsToBounds");
    tag_ = coder->decodeIntegerForKey("tag");
    if (coder->containsValueForKey("alpha")) setAlpha(coder->decodeDoubleForKey("alpha"));
    if (coder->containsValueForKey("userInteractionEnabled")) {
        isInteractive_ = coder->decodeBoolForKey("userInteractionEnabled");
    }
    const auto colorForKey = [&coder](const char* key) -> std::optional<UIColor> {
        if (!coder->containsValueForKey(key)) return std::nullopt;
        return UIColor::colorWithHex(static_cast<unsigned>(coder->decodeIntegerForKey(key)));
    };
    backgroundColor_ = colorForKey("backgroundColor");
    tintColor_ = colorForKey("tintColor");
    return true;
}

// Geometry

void UIViewNode::setFrame(CGRect frame) {
    if (frame == frame_) return;
    const CGSize sizeBefore = bounds().size;
    frame_ = frame;
    if (bounds().size != sizeBefore) boundsSizeDidChange();
    setNeedsDisplay();
}

CGRect UIViewNode::bounds() const { return {boundsOrigin_, {CGRectGetWidth(frame_), CGRectGetHeight(frame_)}}; }

void UIViewNode::setBounds(CGRect newBounds) {
    if (newBounds == bounds()) return;
    boundsOrigin_ = newBounds.origin;
    const CGSize size = {CGRectGetWidth(newBounds), CGRectGetHeight(newBounds)};
    if (size != bounds().size) {
        const CGPoint middle = center();
        frame_ = {{middle.x - 0.5 * size.width, middle.y - 0.5 * size.height}, size};
        boundsSizeDidChange();
    }
    setNeedsDisplay();
}

CGPoint UIViewNode::center() const { return {CGRectGetMidX(frame_), CGRectGetMidY(frame_)}; }

void UIViewNode::setCenter(CGPoint center) {
    const CGSize size = bounds().size;
    setFrame({{center.x - 0.5 * size.width, center.y - 0.5 * size.height}, size});
}

CGPoint UIViewNode::originIn(const UIViewNode* above) const {
    // The point (0, 0) of this view's coordinates, in those of a view above it or, without one, of
    // the topmost view.
    CGPoint point;
    for (const UIViewNode* view = this; view != above && view->above_; view = view->above_) {
        point.x += CGRectGetMinX(view->frame_) - view->boundsOrigin_.x;
        point.y += CGRectGetMinY(view->frame_) - view->boundsOrigin_.y;
    }
    return point;
}

CGPoint UIViewNode::originSeenFrom(const UIViewNode& view) const {
    // No further up than both have in common: a view up there may have no place.
    const UIViewNode* common = this;
    while (common && !common->contains(view)) common = common->above_;
    const CGPoint here = originIn(common);
    const CGPoint there = view.originIn(common);
    return {here.x - there.x, here.y - there.y};
}

CGRect UIViewNode::convertRect_fromView(CGRect rect, const Ref<UIViewNode>& view) const {
    if (!view) return CGRectZero;
    return {convertPoint_fromView(rect.origin, view), rect.size};
}

CGRect UIViewNode::convertRect_toView(CGRect rect, const Ref<UIViewNode>& view) const {
    if (!view) return CGRectZero;
    return {convertPoint_toView(rect.origin, view), rect.size};
}

CGPoint UIViewNode::convertPoint_fromView(CGPoint point, const Ref<UIViewNode>& view) const {
    if (!view) return {};
    const CGPoint origin = view->originSeenFrom(*this);
    return {point.x + origin.x, point.y + origin.y};
}

CGPoint UIViewNode::convertPoint_toView(CGPoint point, const Ref<UIViewNode>& view) const {
    if (!view) return {};
    const CGPoint origin = originSeenFrom(*view);
    return {point.x + origin.x, point.y + origin.y};
}

CGPoint UIViewNode::convertPointFromWindow(CGPoint point) const {
    const CGPoint here = originIn(nullptr);
    return {point.x - here.x, point.y - here.y};
}

// Views above

UIViewNode* UIViewNode::top() const {
    const UIViewNode* view = this;
    while (view->above_) view = view->above_;
    // The view above is no part of this one, so it is not const with it.
    return const_cast<UIViewNode*>(view); // NOLINT(cppcoreguidelines-pro-type-const-cast)
}

UIViewRoot* UIViewNode::rawViewRoot() const { return top()->asViewRoot(); }

Ref<UIViewRoot> UIViewNode::viewRoot() const {
    const Ref<UIViewNode> owner = refTo(top());
    UIViewRoot* const root = owner ? owner->asViewRoot() : nullptr;
    return root ? Ref<UIViewRoot>(owner, root) : nullptr;
}

bool UIViewNode::contains(const UIViewNode& view) const {
    for (const UIViewNode* above = &view; above; above = above->above_) {
        if (above == this) return true;
    }
    return false;
}

bool UIViewNode::isDescendantOfView(const Ref<UIViewNode>& view) const { return view && view->contains(*this); }

bool UIViewNode::isShown() const {
    for (const UIViewNode* view = this; view; view = view->above_) {
        if (view->isHidden_ || view->alpha_ == 0) return false;
    }
    return true;
}

bool UIViewNode::isInteractive() const {
    for (const UIViewNode* view = this; view; view = view->above_) {
        if (!view->isInteractive_) return false;
    }
    return true;
}

CGRect UIViewNode::clippedByViewsAbove(CGRect rectInWindow) const {
    for (const UIViewNode* view = above_; view; view = view->above_) {
        if (!view->clipsToBounds_) continue;
        const CGPoint origin = view->originIn(nullptr);
        rectInWindow = CGRectIntersection(rectInWindow, CGRectOffset(view->bounds(), origin.x, origin.y));
    }
    return rectInWindow;
}

// Appearance

void UIViewNode::setBackgroundColor(std::optional<UIColor> color) {
    if (color == backgroundColor_) return;
    backgroundColor_ = color;
    setNeedsDisplay();
}

void UIViewNode::setAlpha(double alpha) {
    const double clamped = std::isnan(alpha) ? 0 : std::clamp(alpha, 0.0, 1.0);
    if (clamped == alpha_) return;
    alpha_ = clamped;
    setNeedsDisplay();
}

void UIViewNode::setHidden(bool hidden) {
    if (hidden == isHidden_) return;
    isHidden_ = hidden;
    setNeedsDisplay();
    if (!hidden) return;
    const Ref<UIViewNode> keep = refTo(this);
    if (const Ref<UIViewRoot> root = viewRoot()) root->resignFirstResponderWithin(keep);
    finishAnimationsInTree();
}

void UIViewNode::setClipsToBounds(bool clips) {
    if (clips == clipsToBounds_) return;
    clipsToBounds_ = clips;
    setNeedsDisplay();
}

void UIViewNode::setCornerRadius(CGFloat radius) {
    const CGFloat clamped = radius > 0 ? radius : 0;
    if (clamped == cornerRadius_) return;
    cornerRadius_ = clamped;
    setNeedsDisplay();
}

UIColor UIViewNode::tintColor() const {
    for (const UIViewNode* view = this; view; view = view->above_) {
        if (view->tintColor_) return *view->tintColor_;
    }
    return UIColor::systemBlueColor();
}

void UIViewNode::setTintColor(std::optional<UIColor> color) {
    const UIColor before = tintColor();
    tintColor_ = color;
    if (tintColor() != before) notifyTint();
}

void UIViewNode::notifyTint() {
    const Ref<UIViewNode> keep = refTo(this);
    tintColorDidChange();
    setNeedsDisplay();
}

void UIViewNode::invalidateDrawing(UIViewNode& node) {
    node.drawing_.view = UIDrawingVersion::next();
    for (UIViewNode* view = &node; view; view = view->above_) view->drawing_.tree = UIDrawingVersion::next();
}

void UIViewNode::setNeedsDisplay() {
    invalidateDrawing(*this);
    if (UIViewRoot* const root = rawViewRoot()) root->requestFrame();
}

// Input and focus

Ref<UIResponder> UIViewNode::nextResponder() const { return refTo(above_); }

bool UIViewNode::takesInputItself() const { return !isHidden_ && isInteractive_ && alpha_ >= lowestTouchableAlpha; }

bool UIViewNode::takesInput() const {
    for (const UIViewNode* view = this; view; view = view->above_) {
        if (!view->takesInputItself()) return false;
    }
    return true;
}

bool UIViewNode::becomeFirstResponder() {
    const Ref<UIViewNode> keep = refTo(this);
    const Ref<UIViewRoot> root = viewRoot();
    if (!keep || !root || !takesInput() || !canBecomeFirstResponder()) return false;
    root->moveFocusTo(keep);
    return isFirstResponder();
}

bool UIViewNode::resignFirstResponder() {
    const Ref<UIViewNode> keep = refTo(this); // A callback may drop the view.
    const Ref<UIViewRoot> root = viewRoot();
    if (!isFirstResponder()) return false;
    root->moveFocusTo(nullptr);
    return !isFirstResponder();
}

bool UIViewNode::isFirstResponder() const {
    const Ref<UIViewRoot> root = viewRoot();
    return root && root->isFocusedOn(*this);
}

void UIViewNode::focusDidChange() { setNeedsDisplay(); }

void UIViewNode::revealDescendant(CGRect rect) {
    if (const Ref<UIViewNode> above = refTo(above_)) above->revealDescendant(convertRect_toView(rect, above));
}

// Accessibility. A frame is needed, since a host looks for changes after each one.

void UIViewNode::setAccessibilityLabel(std::optional<std::string> label) {
    if (label == accessibilityLabel_) return;
    accessibilityLabel_ = std::move(label);
    setNeedsDisplay();
}

void UIViewNode::setAccessibilityRole(std::optional<UIAccessibilityRole> role) {
    if (role == accessibilityRole_) return;
    accessibilityRole_ = role;
    setNeedsDisplay();
}

void UIViewNode::setAccessibilityExpanded(std::optional<bool> expanded) {
    if (expanded == isAccessibilityExpanded_) return;
    isAccessibilityExpanded_ = expanded;
    setNeedsDisplay();
}

// Time

void UIViewNode::finishAnimationsInTree() { finishAnimations(); }

} // namespace gx
