#include "UIPickerTypeSelect.h"

namespace gx {

UIPickerTitleSearch::Result UIPickerTypeSelect::rowsSpelled(const std::string& text, NSInteger component) {
    const auto titles = [this, component](NSInteger row) { return wheel_.titleOfRow(row, component); };
    return UIPickerTitleSearch::resultOfText_amongRows(text, wheel_.rowCount(component), titles);
}

void UIPickerTypeSelect::typeCharacter(const std::string& character, NSTimeInterval time) {
    if (typing_.isOverAt(time)) complete();
    const NSInteger component = wheel_.componentOfKeys();
    if (component < 0 || wheel_.isHeld(component)) return;
    if (typing_.isIgnoring()) return typing_.ignoreFromTime(time);
    if (!typing_.isAtComponent(component)) complete();
    if (UIPickerTyping::endsColumn(character)) {
        if (typeSeparator(character, component, time)) return;
    } else if (!typing_.text().empty() && (character == " " || isShownBehind(character, component))) {
        const bool isOfTitle = rowsSpelled(typing_.text() + character, component).canGrow;
        if (!isOfTitle && goOnBehindText(component, Part::Whole, time)) return;
    }
    typeText(character, component, time);
}

bool UIPickerTypeSelect::typeBlank(NSTimeInterval time) {
    if (typing_.text().empty() || typing_.isOverAt(time)) return false;
    const NSInteger component = wheel_.componentOfKeys();
    if (component < 0 || wheel_.isHeld(component) || !typing_.isAtComponent(component)) return false;
    if (!rowsSpelled(typing_.text() + ' ', component).canGrow) return goOnBehindText(component, Part::Whole, time);
    typeText(" ", component, time);
    return true;
}

/// Whether the wheel's separator behind the column begins with the character. A digit is always
/// one of the number.
bool UIPickerTypeSelect::isShownBehind(const std::string& character, NSInteger component) {
    if (UIPickerTyping::isDigit(character.front())) return false;
    const std::optional<std::string> separator = wheel_.separatorTextAfter(component);
    return separator && UIPickerTyping::readableForm(*separator).starts_with(character);
}

/// Goes on to the next column, if there is one and the text so far is not that of no row, as the .5
/// of 3.5 where rows begin at 30. Returns whether it did.
bool UIPickerTypeSelect::goOnBehindText(NSInteger component, Part part, NSTimeInterval time) {
    const NSInteger next = wheel_.componentAfter(component);
    const std::string text = typing_.text();
    if (next < 0 || (!text.empty() && !rowsSpelled(text, component).row)) return false;
    complete();
    // Also a column of one row: what is typed next is meant for it.
    wheel_.chooseComponent(next);
    typing_.goOnToComponent_atTime(next, part, time);
    return true;
}

/// Returns whether the separator leads away from the column.
bool UIPickerTypeSelect::typeSeparator(const std::string& separator, NSInteger component, NSTimeInterval time) {
    const std::string text = typing_.text();
    // A title may have one of its own, as 36.5 has after 36.
    if (!text.empty() && rowsSpelled(text + separator, component).canGrow) return false;
    if (goOnBehindText(component, separator == ":" ? Part::Whole : Part::Fraction, time)) return true;
    // A title may begin with one, as .5 does in a column of tenths.
    const bool isOfNothing = !text.empty() && !rowsSpelled(text, component).row;
    if (text.empty() || (!isOfNothing && rowsSpelled(separator, component).canGrow)) return false;
    complete();
    typing_.ignoreFromTime(time);
    return true;
}

void UIPickerTypeSelect::typeText(const std::string& character, NSInteger component, NSTimeInterval time) {
    // A column may offer other rows once those beside it are reported. So they land first.
    wheel_.finishOthers(component);
    if (wheel_.componentOfKeys() != component) return;
    if (typing_.isComplete() && typeBehindComplete(character, component, time)) return;
    if (typing_.text().empty()) typing_.beginInComponent_onRow(component, wheel_.landingRow(component));
    const bool hasBegun = !typing_.text().empty();
    std::string text = typing_.text() + character;
    const UIPickerTitleSearch::Result found = rowsSpelled(text, component);
    if (!wheel_.canSpin(component)) return; // A callback has changed the columns.
    if (found.row || found.canGrow) {
        typing_.setText_atTime(std::move(text), found.canGrow, time);
        if (found.row) wheel_.spinToRow(*found.row, component);
    } else if (hasBegun) {
        // Of a number that is not there no part counts: 300 is not 30.
        if (const auto row = typing_.rowBefore()) wheel_.spinToRow(*row, component);
        complete();
        typing_.ignoreFromTime(time);
    }
    wheel_.startMoving();
}

/// What follows a text that nothing can go on with. Returns whether that was it.
///
/// - Digits of a fraction go on to the column behind, as hundredths do behind tenths. Behind the
///   last one they are ignored.
/// - What follows a mark that ends a title goes on too, as the inches of 5'9.
bool UIPickerTypeSelect::typeBehindComplete(const std::string& character, NSInteger component, NSTimeInterval time) {
    const Part part = typing_.part();
    const bool isFraction = part == Part::Fraction;
    if (!isFraction && UIPickerTyping::isDigit(typing_.text().back())) return false;
    const NSInteger next = wheel_.componentAfter(component);
    if (next == component + 1) {
        const UIPickerTitleSearch::Result found = rowsSpelled(character, next);
        if (!wheel_.canSpin(component)) return true;
        if (found.row || found.canGrow) {
            complete();
            wheel_.chooseComponent(next);
            typing_.goOnToComponent_atTime(next, part, time);
            typeText(character, next, time);
            return true;
        }
    }
    if (!isFraction) return false;
    complete();
    typing_.ignoreFromTime(time);
    return true;
}

void UIPickerTypeSelect::complete() {
    const bool isReportNeeded = typing_.component().has_value();
    typing_.clear();
    if (isReportNeeded) wheel_.reportLandings();
}

} // namespace gx
