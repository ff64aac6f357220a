// Which view a point meets, and how touches and scrolling go up the tree.

#include <gtest/gtest.h>

#include "UIView.h"

using namespace gx;

namespace {

Ref<UIView> viewIn(const Ref<UIView>& above, CGRect frame) {
    auto view = create<UIView>(frame);
    above->addSubview(view);
    return view;
}

/// Notes what reaches it, and keeps it or hands it on.
struct Taker : UIView {
    std::string log;
    std::int64_t finger = 0;
    bool handsOn = false;

    bool touchBegan(const UITouch& touch) override {
        note("began ", touch);
        return handsOn ? UIView::touchBegan(touch) : true;
    }
    void touchMoved(const UITouch& touch) override {
        note("moved ", touch);
        if (handsOn) UIView::touchMoved(touch);
    }
    void touchEnded(const UITouch& touch) override {
        note("ended ", touch);
        if (handsOn) UIView::touchEnded(touch);
    }
    void touchCancelled(const UITouch& touch) override {
        note("cancelled ", touch);
        if (handsOn) UIView::touchCancelled(touch);
    }
    bool scrolled(const UIScroll& scroll) override {
        log += "scrolled ";
        return handsOn ? UIView::scrolled(scroll) : true;
    }

private:
    void note(const char* what, const UITouch& touch) {
        log += what;
        finger = touch.identifier;
    }
};

struct UIViewEventsTest : testing::Test {
    Ref<UIView> root = create<UIView>(CGRectMake(0, 0, 100, 100));
};

} // namespace

// Hit testing

TEST_F(UIViewEventsTest, APointMeetsTheTopmostViewThatContainsIt) {
    const auto lower = viewIn(root, CGRectMake(10, 10, 50, 50));
    const auto upper = viewIn(root, CGRectMake(30, 30, 50, 50));
    EXPECT_EQ(root->hitTest({5, 5}), root);
    EXPECT_EQ(root->hitTest({10, 10}), lower);
    EXPECT_EQ(root->hitTest({29, 40}), lower);
    EXPECT_EQ(root->hitTest({30, 40}), upper);
    EXPECT_EQ(root->hitTest({79, 79}), upper);
    EXPECT_EQ(root->hitTest({80, 79}), root);
}

TEST_F(UIViewEventsTest, APointOutsideMeetsNothing) {
    EXPECT_EQ(root->hitTest({99.9, 99.9}), root);
    EXPECT_FALSE(root->hitTest({100, 50}));
    EXPECT_FALSE(root->hitTest({50, 100}));
    EXPECT_FALSE(root->hitTest({-0.1, 50}));
}

TEST_F(UIViewEventsTest, WhatSticksOutOfItsSuperviewIsNotMetThere) {
    const auto middle = viewIn(root, CGRectMake(10, 10, 20, 20));
    const auto leaf = viewIn(middle, CGRectMake(10, 10, 50, 50));
    EXPECT_EQ(root->hitTest({25, 25}), leaf);
    EXPECT_EQ(root->hitTest({35, 35}), root);
}

TEST_F(UIViewEventsTest, WhatIsHiddenFaintOrTakesNoTouchesIsPassedThrough) {
    const auto lower = viewIn(root, CGRectMake(0, 0, 50, 50));
    const auto upper = viewIn(root, CGRectMake(0, 0, 50, 50));
    const auto leaf = viewIn(upper, CGRectMake(0, 0, 50, 50));
    EXPECT_EQ(root->hitTest({5, 5}), leaf);
    upper->setUserInteractionEnabled(false);
    EXPECT_EQ(root->hitTest({5, 5}), lower) << "with all below it";
    upper->setUserInteractionEnabled(true);
    upper->setHidden(true);
    EXPECT_EQ(root->hitTest({5, 5}), lower);
    upper->setHidden(false);
    upper->setAlpha(0.009);
    EXPECT_EQ(root->hitTest({5, 5}), lower);
    upper->setAlpha(0.01);
    EXPECT_EQ(root->hitTest({5, 5}), leaf);
}

