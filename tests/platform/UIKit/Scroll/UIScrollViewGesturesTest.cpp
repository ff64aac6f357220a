// What fingers and the mouse wheel do to a scroll view.

#include <array>

#include "FocusableView.h"
#include "ScrollViewTest.h"
#include "UIScrollMotion.h"

TEST_F(UIScrollViewTest, AFingerWithinTheSlopScrollsNothingAndTaps) {
    window.drag(middle, {150, 192}, 1);
    EXPECT_EQ(offset(), 0);
    EXPECT_EQ(scroll->drags, 0);
    EXPECT_EQ(scroll->taps, std::vector<bool>{true});
}

TEST_F(UIScrollViewTest, AFingerOnePointBeyondTheSlopScrollsFromThereAndTapsNothing) {
    window.down(middle);
    window.move({150, 191});
    EXPECT_TRUE(scroll->isDragging());
    EXPECT_EQ(scroll->drags, 1);
    EXPECT_EQ(scroll->taps, std::vector<bool>{false});
    EXPECT_EQ(offset(), 0) << "without a jump";
    window.move({150, 91});
    EXPECT_EQ(offset(), 100);
    window.run(0.2);
    window.up({150, 91});
    EXPECT_FALSE(scroll->isDragging());
    window.runUntilStill();
    EXPECT_EQ(offset(), 100);
    EXPECT_EQ(scroll->taps.size(), 1U);
    EXPECT_EQ(scroll->drags, 1);
    EXPECT_EQ(scroll->moves, 1);
}

TEST_F(UIScrollViewTest, BeyondAnEndTheContentFollowsLessAndLessAndSpringsBack) {
    window.down(middle);
    window.move({150, 210});
    // 100 points beyond the start, of a view of 400: 400 · (1 − 1 / (0.55 · 100 / 400 + 1)) = 48.35
    window.move({150, 310});
    EXPECT_NEAR(offset(), -48.3516, 1e-3);
    window.run(0.2);
    window.up({150, 310});
    EXPECT_TRUE(scroll->isDecelerating());
    const double start = window.now;
    while (scroll->isDecelerating()) window.tick(TestWindow::frame);
    EXPECT_NEAR(window.now - start, UIScrollMotion::snapDuration, 0.05);
    EXPECT_EQ(offset(), 0);
    setOffset(600);
    window.down(middle);
    window.move({150, 190});
    window.move({150, 90});
    EXPECT_NEAR(offset(), 648.3516, 1e-3);
    (*window).touchCancelled_at_time(1, window.now);
    window.runUntilStill();
    EXPECT_EQ(offset(), 600);
}

TEST_F(UIScrollViewTest, AFingerThatComesBackFromBeyondAnEndFindsTheContentWhereItWas) {
    window.down(middle);
    window.move({150, 210});
    window.move({150, 350});
    window.move({150, 180});
    EXPECT_NEAR(offset(), 30, 1e-9);
}

TEST_F(UIScrollViewTest, ACancelledTouchStaysWhereItIs) {
    window.down(middle);
    window.glide(middle, {150, 100}, 10);
    const CGFloat before = offset();
    EXPECT_EQ(before, 90); // Ten points a step: the first is within the slop no more.
    (*window).touchCancelled_at_time(1, window.now);
    window.runUntilStill();
    EXPECT_EQ(offset(), before);
}

TEST_F(UIScrollViewTest, AFlingRunsAsFarAsItsSpeedCarriesIt) {
    scroll->setContentSize({300, 100000});
    // 20 points a frame are 1200 a second; the drag of 0.998 a millisecond stops them after 1200 /
    // 2.002002 = 599.4.
    window.fling({150, 300}, {150, 200}, 5);
    const CGFloat released = offset();
    EXPECT_EQ(released, 80);
    EXPECT_TRUE(scroll->isDecelerating());
    window.runUntilStill();
    EXPECT_NEAR(offset(), 80 + 599.4, 0.01);
    EXPECT_FALSE(scroll->isDecelerating());
}

