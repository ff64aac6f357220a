// Offsets, requests, keys and drawing of a scroll view.

#include <array>

#include "FocusableView.h"
#include "RecordingCanvas.h"
#include "ScrollViewTest.h"
#include "UIPickerView.h"

TEST_F(UIScrollViewTest, ContentIsDrawnConvertedAndHitWhereItHasMovedTo) {
    const auto low = create<UIView>(CGRectMake(10, 500, 50, 50));
    content->addSubview(low);
    setOffset(300);
    EXPECT_EQ(content->frame(), CGRectMake(0, 0, 300, 1000)) << "frames stay";
    EXPECT_EQ(window->convertRect_fromView(low->bounds(), low), CGRectMake(10, 200, 50, 50));
    EXPECT_EQ(window->hitTest({10, 200}), low);
    EXPECT_EQ(window->hitTest({10, 199}), content);
    EXPECT_EQ(low->convertPointFromWindow({12, 203}), CGPointMake(2, 3));
    low->setBackgroundColor(UIColor::blackColor());
    RecordingCanvas canvas;
    scroll->renderInContext(canvas);
    EXPECT_EQ(canvas.calls[1], "clip 0 0 300 400");
    EXPECT_TRUE(canvas.calls[2].starts_with("translate ") && canvas.calls[2].ends_with(" -300")) << canvas.calls[2];
    EXPECT_EQ(canvas.painted()[0], "fill 0 0 50 50 with 0 0 0 1");
}

TEST_F(UIScrollViewTest, AnOffsetIsClampedToTheContent) {
    EXPECT_EQ(scroll->highestOffset(), 600);
    setOffset(600);
    EXPECT_EQ(offset(), 600);
    setOffset(601);
    EXPECT_EQ(offset(), 600);
    setOffset(-1);
    EXPECT_EQ(offset(), 0);
    scroll->setContentOffset({70, 50});
    EXPECT_EQ(scroll->contentOffset(), CGPointMake(0, 50)) << "nothing moves sideways";
    scroll->setBounds(CGRectMake(0, 900, 300, 400));
    EXPECT_EQ(offset(), 600);
}

TEST_F(UIScrollViewTest, LessContentAndMoreRoomClampTheOffset) {
    setOffset(600);
    scroll->setContentSize({300, 900});
    EXPECT_EQ(offset(), 500);
    scroll->setFrame(CGRectMake(0, 0, 300, 500));
    EXPECT_EQ(offset(), 400);
    scroll->setBounds(CGRectMake(0, 400, 300, 600));
    EXPECT_EQ(offset(), 300);
    scroll->setContentSize({300, -5});
    EXPECT_EQ(offset(), 0);
    EXPECT_EQ(scroll->contentSize(), CGSizeMake(300, 0));
}

TEST_F(UIScrollViewTest, PointsAndSizesThatAreNotFiniteAreIgnored) {
    setOffset(100);
    for (const double bad : {notANumber, infinity, -infinity}) {
        setOffset(bad);
        scroll->setContentOffset_animated({0, bad}, true);
        scroll->setContentSize({300, bad});
        scroll->setContentSize({bad, 300});
        scroll->scrollRectToVisible_animated(CGRectMake(0, bad, 10, 10), false);
        scroll->scrollRectToVisible_animated(CGRectMake(0, 500, 10, bad), false);
        scroll->setBounds(CGRectMake(0, bad, 300, 400));
        EXPECT_TRUE(window.scrollPoints(middle, bad));
        EXPECT_TRUE(window.scrollNotches(middle, bad));
        window.down({150, bad});
        window.down(middle);
        window.move({150, bad});
        window.up({150, bad});
    }
    window.runUntilStill();
    EXPECT_EQ(offset(), 100);
    EXPECT_EQ(scroll->contentSize(), CGSizeMake(300, 1000));
}

TEST_F(UIScrollViewTest, ContentThatFitsStaysWhereItIs) {
    scroll->setContentSize({300, 400});
    EXPECT_EQ(scroll->highestOffset(), 0);
    window.fling({150, 300}, {150, 100}, 4);
    EXPECT_EQ(offset(), 0);
    window.runUntilStill();
    EXPECT_EQ(offset(), 0);
    EXPECT_FALSE(window.scrollNotches(middle, 1)) << "and the mouse wheel is someone else's";
    scroll->setContentSize({300, 401});
    EXPECT_TRUE(window.scrollNotches(middle, 1));
    EXPECT_EQ(offset(), 1);
}

