#pragma once

#include <optional>
#include <string>
#include <utility>

#include "CGGeometry.h"
#include "GXExport.h"
#include "NSCoder.h"
#include "UIColor.h"
#include "UIDrawingVersion.h"
#include "UIResponder.h"

namespace gx {

class UIViewNode;

/// What a screen reader takes something for, which decides what it says of it and offers to do.
enum class UIAccessibilityRole {
    Text,
    Image,
    Button,     ///< can be activated
    Adjustable, ///< has an index and a count, and can be incremented and decremented
    Heading,    ///< names what follows it
    Group,      ///< holds others
    RadioGroup, ///< holds radio buttons, one of which is checked
    RadioButton,
    List,    ///< holds items, and headings among them
    ListItem ///< can be activated
};

/// What a view requests of the window at the top of its tree. `UIWindow` alone implements it.
class GX_EXPORT UIViewRoot {
public:
    /// A frame is needed. Views that look different call `setNeedsDisplay`, which requests one.
    virtual void requestFrame() = 0;
    /// Takes the fingers from the view and from those below it, as if the system had.
    virtual void cancelTouchesWithin(const Ref<UIViewNode>& view) = 0;
    /// Takes the focus from the view and from those below it.
    virtual void resignFirstResponderWithin(const Ref<UIViewNode>& view) = 0;
    /// Whether the view is the first responder, keys or not.
    virtual bool isFocusedOn(const UIViewNode& view) const = 0;
    /// Whether keys come to the window, so that the focus is anywhere at all.
    virtual bool receivesKeys() const = 0;
    /// Has the view with the focus mark it, as after a key.
    virtual void showFocusMark() = 0;
    /// Gives the focus to a view, or takes it away for an empty one.
    virtual void moveFocusTo(const Ref<UIViewNode>& view) = 0;
    /// A tap at a point of the window, if what lies topmost there is the view or one below it.
    virtual void tapView_atPoint_time(const Ref<UIViewNode>& view, CGPoint point, NSTimeInterval time) = 0;

protected:
    ~UIViewRoot() = default;
};

/// One view without its subviews: its place, its looks, and what it has from the views above it.
///
/// Everything here looks upward only: coordinates, visibility, tint, input, focus. `UIView` adds
/// the subviews and is what applications derive from.
///
/// Invariant: the size of `bounds` is always the size of `frame`.
class GX_EXPORT UIViewNode : public UIResponder {
public:
    /// The zero rectangle as frame.
    bool init() override;
    /// Takes the frame as it is. An override returns false to refuse construction.
    virtual bool initWithFrame(CGRect frame);
    /// Restores what the coder has; an empty coder gives the defaults.
    ///
    /// - "frame", "bounds" (its size counts only without a frame)
    /// - "hidden", "alpha", "userInteractionEnabled", "clipsToBounds", "tag"
    /// - "backgroundColor" and "tintColor", as 0xRRGGBB
    virtual bool initWithCoder(const Ref<NSCoder>& coder);
    /// To be called on every view of an interface file once all are connected; `create` does not
    /// call it.
    virtual void awakeFromNib() {}

    // Geometry

    /// The view's rectangle in its superview's coordinates.
    CGRect frame() const { return frame_; }
    /// A new size invalidates the layout. The null rectangle is kept as it is and gives empty
    /// bounds.
    virtual void setFrame(CGRect frame);
    /// The view's rectangle in its own coordinates; its origin says which point lies at the top
    /// left.
    CGRect bounds() const;
    /// A new size keeps the centre of the frame where it is.
    virtual void setBounds(CGRect bounds);
    /// The middle of the frame, in the superview's coordinates.
    CGPoint center() const;
    /// Moves the view, through `setFrame`.
    void setCenter(CGPoint center);

