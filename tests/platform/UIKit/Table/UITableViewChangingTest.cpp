// Rows that come into a table and leave it.

#include <algorithm>
#include <map>

#include "TableSource.h"
#include "TestWindow.h"
#include "UITableViewChange.h"

using namespace gx;
using Path = std::optional<NSIndexPath>;
using Paths = std::vector<NSIndexPath>;

namespace {

/// Notes where texts are drawn in the window, and what is left of them by the clips around them.
class PlacingCanvas : public UIGraphicsContext {
public:
    struct Place {
        CGFloat top;      ///< of the innermost clip
        CGFloat bottom;   ///< and its end
        CGFloat baseline; ///< the text's own place
    };
    std::map<std::string, Place> texts;

    void saveState() override { states_.push_back(now_); }
    void restoreState() override {
        now_ = states_.back();
        states_.pop_back();
    }
    void translate(CGFloat, CGFloat y) override { now_.y += y; }
    void scale(CGFloat, CGFloat) override {}
    void clipToRect(CGRect rect) override {
        now_.top = std::max(now_.top, now_.y + rect.origin.y);
        now_.bottom = std::min(now_.bottom, now_.y + rect.origin.y + rect.size.height);
    }
    void multiplyAlpha(double) override {}

protected:
    void fillRectWithComponents(CGRect, const UIColorComponents&, CGFloat) override {}
    void drawTextWithComponents(std::string_view text, const UIFont&, const UIColorComponents&, CGPoint origin) override {
        texts[std::string(text)] = {now_.top, now_.bottom, now_.y + origin.y};
    }
    void drawImageInRect(const UIImage&, CGRect) override {}

private:
    struct State {
        CGFloat y = 0;
        CGFloat top = -1e9;
        CGFloat bottom = 1e9;
    };
    State now_;
    std::vector<State> states_;
};

/// Rows are named; ten of 44 points are in sight.
struct Changing : testing::Test {
    Ref<TableSource> source = create<TableSource>();
    Ref<UITableView> table = tableWithSource(source);
    TestWindow window{table};
    std::vector<std::string> names;

    Changing() {
        for (char name = 'a'; name <= 'z'; ++name) names.emplace_back(1, name);
        source->cell = [this](const Ref<UITableView>& view, NSIndexPath path) {
            auto cell = view->dequeueReusableCellWithIdentifier("row");
            cell->textLabel()->setText(names[static_cast<std::size_t>(path.row)]);
            return cell;
        };
        count();
        table->reloadData();
        window.tick(0);
        source->asked.clear();
    }
    void count() { source->rows = {static_cast<NSInteger>(names.size())}; }
    void insert(NSInteger row, const std::string& name, bool animated = true) {
        names.insert(names.begin() + row, name);
        count();
        table->insertRowsAtIndexPaths_animated({{0, row}}, animated);
    }
    void remove(NSInteger row, bool animated = true) {
        names.erase(names.begin() + row);
        count();
        table->deleteRowsAtIndexPaths_animated({{0, row}}, animated);
    }
    std::string shown() {
        std::string text;
        for (const NSIndexPath path : table->indexPathsForVisibleRows()) text += *table->cellForRowAtIndexPath(path)->textLabel()->text();
        return text;
    }
    /// How far from the top of the window each row is drawn, by the text in its middle.
    std::map<std::string, PlacingCanvas::Place> drawn() {
        PlacingCanvas canvas;
        window->draw(canvas);
        return canvas.texts;
    }
    /// Half the time leaves an eighth of the way.
    void runHalf() {
        window.tick(TestWindow::frame); // The clock starts.
        window.run(0.125);
    }
};

} // namespace

TEST_F(Changing, an_inserted_row_moves_the_others_and_leaves_their_cells_alone) {
    const auto cellOfB = table->cellForRowAtIndexPath({0, 1});
    const auto cellOfC = table->cellForRowAtIndexPath({0, 2});
    insert(2, "new");
    EXPECT_EQ(table->rectForRowAtIndexPath({0, 3}), CGRectMake(0, 132, 320, 44));
    EXPECT_EQ(cellOfC->frame(), CGRectMake(0, 132, 320, 44)) << "at once";
    EXPECT_EQ(table->cellForRowAtIndexPath({0, 1}), cellOfB);
    EXPECT_EQ(table->cellForRowAtIndexPath({0, 3}), cellOfC);
    EXPECT_EQ(shown(), "abnewcdefghi");
    EXPECT_EQ(source->asked, Paths({{0, 2}}));
    EXPECT_EQ(table->contentSize().height, 27 * 44);
}

