// Turns through the window, as fingers and mice make them, and what the delegate hears of them.

#include <cmath>
#include <limits>

#include "TestWindow.h"
#include "WheelSource.h"

using namespace gx;
using Notices = std::vector<WheelSource::Notice>;

namespace {

// The wheel is 320 by 216 points with rows of 40: one column of 80 lies from 120 to 200, its centre row around y = 108.
constexpr CGPoint centre = {160, 108};

struct Turning : testing::Test {
    Ref<WheelSource> source = create<WheelSource>();
    Ref<UIPickerView> wheel = wheelWithSource(source);
    TestWindow window{wheel};

    /// Where the row in the band is drawn, in rows from `row`: 0 when it sits exactly there.
    double rowsFrom(NSInteger row, NSInteger component = 0) {
        const Ref<UIView> view = wheel->viewForRow_forComponent(row, component);
        EXPECT_TRUE(view) << "row " << row << " is not in sight";
        if (!view) return 1e9;
        return (108 - CGRectGetMidY(wheel->convertRect_fromView(view->bounds(), view))) / 40;
    }
};

struct TurningTwo : Turning {
    TurningTwo() {
        source->rows = {100, 100};
        wheel->reloadAllComponents();
        window.tick(0);
    }
    // Two columns of 80, 5 apart, around x = 160.
    CGPoint left = {117, 108};
    CGPoint right = {202, 108};
};

} // namespace

TEST_F(Turning, ADragTurnsByItsWayAndReportsOnceAtRest) {
    wheel->selectRow_inComponent_animated(50, 0, false);
    window.drag(centre, {160, 108 - 40 * 2 - 6}); // two rows and the slop
    EXPECT_EQ(source->notices, Notices{}) << "not before it rests";
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{52, 0}}));
    EXPECT_EQ(wheel->selectedRowInComponent(0), 52);
    EXPECT_DOUBLE_EQ(rowsFrom(52), 0);
}

TEST_F(Turning, AMovingColumnReportsTheRowItLastStoodOn) {
    wheel->selectRow_inComponent_animated(50, 0, false);
    window.down(centre);
    window.glide(centre, {160, 108 - 200}, 20);
    window.tick(0.01);
    EXPECT_EQ(wheel->selectedRowInComponent(0), 50);
    EXPECT_NEAR(rowsFrom(55), -6.0 / 40, 1e-9);
}

TEST_F(Turning, ADragThatComesBackReportsTheRowItLeft) {
    wheel->selectRow_inComponent_animated(50, 0, false);
    window.down(centre);
    window.glide(centre, {160, 20}, 10);
    window.glide({160, 20}, centre, 10);
    window.run(0.2);
    window.up(centre);
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{50, 0}}));
}

TEST_F(Turning, AMovementWithinTheSlopTurnsNothing) {
    wheel->selectRow_inComponent_animated(50, 0, false);
    window.drag(centre, {160, 108 - 6});
    window.runUntilStill();
    EXPECT_EQ(source->notices, Notices{});
    EXPECT_DOUBLE_EQ(rowsFrom(50), 0);
}

TEST_F(Turning, AMovementOnePointBeyondTheSlopIsATurn) {
    wheel->selectRow_inComponent_animated(50, 0, false);
    window.drag(centre, {160, 108 - 7});
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{50, 0}}));
}

TEST_F(Turning, AFlingLandsWhereItsSpeedCarriesIt) {
    wheel->selectRow_inComponent_animated(50, 0, false);
    // 10 points in each sixtieth of a second: 600 points a second, which run 600 / (1000 · ln(1/0.998)) = 299.70 points. The
    // finger itself moves the column by 100 − 6 points, so it comes to rest (94 + 299.70) / 40 = 9.84, that is 10 rows on.
    window.fling(centre, {160, 8}, 10);
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{60, 0}}));
    EXPECT_DOUBLE_EQ(rowsFrom(60), 0);
}

TEST_F(Turning, AFlingBeyondTheEndLandsOnTheEnd) {
    wheel->selectRow_inComponent_animated(97, 0, false);
    window.fling(centre, {160, -92}, 10);
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{99, 0}}));
    EXPECT_DOUBLE_EQ(rowsFrom(99), 0);
}

