#pragma once

#include "GXExport.h"
#include "UIPointer.h"

namespace gx {

/// What a user shall feel or hear.
enum class UIFeedback {
    SelectionChanged ///< the selection goes on by one: a click or a slight vibration
};

/// What a window asks of its host. `UIHost.h` has the whole protocol, in both directions.
class GX_EXPORT UIWindowHost {
public:
    virtual ~UIWindowHost() = default;

    /// Something on screen has changed: call `tick` soon, and again after each frame until it
    /// returns false. May be called at any time, also within `tick` and `draw`.
    virtual void windowNeedsFrame() = 0;
    /// The moment for a click or a vibration. Here ignored.
    ///
    /// A wheel asks for `SelectionChanged` with each row that passes its selection indicator in a
    /// spin by the user: for a hundred rows at most in a frame, and once for several rows that it
    /// skips together.
    virtual void giveFeedback(UIFeedback /*feedback*/) {}
    /// The pointer shall look so from now on. Here ignored.
    ///
    /// Called only when that changes; at first it is `UIPointerStyle::Default`. May be called
    /// within `pointerMoved`, `pointerLeft`, `touchBegan_at_time` and `tick`.
    virtual void pointerStyleDidChange(UIPointerStyle /*style*/) {}
};

} // namespace gx
