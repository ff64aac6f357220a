#pragma once

#include <optional>

#include "GXExport.h"
#include "NSObject.h"
#include "UIKey.h"
#include "UIPointer.h"
#include "UITouch.h"

namespace gx {

/// Takes touches, scrolling, keys and the pointer. The base of all views.
///
/// Events go along a chain of responders: what one does not override goes on to its
/// `nextResponder`, for a view its superview. An override that leaves an event alone calls the
/// superclass's.
class GX_EXPORT UIResponder : public NSObject {
public:
    /// The responder that gets the events that this one does not use. Here none.
    virtual Ref<UIResponder> nextResponder() const;

    // Touches

    /// Sent to the topmost view below the finger; here handed on. Returns whether a view took the
    /// touch.
    ///
    /// The view that it began on gets the rest of the touch either way. A touch that no view took
    /// is the host's.
    virtual bool touchBegan(const UITouch& touch);
    /// Sent to the view that the touch began on; here handed on, as are the next two.
    virtual void touchMoved(const UITouch& touch);
    /// The finger was lifted.
    virtual void touchEnded(const UITouch& touch);
    /// The system has taken the finger away: undo what it began.
    virtual void touchCancelled(const UITouch& touch);

    /// Sent to the topmost view below the pointer; here handed on. Returns whether a view used it.
    virtual bool scrolled(const UIScroll& scroll);

    // The pointer

    /// Asked for the pointer's style by the window: from the topmost view below the pointer upward,
    /// until one returns a style. That one is hovered. Here nothing is returned.
    ///
    /// - Sent when the pointer moves, and again before each frame while it rests, since what lies
    ///   below it may have changed. A view that looks the same as before must not draw again.
    /// - While the pointer's button is held, the view that it was pressed on is the first asked.
    virtual std::optional<UIPointerStyle> hoverMoved(CGPoint locationInWindow);
    /// Called after another view is hovered, or none: the pointer, or the view, has gone elsewhere.
    /// Here nothing happens.
    virtual void hoverEnded();

    // Keys

    /// Sent to the first responder; here handed on. Returns whether a view used the key.
    virtual bool keyPressed(const UIKey& key);
    /// Whether it takes the focus when Tab comes to it. Here false.
    virtual bool canBecomeFirstResponder();
    /// Called after it got the focus or lost it, and when the mark of its focus appears or goes
    /// (`UIWindow::showsFocus`). Here nothing happens; a view is drawn again.
    virtual void focusDidChange();
};

} // namespace gx
