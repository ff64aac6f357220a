// The tree of views, and which views are notified of its changes.

#include <functional>

#include <gtest/gtest.h>

#include "UIWindow.h"

using namespace gx;
using Views = std::vector<Ref<UIView>>;

namespace {

/// Counts its moves between windows and may do something then.
struct Mover : UIView {
    int moves = 0;
    UIWindow* lastWindow = nullptr;
    std::function<void()> whenMoved;
    void didMoveToWindow() override {
        ++moves;
        lastWindow = window().get();
        const std::function<void()> action = whenMoved; // It may be replaced while it runs.
        if (action) action();
    }
};

struct UIViewTreeTest : testing::Test {
    Ref<UIView> above = create<UIView>();
    Ref<UIView> a = create<UIView>();
    Ref<UIView> b = create<UIView>();
    Ref<UIView> c = create<UIView>();

    void addAll() {
        for (const Ref<UIView>& view : {a, b, c}) above->addSubview(view);
    }
};

} // namespace

TEST_F(UIViewTreeTest, ASubviewGoesOnTop) {
    addAll();
    EXPECT_EQ(above->subviews(), (Views{a, b, c}));
    EXPECT_EQ(a->superview(), above);
    EXPECT_FALSE(above->superview());
}

TEST_F(UIViewTreeTest, ASubviewGoesBelowThoseFromItsIndexOn) {
    above->addSubview(a);
    above->insertSubview_atIndex(b, 0);
    EXPECT_EQ(above->subviews(), (Views{b, a}));
    above->insertSubview_atIndex(c, 1);
    EXPECT_EQ(above->subviews(), (Views{b, c, a}));
}

TEST_F(UIViewTreeTest, AnIndexOutsideTheListMeansItsNearerEnd) {
    above->addSubview(a);
    above->insertSubview_atIndex(b, -5);
    EXPECT_EQ(above->subviews(), (Views{b, a}));
    above->insertSubview_atIndex(c, 99);
    EXPECT_EQ(above->subviews(), (Views{b, a, c}));
}

TEST_F(UIViewTreeTest, AddingASubviewAgainMovesItToTheTop) {
    addAll();
    above->addSubview(a);
    EXPECT_EQ(above->subviews(), (Views{b, c, a}));
    above->insertSubview_atIndex(a, 0);
    EXPECT_EQ(above->subviews(), (Views{a, b, c}));
    EXPECT_EQ(a->superview(), above);
}

TEST_F(UIViewTreeTest, ASubviewCanBeNamedByItsEntryInTheList) {
    addAll();
    above->addSubview(above->subviews()[0]);
    EXPECT_EQ(above->subviews(), (Views{b, c, a}));
    b->addSubview(above->subviews()[1]);
    EXPECT_EQ(above->subviews(), (Views{b, a}));
    EXPECT_EQ(b->subviews(), Views{c});
}

TEST_F(UIViewTreeTest, AViewHasOneSuperviewAtMost) {
    addAll();
    b->addSubview(a);
    EXPECT_EQ(above->subviews(), (Views{b, c}));
    EXPECT_EQ(b->subviews(), Views{a});
    EXPECT_EQ(a->superview(), b);
}

TEST_F(UIViewTreeTest, NoViewComesBelowItselfOrNothing) {
    above->addSubview(a);
    a->addSubview(b);
    above->addSubview(above);
    b->addSubview(a);
    b->addSubview(above);
    above->addSubview(nullptr);
    EXPECT_EQ(above->subviews(), Views{a});
    EXPECT_EQ(a->subviews(), Views{b});
    EXPECT_TRUE(b->subviews().empty());
    EXPECT_FALSE(above->superview());
}

TEST_F(UIViewTreeTest, ARemovedViewHasNoSuperview) {
    addAll();
    b->removeFromSuperview();
    EXPECT_EQ(above->subviews(), (Views{a, c}));
    EXPECT_FALSE(b->superview());
    b->removeFromSuperview();
    EXPECT_EQ(above->subviews(), (Views{a, c})) << "it is gone already";
}

TEST_F(UIViewTreeTest, AViewIsADescendantOfItselfAndOfAllAboveIt) {
    above->addSubview(a);
    a->addSubview(b);
    EXPECT_TRUE(b->isDescendantOfView(b));
    EXPECT_TRUE(b->isDescendantOfView(a));
    EXPECT_TRUE(b->isDescendantOfView(above));
    EXPECT_FALSE(above->isDescendantOfView(b));
    EXPECT_FALSE(b->isDescendantOfView(c));
    EXPECT_FALSE(b->isDescendantOfView(nullptr));
}

