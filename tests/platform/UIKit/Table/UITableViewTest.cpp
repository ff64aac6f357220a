#include "UITableView.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "RecordingCanvas.h"
#include "TableSource.h"
#include "TestWindow.h"

using namespace gx;
using Path = std::optional<NSIndexPath>;
using Paths = std::vector<NSIndexPath>;

namespace {

/// Gives heights, and notes which cells have gone.
class HeightGiver : public NSObject, public UITableViewDelegate {
public:
    std::vector<CGFloat> heights;
    int questions = 0;
    Paths gone;
    std::function<void()> whenAsked;
    std::function<void(const Ref<UITableViewCell>&)> whenGone;

    CGFloat tableView_heightForRowAtIndexPath(const Ref<UITableView>&, NSIndexPath path) override {
        ++questions;
        if (whenAsked) whenAsked();
        const auto row = static_cast<std::size_t>(path.row);
        return row < heights.size() ? heights[row] : UITableView::automaticDimension;
    }
    void tableView_didEndDisplayingCell_forRowAtIndexPath(const Ref<UITableView>&, const Ref<UITableViewCell>& cell,
                                                          NSIndexPath path) override {
        gone.push_back(path);
        if (whenGone) whenGone(cell);
    }
};

/// Ten of a hundred rows of 44 points are in sight.
struct Table : testing::Test {
    Ref<TableSource> source = create<TableSource>();
    Ref<UITableView> table = tableWithSource(source);
    TestWindow window{table};

    std::string textOf(NSIndexPath path) {
        const auto cell = table->cellForRowAtIndexPath(path);
        return cell ? cell->textLabel()->text().value_or("(nothing)") : "(no cell)";
    }
    void scrollTo(CGFloat y) {
        table->setContentOffset({0, y});
        window.tick(0);
    }
    NSInteger cellCount() const { return static_cast<NSInteger>(table->subviews().size()); }
};

} // namespace

