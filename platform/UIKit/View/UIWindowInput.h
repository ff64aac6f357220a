#pragma once

#include "GXExport.h"
#include "UIAccessibility.h"
#include "UIColor.h"
#include "UIKey.h"
#include "UITouch.h"

namespace gx {

class UIGraphicsContext;

/// All that a host sends to a window. `UIWindow` is one and says what each operation does;
/// `UIHost.h` has the whole protocol.
///
/// A host sends through this, so that something may stand between the two and pass on what it gets:
/// a recorder of what the user does.
class GX_EXPORT UIWindowInput {
public:
    virtual ~UIWindowInput() = default;

    /// A finger comes down. Returns whether a view took it.
    virtual bool touchBegan_at_time(std::int64_t identifier, CGPoint location, NSTimeInterval time) = 0;
    /// The finger has moved.
    virtual void touchMoved_at_time(std::int64_t identifier, CGPoint location, NSTimeInterval time) = 0;
    /// The finger was lifted.
    virtual void touchEnded_at_time(std::int64_t identifier, CGPoint location, NSTimeInterval time) = 0;
    /// The system has taken the finger away.
    virtual void touchCancelled_at_time(std::int64_t identifier, NSTimeInterval time) = 0;
    /// A mouse wheel or a trackpad. Returns whether a view used it.
    virtual bool scroll(const UIScroll& scroll) = 0;
    /// The pointer is at a place in the window.
    virtual void pointerMoved(CGPoint location) = 0;
    /// The pointer has left the window.
    virtual void pointerLeft() = 0;
    /// A key goes down, or repeats. Returns whether it was used.
    virtual bool keyDown(const UIKey& key) = 0;
    /// Whether keys come to this window at present.
    virtual void setReceivesKeys(bool receives) = 0;
    /// No view has the focus any more.
    virtual void takeFocusAway() = 0;
    /// A screen reader acts on an element.
    virtual void performAction_onElement(const UIAccessibilityAction& action, const Ref<UIAccessibilityElement>& element) = 0;

    /// The window's size, in points, at the origin (0, 0).
    virtual void setFrame(CGRect frame) = 0;
    /// Light or dark.
    virtual void setUserInterfaceStyle(UIUserInterfaceStyle style) = 0;
    /// Normal or high contrast.
    virtual void setAccessibilityContrast(UIAccessibilityContrast contrast) = 0;
    /// Whether nothing may move by itself.
    virtual void setReducesMotion(bool reduces) = 0;

    /// The window closes or is hidden: everything arrives.
    virtual void finishAnimations() = 0;
    /// Moves everything to a time in seconds. Returns whether to draw.
    virtual bool tick(NSTimeInterval time) = 0;
    /// Draws the frame.
    virtual void draw(UIGraphicsContext& context) = 0;
};

} // namespace gx
