// What a screen reader finds in a wheel: its columns.

#include "UIPickerViewComponent.h"

namespace gx {

/// A column of a wheel. It turns as by a notch of a mouse wheel, so that several quick steps add up, and what it turns to is reported once.
class UIPickerView::ColumnElement : public UIAccessibilityElement {
public:
    ColumnElement(const Ref<UIPickerView>& wheel, NSInteger part)
        : UIAccessibilityElement(wheel, UIAccessibilityRole::Adjustable, part), wheel_(wheel) {}

    bool exists() const override { return UIAccessibilityElement::exists() && present().has_value(); }

    std::optional<std::string> label() const override {
        const std::optional<Column> column = present();
        if (!column) return std::nullopt;
        const auto& [wheel, component] = *column;
        const Ref<UIPickerViewDelegate> delegate = wheel->delegate_.lock();
        std::optional<std::string> label = delegate ? delegate->pickerView_accessibilityLabelForComponent(wheel, component) : std::nullopt;
        return label ? label : wheel->accessibilityLabel();
    }
    std::optional<std::string> value() const override {
        const std::optional<Column> column = present();
        if (!column) return std::nullopt;
        const auto& [wheel, component] = *column;
        return wheel->spokenRow(wheel->selectedRowInComponent(component), component);
    }
    CGRect frame() const override {
        const std::optional<Column> column = present();
        if (!column || !UIAccessibilityElement::exists()) return CGRectNull;
        const auto& [wheel, component] = *column;
        const CGPoint origin = wheel->convertPointFromWindow({});
        return CGRectOffset(wheel->at(component).column->frame(), -origin.x, -origin.y);
    }

    std::optional<NSInteger> index() const override {
        const std::optional<Column> column = present();
        return column ? std::optional(column->wheel->selectedRowInComponent(column->component)) : std::nullopt;
    }
    NSInteger count() const override {
        const std::optional<Column> column = present();
        return column ? column->wheel->numberOfRowsInComponent(column->component) : 0;
    }

    void increment() override { step(1); }
    void decrement() override { step(-1); }
    void setIndex(NSInteger index) override {
        turn([index](UIPickerTurn& column) { return column.turnToRow(index); });
    }

private:
    struct Column {
        Ref<UIPickerView> wheel;
        NSInteger component;
    };

    /// The wheel, while it has the column, and where.
    std::optional<Column> present() const {
        const Ref<UIPickerView> wheel = wheel_.lock();
        const NSInteger component = wheel ? wheel->adjustableComponent(part()) : -1;
        return component >= 0 ? std::optional(Column{wheel, component}) : std::nullopt;
    }

    void step(NSInteger rows) const {
        turn([rows](UIPickerTurn& column) { return column.stepByRows(rows); });
    }
    template <class Order>
    void turn(Order order) const {
        if (const std::optional<Column> column = isEnabled() ? present() : std::nullopt) column->wheel->completeTyping();
        // Who was told of a typed text may have changed the columns.
        const std::optional<Column> column = isEnabled() ? present() : std::nullopt;
        if (column && order(column->wheel->at(column->component).turn)) column->wheel->startMoving();
    }

    WeakRef<UIPickerView> wheel_;
};

/// Where the column is shown that screen readers know as this part; −1 while the user cannot turn it.
NSInteger UIPickerView::adjustableComponent(NSInteger part) {
    const Ref<UIPickerView> keep = self();
    if (CGRectIsEmpty(bounds())) return -1;
    layoutIfNeeded();
    for (NSInteger i = 0; i < count_; ++i) {
        if (at(i).part == part) return canBeChosen(i) ? i : -1;
    }
    return -1;
}

std::optional<std::string> UIPickerView::spokenRow(NSInteger row, NSInteger component) {
    const Ref<UIPickerView> keep = self();
    const Ref<UIPickerViewDelegate> delegate = delegate_.lock();
    if (!delegate) return std::nullopt;
    if (auto value = delegate->pickerView_accessibilityValueForRow_forComponent(keep, row, component)) return value;
    // A view in sight shows whatever the delegate gave. Of a row that is out of sight while its column spins there are only the titles.
    if (const Ref<UIView> view = viewForRow_forComponent(row, component)) return joinedAccessibilityLabels(view->accessibilityElements());
    return titleOfRow(row, component);
}

UIAccessibilityElements UIPickerView::accessibilityElements() {
    const Ref<UIPickerView> keep = self();
    UIAccessibilityElements elements;
    for (NSInteger i = 0; i < numberOfComponents(); ++i) {
        const NSInteger part = at(i).part;
        if (adjustableComponent(part) == i) elements.push_back(std::make_shared<ColumnElement>(keep, part));
    }
    return elements;
}

} // namespace gx
