#pragma once

#include <cmath>
#include <functional>
#include <limits>

#include <gtest/gtest.h>

#include "TestWindow.h"
#include "UIScrollView.h"

using namespace gx;

/// Notes what subclasses are told.
class NotingScroll : public UIScrollView {
public:
    int moves = 0;
    int drags = 0;
    int presses = 0;
    std::vector<bool> taps;
    std::function<void()> whenPressEnds;

protected:
    void scrollViewDidScroll() override { ++moves; }
    void scrollViewWillBeginDragging() override { ++drags; }
    void pressBegan(CGPoint, NSTimeInterval) override { ++presses; }
    void pressEnded(bool isTap, NSTimeInterval) override {
        taps.push_back(isTap);
        if (whenPressEnds) whenPressEnds();
    }
};

/// 300 by 400 points that show 1000: the highest offset is 600.
struct UIScrollViewTest : testing::Test {
    Ref<NotingScroll> scroll = create<NotingScroll>(CGRectMake(0, 0, 300, 400));
    Ref<UIView> content = create<UIView>(CGRectMake(0, 0, 300, 1000));
    TestWindow window{scroll};
    static constexpr CGPoint middle = {150, 200};

    UIScrollViewTest() {
        scroll->addSubview(content);
        scroll->setContentSize({300, 1000});
        window.tick(0);
    }
    CGFloat offset() const { return scroll->contentOffset().y; }
    void setOffset(CGFloat y) { scroll->setContentOffset({0, y}); }
};

inline constexpr double infinity = std::numeric_limits<double>::infinity();
inline constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
