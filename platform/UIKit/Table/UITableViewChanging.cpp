// Rows that come into a table, leave it or are shown anew, and how all is drawn on the way.

#include <algorithm>

#include "NSLocale.h"
#include "UIGraphicsContext.h"
#include "UILabel.h"
#include "UITableView.h"
#include "UIWindow.h"

namespace gx {

void UITableView::reloadRowsAtIndexPaths(const std::vector<NSIndexPath>& paths) {
    if (isStale_ || isBusy_) {
        reloadData();
        return;
    }
    const Ref<UITableView> keep = self();
    // The argument may be a list that a callback changes. NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
    const std::vector<NSIndexPath> asked = paths;
    isBusy_ = true;
    for (const NSIndexPath path : asked) {
        if (!rows_.exists(path)) continue;
        if (rows_.rowCount(path.section) <= UITableViewRows::highestHeightCount) rows_.setHeight(path, askHeight(path));
        if (pressed_ == path) forgetPress();
        const auto row = findRow(path);
        if (row != shown_.end()) retire(takeRow(static_cast<std::size_t>(row - shown_.begin())));
    }
    isBusy_ = false;
    fitContent();
    setNeedsLayout();
}

void UITableView::insertRowsAtIndexPaths_animated(const std::vector<NSIndexPath>& paths, bool animated) {
    change(UITableViewChange::Kind::Insertion, paths, animated);
}

void UITableView::deleteRowsAtIndexPaths_animated(const std::vector<NSIndexPath>& paths, bool animated) {
    change(UITableViewChange::Kind::Removal, paths, animated);
}

void UITableView::change(UITableViewChange::Kind kind, std::vector<NSIndexPath> paths, bool animated) {
    if (isStale_ || isBusy_) {
        reloadData();
        return;
    }
    const Ref<UITableView> keep = self();
    finishChange(); // One at a time: the one before arrives.
    if (isStale_) return;
    isBusy_ = true;
    UITableViewRows after = askRows();
    isBusy_ = false;
    if (isStale_) return; // Who was asked has asked for a reload.
    std::optional<UITableViewChange> change = UITableViewChange::change(kind, std::move(paths), rows_, after);
    if (!change) {
        reloadData();
        return;
    }

    rows_ = std::move(after);
    std::vector<Row> before = std::move(shown_);
    shown_.clear();
    for (Row& row : before) {
        if (const auto path = change->pathAfter(row.path)) {
            shown_.push_back({*path, std::move(row.cell)});
        } else {
            removed_.push_back(std::move(row));
        }
    }
    if (pressed_) pressed_ = change->pathAfter(*pressed_);
    if (!pressed_) lightsAt_.reset();
    if (focused_) focused_ = rows_.heldRow(change->placeAfter(*focused_));
    const CGFloat offsetBefore = contentOffset().y;
    fitContent();
    change->setOffsetChange(contentOffset().y - offsetBefore);
    const bool isDrawn = animated && window() && !reducesMotion() && change->reach() <= bounds().size.height;
    change_ = std::move(change);
    for (std::size_t i = 0; i < removed_.size(); ++i) {
        // It is drawn, but no finger finds it.
        const Ref<UITableViewCell> cell = removed_[i].cell;
        if (!cell) continue;
        takeFocusFrom(cell);
        cell->setHidden(true);
    }
    for (std::size_t i = 0; i < shown_.size(); ++i) {
        if (const Ref<UITableViewCell> cell = shown_[i].cell) placeCell(cell, shown_[i].path);
    }
    setNeedsLayout();
    if (isDrawn) {
        startMoving();
    } else {
        finishChange();
    }
}

void UITableView::finishChange() {
    if (!change_) return;
    change_.reset();
    const std::vector<Row> gone = std::move(removed_);
    removed_.clear();
    for (const Row& row : gone) retire(row);
    setNeedsLayout();
}

// Drawing

bool UITableView::showsRowOrHeader(const Ref<UIView>& view) const {
    return std::any_of(shown_.begin(), shown_.end(), [&view](const Row& row) { return row.cell == view; }) ||
           std::any_of(headers_.begin(), headers_.end(), [&view](const Header& header) { return header.label == view; });
}

void UITableView::drawChanging(UIGraphicsContext& context) {
    const CGFloat width = bounds().size.width;
    for (std::size_t i = 0; change_ && i < removed_.size(); ++i) { // Who is drawn may end the change.
        const Ref<UITableViewCell> cell = removed_[i].cell;
        if (!cell) continue;
        const UITableViewRows::Span span = change_->spanOfRemovedRow(removed_[i].path);
        context.saveState();
        context.translate(0, span.top);
        context.clipToRect(CGRectMake(0, 0, width, span.height));
        cell->renderInContext(context);
        context.restoreState();
    }
    for (std::size_t i = 0; change_ && i < shown_.size(); ++i) {
        const Ref<UITableViewCell> cell = shown_[i].cell;
        if (!cell) continue;
        const UITableViewRows::Span span = rows_.spanOfRow(shown_[i].path);
        const double share = change_->shownShare(shown_[i].path);
        context.saveState();
        context.translate(0, change_->shiftOf(span));
        if (share < 1) context.clipToRect(CGRectMake(0, span.top, width, share * span.height));
        drawView(*cell, context);
        context.restoreState();
    }
    for (std::size_t i = 0; change_ && i < headers_.size(); ++i) {
        const Ref<UILabel> label = headers_[i].label;
        context.saveState();
        context.translate(0, change_->shiftOf(rows_.spanOfHeader(headers_[i].section)));
        drawView(*label, context);
        context.restoreState();
    }
    for (std::size_t i = 0; i < subviews().size(); ++i) {
        const Ref<UIView> view = subviews()[i];
        if (!showsRowOrHeader(view)) drawView(*view, context);
    }
}

void UITableView::drawScrolledViews(UIGraphicsContext& context) {
    if (change_) {
        drawChanging(context);
    } else {
        UIScrollView::drawScrolledViews(context);
    }
    if (separatorColor_) drawSeparators(context);
    drawFocus(context);
}

void UITableView::drawSeparators(UIGraphicsContext& context) const {
    const CGFloat width = bounds().size.width - UITableViewCell::labelInset;
    // A hairline begins below the row's text and runs to the edge.
    const CGFloat x = NSLocale::currentLocale()->isRightToLeft() ? 0 : UITableViewCell::labelInset;
    for (const Row& row : shown_) {
        if (row.path.row + 1 >= rows_.rowCount(row.path.section)) continue;
        const UITableViewRows::Span span = rows_.spanOfRow(row.path);
        const CGFloat shift = change_ ? change_->shiftOf(span) : 0;
        const CGFloat height = span.height * (change_ ? change_->shownShare(row.path) : 1);
        const CGFloat y = span.top + shift + height - separatorHeight;
        context.fillRect(CGRectMake(x, y, width, separatorHeight), *separatorColor_);
    }
}

} // namespace gx
