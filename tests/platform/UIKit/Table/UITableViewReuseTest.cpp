// How a table gets cells and uses them again.

#include <algorithm>

#include "TableStage.h"

using namespace gx;
using Path = std::optional<NSIndexPath>;
using Paths = std::vector<NSIndexPath>;

namespace {

struct UITableViewReuse : TableStage {};

} // namespace

TEST_F(UITableViewReuse, ReusesCellsThatLeave) {
    for (int i = 0; i < 90; ++i) scrollTo(44 * i + 22);
    EXPECT_EQ(cellCount(), 11);
    EXPECT_EQ(textOf({0, 99}), "0.99");
    EXPECT_EQ(source->queried.size(), 100U) << "each row once";
}

TEST_F(UITableViewReuse, KeepsIdentifiersApart) {
    table->registerClass_forCellReuseIdentifier<UITableViewCell>("odd");
    source->cell = [](const Ref<UITableView>& view, NSIndexPath path) {
        auto cell = view->dequeueReusableCellWithIdentifier(path.row % 2 == 0 ? "row" : "odd");
        EXPECT_EQ(cell->reuseIdentifier(), path.row % 2 == 0 ? "row" : "odd");
        cell->textLabel()->setText(std::to_string(path.row));
        return cell;
    };
    for (int i = 0; i < 30; ++i) scrollTo(44 * i);
    EXPECT_EQ(textOf({0, 30}), "30");
    EXPECT_LE(cellCount(), 16) << "ten from before, and six of the other kind";
}

TEST_F(UITableViewReuse, ReleasesCellsWithoutIdentifier) {
    WeakRef<UITableViewCell> first;
    source->cell = [&first](const Ref<UITableView>&, NSIndexPath path) {
        auto cell = create<UITableViewCell>();
        if (path.row == 0) first = cell;
        return cell;
    };
    table->reloadData();
    scrollTo(0);
    EXPECT_FALSE(first.expired());
    scrollTo(44);
    EXPECT_TRUE(first.expired());
}

TEST_F(UITableViewReuse, DequeuesNothingWithoutAFactory) {
    EXPECT_EQ(table->dequeueReusableCellWithIdentifier("unknown"), nullptr);
    int made = 0;
    table->registerClass_forCellReuseIdentifier(
        [&made] {
            ++made;
            return create<UITableViewCell>(UITableViewCellStyleValue1, "value");
        },
        "value");
    const auto cell = table->dequeueReusableCellWithIdentifier("value");
    EXPECT_EQ(cell->style(), UITableViewCellStyleValue1);
    EXPECT_EQ(made, 1);
    table->registerClass_forCellReuseIdentifier(nullptr, "value");
    EXPECT_EQ(table->dequeueReusableCellWithIdentifier("value"), nullptr);
}

TEST_F(UITableViewReuse, PoolsDequeuedCellsThatAreNotUsed) {
    scrollTo(22);
    scrollTo(44); // One cell waits.
    source->cell = [](const Ref<UITableView>& view, NSIndexPath path) {
        view->dequeueReusableCellWithIdentifier("row");
        return TableSource::usualCell(view, path);
    };
    for (int i = 2; i < 30; ++i) scrollTo(44 * i);
    EXPECT_LE(cellCount(), 22);
    EXPECT_EQ(textOf({0, 29}), "0.29");
}

TEST_F(UITableViewReuse, LeavesRowsWithoutACellEmpty) {
    source->cell = [](const Ref<UITableView>& view, NSIndexPath path) {
        return path.row == 1 ? nullptr : TableSource::usualCell(view, path);
    };
    table->reloadData();
    scrollTo(0);
    EXPECT_EQ(table->cellForRowAtIndexPath({0, 1}), nullptr);
    EXPECT_EQ(table->indexPathForRowAtPoint({10, 50}), Path({0, 1}));
    EXPECT_EQ(textOf({0, 2}), "0.2");
    source->queried.clear();
    scrollTo(10);
    EXPECT_EQ(source->queried, Paths({{0, 10}})) << "queried once while it is in sight";
}

TEST_F(UITableViewReuse, ShowsACellGivenTwiceInTheLaterRow) {
    const auto only = create<UITableViewCell>(UITableViewCellStyleDefault, "only");
    source->cell = [&only](const Ref<UITableView>&, NSIndexPath) { return only; };
    table->reloadData();
    scrollTo(0);
    EXPECT_EQ(table->indexPathForCell(only), Path({0, 9}));
    EXPECT_EQ(table->cellForRowAtIndexPath({0, 0}), nullptr);
}

TEST_F(UITableViewReuse, ReportsCellsThatLeave) {
    const auto giver = create<HeightGiver>();
    table->setDelegate(giver);
    window.tick(0);
    giver->gone.clear();
    scrollTo(88);
    std::sort(giver->gone.begin(), giver->gone.end());
    EXPECT_EQ(giver->gone, Paths({{0, 0}, {0, 1}}));
}

