#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "UIPickerColumn.h"
#include "UIPickerColumnAxis.h"
#include "UIPickerOwner.h"

namespace gx {

/// The components of a wheel: cached counts and sizes, requested rows, the columns that show them,
/// and which one keys move.
///
/// - `invalidate` marks all that is cached; the next operation that needs a value queries it again.
/// - A query from a callback of a query gets the previous value, so that this always ends.
///   What it invalidates meanwhile stays invalid.
/// - Its owner keeps itself alive while it calls operations that may query.
class UIPickerComponents {
public:
    struct Component {
        Component(NSInteger name, CGFloat height) : part(name), rowHeight(height) {}

        NSInteger part;          // What accessibility elements know it by, wherever it is shown.
        NSInteger requested = 0; // Exactly as requested, whether the row exists or not.
        NSInteger rows = 0;
        std::optional<CGFloat> width; // As the delegate gave it.
        CGFloat rowHeight;
        bool areRowsCached = false;
        bool areRowsQueried = false;
        bool areSizesCached = false;
        bool areSizesQueried = false;
        UIPickerColumnAxis axis;
        Ref<UIPickerColumn> column; // Only while it is on the screen.
    };

    UIPickerComponents(UIPickerOwner& owner, CGFloat columnGap, CGFloat defaultRowHeight)
        : owner_(owner), columnGap_(columnGap), defaultRowHeight_(defaultRowHeight) {}

    // The cache. Operations that need a present value query it first.

    void invalidate();
    /// Whether visible rows were invalidated since the last call of this.
    bool takeRowsInvalid();
    NSInteger refreshCount();
    NSInteger refreshRows(NSInteger component);
    void refreshSizes(NSInteger component);
    void refreshAll();
    bool exists(NSInteger component);
    bool hasRow(NSInteger row, NSInteger component) { return row >= 0 && row < refreshRows(component); }
    /// Clamped to the rows there are; 0 without any.
    NSInteger clampedRow(NSInteger component, NSInteger row);
    NSInteger requestedRow(NSInteger component) { return clampedRow(component, at(component).requested); }
    /// Where a step of the user sends the column, until it rests. Nothing without one, and for a
    /// component that does not exist.
    std::optional<NSInteger> steppedRow(NSInteger component);

    // As cached.

    NSInteger count() const { return count_; }
    /// Also for a component that is gone and may come back. Stays in place when a callback brings
    /// more components.
    Component& at(NSInteger component) { return *components_[static_cast<std::size_t>(component)]; }
    const Component& at(NSInteger component) const { return *components_[static_cast<std::size_t>(component)]; }
    CGFloat width(NSInteger component, CGFloat available) const;
    CGFloat highestRow() const;
    /// What is shown as one of the two will be shown as the other. Either need not exist. Returns
    /// whether that moves the keys' choice.
    bool exchange(NSInteger one, NSInteger other);

    // The columns

    /// Makes and places a column for each component, side by side, centred in the wheel's bounds.
    /// Below the wheel's other subviews.
    void placeColumns(UIView& wheel);
    /// Gives the column's axis its cached rows. At rest it is on `reported`, and a request is on
    /// its way there.
    void fitAxis(NSInteger component, NSInteger reported, CGFloat extent);
    /// Lets go of all row views.
    void removeAllRows();
    /// Shows the position of the axis.
    void scrollColumn(NSInteger component);
    /// −1 beside the columns.
    NSInteger componentAt(CGPoint point) const;
    NSInteger componentOfTouch(std::int64_t identifier) const;
    /// Whether any column is active, or moves with time.
    bool isActive() const;
    bool isMoving() const;
    /// Whether the user can spin the component: it has rows, and shows something.
    bool canSpin(NSInteger component) const;

    // The component of the keys

    /// Whether it can spin and has more than one row.
    bool canBeChosen(NSInteger component) const { return canSpin(component) && at(component).rows > 1; }
    /// Returns whether that changes it.
    bool choose(NSInteger component);
    /// The chosen one, or the first that can be chosen; −1 if there is none.
    NSInteger componentOfKeys() const { return canSpin(chosen_) ? chosen_ : componentBeside(-1, 1); }
    /// The next one in a direction that can be chosen; −1 if there is none.
    NSInteger componentBeside(NSInteger component, NSInteger direction) const;
    /// The next one that can spin; −1 if there is none.
    NSInteger componentAfter(NSInteger component) const;

private:
    void makeComponents(NSInteger count);

    UIPickerOwner& owner_;
    CGFloat columnGap_;
    CGFloat defaultRowHeight_;
    // Only grows, so that a component that comes back keeps its requested row. `count_` of them
    // exist.
    std::vector<std::unique_ptr<Component>> components_;
    NSInteger count_ = 0;
    NSInteger chosen_ = -1; // −1 for the first that can be chosen.
    bool isCountCached_ = false;
    bool isCountQueried_ = false;
    bool areRowsInvalid_ = true;
};

} // namespace gx
