#pragma once

#include "GXBasePickerView.h"
#include "GXCaloriesFormatter.h"
#include "GXExport.h"

namespace gx {

/// Picks an amount of energy: 0 to 99990 in steps of 10, starting at 0.
///
/// The unit beside the wheel is the formatter's, and is fixed at construction: neither another unit
/// system nor another formatter changes it. For another one call
/// `pickerView()->setRightLabelText`.
class GX_EXPORT GXCaloriesPickerView : public GXBasePickerView {
public:
    /// Made when first needed, for the unit system of that moment.
    virtual Ref<GXCaloriesFormatter> caloriesFormatter();
    /// Stores only.
    virtual void setCaloriesFormatter(Ref<GXCaloriesFormatter> formatter) { caloriesFormatter_ = std::move(formatter); }
    std::optional<std::string> pickerView_accessibilityValueForRow_forComponent(const Ref<UIPickerView>& pickerView, NSInteger row,
                                                                                NSInteger component) override;

protected:
    void didInitialize() override {
        GXBasePickerView::didInitialize();
        initGXCaloriesPickerView();
    }
    /// Sets range, step, value and unit to those above.
    virtual void initGXCaloriesPickerView();
    void showTexts() override;
    std::optional<GXAccessibilityName> accessibilityMeasurement() const override { return GXAccessibilityName::Calories; }

private:
    Ref<GXCaloriesFormatter> caloriesFormatter_;
};

} // namespace gx
