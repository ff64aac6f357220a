#pragma once

#include <vector>

#include "UIView.h"

namespace gx {

class UIWindowHost;

/// The root of the views that one host shows: it takes size, touches and scrolling from the host, hands
/// them to views, runs what moves and draws a frame. `UIHost.h` tells the whole protocol.
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

    // From the host. Locations are in points from the window's top left, times in seconds on one steady clock.

    /// A finger comes down. An identifier that is still down is cancelled first.
    void touchBegan_at_time(std::int64_t identifier, CGPoint location, NSTimeInterval time);
    /// Unknown identifiers are ignored, here and in the next two.
    void touchMoved_at_time(std::int64_t identifier, CGPoint location, NSTimeInterval time);
    void touchEnded_at_time(std::int64_t identifier, CGPoint location, NSTimeInterval time);
    /// The system takes the finger away.
    void touchCancelled_at_time(std::int64_t identifier, NSTimeInterval time);
    /// Goes to the view below the location. Answers whether someone made use of it.
    bool scroll(const UIScroll& scroll);

    /// Moves everything to `time`, lays out, and answers whether to draw (again). While something moves, the
    /// answer is true at every call; otherwise once after each change.
    bool tick(NSTimeInterval time);
    /// Draws the frame. The canvas is the host's.
    void draw(UIGraphicsContext& context);

    // From views

    /// Calls the view's `advanceToTime` before each frame, until that answers false.
    void animateView(const Ref<UIView>& view);
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

    UIWindowHost* host_ = nullptr;
    UIUserInterfaceStyle style_ = UIUserInterfaceStyle::Light;
    std::vector<Touch> touches_;
    std::vector<WeakRef<UIView>> moving_;
    bool needsFrame_ = true;
    bool isTicking_ = false;
};

} // namespace gx
