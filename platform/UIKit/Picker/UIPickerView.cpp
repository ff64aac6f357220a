#include "UIPickerView.h"

#include <algorithm>
#include <cmath>

#include "UIPickerViewComponent.h"
#include "UIWindow.h"

namespace gx {

namespace {

/// A length that a delegate may give; nothing if it leaves it to the wheel.
std::optional<CGFloat> given(CGFloat dimension) {
    if (dimension == UIPickerView::automaticDimension || std::isnan(dimension)) return std::nullopt;
    return std::clamp(dimension, 0.0, 1e6); // Wider than any screen: sums of widths stay exact.
}

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
    makeComponents(count_);
}

void UIPickerView::makeComponents(NSInteger count) {
    for (auto i = static_cast<NSInteger>(components_.size()); i < count; ++i) components_.push_back(std::make_unique<Component>(i));
}

void UIPickerView::exchangeComponents(NSInteger one, NSInteger other) {
    if (one < 0 || other < 0 || one >= highestComponentCount || other >= highestComponentCount) return;
    makeComponents(std::max(one, other) + 1);
    std::swap(at(one).part, at(other).part);
    if (chosen_ == one || chosen_ == other) choose(chosen_ == one ? other : one);
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

bool UIPickerView::hasRow(NSInteger row, NSInteger component) {
    const Ref<UIPickerView> keep = self();
    return row >= 0 && row < refreshedRows(component);
}

NSInteger UIPickerView::heldRow(NSInteger component, NSInteger row) {
    return std::clamp<NSInteger>(row, 0, std::max<NSInteger>(refreshedRows(component) - 1, 0));
}

/// Its attributed title, or else the plain one; nothing for a row that is not there, or has gone while it was asked for.
std::optional<std::string> UIPickerView::titleOfRow(NSInteger row, NSInteger component) {
    const Ref<UIPickerView> keep = self();
    const Ref<UIPickerViewDelegate> delegate = delegate_.lock();
    if (!delegate || !hasRow(row, component)) return std::nullopt;
    if (const auto title = delegate->pickerView_attributedTitleForRow_forComponent(keep, row, component)) return title->string();
    return hasRow(row, component) ? delegate->pickerView_titleForRow_forComponent(keep, row, component) : std::nullopt;
}

NSInteger UIPickerView::numberOfComponents() {
    const Ref<UIPickerView> keep = self();
    refreshComponents();
    return count_;
}

NSInteger UIPickerView::numberOfRowsInComponent(NSInteger component) { return refreshedRows(component); }

CGSize UIPickerView::rowSizeForComponent(NSInteger component) {
    const Ref<UIPickerView> keep = self();
    if (!isShowable() || !exists(component)) return {};
    for (NSInteger i = 0; i < count_; ++i) refreshSizes(i);
    return exists(component) ? CGSize{widthOfComponent(component), at(component).rowHeight} : CGSize{};
}

NSInteger UIPickerView::selectedRowInComponent(NSInteger component) {
    const Ref<UIPickerView> keep = self();
    return exists(component) ? heldRow(component, at(component).requested) : -1;
}

Ref<UIView> UIPickerView::viewForRow_forComponent(NSInteger row, NSInteger component) {
    const Ref<UIPickerView> keep = self();
    if (isShowable()) layoutIfNeeded();
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

} // namespace gx