TEST_F(UIScrollViewTest, AFlingIsTheSameAtAnyFrameRate) {
    // Places after a fifth, half a second and one second, from windows that tick 30, 60 and 120
    // times a second.
    std::array<std::array<CGFloat, 3>, 3> places{};
    const std::array<int, 3> rates = {30, 60, 120};
    for (std::size_t i = 0; i < rates.size(); ++i) {
        const auto view = create<UIScrollView>(CGRectMake(0, 0, 300, 400));
        view->setContentSize({300, 1400}); // It reaches the end with some speed left.
        TestWindow other(view);
        other.fling({150, 350}, {150, 200}, 5);
        const std::array<int, 3> shares = {5, 2, 1};
        int ticks = 0;
        for (std::size_t k = 0; k < shares.size(); ++k) {
            for (; ticks < rates[i] / shares[k]; ++ticks) other.tick(1.0 / rates[i]);
            places[i][k] = view->contentOffset().y;
        }
        other.runUntilStill();
        EXPECT_GT(places[i][0], 300);
    }
    for (std::size_t k = 0; k < 3; ++k) {
        EXPECT_NEAR(places[0][k], places[1][k], 1e-6);
        EXPECT_NEAR(places[0][k], places[2][k], 1e-6);
    }
}

TEST_F(UIScrollViewTest, AFlingAgainstAnEndSwingsOverOnceAndRestsExactlyThere) {
    window.fling({150, 300}, {150, 200}, 2); // 3000 points a second run 1500, far beyond 600.
    CGFloat furthest = 0;
    while (window.tick(TestWindow::frame)) furthest = std::max(furthest, offset());
    EXPECT_GT(furthest, 605);
    EXPECT_LT(furthest, 700);
    EXPECT_EQ(offset(), 600);
}

TEST_F(UIScrollViewTest, AFingerStopsAMovementWithoutATap) {
    window.fling({150, 300}, {150, 200}, 5);
    window.run(0.1);
    scroll->taps.clear();
    scroll->presses = 0;
    const CGFloat before = offset();
    window.down(middle);
    window.run(0.5);
    EXPECT_EQ(offset(), before);
    window.up(middle);
    window.runUntilStill();
    EXPECT_EQ(offset(), before);
    EXPECT_EQ(scroll->presses, 0);
    EXPECT_TRUE(scroll->taps.empty());
}

TEST_F(UIScrollViewTest, AFingerThatStopsASwingBeyondTheEndLetsItSpringBack) {
    window.fling({150, 300}, {150, 200}, 2);
    while (offset() <= 600) window.tick(TestWindow::frame);
    window.down(middle);
    const CGFloat beyond = offset();
    window.run(0.3);
    EXPECT_EQ(offset(), beyond);
    window.up(middle);
    window.runUntilStill();
    EXPECT_EQ(offset(), 600);
}

TEST_F(UIScrollViewTest, ASecondFingerIsIgnored) {
    window.down(middle, 1);
    window.down(middle, 2);
    window.move({150, 100}, 2);
    window.up({150, 100}, 2);
    EXPECT_EQ(offset(), 0);
    window.move({150, 190}, 1);
    window.move({150, 140}, 1);
    EXPECT_EQ(offset(), 50);
}

TEST_F(UIScrollViewTest, NotchesAndPointsStopAtTheEndsAndAreTakenThereToo) {
    EXPECT_TRUE(window.scrollNotches(middle, 2));
    EXPECT_EQ(offset(), 96);
    EXPECT_TRUE(window.scrollPoints(middle, -95.5));
    EXPECT_EQ(offset(), 0.5);
    EXPECT_TRUE(window.scrollPoints(middle, -1));
    EXPECT_EQ(offset(), 0);
    EXPECT_TRUE(window.scrollNotches(middle, -1));
    EXPECT_TRUE(window.scrollNotches(middle, 1000));
    EXPECT_EQ(offset(), 600);
    EXPECT_TRUE(window.scrollNotches(middle, 1));
    EXPECT_TRUE(window.scrollPoints(middle, 0, true));
    EXPECT_EQ(offset(), 600);
}

TEST_F(UIScrollViewTest, UnderAFingerTheMouseWheelMovesNothing) {
    window.down(middle);
    EXPECT_TRUE(window.scrollNotches(middle, 1));
    EXPECT_EQ(offset(), 0);
}

TEST_F(UIScrollViewTest, WithoutAWindowRequestsAndFlingsArriveAtOnce) {
    scroll->setContentOffset_animated({0, 500}, true);
    window.tick(0);
    scroll->removeFromSuperview();
    EXPECT_EQ(offset(), 500) << "what was on its way";
    scroll->setContentOffset_animated({0, 200}, true);
    EXPECT_EQ(offset(), 200);
}

