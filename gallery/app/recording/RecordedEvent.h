#pragma once

#include <optional>
#include <string>
#include <vector>

#include "UserFiles.h"
#include <GXUIPickers/UIAccessibility.h>
#include <GXUIPickers/UIKey.h>
#include <GXUIPickers/UITouch.h>

namespace gallery {

/// One thing that came to the gallery's window from outside, as a line of a recording.
///
/// A line is a JSON object such as `{"time":1.25,"event":"touchMoved","finger":-1,"x":31,"y":20}`.
/// Numbers are read back to the last bit.
struct RecordedEvent {
    enum class Kind {
        TouchBegan,
        TouchMoved,
        TouchEnded,
        TouchCancelled,
        Scroll,
        PointerMoved,
        PointerLeft,
        Key,
        ReceivesKeys,
        FocusTaken,
        Action, ///< of a screen reader
        AnimationsFinished,
        Size,
        Look,
        Contrast,
        Motion,
        Tick,
        Draw,
        Pass,   ///< of the run loop
        File,   ///< the outcome of a dialog for files
        Picture ///< a mark: a replay draws a picture here
    };

    Kind kind = Kind::Tick;
    /// In seconds, on the clock of the frames.
    gx::NSTimeInterval time = 0;

    // What of these a kind has, its line has too.

    std::int64_t finger = 0;
    gx::CGPoint point;
    gx::UIScroll scroll;                ///< without its time and place
    gx::UIKey key;                      ///< without its time
    gx::UIAccessibilityAction action;   ///< without its time
    std::vector<gx::NSInteger> element; ///< what the action is for: see `ElementPath`
    gx::CGSize size;
    /// Keys are received; the look is dark, the contrast high, motion reduced.
    bool isOn = false;
    UserFiles::Outcome file;
    std::string name; ///< of a picture

    std::string line() const;
    /// Returns nothing for a line that is no event, with the reason in `error`.
    static std::optional<RecordedEvent> eventOfLine(const std::string& line, std::string& error);
};

} // namespace gallery
