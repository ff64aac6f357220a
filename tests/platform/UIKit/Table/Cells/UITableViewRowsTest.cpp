#include "UITableViewRows.h"

#include <gtest/gtest.h>

#include <limits>

using namespace gx;

namespace {

using Path = std::optional<NSIndexPath>;

/// Three sections: a header of 20 and three rows of 40; nothing; rows of 10, 0, 30, 0 without a
/// header.
UITableViewRows mixedRows() {
    UITableViewRows rows;
    rows.addSection("first", 20, 3, 40);
    rows.addSection(std::nullopt, 0, 0, 40);
    rows.addSection(std::nullopt, 0, {10, 0, 30, 0});
    return rows;
}

} // namespace

TEST(NSIndexPathTest, IsOrderedFromTopToBottom) {
    constexpr NSIndexPath path = NSIndexPath::indexPathForRow_inSection(5, 2);
    EXPECT_EQ(path, (NSIndexPath{2, 5}));
    EXPECT_LT((NSIndexPath{1, 9}), path);
    EXPECT_LT((NSIndexPath{2, 4}), path);
    EXPECT_FALSE(path < path);
    EXPECT_FALSE((NSIndexPath{3, 0}) < path);
}

TEST(UITableViewRowsTest, LieBelowEachOther) {
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

TEST(UITableViewRowsTest, AreFoundByPosition) {
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

TEST(UITableViewRowsTest, NextRowSkipsRowsWithoutHeight) {
    const UITableViewRows rows = mixedRows();
    EXPECT_EQ(rows.nextRow({0, 0}), Path({0, 1}));
    EXPECT_EQ(rows.nextRow({0, 2}), Path({2, 0}));
    EXPECT_EQ(rows.nextRow({2, 0}), Path({2, 2}));
    EXPECT_EQ(rows.nextRow({2, 2}), std::nullopt);
}

TEST(UITableViewRowsTest, NextRowIsExactForFractionalHeights) {
    UITableViewRows rows;
    rows.addSection("header", 28.3, 1'000'000, 44.1);
    for (NSInteger row = 0; row < 999'999; row += 997) {
        EXPECT_EQ(rows.nextRow({0, row}), Path({0, row + 1}));
        EXPECT_EQ(rows.rowAt(rows.spanOfRow({0, row}).middle()), Path({0, row}));
    }
}

TEST(UITableViewRowsTest, SetHeightMovesTheRowsBelow) {
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

TEST(UITableViewRowsTest, ClampHeightsAndCounts) {
    EXPECT_EQ(UITableViewRows::clampedHeight(-1), 0);
    EXPECT_EQ(UITableViewRows::clampedHeight(std::numeric_limits<double>::quiet_NaN()), 0);
    EXPECT_EQ(UITableViewRows::clampedHeight(0.001), 1);
    EXPECT_EQ(UITableViewRows::clampedHeight(std::numeric_limits<double>::infinity()), 1e6);
    EXPECT_EQ(UITableViewRows::clampedRowCount(-1), 0);
    EXPECT_EQ(UITableViewRows::clampedRowCount(std::numeric_limits<NSInteger>::max()), 1'000'000'000'000);
    EXPECT_EQ(UITableViewRows::clampedSectionCount(10'001), 10'000);
}

TEST(UITableViewRowsTest, PreviousRowSkipsRowsWithoutHeight) {
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

TEST(UITableViewRowsTest, ClampedRowExists) {
    const UITableViewRows rows = mixedRows();
    EXPECT_EQ(rows.clampedRow({0, 2}), Path({0, 2}));
    EXPECT_EQ(rows.clampedRow({0, 3}), Path({0, 2}));
    EXPECT_EQ(rows.clampedRow({1, 0}), Path({0, 2}));
    EXPECT_EQ(rows.clampedRow({2, 4}), Path({2, 2})) << "the last one with a height";
    EXPECT_EQ(rows.clampedRow({9, 0}), Path({2, 2}));
    EXPECT_EQ(rows.clampedRow({-1, 0}), Path({0, 0}));
    EXPECT_EQ(UITableViewRows().clampedRow({0, 0}), std::nullopt);
}

TEST(UITableViewRowsTest, WithoutHeightAreSkippedBelowTheirHeader) {
    UITableViewRows rows;
    rows.addSection("first", 20, 5, 0);
    rows.addSection(std::nullopt, 0, 1, 40);
    EXPECT_EQ(rows.height(), 60);
    EXPECT_EQ(rows.firstRowBelow(10), Path(NSIndexPath{1, 0}));
    EXPECT_EQ(rows.rowAt(10), Path());
    EXPECT_EQ(rows.rowAt(20), Path(NSIndexPath{1, 0}));
}

TEST(UITableViewRowsTest, SetHeightMayBeUsedForSeveralRows) {
    UITableViewRows rows = mixedRows();
    rows.setHeight({0, 1}, 50);
    rows.setHeight({0, 0}, 10);
    EXPECT_EQ(rows.spanOfRow({0, 0}).height, 10);
    EXPECT_EQ(rows.spanOfRow({0, 1}).top, 30);
    EXPECT_EQ(rows.spanOfRow({0, 1}).height, 50);
    EXPECT_EQ(rows.spanOfRow({0, 2}).height, 40);
    EXPECT_EQ(rows.height(), 160);
}

TEST(UITableViewRowsTest, SetHeightIsIgnoredInAVeryLongSection) {
    UITableViewRows rows;
    rows.addSection(std::nullopt, 0, UITableViewRows::highestHeightCount + 1, 10);
    rows.setHeight({0, 0}, 50);
    EXPECT_EQ(rows.spanOfRow({0, 0}).height, 10);
    UITableViewRows shorter;
    shorter.addSection(std::nullopt, 0, UITableViewRows::highestHeightCount, 10);
    shorter.setHeight({0, 0}, 50);
    EXPECT_EQ(shorter.spanOfRow({0, 0}).height, 50);
}
