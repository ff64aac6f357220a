#include "UITableViewDrawing.h"

#include <algorithm>

#include "NSLocale.h"

namespace gx {

namespace {

// Chosen to look as on a wheel: the row in the tint, and an outline that is found at a glance.
constexpr double focusMarkAlpha = 0.14;
constexpr CGFloat focusOutline = 2;

/// Below the pointer. Chosen fainter than a highlighted cell.
UIColor hoverFill() {
    const UIColor fill = UIColor::tertiarySystemFillColor();
    return UIColor::colorWithNormal_highContrast(fill.colorWithAlphaComponent(0.09), fill.colorWithAlphaComponent(0.18));
}

} // namespace

void UITableViewDrawing::drawChange(UIGraphicsContext& context, DrawView drawView) const {
    const CGFloat width = this->width();
    const auto& removed = visible_.removed();
    for (std::size_t i = 0; change_ && i < removed.size(); ++i) {
        const Ref<UITableViewCell> cell = removed[i].cell;
        if (!cell) continue;
        const UITableViewRows::Span span = change_->spanOfRemovedRow(removed[i].path);
        context.saveState();
        context.translate(0, span.top);
        context.clipToRect(CGRectMake(0, 0, width, span.height));
        cell->renderInContext(context);
        context.restoreState();
    }
    const auto& shown = visible_.shown();
    for (std::size_t i = 0; change_ && i < shown.size(); ++i) {
        const Ref<UITableViewCell> cell = shown[i].cell;
        if (!cell) continue;
        const UITableViewRows::Span span = rows_.spanOfRow(shown[i].path);
        const double share = change_->shownShare(shown[i].path);
        context.saveState();
        context.translate(0, change_->shiftOf(span));
        if (share < 1) context.clipToRect(CGRectMake(0, span.top, width, share * span.height));
        drawView(*cell, context);
        context.restoreState();
    }
    const auto& headers = headers_.shown();
    for (std::size_t i = 0; change_ && i < headers.size(); ++i) {
        const Ref<UIView> view = headers[i].view;
        context.saveState();
        context.translate(0, change_->shiftOf(rows_.spanOfHeader(headers[i].section)));
        drawView(*view, context);
        context.restoreState();
    }
    for (std::size_t i = 0; i < table_.subviews().size(); ++i) {
        const Ref<UIView> view = table_.subviews()[i];
        if (!visible_.contains(view) && !headers_.contains(view)) drawView(*view, context);
    }
}

UITableViewRows::Span UITableViewDrawing::spanWhereDrawn(NSIndexPath row) const {
    UITableViewRows::Span span = rows_.spanOfRow(row);
    if (change_) {
        span.top += change_->shiftOf(span);
        span.height *= change_->shownShare(row);
    }
    return span;
}

void UITableViewDrawing::drawSeparators(UIGraphicsContext& context, const UIColor& color, CGFloat height) const {
    const CGFloat x = NSLocale::currentLocale()->isRightToLeft() ? 0 : UITableViewCell::labelInset;
    for (const UITableViewVisibleRows::Row& row : visible_.shown()) {
        if (row.path.row + 1 >= rows_.rowCount(row.path.section)) continue;
        const CGFloat y = spanWhereDrawn(row.path).bottom() - height;
        context.fillRect(CGRectMake(x, y, width() - UITableViewCell::labelInset, height), color);
    }
}

void UITableViewDrawing::drawFocus(UIGraphicsContext& context, NSIndexPath row, const UIColor& tint) const {
    const UITableViewRows::Span span = spanWhereDrawn(row);
    const CGRect mark = CGRectMake(0, span.top, width(), span.height);
    context.fillRect(mark, tint.colorWithAlphaComponent(focusMarkAlpha));
    for (const CGFloat y : {CGRectGetMinY(mark), CGRectGetMaxY(mark) - focusOutline}) {
        context.fillRect(CGRectMake(mark.origin.x, y, mark.size.width, focusOutline), tint);
    }
    const CGFloat side = std::max(0.0, mark.size.height - 2 * focusOutline);
    for (const CGFloat x : {CGRectGetMinX(mark), CGRectGetMaxX(mark) - focusOutline}) {
        context.fillRect(CGRectMake(x, mark.origin.y + focusOutline, focusOutline, side), tint);
    }
}

void UITableViewDrawing::drawHover(UIGraphicsContext& context, NSIndexPath row) const {
    const UITableViewRows::Span span = spanWhereDrawn(row);
    context.fillRect(CGRectMake(0, span.top, width(), span.height), hoverFill());
}

} // namespace gx
