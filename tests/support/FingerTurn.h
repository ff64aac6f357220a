#pragma once

#include "TestWindow.h"
#include "UIPickerView.h"

/// How far a finger moves before it turns a wheel, in points.
constexpr gx::CGFloat turningSlop = 6;

/// Drags a column up by one row, wherever in the window its wheel is, and waits until it has come
/// to rest.
inline void turnOneRow(TestWindow& window, const gx::Ref<gx::UIPickerView>& wheel, gx::NSInteger component) {
    const gx::Ref<gx::UIView> view = wheel->viewForRow_forComponent(wheel->selectedRowInComponent(component), component);
    ASSERT_TRUE(view);
    const gx::CGRect row = window->convertRect_fromView(view->bounds(), view);
    const gx::CGPoint from = {gx::CGRectGetMidX(row), gx::CGRectGetMidY(row)};
    window.drag(from, {from.x, from.y - gx::CGRectGetHeight(row) - turningSlop});
    window.runUntilStill();
}
