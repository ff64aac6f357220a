#pragma once

#include <optional>
#include <vector>

#include "CGGeometry.h"
#include "NSCoder.h"
#include "NSObject.h"
#include "UIAccessibility.h"
#include "UIColor.h"
#include "UITouch.h"

namespace gx {

class NSLayoutConstraint;
class UIGraphicsContext;
class UIWindow;
struct UIKey;

/// A rectangle in a tree of views: it has a place in its superview, draws itself, lays out its subviews and
/// receives touches. The base of everything on the screen.
///
/// Invariants: a view has at most one superview, never itself or a view below it; a superview owns its
/// subviews and nobody owns upward. The size of `bounds` is always the size of `frame`.
class UIView : public NSObject {
public:
    ~UIView() override;

    /// The zero rectangle as frame.
    bool init() override;
    virtual bool initWithFrame(CGRect frame);
    /// Restores, where the coder has them: "frame", "bounds" (its size counts only without a frame), "hidden", "alpha",
    /// "userInteractionEnabled", "clipsToBounds", "tag", and as 0xRRGGBB "backgroundColor" and "tintColor". An empty coder gives the
    /// defaults.
    virtual bool initWithCoder(const Ref<NSCoder>& coder);
    /// Whoever loads an interface calls this on every view once all are connected; `create` does not.
    virtual void awakeFromNib();

    // Geometry

    /// The view's rectangle in its superview's coordinates.
    CGRect frame() const { return frame_; }
    /// A new size makes a layout due. The null rectangle is kept as it is and gives empty bounds.
    virtual void setFrame(CGRect frame);
    /// The view's rectangle in its own coordinates; its origin says which point lies at the view's top left.
    CGRect bounds() const;
    /// A new size keeps the centre of the frame where it is.
    virtual void setBounds(CGRect bounds);
    CGPoint center() const;
    /// Moves the view, through `setFrame`.
    void setCenter(CGPoint center);

    /// Conversions run over the nearest common view or, for views in separate trees, as if both trees' roots
    /// lay on each other. From and to an absent view, a rectangle is the zero rectangle and a point (0, 0).
    CGRect convertRect_fromView(CGRect rect, const Ref<UIView>& view) const;
    CGRect convertRect_toView(CGRect rect, const Ref<UIView>& view) const;
    CGPoint convertPoint_fromView(CGPoint point, const Ref<UIView>& view) const;
    CGPoint convertPoint_toView(CGPoint point, const Ref<UIView>& view) const;
    /// From the coordinates of the window, or of the topmost view if there is none.
    CGPoint convertPointFromWindow(CGPoint point) const;

    // The tree

    /// Empty for a view without one.
    Ref<UIView> superview() const;
    const std::vector<Ref<UIView>>& subviews() const { return subviews_; }
    /// The order in which a screen reader and the Tab key go through them; here that of the list.
    virtual std::vector<Ref<UIView>> subviewsInReadingOrder() const { return subviews_; }
    Ref<UIWindow> window() const;
    /// True for the view itself and for every view above it.
    bool isDescendantOfView(const Ref<UIView>& view) const;
    /// On top of the others. An empty reference, the view itself and a view above it are ignored.
    void addSubview(const Ref<UIView>& view);
    /// Below the subviews from `index` on; an index outside the list means its nearer end.
    void insertSubview_atIndex(const Ref<UIView>& view, NSInteger index);
    /// Drops the superview's constraints on this view with it.
    void removeFromSuperview();
    /// Called after the view came into a window, left one or changed it.
    virtual void didMoveToWindow();

    // Layout

    void setNeedsLayout();
    /// Lays out this view and what is below it, as far as that is due. Needs no window. A layout that asks
    /// for another is answered by the next pass, and a layout within a layout of the same view does nothing:
    /// so this always ends.
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
    void addConstraints(const std::vector<Ref<NSLayoutConstraint>>& constraints);
    const std::vector<Ref<NSLayoutConstraint>>& constraints() const { return constraints_; }

    // Appearance

    std::optional<UIColor> backgroundColor() const { return backgroundColor_; }
    void setBackgroundColor(std::optional<UIColor> color);
    /// From 0 to 1; others are held to that range.
    double alpha() const { return alpha_; }
    void setAlpha(double alpha);
    bool isHidden() const { return isHidden_; }
    /// Hiding takes away the focus of the view and of those below, and ends their movements (`finishAnimationsInTree`).
    virtual void setHidden(bool hidden);
    bool clipsToBounds() const { return clipsToBounds_; }
    void setClipsToBounds(bool clips);
    /// The corners of the background, in points.
    CGFloat cornerRadius() const { return cornerRadius_; }
    void setCornerRadius(CGFloat radius);
    /// The view's own tint, or the one handed down from above, or the system's blue.
    UIColor tintColor() const;
    /// Nothing hands down the superview's again.
    void setTintColor(std::optional<UIColor> color);
    /// Called when the tint in force has changed, here or above.
    virtual void tintColorDidChange();
    NSInteger tag() const { return tag_; }
    void setTag(NSInteger tag) { tag_ = tag; }

    // Drawing

    /// Asks for a new frame; the window tells its host.
    void setNeedsDisplay();
    /// Draws this view and what is below it, its frame's origin at the canvas's origin.
    void renderInContext(UIGraphicsContext& context);
    /// Whether there is anything to see; a label without text shows nothing. Here true.
    virtual bool showsSomething() const;
    /// Draws the view's own content, above its background and below its subviews, in its own coordinates.
    virtual void drawRect(UIGraphicsContext& context, CGRect rect);

