#pragma once

#include <cstdint>
#include <optional>

#include <GXUIPickers/UIView.h>

namespace gallery {

/// The base of all views that can be tapped.
///
/// - It is highlighted while a finger is down, and tapped when that lifts near where it came down.
///   A finger that moves further taps nothing.
/// - Return and Space tap the control that has the focus, which has an outline while the window
///   shows the focus.
/// - Every touch is passed on to the superview as well, so that a drag that begins on a control can
///   scroll the list around it.
class Control : public gx::UIView {
public:
    /// How many points a finger may move and still tap: as many as before a scroll view scrolls.
    static constexpr gx::CGFloat slop = 8;

    bool isHighlighted() const { return finger_.has_value(); }
    bool isHovered() const { return hover_.has_value(); }

    bool touchBegan(const gx::UITouch& touch) override;
    void touchMoved(const gx::UITouch& touch) override;
    void touchEnded(const gx::UITouch& touch) override;
    void touchCancelled(const gx::UITouch& touch) override;
    /// It has a hover mark while the pointer is over it.
    std::optional<gx::UIPointerStyle> hoverMoved(gx::CGPoint locationInWindow) override;
    void hoverEnded() override;
    bool canBecomeFirstResponder() override { return true; }
    bool keyPressed(const gx::UIKey& key) override;

protected:
    /// Called for a tap at a point in this view's coordinates. May remove the control.
    virtual void tapped(gx::CGPoint point) = 0;
    /// Where a key taps, in this view's coordinates. By default in the middle.
    virtual gx::CGPoint pointOfKeys() const;
    /// Draws the outline of the focus inside a rounded rectangle, if it is to be shown.
    void drawFocus(gx::UIGraphicsContext& context, gx::CGRect rect, gx::CGFloat cornerRadius) const;
    /// Where the finger came down that highlights the control, in this view's coordinates.
    gx::CGPoint highlightedPoint() const { return convertPointFromWindow(start_); }

    /// Where the pointer is over the control, in this view's coordinates.
    gx::CGPoint hoveredPoint() const { return hover_.value_or(gx::CGPoint{}); }
    /// What has to be drawn again when the pointer moves from the one point to the other. Here
    /// nothing.
    virtual bool looksDifferentAt(gx::CGPoint /*one*/, gx::CGPoint /*other*/) const { return false; }

private:
    bool isNearStart(const gx::UITouch& touch) const;
    void setFinger(std::optional<std::int64_t> finger);

    std::optional<gx::CGPoint> hover_;
    std::optional<std::int64_t> finger_;
    gx::CGPoint start_; // In the window's coordinates.
};

} // namespace gallery
