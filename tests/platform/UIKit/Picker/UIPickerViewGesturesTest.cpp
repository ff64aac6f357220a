// Gestures through the window, as fingers, mice and trackpads make them, and what is reported.

#include <cmath>
#include <limits>

#include "PickerGesturesTest.h"

TEST_F(UIPickerViewGestures, ADragMovesByItsWayAndReportsOnceAtRest) {
    wheel->selectRow_inComponent_animated(50, 0, false);
    window.drag(centre, {160, 108 - 40 * 2 - 6}); // two rows and the slop
    EXPECT_EQ(source->notices, Notices{}) << "not before it rests";
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{52, 0}}));
    EXPECT_EQ(wheel->selectedRowInComponent(0), 52);
    EXPECT_DOUBLE_EQ(rowsFrom(52), 0);
}

TEST_F(UIPickerViewGestures, AMovingColumnReturnsTheRowItWasLastOn) {
    wheel->selectRow_inComponent_animated(50, 0, false);
    window.down(centre);
    window.glide(centre, {160, 108 - 200}, 20);
    window.tick(0.01);
    EXPECT_EQ(wheel->selectedRowInComponent(0), 50);
    EXPECT_NEAR(rowsFrom(55), -6.0 / 40, 1e-9);
}

TEST_F(UIPickerViewGestures, ADragThatComesBackReportsTheRowItLeft) {
    wheel->selectRow_inComponent_animated(50, 0, false);
    window.down(centre);
    window.glide(centre, {160, 20}, 10);
    window.glide({160, 20}, centre, 10);
    window.run(0.2);
    window.up(centre);
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{50, 0}}));
}

TEST_F(UIPickerViewGestures, AMovementWithinTheSlopMovesNothing) {
    wheel->selectRow_inComponent_animated(50, 0, false);
    window.drag(centre, {160, 108 - 6});
    window.runUntilStill();
    EXPECT_EQ(source->notices, Notices{});
    EXPECT_DOUBLE_EQ(rowsFrom(50), 0);
}

TEST_F(UIPickerViewGestures, AMovementOnePointBeyondTheSlopIsReported) {
    wheel->selectRow_inComponent_animated(50, 0, false);
    window.drag(centre, {160, 108 - 7});
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{50, 0}}));
}

TEST_F(UIPickerViewGestures, AFlingLandsWhereItsSpeedCarriesIt) {
    wheel->selectRow_inComponent_animated(50, 0, false);
    // 10 points in each sixtieth of a second: 600 points a second, which run 600 / (1000 ·
    // ln(1/0.998)) = 299.70 points. The finger itself moves the column by 100 − 6 points, so it
    // comes to rest (94 + 299.70) / 40 = 9.84, that is 10 rows on.
    window.fling(centre, {160, 8}, 10);
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{60, 0}}));
    EXPECT_DOUBLE_EQ(rowsFrom(60), 0);
}

TEST_F(UIPickerViewGestures, AFlingBeyondTheEndLandsOnTheEnd) {
    wheel->selectRow_inComponent_animated(97, 0, false);
    window.fling(centre, {160, -92}, 10);
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{99, 0}}));
    EXPECT_DOUBLE_EQ(rowsFrom(99), 0);
}

TEST_F(UIPickerViewGestures, AFingerThatRestsBeforeItLetsGoHasNoSpeed) {
    wheel->selectRow_inComponent_animated(50, 0, false);
    window.drag(centre, {160, 8}, 5);
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{52, 0}})); // 94 points are 2.35 rows.
}

TEST_F(UIPickerViewGestures, BeyondTheFirstRowTheColumnFollowsTheFingerLessAndLess) {
    window.down(centre);
    window.glide(centre, {160, 108 + 106}, 20);
    window.tick(0.01);
    // 100 points beyond the end of a wheel 216 high: (1 − 1 / (0.55 · 100 / 216 + 1)) · 216 =
    // 43.84.
    EXPECT_NEAR(rowsFrom(0) * 40, -43.837638376383794, 1e-9);
    window.run(0.2);
    window.up({160, 108 + 106});
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{0, 0}}));
    EXPECT_DOUBLE_EQ(rowsFrom(0), 0);
}

