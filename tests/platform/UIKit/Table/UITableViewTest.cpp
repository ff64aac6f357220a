// What a table shows: rows, headers and separators, and where they lie.

#include "UITableView.h"

#include <limits>

#include "RecordingCanvas.h"
#include "TableStage.h"
#include "UITableViewRows.h"

using namespace gx;
using Path = std::optional<NSIndexPath>;
using Paths = std::vector<NSIndexPath>;

namespace {

struct UITableViewTest : TableStage {};

} // namespace

TEST_F(UITableViewTest, ShowsCellsForRowsInSightOnly) {
    Paths expected;
    for (NSInteger row = 0; row < 10; ++row) expected.push_back({0, row});
    EXPECT_EQ(source->queried, expected);
    EXPECT_EQ(table->indexPathsForVisibleRows(), expected);
    EXPECT_EQ(textOf({0, 9}), "0.9");
    EXPECT_EQ(textOf({0, 10}), "(no cell)");
    EXPECT_EQ(table->cellForRowAtIndexPath({0, 3})->frame(), CGRectMake(0, 132, 320, 44));
    EXPECT_EQ(table->contentSize(), CGSizeMake(320, 4400));
    scrollTo(0.5);
    EXPECT_EQ(textOf({0, 10}), "0.10");
    EXPECT_EQ(textOf({0, 0}), "0.0");
    scrollTo(44);
    EXPECT_EQ(textOf({0, 0}), "(no cell)");
}

TEST_F(UITableViewTest, ReturnsWhereRowsLie) {
    source->rows = {2, 0, 3};
    source->titles = {std::nullopt, "empty", "third"};
    table->reloadData();
    EXPECT_EQ(table->numberOfSections(), 3);
    EXPECT_EQ(table->numberOfRowsInSection(2), 3);
    EXPECT_EQ(table->numberOfRowsInSection(3), 0);
    EXPECT_EQ(table->numberOfRowsInSection(-1), 0);
    EXPECT_EQ(table->rectForRowAtIndexPath({0, 1}), CGRectMake(0, 44, 320, 44));
    // Below two headers of 28.
    EXPECT_EQ(table->rectForRowAtIndexPath({2, 0}), CGRectMake(0, 144, 320, 44));
    EXPECT_EQ(table->rectForRowAtIndexPath({2, 3}), CGRectZero);
    EXPECT_EQ(table->indexPathForRowAtPoint({0, 87.9}), Path({0, 1}));
    EXPECT_EQ(table->indexPathForRowAtPoint({0, 88}), std::nullopt);
    EXPECT_EQ(table->indexPathForRowAtPoint({319.9, 144}), Path({2, 0}));
    EXPECT_EQ(table->indexPathForRowAtPoint({320, 144}), std::nullopt);
    EXPECT_EQ(table->indexPathForRowAtPoint({-1, 144}), std::nullopt);
    EXPECT_EQ(table->indexPathForCell(table->cellForRowAtIndexPath({2, 1})), Path({2, 1}));
    EXPECT_EQ(table->indexPathForCell(nullptr), std::nullopt);
}

TEST_F(UITableViewTest, ScrollsHeadersWithTheContent) {
    source->rows = {20, 20};
    source->titles = {"one", "two"};
    table->reloadData();
    window.tick(0);
    const auto texts = [this] {
        RecordingCanvas canvas;
        table->renderInContext(canvas);
        std::vector<std::string> found;
        for (const std::string& call : canvas.painted()) {
            if (call.starts_with("text one ") || call.starts_with("text two ")) found.push_back(call.substr(5, 3));
        }
        return found;
    };
    EXPECT_EQ(texts(), std::vector<std::string>{"one"});
    scrollTo(27.5);
    EXPECT_EQ(texts(), std::vector<std::string>{"one"});
    scrollTo(28);
    EXPECT_TRUE(texts().empty());
    scrollTo(28 + 20 * 44 - 440);
    EXPECT_TRUE(texts().empty());
    scrollTo(28 + 20 * 44 - 439);
    EXPECT_EQ(texts(), std::vector<std::string>{"two"});
    scrollTo(28 + 20 * 44 - 440);
    EXPECT_TRUE(texts().empty()) << "it leaves at the bottom, too";
    scrollTo(0);
    source->titles = {"two"};
    table->reloadData();
    window.tick(0);
    EXPECT_EQ(texts(), std::vector<std::string>{"two"}) << "a reload asks for the titles in sight, too";
}

