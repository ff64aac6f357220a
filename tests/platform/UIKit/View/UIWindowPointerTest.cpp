// What a pointer hovers in a window, and how it looks there.

#include <functional>
#include <limits>

#include "TestWindow.h"

using namespace gx;

namespace {

/// Notes what happens to it, and returns a style.
struct HoverView : UIView {
    std::optional<UIPointerStyle> hoverMoved(CGPoint location) override {
        places.push_back(location);
        if (whenHovered) whenHovered();
        return style;
    }
    void hoverEnded() override {
        ++ends;
        if (whenEnded) whenEnded();
    }

    std::optional<UIPointerStyle> style = UIPointerStyle::Press;
    std::vector<CGPoint> places;
    int ends = 0;
    std::function<void()> whenHovered;
    std::function<void()> whenEnded;
};

struct PointerHost : UIWindowHost {
    void windowNeedsFrame() override { ++frames; }
    void pointerStyleDidChange(UIPointerStyle style) override { styles.push_back(style); }
    int frames = 0;
    std::vector<UIPointerStyle> styles;
};

using Styles = std::vector<UIPointerStyle>;
using Places = std::vector<CGPoint>;

/// A view of 300 by 100 points, with two that note below it: `left` up to x 100, `right` from 200.
struct UIWindowPointer : testing::Test {
    UIWindowPointer() {
        content->addSubview(left);
        content->addSubview(right);
        window->setHost(&host);
        window.tick(0.1);
        host.frames = 0;
    }
    ~UIWindowPointer() override { window->setHost(nullptr); }

    Ref<UIView> content = create<UIView>(CGRectMake(0, 0, 300, 100));
    Ref<HoverView> left = create<HoverView>(CGRectMake(0, 0, 100, 100));
    Ref<HoverView> right = create<HoverView>(CGRectMake(200, 0, 100, 100));
    PointerHost host;
    TestWindow window{content};
};

} // namespace

TEST_F(UIWindowPointer, StyleIsThatOfTheViewBelowAndGoesToTheHostWhenItChanges) {
    right->style = UIPointerStyle::Turn;
    EXPECT_EQ(window->pointerStyle(), UIPointerStyle::Default);
    window->pointerMoved({50, 50});
    EXPECT_EQ(left->places, (Places{{50, 50}}));
    EXPECT_EQ(window->pointerStyle(), UIPointerStyle::Press);
    window->pointerMoved({51, 50});
    EXPECT_EQ(host.styles, Styles{UIPointerStyle::Press}) << "not again for the same style";
    window->pointerMoved({250, 50});
    EXPECT_EQ(left->ends, 1);
    EXPECT_EQ(host.styles, (Styles{UIPointerStyle::Press, UIPointerStyle::Turn}));
    window->pointerMoved({150, 50});
    EXPECT_EQ(right->ends, 1);
    EXPECT_EQ(window->pointerStyle(), UIPointerStyle::Default);
    EXPECT_EQ(host.styles.size(), 3U);
}

TEST_F(UIWindowPointer, LeavingEndsTheHoverOnce) {
    window->pointerLeft();
    window->pointerMoved({50, 50});
    window->pointerLeft();
    window->pointerLeft();
    EXPECT_EQ(left->ends, 1);
    EXPECT_EQ(window->pointerStyle(), UIPointerStyle::Default);
    window.tick(0.1);
    EXPECT_EQ(left->places.size(), 1U) << "not asked again";
}

TEST_F(UIWindowPointer, AViewWithoutAStyleLeavesThePointerToThoseAbove) {
    const auto inner = create<HoverView>(CGRectMake(0, 0, 50, 50));
    inner->style = std::nullopt;
    left->addSubview(inner);
    window->pointerMoved({20, 20});
    EXPECT_EQ(inner->places.size(), 1U);
    EXPECT_EQ(left->places.size(), 1U);
    EXPECT_EQ(window->pointerStyle(), UIPointerStyle::Press);
    window->pointerMoved({150, 20});
    EXPECT_EQ(inner->ends, 0) << "it was never hovered";
    EXPECT_EQ(left->ends, 1);
}

TEST_F(UIWindowPointer, RestingPointerRequestsNoFrames) {
    window->pointerMoved({50, 50});
    window->pointerMoved({52, 50});
    EXPECT_EQ(host.frames, 0);
    EXPECT_FALSE(window.tick(0.1));
}