TEST_F(UIScrollViewTest, SidewaysScrollingIsPassedUp) {
    const auto scrollBy = [this](CGFloat x, CGFloat y, UIScroll::Unit unit = UIScroll::Unit::Points) {
        return window->scroll({unit, x, y, window.now, middle, false});
    };
    EXPECT_FALSE(scrollBy(1, 0));
    EXPECT_FALSE(scrollBy(1, 0, UIScroll::Unit::Notches));
    EXPECT_FALSE(scrollBy(-10.5, 10));
    EXPECT_EQ(offset(), 0);
    EXPECT_TRUE(scrollBy(-10, 10));
    EXPECT_EQ(offset(), 10);
}

TEST_F(UIScrollViewTest, AnOuterScrollViewScrollsWhereTheInnerHasNothingToScroll) {
    const auto inner = create<UIScrollView>(CGRectMake(0, 0, 300, 400));
    content->addSubview(inner);
    window.scrollNotches(middle, 1);
    EXPECT_EQ(offset(), 48);
    inner->setContentSize({300, 500});
    window.scrollNotches(middle, 1);
    EXPECT_EQ(offset(), 48);
    EXPECT_EQ(inner->contentOffset().y, 48);
}

TEST_F(UIScrollViewTest, AnAnimatedRequestTakesItsTimeAndArrivesExactly) {
    scroll->setContentOffset_animated({0, 333}, true);
    EXPECT_EQ(offset(), 0);
    window.tick(TestWindow::frame); // Its clock starts with the first frame.
    window.run(0.15);
    EXPECT_NEAR(offset(), 333 * 0.875, 1e-6); // Half the time leaves an eighth of the way.
    EXPECT_FALSE(scroll->isDecelerating());
    window.runUntilStill();
    EXPECT_EQ(offset(), 333);
}

TEST_F(UIScrollViewTest, ARectangleIsShownWithTheShortestWay) {
    const auto show = [this](CGFloat y, CGFloat height) {
        scroll->scrollRectToVisible_animated(CGRectMake(0, y, 10, height), false);
        return offset();
    };
    EXPECT_EQ(show(0, 400), 0);
    EXPECT_EQ(show(1, 400), 1);
    EXPECT_EQ(show(500, 50), 150);
    EXPECT_EQ(show(150, 50), 150);
    EXPECT_EQ(show(149, 50), 149);
    EXPECT_EQ(show(200, 401), 200) << "the top of what is higher than the view";
    EXPECT_EQ(show(50, 500), 50);
    EXPECT_EQ(show(990, 50), 600);
}

TEST_F(UIScrollViewTest, LessContentEndsAMovementBeyondIt) {
    scroll->setContentOffset_animated({0, 600}, true);
    window.tick(TestWindow::frame);
    window.run(0.15);
    scroll->setContentSize({300, 500});
    EXPECT_EQ(offset(), 100);
    window.runUntilStill();
    EXPECT_EQ(offset(), 100);
}

TEST_F(UIScrollViewTest, AViewThatTakesTheFocusIsScrolledIntoView) {
    const auto low = create<UIView>(CGRectMake(10, 500, 50, 50));
    content->addSubview(low);
    low->revealDescendant(low->bounds());
    window.runUntilStill();
    EXPECT_EQ(offset(), 150); // Its lower edge at the lower edge.
    low->revealDescendant(low->bounds());
    EXPECT_FALSE(window.tick(0));
    EXPECT_EQ(offset(), 150);
}

TEST(UIScrollView, ClipsItsContentAlsoWhenItComesFromAnInterface) {
    const auto coder = create<NSCoder>();
    coder->encodeCGRect_forKey(CGRectMake(1, 2, 30, 40), "frame");
    const auto scroll = create<UIScrollView>(coder);
    EXPECT_EQ(scroll->frame(), CGRectMake(1, 2, 30, 40));
    EXPECT_TRUE(scroll->clipsToBounds());
}