TEST_F(UIScrollViewTest, AViewThatLeavesItsWindowIgnoresTheFinger) {
    window.down(middle);
    window.move({150, 210});
    window.move({150, 310});
    EXPECT_LT(offset(), 0);
    scroll->removeFromSuperview();
    EXPECT_EQ(offset(), 0);
    EXPECT_FALSE(scroll->isDragging());
    window->addSubview(scroll);
    window.down(middle, 2);
    window.move({150, 190}, 2);
    window.move({150, 150}, 2);
    EXPECT_EQ(offset(), 40);
}

TEST_F(UIScrollViewTest, ARequestEndsTheDragThatItMeets) {
    window.down(middle);
    window.move({150, 190});
    window.move({150, 100});
    setOffset(300);
    EXPECT_FALSE(scroll->isDragging());
    window.move({150, 50});
    EXPECT_EQ(offset(), 300);
}

TEST_F(UIScrollViewTest, ARequestForThePresentOffsetLeavesTheFingerAloneAndStopsAFling) {
    scroll->setContentSize({300, 100000});
    window.down(middle);
    window.move({150, 190});
    window.move({150, 100});
    setOffset(90);
    EXPECT_TRUE(scroll->isDragging());
    window.move({150, 50});
    EXPECT_EQ(offset(), 140);
    window.run(0.2);
    window.up({150, 50});

    scroll->taps.clear();
    window.down(middle);
    scroll->setContentOffset_animated({0, 140}, true);
    window.up(middle);
    EXPECT_EQ(scroll->taps, std::vector<bool>{true}) << "so does a tap";

    window.fling({150, 300}, {150, 200}, 5);
    window.run(0.1);
    const CGFloat present = offset();
    scroll->setContentOffset_animated({0, present}, true);
    EXPECT_FALSE(scroll->isDecelerating()) << "there is no way to go";
    window.runUntilStill();
    EXPECT_EQ(offset(), present);
}

TEST_F(UIScrollViewTest, ContentThatShrinksBelowAFingerIsPulledBeyondItsEnd) {
    window.down({150, 300});
    window.glide({150, 300}, {150, 190}, 11);
    const CGFloat pulled = offset();
    ASSERT_GT(pulled, 90);
    scroll->setContentSize({300, 450}); // The highest offset is 50 now.
    EXPECT_GT(offset(), 50) << "the finger still pulls";
    EXPECT_LT(offset(), pulled) << "but not as far";
    window.up({150, 190});
    window.runUntilStill();
    EXPECT_EQ(offset(), 50);
}

TEST_F(UIScrollViewTest, AFingerWhoseViewIsRemovedIsIgnored) {
    const auto label = create<UIView>(CGRectMake(0, 0, 300, 300));
    content->addSubview(label);
    window.down(middle, 1);
    window.glide(middle, {150, 100}, 10, 1);
    EXPECT_TRUE(scroll->isDragging());
    label->removeFromSuperview();
    EXPECT_FALSE(scroll->isDragging());
    const CGFloat before = offset();
    window.down(middle, 2);
    window.glide(middle, {150, 100}, 10, 2);
    EXPECT_GT(offset(), before);
    window.up({150, 100}, 1); // Nobody's any more.
    EXPECT_TRUE(scroll->isDragging());
}

TEST_F(UIScrollViewTest, HiddenDuringAFlingItArrivesAtOnce) {
    scroll->setContentSize({300, 100000});
    window.fling({150, 300}, {150, 200}, 5); // From 80 on, 599.4 further.
    window.run(0.1);
    scroll->setHidden(true);
    EXPECT_FALSE(scroll->isDecelerating());
    EXPECT_NEAR(offset(), 679.4, 0.01);
    const CGFloat arrived = offset();
    scroll->setHidden(false);
    window.runUntilStill();
    EXPECT_EQ(offset(), arrived);
}

TEST_F(UIScrollViewTest, SpringingBackEndsAtOnceWhenAViewAboveIsHidden) {
    const auto page = create<UIView>(CGRectMake(0, 0, 300, 400));
    window->addSubview(page);
    page->addSubview(scroll);
    window.down(middle);
    window.move({150, 210});
    window.move({150, 310});
    window.up({150, 310});
    ASSERT_LT(offset(), 0);
    page->setHidden(true);
    EXPECT_EQ(offset(), 0);
}

