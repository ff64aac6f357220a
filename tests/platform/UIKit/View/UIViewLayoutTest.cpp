// Layout passes: which views are laid out when, and what a layout may do to the tree.

#include <functional>

#include <gtest/gtest.h>

#include "UIWindow.h"

using namespace gx;

namespace {

/// Counts its layouts and may do something in them.
struct Laid : UIView {
    int layouts = 0;
    std::function<void()> whenLaidOut;
    void layoutSubviews() override {
        UIView::layoutSubviews();
        ++layouts;
        const std::function<void()> action = whenLaidOut; // It may be replaced while it runs.
        if (action) action();
    }
};

struct UIViewLayoutTest : testing::Test {
    Ref<Laid> root = create<Laid>(CGRectMake(0, 0, 100, 100));
    Ref<Laid> middle = create<Laid>(CGRectMake(0, 0, 50, 50));
    Ref<Laid> leaf = create<Laid>(CGRectMake(0, 0, 10, 10));
    Ref<Laid> sibling = create<Laid>(CGRectMake(50, 0, 50, 50));

    UIViewLayoutTest() {
        root->addSubview(middle);
        middle->addSubview(leaf);
        root->addSubview(sibling);
    }
    void layOutAll() {
        root->layoutIfNeeded();
        for (const Ref<Laid>& view : {root, middle, leaf, sibling}) view->layouts = 0;
    }
};

} // namespace

TEST_F(UIViewLayoutTest, TheFirstPassLaysOutEveryViewOnceWithoutAWindow) {
    root->layoutIfNeeded();
    for (const Ref<Laid>& view : {root, middle, leaf, sibling}) EXPECT_EQ(view->layouts, 1);
    root->layoutIfNeeded();
    for (const Ref<Laid>& view : {root, middle, leaf, sibling}) EXPECT_EQ(view->layouts, 1) << "nothing is due";
}

TEST_F(UIViewLayoutTest, OnlyInvalidatedViewsAreLaidOut) {
    layOutAll();
    leaf->setNeedsLayout();
    EXPECT_EQ(leaf->layouts, 0) << "not at once";
    root->layoutIfNeeded();
    EXPECT_EQ(leaf->layouts, 1);
    EXPECT_EQ(middle->layouts, 0);
    EXPECT_EQ(root->layouts, 0);
    EXPECT_EQ(sibling->layouts, 0);
}

TEST_F(UIViewLayoutTest, ASubtreeCanBeLaidOutAlone) {
    layOutAll();
    leaf->setNeedsLayout();
    sibling->setNeedsLayout();
    middle->layoutIfNeeded();
    EXPECT_EQ(leaf->layouts, 1);
    EXPECT_EQ(sibling->layouts, 0);
    root->layoutIfNeeded();
    EXPECT_EQ(leaf->layouts, 1);
    EXPECT_EQ(sibling->layouts, 1);
}

TEST_F(UIViewLayoutTest, ANewSizeInvalidatesTheLayoutAndANewPlaceDoesNot) {
    layOutAll();
    middle->setFrame(CGRectMake(10, 10, 50, 50));
    middle->setBounds(CGRectMake(5, 5, 50, 50));
    middle->setCenter({70, 70});
    root->layoutIfNeeded();
    EXPECT_EQ(middle->layouts, 0);
    middle->setFrame(CGRectMake(10, 10, 51, 50));
    root->layoutIfNeeded();
    EXPECT_EQ(middle->layouts, 1);
    middle->setBounds(CGRectMake(0, 0, 51, 49));
    root->layoutIfNeeded();
    EXPECT_EQ(middle->layouts, 2);
    middle->setFrame(CGRectNull);
    root->layoutIfNeeded();
    EXPECT_EQ(middle->layouts, 3);
    EXPECT_EQ(leaf->layouts, 0) << "its own size is what it was";
}

TEST_F(UIViewLayoutTest, ANewSubviewInvalidatesItsLayoutAndItsSuperviews) {
    layOutAll();
    const auto fresh = create<Laid>();
    middle->addSubview(fresh);
    root->layoutIfNeeded();
    EXPECT_EQ(middle->layouts, 1);
    EXPECT_EQ(fresh->layouts, 1);
    EXPECT_EQ(leaf->layouts, 0);
}

TEST_F(UIViewLayoutTest, ALayoutInvalidatedBelowAViewStaysSoWhereTheViewIsMovedTo) {
    layOutAll();
    middle->removeFromSuperview();
    leaf->setNeedsLayout();
    sibling->addSubview(middle);
    root->layoutIfNeeded();
    EXPECT_EQ(leaf->layouts, 1);
}

TEST_F(UIViewLayoutTest, ALayoutThatSizesItsSubviewsLaysThemOutInTheSamePass) {
    layOutAll();
    root->whenLaidOut = [this] { middle->setFrame(CGRectMake(0, 0, root->bounds().size.width / 2, 50)); };
    root->setFrame(CGRectMake(0, 0, 80, 100));
    root->layoutIfNeeded();
    EXPECT_EQ(middle->frame(), CGRectMake(0, 0, 40, 50));
    EXPECT_EQ(middle->layouts, 1);
}

// Layouts that ask for layouts

