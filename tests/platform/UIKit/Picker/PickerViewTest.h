#pragma once

#include <gtest/gtest.h>

#include "TestWindow.h"
#include "WheelSource.h"

using namespace gx;

inline constexpr NSInteger billion = 1'000'000'000;

struct UIPickerViewTest : testing::Test {
    Ref<WheelSource> source = create<WheelSource>();
    Ref<UIPickerView> wheel = wheelWithSource(source);

    CGRect rowRect(NSInteger row, NSInteger component) {
        const Ref<UIView> view = wheel->viewForRow_forComponent(row, component);
        return wheel->convertRect_fromView(view ? view->bounds() : CGRectZero, view);
    }
};

inline std::size_t viewsBelow(const UIView& view) {
    std::size_t count = 0;
    for (const Ref<UIView>& below : view.subviews()) count += 1 + viewsBelow(*below);
    return count;
}
