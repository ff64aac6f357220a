// The columns and rows that a wheel shows, and the band.

#include <algorithm>
#include <cmath>

#include "UIGraphicsContext.h"
#include "UILabel.h"
#include "UIPickerViewComponent.h"

namespace gx {

namespace {

constexpr CGFloat bandInset = 8;
constexpr CGFloat bandCornerRadius = 8;
// At high contrast: wide enough to be seen, and narrower than the bars that mark the focus.
constexpr CGFloat bandOutline = 1.5;
// A moving column has one row more in sight at some moments than at others; one view waits for it on either side.
constexpr std::size_t poolSize = 2;

const Ref<UIFont>& titleFont() {
    static const Ref<UIFont> font = UIFont::systemFontOfSize_weight(UIPickerView::titleFontSize, UIFontWeight::Medium);
    return font;
}

} // namespace

// Layout

bool UIPickerView::isShowable() const {
    const CGSize size = bounds().size;
    return !CGRectIsEmpty(bounds()) && std::isfinite(size.width) && std::isfinite(size.height);
}

void UIPickerView::layoutSubviews() {
    UIView::layoutSubviews();
    if (!isShowable()) return;
    const Ref<UIPickerView> keep = self();
    const bool areRowsDue = areRowsDue_;
    areRowsDue_ = false;
    refreshComponents();
    for (NSInteger i = 0; i < count_; ++i) {
        refreshSizes(i);
        refreshedRows(i);
    }
    placeColumns();
    for (NSInteger i = 0; i < count_; ++i) {
        const NSInteger reported = heldRow(i, at(i).requested);
        if (i >= count_ || !at(i).column) continue;
        Component& entry = at(i);
        entry.turn.setRows_height_extent(entry.rows, entry.rowHeight, bounds().size.height, reported);
        if (!entry.turn.isTurning()) entry.turn.standOnRow(reported);
        // New rows may let a request through that was held to the last one so far.
        const bool isRequested = entry.turn.state() == UIPickerTurn::State::Requested;
        if (isRequested && entry.turn.landingRow() != reported) entry.turn.goToRow(reported);
        scrollColumn(i);
        showRows(i, areRowsDue);
    }
    // A turn whose row is gone has landed and still has to be told of, in the next frame.
    if (isTurning()) startMoving();
}

void UIPickerView::placeColumns() {
    for (auto i = static_cast<std::size_t>(count_); i < components_.size(); ++i) {
        Component& gone = *components_[i];
        gone.turn.standOnRow(0);
        if (const Ref<UIPickerColumn> column = std::move(gone.column)) column->removeFromSuperview();
        gone.column = nullptr;
    }
    CGFloat total = static_cast<CGFloat>(std::max<NSInteger>(count_ - 1, 0)) * columnGap;
    for (NSInteger i = 0; i < count_; ++i) total += widthOfComponent(i);
    CGFloat x = CGRectGetMidX(bounds()) - 0.5 * total;
    for (NSInteger i = 0; i < count_; ++i) {
        Component& entry = at(i);
        const CGRect frame = CGRectMake(x, CGRectGetMinY(bounds()), widthOfComponent(i), bounds().size.height);
        if (!entry.column) {
            entry.column = create<UIPickerColumn>(frame);
            insertSubview_atIndex(entry.column, i); // Below the labels that a subclass lays over the columns.
        }
        entry.column->setFrame(frame);
        entry.column->setRowHeight(entry.rowHeight);
        x += frame.size.width + columnGap;
    }
}

void UIPickerView::scrollColumn(NSInteger component) {
    const Component& entry = at(component);
    if (entry.column) entry.column->scrollToAnchor_offset(entry.turn.anchorRow(), entry.turn.offset());
}

void UIPickerView::showRows(NSInteger component, bool anew) {
    const Ref<UIPickerColumn> column = at(component).column;
    if (!column) return;
    const UIPickerColumn::Range range = column->rowsInSight(at(component).rows);
    column->recycleRowsOutside(range);
    // Who is asked may take rows away, or change the whole wheel.
    for (NSInteger row = range.first; row < range.last && hasRow(row, component); ++row) {
        if (at(component).column != column) return;
        if (anew || !column->viewForRow(row)) showRow(component, row);
    }
    column->trimPool(poolSize);
}

void UIPickerView::showRow(NSInteger component, NSInteger row) {
    const Ref<UIPickerColumn> column = at(component).column;
    const Ref<UIPickerViewDelegate> delegate = delegate_.lock();
    const Ref<UIPickerView> keep = self();
    UIPickerColumn::Row offered = column->takeRow(row, true);
    Ref<UIView> view = delegate ? delegate->pickerView_viewForRow_forComponent_reusingView(keep, row, component, offered.view) : nullptr;
    // A delegate that was replaced while it was asked, or has taken the row away, has made its view for nobody; the layout that is due
    // asks anew.
    if (delegate_.lock() != delegate || !hasRow(row, component)) {
        if (offered.view) offered.view->removeFromSuperview();
        return;
    }
    // A view above the column cannot show a row of it.
    if (view && column->isDescendantOfView(view)) view = nullptr;
    if (view) {
        if (offered.view && offered.view != view) column->pool(std::move(offered));
        column->showRow({row, std::move(view), true});
        return;
    }
    column->pool(std::move(offered));
    const UIPickerColumn::Row own = column->takeRow(row, false);
    auto label = std::static_pointer_cast<UILabel>(own.view);
    if (!label) {
        label = create<UILabel>(CGRectNull);
        label->setTextAlignment(NSTextAlignmentCenter);
        label->setFont(titleFont());
    }
    const Ref<NSAttributedString> attributed =
        delegate ? delegate->pickerView_attributedTitleForRow_forComponent(keep, row, component) : nullptr;
    if (attributed) {
        label->setAttributedText(attributed);
    } else {
        const bool isThere = delegate && hasRow(row, component);
        label->setText(isThere ? delegate->pickerView_titleForRow_forComponent(keep, row, component) : std::nullopt);
    }
    column->showRow({row, std::move(label), false});
}

void UIPickerView::drawRect(UIGraphicsContext& context, CGRect rect) {
    UIView::drawRect(context, rect);
    if (count_ == 0) return;
    const CGRect band = selectionIndicatorFrame();
    if (showsBand_) drawSelectionIndicator(context, band);
    drawFocus(context, band);
}

CGRect UIPickerView::selectionIndicatorFrame() {
    if (count_ == 0) return {};
    CGFloat height = 0;
    for (NSInteger i = 0; i < count_; ++i) height = std::max(height, at(i).rowHeight);
    const CGRect room = bounds();
    return CGRectMake(room.origin.x + bandInset, CGRectGetMidY(room) - 0.5 * height, room.size.width - 2 * bandInset, height);
}

void UIPickerView::drawSelectionIndicator(UIGraphicsContext& context, CGRect frame) {
    const bool isOutlined = context.accessibilityContrast() == UIAccessibilityContrast::High;
    // An outline of straight lines has no rounded corners to follow.
    context.fillRect(frame, UIColor::tertiarySystemFillColor(), isOutlined ? 0 : bandCornerRadius);
    if (!isOutlined) return;
    for (const CGFloat y : {CGRectGetMinY(frame), CGRectGetMaxY(frame) - bandOutline})
        context.fillRect(CGRectMake(frame.origin.x, y, frame.size.width, bandOutline), UIColor::secondaryLabelColor());
    for (const CGFloat x : {CGRectGetMinX(frame), CGRectGetMaxX(frame) - bandOutline})
        context.fillRect(CGRectMake(x, frame.origin.y, bandOutline, frame.size.height), UIColor::secondaryLabelColor());
}

} // namespace gx
