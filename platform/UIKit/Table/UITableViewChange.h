#pragma once

#include <optional>
#include <vector>

#include "UIScrollMotion.h"
#include "UITableViewRows.h"

namespace gx {

/// Rows that come into a table or leave it, at once: which rows the others become, and where all are drawn on the way. The frames of
/// cells know nothing of that way.
class UITableViewChange {
public:
    enum class Kind { Insertion, Removal };
    static constexpr NSTimeInterval duration = 0.25;

    /// What the rows are before and after: nothing if the numbers do not add up to just this change, or a path comes twice. Paths
    /// are those after an insertion, and before a removal, in any order.
    static std::optional<UITableViewChange> change(Kind kind, std::vector<NSIndexPath> paths, const UITableViewRows& before,
                                                   const UITableViewRows& after);

    /// What a row from before is now; nothing for one that is gone.
    std::optional<NSIndexPath> pathAfter(NSIndexPath before) const;

    /// As `pathAfter`; for a row that is gone, where the row is that has taken its place, or would be if it was the last.
    NSIndexPath placeAfter(NSIndexPath before) const;

    // The way. It begins with everything where it was.

    /// By how much the content was moved with the change, since its end has come nearer.
    void setOffsetChange(CGFloat change) { offsetChange_ = change; }
    /// How far beyond the screen's edges lies what is drawn on it on the way.
    CGFloat reach() const;
    /// Answers whether the way goes on.
    bool advanceToTime(NSTimeInterval time);

    /// By how much something that lies here now is drawn further down.
    CGFloat shiftOf(const UITableViewRows::Span& span) const;
    /// How much of a row's height is drawn: from 0 to 1, less than 1 only for a row that comes in.
    double shownShare(NSIndexPath path) const;
    /// Where a row that leaves is drawn, and how much of it.
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
    double left_ = 1; // Of the way.
};

} // namespace gx
