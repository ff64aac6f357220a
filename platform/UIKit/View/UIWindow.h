#pragma once

#include <memory>
#include <string>
#include <vector>

#include "GXExport.h"
#include "UIView.h"
#include "UIWindowHost.h"
#include "UIWindowInput.h"

namespace gx {

class UIPointerTracking;

/// The root of the views that one host shows.
///
/// It takes size, touches, scrolling and keys from the host, hands them to views, runs what moves
/// and draws a frame. `UIHost.h` has the whole protocol. Without a host it works headless, as in
/// tests.
///
/// Invariant: the first responder is a view of this window, or nothing.
class GX_EXPORT UIWindow : public UIView, public UIViewRoot, public UIWindowInput {
public:
    UIWindow();
    ~UIWindow() override;

    /// Gets the window's requests for frames and feedback. Not owned; clear it before the host
    /// goes. A host that comes while a frame is needed gets the request at once.
    void setHost(UIWindowHost* host);
    UIWindowHost* host() const { return host_; }

    void setFrame(CGRect frame) override { UIView::setFrame(frame); }
    /// The look that colours are drawn in.
    UIUserInterfaceStyle userInterfaceStyle() const { return style_; }
    void setUserInterfaceStyle(UIUserInterfaceStyle style) override;
    /// The contrast of its colours, and how much wheels fade the rows beside the selection
    /// indicator. Default normal.
    UIAccessibilityContrast accessibilityContrast() const { return contrast_; }
    void setAccessibilityContrast(UIAccessibilityContrast contrast) override;
    /// Whether nothing in it moves by itself, for users who get dizzy by motion. Default false.
    ///
    /// What would glide arrives in the next tick at the latest:
    /// - wheels on the row that they were spun to or requested to show, with the same reports;
    /// - views that scroll at the requested place;
    /// - rows of a table where they belong.
    ///
    /// Content that a finger has thrown stops where it was let go. What follows a finger does so as
    /// before. Turned on while something moves, it lets that arrive in the next tick.
    bool reducesMotion() const { return reducesMotion_; }
    void setReducesMotion(bool reduces) override { reducesMotion_ = reduces; }

    // From the host.
    //
    // - Locations are in points from the window's top left.
    // - Times are in seconds on one steady clock; one that is no finite number counts as the
    //   latest.
    // - What began more than a second after the frame that shows it, by another clock, begins with
    //   that frame.

    /// A finger comes down. An identifier that is still down is cancelled first. Returns whether a
    /// view took the touch.
    bool touchBegan_at_time(std::int64_t identifier, CGPoint location, NSTimeInterval time) override;
    /// Unknown identifiers are ignored, here and in the next two.
    void touchMoved_at_time(std::int64_t identifier, CGPoint location, NSTimeInterval time) override;
    /// The finger was lifted, at this place.
    void touchEnded_at_time(std::int64_t identifier, CGPoint location, NSTimeInterval time) override;
    /// The system takes the finger away.
    void touchCancelled_at_time(std::int64_t identifier, NSTimeInterval time) override;
    /// Sent to the view below the location. Returns whether a view used it.
    bool scroll(const UIScroll& scroll) override;

    /// The pointer is at a place in the window, whether its button is held or not.
    ///
    /// The views below it are queried for its style (`UIResponder::hoverMoved`), again before
    /// each frame until `pointerLeft`.
    void pointerMoved(CGPoint location) override;
    /// Nothing is hovered any more.
    void pointerLeft() override;
    /// How the pointer is to look now.
    UIPointerStyle pointerStyle() const;

    /// A key goes down, or repeats. Returns whether it was used.
    ///
    /// It is sent to the first responder, if there is one, and from there up. If none of
    /// them used it, Tab moves the focus to the next view that takes it, in reading order, and
    /// Shift with Tab to the one before; that view comes into sight.
    ///
    /// Beyond the last one the focus is given up and the result is false, so that the host may go
    /// on to what lies around the window; the next Tab begins at the first again.
    bool keyDown(const UIKey& key) override;
    /// Whether keys come to this window at present. Default true. While they do not, no focus is
    /// shown, but it is kept.
    bool receivesKeys() const override { return receivesKeys_; }
    void setReceivesKeys(bool receives) override;
    /// No view has the focus any more, as when Tab comes in from around the window.
    void takeFocusAway() override { setFirstResponder(nullptr); }

