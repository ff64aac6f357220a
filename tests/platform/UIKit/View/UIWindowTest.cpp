#include "UIWindow.h"

#include <functional>

#include <gtest/gtest.h>

#include "RecordingCanvas.h"
#include "UIHost.h"

using namespace gx;

namespace {

struct Host : UIWindowHost {
    int frames = 0;
    void windowNeedsFrame() override { ++frames; }
};

/// Notes the touches that reach it and moves as long as it is told to; may do something on each occasion.
struct Actor : UIView {
    std::string log;
    UITouch last;
    UIScroll lastScroll;
    bool takesTouches = true;
    bool usesScrolls = true;
    std::vector<NSTimeInterval> times;
    bool movesOn = false;
    std::function<void()> whenBegan, whenCancelled, whenEnded, whenScrolled, whenAdvanced, whenLaidOut;

    bool touchBegan(const UITouch& touch) override {
        note("began ", touch, whenBegan);
        return takesTouches;
    }
    void touchMoved(const UITouch& touch) override { note("moved ", touch, nullptr); }
    void touchEnded(const UITouch& touch) override { note("ended ", touch, whenEnded); }
    void touchCancelled(const UITouch& touch) override { note("cancelled ", touch, whenCancelled); }
    bool scrolled(const UIScroll& scroll) override {
        lastScroll = scroll;
        run(whenScrolled);
        return usesScrolls;
    }
    bool advanceToTime(NSTimeInterval time) override {
        times.push_back(time);
        run(whenAdvanced);
        return movesOn;
    }
    void layoutSubviews() override {
        UIView::layoutSubviews();
        run(whenLaidOut);
    }

private:
    static void run(std::function<void()> action) { // A copy: it may be replaced while it runs.
        if (action) action();
    }
    void note(const char* what, const UITouch& touch, std::function<void()> action) {
        log += what + std::to_string(touch.identifier) + " ";
        last = touch;
        run(std::move(action));
    }
};

struct Window : testing::Test {
    Ref<UIWindow> window = create<UIWindow>(CGRectMake(0, 0, 200, 200));
    Ref<Actor> actor = create<Actor>(CGRectMake(10, 10, 100, 100));
    Ref<Actor> other = create<Actor>(CGRectMake(110, 110, 50, 50));

    Window() {
        window->addSubview(actor);
        window->addSubview(other);
        window->tick(0);
    }
    using Times = std::vector<NSTimeInterval>;
};

} // namespace

// Touches

TEST_F(Window, ATouchGoesToTheViewItBeganOnUntilItEnds) {
    window->touchBegan_at_time(3, {20, 20}, 1);
    EXPECT_EQ(actor->last.locationInWindow, CGPointMake(20, 20));
    EXPECT_EQ(actor->last.timestamp, 1);
    window->touchMoved_at_time(3, {150, 150}, 2);
    EXPECT_EQ(actor->last.locationInWindow, CGPointMake(150, 150));
    EXPECT_EQ(actor->last.timestamp, 2);
    window->touchEnded_at_time(3, {151, 151}, 3);
    EXPECT_EQ(actor->last.locationInWindow, CGPointMake(151, 151));
    EXPECT_EQ(actor->last.timestamp, 3);
    EXPECT_EQ(actor->log, "began 3 moved 3 ended 3 ");
    EXPECT_EQ(other->log, "");
    window->touchMoved_at_time(3, {20, 20}, 4);
    EXPECT_EQ(actor->log, "began 3 moved 3 ended 3 ") << "it has ended";
}

TEST_F(Window, ReturnsWhetherAViewTookTheTouch) {
    EXPECT_TRUE(window->touchBegan_at_time(1, {20, 20}, 1));
    EXPECT_FALSE(window->touchBegan_at_time(2, {5, 5}, 1)) << "only the window lies there";
    EXPECT_FALSE(window->touchBegan_at_time(3, {205, 20}, 1)) << "nothing lies there";
    actor->takesTouches = false;
    EXPECT_FALSE(window->touchBegan_at_time(4, {20, 20}, 1));
}

TEST_F(Window, SendsTheRestOfATouchThatNoViewTook) {
    actor->takesTouches = false;
    window->touchBegan_at_time(1, {20, 20}, 1);
    window->touchMoved_at_time(1, {30, 30}, 2);
    window->touchEnded_at_time(1, {30, 30}, 3);
    EXPECT_EQ(actor->log, "began 1 moved 1 ended 1 ");
}

