#pragma once

#include <gtest/gtest.h>

#include "TestWindow.h"
#include "WheelSource.h"

using namespace gx;
using Notices = std::vector<WheelSource::Notice>;

// The wheel is 320 by 216 points with rows of 40: one column of 80 lies from 120 to 200, its centre
// row around y = 108.
inline constexpr CGPoint centre = {160, 108};

struct UIPickerViewGestures : testing::Test {
    Ref<WheelSource> source = create<WheelSource>();
    Ref<UIPickerView> wheel = wheelWithSource(source);
    TestWindow window{wheel};

    /// How far the column has moved on from `row`, in rows: 0 when the row is exactly selected.
    double rowsFrom(NSInteger row, NSInteger component = 0) {
        const Ref<UIView> view = wheel->viewForRow_forComponent(row, component);
        EXPECT_TRUE(view) << "row " << row << " is not visible";
        if (!view) return 1e9;
        return (108 - CGRectGetMidY(wheel->convertRect_fromView(view->bounds(), view))) / 40;
    }
};

struct UIPickerViewTwoColumns : UIPickerViewGestures {
    UIPickerViewTwoColumns() {
        source->rows = {100, 100};
        wheel->reloadAllComponents();
        window.tick(0);
    }
    // Two columns of 80, 5 apart, around x = 160.
    CGPoint left = {117, 108};
    CGPoint right = {202, 108};
};
