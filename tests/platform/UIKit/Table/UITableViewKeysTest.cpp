// Where keys move the focus of a table, and what they do to the focused row.

#include "TableKeysStage.h"

using namespace gx;
using Code = UIKey::Code;
using Path = std::optional<NSIndexPath>;
using Paths = std::vector<NSIndexPath>;

namespace {

struct UITableViewKeys : TableKeysStage {};

} // namespace

TEST_F(UITableViewKeys, UpAndDownCrossSections) {
    source->titles = {"first", "second"};
    reload({2, 2});
    press(Code::Tab);
    Paths visited = {*focused()};
    for (int i = 0; i < 3; ++i) {
        EXPECT_TRUE(press(Code::Down));
        visited.push_back(*focused());
    }
    EXPECT_EQ(visited, Paths({{0, 0}, {0, 1}, {1, 0}, {1, 1}}));
    EXPECT_FALSE(press(Code::Down)) << "all is in sight, so that the key is of no use";
    EXPECT_EQ(focused(), Path({1, 1}));
    EXPECT_TRUE(press(Code::Up));
    EXPECT_TRUE(press(Code::Up));
    EXPECT_EQ(focused(), Path({0, 1}));
    EXPECT_TRUE(listener->taps.empty());
}

TEST_F(UITableViewKeys, HomeAndEndRevealTheOuterRows) {
    source->titles = {"heading"}; // 28 points
    table->reloadData();
    press(Code::Tab);
    EXPECT_TRUE(press(Code::End));
    EXPECT_EQ(focused(), Path({0, 99}));
    EXPECT_EQ(offset(), 28 + 4400 - 440);
    EXPECT_TRUE(press(Code::Home));
    EXPECT_EQ(focused(), Path({0, 0}));
    EXPECT_EQ(offset(), 0) << "with the heading";
}

TEST_F(UITableViewKeys, ScrollTheFocusedRowJustIntoSight) {
    press(Code::Tab);
    for (int i = 0; i < 9; ++i) press(Code::Down);
    EXPECT_EQ(offset(), 0);
    press(Code::Down);
    EXPECT_EQ(focused(), Path({0, 10}));
    EXPECT_EQ(offset(), 44);
    for (int i = 0; i < 9; ++i) press(Code::Up);
    EXPECT_EQ(offset(), 44);
    press(Code::Up);
    EXPECT_EQ(offset(), 0);
}

TEST_F(UITableViewKeys, RevealTheRowInOuterScrollViewsToo) {
    // 320 by 200 points that show the top of the table, 440 high.
    const auto outer = create<UIScrollView>(CGRectMake(0, 0, 320, 200));
    table->removeFromSuperview();
    outer->addSubview(table);
    outer->setContentSize({320, 440});
    TestWindow around(outer);
    const auto pressAndWait = [&around](Code code) {
        EXPECT_TRUE(around.press(code));
        around.runUntilStill();
    };
    pressAndWait(Code::Tab);
    for (int row = 1; row <= 4; ++row) pressAndWait(Code::Down);
    EXPECT_EQ(focused(), Path({0, 4}));
    EXPECT_EQ(outer->contentOffset().y, 20); // Row 4 ends at 220.
    pressAndWait(Code::End);                 // Row 99, which the table shows at its lower end.
    EXPECT_EQ(offset(), 3960);
    EXPECT_EQ(outer->contentOffset().y, 240);
    pressAndWait(Code::Home);
    EXPECT_EQ(offset(), 0);
    EXPECT_EQ(outer->contentOffset().y, 0);
}

TEST_F(UITableViewKeys, PageKeysKeepOneRowInSight) {
    press(Code::Tab);
    EXPECT_TRUE(press(Code::PageDown));
    EXPECT_EQ(focused(), Path({0, 9}));
    EXPECT_TRUE(press(Code::PageDown));
    EXPECT_EQ(focused(), Path({0, 18}));
    EXPECT_TRUE(press(Code::PageUp));
    EXPECT_EQ(focused(), Path({0, 9}));
    press(Code::End);
    press(Code::Up);
    EXPECT_TRUE(press(Code::PageDown));
    EXPECT_EQ(focused(), Path({0, 99}));
    press(Code::Home);
    press(Code::Down);
    EXPECT_TRUE(press(Code::PageUp));
    EXPECT_EQ(focused(), Path({0, 0}));
    press(Code::PageUp);
    EXPECT_EQ(focused(), Path({0, 0})) << "the first row is the last one upwards";
    press(Code::End);
    press(Code::PageDown);
    EXPECT_EQ(focused(), Path({0, 99}));
}

