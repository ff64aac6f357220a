#include "UIPickerController.h"

#include <algorithm>
#include <cmath>

#include "NSArithmetic.h"
#include "UIHost.h"
#include "UIWindow.h"

namespace gx {

// Layout and requests

void UIPickerController::layout() {
    const auto binding = components_.takeRowsInvalid() ? UIPickerRows::Binding::All : UIPickerRows::Binding::Missing;
    components_.refreshAll();
    components_.placeColumns(view_);
    for (NSInteger i = 0; i < components_.count(); ++i) {
        const NSInteger reported = components_.requestedRow(i);
        if (i >= components_.count() || !components_.at(i).column) continue;
        components_.fitAxis(i, reported, view_.bounds().size.height);
        components_.scrollColumn(i);
        rows_.showRows(i, binding);
    }
    // A gesture whose row is gone has landed and is still to be reported, in the next frame.
    if (components_.isActive()) animate();
}

bool UIPickerController::requestRow(NSInteger row, NSInteger component, bool animated) {
    if (!components_.exists(component)) return false;
    const NSInteger count = components_.refreshRows(component);
    const NSInteger reported = owner_.selectedRow(component);
    const NSInteger wanted = components_.clampedRow(component, row);
    if (!components_.exists(component)) return false; // The queries may have changed the columns.
    UIPickerComponents::Component& entry = components_.at(component);
    entry.requested = row;
    UIPickerColumnAxis& axis = entry.axis;
    if (wanted == reported && axis.isActive()) return true;
    const bool isAnimated = animated && wanted != reported && view_.window() && entry.column;
    axis.setRows_height_extent(count, entry.rowHeight, view_.bounds().size.height, reported);
    if (!axis.isActive()) axis.restOnRow(isAnimated ? reported : wanted);
    if (isAnimated) {
        axis.requestRow(wanted);
        animate();
    } else {
        axis.restOnRow(wanted);
    }
    return true;
}

// Fingers

std::optional<bool> UIPickerController::touchBegan(const UITouch& touch) {
    view_.layoutIfNeeded();
    const CGPoint point = view_.convertPointFromWindow(touch.locationInWindow);
    const NSInteger component = components_.componentAt(point);
    if (!components_.canSpin(component)) return std::nullopt;
    // What was typed is complete; its report waits for the finger, which may move on.
    typeSelect_.forget();
    components_.at(component).axis.touchBegan(touch.identifier, point.y, touch.timestamp);
    const bool isTaken = components_.at(component).axis.hasFinger(touch.identifier);
    if (components_.canBeChosen(component)) chooseComponent(component);
    view_.becomeFirstResponder();
    return isTaken;
}

bool UIPickerController::touchMoved(const UITouch& touch) {
    const NSInteger component = components_.componentOfTouch(touch.identifier);
    if (component < 0) return false;
    components_.at(component).axis.touchMoved(view_.convertPointFromWindow(touch.locationInWindow).y, touch.timestamp);
    animate();
    return true;
}

bool UIPickerController::touchEnded(const UITouch& touch) {
    const NSInteger component = components_.componentOfTouch(touch.identifier);
    if (component < 0) return false;
    UIPickerComponents::Component& entry = components_.at(component);
    const CGPoint point = view_.convertPointFromWindow(touch.locationInWindow);
    std::optional<NSInteger> tappedRow;
    // A finger lies on a column that is laid out; without its view, a column loses its finger.
    if (const auto offset = entry.column->offsetDrawnAt(point.y - CGRectGetMinY(entry.column->frame()))) {
        const NSInteger row = wrappingAdd(entry.axis.anchorRow(), truncateTo<NSInteger>(std::round(*offset)));
        if (row >= 0 && row < entry.rows) tappedRow = row;
    }
    entry.axis.touchEnded(point.y, touch.timestamp, tappedRow);
    letGo(component);
    return true;
}

bool UIPickerController::touchCancelled(const UITouch& touch) {
    const NSInteger component = components_.componentOfTouch(touch.identifier);
    if (component < 0) return false;
    components_.at(component).axis.touchCancelled(touch.timestamp);
    letGo(component);
    return true;
}

void UIPickerController::letGo(NSInteger component) {
    // Under a finger that moved nothing a column stays where it is during a reload; now it may have
    // to follow.
    if (!components_.at(component).axis.isActive()) view_.setNeedsLayout();
    animate();
}

// The mouse wheel and the trackpad

std::optional<bool> UIPickerController::scrolled(const UIScroll& scroll) {
    view_.layoutIfNeeded();
    const NSInteger component = components_.componentAt(view_.convertPointFromWindow(scroll.locationInWindow));
    // What goes sideways, and what could move nothing, may scroll something around the wheel. A
    // column at its end keeps the notches, so that nothing else moves below the pointer then.
    if (scroll.isSideways() || !components_.canBeChosen(component)) return std::nullopt;
    typeSelect_.forget();
    UIPickerColumnAxis& axis = components_.at(component).axis;
    const bool isTaken = scroll.unit == UIScroll::Unit::Notches ? axis.scrollNotches(scroll.deltaY, scroll.timestamp)
                                                                : axis.scrollPoints(scroll.deltaY, scroll.timestamp, scroll.isFinished);
    animate();
    return isTaken;
}

// Keys

NSInteger UIPickerController::componentOfKeys() {
    view_.layoutIfNeeded();
    return components_.componentOfKeys();
}

void UIPickerController::chooseComponent(NSInteger component) {
    if (components_.choose(component)) view_.setNeedsDisplay();
}

bool UIPickerController::keyPressed(const UIKey& key) {
    const bool isTyped = key.code == UIKey::Code::Character && !key.isCommand();
    const bool isBlank = key.code == UIKey::Code::Space || (isTyped && UIPickerTyping::isBlank(key.characters));
    if (isBlank && !key.isCommand() && !key.isRepeat && typeSelect_.typeBlank(key.timestamp)) return true;
    if (!isTyped) completeTyping();
    const NSInteger component = componentOfKeys();
    if (component < 0 || key.isCommand()) return false;
    switch (key.code) {
    case UIKey::Code::Character: {
        const std::string characters = UIPickerTyping::readableForm(key.characters);
        std::string_view rest = key.isRepeat ? std::string_view() : characters;
        while (!rest.empty()) typeSelect_.typeCharacter(UIPickerTyping::takeCharacter(rest), key.timestamp);
        return !characters.empty();
    }
    case UIKey::Code::Left:
    case UIKey::Code::Right: {
        const NSInteger beside = components_.componentBeside(component, key.code == UIKey::Code::Left ? -1 : 1);
        chooseComponent(beside >= 0 ? beside : component);
        return true;
    }
    case UIKey::Code::Up:
    case UIKey::Code::Down:
    case UIKey::Code::PageUp:
    case UIKey::Code::PageDown:
    case UIKey::Code::Home:
    case UIKey::Code::End:
        moveByKey(key.code, component);
        return true;
    default:
        return false;
    }
}

void UIPickerController::moveByKey(UIKey::Code code, NSInteger component) {
    UIPickerComponents::Component& entry = components_.at(component);
    // A row of those in sight stays in sight, so that the eye can follow.
    const NSInteger page = std::max<NSInteger>(entry.column->rowsWhollyInSight() - 1, 1);
    switch (code) {
    case UIKey::Code::Up:
        entry.axis.stepByRows(-1);
        break;
    case UIKey::Code::Down:
        entry.axis.stepByRows(1);
        break;
    case UIKey::Code::PageUp:
        entry.axis.stepByRows(-page);
        break;
    case UIKey::Code::PageDown:
        entry.axis.stepByRows(page);
        break;
    case UIKey::Code::Home:
        entry.axis.spinToRow(0);
        break;
    default:
        entry.axis.spinToRow(entry.rows - 1);
        break;
    }
    startMoving();
}

void UIPickerController::stepComponent_byRows(NSInteger component, NSInteger rows) {
    if (components_.at(component).axis.stepByRows(rows)) animate();
}

void UIPickerController::spinComponent_toRow(NSInteger component, NSInteger row) {
    if (components_.at(component).axis.spinToRow(row)) animate();
}

void UIPickerController::finishOthers(NSInteger component) {
    for (NSInteger i = 0; i < components_.count(); ++i) {
        UIPickerColumnAxis& axis = components_.at(i).axis;
        if (i == component || !axis.isUsersGesture() || axis.isHeld()) continue;
        axis.finish();
        components_.scrollColumn(i);
    }
    reportLandings();
}

// Time

void UIPickerController::startMoving() {
    if (components_.isMoving()) animate();
}

void UIPickerController::animate() {
    if (const Ref<UIWindow> window = view_.window()) {
        window->animateView(refTo<UIView>(&view_));
    } else if (components_.isMoving()) {
        view_.finishAnimations();
    }
}

/// Returns how many rows have passed the selection indicator.
NSInteger UIPickerController::advanceColumn(NSInteger component, NSTimeInterval time) {
    UIPickerColumnAxis& axis = components_.at(component).axis;
    const NSInteger underFinger = axis.takePassedRows();
    axis.advanceToTime(time);
    const Ref<UIWindow> window = view_.window();
    const bool isSkipping = window && window->reducesMotion() && axis.finishGoing();
    const NSInteger passed = axis.takePassedRows();
    // Rows that are skipped are not seen, so only the one that it arrives on counts.
    return wrappingAdd(underFinger, isSkipping ? std::min<NSInteger>(passed, 1) : passed);
}

bool UIPickerController::advanceToTime(NSTimeInterval time) {
    if (typeSelect_.isOverAt(time)) typeSelect_.forget();
    NSInteger passed = 0;
    for (NSInteger i = 0; i < components_.count(); ++i) {
        passed = wrappingAdd(passed, advanceColumn(i, time));
        if (owner_.isLayoutNeeded()) continue; // The layout that follows shows the rows anyway.
        components_.scrollColumn(i);
        rows_.showRows(i, UIPickerRows::Binding::Missing);
    }
    tick(passed);
    reportLandings();
    return components_.isMoving();
}

/// Ticks for rows that have passed; the count of one frame is bounded, since faster ticks cannot be
/// told apart.
void UIPickerController::tick(NSInteger rows) const {
    constexpr NSInteger highest = 100;
    for (NSInteger i = 0; i < std::min(rows, highest); ++i) {
        const Ref<UIWindow> window = view_.window();
        if (!window) return;
        window->giveFeedback(UIFeedback::SelectionChanged);
    }
}

void UIPickerController::finish() {
    typeSelect_.forget();
    for (NSInteger i = 0; i < components_.count(); ++i) {
        components_.at(i).axis.finish();
        components_.scrollColumn(i);
    }
    // Binds the rows that have come into sight. The end of a request is not reported, so no report
    // causes this layout.
    view_.setNeedsLayout();
    reportLandings();
}

void UIPickerController::reportLandings() {
    // Ascending, also when a report changes the columns or what they do. A request for another row
    // has ended a gesture before its report.
    for (NSInteger i = 0; i < components_.count(); ++i) {
        if (typeSelect_.waitingComponent() == i) continue; // The rest of the text may move it on.
        if (const std::optional<NSInteger> row = components_.at(i).axis.takeLanding()) owner_.report(*row, i);
    }
}

} // namespace gx
