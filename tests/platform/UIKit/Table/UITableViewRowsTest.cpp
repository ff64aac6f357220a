#include "UITableViewRows.h"

#include <gtest/gtest.h>

#include <limits>

using namespace gx;

namespace {

using Path = std::optional<NSIndexPath>;

/// A header of 20 and three rows of 40; a section without anything; rows of 10, 0, 30, 0 without a header.
UITableViewRows mixedRows() {
    UITableViewRows rows;
    rows.addSection("first", 20, 3, 40);
    rows.addSection(std::nullopt, 0, 0, 40);
    rows.addSection(std::nullopt, 0, {10, 0, 30, 0});
    return rows;
}

} // namespace

TEST(NSIndexPath, is_ordered_from_top_to_bottom) {
    constexpr NSIndexPath path = NSIndexPath::indexPathForRow_inSection(5, 2);
    EXPECT_EQ(path, (NSIndexPath{2, 5}));
    EXPECT_LT((NSIndexPath{1, 9}), path);
    EXPECT_LT((NSIndexPath{2, 4}), path);
    EXPECT_FALSE(path < path);
    EXPECT_FALSE((NSIndexPath{3, 0}) < path);
}

TEST(UITableViewRows, lie_below_each_other) {
    const UITableViewRows rows = mixedRows();
    EXPECT_EQ(rows.height(), 180);
    EXPECT_EQ(rows.spanOfHeader(0).bottom(), 20);
    EXPECT_EQ(rows.spanOfRow({0, 2}).top, 100);
    EXPECT_EQ(rows.spanOfRow({0, 2}).height, 40);
    EXPECT_EQ(rows.spanOfRow({2, 0}).top, 140);
    EXPECT_EQ(rows.spanOfRow({2, 1}).height, 0);
    EXPECT_EQ(rows.spanOfRow({2, 2}).top, 150);
    EXPECT_EQ(rows.spanOfRow({2, 2}).bottom(), 180);
    EXPECT_TRUE(rows.exists({2, 3}));
    EXPECT_FALSE(rows.exists({2, 4}));
    EXPECT_FALSE(rows.exists({1, 0}));
    EXPECT_FALSE(rows.exists({0, -1}));
    EXPECT_FALSE(rows.exists({-1, 0}));
    EXPECT_EQ(rows.rowCount(3), 0);
}

TEST(UITableViewRows, are_found_by_their_places) {
    const UITableViewRows rows = mixedRows();
    EXPECT_EQ(rows.rowAt(-0.5), std::nullopt);
    EXPECT_EQ(rows.rowAt(19.9), std::nullopt) << "a header";
    EXPECT_EQ(rows.rowAt(20), Path({0, 0}));
    EXPECT_EQ(rows.rowAt(59.9), Path({0, 0}));
    EXPECT_EQ(rows.rowAt(60), Path({0, 1}));
    EXPECT_EQ(rows.rowAt(139.9), Path({0, 2}));
    EXPECT_EQ(rows.rowAt(140), Path({2, 0}));
    EXPECT_EQ(rows.rowAt(150), Path({2, 2})) << "a row without height covers nothing";
    EXPECT_EQ(rows.rowAt(179.9), Path({2, 2}));
    EXPECT_EQ(rows.rowAt(180), std::nullopt);
    EXPECT_EQ(rows.rowAt(std::numeric_limits<double>::quiet_NaN()), std::nullopt);
    EXPECT_EQ(rows.firstRowBelow(-100), Path({0, 0}));
    EXPECT_EQ(rows.firstRowBelow(0), Path({0, 0}));
    EXPECT_EQ(rows.firstSectionBelow(139.9), 0);
    EXPECT_EQ(rows.firstSectionBelow(140), 2);
    EXPECT_EQ(rows.firstSectionBelow(180), 3);
}

TEST(UITableViewRows, follow_each_other_but_for_those_without_height) {
    const UITableViewRows rows = mixedRows();
    EXPECT_EQ(rows.nextRow({0, 0}), Path({0, 1}));
    EXPECT_EQ(rows.nextRow({0, 2}), Path({2, 0}));
    EXPECT_EQ(rows.nextRow({2, 0}), Path({2, 2}));
    EXPECT_EQ(rows.nextRow({2, 2}), std::nullopt);
}

TEST(UITableViewRows, of_an_odd_height_are_each_followed_by_the_next) {
    UITableViewRows rows;
    rows.addSection("header", 28.3, 1'000'000, 44.1);
    for (NSInteger row = 0; row < 999'999; row += 997) {
        EXPECT_EQ(rows.nextRow({0, row}), Path({0, row + 1}));
        EXPECT_EQ(rows.rowAt(rows.spanOfRow({0, row}).middle()), Path({0, row}));
    }
}

