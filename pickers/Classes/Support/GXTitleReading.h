#pragma once

#include <optional>
#include <string>

#include "NSObject.h"

namespace gx {

// How pickers read the number back that a row shows. Both take any text and do not depend on the C
// locale. Blanks before the number and anything after it are skipped; no title, or one that does
// not begin with a number, reads as 0.

/// The whole number, with a sign if there is one; beyond 64 bits it is the nearest number there is.
NSInteger integerValueOfTitle(const std::optional<std::string>& title);
/// The decimal number, its fraction after a ".". Exact to 15 digits.
double doubleValueOfTitle(const std::optional<std::string>& title);

} // namespace gx