    /// Conversions go by way of the nearest common view; roots of separate trees count as one
    /// place. From and to an absent view, a rectangle is the zero rectangle and a point (0, 0).
    CGRect convertRect_fromView(CGRect rect, const Ref<UIViewNode>& view) const;
    /// From this view's coordinates to those of `view`.
    CGRect convertRect_toView(CGRect rect, const Ref<UIViewNode>& view) const;
    /// From the coordinates of `view` to this view's.
    CGPoint convertPoint_fromView(CGPoint point, const Ref<UIViewNode>& view) const;
    /// From this view's coordinates to those of `view`.
    CGPoint convertPoint_toView(CGPoint point, const Ref<UIViewNode>& view) const;
    /// From the coordinates of the window, or of the topmost view if there is none.
    CGPoint convertPointFromWindow(CGPoint point) const;

    // Views above

    /// True for the view itself and for every view above it.
    bool isDescendantOfView(const Ref<UIViewNode>& view) const;
    /// The window at the top of the tree, as views know it. Empty without one.
    Ref<UIViewRoot> viewRoot() const;
    /// The window at the top of the tree, a `Ref<UIWindow>`. Empty without one. Include UIWindow.h
    /// to call it.
    template <class Node = UIViewNode>
    auto window() const {
        return windowOf(static_cast<const Node&>(*this));
    }
    /// Whether neither this view nor one above it is hidden or fully transparent.
    bool isShown() const;
    /// Whether this view and all above it take touches, shown or not.
    bool isInteractive() const;
    /// What the views above that clip leave of a rectangle of the window's coordinates.
    CGRect clippedByViewsAbove(CGRect rectInWindow) const;

    // Appearance

    /// Drawn over the bounds, below everything else. Default nothing.
    std::optional<UIColor> backgroundColor() const { return backgroundColor_; }
    void setBackgroundColor(std::optional<UIColor> color);
    /// Clamped to 0 … 1.
    double alpha() const { return alpha_; }
    void setAlpha(double alpha);
    /// Whether the view itself is hidden; `isShown` includes those above it.
    bool isHidden() const { return isHidden_; }
    /// Hiding takes the focus from the view and those below, and calls `finishAnimationsInTree`.
    virtual void setHidden(bool hidden);
    /// Whether subviews are cut at the bounds. Default false.
    bool clipsToBounds() const { return clipsToBounds_; }
    void setClipsToBounds(bool clips);
    /// The corners of the background, in points.
    CGFloat cornerRadius() const { return cornerRadius_; }
    void setCornerRadius(CGFloat radius);
    /// The view's own tint, or that of the nearest view above with one, or the system's blue.
    UIColor tintColor() const;
    /// Nothing inherits the superview's again.
    void setTintColor(std::optional<UIColor> color);
    /// Called when the tint in force has changed, here or above.
    virtual void tintColorDidChange() {}
    /// A number for the application's own use. Default 0.
    NSInteger tag() const { return tag_; }
    void setTag(NSInteger tag) { tag_ = tag; }
    /// Requests a new frame from the window's host, in which this view, those below it and what the
    /// views above it draw themselves are drawn.
    ///
    /// Other views may be shown as in the frame before: one whose drawing depends on a view beside
    /// it is invalidated with that.
    void setNeedsDisplay();

    // Input and focus

    Ref<UIResponder> nextResponder() const override;
    /// Whether touches and keys come to this view and those below. Default true.
    bool isUserInteractionEnabled() const { return isInteractive_; }
    void setUserInteractionEnabled(bool enabled) { isInteractive_ = enabled; }
    /// Whether neither this view nor one above it is hidden, nearly transparent or disabled.
    bool takesInput() const;

    /// Takes the focus: keys go here until another view takes it.
    ///
    /// Returns false, and changes nothing, for a view in no window, out of sight, without input
    /// (also by a view above), or that cannot become first responder.
    bool becomeFirstResponder();
    /// Gives the focus up. Returns false for a view that does not have it.
    bool resignFirstResponder();
    /// Whether the view has the focus of its window.
    bool isFirstResponder() const;
    /// Here the view is drawn again.
    void focusDidChange() override;
    /// Asks for a rectangle of this view's coordinates to come into sight, as for the view that Tab
    /// goes to.
    ///
    /// Here it is handed to the superview; a view that scrolls brings it into its own bounds first.
    virtual void revealDescendant(CGRect rect);

