#include "CGGeometry.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

using namespace gx;

namespace {
constexpr CGFloat inf = std::numeric_limits<CGFloat>::infinity();
constexpr CGFloat notANumber = std::numeric_limits<CGFloat>::quiet_NaN();
} // namespace

TEST(CGGeometry, ARectangleIsMadeOfItsFourNumbersInOrder) {
    const CGRect rect = CGRectMake(1, 2, 3, 4);
    EXPECT_EQ(rect.origin.x, 1);
    EXPECT_EQ(rect.origin.y, 2);
    EXPECT_EQ(rect.size.width, 3);
    EXPECT_EQ(rect.size.height, 4);
    EXPECT_EQ(rect.origin, CGPointMake(1, 2));
    EXPECT_EQ(rect.size, CGSizeMake(3, 4));
}

TEST(CGGeometry, EdgesAndMiddlesOfARectangle) {
    const CGRect rect = CGRectMake(10, 20, 30, 50);
    EXPECT_EQ(CGRectGetMinX(rect), 10);
    EXPECT_EQ(CGRectGetMidX(rect), 25);
    EXPECT_EQ(CGRectGetMaxX(rect), 40);
    EXPECT_EQ(CGRectGetMinY(rect), 20);
    EXPECT_EQ(CGRectGetMidY(rect), 45);
    EXPECT_EQ(CGRectGetMaxY(rect), 70);
    EXPECT_EQ(CGRectGetWidth(rect), 30);
    EXPECT_EQ(CGRectGetHeight(rect), 50);
}

TEST(CGGeometry, MiddlesOfAnOddLengthLieOnHalves) {
    EXPECT_EQ(CGRectGetMidX(CGRectMake(0, 0, 5, 0)), 2.5);
    EXPECT_EQ(CGRectGetMidY(CGRectMake(0, -7, 0, 4)), -5);
}

TEST(CGGeometry, ARectangleOfNegativeSizeReturnsValuesOfTheAreaItSpans) {
    const CGRect rect = CGRectMake(40, 70, -30, -50);
    EXPECT_EQ(CGRectGetMinX(rect), 10);
    EXPECT_EQ(CGRectGetMidX(rect), 25);
    EXPECT_EQ(CGRectGetMaxX(rect), 40);
    EXPECT_EQ(CGRectGetMinY(rect), 20);
    EXPECT_EQ(CGRectGetMidY(rect), 45);
    EXPECT_EQ(CGRectGetMaxY(rect), 70);
    EXPECT_EQ(CGRectGetWidth(rect), 30);
    EXPECT_EQ(CGRectGetHeight(rect), 50);
    EXPECT_EQ(CGRectStandardize(rect), CGRectMake(10, 20, 30, 50));
    EXPECT_FALSE(CGRectIsEmpty(rect));
    EXPECT_TRUE(CGRectEqualToRect(rect, CGRectMake(10, 20, 30, 50)));
    EXPECT_FALSE(rect == CGRectMake(10, 20, 30, 50)) << "not the same numbers";
}

TEST(CGGeometry, OnlyTheNegativeSideIsPutInOrder) {
    EXPECT_EQ(CGRectStandardize(CGRectMake(40, 20, -30, 50)), CGRectMake(10, 20, 30, 50));
    EXPECT_EQ(CGRectStandardize(CGRectMake(10, 70, 30, -50)), CGRectMake(10, 20, 30, 50));
}

TEST(CGGeometry, TheNullRectangleIsNullAndEmptyAndNotTheZeroRectangle) {
    EXPECT_TRUE(CGRectIsNull(CGRectNull));
    EXPECT_TRUE(CGRectIsEmpty(CGRectNull));
    EXPECT_FALSE(CGRectEqualToRect(CGRectNull, CGRectZero));
    EXPECT_TRUE(CGRectEqualToRect(CGRectNull, CGRectNull));
    EXPECT_FALSE(CGRectIsNull(CGRectZero));
    EXPECT_TRUE(CGRectIsEmpty(CGRectZero));
    EXPECT_EQ(CGRectGetWidth(CGRectNull), 0);
    EXPECT_EQ(CGRectGetHeight(CGRectNull), 0);
}

TEST(CGGeometry, ARectangleWithOneInfiniteCoordinateIsNull) {
    EXPECT_TRUE(CGRectIsNull(CGRectMake(inf, 0, 10, 10)));
    EXPECT_TRUE(CGRectIsNull(CGRectMake(0, inf, 10, 10)));
    EXPECT_FALSE(CGRectIsNull(CGRectMake(-inf, 0, inf, 10)));
}

TEST(CGGeometry, ARectangleWithoutAreaOrPlaceIsEmpty) {
    EXPECT_TRUE(CGRectIsEmpty(CGRectMake(1, 1, 0, 10)));
    EXPECT_TRUE(CGRectIsEmpty(CGRectMake(1, 1, 10, 0)));
    EXPECT_FALSE(CGRectIsEmpty(CGRectMake(1, 1, 0.001, 0.001)));
    EXPECT_TRUE(CGRectIsEmpty(CGRectMake(notANumber, 1, 10, 10)));
    EXPECT_TRUE(CGRectIsEmpty(CGRectMake(1, notANumber, 10, 10)));
    EXPECT_TRUE(CGRectIsEmpty(CGRectMake(1, 1, notANumber, 10)));
    EXPECT_TRUE(CGRectIsEmpty(CGRectMake(1, 1, 10, notANumber)));
}

