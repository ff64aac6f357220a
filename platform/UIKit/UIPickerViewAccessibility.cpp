// What a screen reader finds in a wheel: its columns.

#include "UIPickerViewComponent.h"

namespace gx {

/// A column of a wheel. It turns as by a notch of a mouse wheel, so that several quick steps add up, and what it turns to is reported once.
class UIPickerView::ColumnElement : public UIAccessibilityElement {
public:
    ColumnElement(const Ref<UIPickerView>& wheel, NSInteger component)
        : UIAccessibilityElement(wheel, UIAccessibilityRole::Adjustable, component), wheel_(wheel) {}

    bool exists() const override { return UIAccessibilityElement::exists() && present() != nullptr; }

    std::optional<std::string> label() const override {
        const Ref<UIPickerView> wheel = present();
        if (!wheel) return std::nullopt;
        const Ref<UIPickerViewDelegate> delegate = wheel->delegate_.lock();
        std::optional<std::string> label = delegate ? delegate->pickerView_accessibilityLabelForComponent(wheel, part()) : std::nullopt;
        return label ? label : wheel->accessibilityLabel();
    }
    std::optional<std::string> value() const override {
        const Ref<UIPickerView> wheel = present();
        return wheel ? wheel->spokenRow(wheel->selectedRowInComponent(part()), part()) : std::nullopt;
    }
    CGRect frame() const override {
        const Ref<UIPickerView> wheel = present();
        if (!wheel || !UIAccessibilityElement::exists()) return CGRectNull;
        const CGPoint origin = wheel->convertPointFromWindow({});
        return CGRectOffset(wheel->at(part()).column->frame(), -origin.x, -origin.y);
    }

    std::optional<NSInteger> index() const override {
        const Ref<UIPickerView> wheel = present();
        return wheel ? std::optional(wheel->selectedRowInComponent(part())) : std::nullopt;
    }
    NSInteger count() const override {
        const Ref<UIPickerView> wheel = present();
        return wheel ? wheel->numberOfRowsInComponent(part()) : 0;
    }

    void increment() override { step(1); }
    void decrement() override { step(-1); }
    void setIndex(NSInteger index) override {
        turn([index](UIPickerTurn& column) { return column.turnToRow(index); });
    }

private:
    /// The wheel, while it has the column.
    Ref<UIPickerView> present() const {
        const Ref<UIPickerView> wheel = wheel_.lock();
        return wheel && wheel->isAdjustable(part()) ? wheel : nullptr;
    }

    void step(NSInteger rows) const {
        turn([rows](UIPickerTurn& column) { return column.stepByRows(rows); });
    }
    template <class Order>
    void turn(Order order) const {
        if (const Ref<UIPickerView> wheel = isEnabled() ? present() : nullptr) wheel->completeTyping();
        // Who was told of a typed text may have changed the columns.
        const Ref<UIPickerView> wheel = isEnabled() ? present() : nullptr;
        if (wheel && order(wheel->at(part()).turn)) wheel->startMoving();
    }

    WeakRef<UIPickerView> wheel_;
};

bool UIPickerView::isAdjustable(NSInteger component) {
    const Ref<UIPickerView> keep = self();
    if (CGRectIsEmpty(bounds())) return false;
    layoutIfNeeded();
    return canTurn(component) && at(component).rows > 1;
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
        if (isAdjustable(i)) elements.push_back(std::make_shared<ColumnElement>(keep, i));
    }
    return elements;
}

} // namespace gx
