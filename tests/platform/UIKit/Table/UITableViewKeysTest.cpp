// What keys do to a table, and where the focus goes.

#include <algorithm>

#include "FocusableView.h"
#include "NullCanvas.h"
#include "RecordingCanvas.h"
#include "TableSource.h"
#include "TestWindow.h"
#include "WheelSource.h"

using namespace gx;
using Code = UIKey::Code;
using Paths = std::vector<NSIndexPath>;
using Path = std::optional<NSIndexPath>;

namespace {

/// Rows of 44 points, of which ten are in sight.
struct TableKeys : testing::Test {
    Ref<TableSource> source = create<TableSource>();
    Ref<TableListener> listener = create<TableListener>();
    Ref<UITableView> table = tableWithSource(source);
    TestWindow window{table};

    TableKeys() {
        table->setDelegate(listener);
        window.tick(0);
    }
    void reload(std::vector<NSInteger> rows) {
        source->rows = std::move(rows);
        table->reloadData();
        window.tick(0);
    }
    Path focused() { return table->indexPathForFocusedRow(); }
    bool press(Code code) {
        const bool isUsed = window.press(code);
        window.runUntilStill();
        return isUsed;
    }
    CGFloat offset() const { return table->contentOffset().y; }
    int fills() {
        NullCanvas canvas;
        window->draw(canvas);
        return canvas.fills;
    }
};

/// Row 1 holds a wheel with one column.
struct TableKeysWithWheel : TableKeys {
    Ref<WheelSource> wheelSource = create<WheelSource>();
    Ref<UIPickerView> wheel = wheelWithSource(wheelSource);

    TableKeysWithWheel() {
        wheelSource->rows = {10};
        source->cell = [this](const Ref<UITableView>& view, NSIndexPath path) {
            if (path.row != 1) return TableSource::usualCell(view, path);
            auto cell = create<UITableViewCell>(UITableViewCellStyleDefault, std::string("wheel"));
            cell->contentView()->addSubview(wheel);
            return cell;
        };
        wheel->setFrame(CGRectMake(0, 0, 320, 44));
        reload({20});
        press(Code::Tab);
    }
};

} // namespace

TEST_F(TableKeys, tab_focuses_the_first_row_in_sight) {
    EXPECT_EQ(focused(), std::nullopt);
    table->setContentOffset({0, 50}); // Row 1 is cut.
    EXPECT_TRUE(press(Code::Tab));
    EXPECT_TRUE(table->isFirstResponder());
    EXPECT_EQ(focused(), Path({0, 2}));
    EXPECT_EQ(offset(), 50);
}

TEST_F(TableKeys, a_table_without_a_row_to_tap_takes_no_focus) {
    reload({0, 0});
    EXPECT_FALSE(table->becomeFirstResponder());
    reload({3});
    listener->refuses = [](NSIndexPath) { return true; };
    EXPECT_FALSE(table->becomeFirstResponder());
    listener->refuses = nullptr;
    EXPECT_TRUE(table->becomeFirstResponder());
}

TEST_F(TableKeys, the_row_in_sight_may_be_one_above_if_none_below_can_be_tapped) {
    reload({20});
    listener->refuses = [](NSIndexPath path) { return path.row > 3; };
    table->setContentOffset({0, 440});
    EXPECT_TRUE(press(Code::Tab));
    EXPECT_EQ(focused(), Path({0, 3}));
    EXPECT_EQ(offset(), 132) << "and comes into sight";
}