TEST_F(UIPickerViewGestures, ATapOnARowMovesToItIn300Milliseconds) {
    wheel->selectRow_inComponent_animated(50, 0, false);
    window.tap({160, 108 + 40});
    window.tick(0.29);
    EXPECT_EQ(source->notices, Notices{});
    window.tick(0.011);
    EXPECT_EQ(source->notices, (Notices{{51, 0}}));
}

TEST_F(UIPickerViewGestures, ATapOnTheCentreRowIsNotReported) {
    wheel->selectRow_inComponent_animated(50, 0, false);
    window.tap({160, 108 + 19});
    window.runUntilStill();
    EXPECT_EQ(source->notices, Notices{});
}

TEST_F(UIPickerViewGestures, ATapBeforeTheFirstRowMovesNothing) {
    window.tap({160, 108 - 60});
    window.runUntilStill();
    EXPECT_EQ(source->notices, Notices{});
    EXPECT_EQ(wheel->selectedRowInComponent(0), 0);
}

TEST_F(UIPickerViewGestures, ATouchStopsAFlingAndTheColumnSnapsThere) {
    wheel->selectRow_inComponent_animated(50, 0, false);
    window.fling(centre, {160, 8}, 10);
    window.run(0.25);
    const NSInteger near = wheel->rowInSelectionIndicatorOfComponent(0);
    EXPECT_GT(near, 52);
    EXPECT_LT(near, 60);
    window.down(centre);
    window.run(0.5);
    EXPECT_EQ(wheel->rowInSelectionIndicatorOfComponent(0), near) << "it stands under the finger";
    EXPECT_EQ(source->notices, Notices{});
    window.up(centre);
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{near, 0}}));
}

TEST_F(UIPickerViewGestures, ACancelledTouchSnapsToTheNearestRow) {
    wheel->selectRow_inComponent_animated(50, 0, false);
    window.down(centre);
    window.glide(centre, {160, 108 - 66}, 10);
    window->touchCancelled_at_time(1, window.now);
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{52, 0}})); // 60 points are one row and a half.
}

TEST_F(UIPickerViewGestures, ACancelledTouchThatMovedNothingIsNotReported) {
    window.down(centre);
    window->touchCancelled_at_time(1, window.now);
    window.runUntilStill();
    EXPECT_EQ(source->notices, Notices{});
}

TEST_F(UIPickerViewGestures, AFingerOnAColumnAtRestIsNotReported) {
    window.down(centre);
    window.run(2);
    window.up(centre);
    window.runUntilStill();
    EXPECT_EQ(source->notices, Notices{});
}

TEST_F(UIPickerViewGestures, ASecondFingerOnTheSameColumnIsIgnored) {
    wheel->selectRow_inComponent_animated(50, 0, false);
    window.down(centre, 1);
    window.down(centre, 2);
    window.glide(centre, {160, 8}, 10, 2);
    window.up({160, 8}, 2);
    window.up(centre, 1);
    window.runUntilStill();
    EXPECT_EQ(source->notices, Notices{});
}

TEST_F(UIPickerViewTwoColumns, TwoFingersSpinTwoColumnsWhichReportInAscendingOrder) {
    window.down(right, 1);
    window.down(left, 2);
    for (int i = 1; i <= 10; ++i) {
        window.tick(TestWindow::frame);
        window.move({right.x, right.y - 10.6 * i}, 1);
        window.move({left.x, left.y - 20.6 * i}, 2);
    }
    window.run(0.2);
    window.up({right.x, right.y - 106}, 1);
    window.up({left.x, left.y - 206}, 2);
    window.runUntilStill();
    // 200 and 100 points, and half rows go on
    EXPECT_EQ(source->notices, (Notices{{5, 0}, {3, 1}}));
}

