#pragma once

#include <optional>
#include <string>
#include <vector>

#include "CGGeometry.h"
#include "NSObject.h"

namespace gx {

class UIView;

enum class UIAccessibilityRole {
    Text,
    Image,
    Button,    ///< can be activated
    Adjustable ///< has an index among a count, and goes to the next and the one before
};

/// One thing that a screen reader finds on the screen: a text, a button, a column of a wheel.
///
/// It is a handle, which holds its view weakly and asks it anew with every question. One whose view is gone, or that its view no longer
/// offers, does not exist any more: it has neither texts nor a place, and every order to it does nothing. So a host may keep elements for
/// as long as it likes. Views offer new handles with each `UIView::accessibilityElements`; `isSameAs` tells which of them mean the same
/// thing.
class UIAccessibilityElement : public NSObject {
public:
    /// The whole of a view or, with a part of 0 or more, something that the view itself tells apart.
    explicit UIAccessibilityElement(const Ref<UIView>& view, UIAccessibilityRole role, NSInteger part = -1)
        : view_(view), role_(role), part_(part) {}

    /// Nothing once it is gone.
    Ref<UIView> view() const { return view_.lock(); }
    UIAccessibilityRole role() const { return role_; }
    NSInteger part() const { return part_; }
    /// The same part of the same view, be that gone or not.
    bool isSameAs(const UIAccessibilityElement& other) const;

    /// Whether the view is there and neither it nor a view above it is hidden.
    virtual bool exists() const;
    /// What it is called.
    virtual std::optional<std::string> label() const;
    /// What it stands on, as a person says it.
    virtual std::optional<std::string> value() const { return std::nullopt; }
    /// In the coordinates of the window or, without one, of the topmost view. The null rectangle for one that does not exist.
    virtual CGRect frame() const;
    /// Whether it takes orders: the view and all above it take touches.
    virtual bool isEnabled() const;

    /// Of what is adjustable: where it stands, from 0, and on how many it could. Nothing and 0 for all others.
    virtual std::optional<NSInteger> index() const { return std::nullopt; }
    virtual NSInteger count() const { return 0; }

    /// Orders, which do what the user would and are reported as such. Ignored by what is not adjustable or not enabled.

    virtual void increment() {}
    virtual void decrement() {}
    /// The index is held to those there are.
    virtual void setIndex(NSInteger /*index*/) {}
    /// A tap in the middle of what is in sight, by way of the window, at a time on the clock of its ticks. Ignored without a window, by
    /// what is not enabled, and by what is out of sight or covered there.
    void activateAtTime(NSTimeInterval time) const;

private:
    WeakRef<UIView> view_;
    UIAccessibilityRole role_;
    NSInteger part_;
};

using UIAccessibilityElements = std::vector<Ref<UIAccessibilityElement>>;

/// The whole of a view as one element, if it has a label to be read; otherwise none.
UIAccessibilityElements wholeAccessibilityElement(const Ref<UIView>& view, UIAccessibilityRole role);
/// The elements of the view's subviews, in their order; of those that are drawn: neither hidden, nor fully transparent, nor empty.
UIAccessibilityElements accessibilityElementsOfSubviews(const Ref<UIView>& view);
/// Both: the view as a whole, and what its subviews offer.
UIAccessibilityElements accessibilityElementAndSubviews(const Ref<UIView>& view, UIAccessibilityRole role);
/// The labels of these elements, joined by ", ". Nothing if there is none.
std::optional<std::string> joinedAccessibilityLabels(const UIAccessibilityElements& elements);

} // namespace gx
