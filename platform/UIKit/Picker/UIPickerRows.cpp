#include "UIPickerRows.h"

#include "UILabel.h"

namespace gx {

namespace {

// A moving column has one row more in sight at some moments than at others; one view waits for it
// on either side.
constexpr std::size_t poolSize = 2;

Ref<UILabel> makeTitleLabel() {
    auto label = create<UILabel>(CGRectNull);
    label->setTextAlignment(NSTextAlignmentCenter);
    return label;
}

} // namespace

void UIPickerRows::showRows(NSInteger component, Binding binding) {
    const Ref<UIPickerColumn> column = components_.at(component).column;
    if (!column) return;
    const UIPickerColumn::Range range = column->rowsInSight(components_.at(component).rows);
    column->recycleRowsOutside(range);
    // Callbacks may take rows away, or change the whole wheel.
    for (NSInteger row = range.first; row < range.last && components_.hasRow(row, component); ++row) {
        if (components_.at(component).column != column) return;
        if (binding == Binding::All || !column->viewForRow(row)) showRow(component, row);
    }
    column->trimPool(poolSize);
}

void UIPickerRows::showRow(NSInteger component, NSInteger row) {
    const Ref<UIPickerColumn> column = components_.at(component).column;
    const UIPickerOwner::Delegate delegate = owner_.lockDelegate();
    UIPickerColumn::Row offered = column->takeRow(row, UIPickerColumn::Maker::Delegate);
    Ref<UIView> view = delegate ? owner_.viewForRow(delegate, row, component, offered.view) : nullptr;
    // If the query has replaced the delegate or taken the row away, its view is dropped. The layout
    // that is needed then queries again.
    if (owner_.lockDelegate() != delegate || !components_.hasRow(row, component)) {
        if (offered.view) offered.view->removeFromSuperview();
        return;
    }
    // A view above the column cannot show a row of it.
    if (view && column->isDescendantOfView(view)) view = nullptr;
    if (view) {
        if (offered.view && offered.view != view) column->pool(std::move(offered));
        column->showRow({row, std::move(view), UIPickerColumn::Maker::Delegate});
        return;
    }
    column->pool(std::move(offered));
    const UIPickerColumn::Row own = column->takeRow(row, UIPickerColumn::Maker::Wheel);
    auto label = std::static_pointer_cast<UILabel>(own.view);
    if (!label) label = makeTitleLabel();
    label->setFont(owner_.titleFont());
    const Ref<NSAttributedString> attributed = delegate ? owner_.attributedTitleForRow(delegate, row, component) : nullptr;
    if (attributed) {
        label->setAttributedText(attributed);
    } else {
        const bool isThere = delegate && components_.hasRow(row, component);
        label->setText(isThere ? owner_.titleForRow(delegate, row, component) : std::nullopt);
    }
    column->showRow({row, std::move(label), UIPickerColumn::Maker::Wheel});
}

std::optional<std::string> UIPickerRows::titleOfRow(NSInteger row, NSInteger component) {
    const UIPickerOwner::Delegate delegate = owner_.lockDelegate();
    if (!delegate || !components_.hasRow(row, component)) return std::nullopt;
    if (const auto title = owner_.attributedTitleForRow(delegate, row, component)) return title->string();
    return components_.hasRow(row, component) ? owner_.titleForRow(delegate, row, component) : std::nullopt;
}

std::optional<std::string> UIPickerRows::accessibilityText(NSInteger row, NSInteger component) {
    const UIPickerOwner::Delegate delegate = owner_.lockDelegate();
    if (!delegate) return std::nullopt;
    if (auto value = owner_.accessibilityValue(delegate, row, component)) return value;
    // A visible view shows whatever the delegate gave. Of a row that is out of sight while its
    // column spins there are only the titles.
    if (const Ref<UIView> view = owner_.visibleView(row, component)) return joinedAccessibilityLabels(view->accessibilityElements());
    return titleOfRow(row, component);
}

} // namespace gx
