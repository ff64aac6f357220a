#include "UIPickerView.h"

#include <algorithm>
#include <cmath>

#include "UIGraphicsContext.h"
#include "UILabel.h"
#include "UIPickerViewComponent.h"
#include "UIWindow.h"

namespace gx {

namespace {

constexpr CGFloat bandInset = 8;
constexpr CGFloat bandCornerRadius = 8;
// At high contrast: wide enough to be seen, and narrower than the bars that mark the focus.
constexpr CGFloat bandOutline = 1.5;
// A moving column has one row more in sight at some moments than at others; one view waits for it on either side.
constexpr std::size_t poolSize = 2;

/// A length that a delegate may give; nothing if it leaves it to the wheel.
std::optional<CGFloat> given(CGFloat dimension) {
    if (dimension == UIPickerView::automaticDimension || std::isnan(dimension)) return std::nullopt;
    return std::clamp(dimension, 0.0, 1e6); // Wider than any screen: sums of widths stay exact.
}

const Ref<UIFont>& titleFont() {
    static const Ref<UIFont> font = UIFont::systemFontOfSize_weight(UIPickerView::titleFontSize, UIFontWeight::Medium);
    return font;
}

bool isShowable(CGRect bounds) { return !CGRectIsEmpty(bounds) && std::isfinite(bounds.size.width) && std::isfinite(bounds.size.height); }

} // namespace

UIPickerView::UIPickerView() = default;
UIPickerView::~UIPickerView() = default;

bool UIPickerView::initWithFrame(CGRect frame) { return UIView::initWithFrame(frame); }
bool UIPickerView::initWithCoder(const Ref<NSCoder>& coder) { return UIView::initWithCoder(coder); }

void UIPickerView::setDataSource(WeakRef<UIPickerViewDataSource> dataSource) {
    dataSource_ = std::move(dataSource);
    noteStale();
}

void UIPickerView::setDelegate(WeakRef<UIPickerViewDelegate> delegate) {
    const Ref<UIPickerView> keep = self();
    delegate_ = std::move(delegate);
    // Views that one delegate has made mean nothing to another.
    for (std::size_t i = 0; i < components_.size(); ++i) {
        const Ref<UIPickerColumn> column = components_[i]->column; // The views that go may call back.
        if (column) column->removeAllRows();
    }
    noteStale();
}

void UIPickerView::setShowsSelectionIndicator(bool shows) {
    if (shows == showsBand_) return;
    showsBand_ = shows;
    setNeedsDisplay();
}

void UIPickerView::setFrame(CGRect frame) {
    const CGSize before = bounds().size;
    UIView::setFrame(frame);
    if (bounds().size != before) noteStale();
}

void UIPickerView::setBounds(CGRect newBounds) {
    const CGRect before = bounds();
    UIView::setBounds(newBounds);
    if (bounds() != before) noteStale(); // Columns are placed by the origin, too.
}

// Answers

void UIPickerView::noteStale() {
    isCountKnown_ = false;
    for (const auto& component : components_) component->areRowsKnown = component->areSizesKnown = false;
    areRowsDue_ = true;
    setNeedsLayout();
}

// In each of the next three, who asks back while a question is open hears the last answer, instead of asking for
// ever. What a callback makes stale meanwhile stays stale.

void UIPickerView::refreshComponents() {
    if (isCountKnown_ || isCountAsked_) return;
    const Ref<UIPickerView> keep = self();
    isCountKnown_ = isCountAsked_ = true;
    const Ref<UIPickerViewDataSource> source = dataSource_.lock();
    const NSInteger answer = source ? source->numberOfComponentsInPickerView(self()) : 0;
    isCountAsked_ = false;
    count_ = std::clamp<NSInteger>(answer, 0, highestComponentCount);
    while (static_cast<NSInteger>(components_.size()) < count_) components_.push_back(std::make_unique<Component>());
}

bool UIPickerView::exists(NSInteger component) {
    const Ref<UIPickerView> keep = self();
    refreshComponents();
    return component >= 0 && component < count_;
}

UIPickerView::Component& UIPickerView::at(NSInteger component) { return *components_[static_cast<std::size_t>(component)]; }

NSInteger UIPickerView::refreshedRows(NSInteger component) {
    const Ref<UIPickerView> keep = self();
    if (!exists(component)) return 0;
    Component& entry = at(component);
    if (!entry.areRowsKnown && !entry.areRowsAsked) {
        entry.areRowsKnown = entry.areRowsAsked = true;
        const Ref<UIPickerViewDataSource> source = dataSource_.lock();
        const NSInteger answer = source ? source->pickerView_numberOfRowsInComponent(self(), component) : 0;
        entry.areRowsAsked = false;
        entry.rows = std::max<NSInteger>(answer, 0);
    }
    return entry.rows;
}

void UIPickerView::refreshSizes(NSInteger component) {
    const Ref<UIPickerView> keep = self();
    Component& entry = at(component);
    if (entry.areSizesKnown || entry.areSizesAsked) return;
    entry.areSizesKnown = entry.areSizesAsked = true;
    const Ref<UIPickerViewDelegate> delegate = delegate_.lock();
    const CGFloat width = delegate ? delegate->pickerView_widthForComponent(self(), component) : automaticDimension;
    const CGFloat height = delegate ? delegate->pickerView_rowHeightForComponent(self(), component) : automaticDimension;
    entry.areSizesAsked = false;
    entry.width = given(width).value_or(automaticDimension);
    const CGFloat givenHeight = given(height).value_or(0);
    entry.rowHeight = givenHeight > 0 ? givenHeight : defaultRowHeight;
}

CGFloat UIPickerView::widthOfComponent(NSInteger component) const {
    const CGFloat width = components_[static_cast<std::size_t>(component)]->width;
    if (width != automaticDimension) return width;
    const auto count = static_cast<CGFloat>(count_);
    return std::max(0.0, (bounds().size.width - (count - 1) * columnGap) / count);
}

NSInteger UIPickerView::heldRow(NSInteger component, NSInteger row) {
    return std::clamp<NSInteger>(row, 0, std::max<NSInteger>(refreshedRows(component) - 1, 0));
}

NSInteger UIPickerView::numberOfComponents() {
    const Ref<UIPickerView> keep = self();
    refreshComponents();
    return count_;
}

NSInteger UIPickerView::numberOfRowsInComponent(NSInteger component) { return refreshedRows(component); }

CGSize UIPickerView::rowSizeForComponent(NSInteger component) {
    const Ref<UIPickerView> keep = self();
    if (!isShowable(bounds()) || !exists(component)) return {};
    for (NSInteger i = 0; i < count_; ++i) refreshSizes(i);
    return exists(component) ? CGSize{widthOfComponent(component), at(component).rowHeight} : CGSize{};
}

NSInteger UIPickerView::selectedRowInComponent(NSInteger component) {
    const Ref<UIPickerView> keep = self();
    return exists(component) ? heldRow(component, at(component).requested) : -1;
}

Ref<UIView> UIPickerView::viewForRow_forComponent(NSInteger row, NSInteger component) {
    const Ref<UIPickerView> keep = self();
    if (isShowable(bounds())) layoutIfNeeded();
    if (!exists(component) || !at(component).column) return nullptr;
    return at(component).column->viewForRow(row);
}

NSInteger UIPickerView::rowInBandOfComponent(NSInteger component) {
    const Ref<UIPickerView> keep = self();
    if (!exists(component)) return -1;
    const UIPickerTurn& turn = at(component).turn;
    return turn.isTurning() ? heldRow(component, turn.rowInBand()) : selectedRowInComponent(component);
}

// Orders

void UIPickerView::reloadAllComponents() { noteStale(); }

void UIPickerView::reloadComponent(NSInteger component) {
    const Ref<UIPickerView> keep = self();
    if (exists(component)) noteStale();
}

void UIPickerView::selectRow_inComponent_animated(NSInteger row, NSInteger component, bool animated) {
    const Ref<UIPickerView> keep = self();
    if (!exists(component)) return;
    const NSInteger count = refreshedRows(component);
    const NSInteger reported = selectedRowInComponent(component);
    const NSInteger asked = heldRow(component, row);
    if (!exists(component)) return; // The answers may have changed the columns.
    Component& entry = at(component);
    entry.requested = row;
    if (asked != reported || !entry.turn.isTurning()) {
        const bool isAnimated = animated && asked != reported && window() && entry.column;
        entry.turn.setRows_height_extent(count, entry.rowHeight, bounds().size.height, reported);
        if (!entry.turn.isTurning()) entry.turn.standOnRow(isAnimated ? reported : asked);
        if (isAnimated) {
            entry.turn.goToRow(asked);
            startMoving();
        } else {
            entry.turn.standOnRow(asked);
        }
    }
    noteStale();
}

void UIPickerView::turnToRow_inComponent(NSInteger row, NSInteger component) {
    const Ref<UIPickerView> keep = self();
    const NSInteger held = heldRow(component, row);
    if (!exists(component)) return;
    Component& entry = at(component);
    entry.requested = held;
    entry.turn.standOnRow(held);
    noteStale();
    if (const Ref<UIPickerViewDelegate> delegate = delegate_.lock()) {
        delegate->pickerView_didSelectRow_inComponent(keep, held, component);
    }
}

// Layout

void UIPickerView::layoutSubviews() {
    UIView::layoutSubviews();
    if (!isShowable(bounds())) return;
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
    for (NSInteger row = range.first; row < range.last; ++row) {
        if (anew || !column->viewForRow(row)) showRow(component, row);
        if (component >= count_ || at(component).column != column) return; // The delegate has changed the wheel.
    }
    column->trimPool(poolSize);
}

void UIPickerView::showRow(NSInteger component, NSInteger row) {
    const Ref<UIPickerColumn> column = at(component).column;
    const Ref<UIPickerViewDelegate> delegate = delegate_.lock();
    const Ref<UIPickerView> keep = self();
    UIPickerColumn::Row offered = column->takeRow(row, true);
    Ref<UIView> view = delegate ? delegate->pickerView_viewForRow_forComponent_reusingView(keep, row, component, offered.view) : nullptr;
    // A delegate that was replaced while it was asked has made its views for nobody; the layout that is due asks the new one.
    if (delegate_.lock() != delegate) {
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
        label->setText(delegate ? delegate->pickerView_titleForRow_forComponent(keep, row, component) : std::nullopt);
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
