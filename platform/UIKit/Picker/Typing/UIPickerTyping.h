#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "NSObject.h"

namespace gx {

/// The text that a user types at one column of a wheel, until it is complete.
///
/// Texts are kept in a readable form, so that scripts and keyboards do not matter:
/// - the digits of every script are 0 to 9, every minus is "-", every decimal separator "."
/// - letters are lower case
/// - blanks around a text, and marks of direction, are left out.
///
/// Example: "１２٫5" becomes "12.5". It keeps state alone; `UIPickerTypeSelect` decides what follows.
class UIPickerTyping {
public:
    /// What a column shows, seen from what was typed before it.
    enum class Part {
        Whole,   ///< a number or text of its own
        Fraction ///< digits behind a decimal separator
    };

    /// Characters within this time belong together; after it the text is complete. Prescribed.
    static constexpr NSTimeInterval longestPause = 1;

    /// A text (UTF-8) in that form. Bytes that are no UTF-8 are left out.
    static std::string readableForm(std::string_view text);
    /// Takes the first character off a text of that form, which may not be empty.
    static std::string takeCharacter(std::string_view& form);
    static bool isDigit(char character) { return character >= '0' && character <= '9'; }
    /// Whether a text (UTF-8) has blanks and nothing else, so that nothing is left of it.
    static bool isBlank(std::string_view text);
    /// Whether a character of that form goes on to the next column: a decimal separator, also that
    /// of the current locale, or the colon of times.
    static bool endsColumn(std::string_view character);

    /// The column whose report waits, since its text may go on; nothing without one.
    std::optional<NSInteger> component() const { return isWaiting_ ? component_ : std::nullopt; }
    /// Whether the column is the one that was typed at last, or gone on to. Its text may be
    /// complete.
    bool isAtComponent(NSInteger component) const { return component_ == component; }
    /// The text at that column so far.
    const std::string& text() const { return text_; }
    /// Whether nothing can go on with that text.
    bool isComplete() const { return !text_.empty() && !isWaiting_; }
    /// `Fraction` behind a decimal separator that was typed before.
    Part part() const { return part_; }
    /// The row that the column was on when its text began.
    std::optional<NSInteger> rowBefore() const { return rowBefore_; }

    /// What is typed next belongs to this column.
    void goOnToComponent_atTime(NSInteger component, Part part, NSTimeInterval time);
    /// A text begins at the column, while it is on the row or on its way there.
    void beginInComponent_onRow(NSInteger component, NSInteger row);
    /// The text so far, with a character typed at `time`. `isWaiting`: it may go on.
    void setText_atTime(std::string text, bool isWaiting, NSTimeInterval time);
    /// Until a pause all characters are ignored: they go on beyond the last column, as the seconds
    /// of 12:20:05 where there are only hours and minutes, or belong to a number that is not there.
    void ignoreFromTime(NSTimeInterval time);
    bool isIgnoring() const { return isIgnoring_; }
    /// Whether the text is complete at a time, so that a character then begins another one.
    ///
    /// A time that is no number completes it, and so does one that lies as long before the text: it
    /// comes from another clock.
    bool isOverAt(NSTimeInterval time) const;
    /// Removes the text and where it was typed.
    void clear();

private:
    std::optional<NSInteger> component_;
    std::optional<NSInteger> rowBefore_;
    std::string text_;
    NSTimeInterval latest_ = 0;
    Part part_ = Part::Whole;
    bool isWaiting_ = false;
    bool isIgnoring_ = false;
};

} // namespace gx