TEST_F(UIPickerViewTwoColumns, AColumnTakesOnlyTouchesInItsOwnStrip) {
    // The strips run from 77.5 to 157.5 and from 162.5 to 242.5.
    for (const double x : {77.0, 157.6, 162.4, 242.6}) window.drag({x, 108}, {x, 20});
    window.runUntilStill();
    EXPECT_EQ(source->notices, Notices{});
    window.drag({77.5, 108}, {77.5, 62});
    window.drag({242.4, 108}, {242.4, 62});
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{1, 0}, {1, 1}}));
}

TEST_F(UIPickerViewTwoColumns, AFingerStaysWithItsColumnWhereverItGoes) {
    window.down(left);
    window.glide(left, {right.x, 22}, 10);
    window.run(0.2);
    window.up({right.x, 22});
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{2, 0}}));
}

TEST_F(UIPickerViewGestures, OneNotchIsOneRow) {
    EXPECT_TRUE(window.scrollNotches(centre, 1));
    EXPECT_EQ(source->notices, Notices{});
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{1, 0}}));
    EXPECT_TRUE(window.scrollNotches(centre, -1));
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{1, 0}, {0, 0}}));
}

TEST_F(UIPickerViewGestures, NoNotchIsLostWhileTheColumnIsStillOnItsWay) {
    for (int i = 0; i < 7; ++i) {
        window.scrollNotches(centre, 1);
        window.tick(0.02);
    }
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{7, 0}})); // one report, when it rests
}

TEST_F(UIPickerViewGestures, PartsOfANotchAddUp) {
    for (int i = 0; i < 7; ++i) window.scrollNotches(centre, 0.25);
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{1, 0}}));
    window.scrollNotches(centre, 0.25);
    window.runUntilStill();
    EXPECT_EQ(source->notices.back(), (WheelSource::Notice{2, 0}));
}

TEST_F(UIPickerViewGestures, ANotchBeyondTheEndMovesNothing) {
    EXPECT_TRUE(window.scrollNotches(centre, -1));
    window.runUntilStill();
    EXPECT_EQ(source->notices, Notices{});
}

TEST_F(UIPickerViewGestures, AColumnAtItsEndPassesNoNotchUp) {
    EXPECT_TRUE(window.scrollNotches(centre, -1));
    source->rows = {2};
    wheel->reloadAllComponents();
    EXPECT_TRUE(window.scrollNotches(centre, -1));
    source->rows = {1};
    wheel->reloadAllComponents();
    EXPECT_FALSE(window.scrollNotches(centre, -1)) << "one row is nothing to turn";
    EXPECT_FALSE(window.scrollPoints(centre, 10));
    window.runUntilStill();
    EXPECT_EQ(source->notices, Notices{});
}

TEST_F(UIPickerViewGestures, SidewaysScrollingIsPassedUp) {
    const auto scrollBy = [this](CGFloat x, CGFloat y) {
        return window->scroll({UIScroll::Unit::Notches, x, y, window.now, centre, false});
    };
    EXPECT_FALSE(scrollBy(1, 0));
    EXPECT_FALSE(scrollBy(-2, 1));
    window.runUntilStill();
    EXPECT_EQ(source->notices, Notices{});
    EXPECT_TRUE(scrollBy(1, 1));
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{1, 0}}));
}

TEST_F(UIPickerViewGestures, ATrackpadsPointsAddUpAndSnapAfterAPause) {
    for (int i = 0; i < 30; ++i) {
        window.scrollPoints(centre, 3);
        window.tick(TestWindow::frame);
    }
    EXPECT_NEAR(rowsFrom(2), 0.25, 1e-9); // 90 points
    EXPECT_EQ(source->notices, Notices{});
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{2, 0}}));
    EXPECT_DOUBLE_EQ(rowsFrom(2), 0);
}

TEST_F(UIPickerViewGestures, ScrollingBesideTheColumnsIsPassedUp) { EXPECT_FALSE(window.scrollNotches({20, 108}, 1)); }

TEST_F(UIPickerViewGestures, AColumnThatShowsNothingCannotBeSpun) {
    source->title = [](NSInteger, NSInteger) { return std::nullopt; };
    wheel->reloadAllComponents();
    window.tick(0);
    window.drag(centre, {160, 20});
    EXPECT_FALSE(window.scrollNotches(centre, 1));
    window.runUntilStill();
    EXPECT_EQ(source->notices, Notices{});
    EXPECT_EQ(wheel->selectedRowInComponent(0), 0);
}