TEST_F(UIWindowPointer, ViewThatIsHiddenBelowARestingPointerIsLeftAtTheNextFrame) {
    window->pointerMoved({50, 50});
    left->setHidden(true);
    EXPECT_EQ(host.frames, 1);
    window.tick(0.1);
    EXPECT_EQ(left->ends, 1);
    EXPECT_EQ(window->pointerStyle(), UIPointerStyle::Default);
    left->setHidden(false);
    window.tick(0.1);
    EXPECT_EQ(window->pointerStyle(), UIPointerStyle::Press);
}

TEST_F(UIWindowPointer, ViewThatIsRemovedOrMovedAwayIsLeftAtTheNextFrame) {
    window->pointerMoved({50, 50});
    left->removeFromSuperview();
    window.tick(0.1);
    EXPECT_EQ(left->ends, 1);
    EXPECT_EQ(window->pointerStyle(), UIPointerStyle::Default);

    window->pointerMoved({250, 50});
    right->setFrame(CGRectMake(100, 0, 100, 100));
    window.tick(0.1);
    EXPECT_EQ(right->ends, 1);
    EXPECT_EQ(host.styles.size(), 4U);
}

TEST_F(UIWindowPointer, ViewThatComesBelowARestingPointerIsHoveredInTheSameFrame) {
    window->pointerMoved({150, 50});
    right->whenHovered = [this] {
        if (right->places.size() == 1) right->setNeedsDisplay();
    };
    right->setFrame(CGRectMake(100, 0, 100, 100));
    EXPECT_TRUE(window.tick(0.1));
    EXPECT_EQ(right->places, (Places{{150, 50}}));
    EXPECT_EQ(window->pointerStyle(), UIPointerStyle::Press);
}

TEST_F(UIWindowPointer, AHeldButtonKeepsTheHoverOnTheViewThatWasPressed) {
    window->pointerMoved({50, 50});
    left->whenHovered = [this] { left->style = UIPointerStyle::Turning; };
    window->touchBegan_at_time(UITouch::pointerIdentifier, {50, 50}, window.now);
    EXPECT_EQ(window->pointerStyle(), UIPointerStyle::Turning) << "before it moves";
    window->pointerMoved({250, 50});
    EXPECT_TRUE(right->places.empty());
    EXPECT_EQ(left->places.back(), CGPointMake(250, 50));
    EXPECT_EQ(left->ends, 0);
    window->touchEnded_at_time(UITouch::pointerIdentifier, {250, 50}, window.now);
    window->pointerMoved({250, 50});
    EXPECT_EQ(left->ends, 1);
    EXPECT_EQ(window->pointerStyle(), UIPointerStyle::Press);
}

TEST_F(UIWindowPointer, FingersDoNotMoveThePointer) {
    window.down({50, 50});
    window.move({60, 50});
    window.up({60, 50});
    window.tick(0.1);
    EXPECT_TRUE(left->places.empty());
    EXPECT_EQ(host.styles, Styles{});
}

TEST_F(UIWindowPointer, APlaceOutsideOrNoPlaceHoversNothing) {
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    constexpr double infinity = std::numeric_limits<double>::infinity();
    for (const CGPoint place : {CGPointMake(-1, 50), CGPointMake(50, 100), CGPointMake(nan, nan), CGPointMake(infinity, 0)}) {
        window->pointerMoved({50, 50});
        window->pointerMoved(place);
        EXPECT_EQ(window->pointerStyle(), UIPointerStyle::Default);
    }
    EXPECT_EQ(left->ends, 4);
}

TEST_F(UIWindowPointer, CallbacksMayMoveThePointerAndRemoveViews) {
    left->whenHovered = [this] {
        window->pointerMoved({250, 50});
        left->removeFromSuperview();
    };
    left->whenEnded = [this] { window->pointerLeft(); };
    window->pointerMoved({50, 50});
    window.tick(0.1);
    EXPECT_EQ(left->ends, 1);
    window.tick(0.1);
    EXPECT_EQ(window->pointerStyle(), UIPointerStyle::Default);
    EXPECT_EQ(right->places, (Places{{250, 50}}));
    EXPECT_EQ(right->ends, 1) << "the pointer has left meanwhile";
}

TEST(UIWindowPointerLifetime, CallbackMayDropTheWindow) {
    Ref<UIWindow> window = create<UIWindow>(CGRectMake(0, 0, 100, 100));
    const auto view = create<HoverView>(CGRectMake(0, 0, 100, 100));
    view->whenHovered = [&] { window = nullptr; };
    window->addSubview(view);
    UIWindow& raw = *window;
    raw.pointerMoved({50, 50});
    EXPECT_FALSE(window);
    EXPECT_EQ(view->places.size(), 1U);
}