TEST_F(UIScrollViewTest, HiddenUnderAFingerItIgnoresTheFingerAndGoesToTheNearestEnd) {
    window.down(middle);
    window.move({150, 210});
    window.move({150, 310});
    scroll->setHidden(true);
    EXPECT_FALSE(scroll->isDragging());
    EXPECT_EQ(offset(), 0);
    scroll->setHidden(false);
    window.move({150, 100});
    window.up({150, 100});
    window.runUntilStill();
    EXPECT_EQ(offset(), 0);
    window.down(middle, 2);
    window.move({150, 190}, 2);
    window.move({150, 150}, 2);
    EXPECT_EQ(offset(), 40) << "the next one scrolls";
}

TEST_F(UIScrollViewTest, AFlingTimedByAnotherClockRunsFromTheNextFrameOn) {
    scroll->setContentSize({300, 100000});
    for (int i = 0; i <= 5; ++i) {
        const CGPoint place = {150, 300.0 - 20 * i};
        // 1280 points a second: they run 1280 / 2.002002 = 639.4.
        const double time = 1e9 + i / 64.0;
        if (i == 0) window->touchBegan_at_time(1, place, time);
        if (i > 0) window->touchMoved_at_time(1, place, time);
        if (i == 5) window->touchEnded_at_time(1, place, time);
    }
    EXPECT_EQ(offset(), 80);
    window.tick(TestWindow::frame);
    EXPECT_EQ(offset(), 80);
    window.run(0.1);
    EXPECT_GT(offset(), 180);
    EXPECT_LT(offset(), 210);
    window.runUntilStill();
    EXPECT_NEAR(offset(), 80 + 639.4, 0.05);
}

TEST_F(UIScrollViewTest, AFingerThatStopsASwingBeforeTheStartPullsOnFromThere) {
    setOffset(100);
    window.fling({150, 200}, {150, 300}, 2);
    while (offset() >= 0) window.tick(TestWindow::frame);
    const CGFloat beyond = offset();
    window.down(middle);
    window.move({150, 209}); // Beyond the slop: it pulls from here.
    window.move({150, 210});
    EXPECT_LT(offset(), beyond);
    EXPECT_GT(offset(), beyond - 1) << "by less than the finger, and without a jump";
    window.run(0.2);
    window.up({150, 210});
    window.runUntilStill();
    EXPECT_EQ(offset(), 0);
}

TEST_F(UIScrollViewTest, ACallbackMayEndADragThatBegins) {
    scroll->whenPressEnds = [this] { setOffset(300); };
    window.down(middle);
    window.move({150, 150});
    EXPECT_FALSE(scroll->isDragging());
    EXPECT_EQ(scroll->drags, 0);
    window.move({150, 50});
    window.up({150, 50});
    EXPECT_EQ(offset(), 300);
    EXPECT_EQ(scroll->taps, std::vector<bool>{false}) << "told once";
}

TEST_F(UIScrollViewTest, ACallbackMayEndADragThatIsReportedOnlyWithTheRelease) {
    scroll->whenPressEnds = [this] { setOffset(300); };
    window.down(middle);
    window.up({150, 100});
    EXPECT_EQ(offset(), 300);
    EXPECT_EQ(scroll->drags, 0);
    EXPECT_EQ(scroll->taps, std::vector<bool>{false});
}

TEST_F(UIScrollViewTest, UnderAFingerKeysAreHandledButMoveNothing) {
    const auto field = create<FocusableView>(CGRectMake(0, 0, 10, 10));
    content->addSubview(field);
    field->becomeFirstResponder();
    window.down(middle);
    EXPECT_TRUE(window.press(UIKey::Code::Down));
    EXPECT_EQ(offset(), 0);
    window.up(middle);
    EXPECT_TRUE(window.press(UIKey::Code::Down));
    window.runUntilStill();
    EXPECT_EQ(offset(), 48);
}

TEST_F(UIScrollViewTest, AFingerThatComesDownAgainEndsItsPressWithoutATap) {
    // As from a view that hands touches up by itself; a window would have cancelled the first one.
    EXPECT_TRUE(scroll->touchBegan({1, window.now, middle}));
    EXPECT_TRUE(scroll->touchBegan({1, window.now, middle}));
    EXPECT_TRUE(scroll->touchBegan({1, window.now, {150, notANumber}}));
    EXPECT_TRUE(scroll->touchBegan({2, window.now, middle})) << "a second finger is nobody else's";
    EXPECT_EQ(scroll->presses, 2);
    EXPECT_EQ(scroll->taps, std::vector<bool>{false});
}
