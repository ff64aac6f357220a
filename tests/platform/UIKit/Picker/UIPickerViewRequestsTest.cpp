// What requests, reloads and the end of animations do to a moving wheel, and what is reported.

#include <cmath>
#include <limits>

#include "PickerGesturesTest.h"

TEST_F(UIPickerViewTwoColumns, AColumnThatAReportRequestsOnItsRowLandsWhereItWasHeading) {
    source->whenTold = [&](NSInteger, NSInteger component) {
        if (component != 0) return;
        wheel->reloadAllComponents();
        // the row that it reports while it spins
        wheel->selectRow_inComponent_animated(0, 1, false);
    };
    window.fling(right, {right.x, 8}, 10);
    window.drag(left, {left.x, 108 - 46}, 3);
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{1, 0}, {10, 1}}));
    EXPECT_EQ(wheel->selectedRowInComponent(1), 10);
}

TEST_F(UIPickerViewTwoColumns, AnyOtherRequestWinsOverTheMovement) {
    source->whenTold = [&](NSInteger, NSInteger component) {
        if (component == 0) wheel->selectRow_inComponent_animated(7, 1, false);
    };
    window.fling(right, {right.x, 8}, 10);
    window.drag(left, {left.x, 108 - 46}, 3);
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{1, 0}}));
    EXPECT_EQ(wheel->selectedRowInComponent(1), 7);
    EXPECT_DOUBLE_EQ(rowsFrom(7, 1), 0);
}

TEST_F(UIPickerViewTwoColumns, AReportMayTakeBackAGestureThatLandsInTheSameFrame) {
    source->whenTold = [&](NSInteger, NSInteger component) {
        if (component == 0) wheel->selectRow_inComponent_animated(7, 1, false);
    };
    window.scrollNotches(left, 1);
    window.scrollNotches(right, 1);
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{1, 0}}));
    EXPECT_EQ(wheel->selectedRowInComponent(1), 7);
}

TEST_F(UIPickerViewGestures, ARequestWhileAFingerDragsEndsTheDrag) {
    window.down(centre);
    window.glide(centre, {160, 8}, 10);
    wheel->selectRow_inComponent_animated(30, 0, false);
    window.glide({160, 8}, {160, -90}, 10);
    window.up({160, -90});
    window.runUntilStill();
    EXPECT_EQ(source->notices, Notices{});
    EXPECT_DOUBLE_EQ(rowsFrom(30), 0);
}

TEST_F(UIPickerViewGestures, AReloadKeepsAMovementWhoseRowStillExists) {
    window.fling({160, 108}, {160, 8}, 10); // toward row 10
    window.run(0.1);
    source->rows = {11};
    wheel->reloadAllComponents();
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{10, 0}}));
}

TEST_F(UIPickerViewGestures, AReloadThatRemovesTheRowEndsTheGestureOnTheSelectedRow) {
    window.fling({160, 108}, {160, 8}, 10); // toward row 10
    window.run(0.1);
    source->rows = {10};
    wheel->reloadAllComponents();
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{0, 0}}));
    EXPECT_DOUBLE_EQ(rowsFrom(0), 0);
}

TEST_F(UIPickerViewGestures, AReloadThatLeavesNoRowsEndsTheGestureWithoutAReport) {
    window.fling({160, 108}, {160, 8}, 10);
    window.run(0.1);
    source->rows = {0};
    wheel->reloadAllComponents();
    window.runUntilStill();
    EXPECT_EQ(source->notices, Notices{});
}

TEST_F(UIPickerViewGestures, ColumnsThatAreNotLaidOutYetLeaveTheOthersTheirGesture) {
    window.fling(centre, {160, 8}, 10);
    window.run(0.1);
    source->rows = {100, 100};
    wheel->reloadAllComponents();
    wheel->setFrame(CGRectMake(120, 0, 0, 216)); // Without room the new column is not laid out …
    EXPECT_EQ(wheel->numberOfComponents(), 2);   // … but counted.
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{10, 0}}));
}

TEST_F(UIPickerViewGestures, AnAnimatedRequestTakes300MillisecondsAndIsNotReported) {
    wheel->selectRow_inComponent_animated(20, 0, true);
    EXPECT_EQ(wheel->selectedRowInComponent(0), 20);
    window.tick(0.01); // its first frame
    window.tick(0.299);
    EXPECT_GT(std::abs(rowsFrom(20)), 0);
    window.tick(0.001);
    EXPECT_DOUBLE_EQ(rowsFrom(20), 0);
    EXPECT_EQ(source->notices, Notices{});
    EXPECT_FALSE(window.tick(1));
}

TEST_F(UIPickerViewGestures, AnAnimatedRequestOverAllRowsThereCanBeEndsExactly) {
    constexpr NSInteger largest = std::numeric_limits<NSInteger>::max();
    source->rows = {largest};
    wheel->reloadAllComponents();
    window.tick(0);
    for (const NSInteger row : {largest - 1, NSInteger{0}}) {
        wheel->selectRow_inComponent_animated(row, 0, true);
        window.runUntilStill();
        EXPECT_EQ(wheel->selectedRowInComponent(0), row);
        EXPECT_DOUBLE_EQ(rowsFrom(row), 0);
    }
}

