// A picker of an application's own, and a table cell that shows it.

#include <GXUIPickers/GXUIPickers.h>

#include <iostream>

using namespace gx;

/// Picks the laps of a swim: 1 to 80.
class LapsPickerView : public GXBasePickerView {
public:
    // What a screen reader says: "Laps", and then "12 laps".
    std::optional<std::string> pickerView_accessibilityLabelForComponent(const Ref<UIPickerView>&, NSInteger) override { return "Laps"; }
    std::optional<std::string> pickerView_accessibilityValueForRow_forComponent(const Ref<UIPickerView>& wheel, NSInteger row,
                                                                                NSInteger component) override {
        return pickerView_titleForRow_forComponent(wheel, row, component).value_or("no") + " laps";
    }

protected:
    // Every initialiser calls this once. The superclass goes first.
    void didInitialize() override {
        GXBasePickerView::didInitialize();
        setMinValue(NSNumber::numberWithInt(1));
        setMaxValue(NSNumber::numberWithInt(81)); // Exclusive.
        setCurrentValue(NSNumber::numberWithInt(12));
        showTexts();
    }
    // `reloadData` calls this when the language has changed.
    void showTexts() override {
        if (const Ref<GXMultiValuePickerView> wheel = pickerView()) wheel->setRightLabelText("laps");
    }
};

/// Shows it in a table.
class LapsPickerCell : public GXBasePickerCell {
public:
    // Each cell class needs an identifier of its own.
    static std::string cellIdentifier() { return "LapsPickerCellIdentifier"; }

protected:
    void makePicker() override { showNewPicker<LapsPickerView>(); }
};

/// Receives what the user picks.
struct Swim : GXBasePickerViewDelegate {
    void pickerView_didChangeCurrentValue_forComponent(const Ref<GXBasePickerView>&, const NSNumber& laps, NSInteger) override {
        std::cout << laps.integerValue() << " laps\n";
    }
};

int main() {
    const auto cell = create<LapsPickerCell>(UITableViewCellStyleDefault, LapsPickerCell::cellIdentifier());
    const auto swim = std::make_shared<Swim>(); // The picker holds its delegate weakly.
    cell->pickerView()->setDelegate(swim);

    const Ref<GXMultiValuePickerView> wheel = cell->pickerView()->pickerView();
    std::cout << "begins on row " << wheel->selectedRowInComponent(0) << " of " << wheel->numberOfRowsInComponent(0) << "\n";
    wheel->turnToRow_inComponent(19, 0); // As a user does.
    return cell->pickerView()->currentValue().integerValue() == 20 ? 0 : 1;
}
