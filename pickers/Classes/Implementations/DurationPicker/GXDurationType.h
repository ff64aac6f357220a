#pragma once

#include "NSObject.h"

namespace gx {

/// The layouts that `GXDurationPickerView::type` knows.
inline constexpr NSInteger GXDurationTypeHoursMinutes = 0;
inline constexpr NSInteger GXDurationTypeHoursMinutesSeconds = 1;
inline constexpr NSInteger GXDurationTypeMinutesSeconds = 2;

} // namespace gx
