#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "NSObject.h"

namespace gx {

/// What a user types at one column of a wheel, until it is complete.
///
/// Texts are kept in a form in which it does not matter how one types them: the digits of every script are 0 to 9, every minus is
/// "-", every decimal separator ".", letters are small; blanks around a text, and marks of direction, are left out.
class UIPickerTyping {
public:
    /// Characters that come within this time belong together; when it has passed, the text is complete.
    static constexpr NSTimeInterval longestPause = 1;

    /// A text (UTF-8) in that form. Bytes that are no UTF-8 are left out.
    static std::u32string readableForm(std::string_view text);
    /// Whether a character of that form goes on to the next column: a decimal separator, also that of the current locale, or the colon
    /// of times.
    static bool endsColumn(char32_t character);

    /// The column whose report waits, since its text may go on; or nothing.
    std::optional<NSInteger> component() const { return isWaiting_ ? component_ : std::nullopt; }
    /// Whether the column is the one that was typed at, or gone on to, last; its text may be complete.
    bool isAtComponent(NSInteger component) const { return component_ == component; }
    /// What was typed at that column so far.
    const std::u32string& text() const { return text_; }
    /// Whether nothing can go on with that text.
    bool isComplete() const { return !text_.empty() && !isWaiting_; }
    /// Whether the column shows digits behind a decimal separator that was typed before.
    bool isFraction() const { return isFraction_; }
    /// The row that the column was on when its text began.
    std::optional<NSInteger> rowBefore() const { return rowBefore_; }

    /// What comes is meant for the column, which a separator or a complete fraction has led to.
    void goOnToComponent_atTime(NSInteger component, bool isFraction, NSTimeInterval time);
    /// A text begins at the column, while it is on the row or on its way there.
    void beginInComponent_onRow(NSInteger component, NSInteger row);
    /// The text so far, which `time` has made longer. `isWaiting`: it may go on.
    void setText_atTime(std::u32string text, bool isWaiting, NSTimeInterval time);
    /// Until a pause what is typed counts for nothing: it goes on beyond the last column, as the seconds of 12:20:05 where there are hours
    /// and minutes alone, or belongs to a number that is not there.
    void ignoreFromTime(NSTimeInterval time);
    bool isIgnoring() const { return isIgnoring_; }
    /// Whether the text is complete by the time: a character then begins another one. A time that is no number completes it, and so does
    /// one that lies as long before the text, by another clock.
    bool isOverAt(NSTimeInterval time) const;
    /// Forgets all of it.
    void clear();

private:
    std::optional<NSInteger> component_;
    std::optional<NSInteger> rowBefore_;
    std::u32string text_;
    NSTimeInterval latest_ = 0;
    bool isWaiting_ = false;
    bool isFraction_ = false;
    bool isIgnoring_ = false;
};

} // namespace gx
