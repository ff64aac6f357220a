#pragma once

#include <memory>

#include "GXExport.h"
#include "UIView.h"

namespace gx {

class UIScrollAxis;
class UIScrollIndicator;

/// Shows subviews that together are higher than it is, and scrolls them up and down.
///
/// - Input: a finger, the mouse wheel, a trackpad and keys. Content decelerates after a swift drag
///   and never moves sideways.
/// - Subviews are placed in the coordinates of the content, from 0 to its height. Scrolling moves
///   the origin of the bounds and leaves frames alone.
/// - A touch that a subview takes, such as one on a column of a wheel, never scrolls.
/// - A scroll indicator shows which part is visible while content scrolls, and fades within a
///   second afterwards. Until then the window gets frames, and then it is still. Content that the
///   program places at once shows none.
/// - In a window that reduces motion nothing decelerates: requests arrive at once, and a drag ends
///   where the finger does. The scroll indicator vanishes without a fade.
///
/// Invariant: the offset lies between 0 and `highestOffset`, but while a finger pulls beyond an end
/// or the content springs back. Points and sizes with a coordinate that is no finite number are
/// ignored. For rows of data use `UITableView`.
class GX_EXPORT UIScrollView : public UIView {
public:
    /// One notch of a mouse wheel, in points. Chosen to move about one row of a list.
    static constexpr CGFloat pointsPerNotch = 48;

    UIScrollView();
    ~UIScrollView() override;

    /// A view that clips to its bounds, without content.
    bool initWithFrame(CGRect frame) override;
    bool initWithCoder(const Ref<NSCoder>& coder) override;

    /// In points. Default: the zero size.
    CGSize contentSize() const { return contentSize_; }
    /// Negative sizes count as 0. Only the height matters to scrolling.
    void setContentSize(CGSize size);
    /// The point of the content at this view's top left.
    CGPoint contentOffset() const { return bounds().origin; }
    /// Without animation.
    void setContentOffset(CGPoint offset);
    /// Scrolls to an offset, clamped to the content. Its x is ignored.
    ///
    /// - Ends any other movement. A finger that lies on the content scrolls and taps no more.
    /// - The present offset stops a movement and leaves a finger alone. So `scrollViewDidScroll`
    ///   may clamp the offset to a range of its own.
    /// - Without a window animation has no clock, and the content arrives at once.
    void setContentOffset_animated(CGPoint offset, bool animated);
    /// Scrolls just as far as shows the whole rectangle, or its top if it is higher than this view.
    /// Content that is on its way to where the rectangle is visible goes on.
    void scrollRectToVisible_animated(CGRect rect, bool animated);
    /// The offset that shows the content's end; 0 if all of it fits.
    CGFloat highestOffset() const;

    /// Shows the scroll indicator for a moment, if there is something to scroll.
    ///
    /// Call it when the view has come into sight, so that users see that there is more. No view
    /// does so by itself. Without a window nothing happens.
    void flashScrollIndicators();

    /// Whether a finger moves the content.
    bool isDragging() const;
    /// Whether the content moves on by itself after a finger has let go.
    bool isDecelerating() const;

    void setFrame(CGRect frame) override;
    /// Its origin is the content's offset.
    void setBounds(CGRect bounds) override;
    void didMoveToWindow() override;
    /// Ends every movement at once, at its target, and ignores the finger from now on. What it has
    /// pulled beyond an end is back there. Also called when this view leaves its window.
    void finishAnimations() override;
    bool touchBegan(const UITouch& touch) override;
    void touchMoved(const UITouch& touch) override;
    void touchEnded(const UITouch& touch) override;
    void touchCancelled(const UITouch& touch) override;
    /// Passed up if it goes sideways or all content is visible. Content at its end keeps the rest.
    bool scrolled(const UIScroll& scroll) override;
    /// Handles keys that no view below has used; passed up where all content is visible.
    ///
    /// - Up and Down scroll by a notch, page keys by the height of this view less a notch.
    /// - Home and End go all the way.
    /// - While a finger lies here keys move nothing.
    bool keyPressed(const UIKey& key) override;
    /// Scrolls there, animated, and passes up where the rectangle will be then.
    void revealDescendant(CGRect rect) override;
    bool advanceToTime(NSTimeInterval time) override;

protected:
    // For subclasses. Here they do nothing; all may call back.

    /// Called after the offset has changed.
    virtual void scrollViewDidScroll() {}
    /// Called when a finger begins to move the content.
    virtual void scrollViewWillBeginDragging() {}
    /// Called when a finger comes down on content that stands still, at a point of the content.
    virtual void pressBegan(CGPoint /*point*/, NSTimeInterval /*time*/) {}
    /// Called once after it: with a tap if the finger let go where it came down, without one if it
    /// scrolls or was cancelled.
    virtual void pressEnded(bool /*isTap*/, NSTimeInterval /*time*/) {}
    /// Draws the subviews, below the scroll indicator.
    virtual void drawScrolledViews(UIGraphicsContext& context);

    /// Whether anything here changes with time alone.
    virtual bool isMoving() const;
    /// Has the window call `advanceToTime` before each frame.
    void startMoving();
    /// Ends every movement where it is, clamped to the content, and ignores the finger from now on.
    void stop();
    /// Whether a finger is down, moving content or not.
    bool hasFinger() const;
    /// Whether the window asks for no movement that the user does not make.
    bool reducesMotion() const;

    void drawSubviews(UIGraphicsContext& context) override;

private:
    enum class PressEnd { Tap, Cancel };

    UIScrollAxis& axis() const;
    CGFloat offset() const { return bounds().origin.y; }
    CGFloat clamped(CGFloat offset) const;
    void moveTo(CGFloat offset);
    bool canGlide() const;
    void throwAt(double velocity, NSTimeInterval time);
    void springBack(NSTimeInterval time);
    void fitToContent();
    void endPress(PressEnd end, NSTimeInterval time);

    CGSize contentSize_;
    // What moves the offset. The offset itself is the origin of the bounds.
    std::unique_ptr<UIScrollAxis> axis_;
    std::unique_ptr<UIScrollIndicator> indicator_;
    bool isPressed_ = false;
};

} // namespace gx
