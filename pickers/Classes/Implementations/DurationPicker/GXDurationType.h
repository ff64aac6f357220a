#pragma once

#include "NSObject.h"

namespace gx {

// The layouts that `GXDurationPickerView::setType` takes.

/// Hours and minutes.
inline constexpr NSInteger GXDurationTypeHoursMinutes = 0;
/// Hours, minutes and seconds.
inline constexpr NSInteger GXDurationTypeHoursMinutesSeconds = 1;
/// Minutes and seconds; for durations below an hour.
inline constexpr NSInteger GXDurationTypeMinutesSeconds = 2;

} // namespace gx
