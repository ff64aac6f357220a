// Frames, bounds and centres, and conversions between views.

#include <cmath>

#include <gtest/gtest.h>

#include "UIView.h"

using namespace gx;

namespace {

Ref<UIView> viewIn(const Ref<UIView>& above, CGRect frame) {
    auto view = create<UIView>(frame);
    above->addSubview(view);
    return view;
}

/// A root with two branches: `outer` is scrolled by (5, 7) and holds `inner`; `other` stands aside.
struct UIViewGeometryTest : testing::Test {
    Ref<UIView> root = create<UIView>(CGRectMake(1000, 1000, 300, 300));
    Ref<UIView> outer = viewIn(root, CGRectMake(10, 20, 100, 100));
    Ref<UIView> inner = viewIn(outer, CGRectMake(30, 40, 20, 20));
    Ref<UIView> other = viewIn(root, CGRectMake(200, 100, 50, 50));

    UIViewGeometryTest() { outer->setBounds(CGRectMake(5, 7, 100, 100)); }
};

} // namespace

// Frame, bounds, centre

TEST_F(UIViewGeometryTest, BoundsHaveTheSizeOfTheFrameAndTheirOwnOrigin) {
    const auto view = create<UIView>(CGRectMake(10, 20, 100, 50));
    EXPECT_EQ(view->bounds(), CGRectMake(0, 0, 100, 50));
    EXPECT_EQ(view->center(), CGPointMake(60, 45));
    view->setFrame(CGRectMake(-5, 0, 30, 40));
    EXPECT_EQ(view->frame(), CGRectMake(-5, 0, 30, 40));
    EXPECT_EQ(view->bounds(), CGRectMake(0, 0, 30, 40));
    EXPECT_EQ(view->center(), CGPointMake(10, 20));
}

TEST_F(UIViewGeometryTest, NewBoundsOfTheSameSizeScrollTheViewAndLeaveItsFrame) {
    const auto view = create<UIView>(CGRectMake(10, 20, 100, 50));
    view->setBounds(CGRectMake(7, -8, 100, 50));
    EXPECT_EQ(view->frame(), CGRectMake(10, 20, 100, 50));
    EXPECT_EQ(view->bounds(), CGRectMake(7, -8, 100, 50));
    view->setFrame(CGRectMake(0, 0, 60, 60));
    EXPECT_EQ(view->bounds(), CGRectMake(7, -8, 60, 60)) << "a new frame keeps the origin of the bounds";
}

TEST_F(UIViewGeometryTest, NewBoundsOfAnotherSizeKeepTheCentre) {
    const auto view = create<UIView>(CGRectMake(10, 20, 100, 50));
    view->setBounds(CGRectMake(1, 2, 40, 30));
    EXPECT_EQ(view->frame(), CGRectMake(40, 30, 40, 30));
    EXPECT_EQ(view->bounds(), CGRectMake(1, 2, 40, 30));
    EXPECT_EQ(view->center(), CGPointMake(60, 45));
}

TEST_F(UIViewGeometryTest, ANewCentreMovesTheViewThroughSetFrame) {
    struct Noting : UIView {
        int frames = 0;
        void setFrame(CGRect frame) override {
            ++frames;
            UIView::setFrame(frame);
        }
    };
    const auto view = create<Noting>(CGRectMake(10, 20, 100, 50));
    view->setCenter({100, 200});
    EXPECT_EQ(view->frame(), CGRectMake(50, 175, 100, 50));
    EXPECT_EQ(view->frames, 1);
    EXPECT_EQ(view->center(), CGPointMake(100, 200));
}

TEST_F(UIViewGeometryTest, ANegativeSizeIsTheAreaThatItSpans) {
    const auto view = viewIn(root, CGRectMake(40, 70, -30, -50));
    EXPECT_EQ(view->frame(), CGRectMake(40, 70, -30, -50));
    EXPECT_EQ(view->bounds(), CGRectMake(0, 0, 30, 50));
    EXPECT_EQ(view->center(), CGPointMake(25, 45));
    EXPECT_EQ(view->convertPoint_toView({0, 0}, root), CGPointMake(10, 20)) << "where its top left is drawn";
}

TEST_F(UIViewGeometryTest, TheNullRectangleIsKeptAndGivesEmptyBounds) {
    const auto view = create<UIView>(CGRectNull);
    EXPECT_TRUE(CGRectIsNull(view->frame()));
    EXPECT_EQ(view->bounds(), CGRectZero);
    view->setFrame(CGRectMake(1, 2, 3, 4));
    EXPECT_EQ(view->frame(), CGRectMake(1, 2, 3, 4));
    view->setFrame(CGRectNull);
    EXPECT_TRUE(CGRectIsNull(view->frame()));
    EXPECT_EQ(view->bounds(), CGRectZero);
}

