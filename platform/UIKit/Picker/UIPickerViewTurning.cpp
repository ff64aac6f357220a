// How a wheel turns: fingers, mouse wheel and trackpad reach its columns, time moves them, and the delegate hears of it.

#include <algorithm>
#include <cmath>

#include "NSArithmetic.h"
#include "UIHost.h"
#include "UIPickerViewComponent.h"

namespace gx {

bool UIPickerView::isTurning() const {
    return std::any_of(components_.begin(), components_.end(), [](const auto& component) { return component->turn.isTurning(); });
}

bool UIPickerView::isMoving() const {
    return std::any_of(components_.begin(), components_.end(), [](const auto& component) { return component->turn.isMoving(); });
}

NSInteger UIPickerView::componentAt(CGPoint point) const {
    for (NSInteger i = 0; i < count_; ++i) {
        const Component& entry = *components_[static_cast<std::size_t>(i)];
        if (entry.column && CGRectContainsPoint(entry.column->frame(), point)) return i;
    }
    return -1;
}

NSInteger UIPickerView::componentOfTouch(std::int64_t identifier) const {
    for (NSInteger i = 0; i < count_; ++i) {
        if (components_[static_cast<std::size_t>(i)]->turn.hasFinger(identifier)) return i;
    }
    return -1;
}

bool UIPickerView::canTurn(NSInteger component) {
    return component >= 0 && component < count_ && at(component).rows > 0 && at(component).column && at(component).column->showsSomething();
}

void UIPickerView::startMoving() {
    if (const Ref<UIWindow> window = this->window()) {
        window->animateView(refTo<UIView>(this));
    } else if (isMoving()) {
        finishAnimations();
    }
}

void UIPickerView::tellTicks(NSInteger rows) {
    constexpr NSInteger highest = 100;
    for (NSInteger i = 0; i < std::min(rows, highest); ++i) {
        const Ref<UIWindow> window = this->window();
        if (!window) return;
        window->giveFeedback(UIFeedback::SelectionChanged);
    }
}

bool UIPickerView::touchBegan(const UITouch& touch) {
    const Ref<UIPickerView> keep = self();
    layoutIfNeeded();
    const CGPoint point = convertPointFromWindow(touch.locationInWindow);
    const NSInteger component = componentAt(point);
    if (!canTurn(component)) return UIView::touchBegan(touch);
    // What was typed is complete; its report waits for the finger, which may turn on.
    typing_.clear();
    at(component).turn.touchBegan(touch.identifier, point.y, touch.timestamp);
    const bool isTaken = at(component).turn.hasFinger(touch.identifier);
    if (canBeChosen(component)) choose(component);
    becomeFirstResponder();
    return isTaken;
}

void UIPickerView::touchMoved(const UITouch& touch) {
    const NSInteger component = componentOfTouch(touch.identifier);
    if (component < 0) {
        UIView::touchMoved(touch);
        return;
    }
    at(component).turn.touchMoved(convertPointFromWindow(touch.locationInWindow).y, touch.timestamp);
    startMoving();
}

void UIPickerView::touchEnded(const UITouch& touch) {
    const NSInteger component = componentOfTouch(touch.identifier);
    if (component < 0) {
        UIView::touchEnded(touch);
        return;
    }
    Component& entry = at(component);
    const CGPoint point = convertPointFromWindow(touch.locationInWindow);
    std::optional<NSInteger> tappedRow;
    // A finger lies on a column that is laid out; with its view, a column loses its finger.
    if (const auto offset = entry.column->offsetDrawnAt(point.y - CGRectGetMinY(entry.column->frame()))) {
        const NSInteger row = wrappingAdd(entry.turn.anchorRow(), truncateTo<NSInteger>(std::round(*offset)));
        if (row >= 0 && row < entry.rows) tappedRow = row;
    }
    entry.turn.touchEnded(point.y, touch.timestamp, tappedRow);
    letGo(entry);
}

void UIPickerView::touchCancelled(const UITouch& touch) {
    const NSInteger component = componentOfTouch(touch.identifier);
    if (component < 0) {
        UIView::touchCancelled(touch);
        return;
    }
    at(component).turn.touchCancelled(touch.timestamp);
    letGo(at(component));
}

void UIPickerView::letGo(Component& component) {
    // Under a finger that turned nothing a column stays where it is, whatever is reloaded; now it may have to follow.
    if (!component.turn.isTurning()) setNeedsLayout();
    startMoving();
}

bool UIPickerView::scrolled(const UIScroll& scroll) {
    const Ref<UIPickerView> keep = self();
    layoutIfNeeded();
    const NSInteger component = componentAt(convertPointFromWindow(scroll.locationInWindow));
    // What goes sideways, and what could turn nothing, may scroll something around the wheel. A column at its end keeps the wheel's
    // notches, so that nothing else moves below the pointer then.
    if (scroll.isSideways() || !canBeChosen(component)) return UIView::scrolled(scroll);
    typing_.clear();
    UIPickerTurn& turn = at(component).turn;
    const bool isTaken = scroll.unit == UIScroll::Unit::Notches ? turn.scrollNotches(scroll.deltaY, scroll.timestamp)
                                                                : turn.scrollPoints(scroll.deltaY, scroll.timestamp, scroll.isFinished);
    startMoving();
    return isTaken;
}

bool UIPickerView::arrivesAtOnce() const {
    const Ref<UIWindow> window = this->window();
    return window && window->reducesMotion();
}

/// Answers how many rows have passed the band.
NSInteger UIPickerView::advanceColumn(NSInteger component, NSTimeInterval time) {
    UIPickerTurn& turn = at(component).turn;
    const NSInteger underFinger = turn.takePassedRows();
    turn.advanceToTime(time);
    const bool isSkipping = arrivesAtOnce() && turn.arrive();
    const NSInteger passed = turn.takePassedRows();
    // Nobody sees those that are skipped, so only the one that it arrives on counts.
    return wrappingAdd(underFinger, isSkipping ? std::min<NSInteger>(passed, 1) : passed);
}

bool UIPickerView::advanceToTime(NSTimeInterval time) {
    const Ref<UIPickerView> keep = self();
    if (typing_.isOverAt(time)) typing_.clear();
    NSInteger passed = 0;
    for (NSInteger i = 0; i < count_; ++i) {
        passed = wrappingAdd(passed, advanceColumn(i, time));
        if (isLayoutDue()) continue; // The layout that follows shows the rows anyway.
        scrollColumn(i);
        showRows(i, false);
    }
    tellTicks(passed);
    reportLandings();
    return isMoving();
}

void UIPickerView::finishAnimations() {
    if (!isTurning()) return;
    const Ref<UIPickerView> keep = self();
    typing_.clear();
    for (NSInteger i = 0; i < count_; ++i) {
        at(i).turn.finish();
        scrollColumn(i);
    }
    setNeedsLayout(); // For the rows that have come into sight: of a request nothing is reported that would lay out.
    reportLandings();
}

void UIPickerView::reportLandings() {
    // Ascending, also when a report changes the columns or what they do; a request for another row has ended a turn
    // before its report.
    for (NSInteger i = 0; i < count_; ++i) {
        if (typing_.component() == i) continue; // The rest of the text may turn it on.
        if (const std::optional<NSInteger> row = at(i).turn.takeLanding()) turnToRow_inComponent(*row, i);
    }
}

void UIPickerView::didMoveToWindow() {
    UIView::didMoveToWindow();
    // Without a window no time passes: what moves arrives.
    if (!window()) finishAnimations();
}

} // namespace gx