TEST_F(Turning, AFingerThatRestsBeforeItLetsGoHasNoSpeed) {
    wheel->selectRow_inComponent_animated(50, 0, false);
    window.drag(centre, {160, 8}, 5);
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{52, 0}})); // 94 points are 2.35 rows.
}

TEST_F(Turning, BeyondTheFirstRowTheColumnFollowsTheFingerLessAndLess) {
    window.down(centre);
    window.glide(centre, {160, 108 + 106}, 20);
    window.tick(0.01);
    // 100 points beyond the end of a wheel 216 high: (1 − 1 / (0.55 · 100 / 216 + 1)) · 216 = 43.84.
    EXPECT_NEAR(rowsFrom(0) * 40, -43.837638376383794, 1e-9);
    window.run(0.2);
    window.up({160, 108 + 106});
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{0, 0}}));
    EXPECT_DOUBLE_EQ(rowsFrom(0), 0);
}

TEST_F(Turning, ATapOnARowTurnsToItIn300Milliseconds) {
    wheel->selectRow_inComponent_animated(50, 0, false);
    window.tap({160, 108 + 40});
    window.tick(0.29);
    EXPECT_EQ(source->notices, Notices{});
    window.tick(0.011);
    EXPECT_EQ(source->notices, (Notices{{51, 0}}));
}

TEST_F(Turning, ATapOnTheCentreRowTellsNobody) {
    wheel->selectRow_inComponent_animated(50, 0, false);
    window.tap({160, 108 + 19});
    window.runUntilStill();
    EXPECT_EQ(source->notices, Notices{});
}

TEST_F(Turning, ATapBeforeTheFirstRowTurnsNothing) {
    window.tap({160, 108 - 60});
    window.runUntilStill();
    EXPECT_EQ(source->notices, Notices{});
    EXPECT_EQ(wheel->selectedRowInComponent(0), 0);
}

TEST_F(Turning, ATouchStopsAFlingAndTheColumnSitsDownThere) {
    wheel->selectRow_inComponent_animated(50, 0, false);
    window.fling(centre, {160, 8}, 10);
    window.run(0.25);
    const NSInteger near = wheel->rowInBandOfComponent(0);
    EXPECT_GT(near, 52);
    EXPECT_LT(near, 60);
    window.down(centre);
    window.run(0.5);
    EXPECT_EQ(wheel->rowInBandOfComponent(0), near) << "it stands under the finger";
    EXPECT_EQ(source->notices, Notices{});
    window.up(centre);
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{near, 0}}));
}

TEST_F(Turning, ACancelledTouchSettlesWhereTheWheelStands) {
    wheel->selectRow_inComponent_animated(50, 0, false);
    window.down(centre);
    window.glide(centre, {160, 108 - 66}, 10);
    window->touchCancelled_at_time(1, window.now);
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{52, 0}})); // 60 points are one row and a half.
}

TEST_F(Turning, ACancelledTouchThatTurnedNothingTellsNobody) {
    window.down(centre);
    window->touchCancelled_at_time(1, window.now);
    window.runUntilStill();
    EXPECT_EQ(source->notices, Notices{});
}

TEST_F(Turning, AFingerOnAColumnAtRestTellsNobody) {
    window.down(centre);
    window.run(2);
    window.up(centre);
    window.runUntilStill();
    EXPECT_EQ(source->notices, Notices{});
}

TEST_F(Turning, ASecondFingerOnTheSameColumnIsIgnored) {
    wheel->selectRow_inComponent_animated(50, 0, false);
    window.down(centre, 1);
    window.down(centre, 2);
    window.glide(centre, {160, 8}, 10, 2);
    window.up({160, 8}, 2);
    window.up(centre, 1);
    window.runUntilStill();
    EXPECT_EQ(source->notices, Notices{});
}

TEST_F(TurningTwo, TwoFingersTurnTwoColumnsWhichReportInAscendingOrder) {
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
    EXPECT_EQ(source->notices, (Notices{{5, 0}, {3, 1}})); // 200 and 100 points, and half rows go on
}

TEST_F(TurningTwo, AColumnTakesOnlyTouchesInItsOwnStrip) {
    // The strips run from 77.5 to 157.5 and from 162.5 to 242.5.
    for (const double x : {77.0, 157.6, 162.4, 242.6}) window.drag({x, 108}, {x, 20});
    window.runUntilStill();
    EXPECT_EQ(source->notices, Notices{});
    window.drag({77.5, 108}, {77.5, 62});
    window.drag({242.4, 108}, {242.4, 62});
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{1, 0}, {1, 1}}));
}

