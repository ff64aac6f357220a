#pragma once

#include "FuzzBytes.h"
#include "UIWindow.h"

/// A user of a window: fingers, mouse wheel, keys, the passing of time, and a screen reader.
class FuzzHand {
public:
    FuzzHand(FuzzBytes& bytes, gx::Ref<gx::UIWindow> window) : bytes_(bytes), window_(std::move(window)) {}

    void touch();
    void scroll();
    void press();
    /// Lets up to 1.3 seconds pass.
    void wait();
    /// Asks one accessible element for everything, and may give it an order.
    void hear();
    /// Ticks until what is moving has come to rest, or for half a minute.
    void waitUntilStill();

private:
    /// Mostly the clock's, else any.
    gx::NSTimeInterval time();

    FuzzBytes& bytes_;
    gx::Ref<gx::UIWindow> window_;
    gx::NSTimeInterval now_ = 1000;
};
