#pragma once

#include <algorithm>
#include <cstdint>

#include "CGGeometry.h"
#include "GXExport.h"
#include "NSObject.h"

namespace gx {

/// One finger, or the mouse with its button held, as a view receives it.
struct UITouch {
    /// The identifier of the mouse with its button held. Fingers have those from 0 on.
    static constexpr std::int64_t pointerIdentifier = -1;

    /// The same for one finger from its beginning to its end.
    std::int64_t identifier = 0;
    /// In seconds, on the clock of `UIWindow::tick`.
    NSTimeInterval timestamp = 0;
    /// In the window's coordinates; `UIView::convertPointFromWindow` brings it into a view's.
    CGPoint locationInWindow;
};

/// A step of the mouse wheel or a stroke on a trackpad. Positive deltas move toward later rows:
/// right and down.
struct GX_EXPORT UIScroll {
    /// What deltas count.
    enum class Unit {
        Notches, ///< clicks of a mouse wheel, also fractions of one
        Points   ///< a trackpad's distances, in points
    };
    Unit unit = Unit::Notches;    ///< of the deltas
    CGFloat deltaX = 0;           ///< to the right
    CGFloat deltaY = 0;           ///< downward
    NSTimeInterval timestamp = 0; ///< in seconds, on the clock of `UIWindow::tick`
    CGPoint locationInWindow;     ///< of the pointer, in the window's coordinates
    /// The last one of a stroke: the fingers have left the trackpad, and its glide has ended.
    bool isFinished = false;

    /// Whether it goes more to the side than up or down. Views here leave it to what lies around,
    /// since nothing moves sideways.
    bool isSideways() const { return std::max(deltaX, -deltaX) > std::max(deltaY, -deltaY); }
};

} // namespace gx
