#pragma once

#include <vector>

#include "GXExport.h"
#include "NSLayoutConstraint.h"
#include "UIAccessibility.h"
#include "UIGraphicsContext.h"
#include "UIViewNode.h"

namespace gx {

/// A rectangle in a tree of views: it draws itself, lays out its subviews and receives touches. The
/// base of everything on the screen.
///
/// What concerns the view alone (place, looks, focus) is in `UIViewNode`, what it does with touches
/// and keys in `UIResponder`. For text use `UILabel`, for a picture `UIImageView`, for content
/// larger than its place `UIScrollView`.
///
/// Invariants:
/// - A view has at most one superview, never itself or a view below it.
/// - A superview owns its subviews, and nothing owns upward.
class GX_EXPORT UIView : public UIViewNode {
public:
    ~UIView() override;

    // The tree

    /// Empty for a view without one.
    Ref<UIView> superview() const;
    /// From the lowest to the topmost. Changes with the tree: copy it where callbacks may run.
    const std::vector<Ref<UIView>>& subviews() const { return subviews_; }
    /// The order of screen readers and the Tab key; here that of the list.
    virtual std::vector<Ref<UIView>> subviewsInReadingOrder() const { return subviews_; }
    /// On top of the others. An empty reference, the view itself and a view above it are ignored.
    void addSubview(const Ref<UIView>& view);
    /// Below the subviews from `index` on; an index outside the list means its nearer end.
    void insertSubview_atIndex(const Ref<UIView>& view, NSInteger index);
    /// Drops the superview's constraints on this view with it.
    void removeFromSuperview();
    /// Called after the view came into a window, left one or changed it.
    virtual void didMoveToWindow();

    // Layout

    /// Has the next layout pass lay out this view, and asks for a frame.
    void setNeedsLayout();
    /// Lays out this view and those below it, as far as their layout is invalid. Needs no window.
    ///
    /// A layout that invalidates again waits for the next pass, and a layout within a layout of the
    /// same view is a no-op: so this always ends.
    void layoutIfNeeded();
    /// Places the subviews; here by the constraints that were added to this view.
    virtual void layoutSubviews();
    /// The size that shows everything; here the present one.
    virtual CGSize sizeThatFits(CGSize available) const;
    /// Takes that size and keeps the origin.
    void sizeToFit();

    /// Kept for readers of the layout: constraints move a view whatever it says.
    bool translatesAutoresizingMaskIntoConstraints() const { return translatesMask_; }
    void setTranslatesAutoresizingMaskIntoConstraints(bool translates) { translatesMask_ = translates; }
    /// For subviews of this view; kept in order, and applied in each layout of it.
    void addConstraints(const std::vector<Ref<NSLayoutConstraint>>& constraints);
    /// Those added, in order.
    const std::vector<Ref<NSLayoutConstraint>>& constraints() const { return constraints_; }

    // Drawing

    /// Draws this view and what is below it, its frame's origin at the canvas's origin.
    void renderInContext(UIGraphicsContext& context);
    /// Whether there is anything to see; a label without text shows nothing. Here true.
    virtual bool showsSomething() const;
    /// Draws the view's own content, above its background and below its subviews, in its own
    /// coordinates.
    virtual void drawRect(UIGraphicsContext& context, CGRect rect);

    // Input and time

    /// The topmost view that takes touches at a point of this view's coordinates; nothing outside
    /// the bounds.
    Ref<UIView> hitTest(CGPoint point);
    void finishAnimationsInTree() override;
    /// Called by the window before each frame, for views that asked with `UIWindow::animateView`.
    /// Returns whether the view goes on moving.
    virtual bool advanceToTime(NSTimeInterval time);

    // Accessibility

    /// What a screen reader finds in the view, in reading order. Here what its subviews offer.
    virtual UIAccessibilityElements accessibilityElements();
    /// Which of them has the focus, while the view is first responder. Nothing while keys do not
    /// come to the window.
    virtual Ref<UIAccessibilityElement> focusedAccessibilityElement();

protected:
    /// Whether the next layout pass will lay out this view itself.
    bool isLayoutNeeded() const { return needsLayout_; }
    /// Whether `layoutSubviews` of this view is running.
    bool isLayingOut() const { return isLayingOut_; }
    /// Draws the subviews, in this view's coordinates.
    virtual void drawSubviews(UIGraphicsContext& context);
    /// Draws the view with its background and subviews, in its superview's coordinates.
    static void drawView(UIView& view, UIGraphicsContext& context);
    /// The views from here down that take the focus, in reading order.
    void collectFocusable(std::vector<Ref<UIView>>& found);

    void boundsSizeDidChange() override;
    void notifyTint() override;

private:
    UIView* above() const;
    void noteTreeChange(const UIColor& tintBefore, const UIViewRoot* rootBefore);
    void notifyWindow();
    void drawContent(UIGraphicsContext& context);
    template <class Call>
    void callOnSubviews(Call call);

    std::vector<Ref<UIView>> subviews_;
    std::vector<Ref<NSLayoutConstraint>> constraints_;
    bool translatesMask_ = true;
    bool needsLayout_ = true;
    bool needsLayoutBelow_ = false;
    bool isLayingOut_ = false;
};

/// The elements of the view's subviews, in reading order; of those that are drawn: neither hidden,
/// nor fully transparent, nor empty.
GX_EXPORT UIAccessibilityElements accessibilityElementsOfSubviews(const Ref<UIView>& view);
/// The view as a whole, if it has a label, and what its subviews offer.
GX_EXPORT UIAccessibilityElements accessibilityElementAndSubviews(const Ref<UIView>& view, UIAccessibilityRole role);

} // namespace gx
