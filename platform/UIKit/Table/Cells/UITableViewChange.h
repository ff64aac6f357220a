#pragma once

#include <optional>
#include <vector>

#include "UIScrollMotion.h"
#include "UITableViewRows.h"

namespace gx {

/// One insertion or removal of rows: which rows the others become, and where all are drawn while
/// the change is animated.
///
/// Only drawing is animated: frames, paths and offsets are final as soon as the rows change.
/// Example: where a row of 44 points was inserted at the top, `shiftOf` the next one runs from
/// -44 to 0.
class UITableViewChange {
public:
    enum class Kind { Insertion, Removal };
    /// Chosen by eye: long enough to see where a row comes from, short enough not to be waited for.
    static constexpr NSTimeInterval duration = 0.25;

    /// Paths are those after an insertion, and before a removal, in any order. Nothing if `before`
    /// and `after` do not differ by just this change, or a path occurs twice.
    static std::optional<UITableViewChange> change(Kind kind, std::vector<NSIndexPath> paths, const UITableViewRows& before,
                                                   const UITableViewRows& after);

    /// The path after the change of a row from before; nothing for one that is removed.
    std::optional<NSIndexPath> pathAfter(NSIndexPath before) const;
    /// As `pathAfter`; for a removed row, the path of the row that takes its place, which may lie
    /// just behind the last one.
    NSIndexPath placeAfter(NSIndexPath before) const;

    // The animation. It begins with everything where it was.

    /// By how much the content was scrolled by the change, since its end has come nearer.
    void setOffsetChange(CGFloat change) { offsetChange_ = change; }
    /// How far beyond the table's edges rows lie that are drawn inside them meanwhile.
    CGFloat reach() const;
    /// Returns whether the animation goes on.
    bool advanceToTime(NSTimeInterval time);

    /// By how much something that now has this position is drawn further down.
    CGFloat shiftOf(const UITableViewRows::Span& span) const;
    /// How much of a row's height is drawn: less than 1 only for an inserted row.
    double shownShare(NSIndexPath path) const;
    /// Where a removed row is drawn, and how much of it.
    UITableViewRows::Span spanOfRemovedRow(NSIndexPath before) const;

private:
    struct Step {
        NSIndexPath path;
        CGFloat place = 0; // As the rows lie now: what lies further down is moved.
        CGFloat height = 0;
        CGFloat heightBefore = 0; // Of all steps above.
    };
    std::vector<Step>::const_iterator firstStepFrom(NSIndexPath path) const;

    Kind kind_ = Kind::Insertion;
    std::vector<Step> steps_; // From top to bottom.
    CGFloat offsetChange_ = 0;
    UIScrollMotion motion_ = UIScrollMotion::ease(1, 0, duration, std::nullopt);
    double left_ = 1; // Of the way, from 1 to 0.
};

} // namespace gx
