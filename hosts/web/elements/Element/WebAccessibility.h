#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include <GXUIPickers/UIAccessibility.h>
#include <GXUIPickers/UIView.h>

namespace gx::web {

/// The columns of an element that the user can spin, as the page tells them to a screen reader.
///
/// They are known by their order at the last `refresh`. One that is gone since has no texts, and
/// what is done with it is a no-op.
class WebAccessibility {
public:
    /// What the page reads of a column, as it numbers it. Values are the numbers that rows show
    /// (142 of a heart rate, not its row), or indices where rows are no numbers.
    enum class Number : std::int32_t { X = 0, Y, Width, Height, Value, Minimum, Maximum, IsFocused };
    enum class Text : std::int32_t { Label = 0, Value };
    enum class Action : std::int32_t { Focus = 0, Step, SetNumber };

    /// Of the wheels of a view. Returns how many there are now.
    NSInteger refresh(UIView& view);
    /// Nothing where the column has no such number.
    std::optional<double> number_ofColumn(Number number, NSInteger column) const;
    std::optional<std::string> text_ofColumn(Text text, NSInteger column) const;
    void act_onColumn(Action action, NSInteger column, double argument) const;

private:
    Ref<UIAccessibilityElement> at(NSInteger column) const;

    UIAccessibilityElements columns_;
};

} // namespace gx::web
