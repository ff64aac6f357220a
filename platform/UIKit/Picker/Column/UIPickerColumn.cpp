#include "UIPickerColumn.h"

#include <algorithm>
#include <cmath>

#include "NSArithmetic.h"
#include "UIGraphicsContext.h"

namespace gx {

bool UIPickerColumn::initWithFrame(CGRect frame) {
    if (!UIView::initWithFrame(frame)) return false;
    // The wheel takes the touches, to know which column a finger belongs to.
    setUserInteractionEnabled(false);
    return true;
}

double UIPickerColumn::reach() const { return std::min(cylinder_.reach(), highestReach); }

CGRect UIPickerColumn::frameOfRow(NSInteger row) const {
    return CGRectMake(0, static_cast<CGFloat>(row - anchor_) * rowHeight_, bounds().size.width, rowHeight_);
}

void UIPickerColumn::setRowHeight(CGFloat height) {
    rowHeight_ = height;
    cylinder_.setHeight_rowHeight(bounds().size.height, height);
}

void UIPickerColumn::boundsSizeDidChange() {
    UIView::boundsSizeDidChange();
    cylinder_.setHeight_rowHeight(bounds().size.height, rowHeight_);
}

void UIPickerColumn::scrollToAnchor_offset(NSInteger anchor, double offset) {
    const CGSize size = bounds().size;
    const bool isMoved = anchor != anchor_;
    anchor_ = anchor;
    offset_ = offset;
    setBounds({{0, (offset + 0.5) * rowHeight_ - 0.5 * size.height}, size});
    if (!isMoved) return;
    for (std::size_t i = 0; i < shown_.size(); ++i) {
        const Row entry = shown_[i]; // A delegate's view may do anything when it is moved.
        entry.view->setFrame(frameOfRow(entry.row));
    }
}

UIPickerColumn::Range UIPickerColumn::rowsInSight(NSInteger count) const {
    if (count <= 0 || bounds().size.height <= 0) return {};
    // The anchor is one of the rows, so the distances to the ends are safe; the offset may be as
    // large as both together.
    const NSInteger toFirst = -anchor_;
    const NSInteger toEnd = count - anchor_;
    // A row reaches half a row to either side of its middle.
    const auto first = truncateTo<NSInteger>(std::floor(offset_ - reach() - 0.5));
    const auto last = truncateTo<NSInteger>(std::ceil(offset_ + reach() + 0.5));
    const NSInteger firstRow = anchor_ + std::clamp(first, toFirst - 1, toEnd - 1) + 1;
    const NSInteger lastRow = anchor_ + std::clamp(last, toFirst, toEnd);
    return {firstRow, std::max(firstRow, lastRow)};
}

NSInteger UIPickerColumn::rowsWhollyInSight() const {
    const auto toEitherSide = truncateTo<NSInteger>(reach() - 0.5);
    return 2 * std::max<NSInteger>(toEitherSide, 0) + 1;
}

std::optional<double> UIPickerColumn::offsetDrawnAt(CGFloat y) const {
    const std::optional<double> rows = cylinder_.rowsDrawnAt(y - 0.5 * bounds().size.height);
    return rows ? std::optional(offset_ + *rows) : std::nullopt;
}

Ref<UIView> UIPickerColumn::viewForRow(NSInteger row) const {
    const auto entry = std::find_if(shown_.begin(), shown_.end(), [row](const Row& shown) { return shown.row == row; });
    return entry == shown_.end() ? nullptr : entry->view;
}

bool UIPickerColumn::showsSomething() const {
    return std::any_of(shown_.begin(), shown_.end(), [](const Row& entry) { return entry.view->showsSomething(); });
}

void UIPickerColumn::recycleRowsOutside(Range range) {
    for (std::size_t i = shown_.size(); i-- > 0;) {
        if (shown_[i].row >= range.first && shown_[i].row < range.last) continue;
        pool_.push_back(std::move(shown_[i]));
        shown_[i] = std::move(shown_.back());
        shown_.pop_back();
    }
}

UIPickerColumn::Row UIPickerColumn::takeRow(NSInteger row, Maker maker) {
    const auto take = [](std::vector<Row>& rows, std::vector<Row>::iterator entry) {
        Row taken = std::move(*entry);
        *entry = std::move(rows.back());
        rows.pop_back();
        return taken;
    };
    const auto same = std::find_if(shown_.begin(), shown_.end(), [row](const Row& entry) { return entry.row == row; });
    if (same != shown_.end()) {
        Row taken = take(shown_, same);
        if (taken.maker == maker) return taken;
        pool_.push_back(std::move(taken));
    }
    const auto pooled = std::find_if(pool_.begin(), pool_.end(), [maker](const Row& entry) { return entry.maker == maker; });
    return pooled == pool_.end() ? Row{row, nullptr, maker} : take(pool_, pooled);
}

void UIPickerColumn::showRow(Row row) {
    if (row.view->superview().get() != this) addSubview(row.view);
    row.view->setFrame(frameOfRow(row.row));
    shown_.push_back(std::move(row));
}

void UIPickerColumn::pool(Row row) {
    if (row.view) pool_.push_back(std::move(row));
}

void UIPickerColumn::trimPool(std::size_t size) {
    while (pool_.size() > size) {
        const Ref<UIView> view = std::move(pool_.back().view);
        pool_.pop_back();
        // A delegate may show one view in several rows.
        const bool isShown = std::any_of(shown_.begin(), shown_.end(), [&view](const Row& entry) { return entry.view == view; });
        if (!isShown && view->superview().get() == this) view->removeFromSuperview();
    }
}

void UIPickerColumn::removeAllRows() {
    recycleRowsOutside({});
    trimPool(0);
}

void UIPickerColumn::drawSubviews(UIGraphicsContext& context) {
    // The middle of the selection indicator, in the column's coordinates. Offset 0 is the middle of
    // the anchor row.
    const CGFloat middle = (offset_ + 0.5) * rowHeight_;
    const Ref<UIView> wheel = superview();
    const CGRect area = convertRect_fromView(wheel ? wheel->bounds() : CGRectZero, wheel);
    const CGFloat vanishing = CGRectGetMidX(area);
    // Rows end at the wheel's top and bottom. To the sides they may leave a narrow column, toward
    // the middle.
    context.clipToRect(area);
    for (std::size_t i = 0; i < shown_.size(); ++i) {
        // Drawing may change the rows, and a delegate may have put its view elsewhere.
        const Row entry = shown_[i];
        if (entry.view->superview().get() != this) continue;
        const double rows = static_cast<double>(entry.row - anchor_) - offset_;
        const UIPickerCylinder::Look look = cylinder_.lookOfRow(rows, context.accessibilityContrast());
        if (look.alpha <= 0) continue;
        context.saveState();
        context.translate(vanishing, middle + look.y);
        context.scale(look.narrowing, look.shortening);
        context.translate(-vanishing, -CGRectGetMidY(entry.view->frame()));
        context.multiplyAlpha(look.alpha);
        drawView(*entry.view, context);
        context.restoreState();
    }
}

} // namespace gx
