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

    virtual bool touchBegan_at_time(std::int64_t identifier, CGPoint location, NSTimeInterval time) = 0;
    virtual void touchMoved_at_time(std::int64_t identifier, CGPoint location, NSTimeInterval time) = 0;
    virtual void touchEnded_at_time(std::int64_t identifier, CGPoint location, NSTimeInterval time) = 0;
    virtual void touchCancelled_at_time(std::int64_t identifier, NSTimeInterval time) = 0;
    virtual bool scroll(const UIScroll& scroll) = 0;
    virtual void pointerMoved(CGPoint location) = 0;
    virtual void pointerLeft() = 0;
    virtual bool keyDown(const UIKey& key) = 0;
    virtual void setReceivesKeys(bool receives) = 0;
    virtual void takeFocusAway() = 0;
    virtual void performAction_onElement(const UIAccessibilityAction& action, const Ref<UIAccessibilityElement>& element) = 0;

    virtual void setFrame(CGRect frame) = 0;
    virtual void setUserInterfaceStyle(UIUserInterfaceStyle style) = 0;
    virtual void setAccessibilityContrast(UIAccessibilityContrast contrast) = 0;
    virtual void setReducesMotion(bool reduces) = 0;

    virtual void finishAnimations() = 0;
    virtual bool tick(NSTimeInterval time) = 0;
    virtual void draw(UIGraphicsContext& context) = 0;
};

} // namespace gx
