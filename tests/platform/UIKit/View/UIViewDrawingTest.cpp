// What a view and those below it leave on a canvas.

#include <algorithm>

#include <gtest/gtest.h>

#include "RecordingCanvas.h"
#include "UIView.h"
#include "UIWindow.h"

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

namespace {

/// Notes the versions of the views that draw, and shows some of them again itself.
struct RecordingHost : RecordingCanvas {
    std::vector<UIDrawingVersion> versions;
    std::uint64_t shownAgain = 0;
    int open = 0;

    bool beginView(const UIDrawingVersion& version, CGPoint, double) override {
        versions.push_back(version);
        open += version.tree == shownAgain ? 0 : 1;
        return version.tree == shownAgain;
    }
    void endView() override { --open; }
};

/// A root with two views, of which the first one has a view as well.
struct DrawingVersions : testing::Test {
    Ref<UIView> root = create<UIView>(CGRectMake(0, 0, 100, 100));
    Ref<Filler> first = create<Filler>(CGRectMake(10, 10, 20, 20));
    Ref<Filler> inFirst = create<Filler>(CGRectMake(1, 1, 5, 5));
    Ref<Filler> second = create<Filler>(CGRectMake(50, 10, 20, 20));

    DrawingVersions() {
        first->addSubview(inFirst);
        root->addSubview(first);
        root->addSubview(second);
    }
    /// Of the root, the first view, the one in it and the second view.
    std::vector<UIDrawingVersion> versions() {
        RecordingHost host;
        root->renderInContext(host);
        EXPECT_EQ(host.open, 0);
        EXPECT_EQ(host.versions.size(), 4U);
        return host.versions;
    }
    /// Which of them, themselves or by what is below them, may look different since then.
    std::string changedSince(const std::vector<UIDrawingVersion>& before) {
        const std::vector<UIDrawingVersion> now = versions();
        std::string changed;
        for (std::size_t i = 0; i < now.size(); ++i) {
            changed += now[i].view != before[i].view ? 'V' : now[i].tree != before[i].tree ? 'T' : '-';
        }
        return changed;
    }
};

} // namespace

TEST_F(DrawingVersions, StayTheSameWhileNothingIsInvalidated) {
    EXPECT_EQ(changedSince(versions()), "----");
    std::vector<std::uint64_t> numbers;
    for (const UIDrawingVersion& version : versions()) numbers.push_back(version.tree);
    std::sort(numbers.begin(), numbers.end());
    EXPECT_EQ(std::unique(numbers.begin(), numbers.end()), numbers.end()) << "each view has its own";
}

TEST_F(DrawingVersions, ChangeForTheInvalidatedViewAndTheTreesAboveIt) {
    std::vector<UIDrawingVersion> before = versions();
    inFirst->setNeedsDisplay();
    EXPECT_EQ(changedSince(before), "TTV-");
    before = versions();
    second->setAlpha(0.5);
    EXPECT_EQ(changedSince(before), "T--V");
    before = versions();
    root->setNeedsDisplay();
    EXPECT_EQ(changedSince(before), "V---");
    before = versions();
    first->setFrame(CGRectMake(10, 10, 30, 30));
    EXPECT_EQ(changedSince(before), "TV--");
}

TEST_F(DrawingVersions, ChangeForAViewInMotionWithoutAFrameBeingRequested) {
    struct Moving : Filler {
        bool advanceToTime(NSTimeInterval) override { return true; }
    };
    const auto window = create<UIWindow>(CGRectMake(0, 0, 100, 100));
    const auto moving = create<Moving>(CGRectMake(0, 0, 10, 10));
    window->addSubview(root);
    first->addSubview(moving);
    window->animateView(moving);
    window->tick(1);
    const auto drawn = [&window] {
        RecordingHost host;
        window->draw(host);
        return host.versions;
    };
    const std::vector<UIDrawingVersion> before = drawn();
    EXPECT_TRUE(window->tick(2));
    const std::vector<UIDrawingVersion> after = drawn();
    // The window, then as above, the moving view after the one in the first.
    ASSERT_EQ(after.size(), 6U);
    EXPECT_NE(after[4].view, before[4].view);
    EXPECT_EQ(after[2].view, before[2].view);
    EXPECT_NE(after[2].tree, before[2].tree);
    EXPECT_EQ(after[3].tree, before[3].tree);
    EXPECT_EQ(after[5].tree, before[5].tree);
}

TEST_F(DrawingVersions, BeginForHiddenViewsTooWhichDrawNothing) {
    first->setHidden(true);
    RecordingHost host;
    root->renderInContext(host);
    EXPECT_EQ(host.open, 0);
    EXPECT_EQ(host.versions.size(), 3U) << "without the view in the hidden one";
    EXPECT_EQ(host.painted(), (Calls{"fill 0 0 20 20 with 1 1 1 1"}));
}