TEST_F(Window, GivesFeedbackThroughItsHost) {
    window->giveFeedback(UIFeedback::SelectionChanged); // Without a host nothing happens.
    struct FeedbackHost : UIWindowHost {
        void windowNeedsFrame() override {}
        void giveFeedback(UIFeedback feedback) override { given.push_back(feedback); }
        std::vector<UIFeedback> given;
    } host;
    window->setHost(&host);
    EXPECT_TRUE(window->isFeedbackEnabled());
    window->giveFeedback(UIFeedback::SelectionChanged);
    EXPECT_EQ(host.given, std::vector{UIFeedback::SelectionChanged});
    window->setFeedbackEnabled(false);
    EXPECT_FALSE(window->isFeedbackEnabled());
    window->giveFeedback(UIFeedback::SelectionChanged);
    EXPECT_EQ(host.given.size(), 1U);
    window->setFeedbackEnabled(true);
    window->giveFeedback(UIFeedback::SelectionChanged);
    EXPECT_EQ(host.given.size(), 2U);
    window->setHost(nullptr);
}

TEST_F(Window, SeveralFingersGoTheirOwnWays) {
    window->touchBegan_at_time(1, {20, 20}, 1);
    window->touchBegan_at_time(2, {120, 120}, 1);
    window->touchMoved_at_time(1, {21, 20}, 2);
    window->touchEnded_at_time(2, {120, 120}, 3);
    window->touchEnded_at_time(1, {20, 20}, 4);
    EXPECT_EQ(actor->log, "began 1 moved 1 ended 1 ");
    EXPECT_EQ(other->log, "began 2 ended 2 ");
}

TEST_F(Window, ACancelledTouchKeepsItsLastPlace) {
    window->touchBegan_at_time(1, {20, 20}, 1);
    window->touchMoved_at_time(1, {30, 40}, 2);
    window->touchCancelled_at_time(1, 5);
    EXPECT_EQ(actor->log, "began 1 moved 1 cancelled 1 ");
    EXPECT_EQ(actor->last.locationInWindow, CGPointMake(30, 40));
    EXPECT_EQ(actor->last.timestamp, 5);
    window->touchEnded_at_time(1, {30, 40}, 6);
    EXPECT_EQ(actor->log, "began 1 moved 1 cancelled 1 ");
}

TEST_F(Window, AnIdentifierThatIsStillDownIsCancelledFirst) {
    window->touchBegan_at_time(1, {20, 20}, 1);
    window->touchBegan_at_time(1, {120, 120}, 2);
    EXPECT_EQ(actor->log, "began 1 cancelled 1 ");
    EXPECT_EQ(other->log, "began 1 ");
    window->touchEnded_at_time(1, {120, 120}, 3);
    EXPECT_EQ(actor->log, "began 1 cancelled 1 ");
    EXPECT_EQ(other->log, "began 1 ended 1 ");
}

TEST_F(Window, AnIdentifierCanBeUsedAgainAfterItsEnd) {
    window->touchBegan_at_time(1, {20, 20}, 1);
    window->touchEnded_at_time(1, {20, 20}, 2);
    window->touchBegan_at_time(1, {120, 120}, 3);
    EXPECT_EQ(actor->log, "began 1 ended 1 ");
    EXPECT_EQ(other->log, "began 1 ");
}

TEST_F(Window, UnknownFingersAreIgnored) {
    window->touchMoved_at_time(9, {20, 20}, 1);
    window->touchEnded_at_time(9, {20, 20}, 1);
    window->touchCancelled_at_time(9, 1);
    EXPECT_EQ(actor->log, "");
}

TEST_F(Window, ATouchOutsideTheWindowBeginsNothing) {
    window->touchBegan_at_time(1, {250, 20}, 1);
    window->touchMoved_at_time(1, {20, 20}, 2);
    EXPECT_EQ(actor->log, "");
}

TEST_F(Window, ATouchWhoseViewHasVanishedGoesNowhere) {
    const WeakRef<Actor> weak = actor;
    window->touchBegan_at_time(1, {20, 20}, 1);
    actor->removeFromSuperview();
    actor = nullptr;
    ASSERT_TRUE(weak.expired());
    window->touchMoved_at_time(1, {120, 120}, 2);
    window->touchEnded_at_time(1, {120, 120}, 3);
    EXPECT_EQ(other->log, "") << "nobody takes over";
}

TEST_F(Window, AViewMayVanishWhileItIsTouched) {
    const WeakRef<Actor> weak = actor;
    actor->whenBegan = [this] {
        actor->removeFromSuperview();
        actor = nullptr;
    };
    window->touchBegan_at_time(1, {20, 20}, 1);
    EXPECT_TRUE(weak.expired());
    window->touchMoved_at_time(1, {120, 120}, 2);
    EXPECT_EQ(other->log, "");
}

