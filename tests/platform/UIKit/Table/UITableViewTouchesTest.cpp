// What fingers and mice do to a table, and to a wheel in one of its rows.

#include <utility>

#include "TableStage.h"
#include "WheelSource.h"

using namespace gx;
using Paths = std::vector<NSIndexPath>;

namespace {

/// Row 3 cannot be tapped.
struct UITableViewTouches : testing::Test {
    Ref<TableSource> source = create<TableSource>();
    Ref<TableListener> listener = create<TableListener>();
    Ref<UITableView> table = tableWithSource(source);
    TestWindow window{table};
    static constexpr CGPoint rowTwo = {160, 110}; // 88 to 132

    UITableViewTouches() {
        listener->refuses = [](NSIndexPath path) { return path.row == 3; };
        table->setDelegate(listener);
        window.tick(0);
    }
    bool isHighlighted(NSInteger row) { return table->cellForRowAtIndexPath({0, row})->isHighlighted(); }
    CGFloat offset() const { return table->contentOffset().y; }
};

/// Row 1, from 44 to 260, holds a wheel with one column from x = 120 to 200.
struct UITableViewWithWheel : UITableViewTouches {
    Ref<WheelSource> wheelSource = create<WheelSource>();
    Ref<UIPickerView> wheel = wheelWithSource(wheelSource);
    static constexpr CGPoint onWheel = {160, 152};
    static constexpr CGPoint besideWheel = {20, 152};

    UITableViewWithWheel() {
        wheelSource->rows = {10};
        source->cell = [this](const Ref<UITableView>& view, NSIndexPath path) {
            if (path.row != 1) return TableSource::usualCell(view, path);
            auto cell = create<UITableViewCell>(UITableViewCellStyleDefault, std::string("wheel"));
            cell->contentView()->addSubview(wheel);
            return cell;
        };
        table->setRowHeight(216);
        wheel->setFrame(CGRectMake(0, 0, 320, 216));
        table->scrollToRowAtIndexPath_animated({0, 1}, false);
        window.tick(0);
        table->setContentOffset({0, 172}); // Row 1 begins at y = 44 of the screen.
        window.tick(0);
    }
};

/// Tells when it is no longer highlighted.
struct HighlightCell : UITableViewCell {
    std::function<void()> whenHighlightEnds;

    void setHighlighted(bool highlighted) override {
        UITableViewCell::setHighlighted(highlighted);
        if (highlighted) return;
        if (const auto callback = std::exchange(whenHighlightEnds, nullptr)) callback();
    }
};

struct UITableViewTouchWithoutDelegate : TableStage {};

} // namespace

TEST_F(UITableViewTouchWithoutDelegate, HighlightsTheTappedRow) {
    window.tap({160, 110});
    EXPECT_TRUE(table->cellForRowAtIndexPath({0, 2})->isHighlighted());
}

TEST_F(UITableViewTouches, ReportATapOnce) {
    window.tap(rowTwo);
    EXPECT_EQ(listener->taps, Paths({{0, 2}}));
    EXPECT_TRUE(isHighlighted(2)) << "for a moment, to show that it was felt";
    window.run(0.099);
    EXPECT_TRUE(isHighlighted(2));
    window.run(0.002);
    EXPECT_FALSE(isHighlighted(2));
    window.runUntilStill();
    EXPECT_EQ(listener->taps.size(), 1U);
}

TEST_F(UITableViewTouches, HighlightARowBelowARestingFinger) {
    window.down(rowTwo);
    window.run(0.079);
    EXPECT_FALSE(isHighlighted(2));
    window.run(0.002);
    EXPECT_TRUE(isHighlighted(2));
    EXPECT_FALSE(isHighlighted(1));
    window.move({160, 118});
    EXPECT_TRUE(isHighlighted(2));
    window.move({160, 119});
    EXPECT_FALSE(isHighlighted(2));
    window.up({160, 119});
    EXPECT_TRUE(listener->taps.empty());
}

