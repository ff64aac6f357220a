// An application's code, tested by turning its wheels: no screen, no waiting.

#include <GXUIPickers/GXUIPickers.h>
#include <GXUIPickers/UIWindow.h>

#include <iostream>

using namespace gx;

/// What is to be tested: a form that keeps the weight as a text.
struct WeightForm : GXBasePickerViewDelegate {
    WeightForm() { picker->setCurrentValue(NSNumber::numberWithInt(70)); }
    void pickerView_didChangeCurrentValue_forComponent(const Ref<GXBasePickerView>&, const NSNumber&, NSInteger) override {
        text = picker->currentValueText();
        ++changes;
    }

    Ref<GXWeightPickerView> picker = create<GXWeightPickerView>(CGRectMake(0, 0, 320, 216));
    std::string text;
    int changes = 0;
};

namespace {

int failures = 0;
void expect(bool condition, const char* what) {
    std::cout << (condition ? "ok    " : "FAILED ") << what << "\n";
    if (!condition) ++failures;
}

} // namespace

int main() {
    const auto form = std::make_shared<WeightForm>();
    form->picker->setDelegate(form);

    // Shortest: what any gesture ends in. Row 57 of the whole kilograms is 72, as they begin at 15.
    form->picker->pickerView()->turnToRow_inComponent(57, 0);
    expect(form->text == "72.0 kg", "a turn of the wheel reaches the form");

    // Through a window, as a host does it: keys and fingers, and time that the test moves.
    const auto window = create<UIWindow>(CGRectMake(0, 0, 320, 216));
    window->addSubview(form->picker);
    double time = 0;
    const auto settle = [&] {
        while (window->tick(time)) time += 1.0 / 60;
    };
    settle();
    form->picker->pickerView()->becomeFirstResponder();
    for (const char* const character : {"8", "1", ".", "5"}) {
        window->keyDown({UIKey::Code::Character, character, 0, false, time});
    }
    time += 2; // A typed text is complete after a second.
    settle();
    expect(form->text == "81.5 kg", "typed digits turn both columns");

    const int before = form->changes;
    form->picker->setCurrentValue(NSNumber::numberWithInt(60));
    settle();
    expect(form->changes == before, "what the program sets is not reported");
    return failures;
}
