#pragma once

#include <cstdint>
#include <optional>

#include <GXUIPickers/UIView.h>

namespace gallery {

/// What all things to tap have in common: they light up while a finger holds them, and are tapped when it leaves them where it came down.
/// A finger that wanders off taps nothing.
///
/// Keys reach all of them: Return and Space tap the one with the focus, which is marked by an outline while the window shows the focus.
///
/// Every touch is handed on to the superview as well, so that a list can be scrolled by a finger that came down on one of its rows.
class GalleryControl : public gx::UIView {
public:
    /// A finger may tremble by so many points and still tap.
    static constexpr gx::CGFloat slop = 8;

    bool isHighlighted() const { return finger_.has_value(); }

    bool touchBegan(const gx::UITouch& touch) override;
    void touchMoved(const gx::UITouch& touch) override;
    void touchEnded(const gx::UITouch& touch) override;
    void touchCancelled(const gx::UITouch& touch) override;
    bool canBecomeFirstResponder() override { return true; }
    bool keyPressed(const gx::UIKey& key) override;

protected:
    /// Called for a tap, at a point of this view's coordinates. May remove the control.
    virtual void tapped(gx::CGPoint point) = 0;
    /// Where a key taps, in this view's coordinates. Here in the middle.
    virtual gx::CGPoint pointOfKeys() const;
    /// Draws the mark of the focus just within a rounded rectangle, if it is due.
    void drawFocus(gx::UIGraphicsContext& context, gx::CGRect rect, gx::CGFloat cornerRadius) const;
    /// Where the finger is held that lights the control up, in this view's coordinates.
    gx::CGPoint highlightedPoint() const { return convertPointFromWindow(start_); }

private:
    bool isNearStart(const gx::UITouch& touch) const;
    void setFinger(std::optional<std::int64_t> finger);

    std::optional<std::int64_t> finger_;
    gx::CGPoint start_; // In the window's coordinates.
};

} // namespace gallery
