#pragma once

#include "FuzzBytes.h"
#include "UIWindow.h"

/// A user: fingers, mouse wheel, keys, the passing of time, and a screen reader. It has one window
/// before it.
class FuzzHand {
public:
    FuzzHand(FuzzBytes& bytes, gx::Ref<gx::UIWindow> window) : bytes_(bytes), window_(std::move(window)) {}

    /// Goes on to another window, or to a new one that comes after one that has closed.
    void goTo(gx::Ref<gx::UIWindow> window) { window_ = std::move(window); }

    void touch();
    void scroll();
    void press();
    /// Lets up to 1.3 seconds pass.
    void wait();
    /// Asks one accessible element for everything, and may call it: one that the window
    /// has now, or one that was kept before, whatever has become of its view.
    void hear();
    /// Ticks until what is moving has come to rest, or for half a minute.
    void waitUntilStill();

private:
    /// Mostly the clock's, else any.
    gx::NSTimeInterval time();
    gx::Ref<gx::UIAccessibilityElement> presentElement();

    FuzzBytes& bytes_;
    // Not kept alive for a call: callbacks may release it.
    gx::Ref<gx::UIWindow> window_;
    std::array<gx::Ref<gx::UIAccessibilityElement>, 4> kept_;
    gx::NSTimeInterval now_ = 1000;
};
