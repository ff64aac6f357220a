#include "UITableViewVisibleRows.h"

#include <algorithm>

namespace gx {

namespace {

using Row = UITableViewVisibleRows::Row;

bool isAbove(const Row& row, NSIndexPath path) { return row.path < path; }

void removeCell(std::vector<Ref<UITableViewCell>>& cells, const Ref<UITableViewCell>& cell) {
    cells.erase(std::remove(cells.begin(), cells.end(), cell), cells.end());
}

} // namespace

// Cells

void UITableViewVisibleRows::setFactory(UITableViewCellPool::Factory factory, const std::string& identifier) {
    for (Ref<UITableViewCell>& cell : pool_.setFactory(std::move(factory), identifier)) leaving_.push_back(std::move(cell));
    const auto note = [this, &identifier](const Ref<UITableViewCell>& cell) {
        if (cell && cell->reuseIdentifier() == identifier) outdated_.push_back(cell);
    };
    for (const Row& row : shown_) note(row.cell);
    for (const Row& row : removed_) note(row.cell);
    for (const Ref<UITableViewCell>& cell : lent_) note(cell);
    if (!leaving_.empty()) table_.setNeedsLayout();
}

Ref<UITableViewCell> UITableViewVisibleRows::dequeue(const std::string& identifier, bool isQuerying) {
    if (Ref<UITableViewCell> cell = pool_.take(identifier)) {
        if (isQuerying) {
            lent_.push_back(cell);
        } else {
            cell->removeFromSuperview();
            cell->setHidden(false);
        }
        cell->prepareForReuse();
        return cell;
    }
    const UITableViewCellPool::Factory factory = pool_.factory(identifier);
    return factory ? factory() : nullptr;
}

void UITableViewVisibleRows::keepOrDrop(const Ref<UITableViewCell>& cell) {
    const bool isOutdated = std::find(outdated_.begin(), outdated_.end(), cell) != outdated_.end();
    if (isOutdated) removeCell(outdated_, cell);
    if (isOutdated || !pool_.put(cell)) leaving_.push_back(cell);
}

void UITableViewVisibleRows::dropLeaving() {
    while (!leaving_.empty()) {
        const Ref<UITableViewCell> cell = std::move(leaving_.back());
        leaving_.pop_back();
        if (cell->superview().get() == &table_) cell->removeFromSuperview();
    }
}

/// The data source's cell for a row. Others that it has dequeued meanwhile go back.
Ref<UITableViewCell> UITableViewVisibleRows::queriedCell(NSIndexPath path) {
    Ref<UITableViewCell> cell = client_.cellForRow(path);
    while (!lent_.empty()) {
        const Ref<UITableViewCell> lent = std::move(lent_.back());
        lent_.pop_back();
        if (lent != cell) keepOrDrop(lent);
    }
    return cell;
}

Ref<UITableViewCell> UITableViewVisibleRows::newCell(NSIndexPath path) {
    Ref<UITableViewCell> cell = queriedCell(path);
    if (!cell) return nullptr;
    // A cell shows one row. The one that it showed before is left empty.
    pool_.remove(cell);
    removeCell(leaving_, cell);
    for (std::vector<Row>* list : {&shown_, &removed_}) {
        for (Row& row : *list) {
            if (row.cell == cell) row.cell.reset();
        }
    }
    return cell;
}

// Rows

std::vector<Row>::const_iterator UITableViewVisibleRows::find(NSIndexPath path) const {
    const auto row = std::lower_bound(shown_.begin(), shown_.end(), path, isAbove);
    return row != shown_.end() && row->path == path ? row : shown_.end();
}

Ref<UITableViewCell> UITableViewVisibleRows::cellOfRow(NSIndexPath path) const {
    const auto row = find(path);
    return row == shown_.end() ? nullptr : row->cell;
}

std::optional<NSIndexPath> UITableViewVisibleRows::rowOfCell(const Ref<UITableViewCell>& cell) const {
    const auto row = std::find_if(shown_.begin(), shown_.end(), [&cell](const Row& entry) { return entry.cell == cell; });
    if (!cell || row == shown_.end()) return std::nullopt;
    return row->path;
}

std::optional<NSIndexPath> UITableViewVisibleRows::rowOfView(const Ref<UIView>& view) const {
    const auto row = std::find_if(shown_.begin(), shown_.end(), [&view](const Row& entry) { return entry.cell == view; });
    return view && row != shown_.end() ? std::optional(row->path) : std::nullopt;
}

Ref<UITableViewCell> UITableViewVisibleRows::borrowCell(NSIndexPath path, const UITableViewRows& rows) {
    Ref<UITableViewCell> cell = queriedCell(path);
    const auto isIt = [&cell](const Row& row) { return row.cell == cell; };
    const bool isShown = std::any_of(shown_.begin(), shown_.end(), isIt) || std::any_of(removed_.begin(), removed_.end(), isIt);
    if (!cell || isShown) return nullptr;
    pool_.remove(cell);
    removeCell(leaving_, cell);
    place(cell, path, rows);
    return cell;
}

void UITableViewVisibleRows::returnCell(const Ref<UITableViewCell>& cell) {
    cell->setHidden(true);
    keepOrDrop(cell);
}

void UITableViewVisibleRows::place(const Ref<UITableViewCell>& cell, NSIndexPath path, const UITableViewRows& rows) const {
    const UITableViewRows::Span span = rows.spanOfRow(path);
    cell->setFrame(CGRectMake(0, span.top, table_.bounds().size.width, span.height));
}

void UITableViewVisibleRows::placeCells(const UITableViewRows& rows) {
    for (std::size_t i = 0; i < shown_.size(); ++i) {
        if (const Ref<UITableViewCell> cell = shown_[i].cell) place(cell, shown_[i].path, rows);
    }
}

void UITableViewVisibleRows::show(NSIndexPath path, const UITableViewRows& rows) {
    if (find(path) != shown_.end()) {
        if (const Ref<UITableViewCell> cell = cellOfRow(path)) place(cell, path, rows);
        return;
    }
    const Ref<UITableViewCell> cell = newCell(path);
    shown_.insert(std::lower_bound(shown_.begin(), shown_.end(), path, isAbove), {path, cell});
    if (!cell) return;
    if (cell->superview().get() != &table_) table_.insertSubview_atIndex(cell, 0);
    cell->setHidden(false);
    place(cell, path, rows);
}

Row UITableViewVisibleRows::takeRow(std::size_t index) {
    Row row = std::move(shown_[index]);
    shown_.erase(shown_.begin() + static_cast<std::ptrdiff_t>(index));
    return row;
}

void UITableViewVisibleRows::retire(const Row& row) {
    if (!row.cell) return;
    client_.removeHighlightFromCell(row.cell);
    client_.takeFocusFromCell(row.cell);
    row.cell->setHidden(true);
    keepOrDrop(row.cell);
    client_.didEndDisplayingCell(row.cell, row.path);
}

void UITableViewVisibleRows::retire(const std::vector<Row>& rows) {
    for (const Row& row : rows) retire(row);
}

void UITableViewVisibleRows::retireOutside(UITableViewRows::Range range, const UITableViewRows& rows) {
    for (std::size_t i = shown_.size(); i-- > 0;) {
        if (!range.meets(rows.spanOfRow(shown_[i].path))) retire(takeRow(i));
    }
}

void UITableViewVisibleRows::retireRow(NSIndexPath path) {
    const auto row = find(path);
    if (row != shown_.end()) retire(takeRow(static_cast<std::size_t>(row - shown_.begin())));
}

void UITableViewVisibleRows::retireAll() {
    std::vector<Row> gone = std::move(removed_);
    gone.insert(gone.end(), shown_.begin(), shown_.end());
    removed_.clear();
    shown_.clear();
    retire(gone);
}

void UITableViewVisibleRows::applyChange(const UITableViewChange& change) {
    std::vector<Row> before = std::move(shown_);
    shown_.clear();
    for (Row& row : before) {
        if (const auto path = change.pathAfter(row.path)) {
            shown_.push_back({*path, std::move(row.cell)});
        } else {
            removed_.push_back(std::move(row));
        }
    }
}

void UITableViewVisibleRows::hideRemoved() {
    for (std::size_t i = 0; i < removed_.size(); ++i) {
        const Ref<UITableViewCell> cell = removed_[i].cell;
        if (!cell) continue;
        client_.takeFocusFromCell(cell);
        cell->setHidden(true);
    }
}

void UITableViewVisibleRows::retireRemoved() {
    const std::vector<Row> gone = std::move(removed_);
    removed_.clear();
    retire(gone);
}

} // namespace gx
