#pragma once

#include <vector>

#include "UIView.h"

namespace gx {

class UIWindowHost;
enum class UIFeedback;

/// The root of the views that one host shows: it takes size, touches, scrolling and keys from the host,
/// hands them to views, runs what moves and draws a frame. `UIHost.h` tells the whole protocol.
class UIWindow : public UIView {
public:
    ~UIWindow() override;

    /// Whom the window asks for frames; not owned, and must be cleared before it goes.
    /// A host that comes while a frame is due is asked for it at once.
    void setHost(UIWindowHost* host);
    UIWindowHost* host() const { return host_; }

    /// The look that colours are drawn in.
    UIUserInterfaceStyle userInterfaceStyle() const { return style_; }
    void setUserInterfaceStyle(UIUserInterfaceStyle style);
    /// How far the colours in it keep apart, and how much wheels fade the rows beside their band. Default normal.
    UIAccessibilityContrast accessibilityContrast() const { return contrast_; }
    void setAccessibilityContrast(UIAccessibilityContrast contrast);
    /// Whether nothing in it moves by itself, for users whom that makes dizzy. Default false. What would glide arrives in the next tick at
    /// the latest: wheels on the row that they were turned or asked to, with the same reports, views that scroll on the place that they
    /// were asked for, rows of a table where they belong. Content that a finger has thrown stops where it was let go. What follows a
    /// finger does so as ever. Turned on while something moves, it lets that arrive in the next tick.
    bool reducesMotion() const { return reducesMotion_; }
    void setReducesMotion(bool reduces) { reducesMotion_ = reduces; }

    // From the host. Locations are in points from the window's top left, times in seconds on one steady clock; one that is no finite
    // number counts as the latest that was. What began more than a second after the frame that shows it, by another clock, begins with
    // that frame.

    /// A finger comes down. An identifier that is still down is cancelled first. Returns whether a view took the touch.
    bool touchBegan_at_time(std::int64_t identifier, CGPoint location, NSTimeInterval time);
    /// Unknown identifiers are ignored, here and in the next two.
    void touchMoved_at_time(std::int64_t identifier, CGPoint location, NSTimeInterval time);
    void touchEnded_at_time(std::int64_t identifier, CGPoint location, NSTimeInterval time);
    /// The system takes the finger away.
    void touchCancelled_at_time(std::int64_t identifier, NSTimeInterval time);
    /// Goes to the view below the location. Answers whether someone made use of it.
    bool scroll(const UIScroll& scroll);

    /// A key goes down, or repeats. It goes to the view with the focus and from there up, to nobody if none has it. Tab, if none of them
    /// used it, moves the focus to the next view that takes it, in the order of the tree, and Shift and Tab to the one before; that view
    /// comes into sight. Beyond the last one the focus is given up and the answer is false, so that the host may go on to what lies
    /// around the window; the next Tab begins at the first again. Answers whether someone made use of the key.
    bool keyDown(const UIKey& key);
    /// Whether keys come to this window at present. Default true. While they do not, no focus is shown, but it is kept.
    bool receivesKeys() const { return receivesKeys_; }
    void setReceivesKeys(bool receives);

    /// Ends every movement in the window at once: wheels report the rows that they were turned to, what scrolls is where it was heading
    /// for. For a window that closes or is hidden, so that no turn is lost.
    void finishAnimations() override;

    /// Moves everything to `time`, lays out, and answers whether to draw (again). While something moves, the
    /// answer is true at every call; otherwise once after each change.
    bool tick(NSTimeInterval time);
    /// Draws the frame. The canvas is the host's.
    void draw(UIGraphicsContext& context);

    /// Whether `giveFeedback` reaches the host. Default true.
    bool isFeedbackEnabled() const { return isFeedbackEnabled_; }
    void setFeedbackEnabled(bool enabled) { isFeedbackEnabled_ = enabled; }

    // The focus

    /// The view that has it, or nothing. Held weakly; a view that leaves the window or is hidden loses it.
    Ref<UIView> firstResponder() const { return firstResponder_.lock(); }
    /// Whether the view with the focus marks it: once a key was of use, until the next touch. A finger knows where it is and needs no mark.
    bool showsFocus() const { return isFocusShown_ && receivesKeys_; }

    // From views

    /// What `becomeFirstResponder` and `resignFirstResponder` end in.
    void setFirstResponder(const Ref<UIView>& view);
    /// Takes the fingers from the view and from those below it, as if the system had.
    void cancelTouchesWithin(const Ref<UIView>& view);
    /// Takes the focus from the view and from those below it.
    void resignFirstResponderWithin(const Ref<UIView>& view);
    /// Calls the view's `advanceToTime` before each frame, until that answers false.
    void animateView(const Ref<UIView>& view);
    /// The user shall feel or hear something: the host is asked for it, if feedback is enabled.
    void giveFeedback(UIFeedback feedback);
    /// Something has changed on screen: the host is asked for a frame, once until the next tick.
    void requestFrame();

protected:
    UIWindow* asWindow() override { return this; }

private:
    struct Touch {
        UITouch touch;
        WeakRef<UIView> view;
    };
    std::vector<Touch>::iterator findTouch(std::int64_t identifier);
    NSTimeInterval heldTime(NSTimeInterval time);
    bool moveFocus(bool isBackward);
    void showFocus(bool shows);
    void tellOfFocus() const;

    UIWindowHost* host_ = nullptr;
    UIUserInterfaceStyle style_ = UIUserInterfaceStyle::Light;
    UIAccessibilityContrast contrast_ = UIAccessibilityContrast::Normal;
    bool reducesMotion_ = false;
    std::vector<Touch> touches_;
    std::vector<WeakRef<UIView>> moving_;
    WeakRef<UIView> firstResponder_;
    bool isFocusShown_ = false;
    bool receivesKeys_ = true;
    bool isFeedbackEnabled_ = true;
    NSTimeInterval latestTime_ = 0;
    bool needsFrame_ = true;
    bool isTicking_ = false;
};

} // namespace gx
