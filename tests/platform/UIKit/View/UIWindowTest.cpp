#include "UIWindow.h"

#include <gtest/gtest.h>

#include "ActorView.h"
#include "RecordingCanvas.h"
#include "UIHost.h"

using namespace gx;

namespace {

struct Host : UIWindowHost {
    int frames = 0;
    void windowNeedsFrame() override { ++frames; }
};

struct UIWindowTest : WindowOfActors {};

} // namespace

// Scrolling

TEST_F(UIWindowTest, ScrollingGoesToTheViewBelowItAndReturnsWhetherItWasUsed) {
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

// The host

TEST_F(UIWindowTest, GivesFeedbackThroughItsHost) {
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

// Frames

TEST_F(UIWindowTest, ATickReturnsTrueOnceForEachChange) {
    EXPECT_FALSE(window->tick(1)) << "drawn already";
    actor->setAlpha(0.5);
    other->setAlpha(0.5);
    EXPECT_TRUE(window->tick(2));
    EXPECT_FALSE(window->tick(3));
}

TEST_F(UIWindowTest, ANewWindowHasToBeDrawn) {
    const auto fresh = create<UIWindow>(CGRectMake(0, 0, 10, 10));
    EXPECT_TRUE(fresh->tick(0));
    EXPECT_FALSE(fresh->tick(1));
}

TEST_F(UIWindowTest, RequestsOneFrameUntilTheNextTick) {
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

TEST_F(UIWindowTest, AHostThatComesLateGetsThePendingRequestForAFrame) {
    actor->setAlpha(0.5);
    Host host;
    window->setHost(&host);
    EXPECT_EQ(host.frames, 1);
    window->setHost(nullptr);
}

TEST_F(UIWindowTest, WhatChangesInATickIsDrawnWithIt) {
    actor->whenLaidOut = [this] { other->setAlpha(0.5); };
    actor->setNeedsLayout();
    EXPECT_TRUE(window->tick(1));
    EXPECT_FALSE(window->tick(2));
}

TEST_F(UIWindowTest, WhatALayoutInvalidatesIsLaidOutByTheNextTick) {
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

TEST_F(UIWindowTest, TheLookIsHandedToTheCanvasAndChangesWithAFrame) {
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

TEST_F(UIWindowTest, DrawingLaysOutFirst) {
    actor->whenLaidOut = [this] { actor->setBackgroundColor(UIColor::blackColor()); };
    actor->setNeedsLayout();
    RecordingCanvas canvas;
    window->draw(canvas);
    EXPECT_EQ(canvas.painted(), std::vector<std::string>{"fill 0 0 100 100 with 0 0 0 1"});
}

TEST_F(UIWindowTest, AWindowDrawsFromItsTopLeftWhereverItsFrameLies) {
    window->setFrame(CGRectMake(500, 600, 200, 200));
    window->setBackgroundColor(UIColor::blackColor());
    RecordingCanvas canvas;
    window->draw(canvas);
    EXPECT_EQ(canvas.calls.at(1), "fill 0 0 200 200 with 0 0 0 1");
    window->touchBegan_at_time(1, {20, 20}, 1);
    EXPECT_EQ(actor->log, "began 1 ");
}

// What moves

TEST_F(UIWindowTest, AMovingViewIsAdvancedByEachTickUntilItRests) {
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

TEST_F(UIWindowTest, AViewThatBeginsToMoveRequestsAFrame) {
    Host host;
    window->setHost(&host);
    window->animateView(actor);
    EXPECT_EQ(host.frames, 1);
    window->setHost(nullptr);
    window->animateView(nullptr);
    EXPECT_TRUE(window->tick(1));
    EXPECT_FALSE(window->tick(2));
}

TEST_F(UIWindowTest, AViewCanMoveAgainAfterItsRest) {
    window->animateView(actor);
    window->tick(1);
    window->tick(2);
    window->animateView(actor);
    window->tick(3);
    EXPECT_EQ(actor->times, (Times{1, 3}));
}

TEST_F(UIWindowTest, AMovingViewThatIsGoneAdvancesNoMore) {
    actor->movesOn = true;
    window->animateView(actor);
    actor->removeFromSuperview();
    actor = nullptr;
    window->tick(1);
    EXPECT_FALSE(window->tick(2));
}

TEST_F(UIWindowTest, AMovingViewThatLeavesTheWindowAdvancesNoMore) {
    actor->movesOn = true;
    window->animateView(actor);
    actor->removeFromSuperview();
    window->tick(1);
    EXPECT_FALSE(window->tick(2));
    EXPECT_EQ(actor->times, Times{});
}

TEST_F(UIWindowTest, AViewThatIsRemovedByAnotherInATickDoesNotMove) {
    actor->movesOn = other->movesOn = true;
    actor->whenAdvanced = [this] { other->removeFromSuperview(); };
    window->animateView(actor);
    window->animateView(other);
    window->tick(1);
    EXPECT_EQ(actor->times, Times{1});
    EXPECT_EQ(other->times, Times{});
}

TEST_F(UIWindowTest, AViewThatIsDroppedInItsOwnMovementLeavesTheOthersMoving) {
    const WeakRef<ActorView> weak = actor;
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

TEST_F(UIWindowTest, AViewThatBeginsToMoveInATickAdvancesInTheNext) {
    actor->whenAdvanced = [this] { window->animateView(other); };
    window->animateView(actor);
    EXPECT_TRUE(window->tick(1));
    EXPECT_EQ(other->times, Times{});
    window->tick(2);
    EXPECT_EQ(other->times, Times{2});
    EXPECT_EQ(actor->times, Times{1});
}

TEST_F(UIWindowTest, ManyViewsMayBeginToMoveInOneTick) {
    std::vector<Ref<ActorView>> crowd;
    for (int i = 0; i < 50; ++i) {
        crowd.push_back(create<ActorView>(CGRectMake(0, 0, 1, 1)));
        window->addSubview(crowd.back());
    }
    actor->movesOn = true;
    actor->whenAdvanced = [&] {
        for (const Ref<ActorView>& view : crowd) window->animateView(view);
    };
    window->animateView(actor);
    window->tick(1);
    window->tick(2);
    for (const Ref<ActorView>& view : crowd) EXPECT_EQ(view->times, Times{2});
    EXPECT_EQ(actor->times, (Times{1, 2}));
}

TEST_F(UIWindowTest, ATickWithinATickIsANoOp) {
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

TEST_F(UIWindowTest, ATickMayDropTheWindow) {
    const WeakRef<UIWindow> weak = window;
    actor->movesOn = true;
    actor->whenAdvanced = [this] { window = nullptr; };
    window->animateView(actor);
    window->tick(1);
    EXPECT_TRUE(weak.expired());
    EXPECT_FALSE(actor->superview());
}
