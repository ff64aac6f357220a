#include "UIView.h"

#include <algorithm>
#include <cmath>

#include "NSLayoutConstraint.h"
#include "UIGraphicsContext.h"
#include "UIWindow.h"

namespace gx {

UIView::~UIView() {
    for (const Ref<UIView>& view : subviews_) view->superview_ = nullptr;
}

bool UIView::init() { return initWithFrame(CGRectZero); }

bool UIView::initWithFrame(CGRect frame) {
    if (!NSObject::init()) return false;
    frame_ = frame;
    return true;
}

bool UIView::initWithCoder(const Ref<NSCoder>& coder) {
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

void UIView::awakeFromNib() {}

// Layout

void UIView::setNeedsLayout() {
    needsLayout_ = true;
    for (UIView* above = superview_; above && !above->isLayoutDueBelow_; above = above->superview_) {
        above->isLayoutDueBelow_ = true;
    }
    setNeedsDisplay();
}

void UIView::layoutIfNeeded() {
    if (isLayingOut_) return;
    const Ref<UIView> keep = refTo(this);
    if (needsLayout_) {
        needsLayout_ = false;
        isLayingOut_ = true;
        layoutSubviews();
        isLayingOut_ = false;
    }
    if (!isLayoutDueBelow_) return;
    isLayoutDueBelow_ = false;
    // Without a copy of the list, since rows that scroll are laid out in every frame. Whom a change of the list hides from this walk, as
    // a view that asks again, or is in the middle of its own layout, waits for the next pass.
    std::size_t i = 0;
    for (std::size_t steps = subviews_.size(); steps > 0 && i < subviews_.size(); --steps) {
        const Ref<UIView> view = subviews_[i];
        view->layoutIfNeeded();
        if (i < subviews_.size() && subviews_[i] == view) ++i;
    }
    isLayoutDueBelow_ = std::any_of(subviews_.begin(), subviews_.end(),
                                    [](const Ref<UIView>& view) { return view->needsLayout_ || view->isLayoutDueBelow_; });
}

void UIView::layoutSubviews() {
    // Each pinned view is placed once, by all its pins together, when its first pin is met. Being placed, it may change
    // the list.
    const std::vector<Ref<NSLayoutConstraint>> constraints = constraints_;
    for (std::size_t i = 0; i < constraints.size(); ++i) {
        const Ref<UIView> item = constraints[i]->firstItem();
        if (!item || item->superview_ != this) continue;
        const auto isForItem = [&item](const Ref<NSLayoutConstraint>& constraint) { return constraint->firstItem() == item; };
        const auto present = constraints.begin() + static_cast<std::ptrdiff_t>(i);
        if (std::any_of(constraints.begin(), present, isForItem)) continue;
        NSLayoutPins pins;
        std::for_each(present, constraints.end(), [&](const Ref<NSLayoutConstraint>& constraint) {
            if (isForItem(constraint)) pins.add(*constraint);
        });
        item->setFrame(pins.frameInBounds_from(bounds(), item->frame()));
    }
}

CGSize UIView::sizeThatFits(CGSize) const { return bounds().size; }

void UIView::sizeToFit() {
    const CGPoint origin = CGRectIsNull(frame_) ? CGPoint{} : frame_.origin;
    setFrame({origin, sizeThatFits(bounds().size)});
}

void UIView::addConstraints(const std::vector<Ref<NSLayoutConstraint>>& constraints) {
    for (const Ref<NSLayoutConstraint>& constraint : constraints) {
        if (constraint) constraints_.push_back(constraint);
    }
    setNeedsLayout();
}

// Appearance

void UIView::setBackgroundColor(std::optional<UIColor> color) {
    if (color == backgroundColor_) return;
    backgroundColor_ = color;
    setNeedsDisplay();
}

void UIView::setAlpha(double alpha) {
    const double held = std::isnan(alpha) ? 0 : std::clamp(alpha, 0.0, 1.0);
    if (held == alpha_) return;
    alpha_ = held;
    setNeedsDisplay();
}

void UIView::setClipsToBounds(bool clips) {
    if (clips == clipsToBounds_) return;
    clipsToBounds_ = clips;
    setNeedsDisplay();
}

void UIView::setCornerRadius(CGFloat radius) {
    const CGFloat held = radius > 0 ? radius : 0;
    if (held == cornerRadius_) return;
    cornerRadius_ = held;
    setNeedsDisplay();
}

UIColor UIView::tintColor() const {
    for (const UIView* view = this; view; view = view->superview_) {
        if (view->tintColor_) return *view->tintColor_;
    }
    return UIColor::systemBlueColor();
}

void UIView::setTintColor(std::optional<UIColor> color) {
    const UIColor before = tintColor();
    tintColor_ = color;
    if (tintColor() != before) notifyTint();
}

void UIView::notifyTint() {
    const Ref<UIView> keep = refTo(this);
    const std::vector<Ref<UIView>> below = subviews_;
    tintColorDidChange();
    setNeedsDisplay();
    for (const Ref<UIView>& view : below) {
        if (view->superview_ == this && !view->tintColor_) view->notifyTint();
    }
}

void UIView::tintColorDidChange() {}

// Drawing

void UIView::setNeedsDisplay() {
    if (UIWindow* window = root()->asWindow()) window->requestFrame();
}

void UIView::renderInContext(UIGraphicsContext& context) {
    context.saveState();
    drawContent(context);
    context.restoreState();
}

void UIView::drawView(UIView& view, UIGraphicsContext& context) {
    if (view.isHidden_ || view.alpha_ == 0 || CGRectIsEmpty(view.frame_)) return;
    context.saveState();
    context.translate(CGRectGetMinX(view.frame_), CGRectGetMinY(view.frame_));
    if (view.alpha_ < 1) context.multiplyAlpha(view.alpha_);
    view.drawContent(context);
    context.restoreState();
}

void UIView::drawContent(UIGraphicsContext& context) {
    const CGRect area = {{}, bounds().size};
    if (clipsToBounds_) context.clipToRect(area);
    if (backgroundColor_) context.fillRect(area, *backgroundColor_, cornerRadius_);
    if (boundsOrigin_ != CGPoint{}) context.translate(-boundsOrigin_.x, -boundsOrigin_.y);
    drawRect(context, bounds());
    drawSubviews(context);
}

bool UIView::showsSomething() const { return true; }

void UIView::drawRect(UIGraphicsContext&, CGRect) {}

void UIView::drawSubviews(UIGraphicsContext& context) {
    for (std::size_t i = 0; i < subviews_.size(); ++i) {
        const Ref<UIView> view = subviews_[i]; // Drawing may change the list.
        drawView(*view, context);
    }
}

// Events

bool UIView::touchBegan(const UITouch& touch) {
    const Ref<UIView> above = superview();
    return above && above->touchBegan(touch);
}
void UIView::touchMoved(const UITouch& touch) {
    if (const Ref<UIView> above = superview()) above->touchMoved(touch);
}
void UIView::touchEnded(const UITouch& touch) {
    if (const Ref<UIView> above = superview()) above->touchEnded(touch);
}
void UIView::touchCancelled(const UITouch& touch) {
    if (const Ref<UIView> above = superview()) above->touchCancelled(touch);
}
bool UIView::scrolled(const UIScroll& scroll) {
    const Ref<UIView> above = superview();
    return above && above->scrolled(scroll);
}

bool UIView::advanceToTime(NSTimeInterval) { return false; }

// Accessibility

UIAccessibilityElements UIView::accessibilityElements() { return accessibilityElementsOfSubviews(refTo(this)); }

} // namespace gx
