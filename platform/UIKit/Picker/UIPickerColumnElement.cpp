#include "UIPickerColumnElement.h"

#include <cmath>

namespace gx {

/// Where the column is shown that is known as this part; −1 while the user cannot spin it.
NSInteger UIPickerColumnElement::adjustableComponent(const Wheel& wheel, NSInteger part) {
    if (CGRectIsEmpty(wheel.view.bounds())) return -1;
    wheel.view.layoutIfNeeded();
    const UIPickerComponents& components = wheel.components;
    for (NSInteger i = 0; i < components.count(); ++i) {
        if (components.at(i).part == part) return components.canBeChosen(i) ? i : -1;
    }
    return -1;
}

UIAccessibilityElements UIPickerColumnElement::elementsOf(const Ref<UIView>& view, const Ref<Wheel>& wheel) {
    UIAccessibilityElements elements;
    for (NSInteger i = 0; i < wheel->owner.componentCount(); ++i) {
        const NSInteger part = wheel->components.at(i).part;
        if (adjustableComponent(*wheel, part) == i) elements.push_back(std::make_shared<UIPickerColumnElement>(view, wheel, part));
    }
    return elements;
}

/// The wheel, while it has the column, and where.
std::optional<UIPickerColumnElement::Column> UIPickerColumnElement::present() const {
    const Ref<Wheel> wheel = wheel_.lock();
    const NSInteger component = wheel ? adjustableComponent(*wheel, part()) : -1;
    return component >= 0 ? std::optional(Column{wheel, component}) : std::nullopt;
}

/// The same for what the user could do, after what was typed is complete.
std::optional<UIPickerColumnElement::Column> UIPickerColumnElement::presentForUser() const {
    if (const std::optional<Column> column = isEnabled() ? present() : std::nullopt) column->wheel->controller.completeTyping();
    // The report of a typed text may have changed the columns.
    return isEnabled() ? present() : std::nullopt;
}

bool UIPickerColumnElement::exists() const { return UIAccessibilityElement::exists() && present().has_value(); }

std::optional<std::string> UIPickerColumnElement::label() const {
    const std::optional<Column> column = present();
    if (!column) return std::nullopt;
    UIPickerOwner& owner = column->wheel->owner;
    const UIPickerOwner::Delegate delegate = owner.lockDelegate();
    std::optional<std::string> label = delegate ? owner.accessibilityLabel(delegate, column->component) : std::nullopt;
    return label ? label : column->wheel->view.accessibilityLabel();
}

std::optional<std::string> UIPickerColumnElement::value() const {
    const std::optional<Column> column = present();
    if (!column) return std::nullopt;
    return column->wheel->rows.accessibilityText(column->wheel->owner.announcedRow(column->component), column->component);
}

CGRect UIPickerColumnElement::frame() const {
    const std::optional<Column> column = present();
    if (!column || !UIAccessibilityElement::exists()) return CGRectNull;
    const CGPoint origin = column->wheel->view.convertPointFromWindow({});
    return CGRectOffset(column->wheel->components.at(column->component).column->frame(), -origin.x, -origin.y);
}

std::optional<NSInteger> UIPickerColumnElement::index() const {
    const std::optional<Column> column = present();
    return column ? std::optional(column->wheel->owner.announcedRow(column->component)) : std::nullopt;
}

NSInteger UIPickerColumnElement::count() const {
    const std::optional<Column> column = present();
    return column ? column->wheel->owner.rowCount(column->component) : 0;
}

// The focus

bool UIPickerColumnElement::isFocused() const {
    const std::optional<Column> column = UIAccessibilityElement::isFocused() ? present() : std::nullopt;
    return column && column->wheel->controller.componentOfKeys() == column->component;
}

bool UIPickerColumnElement::focus() const {
    const std::optional<Column> column = presentForUser();
    if (!column) return false;
    column->wheel->controller.chooseComponent(column->component);
    return UIAccessibilityElement::focus() && isFocused();
}

// Numbers

std::optional<UIAccessibilityNumbers> UIPickerColumnElement::numbers() const {
    const std::optional<Column> column = present();
    if (!column) return std::nullopt;
    const UIPickerOrderedNumbers::Titles titles = titlesOf(*column);
    const NSInteger row = column->wheel->owner.announcedRow(column->component);
    const UIPickerOrderedNumbers numbers(count(), titles, UIPickerOrderedNumbers::leadingNumber);
    if (const auto shown = numbers.shownAtRow(row))
        return UIAccessibilityNumbers{shown->value, shown->minimum, shown->maximum, shown->step};
    return UIAccessibilityElement::numbers();
}

void UIPickerColumnElement::setNumber(double number) {
    const std::optional<Column> column = std::isnan(number) ? std::nullopt : presentForUser();
    if (!column) return;
    const UIPickerOrderedNumbers::Titles titles = titlesOf(*column);
    const UIPickerOrderedNumbers numbers(count(), titles, UIPickerOrderedNumbers::leadingNumber);
    if (!numbers.shownAtRow(column->wheel->owner.announcedRow(column->component))) return UIAccessibilityElement::setNumber(number);
    setIndex(numbers.rowNearestTo(number));
}

UIPickerOrderedNumbers::Titles UIPickerColumnElement::titlesOf(const Column& column) {
    return [wheel = column.wheel, component = column.component](NSInteger row) { return wheel->rows.titleOfRow(row, component); };
}

// Actions

void UIPickerColumnElement::increment() { step(1); }
void UIPickerColumnElement::decrement() { step(-1); }

void UIPickerColumnElement::setIndex(NSInteger index) {
    if (const std::optional<Column> column = presentForUser()) column->wheel->controller.spinComponent_toRow(column->component, index);
}

void UIPickerColumnElement::step(NSInteger rows) const {
    if (const std::optional<Column> column = presentForUser()) column->wheel->controller.stepComponent_byRows(column->component, rows);
}

} // namespace gx
