#pragma once

#include "CGGeometry.h"
#include "UIColor.h"

namespace gx {

class UIGraphicsContext;

/// How the selection indicator of a wheel looks: a rounded bar behind the row in the middle.
struct UIPickerSelectionIndicator {
    /// Between the indicator and the wheel's left and right edges. Chosen by eye, as are the other
    /// lengths.
    static constexpr CGFloat inset = 8;

    static void draw(UIGraphicsContext& context, CGRect frame);
    /// Marks a column's part of it, for the focus.
    static void drawFocus(UIGraphicsContext& context, CGRect part, const UIColor& tint);
    /// The same below the pointer, more quietly.
    static void drawHover(UIGraphicsContext& context, CGRect part, const UIColor& tint);
};

} // namespace gx