TEST_F(Table, shows_cells_for_the_rows_in_sight_alone) {
    Paths expected;
    for (NSInteger row = 0; row < 10; ++row) expected.push_back({0, row});
    EXPECT_EQ(source->asked, expected);
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

TEST_F(Table, cells_that_leave_come_back_for_other_rows) {
    for (int i = 0; i < 90; ++i) scrollTo(44 * i + 22);
    EXPECT_EQ(cellCount(), 11);
    EXPECT_EQ(textOf({0, 99}), "0.99");
    EXPECT_EQ(source->asked.size(), 100U) << "each row once";
}

TEST_F(Table, a_cell_for_another_identifier_never_comes_back_as_this_one) {
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

TEST_F(Table, a_cell_without_identifier_is_let_go) {
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

TEST_F(Table, unregistered_identifiers_and_factories) {
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

TEST_F(Table, a_cell_taken_and_not_used_is_offered_again) {
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

TEST_F(Table, a_row_without_a_cell_stays_empty) {
    source->cell = [](const Ref<UITableView>& view, NSIndexPath path) {
        return path.row == 1 ? nullptr : TableSource::usualCell(view, path);
    };
    table->reloadData();
    scrollTo(0);
    EXPECT_EQ(table->cellForRowAtIndexPath({0, 1}), nullptr);
    EXPECT_EQ(table->indexPathForRowAtPoint({10, 50}), Path({0, 1}));
    EXPECT_EQ(textOf({0, 2}), "0.2");
    source->asked.clear();
    scrollTo(10);
    EXPECT_EQ(source->asked, Paths({{0, 10}})) << "asked once while it is in sight";
}

TEST_F(Table, one_cell_given_for_two_rows_shows_the_later_one) {
    const auto only = create<UITableViewCell>(UITableViewCellStyleDefault, "only");
    source->cell = [&only](const Ref<UITableView>&, NSIndexPath) { return only; };
    table->reloadData();
    scrollTo(0);
    EXPECT_EQ(table->indexPathForCell(only), Path({0, 9}));
    EXPECT_EQ(table->cellForRowAtIndexPath({0, 0}), nullptr);
}

TEST_F(Table, answers_where_rows_are) {
    source->rows = {2, 0, 3};
    source->titles = {std::nullopt, "empty", "third"};
    table->reloadData();
    EXPECT_EQ(table->numberOfSections(), 3);
    EXPECT_EQ(table->numberOfRowsInSection(2), 3);
    EXPECT_EQ(table->numberOfRowsInSection(3), 0);
    EXPECT_EQ(table->numberOfRowsInSection(-1), 0);
    EXPECT_EQ(table->rectForRowAtIndexPath({0, 1}), CGRectMake(0, 44, 320, 44));
    EXPECT_EQ(table->rectForRowAtIndexPath({2, 0}), CGRectMake(0, 144, 320, 44)); // below two headers of 28
    EXPECT_EQ(table->rectForRowAtIndexPath({2, 3}), CGRectZero);
    EXPECT_EQ(table->indexPathForRowAtPoint({0, 87.9}), Path({0, 1}));
    EXPECT_EQ(table->indexPathForRowAtPoint({0, 88}), std::nullopt);
    EXPECT_EQ(table->indexPathForRowAtPoint({319.9, 144}), Path({2, 0}));
    EXPECT_EQ(table->indexPathForRowAtPoint({320, 144}), std::nullopt);
    EXPECT_EQ(table->indexPathForRowAtPoint({-1, 144}), std::nullopt);
    EXPECT_EQ(table->indexPathForCell(table->cellForRowAtIndexPath({2, 1})), Path({2, 1}));
    EXPECT_EQ(table->indexPathForCell(nullptr), std::nullopt);
}

TEST_F(Table, headers_scroll_with_the_content) {
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

TEST_F(Table, hairlines_lie_between_rows) {
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

TEST_F(Table, a_billion_rows_are_met_as_exactly_as_ten) {
    constexpr NSInteger billion = 1'000'000'000;
    source->rows = {billion};
    table->reloadData();
    source->asked.clear();
    table->scrollToRowAtIndexPath_animated({0, billion - 1}, false);
    EXPECT_EQ(table->contentOffset().y, 44.0 * billion - 440);
    EXPECT_EQ(textOf({0, billion - 1}), "0.999999999");
    EXPECT_EQ(table->indexPathsForVisibleRows().front(), (NSIndexPath{0, billion - 10}));
    EXPECT_EQ(source->asked.size(), 10U);
}

TEST_F(Table, negative_counts_and_heights_and_absent_sources_are_nothing) {
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

TEST_F(Table, a_delegates_heights_are_asked_once_a_reload) {
    const auto giver = create<HeightGiver>();
    giver->heights = {10, -7, std::numeric_limits<double>::quiet_NaN(), UITableView::automaticDimension};
    source->rows = {50};
    table->setDelegate(giver);
    window.tick(0);
    EXPECT_EQ(giver->questions, 50);
    EXPECT_EQ(table->rectForRowAtIndexPath({0, 0}).size.height, 10);
    EXPECT_EQ(table->rectForRowAtIndexPath({0, 1}).size.height, 0);
    EXPECT_EQ(table->rectForRowAtIndexPath({0, 2}).size.height, 0);
    EXPECT_EQ(table->rectForRowAtIndexPath({0, 3}), CGRectMake(0, 10, 320, 44));
    EXPECT_EQ(table->indexPathsForVisibleRows()[1], (NSIndexPath{0, 3})) << "rows without height are not shown";
    scrollTo(300);
    EXPECT_EQ(giver->questions, 50);
    table->reloadData();
    table->reloadData();
    window.tick(0);
    EXPECT_EQ(giver->questions, 100);
    source->rows = {UITableViewRows::highestHeightCount + 1};
    table->reloadData();
    window.tick(0);
    EXPECT_EQ(giver->questions, 100) << "too many to have heights of their own";
}

TEST_F(Table, a_reload_keeps_the_offset_as_far_as_it_can) {
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

TEST_F(Table, a_row_is_scrolled_to_with_the_shortest_way) {
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

TEST_F(Table, cells_fill_a_new_width) {
    table->setFrame(CGRectMake(0, 0, 200, 440));
    window.tick(0);
    EXPECT_EQ(table->cellForRowAtIndexPath({0, 2})->frame(), CGRectMake(0, 88, 200, 44));
}

TEST_F(Table, the_delegate_hears_which_cells_have_gone) {
    const auto giver = create<HeightGiver>();
    table->setDelegate(giver);
    window.tick(0);
    giver->gone.clear();
    scrollTo(88);
    std::sort(giver->gone.begin(), giver->gone.end());
    EXPECT_EQ(giver->gone, Paths({{0, 0}, {0, 1}}));
}

// Callbacks at the worst moment

TEST_F(Table, a_data_source_that_reloads_in_every_answer_does_not_hang) {
    source->cell = [](const Ref<UITableView>& view, NSIndexPath path) {
        view->reloadData();
        view->insertRowsAtIndexPaths_animated({path}, true);
        view->layoutIfNeeded();
        EXPECT_EQ(view->numberOfRowsInSection(0), 100);
        return TableSource::usualCell(view, path);
    };
    source->whenAskedForCounts = [this] {
        table->reloadData();
        table->layoutIfNeeded();
        EXPECT_EQ(table->numberOfSections(), 1);
    };
    table->reloadData();
    for (int i = 0; i < 5; ++i) window.tick(TestWindow::frame);
    source->cell = nullptr;
    source->whenAskedForCounts = nullptr;
    window.runUntilStill();
    EXPECT_EQ(textOf({0, 9}), "0.9");
    EXPECT_LE(cellCount(), 20);
}

TEST_F(Table, the_table_may_be_dropped_while_it_asks) {
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

TEST_F(Table, the_source_may_be_dropped_while_it_is_asked) {
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

TEST_F(Table, so_it_may_while_it_counts) {
    source->whenAskedForCounts = [this] { source = nullptr; };
    table->reloadData();
    EXPECT_EQ(table->numberOfSections(), 1);
    EXPECT_EQ(table->numberOfRowsInSection(0), 0) << "nobody is left to tell";
}

TEST_F(Table, rows_that_change_within_a_question_are_a_reload) {
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
        source->asked.clear();
        window.tick(0);
        window.tick(0);
        EXPECT_EQ(source->asked.size(), 11U) << "the first row, and then all ten anew";
        EXPECT_EQ(textOf({0, 9}), "0.9");
    }
}

TEST_F(Table, a_cell_that_goes_may_be_put_elsewhere) {
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

TEST_F(Table, what_is_set_already_asks_for_nothing) {
    const int before = source->countQuestions;
    table->setRowHeight(UITableView::automaticDimension);
    table->setSectionHeaderHeight(UITableView::automaticDimension);
    table->setSeparatorColor(table->separatorColor());
    EXPECT_FALSE(window.tick(0));
    EXPECT_EQ(source->countQuestions, before);
}

TEST_F(Table, a_tap_that_nobody_hears_lights_its_row_all_the_same) {
    window.tap({160, 110});
    EXPECT_TRUE(table->cellForRowAtIndexPath({0, 2})->isHighlighted());
}

TEST_F(Table, in_a_section_too_long_for_heights_of_its_own_none_is_asked_for_when_a_row_is_shown_anew) {
    const auto giver = create<HeightGiver>();
    giver->heights = {100};
    table->setDelegate(giver);
    source->rows = {UITableViewRows::highestHeightCount + 1};
    window.tick(0);
    table->reloadRowsAtIndexPaths({{0, 0}});
    EXPECT_EQ(giver->questions, 0);
    EXPECT_EQ(table->rectForRowAtIndexPath({0, 1}), CGRectMake(0, 44, 320, 44));
}

TEST_F(Table, heights_that_call_back_hear_the_last_answers) {
    const auto giver = create<HeightGiver>();
    giver->whenAsked = [this] {
        EXPECT_EQ(table->numberOfRowsInSection(0), 100);
        table->reloadData();
        table->deleteRowsAtIndexPaths_animated({{0, 0}}, true);
    };
    table->setDelegate(giver);
    source->rows = {3};
    for (int i = 0; i < 3; ++i) {
        window.tick(TestWindow::frame);
        giver->whenAsked = nullptr;
    }
    EXPECT_EQ(table->numberOfRowsInSection(0), 3);
}

TEST_F(Table, a_huge_or_endless_frame_shows_a_bounded_number_of_rows) {
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

TEST_F(Table, a_source_and_a_delegate_that_say_little_give_one_section_without_header) {
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

TEST_F(Table, a_header_takes_the_height_that_was_set) {
    source->titles = {"first"};
    table->reloadData();
    EXPECT_EQ(table->rectForRowAtIndexPath({0, 0}).origin.y, 28);
    table->setSectionHeaderHeight(50);
    EXPECT_EQ(table->rectForRowAtIndexPath({0, 0}).origin.y, 50);
    const int questions = source->countQuestions;
    table->setSectionHeaderHeight(50);
    table->numberOfSections();
    EXPECT_EQ(source->countQuestions, questions) << "nothing has changed";
    table->setSectionHeaderHeight(UITableView::automaticDimension);
    EXPECT_EQ(table->rectForRowAtIndexPath({0, 0}).origin.y, 28);
}

TEST_F(Table, a_cell_taken_outside_a_question_belongs_to_its_taker) {
    source->rows = {9};
    table->reloadData();
    window.tick(0); // One cell waits now.
    const auto cell = table->dequeueReusableCellWithIdentifier(TableSource::identifier);
    ASSERT_TRUE(cell);
    EXPECT_FALSE(cell->superview());
    EXPECT_FALSE(cell->isHidden());
}

TEST_F(Table, rows_reloaded_before_an_answer_is_there_wait_for_it) {
    source->asked.clear();
    table->reloadData();
    table->reloadRowsAtIndexPaths({{0, 2}});
    EXPECT_EQ(source->asked, Paths{});
    window.tick(0);
    EXPECT_EQ(std::count(source->asked.begin(), source->asked.end(), NSIndexPath{0, 2}), 1);
}

TEST_F(Table, a_layout_within_a_question_waits_for_its_answer) {
    source->rows = {3};
    source->whenAskedForCounts = [this] {
        table->setNeedsLayout();
        table->layoutIfNeeded();
    };
    table->reloadData();
    EXPECT_EQ(table->numberOfRowsInSection(0), 3);
    source->whenAskedForCounts = {};
    window.tick(0);
    EXPECT_EQ(table->indexPathsForVisibleRows(), (Paths{{0, 0}, {0, 1}, {0, 2}}));
}

TEST_F(Table, a_reload_in_the_middle_of_a_layout_asks_for_no_row_that_is_gone) {
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

TEST_F(Table, is_read_from_top_to_bottom) {
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

TEST_F(Table, cells_that_nobody_takes_again_do_not_pile_up) {
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