TEST_F(UITableViewTouches, ThatScrollTapNothing) {
    window.down(rowTwo);
    for (int i = 1; i <= 8; ++i) {
        window.tick(TestWindow::frame);
        window.move({160, 110 - 10.0 * i});
        EXPECT_FALSE(isHighlighted(2));
    }
    window.run(0.2);
    window.up({160, 30});
    EXPECT_EQ(offset(), 70);
    EXPECT_TRUE(listener->taps.empty());
}

TEST_F(UITableViewTouches, ThatAreCancelledTapNothing) {
    window.down(rowTwo);
    window.run(0.1);
    (*window).touchCancelled_at_time(1, window.now);
    EXPECT_FALSE(isHighlighted(2));
    EXPECT_TRUE(listener->taps.empty());
}

TEST_F(UITableViewTouches, ThatStopTheRowsTapNothing) {
    window.fling({160, 300}, {160, 200}, 5);
    window.run(0.1);
    window.tap(rowTwo);
    window.runUntilStill();
    EXPECT_TRUE(listener->taps.empty());
    window.tap(rowTwo);
    EXPECT_EQ(listener->taps.size(), 1U) << "once they stand, a tap is one";
}

TEST_F(UITableViewTouches, DoNotTapARowThatIsNotHighlighted) {
    window.down({160, 140}); // row 3
    window.run(0.2);
    EXPECT_FALSE(isHighlighted(3));
    window.up({160, 140});
    EXPECT_TRUE(listener->taps.empty());
}

TEST_F(UITableViewTouches, LeaveNoRowSelected) {
    window.tap(rowTwo);
    EXPECT_FALSE(table->cellForRowAtIndexPath({0, 2})->isSelected());
    window.runUntilStill();
    EXPECT_FALSE(table->cellForRowAtIndexPath({0, 2})->isSelected());
}

TEST_F(UITableViewTouches, EndWhenTheTableDisappears) {
    window.down(rowTwo);
    window.run(0.1);
    ASSERT_TRUE(isHighlighted(2));
    table->setHidden(true);
    EXPECT_FALSE(isHighlighted(2));
    table->setHidden(false);
    window.up(rowTwo);
    EXPECT_EQ(listener->taps, Paths{}) << "the finger is forgotten";

    window.tap(rowTwo);
    ASSERT_TRUE(isHighlighted(2));
    window->finishAnimations();
    EXPECT_FALSE(isHighlighted(2));
    window.tick(0);
    EXPECT_FALSE(window.tick(0));

    window.fling({160, 300}, {160, 200}, 5);
    window.run(0.1);
    table->setHidden(true);
    EXPECT_FALSE(table->isDecelerating());
    const CGFloat arrived = offset();
    table->setHidden(false);
    window.runUntilStill();
    EXPECT_EQ(offset(), arrived);
    // 80 under the finger, and 1200 points a second run 1200 / 2.002002 further.
    EXPECT_NEAR(arrived, 679.4, 0.01);
}

TEST_F(UITableViewTouches, OfAnotherClockHighlightWithTheNextFrames) {
    window->touchBegan_at_time(1, rowTwo, 1e300);
    window.tick(TestWindow::frame);
    EXPECT_TRUE(isHighlighted(2));
    window->touchEnded_at_time(1, rowTwo, 1e300);
    EXPECT_TRUE(isHighlighted(2));
    window.tick(TestWindow::frame);
    EXPECT_FALSE(isHighlighted(2));
    EXPECT_EQ(listener->taps, Paths({{0, 2}}));
}

TEST_F(UITableViewTouches, BelowTheRowsTapNothing) {
    source->rows = {2};
    table->reloadData();
    window.tick(0);
    window.tap({160, 88});
    EXPECT_TRUE(listener->taps.empty());
    window.tap({160, 87});
    EXPECT_EQ(listener->taps, Paths({{0, 1}}));
}

TEST_F(UITableViewTouches, EndWithAReload) {
    window.down(rowTwo);
    window.run(0.1);
    table->reloadData();
    window.tick(0);
    window.up(rowTwo);
    EXPECT_TRUE(listener->taps.empty());
    EXPECT_FALSE(isHighlighted(2));
}

