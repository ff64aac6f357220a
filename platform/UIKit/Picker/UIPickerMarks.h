#pragma once

#include "UIPickerComponents.h"
#include "UIPointer.h"
#include "UIWindow.h"

namespace gx {

/// The marks in a wheel's selection indicator: the column that keys move, and the one below the
/// pointer.
///
/// The pointer's mark is quiet at first. It becomes that of the keys when the user spins the
/// column, by the mouse wheel or a drag, and stays so until the pointer leaves the column. While
/// the column of the keys is marked, that mark is the only strong one.
class UIPickerMarks {
public:
    UIPickerMarks(UIView& wheel, const UIPickerComponents& components) : wheel_(wheel), components_(components) {}

    /// The pointer is at a point of the wheel's coordinates. Returns nothing beside the columns
    /// that can be spun.
    std::optional<UIPointerStyle> hoverMoved(CGPoint point);
    void hoverEnded();
    /// `indicator` is the selection indicator's frame.
    void draw(UIGraphicsContext& context, CGRect indicator) const;

private:
    void markHovered(NSInteger component, bool isSpun);

    UIView& wheel_;
    const UIPickerComponents& components_;
    NSInteger hovered_ = -1; // −1 for none.
    bool isSpun_ = false;    // Since the pointer came to the column.
};

} // namespace gx