TEST_F(UIViewTreeTest, ASuperviewOwnsItsSubviewsAndNothingOwnsUpward) {
    const WeakRef<UIView> weakA = a;
    const WeakRef<UIView> weakAbove = above;
    above->addSubview(a);
    a = nullptr;
    EXPECT_FALSE(weakA.expired());
    above = nullptr;
    EXPECT_TRUE(weakAbove.expired());
    EXPECT_TRUE(weakA.expired());
}

TEST_F(UIViewTreeTest, ASubviewThatOutlivesItsSuperviewHasNone) {
    above->addSubview(a);
    above = nullptr;
    EXPECT_FALSE(a->superview());
    a->setNeedsLayout();
    a->removeFromSuperview();
    EXPECT_FALSE(a->window());
}

// Windows

TEST_F(UIViewTreeTest, TheWindowIsTheRootIfThatIsOne) {
    const auto window = create<UIWindow>();
    EXPECT_EQ(window->window(), window);
    EXPECT_FALSE(a->window());
    above->addSubview(a);
    window->addSubview(above);
    EXPECT_EQ(a->window(), window);
}

TEST_F(UIViewTreeTest, AViewAndAllBelowItAreNotifiedOfTheirWindow) {
    const auto window = create<UIWindow>();
    const auto outer = create<Mover>();
    const auto inner = create<Mover>();
    outer->addSubview(inner);
    window->addSubview(outer);
    EXPECT_EQ(outer->moves, 1);
    EXPECT_EQ(inner->moves, 1);
    EXPECT_EQ(inner->lastWindow, window.get());
    outer->removeFromSuperview();
    EXPECT_EQ(outer->moves, 2);
    EXPECT_EQ(inner->moves, 2);
    EXPECT_FALSE(inner->lastWindow);
}

TEST_F(UIViewTreeTest, WithoutAWindowNoViewIsNotified) {
    const auto mover = create<Mover>();
    above->addSubview(mover);
    mover->removeFromSuperview();
    EXPECT_EQ(mover->moves, 0);
}

TEST_F(UIViewTreeTest, AnotherPlaceAmongTheSameSiblingsIsNoMove) {
    const auto window = create<UIWindow>();
    const auto mover = create<Mover>();
    window->addSubview(mover);
    window->addSubview(a);
    window->addSubview(mover);
    EXPECT_EQ(mover->moves, 1);
}

TEST_F(UIViewTreeTest, AViewThatGoesToAnotherWindowKnowsTheNewOne) {
    const auto first = create<UIWindow>();
    const auto second = create<UIWindow>();
    const auto mover = create<Mover>();
    first->addSubview(mover);
    second->addSubview(mover);
    EXPECT_EQ(mover->lastWindow, second.get());
    EXPECT_TRUE(first->subviews().empty());
}

TEST_F(UIViewTreeTest, ViewsThatOutliveTheirWindowAreNotified) {
    auto window = create<UIWindow>();
    const auto mover = create<Mover>();
    window->addSubview(mover);
    window = nullptr;
    EXPECT_EQ(mover->moves, 2);
    EXPECT_FALSE(mover->lastWindow);
    EXPECT_FALSE(mover->superview());
}

// Callbacks that change the tree

TEST_F(UIViewTreeTest, AllAreNotifiedOfTheWindowThoughOneOfThemLeaves) {
    const auto window = create<UIWindow>();
    const auto leaving = create<Mover>();
    const auto staying = create<Mover>();
    above->addSubview(leaving);
    above->addSubview(staying);
    leaving->whenMoved = [&] {
        leaving->whenMoved = nullptr;
        leaving->removeFromSuperview();
    };
    window->addSubview(above);
    EXPECT_EQ(leaving->moves, 2) << "it came and left";
    EXPECT_EQ(staying->moves, 1);
    EXPECT_EQ(staying->lastWindow, window.get());
}

TEST_F(UIViewTreeTest, AViewThatASiblingRemovesIsNotifiedOfThatAlone) {
    const auto window = create<UIWindow>();
    const auto taker = create<Mover>();
    const auto taken = create<Mover>();
    above->addSubview(taker);
    above->addSubview(taken);
    taker->whenMoved = [&] {
        taker->whenMoved = nullptr;
        taken->removeFromSuperview();
    };
    window->addSubview(above);
    EXPECT_EQ(taken->moves, 1) << "it left, before it was told that it came";
    EXPECT_EQ(taken->lastWindow, nullptr);
}