TEST_F(Changing, a_removed_row_closes_the_gap_and_leaves_the_others_alone) {
    const auto cellOfD = table->cellForRowAtIndexPath({0, 3});
    remove(2);
    EXPECT_EQ(table->cellForRowAtIndexPath({0, 2}), cellOfD);
    EXPECT_EQ(cellOfD->frame(), CGRectMake(0, 88, 320, 44));
    EXPECT_EQ(shown(), "abdefghijk");
}

TEST_F(Changing, an_insertion_is_drawn_as_rows_that_make_room) {
    const auto before = drawn();
    insert(2, "new");
    auto now = drawn();
    for (const char* name : {"a", "b", "c", "d", "j"}) EXPECT_NEAR(now.at(name).baseline, before.at(name).baseline, 1e-9) << name;
    EXPECT_NEAR(now.at("new").bottom - now.at("new").top, 0, 1e-9);
    runHalf();
    now = drawn();
    EXPECT_NEAR(now.at("b").baseline, before.at("b").baseline, 1e-9);
    EXPECT_NEAR(now.at("c").baseline, before.at("c").baseline + 0.875 * 44, 1e-6);
    EXPECT_NEAR(now.at("j").baseline, before.at("j").baseline + 0.875 * 44, 1e-6) << "on its way out";
    EXPECT_NEAR(now.at("new").top, 88, 1e-6);
    EXPECT_NEAR(now.at("new").bottom, 88 + 0.875 * 44, 1e-6);
    window.runUntilStill();
    now = drawn();
    EXPECT_NEAR(now.at("c").baseline, before.at("c").baseline + 44, 1e-9);
    EXPECT_FALSE(now.contains("j"));
}

TEST_F(Changing, a_removal_is_drawn_as_a_gap_that_closes) {
    const auto before = drawn();
    remove(2);
    auto now = drawn();
    for (const char* name : {"b", "c", "d", "j"}) EXPECT_NEAR(now.at(name).baseline, before.at(name).baseline, 1e-9) << name;
    runHalf();
    now = drawn();
    EXPECT_NEAR(now.at("b").baseline, before.at("b").baseline, 1e-9);
    EXPECT_NEAR(now.at("d").baseline, before.at("d").baseline - 0.875 * 44, 1e-6);
    EXPECT_NEAR(now.at("k").baseline, before.at("j").baseline + 0.125 * 44, 1e-6) << "no gap at the bottom";
    EXPECT_NEAR(now.at("c").top, 88, 1e-6);
    EXPECT_NEAR(now.at("c").bottom, 88 + 0.125 * 44, 1e-6);
    window.runUntilStill();
    now = drawn();
    EXPECT_FALSE(now.contains("c"));
    EXPECT_NEAR(now.at("d").baseline, before.at("c").baseline, 1e-9);
}

TEST_F(Changing, a_removal_at_the_end_leaves_no_gap_at_the_top) {
    table->setContentOffset({0, 16 * 44}); // q to z
    window.tick(0);
    const auto before = drawn();
    remove(25);
    EXPECT_EQ(table->contentOffset().y, 15 * 44);
    auto now = drawn();
    EXPECT_NEAR(now.at("q").baseline, before.at("q").baseline, 1e-9);
    EXPECT_NEAR(now.at("z").baseline, before.at("z").baseline, 1e-9);
    runHalf();
    now = drawn();
    EXPECT_NEAR(now.at("q").baseline, before.at("q").baseline + 0.875 * 44, 1e-6);
    EXPECT_NEAR(now.at("p").baseline, before.at("q").baseline - 0.125 * 44, 1e-6);
    window.runUntilStill();
    EXPECT_EQ(shown(), "pqrstuvwxy");
}

