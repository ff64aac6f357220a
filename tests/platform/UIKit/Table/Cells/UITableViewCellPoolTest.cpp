#include "UITableViewCellPool.h"

#include <gtest/gtest.h>

using namespace gx;

namespace {

Ref<UITableViewCell> newCell(const std::string& identifier) { return create<UITableViewCell>(UITableViewCellStyleDefault, identifier); }

} // namespace

TEST(UITableViewCellPoolTest, ReturnsTheLastCellOfAnIdentifierFirst) {
    UITableViewCellPool pool;
    const auto first = newCell("a");
    const auto second = newCell("a");
    EXPECT_TRUE(pool.put(first));
    EXPECT_TRUE(pool.put(newCell("b")));
    EXPECT_TRUE(pool.put(second));
    EXPECT_EQ(pool.take("a"), second);
    EXPECT_EQ(pool.take("a"), first);
    EXPECT_EQ(pool.take("a"), nullptr);
    EXPECT_EQ(pool.take("c"), nullptr);
}

TEST(UITableViewCellPoolTest, RefusesCellsWithoutIdentifierAndAboveTheBound) {
    UITableViewCellPool pool;
    EXPECT_FALSE(pool.put(create<UITableViewCell>()));
    for (std::size_t i = 0; i < UITableViewCellPool::highestWaitingCount; ++i) EXPECT_TRUE(pool.put(newCell("a")));
    EXPECT_FALSE(pool.put(newCell("a")));
    EXPECT_TRUE(pool.put(newCell("b")));
}

TEST(UITableViewCellPoolTest, RemovesASingleCell) {
    UITableViewCellPool pool;
    const auto first = newCell("a");
    const auto second = newCell("a");
    pool.put(first);
    pool.put(second);
    pool.remove(second);
    pool.remove(newCell("a"));
    EXPECT_EQ(pool.take("a"), first);
}

TEST(UITableViewCellPoolTest, ANewFactoryReturnsTheCellsThatWaitedForItsIdentifier) {
    UITableViewCellPool pool;
    const auto cell = newCell("a");
    const auto other = newCell("b");
    pool.put(cell);
    pool.put(other);
    EXPECT_EQ(pool.setFactory([] { return newCell("a"); }, "a"), UITableViewCellPool::Cells{cell});
    EXPECT_EQ(pool.take("a"), nullptr);
    EXPECT_EQ(pool.take("b"), other);
    ASSERT_TRUE(pool.factory("a"));
    EXPECT_EQ(pool.factory("a")()->reuseIdentifier(), "a");
    EXPECT_FALSE(pool.factory("b"));
    EXPECT_FALSE(pool.factory("c"));
    EXPECT_TRUE(pool.setFactory(nullptr, "a").empty());
    EXPECT_FALSE(pool.factory("a"));
}
