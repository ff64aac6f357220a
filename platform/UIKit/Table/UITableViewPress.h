#pragma once

#include <optional>

#include "UITableViewVisibleRows.h"

namespace gx {

/// The row below a finger, the cell that is highlighted for it or for a tap, and the row below the
/// pointer.
///
/// At most one cell is highlighted. A finger highlights its row with a delay, so that scrolling
/// does not flash; a tap does so at once and for a while. Times come from the table.
class UITableViewPress {
public:
    explicit UITableViewPress(const UITableViewVisibleRows& visible) : visible_(visible) {}

    /// Nothing while no finger is down on a row.
    std::optional<NSIndexPath> row() const { return row_; }
    void begin(NSIndexPath row, NSTimeInterval highlightTime);
    /// Forgets the finger; the highlight stays.
    void end();
    /// Forgets the finger and the highlight.
    void cancel();
    /// The row's cell, if it is in sight.
    void highlight_until(NSIndexPath row, NSTimeInterval time);
    void removeHighlightFromCell(const Ref<UITableViewCell>& cell);
    void applyChange(const UITableViewChange& change);

    /// The row below the pointer; nothing while there is none that can be tapped.
    std::optional<NSIndexPath> hoveredRow() const { return hoveredRow_; }
    void setHoveredRow(std::optional<NSIndexPath> row) { hoveredRow_ = row; }

    bool isHighlightPending() const { return highlightTime_.has_value(); }
    /// Whether time alone will change something.
    bool isWaiting() const { return highlightTime_ || removalTime_; }
    void advanceToTime(NSTimeInterval time);

private:
    void highlight(NSIndexPath row);
    void removeHighlight();

    const UITableViewVisibleRows& visible_;
    std::optional<NSIndexPath> row_;
    std::optional<NSIndexPath> hoveredRow_;
    std::optional<NSTimeInterval> highlightTime_;
    std::optional<NSTimeInterval> removalTime_;
    Ref<UITableViewCell> highlighted_;
};

} // namespace gx
