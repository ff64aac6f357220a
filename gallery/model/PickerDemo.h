#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include <GXUIPickers/GXBasePickerView.h>

namespace gallery {

/// What a picker told its delegate, in two ways.
struct DelegateNotice {
    std::string words; ///< as a person reads it: "5.3 km"
    std::string facts; ///< as the program got it: "5300.0 m (component 0)"
};
using NoticeHandler = std::function<void(const DelegateNotice& notice)>;

/// Something about a picker that can be chosen among a few. Texts are keys of `Translations`, or as
/// they are shown.
struct DemoOption {
    std::string title;
    std::vector<std::string> choices;
    std::size_t chosen = 0;
    /// Brings the picker to the choice.
    std::function<void(std::size_t choice)> choose;
    /// The choice that the picker is at, for what the user can also change on the wheel itself;
    /// else empty.
    std::function<std::size_t()> current;
};

/// One picker on show: its wheel, what can be chosen about it, and its values.
struct PickerDemo {
    gx::Ref<gx::UIView> picker;
    gx::Ref<gx::UIPickerView> wheel;
    /// The picker again, if it is one whose fonts can be fitted; else empty.
    gx::Ref<gx::GXBasePickerView> textPicker;
    std::vector<DemoOption> options;
    /// Held here, since pickers hold their delegate weakly.
    gx::Ref<gx::NSObject> delegate;

    /// What the picker holds now; a later picker of the same kind takes it over.
    std::function<std::vector<gx::NSNumber>()> values;
    std::function<void(const std::vector<gx::NSNumber>& values)> setValues;
};

/// Shows a picker, and hands what it tells its delegate to `report`.
///
/// `unit` is the base unit of the values that it tells; `inWords` puts such a value into words.
PickerDemo pickerDemo(const gx::Ref<gx::GXBasePickerView>& picker, const NoticeHandler& report, const std::string& unit,
                      std::function<std::string(const gx::NSNumber& value, gx::NSInteger component)> inWords);

/// Metric or imperial, of a picker that begins as metric and knows both.
DemoOption unitSystemOption(const gx::Ref<gx::GXBasePickerView>& picker);
/// Steps from one row to the next. `setStep` brings the picker to one of them.
DemoOption stepOption(std::string title, const std::vector<std::int32_t>& steps, std::size_t chosen,
                      std::function<void(std::int32_t step)> setStep);

/// The text beside the wheel, which is the name of the unit that it shows.
std::string unitBesideWheel(const gx::Ref<gx::GXBasePickerView>& picker);

} // namespace gallery