    // Time

    /// Ends the view's own movements at once: what moves arrives, and a user's spin is reported.
    /// Here nothing moves.
    ///
    /// Called on the view and all views below when they are not visible any more: the view, or one
    /// above it, was hidden, or the window's `finishAnimations` was called. May be called at any
    /// time.
    virtual void finishAnimations() {}
    /// Calls `finishAnimations` on this view and on those below it.
    virtual void finishAnimationsInTree();

    // Accessibility

    /// What a screen reader calls the view: the label that was set or, without one, what the view
    /// itself knows to say. Here nothing.
    virtual std::optional<std::string> accessibilityLabel() const { return accessibilityLabel_; }
    /// Nothing leaves it to the view again.
    void setAccessibilityLabel(std::optional<std::string> label);
    /// What a screen reader takes the view for. Nothing leaves it to the view itself.
    ///
    /// Example: a label that names a part of the screen is a `Heading`.
    std::optional<UIAccessibilityRole> accessibilityRole() const { return accessibilityRole_; }
    void setAccessibilityRole(std::optional<UIAccessibilityRole> role);
    /// Whether what belongs to the view is open or closed, as the picker of a row. Default nothing:
    /// there is nothing to open.
    std::optional<bool> isAccessibilityExpanded() const { return isAccessibilityExpanded_; }
    void setAccessibilityExpanded(std::optional<bool> expanded);

protected:
    /// The superview, not kept alive; null without one.
    UIViewNode* nodeAbove() const { return above_; }
    void setNodeAbove(UIViewNode* above) { above_ = above; }
    /// Whether this view is `view` or a view above it.
    bool contains(const UIViewNode& view) const;
    /// Stands for what this view and those below it draw.
    const UIDrawingVersion& drawing() const { return drawing_; }
    /// Has the view and those below it draw in the next frame, without asking for one.
    static void invalidateDrawing(UIViewNode& node);
    /// Whether a tint was set on this view itself.
    bool hasOwnTint() const { return tintColor_.has_value(); }
    /// `takesInput` without the views above.
    bool takesInputItself() const;

    /// As `viewRoot`, without keeping it alive; also while the window is torn down.
    UIViewRoot* rawViewRoot() const;
    /// A window returns itself.
    virtual UIViewRoot* asViewRoot() { return nullptr; }
    /// Called after the size of the bounds has changed.
    virtual void boundsSizeDidChange() = 0;
    /// Notifies this view of another tint in force, and those below that inherit it.
    virtual void notifyTint();

private:
    /// Views below this alpha get no input. The phone's platform prescribes it.
    static constexpr double lowestTouchableAlpha = 0.01;

    UIViewNode* top() const;
    CGPoint originIn(const UIViewNode* above) const;
    CGPoint originSeenFrom(const UIViewNode& view) const;

    CGRect frame_;
    CGPoint boundsOrigin_;
    UIViewNode* above_ = nullptr; // Cleared by the superview before it goes.
    UIDrawingVersion drawing_;
    std::optional<UIColor> backgroundColor_;
    std::optional<UIColor> tintColor_;
    std::optional<std::string> accessibilityLabel_;
    std::optional<UIAccessibilityRole> accessibilityRole_;
    std::optional<bool> isAccessibilityExpanded_;
    double alpha_ = 1;
    CGFloat cornerRadius_ = 0;
    NSInteger tag_ = 0;
    bool isHidden_ = false;
    bool clipsToBounds_ = false;
    bool isInteractive_ = true;
};

/// How `create` makes a view: `(frame)` and `(coder)`.
inline bool initialise(UIViewNode& view, CGRect frame) { return view.initWithFrame(frame); }
inline bool initialise(UIViewNode& view, const Ref<NSCoder>& coder) { return view.initWithCoder(coder); }

} // namespace gx
