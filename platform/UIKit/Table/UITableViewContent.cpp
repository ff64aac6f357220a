#include "UITableViewContent.h"

#include <cmath>
#include <utility>

#include "UIWindow.h"

namespace gx {

// Where things are

CGRect UITableViewContent::rectOf(const UITableViewRows::Span& span) const {
    return CGRectMake(0, span.top, table_.bounds().size.width, span.height);
}

CGRect UITableViewContent::rectOfRowAndHeader(NSIndexPath path) const {
    UITableViewRows::Span span = rows().spanOfRow(path);
    if (path.row == 0) {
        const CGFloat headerHeight = rows().spanOfHeader(path.section).height;
        span = {span.top - headerHeight, span.height + headerHeight};
    }
    return rectOf(span);
}

std::optional<NSIndexPath> UITableViewContent::focusedRow() {
    refresh();
    return focus_.rowOrFirstBelow(CGRectGetMinY(table_.bounds()));
}

void UITableViewContent::focusRow(NSIndexPath path) {
    if (focus_.row() != path) table_.setNeedsDisplay();
    focus_.setRow(path);
    table_.UIScrollView::revealDescendant(rectOfRowAndHeader(path));
}

std::optional<NSIndexPath> UITableViewContent::rowToMark() const {
    const Ref<UIWindow> window = table_.window();
    const std::optional<NSIndexPath> row = focus_.row();
    if (!window || !window->showsFocus() || !table_.isFirstResponder() || !row || !rows().exists(*row)) return std::nullopt;
    return row;
}

bool UITableViewContent::moveFocus(UIKey::Code code) {
    const std::optional<NSIndexPath> present = focusedRow();
    const auto next = present ? focus_.rowForKey(code, *present, table_.bounds().size.height) : std::nullopt;
    if (!next || next == present) return false;
    focusRow(*next);
    return true;
}

bool UITableViewContent::hoverRow(std::optional<NSIndexPath> path) {
    if (path == press_.hoveredRow()) return path.has_value();
    const bool isTappable = path && client_.canTapRow(*path);
    const std::optional<NSIndexPath> before = press_.hoveredRow();
    press_.setHoveredRow(isTappable ? path : std::nullopt);
    if (press_.hoveredRow() != before) table_.setNeedsDisplay();
    return isTappable;
}

void UITableViewContent::drawMarks(UIGraphicsContext& context) const {
    const std::optional<NSIndexPath> hovered = press_.hoveredRow();
    if (hovered && rows().exists(*hovered)) drawing_.drawHover(context, *hovered);
    if (const auto row = rowToMark()) drawing_.drawFocus(context, *row, table_.tintColor());
}

void UITableViewContent::pressRow(NSIndexPath path, NSTimeInterval highlightTime) {
    press_.begin(path, highlightTime);
    if (!client_.canTapRow(path)) press_.cancel();
    if (press_.isHighlightPending()) animate();
}

void UITableViewContent::highlightTap_until(NSIndexPath path, NSTimeInterval time) {
    if (!table_.window()) return;
    press_.highlight_until(path, time);
    animate();
}

void UITableViewContent::animate() {
    if (const Ref<UIWindow> window = table_.window()) window->animateView(self());
}

std::vector<NSIndexPath> UITableViewContent::pathsInBounds() const {
    std::vector<NSIndexPath> paths;
    for (const UITableViewVisibleRows::Row& row : visible_.shown()) {
        if (CGRectIntersectsRect(rectOfRow(row.path), table_.bounds())) paths.push_back(row.path);
    }
    return paths;
}

/// The part of the content for which cells are needed.
UITableViewRows::Range UITableViewContent::range() const {
    const CGRect area = table_.bounds();
    if (CGRectIsEmpty(area) || !std::isfinite(area.size.height) || !std::isfinite(area.size.width)) return {};
    const CGFloat reach = change_ ? change_->reach() : 0;
    return {CGRectGetMinY(area) - reach, CGRectGetMaxY(area) + reach};
}

void UITableViewContent::fitContent() { table_.setContentSize({table_.bounds().size.width, rows().height()}); }

// Reloading and layout

void UITableViewContent::invalidate() {
    const Ref<UIView> keep = self();
    cache_.invalidate();
    press_.cancel();
    press_.setHoveredRow(std::nullopt);
    table_.setNeedsLayout();
}

void UITableViewContent::refresh() {
    if (cache_.isValid() || cache_.isQuerying()) return;
    const Ref<UIView> keep = self();
    {
        const UITableViewRowCache::OpenQuery query(cache_);
        cache_.refresh();
        focus_.clampToRows();
        // Every row is shown again. A callback that reloads causes another refresh.
        change_.reset();
        visible_.retireAll();
        headers_.hideAll();
    }
    fitContent();
    table_.setNeedsLayout();
}

bool UITableViewContent::layOut(NSInteger highestVisibleCount) {
    refresh();
    if (cache_.isQuerying()) {
        table_.setNeedsLayout();
        return false;
    }
    fitContent();
    const UITableViewRowCache::OpenQuery query(cache_);
    const UITableViewRows::Range range = this->range();
    visible_.retireOutside(range, rows());
    NSInteger count = 0;
    auto path = rows().firstRowBelow(range.top);
    // A callback that reloads has invalidated the layout too; these rows may be gone.
    while (path && cache_.isValid() && rows().spanOfRow(*path).top < range.bottom && count < highestVisibleCount) {
        visible_.show(*path, rows());
        path = rows().nextRow(*path);
        ++count;
    }
    headers_.show(table_, rows(), range, client_);
    return true;
}

// Changes

void UITableViewContent::reloadRows(const std::vector<NSIndexPath>& paths) {
    if (!cache_.isReady()) {
        invalidate();
        return;
    }
    const Ref<UIView> keep = self();
    // A callback may modify the list. NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
    const std::vector<NSIndexPath> reloaded = paths;
    {
        const UITableViewRowCache::OpenQuery query(cache_);
        for (const NSIndexPath path : reloaded) {
            if (!rows().exists(path)) continue;
            cache_.refreshHeightOfRow(path);
            if (press_.row() == path) press_.cancel();
            visible_.retireRow(path);
        }
    }
    fitContent();
    table_.setNeedsLayout();
}

void UITableViewContent::applyChange(UITableViewChange::Kind kind, std::vector<NSIndexPath> paths, bool animated) {
    if (!cache_.isReady()) {
        invalidate();
        return;
    }
    const Ref<UIView> keep = self();
    finishChange(); // One at a time: the one before arrives.
    if (!cache_.isValid()) return;
    UITableViewRows after;
    {
        const UITableViewRowCache::OpenQuery query(cache_);
        after = cache_.queryRows();
    }
    if (!cache_.isValid()) return; // A callback has requested a reload.
    std::optional<UITableViewChange> change = UITableViewChange::change(kind, std::move(paths), rows(), after);
    if (!change) {
        invalidate();
        return;
    }

    cache_.setRows(std::move(after));
    visible_.applyChange(*change);
    press_.applyChange(*change);
    focus_.applyChange(*change);
    const CGFloat offsetBefore = table_.contentOffset().y;
    fitContent();
    change->setOffsetChange(table_.contentOffset().y - offsetBefore);
    const Ref<UIWindow> window = table_.window();
    const bool isDrawn = animated && window && !window->reducesMotion() && change->reach() <= table_.bounds().size.height;
    change_ = std::move(change);
    visible_.hideRemoved();
    visible_.placeCells(rows());
    table_.setNeedsLayout();
    if (!isDrawn) {
        finishChange();
    } else {
        animate();
    }
}

void UITableViewContent::finishChange() {
    if (!change_) return;
    change_.reset();
    visible_.retireRemoved();
    table_.setNeedsLayout();
}

void UITableViewContent::advanceToTime(NSTimeInterval time) {
    const Ref<UIWindow> window = table_.window();
    const bool isImmediate = window && window->reducesMotion();
    if (change_ && (isImmediate || !change_->advanceToTime(time))) finishChange();
    press_.advanceToTime(time);
}

// For screen readers

NSInteger UITableViewContent::sectionCount() {
    refresh();
    return rows().sectionCount();
}

NSInteger UITableViewContent::rowCount(NSInteger section) {
    refresh();
    return rows().rowCount(section);
}

void UITableViewContent::readCell(NSIndexPath path, const CellReader& read) {
    refresh();
    if (const Ref<UITableViewCell> cell = visible_.cellOfRow(path)) return read(*cell);
    if (!cache_.isReady() || !rows().exists(path)) return;
    const UITableViewRowCache::OpenQuery query(cache_);
    if (const Ref<UITableViewCell> cell = visible_.borrowCell(path, rows())) {
        cell->layoutIfNeeded();
        read(*cell);
        visible_.returnCell(cell);
    }
}

void UITableViewContent::takeFocusFromCell(const Ref<UITableViewCell>& cell) {
    const Ref<UIWindow> window = table_.window();
    const Ref<UIView> first = window ? window->firstResponder() : nullptr;
    if (first && first->isDescendantOfView(cell)) table_.becomeFirstResponder();
}

} // namespace gx