TEST_F(UIPickerViewGestures, AnAnimatedRequestGoesOnToARowThatAReloadAdds) {
    wheel->selectRow_inComponent_animated(500, 0, true); // clamped to 99 as yet
    window.run(0.1);
    source->rows = {1000};
    wheel->reloadAllComponents();
    window.runUntilStill();
    EXPECT_EQ(wheel->selectedRowInComponent(0), 500);
    EXPECT_DOUBLE_EQ(rowsFrom(500), 0);
}

TEST_F(UIPickerViewGestures, FinishingAnimationsEndsAGestureOnItsLandingRowAndReportsIt) {
    window.fling(centre, {160, 8}, 10);
    window.run(0.1);
    wheel->finishAnimations();
    EXPECT_EQ(source->notices, (Notices{{10, 0}}));
    EXPECT_DOUBLE_EQ(rowsFrom(10), 0);
    wheel->finishAnimations();
    EXPECT_EQ(source->notices.size(), 1U) << "at rest there is nothing to report";
}

TEST_F(UIPickerViewGestures, AWheelThatLeavesItsWindowFinishesItsAnimations) {
    window.fling(centre, {160, 8}, 10);
    window.run(0.1);
    wheel->removeFromSuperview();
    EXPECT_EQ(source->notices, (Notices{{10, 0}}));
}

TEST_F(UIPickerViewGestures, ARequestUnderWayArrivesAndShowsItsRowsWhenTheWheelLeavesItsWindow) {
    wheel->selectRow_inComponent_animated(50, 0, true);
    window.run(0.1);
    wheel->removeFromSuperview();
    EXPECT_DOUBLE_EQ(rowsFrom(50), 0);
    EXPECT_FALSE(wheel->isTurning());
    EXPECT_EQ(source->notices, Notices{});
}

TEST_F(UIPickerViewGestures, AHiddenWheelFinishesItsAnimations) {
    window.fling(centre, {160, 8}, 10);
    window.run(0.1);
    wheel->setHidden(true);
    EXPECT_EQ(source->notices, (Notices{{10, 0}}));
    EXPECT_FALSE(wheel->isTurning());
    wheel->setHidden(true);
    wheel->setHidden(false);
    window.runUntilStill();
    EXPECT_EQ(source->notices.size(), 1U);
}

TEST(UIPickerViewInside, AWheelFinishesItsAnimationsWhenAViewAboveIsHidden) {
    const auto source = create<WheelSource>();
    const auto wheel = wheelWithSource(source);
    const auto card = create<UIView>(CGRectMake(0, 0, 320, 216));
    const auto page = create<UIView>(CGRectMake(0, 0, 320, 216));
    card->addSubview(wheel);
    page->addSubview(card);
    TestWindow window(page);
    window.fling(centre, {160, 8}, 10);
    window.run(0.1);
    page->setHidden(true);
    EXPECT_EQ(source->notices, (Notices{{10, 0}}));
}

TEST_F(UIPickerViewGestures, AWheelHiddenUnderAFingerReportsItsRow) {
    wheel->selectRow_inComponent_animated(50, 0, false);
    window.down(centre);
    window.glide(centre, {160, 108 - 66}, 10);
    wheel->setHidden(true);
    EXPECT_EQ(source->notices, (Notices{{52, 0}})); // 60 points are one row and a half.
    wheel->setHidden(false);
    window.move({160, 0});
    window.up({160, 0});
    window.runUntilStill();
    EXPECT_EQ(source->notices.size(), 1U) << "the finger turns nothing more";
}

TEST_F(UIPickerViewGestures, AWindowThatFinishesAnimationsFinishesThoseOfItsWheels) {
    window.fling(centre, {160, 8}, 10);
    window.run(0.1);
    window->finishAnimations();
    EXPECT_EQ(source->notices, (Notices{{10, 0}}));
    window->finishAnimations();
    EXPECT_EQ(source->notices.size(), 1U);
}

TEST_F(UIPickerViewTwoColumns, ATypedNumberIsNotLostWhenTheWheelGoes) {
    wheel->becomeFirstResponder();
    window.type("4");
    window->finishAnimations();
    EXPECT_EQ(source->notices, (Notices{{4, 0}}));
    window.type("5");
    window.run(0.5);
    wheel->setHidden(true);
    EXPECT_EQ(source->notices, (Notices{{4, 0}, {5, 0}}));
    wheel->setHidden(false);
    wheel->becomeFirstResponder();
    window.type("6");
    window.run(0.5);
    wheel->removeFromSuperview();
    EXPECT_EQ(source->notices, (Notices{{4, 0}, {5, 0}, {6, 0}}));
}

