#pragma once

#include <optional>
#include <string>
#include <vector>

#include "UITableViewCellPool.h"
#include "UITableViewChange.h"
#include "UITableViewRows.h"

namespace gx {

/// The cells of the rows in sight: how they come, leave and are reused.
///
/// A cell that leaves stays a hidden subview of the table. So coming and going allocates nothing,
/// and a finger or a spinning wheel in a cell is not torn off. Cells that are not to be reused are
/// removed once no finger is down.
///
/// Invariants: rows are sorted by path; a cell shows at most one row.
class UITableViewVisibleRows {
public:
    /// The data source may have left a row without a cell.
    struct Row {
        NSIndexPath path;
        Ref<UITableViewCell> cell;
    };

    /// What the rows call outside. Every call may do anything but destroy the table.
    class Client {
    public:
        virtual ~Client() = default;
        virtual Ref<UITableViewCell> cellForRow(NSIndexPath path) = 0;
        /// The cell is about to leave.
        virtual void removeHighlightFromCell(const Ref<UITableViewCell>& cell) = 0;
        /// The cell is about to be hidden: what lies in it can have the focus no longer.
        virtual void takeFocusFromCell(const Ref<UITableViewCell>& cell) = 0;
        virtual void didEndDisplayingCell(const Ref<UITableViewCell>& cell, NSIndexPath path) = 0;
    };

    UITableViewVisibleRows(UIView& table, Client& client) : table_(table), client_(client) {}

    // Cells

    /// Cells of this identifier that were made before are not reused any more. Those in sight stay
    /// until they leave.
    void setFactory(UITableViewCellPool::Factory factory, const std::string& identifier);
    /// A waiting cell or a new one. While the table queries a cell for a row, an unused one returns
    /// to the pool; otherwise it belongs to the caller.
    Ref<UITableViewCell> dequeue(const std::string& identifier, bool isQuerying);

    // Rows

    /// From top to bottom.
    const std::vector<Row>& shown() const { return shown_; }
    /// The rows that the present change has removed and still draws.
    const std::vector<Row>& removed() const { return removed_; }
    Ref<UITableViewCell> cellOfRow(NSIndexPath path) const;
    /// Nothing for a cell that shows no row, and for none.
    std::optional<NSIndexPath> rowOfCell(const Ref<UITableViewCell>& cell) const;
    bool contains(const Ref<UIView>& view) const { return rowOfView(view).has_value(); }
    std::optional<NSIndexPath> rowOfView(const Ref<UIView>& view) const;

    /// Places the row's cell; queries one if the row comes into sight.
    void show(NSIndexPath path, const UITableViewRows& rows);
    void placeCells(const UITableViewRows& rows);
    void retireOutside(UITableViewRows::Range range, const UITableViewRows& rows);
    void retireRow(NSIndexPath path);
    void retireAll();
    /// Gives the rows their new paths. Those that are gone stay in `removed` to be drawn.
    void applyChange(const UITableViewChange& change);
    /// Hides the cells of removed rows, so that no finger hits them.
    void hideRemoved();
    void retireRemoved();

    /// A cell for a row that is not in sight, with the row's place, to be read and returned at
    /// once. Nothing if the data source gives none, or one that is in sight.
    Ref<UITableViewCell> borrowCell(NSIndexPath path, const UITableViewRows& rows);
    void returnCell(const Ref<UITableViewCell>& cell);

    bool hasLeaving() const { return !leaving_.empty(); }
    /// Removes the cells that are not reused from the table. Not while a finger is down.
    void dropLeaving();

private:
    Ref<UITableViewCell> queriedCell(NSIndexPath path);
    Ref<UITableViewCell> newCell(NSIndexPath path);
    void place(const Ref<UITableViewCell>& cell, NSIndexPath path, const UITableViewRows& rows) const;
    std::vector<Row>::const_iterator find(NSIndexPath path) const;
    Row takeRow(std::size_t index);
    void retire(const Row& row);
    void retire(const std::vector<Row>& rows);
    void keepOrDrop(const Ref<UITableViewCell>& cell);

    UIView& table_;
    Client& client_;
    std::vector<Row> shown_;
    std::vector<Row> removed_;
    UITableViewCellPool pool_;
    std::vector<Ref<UITableViewCell>> lent_;     // Dequeued for the row that is being queried.
    std::vector<Ref<UITableViewCell>> outdated_; // In use, of a former registration.
    std::vector<Ref<UITableViewCell>> leaving_;  // Not to be reused, but perhaps below a finger.
};

} // namespace gx
