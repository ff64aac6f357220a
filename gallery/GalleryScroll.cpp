#include "GalleryScroll.h"

#include <algorithm>
#include <cmath>

#include "GalleryControl.h"
#include "GalleryTheme.h"
#include "UIGraphicsContext.h"
#include "UIWindow.h"

using namespace gx;

namespace gallery {

namespace {

// One notch of a mouse wheel, chosen to move about one row of a list.
constexpr CGFloat pointsPerNotch = 48;
// What is left of the speed after a millisecond; the pace of lists on the phone.
constexpr double decelerationRate = 0.998;
// Slower than this, in points a second, nobody sees it move.
constexpr double stillSpeed = 12;
// A finger that has rested so long, in seconds, has no speed.
constexpr NSTimeInterval restTime = 0.1;

} // namespace

bool GalleryScroll::initWithFrame(CGRect frame) {
    if (!UIView::initWithFrame(frame)) return false;
    setClipsToBounds(true);
    return true;
}

void GalleryScroll::setContent(Ref<UIView> content) {
    if (content_) content_->removeFromSuperview();
    content_ = std::move(content);
    if (content_) addSubview(content_);
    offset_ = 0;
    glideTime_ = std::nullopt;
    setNeedsLayout();
}

CGFloat GalleryScroll::maxOffset() const { return std::max(0.0, contentHeight_ - bounds().size.height); }

void GalleryScroll::setOffset(CGFloat offset) {
    if (std::isnan(offset)) return;
    const CGFloat held = std::clamp(offset, 0.0, maxOffset());
    if (held == offset_) return;
    offset_ = held;
    if (content_) content_->setFrame(CGRectMake(0, -offset_, bounds().size.width, contentHeight_));
    setNeedsDisplay();
}

void GalleryScroll::layoutSubviews() {
    UIView::layoutSubviews();
    if (!content_) return;
    const CGSize size = bounds().size;
    contentHeight_ = std::max(size.height, std::ceil(content_->sizeThatFits({size.width, 0}).height));
    offset_ = std::clamp(offset_, 0.0, maxOffset());
    content_->setFrame(CGRectMake(0, -offset_, size.width, contentHeight_));
}

void GalleryScroll::drawSubviews(UIGraphicsContext& context) {
    UIView::drawSubviews(context);
    if (maxOffset() <= 0) return;
    // A thin bar in the margin tells where the content stands.
    constexpr CGFloat thickness = 4;
    constexpr CGFloat inset = 4;
    const CGSize size = bounds().size;
    const CGFloat length = std::max(32.0, size.height * size.height / contentHeight_);
    const CGFloat y = inset + (size.height - 2 * inset - length) * offset_ / maxOffset();
    context.fillRect(CGRectMake(size.width - inset - thickness, y, thickness, length), GalleryTheme::pressed(), 0.5 * thickness);
}

void GalleryScroll::touchBegan(const UITouch& touch) {
    if (finger_) return;
    finger_ = touch.identifier;
    isDragging_ = false;
    lastY_ = touch.locationInWindow.y;
    lastTime_ = touch.timestamp;
    velocity_ = 0;
    glideTime_ = std::nullopt;
}

void GalleryScroll::touchMoved(const UITouch& touch) {
    if (finger_ != touch.identifier) return;
    const CGFloat way = lastY_ - touch.locationInWindow.y;
    if (!isDragging_ && std::fabs(way) <= GalleryControl::slop) return;
    const NSTimeInterval duration = touch.timestamp - lastTime_;
    // Half the latest piece and half the ones before: steady, yet quick to follow.
    if (isDragging_ && duration > 0) velocity_ = 0.5 * velocity_ + 0.5 * way / duration;
    // The content starts where the finger has passed the slop, so that it does not jump.
    if (isDragging_) setOffset(offset_ + way);
    isDragging_ = true;
    lastY_ = touch.locationInWindow.y;
    lastTime_ = touch.timestamp;
}

void GalleryScroll::touchEnded(const UITouch& touch) {
    if (finger_ != touch.identifier) return;
    finger_ = std::nullopt;
    const bool glides = isDragging_ && touch.timestamp - lastTime_ < restTime && std::fabs(velocity_) > stillSpeed;
    if (!glides) return;
    if (const Ref<UIWindow> window = this->window()) {
        glideTime_ = touch.timestamp;
        window->animateView(refTo<UIView>(this));
    }
}

void GalleryScroll::touchCancelled(const UITouch& touch) {
    if (finger_ == touch.identifier) finger_ = std::nullopt;
}

bool GalleryScroll::scrolled(const UIScroll& scroll) {
    if (maxOffset() <= 0) return UIView::scrolled(scroll);
    glideTime_ = std::nullopt;
    setOffset(offset_ + scroll.deltaY * (scroll.unit == UIScroll::Unit::Notches ? pointsPerNotch : 1));
    return true;
}

bool GalleryScroll::advanceToTime(NSTimeInterval time) {
    if (!glideTime_) return false;
    const double milliseconds = 1000 * std::max(0.0, time - *glideTime_);
    const double remaining = std::pow(decelerationRate, milliseconds);
    // The way run while the speed falls from `velocity_` to what remains of it.
    const double way = velocity_ * (remaining - 1) / (1000 * std::log(decelerationRate));
    const CGFloat before = offset_;
    setOffset(offset_ + way);
    velocity_ *= remaining;
    glideTime_ = time;
    const bool isAtEnd = milliseconds > 0 && offset_ == before;
    if (std::fabs(velocity_) <= stillSpeed || isAtEnd) glideTime_ = std::nullopt;
    return glideTime_.has_value();
}

} // namespace gallery
