#include "UIPointerTracking.h"

namespace gx {

bool UIPointerTracking::hover(const Ref<UIResponder>& topmost) {
    if (isHovering_) return false; // A callback moves the pointer: the next frame looks again.
    isHovering_ = true;
    const UIPointerStyle styleBefore = style_;
    const std::optional<CGPoint> location = location_;
    std::optional<UIPointerStyle> style;
    Ref<UIResponder> found = location ? topmost : nullptr;
    while (found && !style) {
        style = found->hoverMoved(*location);
        if (!style) found = found->nextResponder();
    }
    const Ref<UIResponder> before = hovered_.lock();
    hovered_ = found;
    style_ = style.value_or(UIPointerStyle::Default);
    if (before && before != found) before->hoverEnded();
    isHovering_ = false;
    return style_ != styleBefore;
}

} // namespace gx
