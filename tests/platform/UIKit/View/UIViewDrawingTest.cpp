// What a view and those below it leave on a canvas.

#include <gtest/gtest.h>

#include "RecordingCanvas.h"
#include "UIView.h"

using namespace gx;
using Calls = std::vector<std::string>;

namespace {

/// Fills the rectangle that it is asked to draw with white.
struct Filler : UIView {
    void drawRect(UIGraphicsContext& context, CGRect rect) override { context.fillRect(rect, UIColor::whiteColor()); }
};

struct UIViewDrawingTest : testing::Test {
    Ref<Filler> view = create<Filler>(CGRectMake(10, 20, 30, 40));
    RecordingCanvas canvas;

    Calls drawn(const Ref<UIView>& drawnView) {
        drawnView->renderInContext(canvas);
        return canvas.takeCalls();
    }
};

} // namespace

TEST_F(UIViewDrawingTest, AViewDrawsItselfAtTheOriginOfTheCanvas) {
    EXPECT_EQ(drawn(view), (Calls{"save", "fill 0 0 30 40 with 1 1 1 1", "restore"}));
}

TEST_F(UIViewDrawingTest, TheBackgroundLiesBelowTheContentAndThatBelowTheSubviews) {
    view->setBackgroundColor(UIColor::blackColor());
    view->setCornerRadius(3);
    view->addSubview(create<Filler>(CGRectMake(1, 2, 3, 4)));
    view->addSubview(create<Filler>(CGRectMake(5, 6, 7, 8)));
    //
    EXPECT_EQ(drawn(view), (Calls{"save", "fill 0 0 30 40 with 0 0 0 1 rounded 3", "fill 0 0 30 40 with 1 1 1 1",
                                  //
                                  "save", "translate 1 2", "fill 0 0 3 4 with 1 1 1 1", "restore", "save", "translate 5 6",
                                  "fill 0 0 7 8 with 1 1 1 1", "restore", "restore"}));
}

TEST_F(UIViewDrawingTest, ScrolledBoundsMoveTheContentAndTheSubviewsButNotTheBackground) {
    view->setBackgroundColor(UIColor::blackColor());
    view->setClipsToBounds(true);
    view->setBounds(CGRectMake(100, 200, 30, 40));
    view->addSubview(create<Filler>(CGRectMake(101, 202, 3, 4)));
    EXPECT_EQ(drawn(view),
              (Calls{"save", "clip 0 0 30 40", "fill 0 0 30 40 with 0 0 0 1", "translate -100 -200", "fill 100 200 30 40 with 1 1 1 1",
                     "save", "translate 101 202", "fill 0 0 3 4 with 1 1 1 1", "restore", "restore"}));
}

TEST_F(UIViewDrawingTest, AFaintViewIsFaintWithAllBelowIt) {
    const auto outer = create<UIView>(CGRectMake(0, 0, 100, 100));
    outer->addSubview(view);
    view->setAlpha(0.5);
    EXPECT_EQ(drawn(outer), (Calls{"save", "save", "translate 10 20", "alpha 0.5", "fill 0 0 30 40 with 1 1 1 1", "restore", "restore"}));
}

TEST_F(UIViewDrawingTest, WhatIsHiddenClearOrWithoutAreaIsNotDrawn) {
    const auto outer = create<UIView>(CGRectMake(0, 0, 100, 100));
    outer->addSubview(view);
    const Calls nothing = {"save", "restore"};
    view->setHidden(true);
    EXPECT_EQ(drawn(outer), nothing);
    view->setHidden(false);
    view->setAlpha(0);
    EXPECT_EQ(drawn(outer), nothing);
    view->setAlpha(1);
    view->setFrame(CGRectMake(10, 20, 0, 40));
    EXPECT_EQ(drawn(outer), nothing);
    view->setFrame(CGRectNull);
    EXPECT_EQ(drawn(outer), nothing);
    view->setFrame(CGRectMake(10, 20, 30, 40));
    EXPECT_EQ(drawn(outer), (Calls{"save", "save", "translate 10 20", "fill 0 0 30 40 with 1 1 1 1", "restore", "restore"}));
}

TEST_F(UIViewDrawingTest, ANegativeSizeIsDrawnOverTheAreaThatItSpans) {
    const auto outer = create<UIView>(CGRectMake(0, 0, 100, 100));
    outer->addSubview(view);
    view->setFrame(CGRectMake(40, 60, -30, -40));
    EXPECT_EQ(drawn(outer), (Calls{"save", "save", "translate 10 20", "fill 0 0 30 40 with 1 1 1 1", "restore", "restore"}));
}

TEST_F(UIViewDrawingTest, AViewMayRemoveItselfWhileItDraws) {
    struct Leaving : UIView {
        void drawRect(UIGraphicsContext&, CGRect) override { removeFromSuperview(); }
    };
    const auto outer = create<UIView>(CGRectMake(0, 0, 100, 100));
    outer->addSubview(create<Leaving>(CGRectMake(0, 0, 1, 1)));
    outer->addSubview(view);
    drawn(outer);
    EXPECT_EQ(outer->subviews(), std::vector<Ref<UIView>>{view});
    EXPECT_EQ(drawn(outer), (Calls{"save", "save", "translate 10 20", "fill 0 0 30 40 with 1 1 1 1", "restore", "restore"}));
}

TEST_F(UIViewDrawingTest, AViewMayAddAnotherWhileItDraws) {
    struct Growing : UIView {
        void drawRect(UIGraphicsContext&, CGRect) override {
            const Ref<UIView> above = superview();
            for (int i = 0; i < 20 && above->subviews().size() < 20; ++i) above->addSubview(create<UIView>());
        }
    };
    const auto outer = create<UIView>(CGRectMake(0, 0, 100, 100));
    outer->addSubview(create<Growing>(CGRectMake(0, 0, 1, 1)));
    outer->addSubview(view);
    drawn(outer);
    EXPECT_EQ(outer->subviews().size(), 20U);
}
