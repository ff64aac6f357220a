#pragma once

#include <cstdint>
#include <string>

#include "NSObject.h"

namespace gx {

/// A key that goes down, or that is held and repeats.
struct UIKey {
    /// Which key it is.
    enum class Code {
        None,      ///< any other key
        Character, ///< it types `characters`
        Left,
        Right,
        Up,
        Down,
        PageUp,
        PageDown,
        Home,
        End,
        Tab,
        BackTab, ///< Tab with Shift
        Return,
        Escape,
        Space
    };
    /// The keys that may be held with it; sums of these.
    enum Modifier : std::uint8_t { Shift = 1, Control = 2, Alternate = 4, Command = 8 };

    Code code = Code::None; ///< which key
    /// What it types, in UTF-8: usually one character; an input method may type several at once.
    std::string characters;
    unsigned modifiers = 0; ///< a sum of `Modifier`
    /// The key is held, and this is a repetition.
    bool isRepeat = false;
    /// In seconds, on the clock of `UIWindow::tick`.
    NSTimeInterval timestamp = 0;

    /// Keys held with Control, Alternate or Command are commands of the application. A host that
    /// types with them, as AltGr does, leaves them out.
    bool isCommand() const { return (modifiers & (Control | Alternate | Command)) != 0; }
};

} // namespace gx
