#pragma once

#include <gtest/gtest.h>

#include "GXDurationPickerView.h"
#include "GXLocalization.h"
#include "NSLocale.h"
#include "NSRunLoop.h"
#include "PickerTest.h"

constexpr gx::CGRect place = {{0, 0}, {320, 216}};

/// Puts language and locale back.
struct PickerAccessibilityText : testing::Test {
    ~PickerAccessibilityText() override {
        gx::NSLocale::setCurrentLocale(nullptr);
        gx::GXLocalization::setSharedLocalization(nullptr);
        gx::NSRunLoop::mainRunLoop()->runPass(); // The height picker sets its unit right there.
    }
    static void speak(const std::string& language) {
        gx::NSLocale::setCurrentLocale(gx::NSLocale::localeWithIdentifier(language));
        gx::GXLocalization::sharedLocalization()->setLanguage(language);
    }
};

using Texts = std::vector<std::string>;

inline Texts labelsOf(const gx::Ref<gx::UIView>& view) {
    Texts texts;
    for (const auto& element : view->accessibilityElements()) texts.push_back(element->label().value_or("(none)"));
    return texts;
}
inline Texts valuesOf(const gx::Ref<gx::UIView>& view) {
    Texts texts;
    for (const auto& element : view->accessibilityElements()) texts.push_back(element->value().value_or("(none)"));
    return texts;
}
/// The one value of all components.
inline std::string valueOf(const gx::Ref<gx::UIView>& view) {
    const Texts values = valuesOf(view);
    EXPECT_FALSE(values.empty());
    for (const std::string& value : values) EXPECT_EQ(value, values[0]);
    return values.empty() ? "" : values[0];
}

template <class Picker>
gx::Ref<Picker> metricPicker(const gx::NSNumber& value) {
    const auto picker = gx::create<Picker>(place);
    picker->setIsMetric(true);
    picker->setCurrentValue(value);
    return picker;
}
inline gx::Ref<gx::GXDurationPickerView> durationOfType(gx::NSInteger type, int milliseconds) {
    const auto picker = gx::create<gx::GXDurationPickerView>(place);
    picker->setType(type);
    picker->setSecondsStepSize(1);
    picker->setCurrentValue(boxed(milliseconds));
    return picker;
}
