#pragma once

#include <optional>
#include <string>
#include <vector>

#include "GXExport.h"
#include "UIViewNode.h"

namespace gx {

enum class UIAccessibilityRole {
    Text,
    Image,
    Button,    ///< can be activated
    Adjustable ///< has an index and a count, and can be incremented and decremented
};

/// One thing that a screen reader finds on the screen: a text, a button, a column of a wheel.
///
/// It is a handle, which holds its view weakly and reads it again with every query. Once its view
/// is gone, or no longer offers it, it does not exist any more: it has neither texts nor a place,
/// and its actions are no-ops. So a host may keep elements for as long as it likes.
///
/// Views return new handles with each `UIView::accessibilityElements`; `isSameAs` says which of
/// them mean the same thing.
class GX_EXPORT UIAccessibilityElement : public NSObject {
public:
    /// The whole of a view or, with a part of 0 or more, something that the view itself tells
    /// apart.
    explicit UIAccessibilityElement(const Ref<UIViewNode>& view, UIAccessibilityRole role, NSInteger part = -1)
        : view_(view), role_(role), part_(part) {}

    /// Nothing once it is gone.
    Ref<UIViewNode> view() const { return view_.lock(); }
    UIAccessibilityRole role() const { return role_; }
    NSInteger part() const { return part_; }
    /// The same part of the same view, be that gone or not.
    bool isSameAs(const UIAccessibilityElement& other) const;

    /// Whether the view is there and neither it nor a view above it is hidden.
    virtual bool exists() const;
    /// What it is called.
    virtual std::optional<std::string> label() const;
    /// Its value, as a person says it.
    virtual std::optional<std::string> value() const { return std::nullopt; }
    /// In the coordinates of the window or, without one, of the topmost view. The null rectangle
    /// for one that does not exist.
    virtual CGRect frame() const;
    /// Whether it can be used: it exists, and the view and all above it take touches.
    virtual bool isEnabled() const;

    /// Of an adjustable one: the present index, from 0, and how many there are. Nothing and 0 for
    /// all others.
    virtual std::optional<NSInteger> index() const { return std::nullopt; }
    virtual NSInteger count() const { return 0; }

    // Actions. They do what the user would and are reported as such. No-ops unless adjustable and
    // enabled.

    virtual void increment() {}
    virtual void decrement() {}
    /// The index is clamped to those there are.
    virtual void setIndex(NSInteger /*index*/) {}
    /// A tap in the middle of what is in sight, by way of the window, at a time on the clock of its
    /// ticks.
    ///
    /// A no-op without a window, if not enabled, and if out of sight or covered there.
    void activateAtTime(NSTimeInterval time) const;

private:
    WeakRef<UIViewNode> view_;
    UIAccessibilityRole role_;
    NSInteger part_;
};

using UIAccessibilityElements = std::vector<Ref<UIAccessibilityElement>>;

/// The whole of a view as one element, if it has a label; otherwise none.
GX_EXPORT UIAccessibilityElements wholeAccessibilityElement(const Ref<UIViewNode>& view, UIAccessibilityRole role);
/// The labels of these elements, joined by ", ". Nothing if there is none.
GX_EXPORT std::optional<std::string> joinedAccessibilityLabels(const UIAccessibilityElements& elements);

} // namespace gx