TEST_F(UIViewGeometryTest, SizeToFitTakesTheFittingSizeAndKeepsTheOrigin) {
    struct Sized : UIView {
        mutable CGSize asked;
        CGSize sizeThatFits(CGSize available) const override {
            asked = available;
            return {12, 34};
        }
    };
    const auto view = create<Sized>(CGRectMake(5, 6, 100, 50));
    view->sizeToFit();
    EXPECT_EQ(view->asked, CGSizeMake(100, 50));
    EXPECT_EQ(view->frame(), CGRectMake(5, 6, 12, 34));
    view->setFrame(CGRectNull);
    view->sizeToFit();
    EXPECT_EQ(view->frame(), CGRectMake(0, 0, 12, 34));
}

TEST_F(UIViewGeometryTest, APlainViewFitsAsItIs) { EXPECT_EQ(outer->sizeThatFits({1, 2}), CGSizeMake(100, 100)); }

// Conversions

TEST_F(UIViewGeometryTest, APointGoesUpByFramesAndScrolledOrigins) {
    EXPECT_EQ(inner->convertPoint_toView({1, 2}, outer), CGPointMake(31, 42));
    EXPECT_EQ(inner->convertPoint_toView({1, 2}, root), CGPointMake(36, 55));
    EXPECT_EQ(root->convertPoint_fromView({1, 2}, inner), CGPointMake(36, 55));
}

TEST_F(UIViewGeometryTest, APointGoesDownByFramesAndScrolledOrigins) {
    EXPECT_EQ(root->convertPoint_toView({36, 55}, inner), CGPointMake(1, 2));
    EXPECT_EQ(inner->convertPoint_fromView({36, 55}, root), CGPointMake(1, 2));
}

TEST_F(UIViewGeometryTest, APointGoesAcrossTheNearestCommonView) {
    EXPECT_EQ(inner->convertPoint_toView({1, 2}, other), CGPointMake(-164, -45));
    EXPECT_EQ(other->convertPoint_fromView({1, 2}, inner), CGPointMake(-164, -45));
    EXPECT_EQ(other->convertPoint_toView({-164, -45}, inner), CGPointMake(1, 2));
}

TEST_F(UIViewGeometryTest, ARectangleKeepsItsSize) {
    EXPECT_EQ(inner->convertRect_toView(CGRectMake(1, 2, 3, 4), root), CGRectMake(36, 55, 3, 4));
    EXPECT_EQ(root->convertRect_fromView(inner->bounds(), inner), CGRectMake(35, 53, 20, 20));
}

TEST_F(UIViewGeometryTest, AViewConvertsToItselfUnchanged) {
    EXPECT_EQ(inner->convertPoint_toView({1, 2}, inner), CGPointMake(1, 2));
    EXPECT_EQ(inner->convertRect_fromView(CGRectMake(1, 2, 3, 4), inner), CGRectMake(1, 2, 3, 4));
}

TEST_F(UIViewGeometryTest, AnAbsentViewGivesZero) {
    EXPECT_EQ(inner->convertRect_fromView(CGRectMake(1, 2, 3, 4), nullptr), CGRectZero);
    EXPECT_EQ(inner->convertRect_toView(CGRectMake(1, 2, 3, 4), nullptr), CGRectZero);
    EXPECT_EQ(inner->convertPoint_fromView({1, 2}, nullptr), CGPointMake(0, 0));
    EXPECT_EQ(inner->convertPoint_toView({1, 2}, nullptr), CGPointMake(0, 0));
}

TEST_F(UIViewGeometryTest, RootsOfSeparateTreesLieOnEachOther) {
    const auto stranger = create<UIView>(CGRectMake(-500, -500, 10, 10));
    const auto leaf = viewIn(stranger, CGRectMake(3, 4, 5, 5));
    EXPECT_EQ(leaf->convertPoint_toView({0, 0}, inner), CGPointMake(-32, -49));
    EXPECT_EQ(leaf->convertPoint_fromView({0, 0}, inner), CGPointMake(32, 49));
}

TEST_F(UIViewGeometryTest, ThePlaceOfTheWindowIsThatOfTheRoot) { EXPECT_EQ(inner->convertPointFromWindow({36, 55}), CGPointMake(1, 2)); }

TEST_F(UIViewGeometryTest, BelowAViewWithoutAPlaceConversionsAreAsExactAsElsewhere) {
    const auto placeless = viewIn(root, CGRectNull);
    const auto first = viewIn(placeless, CGRectMake(1, 2, 3, 4));
    const auto second = viewIn(placeless, CGRectMake(10, 20, 3, 4));
    EXPECT_EQ(placeless->convertPoint_fromView({0, 0}, first), CGPointMake(1, 2));
    EXPECT_EQ(first->convertPoint_toView({0, 0}, second), CGPointMake(-9, -18));
    EXPECT_EQ(first->convertPoint_toView({5, 6}, first), CGPointMake(5, 6));
}
