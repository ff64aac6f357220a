#pragma once

#include <optional>

#include "UIResponder.h"

namespace gx {

/// Where the pointer is, which responder it hovers, and how it looks there.
///
/// The window says what lies below the pointer, and when to look again. Callbacks may do anything
/// but destroy this.
///
/// Invariant: a responder that was hovered gets `hoverEnded` once it is not any more.
class UIPointerTracking {
public:
    /// Nothing while the pointer is elsewhere.
    std::optional<CGPoint> location() const { return location_; }
    void setLocation(std::optional<CGPoint> location) { location_ = location; }
    UIPointerStyle style() const { return style_; }

    /// Looks for the hovered responder, from the topmost one below the pointer upwards. Returns
    /// whether the style changes by that.
    bool hover(const Ref<UIResponder>& topmost);

private:
    std::optional<CGPoint> location_;
    WeakRef<UIResponder> hovered_;
    UIPointerStyle style_ = UIPointerStyle::Default;
    bool isHovering_ = false;
};

} // namespace gx
