#pragma once

#include <optional>

#include "UIKey.h"
#include "UITableViewChange.h"
#include "UITableViewRows.h"

namespace gx {

/// The row of a table that keys act on, and where keys move it.
///
/// Rows that cannot be tapped are skipped. The row is a path: it follows insertions and removals,
/// and is clamped to the rows after a reload. Whether keys come to the table at all, and how the
/// row comes into sight, is up to the table.
class UITableViewKeyFocus {
public:
    class Client {
    public:
        virtual ~Client() = default;
        /// May do anything but destroy the table, and so change the rows.
        virtual bool canTapRow(NSIndexPath path) = 0;
    };

    /// A key skips at most `highestSkippedCount` rows.
    UITableViewKeyFocus(const UITableViewRows& rows, Client& client, int highestSkippedCount)
        : rows_(rows), client_(client), highestSkippedCount_(highestSkippedCount) {}

    std::optional<NSIndexPath> row() const { return row_; }
    void setRow(std::optional<NSIndexPath> row) { row_ = row; }
    void clampToRows();
    /// `rows` are already those after the change.
    void applyChange(const UITableViewChange& change);

    /// The focused row. As long as there is none, the first row wholly below `top` that can be
    /// tapped, or else one above it.
    std::optional<NSIndexPath> rowOrFirstBelow(CGFloat top);

    /// Whether a key moves the focus.
    static bool isMove(UIKey::Code code);
    /// Where such a key moves the focus from `present`; nothing if no row that way can be tapped.
    std::optional<NSIndexPath> rowForKey(UIKey::Code code, NSIndexPath present, CGFloat visibleHeight);

private:
    enum class Direction { Up, Down };

    static Direction opposite(Direction direction) { return direction == Direction::Up ? Direction::Down : Direction::Up; }
    std::optional<NSIndexPath> rowBeside(NSIndexPath path, Direction direction) const;
    std::optional<NSIndexPath> endOfRows(Direction direction) const;
    std::optional<NSIndexPath> tappableRow(std::optional<NSIndexPath> path, Direction direction);
    std::optional<NSIndexPath> rowAPageFrom(NSIndexPath present, Direction direction, CGFloat visibleHeight) const;

    const UITableViewRows& rows_;
    Client& client_;
    int highestSkippedCount_;
    std::optional<NSIndexPath> row_;
};

} // namespace gx