    /// A screen reader acts on one of the window's elements. A no-op for one that does not exist.
    void performAction_onElement(const UIAccessibilityAction& action, const Ref<UIAccessibilityElement>& element) override;

    /// Ends every movement in the window at once, for a window that closes or is hidden, so that no
    /// spin is lost.
    ///
    /// Wheels report the rows that they were spun to, what scrolls is where it was heading for.
    void finishAnimations() override;

    /// Moves everything to `time`, lays out, and returns whether to draw (again).
    ///
    /// While something moves it returns true at every call; otherwise once after each change.
    bool tick(NSTimeInterval time) override;
    /// Draws the frame. The canvas is the host's.
    void draw(UIGraphicsContext& context) override;

    /// Whether `giveFeedback` reaches the host. Default true.
    bool isFeedbackEnabled() const { return isFeedbackEnabled_; }
    void setFeedbackEnabled(bool enabled) { isFeedbackEnabled_ = enabled; }

    // The focus

    /// The view with the focus, or nothing. Held weakly; a view that leaves the window or is hidden
    /// loses it.
    Ref<UIView> firstResponder() const { return firstResponder_.lock(); }
    /// Whether the view with the focus marks it: once a key was used, until the next touch.
    /// A finger needs no mark.
    bool showsFocus() const { return isFocusShown_ && receivesKeys_; }

    // Accessibility

    /// The element with the focus: the wheel's chosen column, the table's focused row, or another
    /// view. Nothing without a focus, and while keys do not come to the window.
    Ref<UIAccessibilityElement> focusedAccessibilityElement() override;
    /// Has a screen reader say a text; an empty one is ignored. It waits for the host, which takes
    /// it after the next frame, behind the changes that the same event has caused.
    void announce(std::string text, UIAccessibilityAnnouncement::Priority priority = UIAccessibilityAnnouncement::Priority::Polite) {
        if (announcements_.add({std::move(text), priority})) requestFrame();
    }
    /// The announcements since the last call, in their order; of many the newest.
    std::vector<UIAccessibilityAnnouncement> takeAnnouncements() { return announcements_.take(); }

    // From views

    /// What `becomeFirstResponder` and `resignFirstResponder` end in.
    void setFirstResponder(const Ref<UIView>& view);
    void cancelTouchesWithin(const Ref<UIViewNode>& view) override;
    void resignFirstResponderWithin(const Ref<UIViewNode>& view) override;
    void showFocusMark() override { showFocus(true); }
    /// Calls the view's `advanceToTime` before each frame, until that returns false.
    void animateView(const Ref<UIView>& view);
    /// Asks the host for a click or a vibration, if feedback is enabled.
    void giveFeedback(UIFeedback feedback);
    /// Asks the host for a frame, once until the next tick.
    void requestFrame() override;

protected:
    UIViewRoot* asViewRoot() override { return this; }
    bool isFocusedOn(const UIViewNode& view) const override;
    void moveFocusTo(const Ref<UIViewNode>& view) override;
    void tapView_atPoint_time(const Ref<UIViewNode>& view, CGPoint point, NSTimeInterval time) override;

private:
    struct Touch {
        UITouch touch;
        WeakRef<UIView> view;
    };
    std::vector<Touch>::iterator findTouch(std::int64_t identifier);
    NSTimeInterval finiteTime(NSTimeInterval time);
    bool moveFocus(bool isBackward);
    void showFocus(bool shows);
    void notifyFocus() const;
    void updatePointer();

    UIWindowHost* host_ = nullptr;
    UIUserInterfaceStyle style_ = UIUserInterfaceStyle::Light;
    UIAccessibilityContrast contrast_ = UIAccessibilityContrast::Normal;
    bool reducesMotion_ = false;
    std::vector<Touch> touches_;
    std::unique_ptr<UIPointerTracking> pointer_;
    std::vector<WeakRef<UIView>> moving_;
    WeakRef<UIView> firstResponder_;
    bool isFocusShown_ = false;
    bool receivesKeys_ = true;
    bool isFeedbackEnabled_ = true;
    NSTimeInterval latestTime_ = 0;
    bool needsFrame_ = true;
    bool isTicking_ = false;
    UIAccessibilityAnnouncements announcements_;
};

/// What `UIViewNode::window` returns: the window at the top of the view's tree. Empty without one.
GX_EXPORT Ref<UIWindow> windowOf(const UIViewNode& view);

} // namespace gx
