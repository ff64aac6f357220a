// The cells and headers that a table shows for what is in sight, and how they go round.

#include <algorithm>
#include <cmath>

#include "UILabel.h"
#include "UITableView.h"

namespace gx {

namespace {

constexpr CGFloat headerFontSize = 13;

Ref<UILabel> makeHeader() {
    static const Ref<UIFont> font = UIFont::systemFontOfSize_weight(headerFontSize, UIFontWeight::Medium);
    auto label = create<UILabel>();
    label->setFont(font);
    label->setTextAlignment(NSTextAlignmentNatural);
    label->setTextColor(UIColor::secondaryLabelColor());
    return label;
}

} // namespace

// Cells

void UITableView::registerClass_forCellReuseIdentifier(UITableViewCells::Factory factory, const std::string& identifier) {
    cells_.setFactory(std::move(factory), identifier);
}

Ref<UITableViewCell> UITableView::dequeueReusableCellWithIdentifier(const std::string& identifier) {
    const Ref<UITableView> keep = self();
    if (Ref<UITableViewCell> cell = cells_.take(identifier)) {
        if (isBusy_) {
            lent_.push_back(cell); // It comes back if it is not used.
        } else {
            cell->removeFromSuperview();
            cell->setHidden(false);
        }
        cell->prepareForReuse();
        return cell;
    }
    const UITableViewCells::Factory factory = cells_.factory(identifier);
    return factory ? factory() : nullptr;
}

std::vector<UITableView::Row>::iterator UITableView::findRow(NSIndexPath path) {
    const auto row = std::lower_bound(shown_.begin(), shown_.end(), path, [](const Row& entry, NSIndexPath p) { return entry.path < p; });
    return row != shown_.end() && row->path == path ? row : shown_.end();
}

UITableView::Row UITableView::takeRow(std::size_t index) {
    Row row = std::move(shown_[index]);
    shown_.erase(shown_.begin() + static_cast<std::ptrdiff_t>(index));
    return row;
}

void UITableView::retire(const Row& row) {
    if (!row.cell) return;
    if (lit_ == row.cell) darken();
    takeFocusFrom(row.cell);
    // Hidden, it keeps its place among the subviews: coming and going costs nothing, and a finger on it stays with it.
    row.cell->setHidden(true);
    if (!cells_.put(row.cell)) leaving_.push_back(row.cell);
    if (const auto delegate = delegate_.lock()) delegate->tableView_didEndDisplayingCell_forRowAtIndexPath(self(), row.cell, row.path);
}

void UITableView::dropLeaving() {
    while (!hasFinger() && !leaving_.empty()) {
        const Ref<UITableViewCell> cell = leaving_.back();
        leaving_.pop_back();
        if (cell->superview().get() == this) cell->removeFromSuperview();
    }
}

// Layout

UITableView::Sight UITableView::sight() const {
    const CGRect area = bounds();
    if (CGRectIsEmpty(area) || !std::isfinite(area.size.height) || !std::isfinite(area.size.width)) return {};
    const CGFloat reach = change_ ? change_->reach() : 0;
    return {CGRectGetMinY(area) - reach, CGRectGetMaxY(area) + reach};
}

std::vector<Ref<UIView>> UITableView::subviewsInReadingOrder() const {
    std::vector<Ref<UIView>> views = subviews();
    std::stable_sort(views.begin(), views.end(),
                     [](const auto& a, const auto& b) { return CGRectGetMinY(a->frame()) < CGRectGetMinY(b->frame()); });
    return views;
}

void UITableView::layoutSubviews() {
    UIScrollView::layoutSubviews();
    refreshRows();
    if (isBusy_) {
        setNeedsLayout(); // When the question is answered.
        return;
    }
    fitContent();
    isBusy_ = true;
    const Sight sight = this->sight();
    recycleRowsOutside(sight);
    NSInteger count = 0;
    auto path = rows_.firstRowBelow(sight.top);
    // A callback that reloads has made the layout due again; these rows may be gone.
    while (path && !isStale_ && rows_.spanOfRow(*path).top < sight.bottom && count < highestVisibleCount) {
        showRow(*path);
        path = rows_.nextRow(*path);
        ++count;
    }
    showHeaders(sight);
    isBusy_ = false;
    dropLeaving();
}

void UITableView::recycleRowsOutside(Sight sight) {
    for (std::size_t i = shown_.size(); i-- > 0;) {
        const UITableViewRows::Span span = rows_.spanOfRow(shown_[i].path);
        if (span.bottom() <= sight.top || span.top >= sight.bottom) retire(takeRow(i));
    }
}

void UITableView::placeCell(const Ref<UITableViewCell>& cell, NSIndexPath path) { cell->setFrame(rectOf(rows_.spanOfRow(path))); }

void UITableView::showRow(NSIndexPath path) {
    const auto shown = findRow(path);
    if (shown != shown_.end()) {
        if (const Ref<UITableViewCell> cell = shown->cell) placeCell(cell, path);
        return;
    }
    const Ref<UITableViewCell> cell = askCell(path);
    const auto place = std::lower_bound(shown_.begin(), shown_.end(), path, [](const Row& entry, NSIndexPath p) { return entry.path < p; });
    shown_.insert(place, {path, cell});
    if (!cell) return;
    if (cell->superview().get() != this) insertSubview_atIndex(cell, 0);
    cell->setHidden(false);
    placeCell(cell, path);
}

Ref<UITableViewCell> UITableView::askCell(NSIndexPath path) {
    Ref<UITableViewCell> cell;
    if (const auto source = dataSource_.lock()) cell = source->tableView_cellForRowAtIndexPath(self(), path);
    while (!lent_.empty()) {
        const Ref<UITableViewCell> lent = std::move(lent_.back());
        lent_.pop_back();
        if (lent != cell) cells_.put(lent);
    }
    if (!cell) return nullptr;
    // A cell shows one row. The one that it showed before is left empty.
    cells_.remove(cell);
    leaving_.erase(std::remove(leaving_.begin(), leaving_.end(), cell), leaving_.end());
    for (std::vector<Row>* list : {&shown_, &removed_}) {
        for (Row& row : *list) {
            if (row.cell == cell) row.cell.reset();
        }
    }
    return cell;
}

void UITableView::hideHeader(std::size_t index) {
    headers_[index].label->setHidden(true);
    spareHeaders_.push_back(std::move(headers_[index].label));
    headers_.erase(headers_.begin() + static_cast<std::ptrdiff_t>(index));
}

void UITableView::showHeaders(Sight sight) {
    for (std::size_t i = headers_.size(); i-- > 0;) {
        const NSInteger section = headers_[i].section;
        const UITableViewRows::Span span = rows_.spanOfHeader(section);
        if (span.height > 0 && span.bottom() > sight.top && span.top < sight.bottom) continue;
        hideHeader(i);
    }
    for (NSInteger section = rows_.firstSectionBelow(sight.top); section < rows_.sectionCount(); ++section) {
        const UITableViewRows::Span span = rows_.spanOfHeader(section);
        if (span.top >= sight.bottom) break;
        if (span.height <= 0 || span.bottom() <= sight.top) continue;
        auto header = std::find_if(headers_.begin(), headers_.end(), [section](const Header& entry) { return entry.section == section; });
        if (header == headers_.end()) {
            Ref<UILabel> label = spareHeaders_.empty() ? makeHeader() : std::move(spareHeaders_.back());
            if (!spareHeaders_.empty()) spareHeaders_.pop_back();
            if (!label->superview()) insertSubview_atIndex(label, 0);
            label->setHidden(false);
            header = headers_.insert(headers_.end(), {section, std::move(label)});
        }
        if (header->label->text() != rows_.title(section)) header->label->setText(rows_.title(section));
        const CGRect area = rectOf(span);
        const CGFloat inset = std::min(UITableViewCell::labelInset, 0.5 * area.size.width);
        header->label->setFrame(CGRectInset(area, inset, 0));
    }
}

} // namespace gx