TEST_F(UITableViewTouches, EndWithAReloadOfTheirRow) {
    window.down(rowTwo);
    table->reloadRowsAtIndexPaths({{0, 1}});
    window.up(rowTwo);
    EXPECT_EQ(listener->taps, Paths({{0, 2}})) << "another row's does not";
    window.down(rowTwo);
    table->reloadRowsAtIndexPaths({{0, 2}});
    window.up(rowTwo);
    EXPECT_EQ(listener->taps.size(), 1U);
}

TEST_F(UITableViewTouches, TapARowWithoutACell) {
    source->cell = [](const Ref<UITableView>& view, NSIndexPath path) {
        return path.row == 2 ? nullptr : TableSource::usualCell(view, path);
    };
    table->reloadData();
    window.tick(0);
    window.tap(rowTwo);
    EXPECT_EQ(listener->taps, Paths({{0, 2}}));
    EXPECT_FALSE(isHighlighted(1));
}

TEST_F(UITableViewTouches, RemoveTheHighlightOfARowThatLeaves) {
    source->cell = [](const Ref<UITableView>&, NSIndexPath) { return create<UITableViewCell>(); };
    table->reloadData();
    window.tick(0);
    const auto cell = table->cellForRowAtIndexPath({0, 2});
    window.tap(rowTwo);
    ASSERT_TRUE(cell->isHighlighted());
    table->setContentOffset({0, 1000});
    table->layoutIfNeeded();
    EXPECT_FALSE(cell->isHighlighted());
}

TEST_F(UITableViewTouches, FollowTheirRowThroughChanges) {
    window.down(rowTwo);
    source->rows = {101};
    table->insertRowsAtIndexPaths_animated({{0, 0}}, false);
    window.up(rowTwo);
    EXPECT_EQ(listener->taps, Paths({{0, 3}}));
    window.down(rowTwo);
    source->rows = {100};
    table->deleteRowsAtIndexPaths_animated({{0, 2}}, false);
    window.up(rowTwo);
    EXPECT_EQ(listener->taps.size(), 1U) << "its row is gone";
}

TEST_F(UITableViewTouches, MayReloadOrDropTheTable) {
    listener->whenTapped = [this] {
        source->rows = {1};
        table->reloadData();
        table->layoutIfNeeded();
    };
    window.tap(rowTwo);
    window.runUntilStill();
    EXPECT_EQ(table->indexPathsForVisibleRows().size(), 1U);
    const WeakRef<UITableView> weak = table;
    listener->whenTapped = [this] {
        table->removeFromSuperview();
        table = nullptr;
    };
    window.tap({160, 20});
    EXPECT_TRUE(weak.expired());
    EXPECT_EQ(listener->taps.size(), 2U);
}

TEST_F(UITableViewTouches, ThatAreCancelledReleaseTheCellBelow) {
    source->cell = [](const Ref<UITableView>&, NSIndexPath) { return create<UITableViewCell>(); };
    table->reloadData();
    window.tick(0);
    const WeakRef<UIView> touched = table->cellForRowAtIndexPath({0, 2});
    window.down({160, 110});
    window.glide({160, 110}, {160, -90}, 40);
    EXPECT_FALSE(touched.expired());
    (*window).touchCancelled_at_time(1, window.now);
    window.tick(0);
    EXPECT_TRUE(touched.expired());
}

TEST_F(UITableViewTouches, KeepTheCellBelowUntilTheyEnd) {
    source->cell = [](const Ref<UITableView>&, NSIndexPath) { return create<UITableViewCell>(); };
    table->reloadData();
    window.tick(0);
    const WeakRef<UIView> touched = table->cellForRowAtIndexPath({0, 2});
    window.drag({160, 110}, {160, -90}, 40);
    EXPECT_EQ(offset(), 190); // Five points a step: the second is the first beyond the slop.
    EXPECT_FALSE(table->isDragging());
    window.tick(0);
    EXPECT_TRUE(touched.expired());
}