TEST_F(UITableViewTest, DrawsSeparatorsBetweenRows) {
    source->rows = {3};
    source->cell = [](const Ref<UITableView>&, NSIndexPath) { return nullptr; };
    table->setSeparatorColor(UIColor::blackColor());
    table->reloadData();
    window.tick(0);
    RecordingCanvas canvas;
    table->renderInContext(canvas);
    EXPECT_EQ(canvas.painted(), (std::vector<std::string>{"fill 16 43.5 304 0.5 with 0 0 0 1", "fill 16 87.5 304 0.5 with 0 0 0 1"}));
    table->setSeparatorColor(std::nullopt);
    canvas.calls.clear();
    table->renderInContext(canvas);
    EXPECT_TRUE(canvas.painted().empty());
}

TEST_F(UITableViewTest, ShowsABillionRowsExactly) {
    constexpr NSInteger billion = 1'000'000'000;
    source->rows = {billion};
    table->reloadData();
    source->queried.clear();
    table->scrollToRowAtIndexPath_animated({0, billion - 1}, false);
    EXPECT_EQ(table->contentOffset().y, 44.0 * billion - 440);
    EXPECT_EQ(textOf({0, billion - 1}), "0.999999999");
    EXPECT_EQ(table->indexPathsForVisibleRows().front(), (NSIndexPath{0, billion - 10}));
    EXPECT_EQ(source->queried.size(), 10U);
}