TEST_F(TurningTwo, AFingerStaysWithItsColumnWhereverItGoes) {
    window.down(left);
    window.glide(left, {right.x, 22}, 10);
    window.run(0.2);
    window.up({right.x, 22});
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{2, 0}}));
}

TEST_F(TurningTwo, AColumnThatAReportRequestsOnItsRowLandsWhereItWasHeading) {
    source->whenTold = [&](NSInteger, NSInteger component) {
        if (component != 0) return;
        wheel->reloadAllComponents();
        wheel->selectRow_inComponent_animated(0, 1, false); // the row that it reports while it spins
    };
    window.fling(right, {right.x, 8}, 10);
    window.drag(left, {left.x, 108 - 46}, 3);
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{1, 0}, {10, 1}}));
    EXPECT_EQ(wheel->selectedRowInComponent(1), 10);
}

TEST_F(TurningTwo, AnyOtherRequestWinsOverTheMovement) {
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

TEST_F(TurningTwo, AReportMayTakeBackATurnThatLandsInTheSamePass) {
    source->whenTold = [&](NSInteger, NSInteger component) {
        if (component == 0) wheel->selectRow_inComponent_animated(7, 1, false);
    };
    window.scrollNotches(left, 1);
    window.scrollNotches(right, 1);
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{1, 0}}));
    EXPECT_EQ(wheel->selectedRowInComponent(1), 7);
}

TEST_F(Turning, ARequestWhileAFingerDragsEndsTheDrag) {
    window.down(centre);
    window.glide(centre, {160, 8}, 10);
    wheel->selectRow_inComponent_animated(30, 0, false);
    window.glide({160, 8}, {160, -90}, 10);
    window.up({160, -90});
    window.runUntilStill();
    EXPECT_EQ(source->notices, Notices{});
    EXPECT_DOUBLE_EQ(rowsFrom(30), 0);
}

TEST_F(Turning, AReloadKeepsAMovementWhoseRowStillExists) {
    window.fling({160, 108}, {160, 8}, 10); // toward row 10
    window.run(0.1);
    source->rows = {11};
    wheel->reloadAllComponents();
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{10, 0}}));
}

TEST_F(Turning, AReloadThatTakesTheRowAwayEndsTheTurnOnTheRowItReports) {
    window.fling({160, 108}, {160, 8}, 10); // toward row 10
    window.run(0.1);
    source->rows = {10};
    wheel->reloadAllComponents();
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{0, 0}}));
    EXPECT_DOUBLE_EQ(rowsFrom(0), 0);
}

TEST_F(Turning, AReloadThatLeavesNoRowsEndsTheTurnSilently) {
    window.fling({160, 108}, {160, 8}, 10);
    window.run(0.1);
    source->rows = {0};
    wheel->reloadAllComponents();
    window.runUntilStill();
    EXPECT_EQ(source->notices, Notices{});
}

TEST_F(Turning, ColumnsThatAreNotLaidOutYetLeaveTheOthersTheirTurn) {
    window.fling(centre, {160, 8}, 10);
    window.run(0.1);
    source->rows = {100, 100};
    wheel->reloadAllComponents();
    wheel->setFrame(CGRectMake(120, 0, 0, 216)); // Without room the new column is not laid out …
    EXPECT_EQ(wheel->numberOfComponents(), 2);   // … but counted.
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{10, 0}}));
}

TEST_F(Turning, OneNotchIsOneRow) {
    EXPECT_TRUE(window.scrollNotches(centre, 1));
    EXPECT_EQ(source->notices, Notices{});
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{1, 0}}));
    EXPECT_TRUE(window.scrollNotches(centre, -1));
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{1, 0}, {0, 0}}));
}

TEST_F(Turning, NoNotchIsLostWhileTheColumnIsStillOnItsWay) {
    for (int i = 0; i < 7; ++i) {
        window.scrollNotches(centre, 1);
        window.tick(0.02);
    }
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{7, 0}})); // one report, when it rests
}