TEST_F(UIPickerViewGestures, ATouchThatMovedNothingLeavesTheColumnOnTheSelectedRow) {
    wheel->selectRow_inComponent_animated(500, 0, false); // clamped to 99 as yet
    window.down(centre);
    source->rows = {1000};
    wheel->reloadAllComponents();
    window.tick(0.01);
    window.up(centre);
    window.runUntilStill();
    EXPECT_EQ(wheel->selectedRowInComponent(0), 500);
    EXPECT_DOUBLE_EQ(rowsFrom(500), 0);
    EXPECT_EQ(source->notices, Notices{});
}

TEST_F(UIPickerViewGestures, ReturnsWhetherItTookTheFinger) {
    EXPECT_TRUE(window.down(centre));
    EXPECT_FALSE(window.down({160, 120}, 2)) << "one finger turns a column";
    EXPECT_FALSE(window.down({5, 108}, 3)) << "beside the columns";
    source->rows = {0};
    wheel->reloadAllComponents();
    EXPECT_FALSE(window.down(centre, 4)) << "without rows nothing turns";
}

TEST(UIPickerView, PassesUpACancelledTouchThatMovesNoColumn) {
    class Noting : public UIView {
    public:
        int cancelled = 0;
        bool touchBegan(const UITouch&) override { return true; }
        void touchCancelled(const UITouch&) override { ++cancelled; }
    };
    const auto source = create<WheelSource>();
    const auto parent = create<Noting>(CGRectMake(0, 0, 320, 216));
    parent->addSubview(wheelWithSource(source));
    TestWindow window(parent);
    window.down({20, 108}); // Beside the column.
    window->touchCancelled_at_time(1, window.now);
    EXPECT_EQ(parent->cancelled, 1);
    window.down(centre);
    window->touchCancelled_at_time(1, window.now);
    EXPECT_EQ(parent->cancelled, 1) << "the column's own";
}

TEST_F(UIPickerViewGestures, ATrackpadThatGoesOnBeyondAnEndPullsNothing) {
    wheel->selectRow_inComponent_animated(1, 0, false);
    for (int i = 0; i < 30; ++i) {
        window.scrollPoints(centre, -100);
        window.tick(TestWindow::frame);
    }
    EXPECT_DOUBLE_EQ(rowsFrom(0), 0);
    window.scrollPoints(centre, 40);
    EXPECT_TRUE(window.scrollPoints(centre, 0, true));
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{1, 0}})) << "and the way back begins at the end";
}

TEST_F(UIPickerViewGestures, ATrackpadTakesASpringingColumnFromWhereItIs) {
    window.down(centre);
    // 100 points beyond: 216 · (1 − 1 / (0.55 · 100 / 216 + 1)) = 43.8376
    window.glide(centre, {160, 214}, 10);
    window.tick(0);
    EXPECT_NEAR(rowsFrom(0), -43.8376 / 40, 1e-4);
    window.up({160, 214});
    window.scrollPoints(centre, 30); // 70 points: 216 · (1 − 1 / (0.55 · 70 / 216 + 1)) = 32.6758
    window.scrollPoints(centre, -50);
    window.tick(TestWindow::frame);
    EXPECT_NEAR(rowsFrom(0), -32.6758 / 40, 1e-4) << "no further out";
    window.scrollPoints(centre, 70);
    window.tick(TestWindow::frame);
    EXPECT_NEAR(rowsFrom(0), 0, 1e-9);
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{0, 0}}));
}

TEST_F(UIPickerViewGestures, ATrackpadBeyondTheEndMovesNothing) {
    EXPECT_TRUE(window.scrollPoints(centre, -50));
    EXPECT_FALSE(wheel->isTurning());
    EXPECT_TRUE(window.scrollPoints(centre, 0, true));
    window.runUntilStill();
    EXPECT_EQ(source->notices, Notices{});
}