TEST_F(UIScrollViewTest, AnOuterScrollViewShowsWhereARevealedViewWillBe) {
    // 300 by 200 points that show this one, 400 high, at the end of 800.
    const auto outer = create<UIScrollView>(CGRectMake(0, 0, 300, 200));
    const auto low = create<UIView>(CGRectMake(10, 900, 50, 50));
    content->addSubview(low);
    scroll->removeFromSuperview();
    scroll->setFrame(CGRectMake(0, 400, 300, 400));
    outer->addSubview(scroll);
    outer->setContentSize({300, 800});
    TestWindow around(outer);
    low->revealDescendant(low->bounds());
    around.runUntilStill();
    EXPECT_EQ(offset(), 550);                 // Its lower edge, 950, at the lower edge.
    EXPECT_EQ(outer->contentOffset().y, 600); // Which lies at 800.
    EXPECT_EQ(CGRectGetMaxY(around->convertRect_fromView(low->bounds(), low)), 200);
}

TEST_F(UIScrollViewTest, KeysThatNothingInsideHasHandledScroll) {
    const auto field = create<FocusableView>(CGRectMake(0, 0, 10, 10));
    content->addSubview(field);
    ASSERT_TRUE(field->becomeFirstResponder());
    const auto offsetAfter = [this](UIKey::Code code) {
        EXPECT_TRUE(window.press(code));
        window.runUntilStill();
        return offset();
    };
    EXPECT_EQ(offsetAfter(UIKey::Code::Down), 48);
    EXPECT_EQ(offsetAfter(UIKey::Code::PageDown), 400); // 400 less a notch further.
    EXPECT_EQ(offsetAfter(UIKey::Code::Up), 352);
    EXPECT_EQ(offsetAfter(UIKey::Code::PageUp), 0);
    EXPECT_EQ(offsetAfter(UIKey::Code::End), 600);
    EXPECT_EQ(offsetAfter(UIKey::Code::Down), 600);
    EXPECT_EQ(offsetAfter(UIKey::Code::Home), 0);
    EXPECT_FALSE(window.press(UIKey::Code::Right));
    EXPECT_FALSE(window.press(UIKey::Code::Down, UIKey::Control));
    EXPECT_EQ(offset(), 0);
}

TEST_F(UIScrollViewTest, FinishingTheWindowsAnimationsEndsARequestAtItsTarget) {
    scroll->setContentOffset_animated({0, 333}, true);
    window.tick(TestWindow::frame);
    window->finishAnimations();
    EXPECT_EQ(offset(), 333);
    window.tick(TestWindow::frame);
    EXPECT_FALSE(window.tick(TestWindow::frame));
}

TEST(UIScrollView, ACallbackMayDropTheViewWhileItsBoundsChange) {
    struct Hearing : UIScrollView {
        std::function<void()> whenScrolled;
        bool* isGone = nullptr;
        ~Hearing() override { *isGone = true; }
        void scrollViewDidScroll() override {
            if (const auto told = std::exchange(whenScrolled, nullptr)) told();
        }
    };
    bool isGone = false;
    auto view = create<Hearing>(CGRectMake(0, 0, 300, 200));
    view->isGone = &isGone;
    view->setContentSize({300, 1000});
    view->setContentOffset({0, 800});
    view->whenScrolled = [&view] { view = nullptr; };
    // Of which 600 are the end, so that it scrolls twice.
    view->setBounds(CGRectMake(0, 100, 300, 400));
    EXPECT_TRUE(isGone);
}

TEST_F(UIScrollViewTest, MoreContentKeepsAMovement) {
    scroll->setContentOffset_animated({0, 600}, true);
    window.tick(TestWindow::frame);
    window.run(0.15);
    scroll->setContentSize({300, 2000});
    EXPECT_NEAR(offset(), 600 * 0.875, 1e-6) << "half the time leaves an eighth of the way";
    window.runUntilStill();
    EXPECT_EQ(offset(), 600);
}

TEST_F(UIScrollViewTest, HalfAPointMoreThanFitsCanBeScrolled) {
    scroll->setContentSize({300, 400.5});
    EXPECT_EQ(scroll->highestOffset(), 0.5);
    EXPECT_TRUE(window.scrollNotches(middle, 1));
    EXPECT_EQ(offset(), 0.5);
    setOffset(0);
    window.down(middle);
    window.glide(middle, {150, 191}, 1); // Beyond the slop it drags from here.
    window.glide({150, 191}, {150, 190.75}, 1);
    EXPECT_EQ(offset(), 0.25);
    window.up({150, 190.75});
    EXPECT_TRUE(scroll->isDecelerating());
    window.runUntilStill();
    EXPECT_EQ(offset(), 0.5);
}
