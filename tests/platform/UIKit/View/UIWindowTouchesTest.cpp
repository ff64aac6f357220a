// Which view gets the touches of a window, and what callbacks may do meanwhile.

#include <gtest/gtest.h>

#include "ActorView.h"
#include "RecordingCanvas.h"

using namespace gx;

namespace {

struct UIWindowTouchesTest : WindowOfActors {};

} // namespace

TEST_F(UIWindowTouchesTest, ATouchGoesToTheViewItBeganOnUntilItEnds) {
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

TEST_F(UIWindowTouchesTest, ReturnsWhetherAViewTookTheTouch) {
    EXPECT_TRUE(window->touchBegan_at_time(1, {20, 20}, 1));
    EXPECT_FALSE(window->touchBegan_at_time(2, {5, 5}, 1)) << "only the window lies there";
    EXPECT_FALSE(window->touchBegan_at_time(3, {205, 20}, 1)) << "nothing lies there";
    actor->takesTouches = false;
    EXPECT_FALSE(window->touchBegan_at_time(4, {20, 20}, 1));
}

TEST_F(UIWindowTouchesTest, SendsTheRestOfATouchThatNoViewTook) {
    actor->takesTouches = false;
    window->touchBegan_at_time(1, {20, 20}, 1);
    window->touchMoved_at_time(1, {30, 30}, 2);
    window->touchEnded_at_time(1, {30, 30}, 3);
    EXPECT_EQ(actor->log, "began 1 moved 1 ended 1 ");
}

TEST_F(UIWindowTouchesTest, SeveralFingersGoTheirOwnWays) {
    window->touchBegan_at_time(1, {20, 20}, 1);
    window->touchBegan_at_time(2, {120, 120}, 1);
    window->touchMoved_at_time(1, {21, 20}, 2);
    window->touchEnded_at_time(2, {120, 120}, 3);
    window->touchEnded_at_time(1, {20, 20}, 4);
    EXPECT_EQ(actor->log, "began 1 moved 1 ended 1 ");
    EXPECT_EQ(other->log, "began 2 ended 2 ");
}

TEST_F(UIWindowTouchesTest, ACancelledTouchKeepsItsLastPlace) {
    window->touchBegan_at_time(1, {20, 20}, 1);
    window->touchMoved_at_time(1, {30, 40}, 2);
    window->touchCancelled_at_time(1, 5);
    EXPECT_EQ(actor->log, "began 1 moved 1 cancelled 1 ");
    EXPECT_EQ(actor->last.locationInWindow, CGPointMake(30, 40));
    EXPECT_EQ(actor->last.timestamp, 5);
    window->touchEnded_at_time(1, {30, 40}, 6);
    EXPECT_EQ(actor->log, "began 1 moved 1 cancelled 1 ");
}

TEST_F(UIWindowTouchesTest, AnIdentifierThatIsStillDownIsCancelledFirst) {
    window->touchBegan_at_time(1, {20, 20}, 1);
    window->touchBegan_at_time(1, {120, 120}, 2);
    EXPECT_EQ(actor->log, "began 1 cancelled 1 ");
    EXPECT_EQ(other->log, "began 1 ");
    window->touchEnded_at_time(1, {120, 120}, 3);
    EXPECT_EQ(actor->log, "began 1 cancelled 1 ");
    EXPECT_EQ(other->log, "began 1 ended 1 ");
}

TEST_F(UIWindowTouchesTest, AnIdentifierCanBeUsedAgainAfterItsEnd) {
    window->touchBegan_at_time(1, {20, 20}, 1);
    window->touchEnded_at_time(1, {20, 20}, 2);
    window->touchBegan_at_time(1, {120, 120}, 3);
    EXPECT_EQ(actor->log, "began 1 ended 1 ");
    EXPECT_EQ(other->log, "began 1 ");
}

TEST_F(UIWindowTouchesTest, UnknownFingersAreIgnored) {
    window->touchMoved_at_time(9, {20, 20}, 1);
    window->touchEnded_at_time(9, {20, 20}, 1);
    window->touchCancelled_at_time(9, 1);
    EXPECT_EQ(actor->log, "");
}

TEST_F(UIWindowTouchesTest, ATouchOutsideTheWindowBeginsNothing) {
    window->touchBegan_at_time(1, {250, 20}, 1);
    window->touchMoved_at_time(1, {20, 20}, 2);
    EXPECT_EQ(actor->log, "");
}

TEST_F(UIWindowTouchesTest, ATouchOfAViewThatIsGoneIsIgnored) {
    const WeakRef<ActorView> weak = actor;
    window->touchBegan_at_time(1, {20, 20}, 1);
    actor->removeFromSuperview();
    actor = nullptr;
    ASSERT_TRUE(weak.expired());
    window->touchMoved_at_time(1, {120, 120}, 2);
    window->touchEnded_at_time(1, {120, 120}, 3);
    EXPECT_EQ(other->log, "") << "nobody takes over";
}

TEST_F(UIWindowTouchesTest, AViewMayBeDroppedWhileItIsTouched) {
    const WeakRef<ActorView> weak = actor;
    actor->whenBegan = [this] {
        actor->removeFromSuperview();
        actor = nullptr;
    };
    window->touchBegan_at_time(1, {20, 20}, 1);
    EXPECT_TRUE(weak.expired());
    window->touchMoved_at_time(1, {120, 120}, 2);
    EXPECT_EQ(other->log, "");
}

TEST_F(UIWindowTouchesTest, ATouchGoesToWhatTheNextFrameWouldShow) {
    actor->whenLaidOut = [this] { other->setFrame(CGRectMake(20, 20, 10, 10)); };
    actor->setNeedsLayout();
    window->touchBegan_at_time(1, {25, 25}, 1);
    EXPECT_EQ(other->log, "began 1 ");
    EXPECT_EQ(actor->log, "");
}

TEST_F(UIWindowTouchesTest, ATouchMayEndAnotherTouch) {
    window->touchBegan_at_time(1, {20, 20}, 1);
    window->touchBegan_at_time(2, {120, 120}, 1);
    other->whenEnded = [this] { window->touchCancelled_at_time(1, 2); };
    window->touchEnded_at_time(2, {120, 120}, 2);
    EXPECT_EQ(actor->log, "began 1 cancelled 1 ");
    EXPECT_EQ(other->log, "began 2 ended 2 ");
}

TEST_F(UIWindowTouchesTest, TheWindowMayBeDroppedByATouchThatItCancels) {
    const WeakRef<UIWindow> weak = window;
    window->touchBegan_at_time(1, {20, 20}, 1);
    actor->whenCancelled = [this] { window = nullptr; };
    window->touchBegan_at_time(1, {120, 120}, 2);
    EXPECT_TRUE(weak.expired());
    EXPECT_EQ(actor->log, "began 1 cancelled 1 ");
}

TEST_F(UIWindowTouchesTest, TheWindowMayBeDroppedByATouchThatARemovalCancels) {
    window->touchBegan_at_time(1, {20, 20}, 1);
    window->touchBegan_at_time(2, {30, 30}, 1);
    actor->whenCancelled = [this] { window = nullptr; };
    actor->removeFromSuperview();
    EXPECT_EQ(actor->log, "began 1 began 2 cancelled 1 cancelled 2 ");
    EXPECT_EQ(actor->superview(), nullptr);
}

TEST_F(UIWindowTouchesTest, AViewMayBeDroppedByATouchThatItsRemovalCancels) {
    window->touchBegan_at_time(1, {20, 20}, 1);
    ActorView& removed = *actor;
    removed.whenCancelled = [this] {
        const Ref<ActorView> dropped = std::move(actor);
        dropped->removeFromSuperview();
    };
    removed.removeFromSuperview();
    EXPECT_EQ(actor, nullptr);
    EXPECT_EQ(window->subviews(), std::vector<Ref<UIView>>{other});
}

TEST_F(UIWindowTouchesTest, ACallbackOfCancelledTouchesMayClearTheReferenceToTheView) {
    window->touchBegan_at_time(1, {20, 20}, 1);
    window->touchBegan_at_time(2, {30, 30}, 1);
    const Ref<ActorView> touched = actor;
    Ref<UIView> forgotten = actor;
    actor->whenCancelled = [&forgotten] { forgotten = nullptr; };
    window->cancelTouchesWithin(forgotten);
    EXPECT_EQ(touched->log, "began 1 began 2 cancelled 1 cancelled 2 ");
}

TEST_F(UIWindowTouchesTest, TheWindowMayBeDroppedByALayout) {
    const WeakRef<UIWindow> weak = window;
    actor->whenLaidOut = [this] { window = nullptr; };
    actor->setNeedsLayout();
    RecordingCanvas canvas;
    window->draw(canvas);
    EXPECT_TRUE(weak.expired());
}
