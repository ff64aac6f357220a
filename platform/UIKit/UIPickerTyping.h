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

    /// The column that is typed at, or nothing.
    std::optional<NSInteger> component() const { return component_; }
    /// Empty while nobody types.
    const std::u32string& text() const { return text_; }
    /// The text so far, which `time` has made longer.
    void setText_inComponent_atTime(std::u32string text, NSInteger component, NSTimeInterval time);
    /// The text has become complete at `time`, with a character after which nothing could come.
    void endTextInComponent_atTime(NSInteger component, NSTimeInterval time);
    /// Whether the latest character was typed at the component, whether or not it has completed the text there.
    bool hasTypedInComponent(NSInteger component) const { return latestComponent_ == component; }
    /// Goes on beyond the last column: until a pause what is typed counts for nothing, as the seconds of 12:20:05 where there are hours and
    /// minutes alone.
    void goBeyondColumnsAtTime(NSTimeInterval time);
    bool isBeyondColumns() const { return isBeyond_; }
    /// Whether the text is complete by the time: a character then begins another one. A time that is no number completes it, and so does
    /// one that lies as long before the text, by another clock.
    bool isOverAt(NSTimeInterval time) const;
    /// Forgets all of it.
    void clear();

private:
    std::optional<NSInteger> component_;
    std::u32string text_;
    std::optional<NSInteger> latestComponent_;
    NSTimeInterval latest_ = 0;
    bool isBeyond_ = false;
};

} // namespace gx
