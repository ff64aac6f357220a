#pragma once

#include "GXExport.h"

namespace gx {

// How results in double precision become the floats that pickers keep. NaN and infinities stay.

/// The float closest to `value`, of two equally close ones the even one. Beyond the range of a
/// float it is an infinity.
GX_EXPORT float toNearestFloat(double value);

/// The float closest to `value` or, if that is below `value`, the next one above it.
///
/// So never less than `value`, but for a value just above the largest float, 3.4028235e38, which
/// becomes that float. Below the range it is -3.4028235e38.
///
/// For numbers that are truncated later: a 5 that comes back as 4.9999995 would show as a 4.
GX_EXPORT float toBiggerFloat(double value);

} // namespace gx