TEST_F(UIPickerViewGestures, TheReportOfAHiddenWheelMayDropItsWindow) {
    source->whenTold = [&](NSInteger, NSInteger) { wheel->removeFromSuperview(); };
    window.fling(centre, {160, 8}, 10);
    window.run(0.1);
    wheel->setHidden(true);
    EXPECT_EQ(source->notices, (Notices{{10, 0}}));
}

TEST_F(UIPickerViewGestures, TurnToRowSelectsTheRowAndReportsIt) {
    wheel->turnToRow_inComponent(33, 0);
    EXPECT_EQ(source->notices, (Notices{{33, 0}}));
    EXPECT_EQ(wheel->selectedRowInComponent(0), 33);
}

TEST_F(UIPickerViewGestures, TurnToRowIsClampedToTheRows) {
    wheel->turnToRow_inComponent(100, 0);
    wheel->turnToRow_inComponent(-1, 0);
    wheel->turnToRow_inComponent(5, 1);
    EXPECT_EQ(source->notices, (Notices{{99, 0}, {0, 0}})) << "and ignored for a component that does not exist";
    source->rows = {0};
    wheel->reloadAllComponents();
    wheel->turnToRow_inComponent(5, 0);
    EXPECT_EQ(source->notices.back(), (WheelSource::Notice{0, 0}));
}

TEST_F(UIPickerViewGestures, AReportMayDropTheWheel) {
    const WeakRef<UIPickerView> weak = wheel;
    source->whenTold = [&](NSInteger, NSInteger) {
        wheel->removeFromSuperview();
        wheel = nullptr;
    };
    window.scrollNotches(centre, 1);
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{1, 0}}));
    EXPECT_TRUE(weak.expired());
}

TEST_F(UIPickerViewGestures, ADelegateThatDiedIsNotCalled) {
    window.scrollNotches(centre, 1);
    wheel->setDelegate(create<WheelSource>()); // which dies at once
    window.runUntilStill();
    EXPECT_EQ(wheel->selectedRowInComponent(0), 1);
}

TEST_F(UIPickerViewGestures, TheHostGetsOneFeedbackForEachRowThatPassesInAGesture) {
    struct Host : UIWindowHost {
        void windowNeedsFrame() override {}
        void giveFeedback(UIFeedback) override { ++ticks; }
        int ticks = 0;
    } host;
    window->setHost(&host);
    window.fling(centre, {160, 8}, 10);
    window.runUntilStill();
    EXPECT_EQ(host.ticks, 10);
    wheel->selectRow_inComponent_animated(50, 0, true);
    window.runUntilStill();
    EXPECT_EQ(host.ticks, 10) << "none for a request";
    window->setFeedbackEnabled(false);
    window.scrollNotches(centre, 1);
    window.runUntilStill();
    EXPECT_EQ(host.ticks, 10) << "none for who wants none";
    window->setFeedbackEnabled(true);
    window.scrollNotches(centre, 1);
    window.runUntilStill();
    EXPECT_EQ(host.ticks, 11);
    window->setHost(nullptr);
}

// Times of another clock

TEST_F(UIPickerViewGestures, WildTimesAndPlacesEndOnARow) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    window.down(centre);
    for (const double y : {nan, infinity, -infinity, 1e300}) window.move({160, y});
    window->touchEnded_at_time(1, {nan, nan}, nan);
    window->touchBegan_at_time(2, centre, infinity);
    window->touchMoved_at_time(2, {160, 0}, -infinity);
    window->touchEnded_at_time(2, {160, 0}, nan);
    window->touchMoved_at_time(99, centre, 0);
    window.scrollNotches(centre, nan);
    window.scrollPoints(centre, infinity);
    window->tick(nan);
    window->tick(-5);
    window.runUntilStill(); // Movements that began at no time end as well.
    const NSInteger row = wheel->selectedRowInComponent(0);
    EXPECT_GE(row, 0);
    EXPECT_LT(row, 100);
    EXPECT_DOUBLE_EQ(rowsFrom(row), 0);
}

TEST_F(UIPickerViewGestures, AFlingTimedByAnotherClockRunsFromTheNextFrameOn) {
    for (int i = 0; i <= 5; ++i) {
        const CGPoint place = {160, 108.0 - 20 * i};
        const double time = 1e9 + i / 64.0;
        if (i == 0) window->touchBegan_at_time(1, place, time);
        if (i > 0) window->touchMoved_at_time(1, place, time);
        if (i == 5) window->touchEnded_at_time(1, place, time);
    }
    // 1280 points a second are 32 rows, which run 32 / 2.002002 = 15.98 from 94 / 40 = 2.35 on: to
    // row 18.
    window.tick(TestWindow::frame);
    EXPECT_NEAR(rowsFrom(2), 0.35, 1e-9);
    window.run(0.1);
    EXPECT_GT(wheel->rowInSelectionIndicatorOfComponent(0), 3);
    EXPECT_LT(wheel->rowInSelectionIndicatorOfComponent(0), 8);
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{18, 0}}));
}
