#pragma once

#include <string>

#include <GXUIPickers/GXBasePickerView.h>

namespace gallery {

/// What a wheel shows, as a person writes it.
class WheelReading {
public:
    WheelReading() = delete;

    /// The rows that are selected with the separators between them: "5.3", "00:27:30". A column that shows nothing adds nothing.
    static std::string numberOnWheel(const gx::Ref<gx::GXBasePickerView>& picker);
    /// Without the zero that a wheel of hours or minutes begins with: "0:27:30" for "00:27:30".
    static std::string clockOnWheel(const gx::Ref<gx::GXBasePickerView>& picker);
    /// With the unit that stands at the wheel's right: "5.3 km".
    static std::string amountOnWheel(const gx::Ref<gx::GXBasePickerView>& picker);
};

} // namespace gallery
