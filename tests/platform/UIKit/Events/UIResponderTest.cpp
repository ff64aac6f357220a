#include "UIResponder.h"

#include <gtest/gtest.h>

using namespace gx;

namespace {

/// Hands everything on to the next one.
struct Link : UIResponder {
    Ref<UIResponder> next;
    Ref<UIResponder> nextResponder() const override { return next; }
};

/// Takes everything, and notes it.
struct Taker : UIResponder {
    std::string log;
    bool touchBegan(const UITouch&) override {
        log += "began ";
        return true;
    }
    void touchMoved(const UITouch&) override { log += "moved "; }
    void touchEnded(const UITouch&) override { log += "ended "; }
    void touchCancelled(const UITouch&) override { log += "cancelled "; }
    bool scrolled(const UIScroll&) override {
        log += "scrolled ";
        return true;
    }
    bool keyPressed(const UIKey&) override {
        log += "key ";
        return true;
    }
};

} // namespace

TEST(UIResponder, HandsEventsOnAndReturnsWhatTheNextOneReturned) {
    const auto taker = create<Taker>();
    const auto middle = create<Link>();
    const auto first = create<Link>();
    first->next = middle;
    middle->next = taker;
    EXPECT_TRUE(first->touchBegan({}));
    first->touchMoved({});
    first->touchEnded({});
    first->touchCancelled({});
    EXPECT_TRUE(first->scrolled({}));
    EXPECT_TRUE(first->keyPressed({}));
    EXPECT_EQ(taker->log, "began moved ended cancelled scrolled key ");
}

TEST(UIResponder, UsesNothingAtTheEndOfTheChain) {
    const auto last = create<UIResponder>();
    EXPECT_FALSE(last->nextResponder());
    EXPECT_FALSE(last->touchBegan({}));
    last->touchMoved({});
    last->touchEnded({});
    last->touchCancelled({});
    EXPECT_FALSE(last->scrolled({}));
    EXPECT_FALSE(last->keyPressed({}));
    EXPECT_FALSE(last->canBecomeFirstResponder());
}