TEST_F(TableKeys, up_and_down_go_from_row_to_row_over_sections) {
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

TEST_F(TableKeys, home_and_end_go_all_the_way_and_the_row_comes_into_sight) {
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

TEST_F(TableKeys, the_focused_row_scrolls_just_into_sight) {
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

TEST_F(TableKeys, the_focused_row_comes_into_sight_in_what_scrolls_around_the_table_too) {
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

TEST_F(TableKeys, page_keys_go_by_what_is_in_sight_but_one_row) {
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

TEST_F(TableKeys, in_a_table_lower_than_its_rows_page_keys_still_go_on) {
    table->setFrame(CGRectMake(0, 0, 320, 30));
    press(Code::Tab);
    press(Code::PageDown);
    EXPECT_EQ(focused(), Path({0, 1}));
    press(Code::PageUp);
    EXPECT_EQ(focused(), Path({0, 0}));
}

TEST_F(TableKeys, rows_that_cannot_be_tapped_are_passed_over) {
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

TEST_F(TableKeys, beyond_the_last_row_that_can_be_tapped_up_and_down_scroll) {
    reload({20});
    listener->refuses = [](NSIndexPath path) { return path.row >= 10; };
    press(Code::Tab);
    for (int i = 0; i < 9; ++i) press(Code::Down);
    EXPECT_EQ(offset(), 0);
    EXPECT_TRUE(press(Code::Down));
    EXPECT_EQ(focused(), Path({0, 9}));
    EXPECT_EQ(offset(), UIScrollView::pointsPerNotch);
}

TEST_F(TableKeys, upwards_too_and_never_beyond_where_they_started) {
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

TEST_F(TableKeys, nor_downwards) {
    listener->refuses = [](NSIndexPath path) { return path.row > 97; };
    press(Code::Tab);
    EXPECT_TRUE(press(Code::End));
    EXPECT_EQ(focused(), Path({0, 97})) << "the last one that can be tapped";
    press(Code::PageDown);
    EXPECT_EQ(focused(), Path({0, 97}));
}

TEST_F(TableKeys, a_question_that_takes_the_rows_away_leaves_nothing_to_go_to) {
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
        listener->whenAsked = takeRows;
        press(key);
        listener->whenAsked = nullptr;
        EXPECT_EQ(focused(), std::nullopt);
    }
    EXPECT_TRUE(listener->taps.empty());
    reload({100});
    listener->refuses = [](NSIndexPath) { return true; };
    listener->whenAsked = takeRows;
    EXPECT_FALSE(table->canBecomeFirstResponder());
}

TEST_F(TableKeys, a_single_row_takes_the_focus) {
    reload({1});
    EXPECT_TRUE(press(Code::Tab));
    EXPECT_EQ(focused(), Path({0, 0}));
}

TEST_F(TableKeys, a_row_that_is_out_of_sight_is_tapped_and_comes_into_sight) {
    press(Code::Tab);
    table->setContentOffset({0, 2000});
    window.tick(0);
    EXPECT_TRUE(window.press(Code::Return));
    EXPECT_EQ(listener->taps, Paths({{0, 0}}));
    window.runUntilStill();
    EXPECT_EQ(offset(), 0);
}

TEST_F(TableKeys, what_lies_in_another_row_is_revealed_by_itself) {
    press(Code::Tab);
    table->setContentOffset({0, 440});
    window.tick(0);
    const auto label = table->cellForRowAtIndexPath({0, 12})->textLabel();
    label->revealDescendant(label->bounds());
    window.runUntilStill();
    EXPECT_EQ(offset(), 440) << "the focused row stays out of sight";
}

TEST_F(TableKeys, a_hundred_rows_are_passed_over_and_no_more) {
    reload({1'000'000});
    NSInteger second = 101;
    listener->refuses = [&second](NSIndexPath path) { return path.row != 0 && path.row != second; };
    press(Code::Tab);
    press(Code::Down);
    EXPECT_EQ(focused(), Path({0, 101})) << "a hundred in between";
    press(Code::Home);
    second = 102;
    listener->questions = 0;
    press(Code::Down);
    EXPECT_EQ(focused(), Path({0, 0}));
    EXPECT_EQ(listener->questions, UITableView::highestPassedCount + 1);
}

TEST_F(TableKeys, where_no_row_can_be_tapped_any_more_the_focus_stays) {
    press(Code::Tab);
    listener->refuses = [](NSIndexPath) { return true; };
    press(Code::End);
    EXPECT_EQ(focused(), Path({0, 0}));
}

TEST_F(TableKeys, a_table_that_loses_its_rows_marks_none) {
    reload({0});
    const int plain = fills();
    reload({100});
    press(Code::Tab);
    reload({0});
    EXPECT_TRUE(window->showsFocus());
    EXPECT_EQ(fills(), plain);
}

TEST_F(TableKeys, keys_ask_as_little_in_a_long_table_as_in_a_short_one) {
    std::vector<std::size_t> asked;
    for (const NSInteger rows : {NSInteger{100'000}, NSInteger{1'000'000'000}}) {
        reload({rows});
        table->becomeFirstResponder();
        press(Code::Home);
        source->asked.clear();
        listener->questions = 0;
        press(Code::End);
        EXPECT_EQ(focused(), Path({0, rows - 1}));
        EXPECT_EQ(listener->questions, 1);
        for (const Code code : {Code::PageUp, Code::Up, Code::Down}) press(code);
        EXPECT_EQ(listener->questions, 4);
        asked.push_back(source->asked.size());
    }
    EXPECT_LT(asked[1], asked[0] + 20) << "cells";
}

TEST_F(TableKeys, return_and_space_tap_the_row) {
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

TEST_F(TableKeys, a_row_that_can_no_longer_be_tapped_is_not) {
    press(Code::Tab);
    listener->refuses = [](NSIndexPath path) { return path.row == 0; };
    EXPECT_FALSE(press(Code::Return));
    EXPECT_TRUE(listener->taps.empty());
}

TEST_F(TableKeys, other_keys_and_commands_are_handed_up) {
    press(Code::Tab);
    EXPECT_FALSE(press(Code::Left));
    EXPECT_FALSE(press(Code::Right));
    EXPECT_FALSE(press(Code::Escape));
    EXPECT_FALSE(window.press(Code::Return, UIKey::Control));
    EXPECT_FALSE(window.press(Code::Down, UIKey::Alternate));
    EXPECT_EQ(focused(), Path({0, 0}));
}

TEST_F(TableKeys, the_row_is_marked_from_a_key_to_a_touch) {
    const int plain = fills();
    table->becomeFirstResponder();
    EXPECT_EQ(fills(), plain) << "no key was used yet";
    press(Code::Down);
    EXPECT_EQ(fills(), plain + 5) << "a fill and four sides";
    window.down({160, 300});
    window.move({160, 310});
    window.up({160, 310});
    EXPECT_EQ(fills(), plain);
}

TEST_F(TableKeys, only_where_the_keys_go_is_a_row_marked) {
    const auto field = create<FocusableView>(CGRectMake(0, 0, 10, 10));
    const int plain = fills();
    window->addSubview(field);
    press(Code::Tab);
    EXPECT_EQ(fills(), plain + 5);
    field->becomeFirstResponder();
    EXPECT_TRUE(window->showsFocus());
    EXPECT_EQ(fills(), plain);
}

TEST_F(TableKeys, a_tap_focuses_its_row) {
    window.tap({160, 110}); // row 2
    EXPECT_TRUE(table->isFirstResponder());
    EXPECT_FALSE(window->showsFocus());
    press(Code::Down);
    EXPECT_EQ(focused(), Path({0, 3}));
}

TEST_F(TableKeys, tab_back_to_the_table_brings_the_row_into_sight) {
    press(Code::Tab);
    window.scrollPoints({160, 200}, 1000);
    window.runUntilStill();
    table->resignFirstResponder();
    press(Code::Tab);
    EXPECT_EQ(focused(), Path({0, 0}));
    EXPECT_EQ(offset(), 0);
}

TEST_F(TableKeys, the_focus_follows_its_row) {
    press(Code::Tab);
    for (int i = 0; i < 5; ++i) press(Code::Down);
    source->rows = {102};
    table->insertRowsAtIndexPaths_animated({{0, 0}, {0, 6}}, false); // The old row 5 is row 6 before the second comes.
    EXPECT_EQ(focused(), Path({0, 7}));
    source->rows = {100};
    table->deleteRowsAtIndexPaths_animated({{0, 2}, {0, 9}}, true);
    EXPECT_EQ(focused(), Path({0, 6}));
    table->reloadRowsAtIndexPaths({{0, 6}});
    EXPECT_EQ(focused(), Path({0, 6}));
}

TEST_F(TableKeys, the_row_that_takes_the_place_of_one_that_goes_has_the_focus) {
    reload({6});
    press(Code::Tab);
    press(Code::Down);
    press(Code::Down);
    source->rows = {3};
    table->deleteRowsAtIndexPaths_animated({{0, 0}, {0, 2}, {0, 3}}, false); // 1, 4 and 5 stay.
    EXPECT_EQ(focused(), Path({0, 1})) << "the old row 4";
    press(Code::End);
    source->rows = {2};
    table->deleteRowsAtIndexPaths_animated({{0, 2}}, false);
    EXPECT_EQ(focused(), Path({0, 1})) << "the last one that is left";
}

TEST_F(TableKeys, a_reload_holds_the_focus_to_the_rows_there_are) {
    reload({5, 5});
    press(Code::Tab);
    press(Code::End);
    reload({5, 5});
    EXPECT_EQ(focused(), Path({1, 4}));
    reload({5, 4});
    EXPECT_EQ(focused(), Path({1, 3}));
    reload({5, 0});
    EXPECT_EQ(focused(), Path({0, 4}));
    reload({0, 3});
    EXPECT_EQ(focused(), Path({1, 0})) << "there are none above";
    reload({});
    EXPECT_EQ(focused(), std::nullopt);
    EXPECT_FALSE(press(Code::Down));
    EXPECT_FALSE(press(Code::Return));
}

TEST_F(TableKeys, who_is_asked_or_told_may_do_anything) {
    press(Code::Tab);
    press(Code::End);
    listener->whenAsked = [this] {
        source->rows = {1};
        table->reloadData();
        table->layoutIfNeeded();
    };
    press(Code::Up); // The row that it would go to is gone.
    EXPECT_EQ(focused(), Path({0, 0}));
    listener->whenAsked = nullptr;
    const WeakRef<UITableView> weak = table;
    listener->whenTapped = [this] {
        table->removeFromSuperview();
        table = nullptr;
    };
    window.press(Code::Return);
    EXPECT_TRUE(weak.expired());
    EXPECT_EQ(listener->taps, Paths({{0, 0}}));
}

TEST_F(TableKeys, a_key_while_the_rows_move_counts_from_where_they_are_heading) {
    press(Code::Tab);
    window.press(Code::End);
    window.tick(TestWindow::frame);
    window.press(Code::Home); // Its row is still in sight.
    window.runUntilStill();
    EXPECT_EQ(focused(), Path({0, 0}));
    EXPECT_EQ(offset(), 0);
}

TEST_F(TableKeysWithWheel, tab_goes_into_the_row_and_back) {
    EXPECT_TRUE(table->isFirstResponder());
    EXPECT_TRUE(press(Code::Tab));
    EXPECT_TRUE(wheel->isFirstResponder());
    EXPECT_TRUE(press(Code::Down));
    EXPECT_EQ(wheel->selectedRowInComponent(0), 1);
    EXPECT_EQ(focused(), Path({0, 0})) << "keys in a row are not for the rows";
    EXPECT_FALSE(press(Code::Return));
    EXPECT_TRUE(listener->taps.empty());
    EXPECT_TRUE(press(Code::BackTab));
    EXPECT_TRUE(table->isFirstResponder());
}

TEST_F(TableKeysWithWheel, when_the_row_goes_the_table_has_the_focus_again) {
    press(Code::Tab);
    source->cell = nullptr;
    source->rows = {19};
    table->deleteRowsAtIndexPaths_animated({{0, 1}}, true);
    EXPECT_TRUE(table->isFirstResponder());
    window.runUntilStill();
    EXPECT_TRUE(table->isFirstResponder());
    EXPECT_EQ(focused(), Path({0, 0}));
}

TEST_F(TableKeysWithWheel, when_the_row_is_scrolled_away_the_table_has_the_focus_and_stays_where_it_is) {
    press(Code::Tab);
    window.scrollPoints({20, 400}, 200);
    window.runUntilStill();
    EXPECT_TRUE(table->isFirstResponder());
    EXPECT_EQ(offset(), 200);
}

TEST_F(TableKeys, the_mark_goes_with_its_row_while_rows_come) {
    table->becomeFirstResponder();
    press(Code::Home);
    press(Code::Down);
    ASSERT_EQ(focused(), (NSIndexPath{0, 1}));
    ++source->rows[0];
    table->insertRowsAtIndexPaths_animated({{0, 0}}, true);
    ASSERT_EQ(focused(), (NSIndexPath{0, 2}));
    const auto marks = [this] {
        RecordingCanvas canvas;
        window->draw(canvas);
        return canvas.painted();
    };
    window.tick(0); // The change begins.
    // Final at once, but drawn where it was: the mark still lies over the second place.
    const auto onTheWay = marks();
    EXPECT_NE(std::find_if(onTheWay.begin(), onTheWay.end(), [](const auto& call) { return call.starts_with("fill 0 44 320 44 "); }),
              onTheWay.end());
    window.runUntilStill();
    const auto there = marks();
    EXPECT_NE(std::find_if(there.begin(), there.end(), [](const auto& call) { return call.starts_with("fill 0 88 320 44 "); }),
              there.end());
}