TEST_F(UITableViewKeys, PageKeysMoveByARowInALowTable) {
    table->setFrame(CGRectMake(0, 0, 320, 30));
    press(Code::Tab);
    press(Code::PageDown);
    EXPECT_EQ(focused(), Path({0, 1}));
    press(Code::PageUp);
    EXPECT_EQ(focused(), Path({0, 0}));
}

TEST_F(UITableViewKeys, SkipRowsThatCannotBeTapped) {
    reload({20});
    listener->refuses = [](NSIndexPath path) { return path.row == 0 || path.row == 3 || path.row == 10 || path.row == 19; };
    press(Code::Tab);
    EXPECT_EQ(focused(), Path({0, 1}));
    press(Code::Down);
    press(Code::Down);
    EXPECT_EQ(focused(), Path({0, 4}));
    press(Code::Up);
    EXPECT_EQ(focused(), Path({0, 2}));
    press(Code::End);
    EXPECT_EQ(focused(), Path({0, 18}));
    press(Code::Home);
    EXPECT_EQ(focused(), Path({0, 1}));
    press(Code::PageDown); // nine rows further lies row 10
    EXPECT_EQ(focused(), Path({0, 11}));
}

TEST_F(UITableViewKeys, ScrollBeyondTheLastTappableRow) {
    reload({20});
    listener->refuses = [](NSIndexPath path) { return path.row >= 10; };
    press(Code::Tab);
    for (int i = 0; i < 9; ++i) press(Code::Down);
    EXPECT_EQ(offset(), 0);
    EXPECT_TRUE(press(Code::Down));
    EXPECT_EQ(focused(), Path({0, 9}));
    EXPECT_EQ(offset(), UIScrollView::pointsPerNotch);
}

TEST_F(UITableViewKeys, HomeAndPageUpStopAtTheFirstTappableRow) {
    listener->refuses = [](NSIndexPath path) { return path.row < 2; };
    for (const Code key : {Code::Home, Code::PageUp}) {
        window.tap({160, 44 * 5 + 22});
        ASSERT_EQ(focused(), Path({0, 5}));
        EXPECT_TRUE(press(key));
        EXPECT_EQ(focused(), Path({0, 2})) << "the first one that can be tapped";
        press(key);
        EXPECT_EQ(focused(), Path({0, 2})) << "there is none above it";
    }
}

TEST_F(UITableViewKeys, EndAndPageDownStopAtTheLastTappableRow) {
    listener->refuses = [](NSIndexPath path) { return path.row > 97; };
    press(Code::Tab);
    EXPECT_TRUE(press(Code::End));
    EXPECT_EQ(focused(), Path({0, 97})) << "the last one that can be tapped";
    press(Code::PageDown);
    EXPECT_EQ(focused(), Path({0, 97}));
}

TEST_F(UITableViewKeys, MoveNowhereIfACallbackRemovesTheRows) {
    const auto takeRows = [this] {
        source->rows = {0};
        table->reloadData();
        table->numberOfSections();
    };
    table->becomeFirstResponder();
    for (const Code key : {Code::Return, Code::PageDown, Code::Home}) {
        reload({100});
        press(Code::Down);
        ASSERT_TRUE(focused());
        listener->whenQueried = takeRows;
        press(key);
        listener->whenQueried = nullptr;
        EXPECT_EQ(focused(), std::nullopt);
    }
    EXPECT_TRUE(listener->taps.empty());
    reload({100});
    listener->refuses = [](NSIndexPath) { return true; };
    listener->whenQueried = takeRows;
    EXPECT_FALSE(table->canBecomeFirstResponder());
}

TEST_F(UITableViewKeys, ReturnRevealsTheTappedRow) {
    press(Code::Tab);
    table->setContentOffset({0, 2000});
    window.tick(0);
    EXPECT_TRUE(window.press(Code::Return));
    EXPECT_EQ(listener->taps, Paths({{0, 0}}));
    window.runUntilStill();
    EXPECT_EQ(offset(), 0);
}