TEST_F(Window, ATouchAimsAtWhatTheNextFrameWouldShow) {
    actor->whenLaidOut = [this] { other->setFrame(CGRectMake(20, 20, 10, 10)); };
    actor->setNeedsLayout();
    window->touchBegan_at_time(1, {25, 25}, 1);
    EXPECT_EQ(other->log, "began 1 ");
    EXPECT_EQ(actor->log, "");
}

TEST_F(Window, ATouchMayEndAnotherTouch) {
    window->touchBegan_at_time(1, {20, 20}, 1);
    window->touchBegan_at_time(2, {120, 120}, 1);
    other->whenEnded = [this] { window->touchCancelled_at_time(1, 2); };
    window->touchEnded_at_time(2, {120, 120}, 2);
    EXPECT_EQ(actor->log, "began 1 cancelled 1 ");
    EXPECT_EQ(other->log, "began 2 ended 2 ");
}

TEST_F(Window, TheWindowMayBeDroppedByATouchThatItCancels) {
    const WeakRef<UIWindow> weak = window;
    window->touchBegan_at_time(1, {20, 20}, 1);
    actor->whenCancelled = [this] { window = nullptr; };
    window->touchBegan_at_time(1, {120, 120}, 2);
    EXPECT_TRUE(weak.expired());
    EXPECT_EQ(actor->log, "began 1 cancelled 1 ");
}

TEST_F(Window, TheWindowMayBeDroppedByATouchThatARemovalCancels) {
    window->touchBegan_at_time(1, {20, 20}, 1);
    window->touchBegan_at_time(2, {30, 30}, 1);
    actor->whenCancelled = [this] { window = nullptr; };
    actor->removeFromSuperview();
    EXPECT_EQ(actor->log, "began 1 began 2 cancelled 1 cancelled 2 ");
    EXPECT_EQ(actor->superview(), nullptr);
}

TEST_F(Window, AViewMayBeDroppedByATouchThatItsRemovalCancels) {
    window->touchBegan_at_time(1, {20, 20}, 1);
    Actor& removed = *actor;
    removed.whenCancelled = [this] {
        const Ref<Actor> dropped = std::move(actor);
        dropped->removeFromSuperview();
    };
    removed.removeFromSuperview();
    EXPECT_EQ(actor, nullptr);
    EXPECT_EQ(window->subviews(), std::vector<Ref<UIView>>{other});
}

TEST_F(Window, WhoTakesAllFingersFromAViewMayForgetItMeanwhile) {
    window->touchBegan_at_time(1, {20, 20}, 1);
    window->touchBegan_at_time(2, {30, 30}, 1);
    const Ref<Actor> touched = actor;
    Ref<UIView> forgotten = actor;
    actor->whenCancelled = [&forgotten] { forgotten = nullptr; };
    window->cancelTouchesWithin(forgotten);
    EXPECT_EQ(touched->log, "began 1 began 2 cancelled 1 cancelled 2 ");
}

TEST_F(Window, TheWindowMayBeDroppedByALayout) {
    const WeakRef<UIWindow> weak = window;
    actor->whenLaidOut = [this] { window = nullptr; };
    actor->setNeedsLayout();
    RecordingCanvas canvas;
    window->draw(canvas);
    EXPECT_TRUE(weak.expired());
}

// Scrolling

TEST_F(Window, ScrollingGoesToTheViewBelowItAndTellsWhetherItWasOfUse) {
    const UIScroll scroll = {UIScroll::Unit::Points, 1, -2, 3, {20, 20}, true};
    EXPECT_TRUE(window->scroll(scroll));
    EXPECT_EQ(actor->lastScroll.unit, UIScroll::Unit::Points);
    EXPECT_EQ(actor->lastScroll.deltaX, 1);
    EXPECT_EQ(actor->lastScroll.deltaY, -2);
    EXPECT_EQ(actor->lastScroll.timestamp, 3);
    EXPECT_TRUE(actor->lastScroll.isFinished);
    actor->usesScrolls = false;
    EXPECT_FALSE(window->scroll(scroll));
    EXPECT_FALSE(window->scroll({UIScroll::Unit::Notches, 0, 1, 0, {5, 5}, false})) << "the window itself makes no use of it";
    EXPECT_FALSE(window->scroll({UIScroll::Unit::Notches, 0, 1, 0, {500, 5}, false}));
}

// Frames

