// Rows that are inserted, removed or reloaded.

#include "TableChangesStage.h"

using namespace gx;
using Path = std::optional<NSIndexPath>;
using Paths = std::vector<NSIndexPath>;

namespace {

struct UITableViewChanges : TableChangesStage {};

/// Reloads when a cell goes.
class Reloading : public NSObject, public UITableViewDelegate {
public:
    bool reloads = false;
    void tableView_didEndDisplayingCell_forRowAtIndexPath(const Ref<UITableView>& table, const Ref<UITableViewCell>&,
                                                          NSIndexPath) override {
        if (reloads) table->reloadData();
    }
};

} // namespace

TEST_F(UITableViewChanges, InsertionKeepsOtherCells) {
    const auto cellOfB = table->cellForRowAtIndexPath({0, 1});
    const auto cellOfC = table->cellForRowAtIndexPath({0, 2});
    insert(2, "new");
    EXPECT_EQ(table->rectForRowAtIndexPath({0, 3}), CGRectMake(0, 132, 320, 44));
    EXPECT_EQ(cellOfC->frame(), CGRectMake(0, 132, 320, 44)) << "at once";
    EXPECT_EQ(table->cellForRowAtIndexPath({0, 1}), cellOfB);
    EXPECT_EQ(table->cellForRowAtIndexPath({0, 3}), cellOfC);
    EXPECT_EQ(shown(), "abnewcdefghi");
    EXPECT_EQ(source->queried, Paths({{0, 2}}));
    EXPECT_EQ(table->contentSize().height, 27 * 44);
}

TEST_F(UITableViewChanges, RemovalKeepsOtherCells) {
    const auto cellOfD = table->cellForRowAtIndexPath({0, 3});
    remove(2);
    EXPECT_EQ(table->cellForRowAtIndexPath({0, 2}), cellOfD);
    EXPECT_EQ(cellOfD->frame(), CGRectMake(0, 88, 320, 44));
    EXPECT_EQ(shown(), "abdefghijk");
}

TEST_F(UITableViewChanges, FingerHitsRowsInTheirFinalPlaces) {
    const auto cellOfC = table->cellForRowAtIndexPath({0, 2});
    remove(2);
    const auto hit = window->hitTest({160, 110});
    EXPECT_FALSE(hit->isDescendantOfView(cellOfC));
    EXPECT_TRUE(hit->isDescendantOfView(table->cellForRowAtIndexPath({0, 2})));
    EXPECT_EQ(table->indexPathForCell(cellOfC), std::nullopt);
}

TEST_F(UITableViewChanges, TakesPathsInAnyOrder) {
    names.insert(names.begin() + 1, "1");
    names.insert(names.begin() + 3, "2");
    count();
    table->insertRowsAtIndexPaths_animated({{0, 3}, {0, 1}}, true);
    EXPECT_EQ(shown(), "a1b2cdefgh");
    const auto before = drawn();
    window.runUntilStill();
    names.erase(names.begin() + 3);
    names.erase(names.begin() + 1);
    count();
    table->deleteRowsAtIndexPaths_animated({{0, 1}, {0, 3}}, true);
    EXPECT_EQ(shown(), "abcdefghij");
    const auto now = drawn();
    EXPECT_NEAR(now.at("c").baseline - now.at("a").baseline, 4 * 44, 1e-9);
    EXPECT_NEAR(now.at("2").top, 132, 1e-9);
    EXPECT_NEAR(before.at("c").baseline - before.at("a").baseline, 2 * 44, 1e-9);
}

TEST_F(UITableViewChanges, FinishesOneBeforeTheNext) {
    insert(2, "new");
    window.run(0.1);
    remove(0);
    window.run(0.1);
    insert(0, "top");
    EXPECT_EQ(shown(), "topbnewcdefghi");
    window.runUntilStill();
    EXPECT_EQ(shown(), "topbnewcdefghi");
    EXPECT_LE(table->subviews().size(), 13U);
}

TEST_F(UITableViewChanges, ReloadsIfCountsDoNotMatch) {
    const auto expectReload = [this](const char* what) {
        source->queried.clear();
        window.tick(0);
        EXPECT_EQ(source->queried.size(), 10U) << what;
        EXPECT_EQ(table->numberOfRowsInSection(0), static_cast<NSInteger>(names.size())) << what;
    };
    table->insertRowsAtIndexPaths_animated({{0, 2}}, true);
    expectReload("nothing came");
    names.emplace_back("one");
    count();
    table->insertRowsAtIndexPaths_animated({{0, 2}, {0, 2}}, true);
    expectReload("twice the same");
    names.emplace_back("two");
    count();
    table->insertRowsAtIndexPaths_animated({{0, 28}}, true);
    expectReload("beyond the end");
    names.emplace_back("three");
    count();
    table->insertRowsAtIndexPaths_animated({{1, 0}}, true);
    expectReload("no such section");
    names.pop_back();
    count();
    table->deleteRowsAtIndexPaths_animated({{0, -1}}, true);
    expectReload("no such row");
    names.emplace_back("last");
    count();
    table->insertRowsAtIndexPaths_animated({{0, 28}}, true);
    source->queried.clear();
    window.tick(0);
    EXPECT_EQ(source->queried, Paths({{0, 10}})) << "this one adds up: nothing but the row that may come into sight on the way";
}

TEST_F(UITableViewChanges, ReloadedRowsLeaveOthersAlone) {
    const auto cellOfA = table->cellForRowAtIndexPath({0, 0});
    names[1] = "B";
    table->reloadRowsAtIndexPaths({{0, 1}, {0, 20}, {5, 5}});
    EXPECT_EQ(shown(), "aBcdefghij");
    EXPECT_EQ(source->queried, Paths({{0, 1}}));
    EXPECT_EQ(table->cellForRowAtIndexPath({0, 0}), cellOfA);
}

TEST_F(UITableViewChanges, JoinsAPendingReload) {
    table->reloadData();
    insert(0, "new");
    EXPECT_EQ(shown(), "newabcdefghi");
    const auto now = drawn();
    EXPECT_NEAR(now.at("a").baseline - now.at("new").baseline, 44, 1e-9);
}

TEST_F(UITableViewChanges, JoinAReloadByTheDelegate) {
    const auto delegate = create<Reloading>();
    table->setDelegate(delegate);
    window.tick(0);
    remove(2);
    delegate->reloads = true;
    insert(0, "new"); // The removal arrives first, and its cell goes.
    delegate->reloads = false;
    EXPECT_EQ(shown(), "newabdefghij");
    EXPECT_EQ(drawn().at("a").baseline, 56) << "the second row of 44 points, its text 12 below its top";
}

TEST_F(UITableViewChanges, JoinAReloadByTheDataSource) {
    source->whenCounted = [this] { table->reloadData(); };
    insert(0, "new");
    source->whenCounted = nullptr;
    EXPECT_EQ(shown(), "newabcdefghi");
    EXPECT_EQ(drawn().at("a").baseline, 56);
}

TEST_F(UITableViewChanges, RemoveAHeaderWithoutTitle) {
    source->titles = {"header"};
    table->reloadData();
    window.tick(0);
    ASSERT_TRUE(drawn().contains("header"));
    source->titles = {};
    insert(0, "new", false);
    window.tick(0);
    EXPECT_FALSE(drawn().contains("header"));
    EXPECT_EQ(drawn().at("new").baseline, 12) << "the first row has its place";
}
