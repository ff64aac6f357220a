#include "UIPickerComponents.h"

#include <algorithm>

namespace gx {

// The cache

void UIPickerComponents::invalidate() {
    isCountCached_ = false;
    for (const auto& component : components_) component->areRowsCached = component->areSizesCached = false;
    areRowsInvalid_ = true;
}

bool UIPickerComponents::takeRowsInvalid() {
    const bool areInvalid = areRowsInvalid_;
    areRowsInvalid_ = false;
    return areInvalid;
}

void UIPickerComponents::makeComponents(NSInteger count) {
    for (auto i = static_cast<NSInteger>(components_.size()); i < count; ++i) {
        components_.push_back(std::make_unique<Component>(i, defaultRowHeight_));
    }
}

NSInteger UIPickerComponents::refreshCount() {
    if (isCountCached_ || isCountQueried_) return count_;
    isCountCached_ = isCountQueried_ = true;
    const NSInteger count = owner_.queryNumberOfComponents();
    isCountQueried_ = false;
    count_ = count;
    makeComponents(count_);
    return count_;
}

bool UIPickerComponents::exists(NSInteger component) {
    refreshCount();
    return component >= 0 && component < count_;
}

NSInteger UIPickerComponents::refreshRows(NSInteger component) {
    if (!exists(component)) return 0;
    Component& entry = at(component);
    if (!entry.areRowsCached && !entry.areRowsQueried) {
        entry.areRowsCached = entry.areRowsQueried = true;
        const NSInteger rows = owner_.queryNumberOfRows(component);
        entry.areRowsQueried = false;
        entry.rows = std::max<NSInteger>(rows, 0);
    }
    return entry.rows;
}

void UIPickerComponents::refreshSizes(NSInteger component) {
    Component& entry = at(component);
    if (entry.areSizesCached || entry.areSizesQueried) return;
    entry.areSizesCached = entry.areSizesQueried = true;
    const UIPickerOwner::Sizes sizes = owner_.querySizes(component);
    entry.areSizesQueried = false;
    entry.width = sizes.width;
    entry.rowHeight = sizes.rowHeight;
}

void UIPickerComponents::refreshAll() {
    refreshCount();
    for (NSInteger i = 0; i < count_; ++i) {
        refreshSizes(i);
        refreshRows(i);
    }
}

NSInteger UIPickerComponents::clampedRow(NSInteger component, NSInteger row) {
    return std::clamp<NSInteger>(row, 0, std::max<NSInteger>(refreshRows(component) - 1, 0));
}

std::optional<NSInteger> UIPickerComponents::steppedRow(NSInteger component) {
    const std::optional<NSInteger> row = exists(component) ? at(component).axis.steppedRow() : std::nullopt;
    return row ? std::optional(clampedRow(component, *row)) : std::nullopt;
}

// As cached

CGFloat UIPickerComponents::width(NSInteger component, CGFloat available) const {
    if (const std::optional<CGFloat> width = at(component).width) return *width;
    const auto count = static_cast<CGFloat>(count_);
    return std::max(0.0, (available - (count - 1) * columnGap_) / count);
}

CGFloat UIPickerComponents::highestRow() const {
    CGFloat height = 0;
    for (NSInteger i = 0; i < count_; ++i) height = std::max(height, at(i).rowHeight);
    return height;
}

bool UIPickerComponents::exchange(NSInteger one, NSInteger other) {
    makeComponents(std::max(one, other) + 1);
    std::swap(at(one).part, at(other).part);
    if (chosen_ == one) return choose(other);
    return chosen_ == other && choose(one);
}

// The columns

void UIPickerComponents::placeColumns(UIView& wheel) {
    for (auto i = static_cast<std::size_t>(count_); i < components_.size(); ++i) {
        Component& gone = *components_[i];
        gone.axis.restOnRow(0);
        if (const Ref<UIPickerColumn> column = std::move(gone.column)) column->removeFromSuperview();
        gone.column = nullptr;
    }
    const CGRect area = wheel.bounds();
    CGFloat total = static_cast<CGFloat>(std::max<NSInteger>(count_ - 1, 0)) * columnGap_;
    for (NSInteger i = 0; i < count_; ++i) total += width(i, area.size.width);
    CGFloat x = CGRectGetMidX(area) - 0.5 * total;
    for (NSInteger i = 0; i < count_; ++i) {
        Component& entry = at(i);
        const CGRect frame = CGRectMake(x, CGRectGetMinY(area), width(i, area.size.width), area.size.height);
        if (!entry.column) {
            entry.column = create<UIPickerColumn>(frame);
            wheel.insertSubview_atIndex(entry.column, i);
        }
        entry.column->setFrame(frame);
        entry.column->setRowHeight(entry.rowHeight);
        x += frame.size.width + columnGap_;
    }
}

void UIPickerComponents::fitAxis(NSInteger component, NSInteger reported, CGFloat extent) {
    Component& entry = at(component);
    UIPickerColumnAxis& axis = entry.axis;
    axis.setRows_height_extent(entry.rows, entry.rowHeight, extent, reported);
    if (!axis.isActive()) axis.restOnRow(reported);
    // New rows may let a request through that was clamped to the last one so far.
    const bool isRequested = axis.state() == UIPickerColumnAxis::State::Requested;
    if (isRequested && axis.landingRow() != reported) axis.requestRow(reported);
}

void UIPickerComponents::removeAllRows() {
    for (std::size_t i = 0; i < components_.size(); ++i) {
        // Views that are removed may call back.
        const Ref<UIPickerColumn> column = components_[i]->column;
        if (column) column->removeAllRows();
    }
}

void UIPickerComponents::scrollColumn(NSInteger component) {
    const Component& entry = at(component);
    if (entry.column) entry.column->scrollToAnchor_offset(entry.axis.anchorRow(), entry.axis.offset());
}

NSInteger UIPickerComponents::componentAt(CGPoint point) const {
    for (NSInteger i = 0; i < count_; ++i) {
        if (at(i).column && CGRectContainsPoint(at(i).column->frame(), point)) return i;
    }
    return -1;
}

NSInteger UIPickerComponents::componentOfTouch(std::int64_t identifier) const {
    for (NSInteger i = 0; i < count_; ++i) {
        if (at(i).axis.hasFinger(identifier)) return i;
    }
    return -1;
}

bool UIPickerComponents::isActive() const {
    return std::any_of(components_.begin(), components_.end(), [](const auto& component) { return component->axis.isActive(); });
}

bool UIPickerComponents::isMoving() const {
    return std::any_of(components_.begin(), components_.end(), [](const auto& component) { return component->axis.isMoving(); });
}

bool UIPickerComponents::canSpin(NSInteger component) const {
    if (component < 0 || component >= count_ || at(component).rows <= 0) return false;
    const Ref<UIPickerColumn> column = at(component).column;
    return column && column->showsSomething();
}

// The component of the keys

bool UIPickerComponents::choose(NSInteger component) {
    const bool isOther = component != chosen_;
    chosen_ = component;
    return isOther;
}

NSInteger UIPickerComponents::componentBeside(NSInteger component, NSInteger direction) const {
    for (NSInteger i = component + direction; i >= 0 && i < count_; i += direction) {
        if (canBeChosen(i)) return i;
    }
    return -1;
}

NSInteger UIPickerComponents::componentAfter(NSInteger component) const {
    for (NSInteger i = component + 1; i < count_; ++i) {
        if (canSpin(i)) return i;
    }
    return -1;
}

} // namespace gx