TEST_F(Changing, a_finger_finds_rows_where_they_are_and_not_what_is_leaving) {
    const auto cellOfC = table->cellForRowAtIndexPath({0, 2});
    remove(2);
    const auto hit = window->hitTest({160, 110});
    EXPECT_FALSE(hit->isDescendantOfView(cellOfC));
    EXPECT_TRUE(hit->isDescendantOfView(table->cellForRowAtIndexPath({0, 2})));
    EXPECT_EQ(table->indexPathForCell(cellOfC), std::nullopt);
}

TEST_F(Changing, several_rows_come_and_go_in_any_order) {
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

TEST_F(Changing, a_change_meets_another_one_under_way) {
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

TEST_F(Changing, numbers_that_do_not_add_up_are_a_reload) {
    const auto expectReload = [this](const char* what) {
        source->asked.clear();
        window.tick(0);
        EXPECT_EQ(source->asked.size(), 10U) << what;
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
    source->asked.clear();
    window.tick(0);
    EXPECT_EQ(source->asked, Paths({{0, 10}})) << "this one adds up: nothing but the row that may come into sight on the way";
}

TEST_F(Changing, without_a_window_or_animation_it_is_drawn_as_it_is) {
    insert(2, "new", false);
    EXPECT_NEAR(drawn().at("c").baseline - drawn().at("a").baseline, 3 * 44, 1e-9);
    table->removeFromSuperview();
    remove(2);
    PlacingCanvas canvas;
    table->layoutIfNeeded();
    table->renderInContext(canvas);
    EXPECT_NEAR(canvas.texts.at("c").baseline - canvas.texts.at("a").baseline, 2 * 44, 1e-9);
    EXPECT_FALSE(canvas.texts.contains("new"));
}

TEST_F(Changing, in_a_window_that_reduces_motion_it_is_drawn_as_it_is) {
    window->setReducesMotion(true);
    insert(1, "new");
    EXPECT_EQ(drawn().at("b").baseline, 100) << "the third row, below two of 44 points, its text 12 below its top";
    remove(1);
    EXPECT_EQ(drawn().at("b").baseline, 56);
    EXPECT_FALSE(drawn().contains("new"));
}

TEST_F(Changing, a_change_under_way_arrives_when_motion_is_reduced) {
    insert(1, "new");
    runHalf();
    EXPECT_LT(drawn().at("b").baseline, 100);
    window->setReducesMotion(true);
    window.tick(TestWindow::frame);
    EXPECT_EQ(drawn().at("b").baseline, 100);
}

TEST_F(Changing, a_table_that_leaves_its_window_arrives) {
    remove(2);
    table->removeFromSuperview();
    table->layoutIfNeeded();
    PlacingCanvas canvas;
    table->renderInContext(canvas);
    EXPECT_FALSE(canvas.texts.contains("c"));
    EXPECT_NEAR(canvas.texts.at("d").baseline - canvas.texts.at("a").baseline, 2 * 44, 1e-9);
}

TEST_F(Changing, a_table_that_is_hidden_arrives) {
    insert(1, "new");
    runHalf();
    EXPECT_LT(drawn().at("b").baseline, 100);
    table->setHidden(true);
    table->setHidden(false);
    EXPECT_EQ(drawn().at("b").baseline, 100);
    window.tick(0);
    EXPECT_FALSE(window.tick(0));
}

TEST_F(Changing, rows_shown_anew_are_asked_for_and_the_others_are_not) {
    const auto cellOfA = table->cellForRowAtIndexPath({0, 0});
    names[1] = "B";
    table->reloadRowsAtIndexPaths({{0, 1}, {0, 20}, {5, 5}});
    EXPECT_EQ(shown(), "aBcdefghij");
    EXPECT_EQ(source->asked, Paths({{0, 1}}));
    EXPECT_EQ(table->cellForRowAtIndexPath({0, 0}), cellOfA);
}

TEST_F(Changing, a_change_before_the_first_layout_or_after_a_reload_is_part_of_it) {
    table->reloadData();
    insert(0, "new");
    EXPECT_EQ(shown(), "newabcdefghi");
    const auto now = drawn();
    EXPECT_NEAR(now.at("a").baseline - now.at("new").baseline, 44, 1e-9);
}

TEST(UITableViewChange, tells_what_rows_become) {
    UITableViewRows few;
    few.addSection(std::nullopt, 0, 3, 44);
    few.addSection(std::nullopt, 0, 2, 44);
    UITableViewRows more;
    more.addSection(std::nullopt, 0, 5, 44);
    more.addSection(std::nullopt, 0, 2, 44);
    const Paths paths = {{0, 0}, {0, 2}};
    const auto in = UITableViewChange::change(UITableViewChange::Kind::Insertion, paths, few, more);
    ASSERT_TRUE(in);
    EXPECT_EQ(in->pathAfter({0, 0}), Path({0, 1}));
    EXPECT_EQ(in->pathAfter({0, 1}), Path({0, 3}));
    EXPECT_EQ(in->pathAfter({1, 0}), Path({1, 0}));
    const auto out = UITableViewChange::change(UITableViewChange::Kind::Removal, paths, more, few);
    ASSERT_TRUE(out);
    EXPECT_EQ(out->pathAfter({0, 0}), std::nullopt);
    EXPECT_EQ(out->pathAfter({0, 1}), Path({0, 0}));
    EXPECT_EQ(out->pathAfter({0, 2}), std::nullopt);
    EXPECT_EQ(out->pathAfter({0, 4}), Path({0, 2}));
    EXPECT_EQ(out->pathAfter({1, 1}), Path({1, 1}));
    EXPECT_EQ(out->spanOfRemovedRow({0, 1}).height, 0) << "this one stays";
    EXPECT_EQ(out->spanOfRemovedRow({1, 1}).height, 0);
    EXPECT_FALSE(UITableViewChange::change(UITableViewChange::Kind::Removal, paths, few, more));
}

TEST(UITableViewChange, is_none_where_sections_come_or_paths_lie_beyond_them) {
    UITableViewRows one;
    one.addSection(std::nullopt, 0, 3, 44);
    UITableViewRows two = one;
    two.addSection(std::nullopt, 0, 1, 44);
    const auto insertion = UITableViewChange::Kind::Insertion;
    EXPECT_FALSE(UITableViewChange::change(insertion, {{1, 0}}, one, two));
    EXPECT_FALSE(UITableViewChange::change(insertion, {{1, 0}}, one, one));
    const auto nothing = UITableViewChange::change(insertion, {}, one, one);
    ASSERT_TRUE(nothing) << "of no rows it is one that changes nothing";
    EXPECT_EQ(nothing->reach(), 0);
    EXPECT_EQ(nothing->pathAfter({0, 2}), Path({0, 2}));
}

TEST(UITableViewChange, leaves_the_sections_above_alone) {
    UITableViewRows before;
    before.addSection(std::nullopt, 0, 3, 44);
    before.addSection(std::nullopt, 0, 0, 44);
    UITableViewRows after;
    after.addSection(std::nullopt, 0, 3, 44);
    after.addSection(std::nullopt, 0, 1, 44);
    const auto change = UITableViewChange::change(UITableViewChange::Kind::Insertion, {{1, 0}}, before, after);
    ASSERT_TRUE(change);
    EXPECT_EQ(change->pathAfter({0, 0}), Path({0, 0}));
    EXPECT_EQ(change->pathAfter({0, 2}), Path({0, 2}));
}

TEST_F(Changing, headers_below_an_insertion_are_drawn_on_their_way_too) {
    source->rows = {2, 5};
    source->titles = {std::nullopt, "header"};
    table->reloadData();
    window.tick(0);
    const CGFloat before = drawn()["header"].baseline;
    source->rows = {3, 5};
    table->insertRowsAtIndexPaths_animated({{0, 0}}, true);
    EXPECT_EQ(drawn()["header"].baseline, before) << "not moved yet";
    runHalf();
    EXPECT_NEAR(drawn()["header"].baseline, before + 38.5, 1e-6) << "seven eighths of 44";
    window.runUntilStill();
    EXPECT_EQ(drawn()["header"].baseline, before + 44);
}

TEST_F(Changing, more_rows_than_are_in_sight_come_at_once) {
    const auto insertMany = [this](std::size_t many) {
        Paths paths;
        names.insert(names.begin(), many, "new");
        count();
        for (NSInteger row = 0; row < static_cast<NSInteger>(many); ++row) paths.push_back({0, row});
        table->insertRowsAtIndexPaths_animated(paths, true);
        window.tick(0);
        return window.tick(TestWindow::frame);
    };
    EXPECT_TRUE(insertMany(10)) << "440 points move";
    window.runUntilStill();
    EXPECT_FALSE(insertMany(11)) << "484 do not";
}

TEST_F(Changing, rows_without_cells_come_and_go_as_gaps) {
    source->cell = [this](const Ref<UITableView>& view, NSIndexPath path) -> Ref<UITableViewCell> {
        const std::string& name = names[static_cast<std::size_t>(path.row)];
        if (name == "gap") return nullptr;
        auto cell = view->dequeueReusableCellWithIdentifier("row");
        cell->textLabel()->setText(name);
        return cell;
    };
    insert(1, "gap");
    runHalf();
    EXPECT_NEAR(drawn().at("b").baseline - drawn().at("a").baseline, 44 + 38.5, 1e-6) << "seven eighths of 44";
    window.runUntilStill();
    EXPECT_EQ(table->cellForRowAtIndexPath({0, 1}), nullptr);
    insert(0, "new"); // The gap moves with the others.
    window.runUntilStill();
    EXPECT_EQ(table->cellForRowAtIndexPath({0, 2}), nullptr);
    EXPECT_EQ(drawn().at("b").baseline - drawn().at("a").baseline, 88);
    remove(2);
    runHalf();
    EXPECT_NEAR(drawn().at("b").baseline - drawn().at("a").baseline, 44 + 5.5, 1e-6);
    window.runUntilStill();
    EXPECT_EQ(drawn().at("b").baseline - drawn().at("a").baseline, 44);
}

namespace {

/// Reloads when a cell goes.
class Reloading : public NSObject, public UITableViewDelegate {
public:
    bool reloads = false;
    void tableView_didEndDisplayingCell_forRowAtIndexPath(const Ref<UITableView>& table, const Ref<UITableViewCell>&,
                                                          NSIndexPath) override {
        if (reloads) table->reloadData();
    }
};

/// Does something whenever it is drawn.
class Acting : public UITableViewCell {
public:
    std::function<void()> whenDrawn;
    void drawRect(UIGraphicsContext&, CGRect) override { whenDrawn(); }
};

} // namespace

TEST_F(Changing, a_reload_by_who_hears_of_the_change_before_takes_the_next_one_in) {
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

TEST_F(Changing, so_does_one_by_who_is_asked) {
    source->whenAskedForCounts = [this] { table->reloadData(); };
    insert(0, "new");
    source->whenAskedForCounts = nullptr;
    EXPECT_EQ(shown(), "newabcdefghi");
    EXPECT_EQ(drawn().at("a").baseline, 56);
}

TEST_F(Changing, who_is_drawn_on_its_way_out_may_end_the_change) {
    source->cell = [this](const Ref<UITableView>& view, NSIndexPath path) -> Ref<UITableViewCell> {
        const std::string& name = names[static_cast<std::size_t>(path.row)];
        if (name == "c") {
            auto acting = create<Acting>();
            acting->whenDrawn = [this] { table->removeFromSuperview(); };
            return acting;
        }
        auto cell = view->dequeueReusableCellWithIdentifier("row");
        cell->textLabel()->setText(name);
        return cell;
    };
    table->reloadData();
    window.tick(0);
    remove(2);
    runHalf();
    drawn();
    EXPECT_EQ(table->window(), nullptr);
    table->layoutIfNeeded();
    PlacingCanvas canvas;
    table->renderInContext(canvas);
    EXPECT_EQ(canvas.texts.at("d").baseline - canvas.texts.at("a").baseline, 88) << "it has arrived";
}

TEST_F(Changing, a_header_whose_title_a_change_takes_away_goes) {
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
