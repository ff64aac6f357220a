// What a finger does to the rows of a table, and time to what it did.

#include "UITableView.h"
#include "UIWindow.h"

namespace gx {

void UITableView::light(NSIndexPath path) {
    darken();
    const auto row = findRow(path);
    if (row == shown_.end() || !row->cell) return;
    lit_ = row->cell;
    const Ref<UITableViewCell> cell = lit_;
    cell->setHighlighted(true);
}

void UITableView::darken() {
    darkensAt_.reset();
    if (const Ref<UITableViewCell> cell = std::move(lit_)) cell->setHighlighted(false);
}

void UITableView::forgetPress() {
    pressed_.reset();
    lightsAt_.reset();
    darken();
}

void UITableView::pressBegan(CGPoint point, NSTimeInterval time) {
    const Ref<UITableView> keep = self();
    UIScrollView::pressBegan(point, time);
    forgetPress();
    const std::optional<NSIndexPath> path = indexPathForRowAtPoint(point);
    if (!path) return;
    pressed_ = path;
    lightsAt_ = time + highlightDelay;
    if (!canBeTapped(*path)) forgetPress();
    if (lightsAt_) startMoving();
}

void UITableView::pressEnded(bool isTap, NSTimeInterval time) {
    const Ref<UITableView> keep = self();
    UIScrollView::pressEnded(isTap, time);
    if (isTap && pressed_) {
        focused_ = pressed_;
        becomeFirstResponder(); // Whoever loses it may change the rows.
    }
    const std::optional<NSIndexPath> path = pressed_;
    if (!isTap || !path) {
        forgetPress();
        return;
    }
    pressed_.reset();
    lightsAt_.reset();
    tapRow(*path, time);
}

void UITableView::tapRow(NSIndexPath path, NSTimeInterval time) {
    if (window()) {
        light(path);
        darkensAt_ = time + tapDuration;
        startMoving();
    }
    if (const auto delegate = delegate_.lock()) delegate->tableView_didSelectRowAtIndexPath(self(), path);
}

void UITableView::touchEnded(const UITouch& touch) {
    const Ref<UITableView> keep = self();
    UIScrollView::touchEnded(touch);
    if (!leaving_.empty()) setNeedsLayout();
}

void UITableView::touchCancelled(const UITouch& touch) {
    const Ref<UITableView> keep = self();
    UIScrollView::touchCancelled(touch);
    if (!leaving_.empty()) setNeedsLayout();
}

void UITableView::scrollViewDidScroll() {
    UIScrollView::scrollViewDidScroll();
    setNeedsLayout();
}

bool UITableView::isMoving() const { return UIScrollView::isMoving() || change_ || lightsAt_ || darkensAt_; }

bool UITableView::advanceToTime(NSTimeInterval time) {
    const Ref<UITableView> keep = self();
    UIScrollView::advanceToTime(time);
    if (change_ && (reducesMotion() || !change_->advanceToTime(time))) finishChange();
    const auto hasCome = [time](const std::optional<NSTimeInterval>& moment) {
        return moment && time >= UIScrollMotion::startSeenAt(*moment, time);
    };
    if (hasCome(lightsAt_)) {
        lightsAt_.reset();
        if (pressed_) light(*pressed_);
    }
    if (hasCome(darkensAt_)) darken();
    return isMoving();
}

void UITableView::finishAnimations() {
    const Ref<UITableView> keep = self();
    UIScrollView::finishAnimations();
    forgetPress();
    finishChange();
}

} // namespace gx