TEST_F(UITableViewWithWheel, DoesNotScrollUnderAFingerOnTheWheel) {
    window.down(onWheel);
    window.glide(onWheel, {160, -900}, 30); // far beyond the wheel, its end, and the window
    EXPECT_EQ(offset(), 172);
    EXPECT_FALSE(table->isDragging());
    window.glide({160, -900}, {300, 900}, 30);
    window.run(0.2);
    window.up({300, 900});
    window.runUntilStill();
    EXPECT_EQ(offset(), 172);
    EXPECT_EQ(wheelSource->notices.size(), 1U);
    EXPECT_TRUE(listener->taps.empty());
}

TEST_F(UITableViewWithWheel, ScrollsUnderAFingerBesideTheColumns) {
    window.tap(besideWheel);
    EXPECT_EQ(listener->taps, Paths({{0, 1}}));
    window.drag(besideWheel, {20, 52}, 10);
    EXPECT_EQ(offset(), 172 + 90);
    EXPECT_TRUE(wheelSource->notices.empty());
}

TEST_F(UITableViewWithWheel, DoesNotScrollByAMouseWheelOnTheWheel) {
    for (int i = 0; i < 12; ++i) {
        EXPECT_TRUE(window.scrollNotches(onWheel, 1));
        window.runUntilStill();
    }
    EXPECT_EQ(wheel->selectedRowInComponent(0), 9);
    for (int i = 0; i < 20; ++i) {
        EXPECT_TRUE(window.scrollPoints(onWheel, 30));
        window.tick(TestWindow::frame);
    }
    window.runUntilStill();
    EXPECT_EQ(wheel->selectedRowInComponent(0), 9);
    for (int i = 0; i < 12; ++i) EXPECT_TRUE(window.scrollNotches(onWheel, -1));
    EXPECT_TRUE(window.scrollNotches(onWheel, -1));
    EXPECT_EQ(offset(), 172);
    EXPECT_TRUE(window.scrollNotches(besideWheel, 1));
    EXPECT_EQ(offset(), 172 + 48);
}

TEST_F(UITableViewWithWheel, KeepsTheWheelSpinningThroughChanges) {
    wheelSource->rows = {1000};
    wheel->reloadAllComponents();
    window.tick(0);
    window.fling(onWheel, {160, 92}, 4);
    ASSERT_TRUE(wheel->isTurning());
    const auto cell = table->cellForRowAtIndexPath({0, 1});
    const std::size_t queried = source->queried.size();
    source->rows = {101};
    table->insertRowsAtIndexPaths_animated({{0, 2}}, true);
    window.run(0.1);
    source->rows = {100};
    table->deleteRowsAtIndexPaths_animated({{0, 0}}, true);
    window.run(0.1);
    EXPECT_TRUE(wheel->isTurning());
    EXPECT_EQ(table->cellForRowAtIndexPath({0, 0}), cell);
    for (std::size_t i = queried; i < source->queried.size(); ++i) EXPECT_NE(source->queried[i], (NSIndexPath{0, 1}));
    window.runUntilStill();
    EXPECT_EQ(wheelSource->notices.size(), 1U);
    EXPECT_GT(wheelSource->notices[0].row, 5);
}

TEST_F(UITableViewTouches, MayDropTheTableWhenTheHighlightIsRemoved) {
    const auto cell = create<HighlightCell>();
    source->cell = [&cell](const Ref<UITableView>& view, NSIndexPath path) -> Ref<UITableViewCell> {
        if (path.row == 2) return cell;
        return TableSource::usualCell(view, path);
    };
    table->reloadData();
    window.tick(0);
    window.tap(rowTwo);
    ASSERT_TRUE(cell->isHighlighted());
    const WeakRef<UITableView> weak = table;
    bool isAlive = false;
    cell->whenHighlightEnds = [&] {
        table->removeFromSuperview();
        table = nullptr;
        isAlive = !weak.expired();
    };
    table->reloadData();
    EXPECT_TRUE(isAlive) << "it has more to do";
    EXPECT_TRUE(weak.expired());
}
