// A picker of two values on several columns: 120/80 mmHg.

#include <GXUIPickers/GXUIPickers.h>

#include <iostream>

using namespace gx;

/// Picks 70 to 200 over 40 to 130. The value is the upper one times 1000 plus the lower one.
class BloodPressurePickerView : public GXBasePickerView {
public:
    // The values, a column for the separator that has one row without a title, the values.
    NSInteger numberOfComponentsInPickerView(const Ref<UIPickerView>&) override { return 3; }
    NSInteger pickerView_numberOfRowsInComponent(const Ref<UIPickerView>&, NSInteger component) override {
        return component == upper ? 131 : component == lower ? 91 : 1;
    }
    std::optional<std::string> pickerView_titleForRow_forComponent(const Ref<UIPickerView>&, NSInteger row, NSInteger component) override {
        if (component != upper && component != lower) return std::nullopt;
        return std::to_string(row + (component == upper ? lowestUpper : lowestLower));
    }
    CGFloat pickerView_widthForComponent(const Ref<UIPickerView>& wheel, NSInteger component) override {
        return component == upper || component == lower ? GXBasePickerView::pickerView_widthForComponent(wheel, component) : 5;
    }
    // From the value to the rows, and back.
    void selectCurrentValue() override {
        const NSInteger value = currentValue().integerValue();
        pickerView()->selectRow_inComponent_animated(value / 1000 - lowestUpper, upper, false);
        pickerView()->selectRow_inComponent_animated(value % 1000 - lowestLower, lower, false);
    }
    void pickerView_didSelectRow_inComponent(const Ref<UIPickerView>& wheel, NSInteger, NSInteger) override {
        const NSInteger upperValue = wheel->selectedRowInComponent(upper) + lowestUpper;
        const NSInteger lowerValue = wheel->selectedRowInComponent(lower) + lowestLower;
        // Its rows are selected already, so it is stored alone.
        storeCurrentValue(NSNumber::numberWithInt(static_cast<int>(upperValue * 1000 + lowerValue)));
        informDelegateOfValueChange();
    }
    std::optional<std::string> pickerView_accessibilityLabelForComponent(const Ref<UIPickerView>&, NSInteger component) override {
        return component == upper ? "Systolic" : "Diastolic";
    }

protected:
    void didInitialize() override {
        GXBasePickerView::didInitialize();
        setCurrentValue(NSNumber::numberWithInt(120080));
        showTexts();
    }
    void showTexts() override {
        if (!pickerView()) return;
        pickerView()->setSeparatorText_afterComponent("/", upper);
        pickerView()->setRightLabelText("mmHg");
    }

private:
    static constexpr NSInteger upper = 0;
    static constexpr NSInteger lower = 2;
    static constexpr NSInteger lowestUpper = 70;
    static constexpr NSInteger lowestLower = 40;
};

/// Receives what the user picks.
struct Reading : GXBasePickerViewDelegate {
    void pickerView_didChangeCurrentValue_forComponent(const Ref<GXBasePickerView>& picker, const NSNumber& value, NSInteger) override {
        std::cout << value.integerValue() << ": " << picker->currentValueText() << "\n";
    }
};

int main() {
    const auto picker = create<BloodPressurePickerView>(CGRectMake(0, 0, 320, 216));
    const auto reading = std::make_shared<Reading>();
    picker->setDelegate(reading);
    std::cout << picker->currentValueText() << "\n";
    picker->pickerView()->turnToRow_inComponent(54, 0);
    picker->pickerView()->turnToRow_inComponent(39, 2);
    return 0;
}
