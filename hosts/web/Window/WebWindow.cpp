#include "WebWindow.h"

#include "WebPage.h"

namespace gx::web {

WebWindow::WebWindow(std::int32_t number) : number_(number) { window_->setHost(this); }

WebWindow::~WebWindow() { window_->setHost(nullptr); }

void WebWindow::setRootView(Ref<UIView> view) {
    if (rootView_) rootView_->removeFromSuperview();
    rootView_ = std::move(view);
    if (!rootView_) return;
    window_->addSubview(rootView_);
    rootView_->setFrame(window_->bounds());
}

void WebWindow::setSize(CGSize size) {
    window_->setFrame({{}, size});
    if (rootView_) rootView_->setFrame(window_->bounds());
}

bool WebWindow::touchBegan(std::int64_t finger, CGPoint place, NSTimeInterval time) {
    const bool isTaken = window_->touchBegan_at_time(finger, place, time);
    if (!isTaken) window_->touchCancelled_at_time(finger, time);
    return isTaken;
}

void WebWindow::windowNeedsFrame() { gx_page_needs_frame(number_); }

void WebWindow::giveFeedback(UIFeedback feedback) {
    if (feedback != UIFeedback::SelectionChanged) return;
    hasPassedRow_ = true;
    gx_page_did_pass_row(number_);
}

} // namespace gx::web
