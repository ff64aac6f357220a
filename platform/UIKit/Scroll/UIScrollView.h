#pragma once

#include <optional>

#include "UIScrollMotion.h"
#include "UIVelocityTracker.h"
#include "UIView.h"

namespace gx {

/// Shows subviews that together are higher than there is room: they move up and down, never sideways, under a finger, the mouse
/// wheel or a trackpad, and glide on after a swift stroke. In a window that reduces motion nothing glides: requests arrive at once, and a
/// stroke ends where the finger does.
///
/// Subviews are placed in the coordinates of the content, from 0 to the content's height; scrolling moves the origin of the bounds and
/// leaves their frames alone. Touches that a subview keeps to itself, such as those on the columns of a wheel, never scroll.
///
/// Invariant: the offset lies between 0 and `highestOffset`, but while a finger pulls beyond an end or the content springs back.
/// Places and sizes with a coordinate that is no finite number are ignored.
class UIScrollView : public UIView {
public:
    /// A finger that moved less has not moved: in points, what a resting finger trembles.
    static constexpr CGFloat touchSlop = 8;
    /// One notch of a mouse wheel. Chosen to move about one row of a list.
    static constexpr CGFloat pointsPerNotch = 48;

    bool initWithFrame(CGRect frame) override;
    bool initWithCoder(const Ref<NSCoder>& coder) override;

    CGSize contentSize() const { return contentSize_; }
    /// Negative sizes count as 0. Only the height matters to scrolling.
    void setContentSize(CGSize size);
    /// The point of the content at this view's top left.
    CGPoint contentOffset() const { return bounds().origin; }
    /// At once, as without animation.
    void setContentOffset(CGPoint offset);
    /// Goes to an offset, held to what there is; its x counts for nothing. Ends what else moves the content; a finger that lies there
    /// scrolls and taps no more. The present offset stops a glide and leaves a finger alone, so that who hears of scrolling may hold it to
    /// some range. Without a window, animation has no clock and the content arrives at once.
    void setContentOffset_animated(CGPoint offset, bool animated);
    /// Scrolls just as far as shows the whole rectangle, or its top if it is higher than this view. Content on its way to where that is
    /// in sight goes on.
    void scrollRectToVisible_animated(CGRect rect, bool animated);
    /// The offset that shows the content's end; 0 if all of it fits.
    CGFloat highestOffset() const;

    /// Whether a finger moves the content.
    bool isDragging() const { return state_ == State::Dragged; }
    /// Whether the content moves on by itself after a finger has let go.
    bool isDecelerating() const { return state_ == State::Gliding; }

    void setFrame(CGRect frame) override;
    /// Its origin is the content's offset.
    void setBounds(CGRect bounds) override;
    void didMoveToWindow() override;
    /// Ends every movement at once, where it was heading for, and forgets the finger; what that has pulled beyond an end is back there. A
    /// view that leaves its window does so too.
    void finishAnimations() override;
    bool touchBegan(const UITouch& touch) override;
    void touchMoved(const UITouch& touch) override;
    void touchEnded(const UITouch& touch) override;
    void touchCancelled(const UITouch& touch) override;
    /// What goes sideways, and everything where all is in sight, is handed up. Content at its end keeps the rest.
    bool scrolled(const UIScroll& scroll) override;
    /// The keys that no view below has used: up and down scroll by a notch, page keys by the height of this view but for a notch, home and
    /// end all the way. A finger that lies here goes before. Where all is in sight they are handed up.
    bool keyPressed(const UIKey& key) override;
    /// Scrolls there, animated, and hands up where the rectangle will be then.
    void revealDescendant(CGRect rect) override;
    bool advanceToTime(NSTimeInterval time) override;

protected:
    // For subclasses; here they do nothing. All may do anything.

    /// Called after the offset has changed.
    virtual void scrollViewDidScroll();
    /// Called when a finger begins to move the content.
    virtual void scrollViewWillBeginDragging();
    /// A finger has come down on content that stood still, at a point of the content.
    virtual void pressBegan(CGPoint point, NSTimeInterval time);
    /// The finger is done with that: it has let go where it came down, which is a tap, or it scrolls, or was taken away.
    virtual void pressEnded(bool isTap, NSTimeInterval time);
    /// Draws the subviews, below the scroll bar.
    virtual void drawScrolledViews(UIGraphicsContext& context);

    /// Whether anything here changes with time alone.
    virtual bool isMoving() const;
    /// Asks the window for time.
    void startMoving();
    /// Ends every movement where it is, held to the ends, and forgets the finger.
    void stop();
    bool hasFinger() const { return finger_.has_value(); }
    /// Whether it is in a window that wants no movement of its own accord.
    bool reducesMotion() const;

    void drawSubviews(UIGraphicsContext& context) override;

private:
    enum class State {
        AtRest,
        Touched,  ///< a finger lies on the content and has not moved
        Dragged,  ///< the content follows a finger
        Gliding,  ///< it goes on by itself, or springs back to an end
        Requested ///< it is on its way to where the program wants it
    };

    // The curves count in rows; so many points are one, the height of a row of a list.
    static constexpr CGFloat motionRow = 44;

    CGFloat offset() const { return bounds().origin.y; }
    CGFloat offsetAtRest() const;
    CGFloat held(CGFloat offset) const;
    CGFloat bandedOffset(CGFloat raw) const;
    CGFloat rawOffset(CGFloat displayed) const;
    void moveTo(CGFloat offset);
    void glide(State state, CGFloat target, const UIScrollMotion& motion);
    void springBack(NSTimeInterval time);
    void holdToContent();
    void endPress(bool isTap, NSTimeInterval time);
    void drawScrollBar(UIGraphicsContext& context) const;

    CGSize contentSize_;
    State state_ = State::AtRest;
    // Counted from where it ends, so that it arrives there exactly.
    UIScrollMotion motion_;
    CGFloat target_ = 0;

    std::optional<std::int64_t> finger_;
    bool isPressed_ = false;
    CGFloat touchStart_ = 0;
    CGFloat lastTouch_ = 0;
    CGFloat raw_ = 0; // The offset that the finger asks for, ends or not.
    UIVelocityTracker velocity_;
};

} // namespace gx