TEST(CGGeometry, TheLeftAndTopEdgesBelongToARectangleAndTheOthersDoNot) {
    const CGRect rect = CGRectMake(10, 20, 30, 50);
    EXPECT_TRUE(CGRectContainsPoint(rect, {10, 20}));
    EXPECT_TRUE(CGRectContainsPoint(rect, {39.999, 69.999}));
    EXPECT_FALSE(CGRectContainsPoint(rect, {40, 45}));
    EXPECT_FALSE(CGRectContainsPoint(rect, {25, 70}));
    EXPECT_FALSE(CGRectContainsPoint(rect, {9.999, 45}));
    EXPECT_FALSE(CGRectContainsPoint(rect, {25, 19.999}));
}

TEST(CGGeometry, APointIsInTheAreaThatANegativeSizeSpans) {
    EXPECT_TRUE(CGRectContainsPoint(CGRectMake(40, 70, -30, -50), {10, 20}));
    EXPECT_FALSE(CGRectContainsPoint(CGRectMake(40, 70, -30, -50), {41, 71}));
}

TEST(CGGeometry, EmptyRectanglesContainNoPoint) {
    EXPECT_FALSE(CGRectContainsPoint(CGRectZero, {0, 0}));
    EXPECT_FALSE(CGRectContainsPoint(CGRectNull, {inf, inf}));
    EXPECT_FALSE(CGRectContainsPoint(CGRectMake(notANumber, 0, 10, 10), {5, 5}));
    EXPECT_FALSE(CGRectContainsPoint(CGRectMake(0, 0, 10, 10), {notANumber, 5}));
}

TEST(CGGeometry, OffsetMovesTheOriginAndKeepsTheSize) {
    EXPECT_EQ(CGRectOffset(CGRectMake(1, 2, 3, 4), 10, -20), CGRectMake(11, -18, 3, 4));
    EXPECT_TRUE(CGRectIsNull(CGRectOffset(CGRectNull, -inf, 5)));
}

TEST(CGGeometry, InsetShrinksOnBothSides) {
    EXPECT_EQ(CGRectInset(CGRectMake(10, 20, 30, 50), 4, 5), CGRectMake(14, 25, 22, 40));
    EXPECT_EQ(CGRectInset(CGRectMake(10, 20, 30, 50), -4, -5), CGRectMake(6, 15, 38, 60));
    EXPECT_EQ(CGRectInset(CGRectMake(40, 70, -30, -50), 4, 5), CGRectMake(14, 25, 22, 40));
}

TEST(CGGeometry, InsetToNothingIsALineAndBeyondItTheNullRectangle) {
    EXPECT_EQ(CGRectInset(CGRectMake(10, 20, 30, 50), 15, 0), CGRectMake(25, 20, 0, 50));
    EXPECT_TRUE(CGRectIsNull(CGRectInset(CGRectMake(10, 20, 30, 50), 15.5, 0)));
    EXPECT_TRUE(CGRectIsNull(CGRectInset(CGRectMake(10, 20, 30, 50), 0, 25.5)));
    EXPECT_TRUE(CGRectIsNull(CGRectInset(CGRectNull, -10, -10)));
}

TEST(CGGeometry, TheIntersectionIsTheSharedArea) {
    EXPECT_EQ(CGRectIntersection(CGRectMake(0, 0, 30, 30), CGRectMake(10, 20, 30, 30)), CGRectMake(10, 20, 20, 10));
    EXPECT_EQ(CGRectIntersection(CGRectMake(10, 20, 30, 30), CGRectMake(0, 0, 30, 30)), CGRectMake(10, 20, 20, 10));
    EXPECT_EQ(CGRectIntersection(CGRectMake(30, 30, -30, -30), CGRectMake(10, 20, 5, 5)), CGRectMake(10, 20, 5, 5));
}

TEST(CGGeometry, RectanglesThatTouchShareALineButNoArea) {
    EXPECT_EQ(CGRectIntersection(CGRectMake(0, 0, 30, 30), CGRectMake(30, 10, 5, 10)), CGRectMake(30, 10, 0, 10));
    EXPECT_FALSE(CGRectIntersectsRect(CGRectMake(0, 0, 30, 30), CGRectMake(30, 10, 5, 10)));
    EXPECT_TRUE(CGRectIntersectsRect(CGRectMake(0, 0, 30, 30), CGRectMake(29, 10, 5, 10)));
    EXPECT_TRUE(CGRectIsNull(CGRectIntersection(CGRectMake(0, 0, 30, 30), CGRectMake(31, 10, 5, 10))));
    EXPECT_TRUE(CGRectIsNull(CGRectIntersection(CGRectMake(0, 0, 30, 30), CGRectMake(10, 31, 5, 10))));
}

TEST(CGGeometry, TheNullRectangleIntersectsNothing) {
    EXPECT_TRUE(CGRectIsNull(CGRectIntersection(CGRectNull, CGRectMake(0, 0, inf, inf))));
    EXPECT_TRUE(CGRectIsNull(CGRectIntersection(CGRectMake(0, 0, 10, 10), CGRectNull)));
    EXPECT_FALSE(CGRectIntersectsRect(CGRectNull, CGRectNull));
}

TEST(CGGeometry, ARectangleWithoutAPlaceIntersectsNothingFromEitherSide) {
    const CGRect whole = CGRectMake(0, 0, 10, 10);
    for (const CGRect rect : {CGRectMake(notANumber, 0, 10, 10), CGRectMake(0, notANumber, 10, 10), CGRectMake(0, 0, notANumber, 10),
                              CGRectMake(0, 0, 10, notANumber)}) {
        EXPECT_FALSE(CGRectIntersectsRect(whole, rect));
        EXPECT_FALSE(CGRectIntersectsRect(rect, whole));
    }
}
