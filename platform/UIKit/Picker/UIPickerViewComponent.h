#pragma once

// For the wheel's own sources alone.

#include "UIPickerColumn.h"
#include "UIPickerView.h"

namespace gx {

/// What the wheel knows of one column. Held by pointer, so that it stays in place when a callback brings more columns.
struct UIPickerView::Component {
    explicit Component(NSInteger name) : part(name) {}

    NSInteger part; // What screen readers know the column by, wherever it is shown.
    NSInteger requested = 0;
    NSInteger rows = 0;
    CGFloat width = automaticDimension; // As the delegate gave it.
    CGFloat rowHeight = defaultRowHeight;
    bool areRowsKnown = false;
    bool areRowsAsked = false;
    bool areSizesKnown = false;
    bool areSizesAsked = false;
    UIPickerTurn turn;
    Ref<UIPickerColumn> column; // Only while it is on the screen.
};

} // namespace gx