TEST_F(Window, ATickAnswersOnceForEachChange) {
    EXPECT_FALSE(window->tick(1)) << "drawn already";
    actor->setAlpha(0.5);
    other->setAlpha(0.5);
    EXPECT_TRUE(window->tick(2));
    EXPECT_FALSE(window->tick(3));
}

TEST_F(Window, ANewWindowHasToBeDrawn) {
    const auto fresh = create<UIWindow>(CGRectMake(0, 0, 10, 10));
    EXPECT_TRUE(fresh->tick(0));
    EXPECT_FALSE(fresh->tick(1));
}

TEST_F(Window, TheHostIsAskedOnceUntilTheNextTick) {
    Host host;
    window->setHost(&host);
    EXPECT_EQ(window->host(), &host);
    EXPECT_EQ(host.frames, 0) << "nothing to draw";
    actor->setAlpha(0.5);
    actor->setAlpha(0.4);
    other->setHidden(true);
    EXPECT_EQ(host.frames, 1);
    window->tick(1);
    EXPECT_EQ(host.frames, 1);
    actor->setAlpha(0.3);
    EXPECT_EQ(host.frames, 2);
    window->setHost(nullptr);
    window->tick(2);
    actor->setAlpha(0.2);
    EXPECT_EQ(host.frames, 2);
}

TEST_F(Window, AHostThatComesLateIsAskedForTheFrameThatWaits) {
    actor->setAlpha(0.5);
    Host host;
    window->setHost(&host);
    EXPECT_EQ(host.frames, 1);
    window->setHost(nullptr);
}

TEST_F(Window, WhatChangesInATickIsDrawnWithIt) {
    actor->whenLaidOut = [this] { other->setAlpha(0.5); };
    actor->setNeedsLayout();
    EXPECT_TRUE(window->tick(1));
    EXPECT_FALSE(window->tick(2));
}

TEST_F(Window, WhatALayoutLeavesDueIsDoneByTheNextTick) {
    int layouts = 0;
    actor->whenLaidOut = [&] {
        if (++layouts == 1) actor->setNeedsLayout();
    };
    actor->setNeedsLayout();
    EXPECT_TRUE(window->tick(1));
    EXPECT_EQ(layouts, 1);
    window->tick(2);
    EXPECT_EQ(layouts, 2);
}

TEST_F(Window, TheLookIsHandedToTheCanvasAndChangesWithAFrame) {
    RecordingCanvas canvas;
    window->setBackgroundColor(UIColor::colorWithLight_dark(UIColor::whiteColor(), UIColor::blackColor()));
    window->draw(canvas);
    EXPECT_EQ(canvas.painted(), std::vector<std::string>{"fill 0 0 200 200 with 1 1 1 1"});
    canvas.takeCalls();
    window->tick(1);
    EXPECT_EQ(window->userInterfaceStyle(), UIUserInterfaceStyle::Light);
    window->setUserInterfaceStyle(UIUserInterfaceStyle::Dark);
    EXPECT_TRUE(window->tick(2));
    window->setUserInterfaceStyle(UIUserInterfaceStyle::Dark);
    EXPECT_FALSE(window->tick(3));
    window->draw(canvas);
    EXPECT_EQ(canvas.painted(), std::vector<std::string>{"fill 0 0 200 200 with 0 0 0 1"});
}

TEST_F(Window, DrawingLaysOutFirst) {
    actor->whenLaidOut = [this] { actor->setBackgroundColor(UIColor::blackColor()); };
    actor->setNeedsLayout();
    RecordingCanvas canvas;
    window->draw(canvas);
    EXPECT_EQ(canvas.painted(), std::vector<std::string>{"fill 0 0 100 100 with 0 0 0 1"});
}

TEST_F(Window, AWindowDrawsFromItsTopLeftWhereverItsFrameLies) {
    window->setFrame(CGRectMake(500, 600, 200, 200));
    window->setBackgroundColor(UIColor::blackColor());
    RecordingCanvas canvas;
    window->draw(canvas);
    EXPECT_EQ(canvas.calls.at(1), "fill 0 0 200 200 with 0 0 0 1");
    window->touchBegan_at_time(1, {20, 20}, 1);
    EXPECT_EQ(actor->log, "began 1 ");
}

// What moves

TEST_F(Window, AMovingViewIsAdvancedByEachTickUntilItRests) {
    actor->movesOn = true;
    window->animateView(actor);
    window->animateView(actor);
    EXPECT_TRUE(window->tick(1));
    EXPECT_TRUE(window->tick(2)) << "it moves on";
    EXPECT_EQ(actor->times, (Times{1, 2})) << "once a tick";
    actor->movesOn = false;
    window->tick(3);
    EXPECT_EQ(actor->times, (Times{1, 2, 3}));
    EXPECT_FALSE(window->tick(4));
    EXPECT_EQ(actor->times, (Times{1, 2, 3}));
}