TEST_F(UITableViewReuse, GivesACellDequeuedOutsideAQueryToTheCaller) {
    source->rows = {9};
    table->reloadData();
    window.tick(0); // One cell waits now.
    const auto cell = table->dequeueReusableCellWithIdentifier(TableSource::identifier);
    ASSERT_TRUE(cell);
    EXPECT_FALSE(cell->superview());
    EXPECT_FALSE(cell->isHidden());
}

TEST_F(UITableViewReuse, BoundsTheNumberOfWaitingCells) {
    source->cell = [](const Ref<UITableView>&, NSIndexPath) { return create<UITableViewCell>(UITableViewCellStyleDefault, "own"); };
    source->rows = {100'000};
    table->reloadData();
    for (int i = 0; i < 50; ++i) {
        table->setContentOffset({0, i * 440.0});
        window.tick(TestWindow::frame);
    }
    // A hundred of this kind wait and ten of the first one, and ten are shown.
    EXPECT_EQ(table->subviews().size(), 120U);
}

// Registering a class again

TEST_F(UITableViewReuse, RegisteringAgainEmptiesThePool) {
    const WeakRef<UITableViewCell> first = table->cellForRowAtIndexPath({0, 0});
    const auto second = table->cellForRowAtIndexPath({0, 1});
    scrollTo(22);
    scrollTo(44);
    ASSERT_TRUE(first.lock()->isHidden()) << "it waits";
    ASSERT_EQ(cellCount(), 11);
    table->registerClass_forCellReuseIdentifier<UITableViewCell>("another");
    window.tick(0);
    EXPECT_FALSE(first.expired());
    table->registerClass_forCellReuseIdentifier<UITableViewCell>(TableSource::identifier);
    EXPECT_FALSE(second->isHidden());
    window.tick(0);
    EXPECT_TRUE(first.expired());
    EXPECT_EQ(cellCount(), 10) << "those in sight stay";
    EXPECT_EQ(table->cellForRowAtIndexPath({0, 1}), second);
    EXPECT_EQ(source->queried.size(), 11U) << "no row is queried again";
}

TEST_F(UITableViewReuse, CellsInSightAreNotReusedAfterRegisteringAgain) {
    std::vector<WeakRef<UITableViewCell>> old;
    for (NSInteger row = 0; row < 10; ++row) old.push_back(table->cellForRowAtIndexPath({0, row}));
    int made = 0;
    table->registerClass_forCellReuseIdentifier(
        [&made] {
            ++made;
            return create<UITableViewCell>(UITableViewCellStyleDefault, TableSource::identifier);
        },
        TableSource::identifier);
    table->reloadData();
    window.tick(0);
    EXPECT_EQ(made, 10);
    for (const auto& cell : old) EXPECT_TRUE(cell.expired());
    scrollTo(440);
    EXPECT_EQ(made, 10) << "cells made since then are reused";
}

TEST_F(UITableViewReuse, RegisteringAgainDuringAQueryAppliesToTheDequeuedCell) {
    scrollTo(22);
    scrollTo(44); // One cell waits.
    WeakRef<UITableViewCell> dequeued;
    source->cell = [&dequeued](const Ref<UITableView>& view, NSIndexPath path) {
        dequeued = view->dequeueReusableCellWithIdentifier(TableSource::identifier);
        view->registerClass_forCellReuseIdentifier<UITableViewCell>(TableSource::identifier);
        return TableSource::usualCell(view, path);
    };
    scrollTo(45);
    source->cell = nullptr;
    window.tick(0);
    EXPECT_TRUE(dequeued.expired()) << "it was not used and is not reused";
    EXPECT_EQ(textOf({0, 11}), "0.11");
    EXPECT_EQ(cellCount(), 11);
}

TEST_F(UITableViewReuse, RegisteringAgainKeepsACellBelowAFinger) {
    source->rows = {13}; // So that no row comes into sight that takes the cell of row 2.
    table->reloadData();
    window.tick(0);
    const WeakRef<UITableViewCell> touched = table->cellForRowAtIndexPath({0, 2});
    window.down({160, 110});
    window.glide({160, 110}, {160, -90}, 40);
    window.tick(0);
    ASSERT_TRUE(touched.lock()->isHidden());
    table->registerClass_forCellReuseIdentifier<UITableViewCell>(TableSource::identifier);
    window.tick(0);
    EXPECT_FALSE(touched.expired());
    window.up({160, -90});
    window.runUntilStill();
    EXPECT_TRUE(touched.expired());
}

TEST_F(UITableViewReuse, AReplacedFactoryMayHaveHeldTheTable) {
    const WeakRef<UITableView> weak = table;
    // What is destroyed with the factory registers once more, and releases the table.
    const auto guard = [this](void*) {
        table->registerClass_forCellReuseIdentifier<UITableViewCell>("other");
        table->removeFromSuperview();
        table = nullptr;
    };
    table->registerClass_forCellReuseIdentifier(
        [held = std::shared_ptr<void>(&source, guard)] { return create<UITableViewCell>(UITableViewCellStyleDefault, "odd"); }, "odd");
    ASSERT_FALSE(weak.expired());
    table->registerClass_forCellReuseIdentifier(nullptr, "odd");
    EXPECT_TRUE(weak.expired());
}