    // Events

    bool isUserInteractionEnabled() const { return isInteractive_; }
    void setUserInteractionEnabled(bool enabled) { isInteractive_ = enabled; }
    /// Whether neither this view nor one above it is hidden, clear or disabled.
    bool takesInput() const;
    /// The topmost view that takes touches at a point of this view's coordinates; nothing outside the bounds.
    Ref<UIView> hitTest(CGPoint point);

    /// Sent to the topmost view below the finger; here handed to the superview. Returns whether a view took the touch.
    ///
    /// The view that it began on gets the rest of the touch either way. What a touch that nobody took does is the host's.
    virtual bool touchBegan(const UITouch& touch);
    /// Sent to the view that the touch began on; here handed to the superview, as are the next two.
    virtual void touchMoved(const UITouch& touch);
    virtual void touchEnded(const UITouch& touch);
    virtual void touchCancelled(const UITouch& touch);
    /// Here it is handed to the superview. Answers whether someone made use of it.
    virtual bool scrolled(const UIScroll& scroll);

    // Keys

    /// A key goes to the view that has the focus; here it is handed to the superview. Answers whether someone made use of it.
    virtual bool keyPressed(const UIKey& key);
    /// Whether the view takes the focus when Tab comes to it. Here false.
    virtual bool canBecomeFirstResponder();
    /// Takes the focus: the keys go here until another view takes it. Answers false, and changes nothing, for a view that is in no window,
    /// is out of sight or takes no input (also by a view above), or cannot become first responder.
    bool becomeFirstResponder();
    /// Gives the focus up, to nobody. Answers false for a view that has not got it.
    bool resignFirstResponder();
    bool isFirstResponder() const;
    /// Called after the view got the focus or lost it, and when the mark of its focus appears or goes (`UIWindow::showsFocus`). Here the
    /// view is drawn again.
    virtual void focusDidChange();
    /// Asks for a rectangle of this view's coordinates to come into sight, as for the view that Tab goes to. Here it is handed to the
    /// superview; a view that scrolls brings it into its own bounds first.
    virtual void revealDescendant(CGRect rect);

    // Time

    /// Ends the view's own movements at once: what is on its way arrives, and a user's turn is reported. Here nothing moves.
    ///
    /// Called on the view and all views below when nobody sees them any more: the view, or one above it, was hidden, or the
    /// window's `finishAnimations` was called. May be called at any time.
    virtual void finishAnimations();
    /// Calls `finishAnimations` on this view and on those below it.
    void finishAnimationsInTree();
    /// Called by the window before each frame, for views that asked with `UIWindow::animateView`. Answers
    /// whether the view goes on moving.
    virtual bool advanceToTime(NSTimeInterval time);

    // Accessibility

    /// What a screen reader calls the view: the label that was set or, without one, what the view itself knows to say. Here nothing.
    virtual std::optional<std::string> accessibilityLabel() const { return accessibilityLabel_; }
    /// Nothing leaves it to the view again.
    void setAccessibilityLabel(std::optional<std::string> label) { accessibilityLabel_ = std::move(label); }
    /// What a screen reader finds in the view, in the order in which it is read. Here what its subviews offer.
    virtual UIAccessibilityElements accessibilityElements();

protected:
    /// Whether the next layout pass will lay out this view itself.
    bool isLayoutDue() const { return needsLayout_; }
    bool isLayingOut() const { return isLayingOut_; }
    /// Draws the subviews, in this view's coordinates.
    virtual void drawSubviews(UIGraphicsContext& context);
    /// Draws the view with its background and subviews, in its superview's coordinates.
    static void drawView(UIView& view, UIGraphicsContext& context);
    /// A window answers itself.
    virtual UIWindow* asWindow() { return nullptr; }
    /// The views from here down that take the focus, in the order of the tree.
    void collectFocusable(std::vector<Ref<UIView>>& found);

private:
    /// What is fainter is as good as hidden: no input meets it.
    static constexpr double lowestTouchableAlpha = 0.01;

    UIView* root() const;
    CGPoint originIn(const UIView* above) const;
    CGPoint originSeenFrom(const UIView& view) const;
    bool contains(const UIView& view) const;
    void noteTreeChange(const UIColor& tintBefore, const UIWindow* windowBefore);
    void notifyTint();
    void notifyWindow();
    void drawContent(UIGraphicsContext& context);

    CGRect frame_;
    CGPoint boundsOrigin_;
    UIView* superview_ = nullptr; // Cleared by the superview before it goes.
    std::vector<Ref<UIView>> subviews_;
    std::vector<Ref<NSLayoutConstraint>> constraints_;
    std::optional<UIColor> backgroundColor_;
    std::optional<UIColor> tintColor_;
    std::optional<std::string> accessibilityLabel_;
    double alpha_ = 1;
    CGFloat cornerRadius_ = 0;
    NSInteger tag_ = 0;
    bool isHidden_ = false;
    bool clipsToBounds_ = false;
    bool isInteractive_ = true;
    bool translatesMask_ = true;
    bool needsLayout_ = true;
    bool isLayoutDueBelow_ = false;
    bool isLayingOut_ = false;
};

/// How `create` makes a view: `(frame)` and `(coder)`.
inline bool initialise(UIView& view, CGRect frame) { return view.initWithFrame(frame); }
inline bool initialise(UIView& view, const Ref<NSCoder>& coder) { return view.initWithCoder(coder); }

} // namespace gx