TEST_F(Window, AViewThatBeginsToMoveAsksForAFrame) {
    Host host;
    window->setHost(&host);
    window->animateView(actor);
    EXPECT_EQ(host.frames, 1);
    window->setHost(nullptr);
    window->animateView(nullptr);
    EXPECT_TRUE(window->tick(1));
    EXPECT_FALSE(window->tick(2));
}

TEST_F(Window, AViewCanMoveAgainAfterItsRest) {
    window->animateView(actor);
    window->tick(1);
    window->tick(2);
    window->animateView(actor);
    window->tick(3);
    EXPECT_EQ(actor->times, (Times{1, 3}));
}

TEST_F(Window, AMovingViewThatDiesIsForgotten) {
    actor->movesOn = true;
    window->animateView(actor);
    actor->removeFromSuperview();
    actor = nullptr;
    window->tick(1);
    EXPECT_FALSE(window->tick(2));
}

TEST_F(Window, AMovingViewThatLeavesTheWindowIsForgotten) {
    actor->movesOn = true;
    window->animateView(actor);
    actor->removeFromSuperview();
    window->tick(1);
    EXPECT_FALSE(window->tick(2));
    EXPECT_EQ(actor->times, Times{});
}

TEST_F(Window, AViewThatIsRemovedByAnotherInATickDoesNotMove) {
    actor->movesOn = other->movesOn = true;
    actor->whenAdvanced = [this] { other->removeFromSuperview(); };
    window->animateView(actor);
    window->animateView(other);
    window->tick(1);
    EXPECT_EQ(actor->times, Times{1});
    EXPECT_EQ(other->times, Times{});
}

TEST_F(Window, AViewThatDiesInItsOwnMovementLeavesTheOthersMoving) {
    const WeakRef<Actor> weak = actor;
    actor->movesOn = other->movesOn = true;
    actor->whenAdvanced = [this] {
        actor->removeFromSuperview();
        actor = nullptr;
    };
    window->animateView(actor);
    window->animateView(other);
    EXPECT_TRUE(window->tick(1));
    EXPECT_TRUE(weak.expired());
    EXPECT_EQ(other->times, Times{1});
    EXPECT_TRUE(window->tick(2));
    EXPECT_EQ(other->times, (Times{1, 2}));
}

TEST_F(Window, AViewThatBeginsToMoveInATickJoinsInTheNext) {
    actor->whenAdvanced = [this] { window->animateView(other); };
    window->animateView(actor);
    EXPECT_TRUE(window->tick(1));
    EXPECT_EQ(other->times, Times{});
    window->tick(2);
    EXPECT_EQ(other->times, Times{2});
    EXPECT_EQ(actor->times, Times{1});
}

TEST_F(Window, ManyViewsMayBeginToMoveInOneTick) {
    std::vector<Ref<Actor>> crowd;
    for (int i = 0; i < 50; ++i) {
        crowd.push_back(create<Actor>(CGRectMake(0, 0, 1, 1)));
        window->addSubview(crowd.back());
    }
    actor->movesOn = true;
    actor->whenAdvanced = [&] {
        for (const Ref<Actor>& view : crowd) window->animateView(view);
    };
    window->animateView(actor);
    window->tick(1);
    window->tick(2);
    for (const Ref<Actor>& view : crowd) EXPECT_EQ(view->times, Times{2});
    EXPECT_EQ(actor->times, (Times{1, 2}));
}

TEST_F(Window, ACallbackMayNotTurnTimeWithinATick) {
    bool answer = false;
    actor->movesOn = true;
    actor->whenAdvanced = [&] { answer = window->tick(99); };
    window->animateView(actor);
    EXPECT_TRUE(window->tick(1));
    EXPECT_TRUE(answer) << "there is a frame to come";
    EXPECT_EQ(actor->times, Times{1});
    window->tick(2);
    EXPECT_EQ(actor->times, (Times{1, 2})) << "the next one does";
}

TEST_F(Window, ATickMayDropTheWindow) {
    const WeakRef<UIWindow> weak = window;
    actor->movesOn = true;
    actor->whenAdvanced = [this] { window = nullptr; };
    window->animateView(actor);
    window->tick(1);
    EXPECT_TRUE(weak.expired());
    EXPECT_FALSE(actor->superview());
}
