#pragma once

namespace gx {

/// How results that are worked out in double precision become the single-precision numbers that pickers keep. Both take any double:
/// NaN stays NaN, infinities stay, and what lies beyond the range of a float is told below.

/// The float closest to `value`, of two equally close ones the even one. Beyond the range it is an infinity.
float toNearestFloat(double value);

/// The float closest to `value` or, if that is below `value`, the next one towards 3.4028235e38: so never less than `value`, with the
/// one exception that a value a hair above the largest float becomes that float. Below the range it is -3.4028235e38.
///
/// For numbers whose digits are cut off later: a 5 that comes back as 4.9999995 would show as a 4.
float toBiggerFloat(double value);

} // namespace gx
