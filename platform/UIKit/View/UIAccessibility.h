#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "GXExport.h"
#include "UIViewNode.h"

namespace gx {

/// The numbers that something adjustable shows: 142 in 25 to 228, by 1.
struct UIAccessibilityNumbers {
    double value = 0;   ///< shown now
    double minimum = 0; ///< the lowest it shows
    double maximum = 0; ///< the highest it shows
    double step = 1;    ///< from one to the next
    friend bool operator==(const UIAccessibilityNumbers&, const UIAccessibilityNumbers&) = default;
};

/// Which one of a set something is: the third of twelve has position 2 and count 12.
struct UIAccessibilityPlace {
    NSInteger position = 0; ///< from 0
    NSInteger count = 0;    ///< of the set
    friend bool operator==(const UIAccessibilityPlace&, const UIAccessibilityPlace&) = default;
};

/// A message that a screen reader shall say, wherever the focus is.
struct UIAccessibilityAnnouncement {
    /// When a screen reader says it.
    enum class Priority {
        Polite,   ///< after what is being said: "Saved"
        Assertive ///< at once: an error
    };
    std::string text;                     ///< in the user's language
    Priority priority = Priority::Polite; ///< polite unless set
};

/// Messages that wait to be said, in their order; of many the newest.
class GX_EXPORT UIAccessibilityAnnouncements {
public:
    /// Chosen: more than one event causes.
    static constexpr std::size_t highestCount = 16;

    /// Returns false for one without a text, which is ignored.
    bool add(UIAccessibilityAnnouncement announcement);
    /// Those that wait, in their order; none wait afterwards.
    std::vector<UIAccessibilityAnnouncement> take() { return std::exchange(waiting_, {}); }

private:
    std::vector<UIAccessibilityAnnouncement> waiting_;
};

/// What a screen reader does to an element, in the user's place.
struct UIAccessibilityAction {
    /// What is done; increment and decrement go by one row.
    enum class Kind { Increment, Decrement, SetNumber, Focus, Activate };
    Kind kind = Kind::Activate; ///< activate unless set
    /// Of `SetNumber`: one that the element shows.
    double number = 0;
    /// In seconds on the clock of the window's ticks.
    NSTimeInterval timestamp = 0;
};

/// One thing that a screen reader finds on the screen: a text, a button, a column of a wheel.
///
/// It is a handle, which holds its view weakly and reads it again with every query. Once its view
/// is gone, or no longer offers it, it does not exist any more: it has neither texts nor a place,
/// and its actions are no-ops. So a host may keep elements for as long as it likes.
///
/// Views return new handles with each `UIView::accessibilityElements`; `isSameAs` says which of
/// them mean the same thing.
///
/// Elements form a tree: an item knows its list as `container`, and a list its items, also those
/// that are out of sight. Views offer the elements in sight in reading order, whatever holds them;
/// `outermostAccessibilityElements` gives the top of the tree.
class GX_EXPORT UIAccessibilityElement : public NSObject {
public:
    /// The whole of a view or, with a part of 0 or more, something that the view itself tells
    /// apart.
    explicit UIAccessibilityElement(const Ref<UIViewNode>& view, UIAccessibilityRole role, NSInteger part = -1)
        : view_(view), role_(role), part_(part) {}

    /// Nothing once it is gone.
    Ref<UIViewNode> view() const { return view_.lock(); }
    /// What a screen reader takes it for.
    virtual UIAccessibilityRole role() const { return role_; }
    /// As given to the constructor; −1 for the whole view.
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
    /// Whether what belongs to it is open. Nothing if there is nothing to open.
    virtual std::optional<bool> isExpanded() const;
    /// Whether it is the chosen one, or on. Nothing if it is neither on nor off.
    virtual std::optional<bool> isChecked() const { return std::nullopt; }

    // The tree

    /// The list or group that it belongs to; nothing at the top. Set by what offers the element.
    virtual Ref<UIAccessibilityElement> container() const { return container_; }
    void setContainer(Ref<UIAccessibilityElement> container) { container_ = std::move(container); }
    /// How many it holds, those out of sight included. Here none.
    virtual NSInteger childCount() const { return 0; }
    /// Nothing for an index that does not exist.
    virtual Ref<UIAccessibilityElement> child(NSInteger /*index*/) const { return nullptr; }
    /// The inverse of `child`; −1 for what is none of its children.
    virtual NSInteger indexOfChild(const UIAccessibilityElement& child) const;
    /// Which of the items of its set it is. Here nothing.
    virtual std::optional<UIAccessibilityPlace> place() const { return std::nullopt; }

    // The focus: the element that keys go to

    /// Whether it can have the focus. Here whether the view can.
    virtual bool isFocusable() const;
    /// Whether it has the focus, and keys come to its window. Here whether the view does.
    virtual bool isFocused() const;
    /// Gives it the focus, brings it into sight and shows the mark of the focus, as keys do.
    /// Returns whether it has the focus then.
    virtual bool focus() const;

    // Of an adjustable one

    /// The present index, from 0, and how many there are. Nothing and 0 for all others.
    virtual std::optional<NSInteger> index() const { return std::nullopt; }
    /// How many rows an adjustable one has; 0 for all others.
    virtual NSInteger count() const { return 0; }
    /// The numbers it shows. Here the index, from 0; nothing for one without.
    virtual std::optional<UIAccessibilityNumbers> numbers() const;

    // Actions. They do what the user would and are reported as such. No-ops unless adjustable and
    // enabled.

    /// Goes to the next row, if there is one.
    virtual void increment() {}
    /// Goes to the row before, if there is one.
    virtual void decrement() {}
    /// The index is clamped to those there are.
    virtual void setIndex(NSInteger /*index*/) {}
    /// Goes to the nearest of the numbers it shows. Ignored for NaN.
    virtual void setNumber(double number);
    /// A tap in the middle of what is in sight, by way of the window, at a time on the clock of its
    /// ticks.
    ///
    /// A no-op without a window, if not enabled, and if out of sight or covered there.
    virtual void activateAtTime(NSTimeInterval time) const;
    /// The one of these, or `focus`, that the action is.
    void perform(const UIAccessibilityAction& action);

private:
    WeakRef<UIViewNode> view_;
    UIAccessibilityRole role_;
    NSInteger part_;
    Ref<UIAccessibilityElement> container_;
};

/// Elements in reading order; none is empty.
using UIAccessibilityElements = std::vector<Ref<UIAccessibilityElement>>;

/// The whole of a view as one element, if it has a label; otherwise none. The view's own role goes
/// before `role`.
GX_EXPORT UIAccessibilityElements wholeAccessibilityElement(const Ref<UIViewNode>& view, UIAccessibilityRole role);
/// The elements at the top of the tree that these belong to, each once.
GX_EXPORT UIAccessibilityElements outermostAccessibilityElements(const UIAccessibilityElements& elements);
/// The one of these that is the same as `element`, or else `element`.
GX_EXPORT Ref<UIAccessibilityElement> sameAccessibilityElement(const UIAccessibilityElements& elements,
                                                               const Ref<UIAccessibilityElement>& element);
/// The one that has the focus, among these and what they hold; nothing if it is elsewhere. Lists
/// are not searched, since they may be long.
GX_EXPORT Ref<UIAccessibilityElement> focusedAccessibilityElement(const UIAccessibilityElements& elements);
/// The labels of these elements, joined as the current locale joins a list. Nothing if there is
/// none.
GX_EXPORT std::optional<std::string> joinedAccessibilityLabels(const UIAccessibilityElements& elements);

} // namespace gx
