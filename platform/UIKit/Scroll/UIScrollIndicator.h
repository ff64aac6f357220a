#pragma once

#include <optional>

#include "CGGeometry.h"
#include "NSObject.h"
#include "UIGraphicsContext.h"

namespace gx {

/// The thin bar that shows which part of a scroll view's content is visible: while it scrolls, and
/// for a moment afterwards.
///
/// It appears at once, stays while it is in use, waits for `waitDuration` and fades within
/// `fadeDuration`. Its clock begins with the first frame in which it is not in use. It knows no
/// views and asks for no frames; its owner calls `advanceToTime` as long as it is visible.
///
/// It is on the right, or on the left in languages that are read from right to left.
class UIScrollIndicator {
public:
    /// In seconds, both chosen by eye: long enough to be read, and gone before it is in the way.
    static constexpr NSTimeInterval waitDuration = 0.6;
    static constexpr NSTimeInterval fadeDuration = 0.3;

    bool isVisible() const { return alpha_ > 0; }
    /// Also begins the wait again.
    void show();
    /// At once.
    void hide() { alpha_ = 0; }
    /// `isInUse` while the content moves or is held. Without `fades` it vanishes after the wait.
    /// Returns whether it looks different now.
    bool advanceToTime(NSTimeInterval time, bool isInUse, bool fades);

    /// In the coordinates of the content, whose visible part is `area`. Nothing if all of it fits.
    void draw(UIGraphicsContext& context, CGRect area, CGFloat contentHeight) const;

private:
    double alpha_ = 0;
    std::optional<NSTimeInterval> fadeStart_;
};

} // namespace gx