TEST_F(UIViewLayoutTest, ALayoutThatInvalidatesItselfIsRepeatedByTheNextPass) {
    layOutAll();
    leaf->whenLaidOut = [this] { leaf->setNeedsLayout(); };
    leaf->setNeedsLayout();
    for (int pass = 1; pass <= 3; ++pass) {
        root->layoutIfNeeded();
        EXPECT_EQ(leaf->layouts, pass);
    }
    leaf->whenLaidOut = nullptr;
    root->layoutIfNeeded();
    EXPECT_EQ(leaf->layouts, 4);
    root->layoutIfNeeded();
    EXPECT_EQ(leaf->layouts, 4) << "nobody asked any more";
}

TEST_F(UIViewLayoutTest, ALayoutWithinItselfIsANoOp) {
    layOutAll();
    middle->whenLaidOut = [this] {
        middle->setNeedsLayout();
        middle->layoutIfNeeded();
    };
    middle->setNeedsLayout();
    root->layoutIfNeeded();
    EXPECT_EQ(middle->layouts, 1);
    root->layoutIfNeeded();
    EXPECT_EQ(middle->layouts, 2);
}

TEST_F(UIViewLayoutTest, ALayoutMayLayOutItsSubviewsAtOnce) {
    layOutAll();
    int seen = -1;
    middle->whenLaidOut = [&] {
        leaf->setNeedsLayout();
        leaf->layoutIfNeeded();
        seen = leaf->layouts;
    };
    middle->setNeedsLayout();
    root->layoutIfNeeded();
    EXPECT_EQ(seen, 1);
    EXPECT_EQ(leaf->layouts, 1) << "not again in the same pass";
}

TEST_F(UIViewLayoutTest, ALayoutThatLaysOutTheRootLosesNothing) {
    layOutAll();
    leaf->whenLaidOut = [this] {
        leaf->whenLaidOut = nullptr;
        leaf->setNeedsLayout();
        root->layoutIfNeeded();
    };
    leaf->setNeedsLayout();
    root->layoutIfNeeded();
    EXPECT_EQ(leaf->layouts, 1);
    root->layoutIfNeeded();
    EXPECT_EQ(leaf->layouts, 2) << "it asked for another";
}

TEST_F(UIViewLayoutTest, ALayoutThatIsResizedByTheRootItCallsIsLaidOutAgain) {
    layOutAll();
    root->whenLaidOut = [this] { middle->setFrame(CGRectMake(0, 0, 70, 70)); };
    middle->whenLaidOut = [this] {
        middle->whenLaidOut = nullptr;
        root->setNeedsLayout();
        root->layoutIfNeeded();
    };
    middle->setNeedsLayout();
    root->layoutIfNeeded();
    root->layoutIfNeeded();
    EXPECT_EQ(middle->bounds().size, CGSizeMake(70, 70));
    EXPECT_EQ(middle->layouts, 2);
}

// Layouts that change the tree

TEST_F(UIViewLayoutTest, ALayoutThatRemovesItsViewLeavesTheSiblingsTheirs) {
    layOutAll();
    middle->whenLaidOut = [this] { middle->removeFromSuperview(); };
    middle->setNeedsLayout();
    sibling->setNeedsLayout();
    root->layoutIfNeeded();
    root->layoutIfNeeded();
    EXPECT_EQ(middle->layouts, 1);
    EXPECT_EQ(sibling->layouts, 1);
}

TEST_F(UIViewLayoutTest, ALayoutMayDropTheLastReferenceToItsView) {
    layOutAll();
    const WeakRef<Laid> weak = middle;
    middle->whenLaidOut = [this] {
        middle->removeFromSuperview();
        middle = nullptr;
    };
    middle->setNeedsLayout();
    sibling->setNeedsLayout();
    root->layoutIfNeeded();
    EXPECT_TRUE(weak.expired());
    EXPECT_EQ(sibling->layouts, 1);
}

TEST_F(UIViewLayoutTest, AViewRemovedByAnEarlierLayoutIsNotLaidOutWithTheTree) {
    layOutAll();
    middle->whenLaidOut = [this] { sibling->removeFromSuperview(); };
    middle->setNeedsLayout();
    sibling->setNeedsLayout();
    root->layoutIfNeeded();
    EXPECT_EQ(sibling->layouts, 0);
    sibling->layoutIfNeeded();
    EXPECT_EQ(sibling->layouts, 1) << "still due";
}

TEST_F(UIViewLayoutTest, AViewAddedInALayoutIsLaidOutByTheNextPass) {
    layOutAll();
    const auto fresh = create<Laid>();
    sibling->whenLaidOut = [&] { root->insertSubview_atIndex(fresh, 0); };
    sibling->setNeedsLayout();
    middle->setNeedsLayout();
    root->layoutIfNeeded();
    EXPECT_EQ(middle->layouts, 1);
    EXPECT_EQ(sibling->layouts, 1) << "once, although its place among the siblings has changed";
    sibling->whenLaidOut = nullptr;
    root->layoutIfNeeded();
    EXPECT_EQ(fresh->layouts, 1);
}

TEST_F(UIViewLayoutTest, ALayoutMayDropTheTreeItIsIn) {
    layOutAll();
    const WeakRef<Laid> weak = root;
    leaf->whenLaidOut = [this] { root = nullptr; };
    leaf->setNeedsLayout();
    root->layoutIfNeeded();
    EXPECT_TRUE(weak.expired());
    EXPECT_FALSE(middle->superview());
}
