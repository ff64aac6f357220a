// A window that reduces motion: what would go by itself arrives with the next tick, what follows a
// finger does so as ever.

#include "TestWindow.h"
#include "UIScrollView.h"
#include "WheelSource.h"

using namespace gx;
using Notices = std::vector<WheelSource::Notice>;

namespace {

struct TickingHost : UIWindowHost {
    void windowNeedsFrame() override {}
    void giveFeedback(UIFeedback) override { ++ticks; }
    int ticks = 0;
};

/// The wheel is 320 by 216 points with rows of 40: one column of 80 lies from 120 to 200, its
/// centre row around y = 108.
struct ReducedMotionWheelTest : testing::Test {
    static constexpr CGPoint centre = {160, 108};
    Ref<WheelSource> source = create<WheelSource>();
    Ref<UIPickerView> wheel = wheelWithSource(source);
    TestWindow window{wheel};

    ReducedMotionWheelTest() { window->setReducesMotion(true); }
    /// One tick later the column stands exactly on the row and all is still.
    void expectArrivedOn(NSInteger row) {
        window.tick(TestWindow::frame);
        EXPECT_FALSE(wheel->isTurning());
        EXPECT_EQ(wheel->selectedRowInComponent(0), row);
        const Ref<UIView> view = wheel->viewForRow_forComponent(row, 0);
        ASSERT_TRUE(view);
        EXPECT_EQ(CGRectGetMidY(wheel->convertRect_fromView(view->bounds(), view)), 108);
        window.tick(TestWindow::frame); // Draws what the report has changed.
        EXPECT_FALSE(window.tick(TestWindow::frame));
    }
    void flingTenRows() { window.fling(centre, {160, 8}, 10); }
};

/// 300 by 400 points that show 1000: the highest offset is 600.
struct ReducedMotionScrollTest : testing::Test {
    Ref<UIScrollView> scroll = create<UIScrollView>(CGRectMake(0, 0, 300, 400));
    TestWindow window{scroll};

    ReducedMotionScrollTest() {
        scroll->addSubview(create<UIView>(CGRectMake(0, 0, 300, 1000)));
        scroll->setContentSize({300, 1000});
        window->setReducesMotion(true);
        window.tick(0);
    }
    CGFloat offset() const { return scroll->contentOffset().y; }
};

} // namespace

TEST(UIWindow, DoesNotReduceMotionByDefault) {
    const auto window = create<UIWindow>(CGRectMake(0, 0, 10, 10));
    EXPECT_FALSE(window->reducesMotion());
    window->setReducesMotion(true);
    EXPECT_TRUE(window->reducesMotion());
}

TEST_F(ReducedMotionWheelTest, AnAnimatedRequestArrivesWithoutAReport) {
    wheel->selectRow_inComponent_animated(50, 0, true);
    expectArrivedOn(50);
    EXPECT_TRUE(source->notices.empty());
}

TEST_F(ReducedMotionWheelTest, AFlingArrivesWhereItWouldHaveEndedAndReportsOnce) {
    // 94 points of the way beyond the slop are 2.35 rows; 600 points a second are 15 rows a second,
    // which run 15 / 2.002 = 7.49 more.
    flingTenRows();
    EXPECT_TRUE(source->notices.empty());
    expectArrivedOn(10);
    EXPECT_EQ(source->notices, (Notices{{10, 0}}));
}

TEST_F(ReducedMotionWheelTest, AFlingBeyondTheEndArrivesOnTheEnd) {
    source->rows = {5};
    wheel->reloadAllComponents();
    flingTenRows();
    expectArrivedOn(4);
    EXPECT_EQ(source->notices, (Notices{{4, 0}}));
}

TEST_F(ReducedMotionWheelTest, AColumnThatIsLetGoBetweenRowsOrBeyondTheEndIsOnARowAtOnce) {
    window.drag(centre, {160, 52}); // 56 points: the slop and 1.25 rows.
    expectArrivedOn(1);
    window.drag(centre, {160, 208}); // Far beyond row 0.
    expectArrivedOn(0);
    EXPECT_EQ(source->notices, (Notices{{1, 0}, {0, 0}}));
}

TEST_F(ReducedMotionWheelTest, AColumnFollowsTheFingerAsBefore) {
    window.down(centre);
    window.glide(centre, {160, 82}, 10); // 26 points: the slop and half a row.
    window.tick(TestWindow::frame);
    EXPECT_TRUE(wheel->isTurning());
    const Ref<UIView> row = wheel->viewForRow_forComponent(0, 0);
    ASSERT_TRUE(row);
    EXPECT_NEAR(CGRectGetMidY(wheel->convertRect_fromView(row->bounds(), row)), 88, 1e-9);
    EXPECT_TRUE(source->notices.empty());
}

TEST_F(ReducedMotionWheelTest, TapsNotchesAndKeysArriveAndReportOnceEach) {
    window.tap({160, 147}); // The next row's middle is drawn 39.25 below the centre.
    expectArrivedOn(1);
    window.scrollNotches(centre, 3);
    expectArrivedOn(4);
    wheel->becomeFirstResponder();
    window.press(UIKey::Code::Down);
    expectArrivedOn(5);
    window.press(UIKey::Code::End);
    expectArrivedOn(99);
    EXPECT_EQ(source->notices, (Notices{{1, 0}, {4, 0}, {5, 0}, {99, 0}}));
}

