#include "GXCaloriesFormatter.h"

namespace gx {

std::optional<std::string> GXCaloriesFormatter::unit(const NSNumber&) const { return localizedUnit("kcal", "unit kcal (kilocalorie)"); }

} // namespace gx
