#include "PickerDemo.h"

#include <utility>

#include "NumberFormat.h"
#include "Translations.h"

using namespace gx;

namespace gallery {

namespace {

/// Hands what a picker tells its delegate to a function.
class FunctionDelegate : public NSObject, public GXBasePickerViewDelegate {
public:
    std::function<void(const NSNumber& value, NSInteger component)> handler;

    void pickerView_didChangeCurrentValue_forComponent(const Ref<GXBasePickerView>&, const NSNumber& value, NSInteger component) override {
        if (handler) handler(value, component);
    }
};

} // namespace

PickerDemo pickerDemo(const Ref<GXBasePickerView>& picker, const NoticeHandler& report, const std::string& unit,
                      std::function<std::string(const NSNumber&, NSInteger)> inWords) {
    const auto delegate = create<FunctionDelegate>();
    delegate->handler = [report, unit, inWords = std::move(inWords)](const NSNumber& value, NSInteger component) {
        const std::string number = NumberFormat::isolated(NumberFormat::boxed(value) + " " + unit);
        report({inWords(value, component), Translations::filled("{0} (component {1})", number, std::to_string(component))});
    };
    picker->setDelegate(delegate);

    PickerDemo demo;
    demo.picker = picker;
    demo.wheel = picker->pickerView();
    demo.textPicker = picker;
    demo.delegate = delegate;
    demo.values = [picker] { return std::vector<NSNumber>{picker->currentValue()}; };
    demo.setValues = [picker](const std::vector<NSNumber>& values) {
        if (!values.empty()) picker->setCurrentValue(values.front());
    };
    return demo;
}

DemoOption unitSystemOption(const Ref<GXBasePickerView>& picker) {
    return {"Unit system", {"Metric", "Imperial"}, 0, [picker](std::size_t choice) { picker->setIsMetric(choice == 0); }, {}};
}

DemoOption stepOption(std::string title, const std::vector<std::int32_t>& steps, std::size_t chosen,
                      std::function<void(std::int32_t step)> setStep) {
    std::vector<std::string> choices;
    choices.reserve(steps.size());
    for (const std::int32_t step : steps) choices.push_back(std::to_string(step));
    return {std::move(title),
            std::move(choices),
            chosen,
            [steps, setStep = std::move(setStep)](std::size_t choice) { setStep(steps.at(choice)); },
            {}};
}

std::string unitBesideWheel(const Ref<GXBasePickerView>& picker) { return picker->pickerView()->rightLabelText().value_or(""); }

} // namespace gallery
