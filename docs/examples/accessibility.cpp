// What a screen reader finds of a picker, and what it may do.

#include <GXUIPickers/GXUIPickers.h>
#include <GXUIPickers/UIWindow.h>

#include <iostream>

using namespace gx;

namespace {

void say(const UIAccessibilityElement& column) {
    std::cout << column.label().value_or("-") << ": " << column.value().value_or("-");
    if (const auto numbers = column.numbers())
        std::cout << " (" << numbers->value << " in " << numbers->minimum << " to " << numbers->maximum << ")";
    std::cout << "\n";
}

} // namespace

int main() {
    const auto window = create<UIWindow>(CGRectMake(0, 0, 320, 216));
    const auto picker = create<GXHeartRatePickerView>(window->bounds());
    picker->setAccessibilityLabel("Run"); // What the picker is called on its screen.
    window->addSubview(picker);
    window->tick(0);

    const UIAccessibilityElements columns = picker->accessibilityElements();
    for (const auto& column : columns) say(*column);

    // A step, and a number as it is shown; both count as the user's.
    columns.back()->increment();
    columns.front()->setNumber(142);
    for (double time = 0; window->tick(time); time += 1.0 / 60) {
    }
    for (const auto& column : columns) say(*column);
    return 0;
}