TEST_F(UITableViewKeys, SkipAHundredRowsAtMost) {
    reload({1'000'000});
    NSInteger second = 101;
    listener->refuses = [&second](NSIndexPath path) { return path.row != 0 && path.row != second; };
    press(Code::Tab);
    press(Code::Down);
    EXPECT_EQ(focused(), Path({0, 101})) << "a hundred in between";
    press(Code::Home);
    second = 102;
    listener->queries = 0;
    press(Code::Down);
    EXPECT_EQ(focused(), Path({0, 0}));
    EXPECT_EQ(listener->queries, UITableView::highestPassedCount + 1);
}

TEST_F(UITableViewKeys, KeepTheFocusIfNoRowCanBeTapped) {
    press(Code::Tab);
    listener->refuses = [](NSIndexPath) { return true; };
    press(Code::End);
    EXPECT_EQ(focused(), Path({0, 0}));
}

TEST_F(UITableViewKeys, QueryNoMoreInALongTable) {
    std::vector<std::size_t> queried;
    for (const NSInteger rows : {NSInteger{100'000}, NSInteger{1'000'000'000}}) {
        reload({rows});
        table->becomeFirstResponder();
        press(Code::Home);
        source->queried.clear();
        listener->queries = 0;
        press(Code::End);
        EXPECT_EQ(focused(), Path({0, rows - 1}));
        EXPECT_EQ(listener->queries, 1);
        for (const Code code : {Code::PageUp, Code::Up, Code::Down}) press(code);
        EXPECT_EQ(listener->queries, 4);
        queried.push_back(source->queried.size());
    }
    EXPECT_LT(queried[1], queried[0] + 20) << "cells";
}

TEST_F(UITableViewKeys, ReturnAndSpaceTapTheRow) {
    press(Code::Tab);
    press(Code::Down);
    EXPECT_TRUE(window.press(Code::Return));
    EXPECT_EQ(listener->taps, Paths({{0, 1}}));
    EXPECT_TRUE(table->cellForRowAtIndexPath({0, 1})->isHighlighted());
    window.run(0.11);
    EXPECT_FALSE(table->cellForRowAtIndexPath({0, 1})->isHighlighted());
    EXPECT_TRUE(press(Code::Space));
    EXPECT_EQ(listener->taps, Paths({{0, 1}, {0, 1}}));
    EXPECT_TRUE(window.press(Code::Return, 0, true));
    EXPECT_EQ(listener->taps.size(), 2U) << "a key that is held taps once";
}

TEST_F(UITableViewKeys, ReturnDoesNotTapARowThatCannotBeTapped) {
    press(Code::Tab);
    listener->refuses = [](NSIndexPath path) { return path.row == 0; };
    EXPECT_FALSE(press(Code::Return));
    EXPECT_TRUE(listener->taps.empty());
}

TEST_F(UITableViewKeys, HandUpOtherKeysAndCommands) {
    press(Code::Tab);
    EXPECT_FALSE(press(Code::Left));
    EXPECT_FALSE(press(Code::Right));
    EXPECT_FALSE(press(Code::Escape));
    EXPECT_FALSE(window.press(Code::Return, UIKey::Control));
    EXPECT_FALSE(window.press(Code::Down, UIKey::Alternate));
    EXPECT_EQ(focused(), Path({0, 0}));
}

TEST_F(UITableViewKeys, SurviveAnyCallback) {
    press(Code::Tab);
    press(Code::End);
    listener->whenQueried = [this] {
        source->rows = {1};
        table->reloadData();
        table->layoutIfNeeded();
    };
    press(Code::Up); // The row that it would go to is gone.
    EXPECT_EQ(focused(), Path({0, 0}));
    listener->whenQueried = nullptr;
    const WeakRef<UITableView> weak = table;
    listener->whenTapped = [this] {
        table->removeFromSuperview();
        table = nullptr;
    };
    window.press(Code::Return);
    EXPECT_TRUE(weak.expired());
    EXPECT_EQ(listener->taps, Paths({{0, 0}}));
}

TEST_F(UITableViewKeys, CountFromTheLandingOfAScroll) {
    press(Code::Tab);
    window.press(Code::End);
    window.tick(TestWindow::frame);
    window.press(Code::Home); // Its row is still in sight.
    window.runUntilStill();
    EXPECT_EQ(focused(), Path({0, 0}));
    EXPECT_EQ(offset(), 0);
}
