#pragma once

#include <optional>
#include <vector>

#include "UIScrollView.h"
#include "UITableViewDrawing.h"
#include "UITableViewElement.h"
#include "UITableViewHeaders.h"
#include "UITableViewKeyFocus.h"
#include "UITableViewPress.h"
#include "UITableViewRowCache.h"
#include "UITableViewVisibleRows.h"

namespace gx {

/// What a table shows at present: its parts, and what a reload, a change or a layout does to them.
///
/// It knows the table as a scroll view only, and reaches the data source and the delegate through
/// its client. The parts know each other by constant references alone.
///
/// Invariants: every visible row exists in `rows()`; nothing changes them while a query is open.
class UITableViewContent final : public UITableViewElement::Table, private UITableViewVisibleRows::Client {
public:
    /// The data source and the delegate. Every call may do anything but destroy the table.
    class Client : public UITableViewRowCache::Source, public UITableViewKeyFocus::Client, public UITableViewHeaders::Client {
    public:
        virtual Ref<UITableViewCell> cellForRow(NSIndexPath path) = 0;
        virtual bool isPartOfRowAbove(NSIndexPath path) = 0;
        virtual void tapRow(NSIndexPath path, NSTimeInterval time) = 0;
        virtual void didEndDisplayingCell(const Ref<UITableViewCell>& cell, NSIndexPath path) = 0;
    };

    UITableViewContent(UIScrollView& table, Client& client, int highestSkippedCount)
        : table_(table), client_(client), cache_(client), visible_(table, *this), press_(visible_),
          focus_(cache_.rows(), client, highestSkippedCount), drawing_(table, cache_.rows(), visible_, headers_, change_) {}

    const UITableViewRows& rows() const { return cache_.rows(); }
    /// Whether a callback is running that has to see what was cached before.
    bool isQuerying() const { return cache_.isQuerying(); }
    UITableViewVisibleRows& visible() { return visible_; }
    UITableViewPress& press() { return press_; }
    UITableViewKeyFocus& focus() { return focus_; }
    const UITableViewDrawing& drawing() const { return drawing_; }

    CGRect rectOfRow(NSIndexPath path) const { return rectOf(rows().spanOfRow(path)); }
    /// With the header above a section's first row, which says what the rows are about.
    CGRect rectOfRowAndHeader(NSIndexPath path) const;
    /// The visible rows that have a part in the table's bounds.
    std::vector<NSIndexPath> pathsInBounds() const;

    /// The row that keys act on; nothing if no row can be tapped.
    std::optional<NSIndexPath> focusedRow();
    /// The row scrolls into sight, in all views that scroll around it.
    void focusRow(NSIndexPath path);
    /// The row below the pointer. Returns whether it can be tapped, and draws it so.
    bool hoverRow(std::optional<NSIndexPath> path);
    /// Over the rows: the mark of the pointer, and that of the focus.
    void drawMarks(UIGraphicsContext& context) const;
    /// A finger is down on a row. Highlights it later, if it can be tapped.
    void pressRow(NSIndexPath path, NSTimeInterval highlightTime);
    /// Where a key moves the focus; returns false if it moves nothing.
    bool moveFocus(UIKey::Code code);
    /// Without a window there is no clock, and nothing is highlighted.
    void highlightTap_until(NSIndexPath path, NSTimeInterval time);

    /// Everything is queried again when it is next needed.
    void invalidate();
    /// Brings counts, titles and heights up to date, unless a query is open.
    void refresh();
    /// Shows at most so many rows. Returns false if that has to wait for an open query.
    bool layOut(NSInteger highestVisibleCount);

    void reloadRows(const std::vector<NSIndexPath>& paths);
    /// The change arrives at once unless it is animated. What cannot be this change is a reload.
    void applyChange(UITableViewChange::Kind kind, std::vector<NSIndexPath> paths, bool animated);
    bool isChanging() const { return change_.has_value(); }
    /// Draws all rows in their places from now on.
    void finishChange();
    void advanceToTime(NSTimeInterval time);

    // For screen readers

    NSInteger sectionCount() override;
    NSInteger rowCount(NSInteger section) override;
    std::optional<std::string> title(NSInteger section) override { return rows().title(section); }
    bool isPartOfRowAbove(NSIndexPath path) override { return client_.isPartOfRowAbove(path); }
    bool canTap(NSIndexPath path) override { return client_.canTapRow(path); }
    CGRect frameOfHeader(NSInteger section) override { return rectOf(rows().spanOfHeader(section)); }
    CGRect frameOfRow(NSIndexPath path) override { return rectOfRow(path); }
    std::optional<NSIndexPath> rowOfView(const Ref<UIView>& view) override { return visible_.rowOfView(view); }
    std::optional<NSInteger> sectionOfHeader(const Ref<UIView>& view) override { return headers_.sectionOf(view); }
    Ref<UITableViewCell> visibleCell(NSIndexPath path) override { return visible_.cellOfRow(path); }
    void readCell(NSIndexPath path, const CellReader& read) override;
    std::optional<NSIndexPath> rowOfKeys() override { return focusedRow(); }
    void chooseRow(NSIndexPath path) override { focusRow(path); }
    void tapRow(NSIndexPath path, NSTimeInterval time) override { client_.tapRow(path, time); }

private:
    Ref<UIView> self() const { return refTo<UIView>(&table_); }
    void animate();
    /// The focused row, if the window shows where the focus is.
    std::optional<NSIndexPath> rowToMark() const;
    CGRect rectOf(const UITableViewRows::Span& span) const;
    UITableViewRows::Range range() const;
    void fitContent();

    Ref<UITableViewCell> cellForRow(NSIndexPath path) override { return client_.cellForRow(path); }
    void removeHighlightFromCell(const Ref<UITableViewCell>& cell) override { press_.removeHighlightFromCell(cell); }
    void takeFocusFromCell(const Ref<UITableViewCell>& cell) override;
    void didEndDisplayingCell(const Ref<UITableViewCell>& cell, NSIndexPath path) override { client_.didEndDisplayingCell(cell, path); }

    UIScrollView& table_;
    Client& client_;
    UITableViewRowCache cache_;
    UITableViewVisibleRows visible_;
    UITableViewHeaders headers_;
    std::optional<UITableViewChange> change_;
    UITableViewPress press_;
    UITableViewKeyFocus focus_;
    UITableViewDrawing drawing_;
};

} // namespace gx