TEST_F(UIViewTreeTest, AViewAddedWhenItsSuperviewComesIsNotifiedOnce) {
    const auto window = create<UIWindow>();
    const auto outer = create<Mover>();
    const auto inner = create<Mover>();
    outer->whenMoved = [&] { outer->addSubview(inner); };
    window->addSubview(outer);
    EXPECT_EQ(inner->moves, 1);
    outer->whenMoved = nullptr;
}

TEST_F(UIViewTreeTest, AViewThatGoesElsewhereOnItsWayHasOneSuperview) {
    const auto window = create<UIWindow>();
    const auto mover = create<Mover>();
    window->addSubview(mover);
    mover->whenMoved = [&] {
        mover->whenMoved = nullptr;
        b->addSubview(mover);
    };
    a->addSubview(mover); // It leaves the window on the way to a, is notified, and goes to b.
    EXPECT_EQ(mover->superview(), b);
    EXPECT_EQ(b->subviews(), Views{mover});
    EXPECT_TRUE(a->subviews().empty());
}

TEST_F(UIViewTreeTest, AViewThatTakesItsNewSuperviewOnTheWayIsNotBelowItself) {
    const auto window = create<UIWindow>();
    const auto mover = create<Mover>();
    window->addSubview(mover);
    mover->whenMoved = [&] {
        mover->whenMoved = nullptr;
        mover->addSubview(a);
    };
    a->addSubview(mover);
    EXPECT_FALSE(mover->superview());
    EXPECT_EQ(mover->subviews(), Views{a});
    EXPECT_TRUE(a->subviews().empty());
}

TEST_F(UIViewTreeTest, ASuperviewThatIsDroppedMeanwhileOutlivesTheAdding) {
    const auto window = create<UIWindow>();
    const auto mover = create<Mover>();
    window->addSubview(mover);
    Ref<UIView> target = create<UIView>();
    const WeakRef<UIView> weak = target;
    mover->whenMoved = [&] {
        mover->whenMoved = nullptr;
        target = nullptr;
    };
    UIView& raw = *target;
    raw.addSubview(mover);
    EXPECT_TRUE(weak.expired());
    EXPECT_FALSE(mover->superview());
}

TEST_F(UIViewTreeTest, AViewMayDropItsLastReferenceWhenItLeaves) {
    const auto window = create<UIWindow>();
    Ref<Mover> mover = create<Mover>();
    const WeakRef<Mover> weak = mover;
    window->addSubview(mover);
    mover->whenMoved = [&mover] { mover = nullptr; };
    window->subviews()[0]->removeFromSuperview();
    EXPECT_TRUE(weak.expired());
    EXPECT_TRUE(window->subviews().empty());
}

TEST_F(UIViewTreeTest, AViewMayLeaveByItselfWhenItsRemovalCancelsItsFinger) {
    struct Leaver : Mover {
        void touchCancelled(const UITouch&) override { removeFromSuperview(); }
    };
    const auto window = create<UIWindow>(CGRectMake(0, 0, 100, 100));
    const auto leaver = create<Leaver>(CGRectMake(0, 0, 100, 100));
    window->addSubview(leaver);
    window->touchBegan_at_time(1, {50, 50}, 0);
    leaver->moves = 0;
    leaver->removeFromSuperview();
    EXPECT_EQ(leaver->superview(), nullptr);
    EXPECT_EQ(leaver->moves, 1) << "told once";
}

TEST_F(UIViewTreeTest, AViewThatFinishesAnimationsMayLeaveAndTakeOthersAlong) {
    struct Vanishing : UIView {
        int times = 0;
        std::function<void()> whenGone;
        void finishAnimations() override {
            ++times;
            if (whenGone) whenGone();
        }
    };
    const auto first = create<Vanishing>();
    const auto second = create<Vanishing>();
    const auto third = create<Vanishing>();
    for (const auto& view : {first, second, third}) above->addSubview(view);
    first->whenGone = [&first] { first->removeFromSuperview(); };
    second->whenGone = [&third] { third->removeFromSuperview(); };
    above->setHidden(true);
    EXPECT_EQ(first->times, 1);
    EXPECT_EQ(second->times, 1);
    EXPECT_EQ(above->subviews(), (Views{second}));
    above->setHidden(false);
    second->whenGone = [&second] { second->removeFromSuperview(); };
    above->setHidden(true);
    EXPECT_EQ(second->times, 2);
    EXPECT_TRUE(above->subviews().empty());
}