TEST_F(ReducedMotionWheelTest, ATrackpadThatLetsGoOrStopsLeavesTheColumnOnARow) {
    window.scrollPoints(centre, 50); // 1.25 rows.
    window.tick(TestWindow::frame);
    EXPECT_TRUE(wheel->isTurning()) << "it may go on";
    window.scrollPoints(centre, 0, true);
    expectArrivedOn(1);
    window.scrollPoints(centre, 50);
    window.tick(0.119);
    EXPECT_TRUE(wheel->isTurning());
    window.tick(0.002);
    EXPECT_FALSE(wheel->isTurning());
    EXPECT_EQ(source->notices, (Notices{{1, 0}, {2, 0}}));
}

TEST_F(ReducedMotionWheelTest, TypedTextSelectsAtOnceAndStillReportsWhenItIsComplete) {
    wheel->becomeFirstResponder();
    window.typeCharacter("7");
    window.tick(TestWindow::frame);
    EXPECT_EQ(wheel->rowInSelectionIndicatorOfComponent(0), 7);
    EXPECT_TRUE(source->notices.empty()) << "another digit may follow";
    window.run(1.1);
    EXPECT_EQ(source->notices, (Notices{{7, 0}}));
}

TEST_F(ReducedMotionWheelTest, RowsThatAreSkippedGiveFeedbackOnceTogether) {
    TickingHost host;
    window->setHost(&host);
    flingTenRows();
    EXPECT_EQ(host.ticks, 2) << "the rows that the finger has turned past the band";
    expectArrivedOn(10);
    EXPECT_EQ(host.ticks, 3);
    wheel->selectRow_inComponent_animated(50, 0, true);
    expectArrivedOn(50);
    EXPECT_EQ(host.ticks, 3) << "none for a request";
    window->setHost(nullptr);
}

TEST_F(ReducedMotionWheelTest, TurnedOnWhileAColumnGlidesItArrivesWithTheNextTick) {
    window->setReducesMotion(false);
    flingTenRows();
    window.run(0.1);
    ASSERT_TRUE(wheel->isTurning());
    window->setReducesMotion(true);
    expectArrivedOn(10);
    EXPECT_EQ(source->notices, (Notices{{10, 0}}));

    window->setReducesMotion(false);
    wheel->selectRow_inComponent_animated(40, 0, true);
    window.run(0.1);
    ASSERT_TRUE(wheel->isTurning());
    window->setReducesMotion(true);
    expectArrivedOn(40);
    EXPECT_EQ(source->notices.size(), 1U);
}

TEST_F(ReducedMotionWheelTest, TurnedOnUnderAFingerItLeavesTheColumnToTheFinger) {
    window->setReducesMotion(false);
    window.down(centre);
    window.glide(centre, {160, 82}, 10);
    window->setReducesMotion(true);
    window.tick(TestWindow::frame);
    EXPECT_TRUE(wheel->isTurning());
    EXPECT_TRUE(source->notices.empty());
}

TEST_F(ReducedMotionScrollTest, ARequestArrivesAtOnce) {
    scroll->setContentOffset_animated({0, 300}, true);
    EXPECT_EQ(offset(), 300);
    scroll->scrollRectToVisible_animated(CGRectMake(0, 0, 300, 50), true);
    EXPECT_EQ(offset(), 0);
    window.tick(TestWindow::frame);
    EXPECT_FALSE(window.tick(TestWindow::frame));
}

TEST_F(ReducedMotionScrollTest, AStrokeEndsWhereTheFingerLetsGo) {
    // Two steps of 50 points; the content starts to follow where the finger is found beyond the
    // slop, after the first.
    window.fling({150, 300}, {150, 200}, 2);
    EXPECT_EQ(offset(), 50);
    EXPECT_FALSE(scroll->isDecelerating());
    window.run(1);
    EXPECT_EQ(offset(), 50);
}

TEST_F(ReducedMotionScrollTest, ContentPulledBeyondAnEndIsBackAtOnce) {
    window.down({150, 100});
    window.glide({150, 100}, {150, 300}, 10);
    EXPECT_LT(offset(), 0) << "it follows the finger as ever";
    window.up({150, 300});
    EXPECT_EQ(offset(), 0);
}

TEST_F(ReducedMotionScrollTest, TurnedOnWhileItMovesTheContentArrivesWithTheNextTick) {
    window->setReducesMotion(false);
    scroll->setContentOffset_animated({0, 300}, true);
    window.tick(TestWindow::frame);
    window.run(0.1);
    EXPECT_GT(offset(), 0);
    EXPECT_LT(offset(), 300);
    window->setReducesMotion(true);
    window.tick(TestWindow::frame);
    EXPECT_EQ(offset(), 300);

    // Ten points a frame are 600 a second, which run 600 / 2.002 = 299.7 points further than the 90
    // of the finger: to the end and no more.
    window->setReducesMotion(false);
    window.fling({150, 300}, {150, 200}, 10);
    window.run(0.1);
    ASSERT_TRUE(scroll->isDecelerating());
    window->setReducesMotion(true);
    window.tick(TestWindow::frame);
    EXPECT_FALSE(scroll->isDecelerating());
    EXPECT_EQ(offset(), 600);
}
