#pragma once

#include <GXUIPickers/UIWindow.h>

namespace gx::web {

/// One window of floor 1 in a place of the page, known there by a number.
///
/// It supports touches with several fingers, scrolling, keys, frames, ticks, contrast and reduced
/// motion. Looks are the page's own. There are no picture files.
class WebWindow final : public UIWindowHost {
public:
    explicit WebWindow(std::int32_t number);
    ~WebWindow() override;
    WebWindow(const WebWindow&) = delete;
    WebWindow& operator=(const WebWindow&) = delete;

    std::int32_t number() const { return number_; }
    const Ref<UIWindow>& window() const { return window_; }
    /// Fills the window.
    void setRootView(Ref<UIView> view);
    void setSize(CGSize size);

    /// A finger comes down. One that no view takes is the page's.
    bool touchBegan(std::int64_t finger, CGPoint place, NSTimeInterval time);

    /// Whether a row has passed the selection indicator in a gesture of the user, since it was
    /// forgotten.
    bool hasPassedRow() const { return hasPassedRow_; }
    void forgetPassedRow() { hasPassedRow_ = false; }

    void windowNeedsFrame() override;
    void giveFeedback(UIFeedback feedback) override;

private:
    std::int32_t number_;
    Ref<UIWindow> window_ = create<UIWindow>(CGRectZero);
    Ref<UIView> rootView_;
    bool hasPassedRow_ = false;
};

} // namespace gx::web
