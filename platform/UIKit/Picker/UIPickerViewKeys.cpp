// How keys turn a wheel: which column they mean, where they send it, and what typed characters spell.

#include "UIGraphicsContext.h"
#include "UIPickerViewComponent.h"
#include "UIWindow.h"

namespace gx {

namespace {

// The mark of the focus, chosen by eye: the column's part of the band in the tint, between two bars strong enough to be found at a glance.
constexpr double focusFillAlpha = 0.14;
constexpr CGFloat focusCornerRadius = 8;
constexpr CGFloat focusBarHeight = 2;

} // namespace

// The column

bool UIPickerView::canBeChosen(NSInteger component) { return canTurn(component) && at(component).rows > 1; }

NSInteger UIPickerView::componentBeside(NSInteger component, NSInteger direction) {
    for (NSInteger i = component + direction; i >= 0 && i < count_; i += direction) {
        if (canBeChosen(i)) return i;
    }
    return -1;
}

NSInteger UIPickerView::componentThatShowsAfter(NSInteger component) {
    for (NSInteger i = component + 1; i < count_; ++i) {
        if (canTurn(i)) return i;
    }
    return -1;
}

NSInteger UIPickerView::componentOfKeys() {
    const Ref<UIPickerView> keep = self();
    layoutIfNeeded();
    return canTurn(chosen_) ? chosen_ : componentBeside(-1, 1);
}

void UIPickerView::choose(NSInteger component) {
    if (component == chosen_) return;
    chosen_ = component;
    setNeedsDisplay();
}

bool UIPickerView::canBecomeFirstResponder() {
    const Ref<UIPickerView> keep = self();
    layoutIfNeeded();
    return componentBeside(-1, 1) >= 0;
}

void UIPickerView::focusDidChange() {
    const Ref<UIPickerView> keep = self();
    UIView::focusDidChange();
    if (!isFirstResponder()) completeTyping();
}

void UIPickerView::drawFocus(UIGraphicsContext& context, CGRect band) {
    const Ref<UIWindow> window = this->window();
    if (!window || !window->showsFocus() || !isFirstResponder()) return;
    const NSInteger component = canTurn(chosen_) ? chosen_ : componentBeside(-1, 1);
    if (component < 0) return;
    const CGRect column = at(component).column->frame();
    const CGRect mark = CGRectMake(column.origin.x, band.origin.y, column.size.width, band.size.height);
    context.fillRect(mark, tintColor().colorWithAlphaComponent(focusFillAlpha), focusCornerRadius);
    const CGFloat width = mark.size.width - 2 * focusCornerRadius;
    if (width <= 0) return;
    for (const CGFloat y : {CGRectGetMinY(mark), CGRectGetMaxY(mark) - focusBarHeight}) {
        context.fillRect(CGRectMake(mark.origin.x + focusCornerRadius, y, width, focusBarHeight), tintColor(), 0.5 * focusBarHeight);
    }
}

// The keys

bool UIPickerView::keyPressed(const UIKey& key) {
    const Ref<UIPickerView> keep = self();
    const UIKey pressed = key; // Who is told of a turn meanwhile may drop the key.
    const bool isTyped = pressed.code == UIKey::Code::Character && !pressed.isCommand();
    if (!isTyped) completeTyping();
    const NSInteger component = componentOfKeys();
    if (component < 0 || pressed.isCommand()) return UIView::keyPressed(pressed);
    switch (pressed.code) {
    case UIKey::Code::Character: {
        const std::u32string characters = UIPickerTyping::readableForm(pressed.characters);
        for (std::size_t i = 0; !pressed.isRepeat && i < characters.size(); ++i) typeCharacter(characters[i], pressed.timestamp);
        return !characters.empty() || UIView::keyPressed(pressed);
    }
    case UIKey::Code::Left:
    case UIKey::Code::Right: {
        const NSInteger beside = componentBeside(component, pressed.code == UIKey::Code::Left ? -1 : 1);
        choose(beside >= 0 ? beside : component);
        return true;
    }
    case UIKey::Code::Up:
    case UIKey::Code::Down:
    case UIKey::Code::PageUp:
    case UIKey::Code::PageDown:
    case UIKey::Code::Home:
    case UIKey::Code::End:
        turnByKey(pressed.code, component);
        return true;
    default:
        return UIView::keyPressed(pressed);
    }
}

void UIPickerView::turnByKey(UIKey::Code code, NSInteger component) {
    Component& entry = at(component);
    // A row of those in sight stays in sight, so that the eye can follow.
    const NSInteger page = std::max<NSInteger>(entry.column->rowsWhollyInSight() - 1, 1);
    switch (code) {
    case UIKey::Code::Up:
        entry.turn.stepByRows(-1);
        break;
    case UIKey::Code::Down:
        entry.turn.stepByRows(1);
        break;
    case UIKey::Code::PageUp:
        entry.turn.stepByRows(-page);
        break;
    case UIKey::Code::PageDown:
        entry.turn.stepByRows(page);
        break;
    case UIKey::Code::Home:
        entry.turn.turnToRow(0);
        break;
    default:
        entry.turn.turnToRow(entry.rows - 1);
        break;
    }
    if (isMoving()) startMoving();
}

// Typed characters

UIPickerTitleSearch::Result UIPickerView::rowsSpelled(const std::u32string& text, NSInteger component) {
    const auto titles = [this, component](NSInteger row) { return titleOfRow(row, component); };
    return UIPickerTitleSearch::resultOfText_amongRows(text, at(component).rows, titles);
}

void UIPickerView::typeCharacter(char32_t character, NSTimeInterval time) {
    if (typing_.isOverAt(time)) completeTyping();
    const NSInteger component = componentOfKeys();
    if (component < 0 || at(component).turn.isHeld()) return;
    if (typing_.isIgnoring()) return typing_.ignoreFromTime(time);
    if (!typing_.isAtComponent(component)) completeTyping();
    if (UIPickerTyping::endsColumn(character) && typeSeparator(character, component, time)) return;
    typeText(character, component, time);
}

/// Answers whether the separator leads away from the column.
bool UIPickerView::typeSeparator(char32_t separator, NSInteger component, NSTimeInterval time) {
    const std::u32string text = typing_.text();
    // A title may have one of its own, as 36.5 has after 36.
    if (!text.empty() && rowsSpelled(text + separator, component).canGrow) return false;
    const NSInteger next = componentThatShowsAfter(component);
    const bool isOfNothing = !text.empty() && !rowsSpelled(text, component).row; // As the .5 of 3.5, where rows begin at 30.
    if (next >= 0 && !isOfNothing) {
        completeTyping();
        choose(next); // Also a column of one row: what is typed next is meant for it.
        typing_.goOnToComponent_atTime(next, separator != U':', time);
        return true;
    }
    // A title may begin with one, as .5 does in a column of tenths.
    if (text.empty() || (!isOfNothing && rowsSpelled(std::u32string(1, separator), component).canGrow)) return false;
    completeTyping();
    typing_.ignoreFromTime(time);
    return true;
}

void UIPickerView::typeText(char32_t character, NSInteger component, NSTimeInterval time) {
    // A column may offer other rows once those beside it have told of their own: so they arrive first.
    arriveExcept(component);
    if (componentOfKeys() != component) return;
    if (typing_.isComplete() && typeBehindComplete(character, component, time)) return;
    const UIPickerTurn& turn = at(component).turn;
    if (typing_.text().empty()) typing_.beginInComponent_onRow(component, turn.landingRow());
    std::u32string text = typing_.text() + character;
    const UIPickerTitleSearch::Result found = rowsSpelled(text, component);
    if (!canTurn(component)) return; // Who was asked has changed the columns.
    if (found.row || found.canGrow) {
        typing_.setText_atTime(std::move(text), found.canGrow, time);
        if (found.row) at(component).turn.turnToRow(*found.row);
    } else if (text.size() > 1) {
        // Of a number that is not there no part counts: 300 is not 30.
        if (const auto row = typing_.rowBefore()) at(component).turn.turnToRow(*row);
        completeTyping();
        typing_.ignoreFromTime(time);
    }
    if (isMoving()) startMoving();
}

/// What follows a text that nothing can go on with. Digits of a fraction go on to the column behind, as hundredths do behind tenths, and
/// count for nothing behind the last; so goes what follows a mark that ends a title, as the inches of 5'9. Answers whether that was it.
bool UIPickerView::typeBehindComplete(char32_t character, NSInteger component, NSTimeInterval time) {
    const bool isFraction = typing_.isFraction();
    const char32_t last = typing_.text().back();
    if (!isFraction && last >= U'0' && last <= U'9') return false;
    const NSInteger next = componentThatShowsAfter(component);
    if (next == component + 1) {
        const UIPickerTitleSearch::Result found = rowsSpelled(std::u32string(1, character), next);
        if (!canTurn(component)) return true;
        if (found.row || found.canGrow) {
            completeTyping();
            choose(next);
            typing_.goOnToComponent_atTime(next, isFraction, time);
            typeText(character, next, time);
            return true;
        }
    }
    if (!isFraction) return false;
    completeTyping();
    typing_.ignoreFromTime(time);
    return true;
}

void UIPickerView::arriveExcept(NSInteger component) {
    for (NSInteger i = 0; i < count_; ++i) {
        UIPickerTurn& turn = at(i).turn;
        if (i == component || !turn.isUsersTurn() || turn.isHeld()) continue;
        turn.finish();
        scrollColumn(i);
    }
    reportLandings();
}

void UIPickerView::completeTyping() {
    const bool isReportDue = typing_.component().has_value();
    typing_.clear();
    if (isReportDue) reportLandings();
}

} // namespace gx
