#include "QuantityPages.h"

#include <cmath>

#include "NumberFormat.h"
#include "Theme.h"
#include "Translations.h"
#include <GXUIPickers/GXCaloriesPickerView.h>
#include <GXUIPickers/GXHeightPickerView.h>
#include <GXUIPickers/GXLocalization.h>
#include <GXUIPickers/GXTemperaturePickerView.h>
#include <GXUIPickers/GXUnitConverter.h>
#include <GXUIPickers/GXWeightPickerView.h>

using namespace gx;

namespace gallery {

namespace {

// Temperature

PickerDemo makeTemperatureDemo(const NoticeHandler& report) {
    const auto picker = create<GXTemperaturePickerView>(CGRectZero);

    PickerDemo demo = pickerDemo(picker, report, "°C", [picker](const NSNumber& celsius, NSInteger) {
        const float shown = picker->isMetric() ? celsius.floatValue() : GXUnitConverter::temperatureCtoF(celsius.floatValue());
        return NumberFormat::decimal(static_cast<double>(shown), 0) + " " + unitBesideWheel(picker);
    });
    demo.options = {
        unitSystemOption(picker),
        stepOption("Step", {1, 5, 10}, 1, [picker](std::int32_t step) { picker->setStepSize(NSNumber::numberWithInt(step)); }),
    };
    return demo;
}

// Weight

std::string weightInWords(GXWeightUnit unit, const NSNumber& kilograms) {
    const auto words = [](double weight, const char* key) {
        const auto name = GXLocalization::sharedLocalization()->localizedStringWithKey_comment(key, "unit of a weight");
        return NumberFormat::decimal(weight, 1) + " " + name.value_or("");
    };
    if (unit == GXWeightUnitPound) return words(static_cast<double>(GXUnitConverter::kgToLb(kilograms.floatValue())), "lb");
    if (unit == GXWeightUnitStone) return words(static_cast<double>(GXUnitConverter::kgToSt(kilograms.floatValue())), "st");
    return words(kilograms.doubleValue(), "kg");
}

PickerDemo makeWeightDemo(const NoticeHandler& report) {
    const auto picker = create<GXWeightPickerView>(CGRectZero);
    picker->setCurrentValue(NSNumber::numberWithDouble(72.5));

    PickerDemo demo = pickerDemo(picker, report, "kg",
                                 [picker](const NSNumber& kilograms, NSInteger) { return weightInWords(picker->weightUnit(), kilograms); });
    demo.options = {
        {"Unit",
         {"Kilograms", "Pounds", "Stones"},
         0,
         [picker](std::size_t choice) {
             picker->setWeightUnit(static_cast<GXWeightUnit>(choice));
             picker->updateMinMaxWeight();
             picker->selectCurrentValue();
         },
         [picker] { return static_cast<std::size_t>(picker->weightUnit()); }},
        {"Unit on the wheel",
         {"Beside it", "As a column"},
         0,
         [picker](std::size_t choice) {
             picker->setWeightUnitSelectable(choice == 1);
             picker->selectCurrentValue(); // Selects the unit in the new column too.
         },
         {}},
    };
    return demo;
}

// Height

std::string heightInWords(CGFloat centimetres, bool isMetric) {
    if (isMetric) {
        const auto unit = GXLocalization::sharedLocalization()->localizedStringWithKey_comment("cm", "unit of a height");
        return NumberFormat::decimal(centimetres, 0) + " " + unit.value_or("");
    }
    constexpr CGFloat centimetresInInch = 2.54;
    const auto inches = static_cast<NSInteger>(std::round(centimetres / centimetresInInch));
    return std::to_string(inches / 12) + "′ " + std::to_string(inches % 12) + "″";
}

/// The height picker has a delegate protocol of its own.
class HeightDelegate : public NSObject, public GXHeightPickerViewDelegate {
public:
    void setReport(NoticeHandler report) { report_ = std::move(report); }

    void heightPickerView_didSelectHeightInCm_metric(const Ref<GXHeightPickerView>&, CGFloat height, bool metric) override {
        const std::string value = NumberFormat::boxed(NSNumber::numberWithDouble(height)) + " cm";
        report_({heightInWords(height, metric), Translations::filled(metric ? "{0} (metric)" : "{0} (imperial)", value)});
    }

private:
    NoticeHandler report_;
};

PickerDemo makeHeightDemo(const NoticeHandler& report) {
    const auto picker = create<GXHeightPickerView>(CGRectZero);
    const auto delegate = create<HeightDelegate>();
    delegate->setReport(report);
    picker->setHeightDelegate(delegate);
    picker->setHeightInCm(176);

    PickerDemo demo;
    demo.picker = picker;
    demo.wheel = picker;
    demo.delegate = delegate;
    demo.options = {
        {"Unit system",
         {"Metric", "Imperial"},
         0,
         [picker](std::size_t choice) { picker->setIsMetric(choice == 0); },
         [picker] { return std::size_t{picker->isMetric() ? 0U : 1U}; }},
        // Its rows are black until they are given another tint; the label colour shows in both
        // looks.
        {"Tint",
         {"Text", "Accent"},
         0,
         [picker](std::size_t choice) { picker->setTintColor(choice == 0 ? UIColor::labelColor() : Theme::accent()); },
         {}},
    };
    demo.values = [picker] { return std::vector<NSNumber>{NSNumber::numberWithDouble(picker->heightInCm())}; };
    demo.setValues = [picker](const std::vector<NSNumber>& values) {
        if (!values.empty()) picker->setHeightInCm(values.front().doubleValue());
    };
    return demo;
}

// Calories

PickerDemo makeCaloriesDemo(const NoticeHandler& report) {
    const auto picker = create<GXCaloriesPickerView>(CGRectZero);
    picker->setCurrentValue(NSNumber::numberWithInt(450));

    PickerDemo demo = pickerDemo(picker, report, "kcal", [picker](const NSNumber& calories, NSInteger) {
        return NumberFormat::decimal(calories.doubleValue(), 0) + " " + unitBesideWheel(picker);
    });
    demo.options = {
        stepOption("Step", {10, 50, 100}, 0, [picker](std::int32_t step) { picker->setStepSize(NSNumber::numberWithInt(step)); }),
        {"Range",
         {Translations::filled("Below {0}", "100000"), Translations::filled("Below {0}", "2000")},
         0,
         [picker](std::size_t choice) { picker->setMaxValue(NSNumber::numberWithInt(choice == 0 ? 100000 : 2000)); },
         {}},
    };
    return demo;
}

} // namespace

PickerPageDescription temperaturePage() {
    return {"Temperature", "Celsius or Fahrenheit in even steps. The value is in degrees Celsius.", makeTemperatureDemo};
}

PickerPageDescription weightPage() {
    return {"Weight", "Kilograms, pounds or stones with one decimal. The value is in kilograms.", makeWeightDemo};
}

PickerPageDescription heightPage() {
    return {"Height", "Centimetres, or feet and inches, chosen on the wheel itself. The value is in centimetres.", makeHeightDemo};
}

PickerPageDescription caloriesPage() {
    return {"Calories", "An amount of energy, in ten thousand rows if need be. The value is what the wheel shows.", makeCaloriesDemo};
}

} // namespace gallery
