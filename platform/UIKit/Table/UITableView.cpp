#include "UITableView.h"

#include <algorithm>

namespace gx {

namespace {

/// A height that may be left to the table.
CGFloat heightOr(CGFloat automatic, CGFloat height) {
    return height == UITableView::automaticDimension ? automatic : UITableViewRows::heldHeight(height);
}

} // namespace

void UITableView::setDataSource(WeakRef<UITableViewDataSource> dataSource) {
    dataSource_ = std::move(dataSource);
    reloadData();
}

void UITableView::setDelegate(WeakRef<UITableViewDelegate> delegate) {
    delegate_ = std::move(delegate);
    reloadData();
}

void UITableView::setRowHeight(CGFloat height) {
    const CGFloat held = heightOr(defaultRowHeight, height);
    if (held == rowHeight_) return;
    rowHeight_ = held;
    reloadData();
}

void UITableView::setSectionHeaderHeight(CGFloat height) {
    const CGFloat held = heightOr(defaultSectionHeaderHeight, height);
    if (held == sectionHeaderHeight_) return;
    sectionHeaderHeight_ = held;
    reloadData();
}

void UITableView::setSeparatorColor(std::optional<UIColor> color) {
    if (color == separatorColor_) return;
    separatorColor_ = color;
    setNeedsDisplay();
}

// Answers

void UITableView::reloadData() {
    const Ref<UITableView> keep = self();
    isStale_ = true;
    forgetPress();
    setNeedsLayout();
}

CGFloat UITableView::askHeight(NSIndexPath path) {
    const auto delegate = delegate_.lock();
    return delegate ? heightOr(rowHeight_, delegate->tableView_heightForRowAtIndexPath(self(), path)) : rowHeight_;
}

UITableViewRows UITableView::askRows() {
    UITableViewRows rows;
    NSInteger sections = 0;
    if (const auto source = dataSource_.lock()) sections = UITableViewRows::heldSectionCount(source->numberOfSectionsInTableView(self()));
    for (NSInteger section = 0; section < sections; ++section) {
        NSInteger count = 0;
        std::optional<std::string> title;
        if (const auto source = dataSource_.lock()) {
            count = UITableViewRows::heldRowCount(source->tableView_numberOfRowsInSection(self(), section));
        }
        if (const auto source = dataSource_.lock()) title = source->tableView_titleForHeaderInSection(self(), section);
        const CGFloat headerHeight = title ? sectionHeaderHeight_ : 0;
        if (delegate_.expired() || count > UITableViewRows::highestHeightCount) {
            rows.addSection(std::move(title), headerHeight, count, rowHeight_);
            continue;
        }
        std::vector<CGFloat> heights;
        heights.reserve(static_cast<std::size_t>(count));
        for (NSInteger row = 0; row < count; ++row) heights.push_back(askHeight({section, row}));
        rows.addSection(std::move(title), headerHeight, heights);
    }
    return rows;
}

void UITableView::refreshRows() {
    if (!isStale_ || isBusy_) return;
    const Ref<UITableView> keep = self();
    isBusy_ = true;
    isStale_ = false;
    rows_ = askRows();
    if (focused_) focused_ = rows_.heldRow(*focused_);
    // Every row is shown anew. Who is told that a cell has gone may reload again: that is the next refresh.
    change_.reset();
    std::vector<Row> gone = std::move(removed_);
    gone.insert(gone.end(), shown_.begin(), shown_.end());
    removed_.clear();
    shown_.clear();
    for (const Row& row : gone) retire(row);
    while (!headers_.empty()) hideHeader(headers_.size() - 1);
    isBusy_ = false;
    fitContent();
    setNeedsLayout();
}

void UITableView::fitContent() { setContentSize({bounds().size.width, rows_.height()}); }

// Questions

NSInteger UITableView::numberOfSections() {
    const Ref<UITableView> keep = self();
    refreshRows();
    return rows_.sectionCount();
}

NSInteger UITableView::numberOfRowsInSection(NSInteger section) {
    const Ref<UITableView> keep = self();
    refreshRows();
    return rows_.rowCount(section);
}

CGRect UITableView::rectOf(const UITableViewRows::Span& span) const { return CGRectMake(0, span.top, bounds().size.width, span.height); }

CGRect UITableView::rectForRowAtIndexPath(NSIndexPath path) {
    const Ref<UITableView> keep = self();
    refreshRows();
    return rows_.exists(path) ? rectOf(rows_.spanOfRow(path)) : CGRectZero;
}

std::optional<NSIndexPath> UITableView::indexPathForRowAtPoint(CGPoint point) {
    const Ref<UITableView> keep = self();
    refreshRows();
    if (!(point.x >= 0 && point.x < bounds().size.width)) return std::nullopt;
    return rows_.rowAt(point.y);
}

Ref<UITableViewCell> UITableView::cellForRowAtIndexPath(NSIndexPath path) {
    const Ref<UITableView> keep = self();
    layoutIfNeeded();
    const auto row = findRow(path);
    return row == shown_.end() ? nullptr : row->cell;
}

std::optional<NSIndexPath> UITableView::indexPathForCell(const Ref<UITableViewCell>& cell) {
    const Ref<UITableView> keep = self();
    layoutIfNeeded();
    const auto row = std::find_if(shown_.begin(), shown_.end(), [&cell](const Row& entry) { return entry.cell == cell; });
    if (!cell || row == shown_.end()) return std::nullopt;
    return row->path;
}

std::vector<NSIndexPath> UITableView::indexPathsForVisibleRows() {
    const Ref<UITableView> keep = self();
    layoutIfNeeded();
    std::vector<NSIndexPath> paths;
    for (const Row& row : shown_) {
        if (CGRectIntersectsRect(rectOf(rows_.spanOfRow(row.path)), bounds())) paths.push_back(row.path);
    }
    return paths;
}

std::optional<NSIndexPath> UITableView::indexPathForFocusedRow() {
    const Ref<UITableView> keep = self();
    refreshRows();
    return focused_;
}

void UITableView::scrollToRowAtIndexPath_animated(NSIndexPath path, bool animated) {
    const Ref<UITableView> keep = self();
    refreshRows();
    if (rows_.exists(path)) scrollRectToVisible_animated(rectOf(rows_.spanOfRow(path)), animated);
}

} // namespace gx