TEST_F(Turning, PartsOfANotchAddUp) {
    for (int i = 0; i < 7; ++i) window.scrollNotches(centre, 0.25);
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{1, 0}}));
    window.scrollNotches(centre, 0.25);
    window.runUntilStill();
    EXPECT_EQ(source->notices.back(), (WheelSource::Notice{2, 0}));
}

TEST_F(Turning, ANotchBeyondTheEndTurnsNothing) {
    EXPECT_TRUE(window.scrollNotches(centre, -1));
    window.runUntilStill();
    EXPECT_EQ(source->notices, Notices{});
}

TEST_F(Turning, AColumnAtItsEndKeepsTheNotchFromWhatLiesAround) {
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

TEST_F(Turning, WhatGoesSidewaysIsLeftToOthers) {
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

TEST_F(Turning, ATrackpadsPointsAddUpAndSnapWhenItFallsSilent) {
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

TEST_F(Turning, ScrollingBesideTheColumnsIsLeftToOthers) { EXPECT_FALSE(window.scrollNotches({20, 108}, 1)); }

TEST_F(Turning, AColumnThatShowsNothingIsTurnedByNobody) {
    source->title = [](NSInteger, NSInteger) { return std::nullopt; };
    wheel->reloadAllComponents();
    window.tick(0);
    window.drag(centre, {160, 20});
    EXPECT_FALSE(window.scrollNotches(centre, 1));
    window.runUntilStill();
    EXPECT_EQ(source->notices, Notices{});
    EXPECT_EQ(wheel->selectedRowInComponent(0), 0);
}

TEST_F(Turning, AnAnimatedRequestTakes300MillisecondsAndTellsNobody) {
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

TEST_F(Turning, AnAnimatedRequestOverAllRowsThereCanBeEndsExactly) {
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

TEST_F(Turning, AnAnimatedRequestThatMoreRowsMakePossibleGoesOnToItsRow) {
    wheel->selectRow_inComponent_animated(500, 0, true); // held to 99 as yet
    window.run(0.1);
    source->rows = {1000};
    wheel->reloadAllComponents();
    window.runUntilStill();
    EXPECT_EQ(wheel->selectedRowInComponent(0), 500);
    EXPECT_DOUBLE_EQ(rowsFrom(500), 0);
}

TEST_F(Turning, ATouchThatTurnedNothingLeavesTheColumnOnTheRowItReportsThen) {
    wheel->selectRow_inComponent_animated(500, 0, false); // held to 99 as yet
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

TEST_F(Turning, SettlingEndsATurnAtOnceOnItsLandingRowAndReportsIt) {
    window.fling(centre, {160, 8}, 10);
    window.run(0.1);
    wheel->finishAnimations();
    EXPECT_EQ(source->notices, (Notices{{10, 0}}));
    EXPECT_DOUBLE_EQ(rowsFrom(10), 0);
    wheel->finishAnimations();
    EXPECT_EQ(source->notices.size(), 1U) << "at rest there is nothing to report";
}

TEST_F(Turning, AWheelThatLeavesItsWindowSettles) {
    window.fling(centre, {160, 8}, 10);
    window.run(0.1);
    wheel->removeFromSuperview();
    EXPECT_EQ(source->notices, (Notices{{10, 0}}));
}

TEST_F(Turning, ARequestUnderWayArrivesAndShowsItsRowsWhenTheWheelLeavesItsWindow) {
    wheel->selectRow_inComponent_animated(50, 0, true);
    window.run(0.1);
    wheel->removeFromSuperview();
    EXPECT_DOUBLE_EQ(rowsFrom(50), 0);
    EXPECT_FALSE(wheel->isTurning());
    EXPECT_EQ(source->notices, Notices{});
}

TEST_F(Turning, AHiddenWheelSettles) {
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

TEST(TurningInside, AWheelSettlesWhenAViewAboveItIsHidden) {
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

TEST_F(Turning, AWheelHiddenUnderAFingerReportsWhereItStands) {
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

TEST_F(Turning, AWindowThatSettlesSettlesItsWheels) {
    window.fling(centre, {160, 8}, 10);
    window.run(0.1);
    window->finishAnimations();
    EXPECT_EQ(source->notices, (Notices{{10, 0}}));
    window->finishAnimations();
    EXPECT_EQ(source->notices.size(), 1U);
}

TEST_F(TurningTwo, ATypedNumberIsNotLostWhenTheWheelGoes) {
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

TEST_F(Turning, TheReportOfAHiddenWheelMayTakeItsWindowAway) {
    source->whenTold = [&](NSInteger, NSInteger) { wheel->removeFromSuperview(); };
    window.fling(centre, {160, 8}, 10);
    window.run(0.1);
    wheel->setHidden(true);
    EXPECT_EQ(source->notices, (Notices{{10, 0}}));
}

TEST_F(Turning, ATurnByCodeStandsOnTheRowAndReportsIt) {
    wheel->turnToRow_inComponent(33, 0);
    EXPECT_EQ(source->notices, (Notices{{33, 0}}));
    EXPECT_EQ(wheel->selectedRowInComponent(0), 33);
}

TEST_F(Turning, ATurnByCodeIsHeldToTheRowsThereAre) {
    wheel->turnToRow_inComponent(100, 0);
    wheel->turnToRow_inComponent(-1, 0);
    wheel->turnToRow_inComponent(5, 1);
    EXPECT_EQ(source->notices, (Notices{{99, 0}, {0, 0}})) << "and ignored for a component that does not exist";
    source->rows = {0};
    wheel->reloadAllComponents();
    wheel->turnToRow_inComponent(5, 0);
    EXPECT_EQ(source->notices.back(), (WheelSource::Notice{0, 0}));
}

TEST_F(Turning, TheDelegateMayDropTheWheelWhileItIsTold) {
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

TEST_F(Turning, ADelegateThatDiedHearsNothing) {
    window.scrollNotches(centre, 1);
    wheel->setDelegate(create<WheelSource>()); // which dies at once
    window.runUntilStill();
    EXPECT_EQ(wheel->selectedRowInComponent(0), 1);
}

TEST_F(Turning, TheHostHearsOneTickForEachRowThatPassesInATurnByTheUser) {
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

TEST_F(Turning, ReturnsWhetherItTookTheFinger) {
    EXPECT_TRUE(window.down(centre));
    EXPECT_FALSE(window.down({160, 120}, 2)) << "one finger turns a column";
    EXPECT_FALSE(window.down({5, 108}, 3)) << "beside the columns";
    source->rows = {0};
    wheel->reloadAllComponents();
    EXPECT_FALSE(window.down(centre, 4)) << "without rows nothing turns";
}

TEST_F(Turning, WildTimesAndPlacesEndOnARow) {
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

TEST(UIPickerView, hands_up_a_cancelled_touch_that_turns_no_column) {
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

TEST_F(Turning, ATrackpadThatGlidesOnBeyondAnEndPullsNothingOutOfSight) {
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

TEST_F(Turning, ATrackpadTakesAColumnThatSwingsBackFromWhereItStands) {
    window.down(centre);
    window.glide(centre, {160, 214}, 10); // 100 points beyond: 216 · (1 − 1 / (0.55 · 100 / 216 + 1)) = 43.8376
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

TEST_F(Turning, ATrackpadBeyondTheEndTurnsNothing) {
    EXPECT_TRUE(window.scrollPoints(centre, -50));
    EXPECT_FALSE(wheel->isTurning());
    EXPECT_TRUE(window.scrollPoints(centre, 0, true));
    window.runUntilStill();
    EXPECT_EQ(source->notices, Notices{});
}

TEST_F(Turning, AFlingToldByAnotherClockRunsFromTheNextFrameOn) {
    for (int i = 0; i <= 5; ++i) {
        const CGPoint place = {160, 108.0 - 20 * i};
        const double time = 1e9 + i / 64.0;
        if (i == 0) window->touchBegan_at_time(1, place, time);
        if (i > 0) window->touchMoved_at_time(1, place, time);
        if (i == 5) window->touchEnded_at_time(1, place, time);
    }
    // 1280 points a second are 32 rows, which run 32 / 2.002002 = 15.98 from 94 / 40 = 2.35 on: to row 18.
    window.tick(TestWindow::frame);
    EXPECT_NEAR(rowsFrom(2), 0.35, 1e-9);
    window.run(0.1);
    EXPECT_GT(wheel->rowInBandOfComponent(0), 3);
    EXPECT_LT(wheel->rowInBandOfComponent(0), 8);
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{18, 0}}));
}
