#pragma once

#include "UIPickerTitleSearch.h"
#include "UIPickerTyping.h"

namespace gx {

/// Type-to-select: characters that a user types spin a wheel's columns to the rows whose titles
/// they spell.
///
/// - Characters within a second (`UIPickerTyping::longestPause`) belong together. The column spins
///   while the user types and is reported once, when the text is complete.
/// - A decimal separator or a colon that no title has at that place goes on to the next column, and
///   a digit behind a complete tenth to the column right behind it. So do, behind a text, a blank
///   and the first character of the separator that the wheel shows there.
/// - A text that no title spells takes the column back to the row it was on. What follows it, or
///   goes on beyond the last column, is ignored until a pause.
///
/// `UIPickerTyping` keeps the text, `UIPickerTitleSearch` finds the row.
class UIPickerTypeSelect {
public:
    /// The wheel that is typed at. All may call back.
    class Wheel {
    public:
        /// −1 if there is none.
        virtual NSInteger componentOfKeys() = 0;
        /// The next one that the user can spin, also if it has a single row; −1 if there is none.
        virtual NSInteger componentAfter(NSInteger component) = 0;
        virtual void chooseComponent(NSInteger component) = 0;
        virtual bool canSpin(NSInteger component) = 0;
        /// Whether a finger lies on it.
        virtual bool isHeld(NSInteger component) = 0;
        virtual NSInteger rowCount(NSInteger component) = 0;
        virtual std::optional<std::string> titleOfRow(NSInteger row, NSInteger component) = 0;
        /// What is shown behind the column; nothing without a separator.
        virtual std::optional<std::string> separatorTextAfter(NSInteger /*component*/) { return std::nullopt; }
        /// The row that it is on, or on its way to.
        virtual NSInteger landingRow(NSInteger component) = 0;
        virtual void spinToRow(NSInteger row, NSInteger component) = 0;
        /// Lets time move what was spun.
        virtual void startMoving() = 0;
        /// Ends and reports the gestures at all columns but this.
        virtual void finishOthers(NSInteger component) = 0;
        /// Reports columns that have landed.
        virtual void reportLandings() = 0;

        virtual ~Wheel() = default;
    };

    explicit UIPickerTypeSelect(Wheel& wheel) : wheel_(wheel) {}

    /// A character in the form of `UIPickerTyping::readableForm`.
    void typeCharacter(const std::string& character, NSTimeInterval time);
    /// A blank by itself. Returns whether it was used: it goes on with a text that can go on.
    bool typeBlank(NSTimeInterval time);
    /// The text is complete, and its column is reported once it has landed.
    void complete();
    /// The same, but the next report is left to others: a finger may go on, or the window ends all
    /// movement.
    void forget() { typing_.clear(); }
    bool isOverAt(NSTimeInterval time) const { return typing_.isOverAt(time); }
    /// The column whose report waits, since its text may go on.
    std::optional<NSInteger> waitingComponent() const { return typing_.component(); }

private:
    using Part = UIPickerTyping::Part;

    bool typeSeparator(const std::string& separator, NSInteger component, NSTimeInterval time);
    bool isShownBehind(const std::string& character, NSInteger component);
    bool goOnBehindText(NSInteger component, Part part, NSTimeInterval time);
    void typeText(const std::string& character, NSInteger component, NSTimeInterval time);
    bool typeBehindComplete(const std::string& character, NSInteger component, NSTimeInterval time);
    UIPickerTitleSearch::Result rowsSpelled(const std::string& text, NSInteger component);

    Wheel& wheel_;
    UIPickerTyping typing_;
};

} // namespace gx