namespace {

/// Has recorded the subviews of one view, as that had this version.
struct RepeatingHost : RecordingHost {
    UIDrawingVersion recorded;
    std::size_t recordedCount = 0;

    std::uint64_t beginSubviews(const UIDrawingVersion& version, std::size_t count) override {
        return version.view == recorded.view && count == recordedCount ? recorded.tree : 0;
    }
    void repeatSubviews(std::size_t count) override { calls.push_back("repeat " + std::to_string(count)); }
};

/// A root with five views that draw nothing but their rectangles.
struct RepeatedSubviews : testing::Test {
    Ref<UIView> root = create<UIView>(CGRectMake(0, 0, 100, 100));
    std::vector<Ref<Filler>> views;
    RepeatingHost host;

    RepeatedSubviews() {
        for (int i = 0; i < 5; ++i) {
            views.push_back(create<Filler>(CGRectMake(0, 0, 1 + i, 1)));
            root->addSubview(views.back());
        }
        root->renderInContext(host);
        host.recorded = host.versions.front();
        host.recordedCount = views.size();
        host.calls.clear();
    }
    /// The calls that draw or repeat.
    std::vector<std::string> drawn() {
        root->renderInContext(host);
        EXPECT_EQ(host.open, 0);
        std::vector<std::string> found;
        for (const std::string& call : host.takeCalls()) {
            if (call.starts_with("fill") || call.starts_with("repeat")) found.push_back(call);
        }
        return found;
    }
};

} // namespace

TEST_F(RepeatedSubviews, AreAllThatWereNotInvalidated) {
    EXPECT_EQ(drawn(), (Calls{"repeat 5"}));
    views[3]->setNeedsDisplay();
    EXPECT_EQ(drawn(), (Calls{"repeat 3", "fill 0 0 4 1 with 1 1 1 1", "repeat 1"}));
    views[0]->setNeedsDisplay();
    EXPECT_EQ(drawn(), (Calls{"fill 0 0 1 1 with 1 1 1 1", "repeat 2", "fill 0 0 4 1 with 1 1 1 1", "repeat 1"}));
}

TEST_F(RepeatedSubviews, IncludeHiddenOnes) {
    views[2]->setHidden(true);
    EXPECT_EQ(drawn(), (Calls{"repeat 2", "repeat 2"}));
}

TEST_F(RepeatedSubviews, AreNoneOnceTheListHasChangedOrTheViewWasInvalidated) {
    views[4]->removeFromSuperview();
    EXPECT_EQ(drawn().size(), 4U);
    root->addSubview(views[4]);
    const Calls all = drawn();
    ASSERT_EQ(all.size(), 5U);
    EXPECT_EQ(all[0], "fill 0 0 1 1 with 1 1 1 1");
}

TEST_F(RepeatedSubviews, AreNoneOnceTheListChangesWhileTheyDraw) {
    struct Reordering : Filler {
        bool reorders = false;
        void drawRect(UIGraphicsContext& context, CGRect rect) override {
            Filler::drawRect(context, rect);
            const Ref<UIView> above = superview();
            if (reorders) above->insertSubview_atIndex(above->subviews().back(), 3);
        }
    };
    const auto reordering = create<Reordering>(CGRectMake(0, 0, 9, 1));
    root->insertSubview_atIndex(reordering, 0);
    host.versions.clear();
    root->renderInContext(host);
    host.recorded = host.versions.front();
    host.recordedCount = 6;
    host.calls.clear();
    reordering->setNeedsDisplay();
    EXPECT_EQ(drawn(), (Calls{"fill 0 0 9 1 with 1 1 1 1", "repeat 5"}));
    reordering->setNeedsDisplay();
    reordering->reorders = true;
    EXPECT_EQ(drawn(), (Calls{"fill 0 0 9 1 with 1 1 1 1", "fill 0 0 1 1 with 1 1 1 1", "fill 0 0 2 1 with 1 1 1 1",
                              "fill 0 0 5 1 with 1 1 1 1", "fill 0 0 3 1 with 1 1 1 1", "fill 0 0 4 1 with 1 1 1 1"}));
}

TEST_F(DrawingVersions, ACanvasThatShowsAViewAgainGetsNoCallsOfIt) {
    RecordingHost host;
    host.shownAgain = versions()[1].tree;
    root->renderInContext(host);
    EXPECT_EQ(host.open, 0);
    EXPECT_EQ(host.versions.size(), 3U) << "without the view in it";
    EXPECT_EQ(host.takeCalls(), (Calls{"save", "save", "translate 50 10", "fill 0 0 20 20 with 1 1 1 1", "restore", "restore"}));
}
