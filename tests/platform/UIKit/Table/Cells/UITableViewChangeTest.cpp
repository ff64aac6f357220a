#include "UITableViewChange.h"

#include <gtest/gtest.h>

using namespace gx;
using Path = std::optional<NSIndexPath>;
using Paths = std::vector<NSIndexPath>;

TEST(UITableViewChangeTest, MapsPaths) {
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

TEST(UITableViewChangeTest, RequiresTheSameSections) {
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

TEST(UITableViewChangeTest, LeavesSectionsAboveAlone) {
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