TEST_F(UITableViewTest, TreatsNegativeCountsAndHeightsAsZero) {
    source->rows = {-5, 2};
    table->reloadData();
    EXPECT_EQ(table->numberOfRowsInSection(0), 0);
    EXPECT_EQ(table->rectForRowAtIndexPath({1, 0}), CGRectMake(0, 0, 320, 44));
    table->setRowHeight(std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(table->rowHeight(), 0);
    window.tick(0);
    EXPECT_TRUE(table->indexPathsForVisibleRows().empty());
    table->setRowHeight(UITableView::automaticDimension);
    EXPECT_EQ(table->rowHeight(), 44);
    table->setRowHeight(-2);
    EXPECT_EQ(table->rowHeight(), 0);
    table->setRowHeight(60);
    EXPECT_EQ(table->rectForRowAtIndexPath({1, 1}), CGRectMake(0, 60, 320, 60));
    table->setDataSource({});
    EXPECT_EQ(table->numberOfSections(), 0);
    window.tick(0);
    EXPECT_EQ(table->contentSize().height, 0);
}

TEST_F(UITableViewTest, QueriesHeightsOncePerReload) {
    const auto giver = create<HeightGiver>();
    giver->heights = {10, -7, std::numeric_limits<double>::quiet_NaN(), UITableView::automaticDimension};
    source->rows = {50};
    table->setDelegate(giver);
    window.tick(0);
    EXPECT_EQ(giver->queries, 50);
    EXPECT_EQ(table->rectForRowAtIndexPath({0, 0}).size.height, 10);
    EXPECT_EQ(table->rectForRowAtIndexPath({0, 1}).size.height, 0);
    EXPECT_EQ(table->rectForRowAtIndexPath({0, 2}).size.height, 0);
    EXPECT_EQ(table->rectForRowAtIndexPath({0, 3}), CGRectMake(0, 10, 320, 44));
    EXPECT_EQ(table->indexPathsForVisibleRows()[1], (NSIndexPath{0, 3})) << "rows without height are not shown";
    scrollTo(300);
    EXPECT_EQ(giver->queries, 50);
    table->reloadData();
    table->reloadData();
    window.tick(0);
    EXPECT_EQ(giver->queries, 100);
    source->rows = {UITableViewRows::highestHeightCount + 1};
    table->reloadData();
    window.tick(0);
    EXPECT_EQ(giver->queries, 100) << "too many to have heights of their own";
}

TEST_F(UITableViewTest, KeepsTheOffsetClampedAfterAReload) {
    scrollTo(1000);
    source->rows = {80};
    table->reloadData();
    window.tick(0);
    EXPECT_EQ(table->contentOffset().y, 1000);
    source->rows = {20};
    table->reloadData();
    window.tick(0);
    EXPECT_EQ(table->contentOffset().y, 440);
    EXPECT_EQ(textOf({0, 19}), "0.19");
}

TEST_F(UITableViewTest, ScrollsToARowByTheShortestWay) {
    table->scrollToRowAtIndexPath_animated({0, 9}, false);
    EXPECT_EQ(table->contentOffset().y, 0);
    table->scrollToRowAtIndexPath_animated({0, 10}, false);
    EXPECT_EQ(table->contentOffset().y, 44);
    table->scrollToRowAtIndexPath_animated({0, 0}, false);
    EXPECT_EQ(table->contentOffset().y, 0);
    table->scrollToRowAtIndexPath_animated({0, 100}, false);
    EXPECT_EQ(table->contentOffset().y, 0) << "no such row";
    table->setRowHeight(500);
    table->scrollToRowAtIndexPath_animated({0, 7}, false);
    EXPECT_EQ(table->contentOffset().y, 3500);
    table->setRowHeight(44);
    scrollTo(0);
    table->scrollToRowAtIndexPath_animated({0, 50}, true);
    EXPECT_EQ(table->contentOffset().y, 0);
    window.runUntilStill();
    EXPECT_EQ(table->contentOffset().y, 51 * 44 - 440);
}

TEST_F(UITableViewTest, GivesCellsItsOwnWidth) {
    table->setFrame(CGRectMake(0, 0, 200, 440));
    window.tick(0);
    EXPECT_EQ(table->cellForRowAtIndexPath({0, 2})->frame(), CGRectMake(0, 88, 200, 44));
}

TEST_F(UITableViewTest, SettingTheSameValueQueriesNothing) {
    const int before = source->countQueries;
    table->setRowHeight(UITableView::automaticDimension);
    table->setSectionHeaderHeight(UITableView::automaticDimension);
    table->setSeparatorColor(table->separatorColor());
    EXPECT_FALSE(window.tick(0));
    EXPECT_EQ(source->countQueries, before);
}

TEST_F(UITableViewTest, ReloadedRowsOfAVeryLongSectionKeepTheUsualHeight) {
    const auto giver = create<HeightGiver>();
    giver->heights = {100};
    table->setDelegate(giver);
    source->rows = {UITableViewRows::highestHeightCount + 1};
    window.tick(0);
    table->reloadRowsAtIndexPaths({{0, 0}});
    EXPECT_EQ(giver->queries, 0);
    EXPECT_EQ(table->rectForRowAtIndexPath({0, 1}), CGRectMake(0, 44, 320, 44));
}

TEST_F(UITableViewTest, BoundsTheNumberOfVisibleRows) {
    source->rows = {1'000'000};
    table->reloadData();
    table->setFrame(CGRectMake(0, 0, 320, 1e9));
    window.tick(0);
    EXPECT_EQ(table->indexPathsForVisibleRows().size(), 1000U);
    constexpr CGFloat infinity = std::numeric_limits<CGFloat>::infinity();
    for (const CGRect frame : {CGRectNull, CGRectMake(0, 0, 320, infinity), CGRectMake(0, 0, infinity, 440)}) {
        table->setFrame(frame);
        window.tick(0);
        EXPECT_TRUE(table->indexPathsForVisibleRows().empty());
    }
}

TEST_F(UITableViewTest, HasDefaultsForOptionalOperations) {
    class Brief : public NSObject, public UITableViewDataSource, public UITableViewDelegate {
    public:
        NSInteger tableView_numberOfRowsInSection(const Ref<UITableView>&, NSInteger) override { return 3; }
        Ref<UITableViewCell> tableView_cellForRowAtIndexPath(const Ref<UITableView>& asking, NSIndexPath) override {
            return asking->dequeueReusableCellWithIdentifier(TableSource::identifier);
        }
    };
    const auto brief = create<Brief>();
    table->setDataSource(brief);
    table->setDelegate(brief);
    window.tick(0);
    EXPECT_EQ(table->numberOfSections(), 1);
    EXPECT_EQ(table->rectForRowAtIndexPath({0, 0}), CGRectMake(0, 0, 320, 44));
    window.down({160, 66});
    window.run(0.1);
    EXPECT_TRUE(table->cellForRowAtIndexPath({0, 1})->isHighlighted());
    window.up({160, 66});
    window.runUntilStill();
    EXPECT_FALSE(table->cellForRowAtIndexPath({0, 1})->isHighlighted());
}

TEST_F(UITableViewTest, GivesHeadersTheirHeight) {
    source->titles = {"first"};
    table->reloadData();
    EXPECT_EQ(table->rectForRowAtIndexPath({0, 0}).origin.y, 28);
    table->setSectionHeaderHeight(50);
    EXPECT_EQ(table->rectForRowAtIndexPath({0, 0}).origin.y, 50);
    const int queries = source->countQueries;
    table->setSectionHeaderHeight(50);
    table->numberOfSections();
    EXPECT_EQ(source->countQueries, queries) << "nothing has changed";
    table->setSectionHeaderHeight(UITableView::automaticDimension);
    EXPECT_EQ(table->rectForRowAtIndexPath({0, 0}).origin.y, 28);
}

TEST_F(UITableViewTest, DrawsHeadersInTheirFont) {
    source->titles = {"first"};
    table->reloadData();
    const auto sizeOfHeader = [this] {
        RecordingCanvas canvas;
        window->draw(canvas);
        return canvas.fontSizes.at(0);
    };
    const CGFloat usual = sizeOfHeader();
    EXPECT_EQ(usual, 13);
    table->setSectionHeaderFont(UIFont::systemFontOfSize_weight(26));
    EXPECT_EQ(sizeOfHeader(), 26);
    EXPECT_EQ(table->rectForRowAtIndexPath({0, 0}).origin.y, 28) << "the height is set on its own";
    table->setSectionHeaderFont(nullptr);
    EXPECT_EQ(sizeOfHeader(), usual);
}

TEST_F(UITableViewTest, ADelegateMayGiveHeadersHeightsAndViewsOfTheirOwn) {
    class Headers : public NSObject, public UITableViewDelegate {
    public:
        std::vector<Ref<UIView>> given;
        CGFloat tableView_heightForHeaderInSection(const Ref<UITableView>&, NSInteger section) override {
            return section == 1 ? 60 : UITableView::automaticDimension;
        }
        Ref<UIView> tableView_viewForHeaderInSection(const Ref<UITableView>&, NSInteger section) override {
            if (section != 1) return nullptr;
            given.push_back(create<UIView>());
            return given.back();
        }
    };
    const auto headers = create<Headers>();
    source->rows = {2, 100};
    source->titles = {"first", "second"};
    table->setDelegate(headers);
    table->reloadData();
    table->layoutIfNeeded();
    // Rows are 44 high: 28 + 2 * 44 = 116, and 60 more.
    EXPECT_EQ(table->rectForRowAtIndexPath({1, 0}).origin.y, 116 + 60);
    ASSERT_EQ(headers->given.size(), 1U);
    const Ref<UIView> view = headers->given[0];
    EXPECT_EQ(view->superview(), table);
    const CGFloat inset = UITableViewCell::labelInset;
    EXPECT_EQ(view->frame(), CGRectMake(inset, 116, 320 - 2 * inset, 60));
    const auto isHeading = [](const auto& element) {
        return element->role() == UIAccessibilityRole::Heading && element->label() == "second";
    };
    const auto elements = table->accessibilityElements();
    EXPECT_EQ(std::count_if(elements.begin(), elements.end(), isHeading), 1) << "its title names it";

    // Out of sight it is no subview any more, and it is queried again when it comes back.
    table->setContentOffset_animated({0, 2000}, false);
    table->layoutIfNeeded();
    EXPECT_FALSE(view->superview());
    table->setContentOffset_animated({0, 0}, false);
    table->layoutIfNeeded();
    EXPECT_EQ(headers->given.size(), 2U);
    // So it is after a reload.
    table->reloadData();
    table->layoutIfNeeded();
    ASSERT_EQ(headers->given.size(), 3U);
    EXPECT_FALSE(headers->given[1]->superview());
    EXPECT_EQ(headers->given[2]->superview(), table);
}

TEST_F(UITableViewTest, IsReadFromTopToBottom) {
    source->titles = {"Head"};
    table->reloadData();
    window.runUntilStill();
    window.scrollPoints({160, 220}, 100); // Cells that come from the pool.
    window.scrollPoints({160, 220}, -100);
    window.runUntilStill();
    std::vector<std::string> labels;
    for (const auto& element : table->accessibilityElements()) labels.push_back(element->label().value_or(""));
    ASSERT_GE(labels.size(), 10U);
    EXPECT_EQ(labels[0], "Head");
    for (std::size_t i = 1; i < labels.size(); ++i) EXPECT_EQ(labels[i], "0." + std::to_string(i - 1));
}
