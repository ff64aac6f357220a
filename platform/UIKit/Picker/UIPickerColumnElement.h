#pragma once

#include "UIPickerController.h"
#include "UIPickerOrderedNumbers.h"

namespace gx {

/// What a screen reader finds of one column of a wheel: something adjustable.
///
/// It moves as by a notch of a mouse wheel, so that several quick steps add up, and what it moves
/// to is reported once. It holds the wheel weakly, and knows the column by a part that follows it
/// when columns change places.
class UIPickerColumnElement : public UIAccessibilityElement {
public:
    /// What the element reads and moves. Lives as long as the wheel; a reference to it keeps the
    /// wheel alive.
    struct Wheel {
        UIView& view;
        UIPickerOwner& owner;
        UIPickerComponents& components;
        UIPickerRows& rows;
        UIPickerController& controller;
    };

    UIPickerColumnElement(const Ref<UIView>& view, WeakRef<Wheel> wheel, NSInteger part)
        : UIAccessibilityElement(view, UIAccessibilityRole::Adjustable, part), wheel_(std::move(wheel)) {}

    /// One for each column of a wheel that the user can spin now.
    static UIAccessibilityElements elementsOf(const Ref<UIView>& view, const Ref<Wheel>& wheel);

    bool exists() const override;
    std::optional<std::string> label() const override;
    std::optional<std::string> value() const override;
    CGRect frame() const override;
    std::optional<NSInteger> index() const override;
    NSInteger count() const override;
    /// Those of the rows' titles, if they are numbers in order.
    std::optional<UIAccessibilityNumbers> numbers() const override;

    bool isFocused() const override;
    /// Also makes it the column of the keys.
    bool focus() const override;

    void increment() override;
    void decrement() override;
    void setIndex(NSInteger index) override;
    void setNumber(double number) override;

private:
    struct Column {
        Ref<Wheel> wheel;
        NSInteger component = 0;
    };

    static NSInteger adjustableComponent(const Wheel& wheel, NSInteger part);
    static UIPickerOrderedNumbers::Titles titlesOf(const Column& column);

    std::optional<Column> present() const;
    std::optional<Column> presentForUser() const;
    void step(NSInteger rows) const;

    WeakRef<Wheel> wheel_;
};

} // namespace gx