TEST_F(UIViewEventsTest, AViewTakesInputFromTheLowestAlphaOn) {
    const auto view = viewIn(root, CGRectMake(0, 0, 50, 50));
    const auto leaf = viewIn(view, CGRectMake(0, 0, 50, 50));
    view->setAlpha(0.01);
    EXPECT_TRUE(leaf->takesInput());
    EXPECT_EQ(root->hitTest({5, 5}), leaf);
    view->setAlpha(0.0099);
    EXPECT_FALSE(leaf->takesInput());
    EXPECT_EQ(root->hitTest({5, 5}), root);
}

TEST_F(UIViewEventsTest, ScrolledBoundsMoveWhatAPointMeets) {
    const auto scrolled = viewIn(root, CGRectMake(10, 10, 50, 50));
    const auto leaf = viewIn(scrolled, CGRectMake(1000, 2000, 10, 10));
    scrolled->setBounds(CGRectMake(990, 1990, 50, 50));
    EXPECT_EQ(root->hitTest({20, 20}), leaf);
    EXPECT_EQ(root->hitTest({29, 29}), leaf);
    EXPECT_EQ(root->hitTest({30, 30}), scrolled);
    EXPECT_EQ(root->hitTest({19, 20}), scrolled);
}

TEST_F(UIViewEventsTest, AViewOfNegativeSizeIsMetWhereItIsDrawn) {
    const auto view = viewIn(root, CGRectMake(40, 60, -30, -40));
    EXPECT_EQ(root->hitTest({10, 20}), view);
    EXPECT_EQ(root->hitTest({39, 59}), view);
    EXPECT_EQ(root->hitTest({41, 61}), root);
}

TEST_F(UIViewEventsTest, AViewWithoutAPlaceIsNotMet) {
    viewIn(root, CGRectNull);
    EXPECT_EQ(root->hitTest({5, 5}), root);
}

// Up the tree

TEST_F(UIViewEventsTest, TouchesGoUpUntilAViewKeepsThem) {
    const auto top = create<Taker>(CGRectMake(0, 0, 100, 100));
    const auto keeper = create<Taker>(CGRectMake(0, 0, 100, 100));
    top->addSubview(keeper);
    const auto plain = viewIn(keeper, CGRectMake(0, 0, 10, 10));
    const UITouch touch = {7, 1.5, {3, 4}};
    EXPECT_TRUE(plain->touchBegan(touch));
    plain->touchMoved(touch);
    plain->touchEnded(touch);
    plain->touchCancelled(touch);
    EXPECT_EQ(keeper->log, "began moved ended cancelled ");
    EXPECT_EQ(keeper->finger, 7);
    EXPECT_EQ(top->log, "");
    keeper->handsOn = true;
    EXPECT_TRUE(plain->touchBegan(touch));
    plain->touchMoved(touch);
    plain->touchEnded(touch);
    plain->touchCancelled(touch);
    EXPECT_EQ(top->log, "began moved ended cancelled ");
}

TEST_F(UIViewEventsTest, ScrollingGoesUpUntilSomeoneMakesUseOfIt) {
    const auto keeper = create<Taker>(CGRectMake(0, 0, 100, 100));
    const auto plain = viewIn(keeper, CGRectMake(0, 0, 10, 10));
    EXPECT_TRUE(plain->scrolled({}));
    EXPECT_EQ(keeper->log, "scrolled ");
    keeper->handsOn = true;
    EXPECT_FALSE(plain->scrolled({})) << "nobody is left";
    EXPECT_FALSE(root->scrolled({}));
}

TEST_F(UIViewEventsTest, ATouchThatNoViewTakesIsNotTaken) {
    const auto plain = create<Taker>();
    plain->handsOn = true;
    EXPECT_FALSE(plain->touchBegan({}));
    EXPECT_FALSE(root->touchBegan({})) << "a plain view takes none";
    EXPECT_EQ(plain->log, "began ");
}

TEST_F(UIViewEventsTest, APlainViewDoesNotMove) { EXPECT_FALSE(root->advanceToTime(1)); }
