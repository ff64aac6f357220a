#include "SmoothShape.h"

#include <gtest/gtest.h>

using namespace gallery;
using namespace gx;

namespace {

/// Corners at (2, 2) and (6, 6).
SmoothShape square() { return SmoothShape::polygon({{2, 2}, {6, 2}, {6, 6}, {2, 6}}, 0); }

} // namespace

TEST(SmoothShape, DistancesAreInPointsAndNegativeInside) {
    const SmoothShape circle = SmoothShape::circle({10, 10}, 4);
    EXPECT_DOUBLE_EQ(circle.distance({10, 10}), -4);
    EXPECT_DOUBLE_EQ(circle.distance({13, 14}), 1) << "5 from the center";
    const SmoothShape line = SmoothShape::stroke({{0, 0}, {10, 0}, {10, 10}}, 2);
    EXPECT_DOUBLE_EQ(line.distance({5, 3}), 2);
    EXPECT_DOUBLE_EQ(line.distance({-4, -3}), 4) << "5 from the round end";
    EXPECT_DOUBLE_EQ(line.distance({12, 5}), 1);
    EXPECT_DOUBLE_EQ(square().distance({4, 3}), -1);
    EXPECT_DOUBLE_EQ(square().distance({4, 1}), 1);
    EXPECT_DOUBLE_EQ(square().distance({9, 10}), 5);
}

TEST(SmoothShape, GrownMovedAndScaledItIsAsManyPointsAway) {
    const SmoothShape circle = SmoothShape::circle({2, 0}, 1);
    EXPECT_DOUBLE_EQ(circle.grown(2).distance({7, 0}), 2);
    EXPECT_DOUBLE_EQ(circle.moved(3, 4).distance({5, 4}), -1);
    EXPECT_DOUBLE_EQ(circle.scaled(3).distance({6, 0}), -3);
}

TEST(SmoothShape, AFilletFillsTheCreaseAndNothingElse) {
    const SmoothShape left = SmoothShape::circle({0, 0}, 5);
    const SmoothShape right = SmoothShape::circle({8, 0}, 5);
    EXPECT_DOUBLE_EQ(SmoothShape::united({left, right}, 0).distance({4, 3}), 0) << "both edges pass there";
    EXPECT_DOUBLE_EQ(SmoothShape::united({left, right}, 2).distance({4, 3}), -0.5) << "a quarter of the fillet";
    EXPECT_DOUBLE_EQ(SmoothShape::united({left, right}, 2).distance({-7, 0}), 2);
}

TEST(SmoothShape, ItsBoundsReachAsFarAsItDoes) {
    EXPECT_EQ(SmoothShape::circle({10, 20}, 4).bounds(), CGRectMake(6, 16, 8, 8));
    EXPECT_EQ(SmoothShape::stroke({{0, 0}, {10, 5}}, 2).bounds(), CGRectMake(-1, -1, 12, 7));
    EXPECT_EQ(square().grown(1).bounds(), CGRectMake(1, 1, 6, 6));
}

TEST(SmoothShape, AnArcGoesFromTheRightClockwise) {
    const std::vector<CGPoint> arc = arcPoints({10, 20}, 5, 0, 90);
    EXPECT_NEAR(arc.front().x, 15, 1e-9);
    EXPECT_NEAR(arc.front().y, 20, 1e-9);
    EXPECT_NEAR(arc.back().x, 10, 1e-9);
    EXPECT_NEAR(arc.back().y, 25, 1e-9) << "down, since y grows downward";
}
