// A distance that the user picks, and a program that reads it.

#include <GXUIPickers/GXUIPickers.h>

#include <iostream>

using namespace gx;

/// Receives what the user picks.
struct Run : GXBasePickerViewDelegate {
    void pickerView_didChangeCurrentValue_forComponent(const Ref<GXBasePickerView>& picker, const NSNumber& metres, NSInteger) override {
        std::cout << "the user picked " << metres.doubleValue() << " metres: " << picker->currentValueText() << "\n";
    }
};

int main() {
    const auto picker = create<GXDistancePickerView>(CGRectMake(0, 0, 320, 216));
    picker->setIsMetric(true);
    picker->setMinValue(NSNumber::numberWithInt(0));
    picker->setMaxValue(NSNumber::numberWithInt(100000)); // 100 km. The last row lies below it.

    const auto run = std::make_shared<Run>();
    picker->setDelegate(run); // Held weakly: keep the delegate.

    picker->setCurrentValue(NSNumber::numberWithInt(5300)); // No call of the delegate.
    std::cout << picker->currentValueText() << "\n";

    // What a finger does on a screen. Columns: 0 has the kilometres, 1 the separator, 2 the tenths.
    picker->pickerView()->turnToRow_inComponent(42, 0);
    picker->pickerView()->turnToRow_inComponent(2, 2);
    return picker->currentValue().integerValue() == 42200 ? 0 : 1;
}