TEST(UITableViewRows, one_row_may_take_another_height) {
    UITableViewRows rows = mixedRows();
    rows.setHeight({0, 1}, 50);
    EXPECT_EQ(rows.spanOfRow({0, 0}).height, 40);
    EXPECT_EQ(rows.spanOfRow({0, 1}).height, 50);
    EXPECT_EQ(rows.spanOfRow({0, 2}).top, 110);
    EXPECT_EQ(rows.spanOfRow({2, 0}).top, 150);
    EXPECT_EQ(rows.height(), 190);
    rows.setHeight({9, 0}, 50);
    EXPECT_EQ(rows.height(), 190);
}

TEST(UITableViewRows, take_odd_answers_for_nearby_ones) {
    EXPECT_EQ(UITableViewRows::heldHeight(-1), 0);
    EXPECT_EQ(UITableViewRows::heldHeight(std::numeric_limits<double>::quiet_NaN()), 0);
    EXPECT_EQ(UITableViewRows::heldHeight(0.001), 1);
    EXPECT_EQ(UITableViewRows::heldHeight(std::numeric_limits<double>::infinity()), 1e6);
    EXPECT_EQ(UITableViewRows::heldRowCount(-1), 0);
    EXPECT_EQ(UITableViewRows::heldRowCount(std::numeric_limits<NSInteger>::max()), 1'000'000'000'000);
    EXPECT_EQ(UITableViewRows::heldSectionCount(10'001), 10'000);
}

TEST(UITableViewRows, go_upwards_over_sections_and_rows_without_height) {
    const UITableViewRows rows = mixedRows();
    EXPECT_EQ(rows.firstRow(), Path({0, 0}));
    EXPECT_EQ(rows.lastRow(), Path({2, 2}));
    EXPECT_EQ(rows.previousRow({2, 3}), Path({2, 2}));
    EXPECT_EQ(rows.previousRow({2, 2}), Path({2, 0}));
    EXPECT_EQ(rows.previousRow({2, 0}), Path({0, 2}));
    EXPECT_EQ(rows.previousRow({0, 1}), Path({0, 0}));
    EXPECT_EQ(rows.previousRow({0, 0}), std::nullopt);
    EXPECT_EQ(UITableViewRows().firstRow(), std::nullopt);
    EXPECT_EQ(UITableViewRows().lastRow(), std::nullopt);
}

TEST(UITableViewRows, a_place_is_held_to_the_rows_there_are) {
    const UITableViewRows rows = mixedRows();
    EXPECT_EQ(rows.heldRow({0, 2}), Path({0, 2}));
    EXPECT_EQ(rows.heldRow({0, 3}), Path({0, 2}));
    EXPECT_EQ(rows.heldRow({1, 0}), Path({0, 2}));
    EXPECT_EQ(rows.heldRow({2, 4}), Path({2, 2})) << "the last one with a height";
    EXPECT_EQ(rows.heldRow({9, 0}), Path({2, 2}));
    EXPECT_EQ(rows.heldRow({-1, 0}), Path({0, 0}));
    EXPECT_EQ(UITableViewRows().heldRow({0, 0}), std::nullopt);
}

TEST(UITableViewRows, without_height_are_passed_over_below_their_header) {
    UITableViewRows rows;
    rows.addSection("first", 20, 5, 0);
    rows.addSection(std::nullopt, 0, 1, 40);
    EXPECT_EQ(rows.height(), 60);
    EXPECT_EQ(rows.firstRowBelow(10), Path(NSIndexPath{1, 0}));
    EXPECT_EQ(rows.rowAt(10), Path());
    EXPECT_EQ(rows.rowAt(20), Path(NSIndexPath{1, 0}));
}

TEST(UITableViewRows, more_than_one_of_a_section_may) {
    UITableViewRows rows = mixedRows();
    rows.setHeight({0, 1}, 50);
    rows.setHeight({0, 0}, 10);
    EXPECT_EQ(rows.spanOfRow({0, 0}).height, 10);
    EXPECT_EQ(rows.spanOfRow({0, 1}).top, 30);
    EXPECT_EQ(rows.spanOfRow({0, 1}).height, 50);
    EXPECT_EQ(rows.spanOfRow({0, 2}).height, 40);
    EXPECT_EQ(rows.height(), 160);
}

TEST(UITableViewRows, none_may_in_a_section_too_long_for_that) {
    UITableViewRows rows;
    rows.addSection(std::nullopt, 0, UITableViewRows::highestHeightCount + 1, 10);
    rows.setHeight({0, 0}, 50);
    EXPECT_EQ(rows.spanOfRow({0, 0}).height, 10);
    UITableViewRows shorter;
    shorter.addSection(std::nullopt, 0, UITableViewRows::highestHeightCount, 10);
    shorter.setHeight({0, 0}, 50);
    EXPECT_EQ(shorter.spanOfRow({0, 0}).height, 50);
}
