// Data sources and delegates that do something when they are called.

#include <algorithm>
#include <utility>

#include "TableStage.h"

using namespace gx;
using Paths = std::vector<NSIndexPath>;

namespace {

struct UITableViewCallback : TableStage {};

} // namespace

TEST_F(UITableViewCallback, MayReloadInEveryCallback) {
    source->cell = [](const Ref<UITableView>& view, NSIndexPath path) {
        view->reloadData();
        view->insertRowsAtIndexPaths_animated({path}, true);
        view->layoutIfNeeded();
        EXPECT_EQ(view->numberOfRowsInSection(0), 100);
        return TableSource::usualCell(view, path);
    };
    source->whenCounted = [this] {
        table->reloadData();
        table->layoutIfNeeded();
        EXPECT_EQ(table->numberOfSections(), 1);
    };
    table->reloadData();
    for (int i = 0; i < 5; ++i) window.tick(TestWindow::frame);
    source->cell = nullptr;
    source->whenCounted = nullptr;
    window.runUntilStill();
    EXPECT_EQ(textOf({0, 9}), "0.9");
    EXPECT_LE(cellCount(), 20);
}

TEST_F(UITableViewCallback, MayDropTheTable) {
    bool isGone = false;
    source->cell = [this, &isGone](const Ref<UITableView>& view, NSIndexPath path) {
        view->removeFromSuperview();
        table = nullptr;
        isGone = true;
        return TableSource::usualCell(view, path);
    };
    const WeakRef<UITableView> weak = table;
    table->reloadData();
    window.tick(TestWindow::frame);
    EXPECT_TRUE(isGone);
    EXPECT_TRUE(weak.expired());
}

TEST_F(UITableViewCallback, MayDropTheDataSourceForACell) {
    source->cell = [this](const Ref<UITableView>& view, NSIndexPath path) {
        const auto cell = TableSource::usualCell(view, path);
        source = nullptr;
        return cell;
    };
    table->reloadData();
    window.tick(TestWindow::frame);
    EXPECT_EQ(source, nullptr);
    EXPECT_TRUE(table->cellForRowAtIndexPath({0, 0}));
    EXPECT_FALSE(table->cellForRowAtIndexPath({0, 1}));
}

TEST_F(UITableViewCallback, MayDropTheDataSourceForACount) {
    source->whenCounted = [this] { source = nullptr; };
    table->reloadData();
    EXPECT_EQ(table->numberOfSections(), 1);
    EXPECT_EQ(table->numberOfRowsInSection(0), 0) << "nobody is left to tell";
}

TEST_F(UITableViewCallback, ThatChangesRowsCausesAReload) {
    using Change = std::function<void(NSIndexPath)>;
    const Change reloads = [this](NSIndexPath path) { table->reloadRowsAtIndexPaths({path}); };
    const Change inserts = [this](NSIndexPath path) { table->insertRowsAtIndexPaths_animated({path}, true); };
    for (const Change& change : {reloads, inserts}) {
        bool isFirst = true;
        source->cell = [&](const Ref<UITableView>& view, NSIndexPath path) {
            if (std::exchange(isFirst, false)) change(path);
            return TableSource::usualCell(view, path);
        };
        table->reloadData();
        source->queried.clear();
        window.tick(0);
        window.tick(0);
        EXPECT_EQ(source->queried.size(), 11U) << "the first row, and then all ten again";
        EXPECT_EQ(textOf({0, 9}), "0.9");
    }
}

TEST_F(UITableViewCallback, MayMoveALeavingCellElsewhere) {
    source->cell = [](const Ref<UITableView>&, NSIndexPath) { return create<UITableViewCell>(); };
    const auto giver = create<HeightGiver>();
    const auto elsewhere = create<UIView>();
    table->setDelegate(giver);
    window.tick(0);
    giver->whenGone = [&elsewhere](const Ref<UITableViewCell>& cell) { elsewhere->addSubview(cell); };
    const NSInteger before = cellCount();
    scrollTo(44);
    EXPECT_EQ(elsewhere->subviews().size(), 1U);
    EXPECT_EQ(cellCount(), before) << "one has come for it";
}

TEST_F(UITableViewCallback, ForAHeightSeesTheLastCounts) {
    const auto giver = create<HeightGiver>();
    giver->whenQueried = [this] {
        EXPECT_EQ(table->numberOfRowsInSection(0), 100);
        table->reloadData();
        table->deleteRowsAtIndexPaths_animated({{0, 0}}, true);
    };
    table->setDelegate(giver);
    source->rows = {3};
    for (int i = 0; i < 3; ++i) {
        window.tick(TestWindow::frame);
        giver->whenQueried = nullptr;
    }
    EXPECT_EQ(table->numberOfRowsInSection(0), 3);
}

TEST_F(UITableViewCallback, IsMadeOnceForRowsReloadedBeforeLayout) {
    source->queried.clear();
    table->reloadData();
    table->reloadRowsAtIndexPaths({{0, 2}});
    EXPECT_EQ(source->queried, Paths{});
    window.tick(0);
    EXPECT_EQ(std::count(source->queried.begin(), source->queried.end(), NSIndexPath{0, 2}), 1);
}

TEST_F(UITableViewCallback, ThatLaysOutDefersTheLayout) {
    source->rows = {3};
    source->whenCounted = [this] {
        table->setNeedsLayout();
        table->layoutIfNeeded();
    };
    table->reloadData();
    EXPECT_EQ(table->numberOfRowsInSection(0), 3);
    source->whenCounted = {};
    window.tick(0);
    EXPECT_EQ(table->indexPathsForVisibleRows(), (Paths{{0, 0}, {0, 1}, {0, 2}}));
}

TEST_F(UITableViewCallback, ThatReloadsEndsTheLayout) {
    source->cell = [this](const Ref<UITableView>& asking, NSIndexPath path) {
        EXPECT_LT(path.row, source->rows[0]);
        if (path.row == 3 && source->rows[0] > 4) {
            source->rows = {4};
            asking->reloadData();
        }
        return TableSource::usualCell(asking, path);
    };
    table->reloadData();
    window.runUntilStill();
    EXPECT_EQ(table->indexPathsForVisibleRows().size(), 4U);
}
