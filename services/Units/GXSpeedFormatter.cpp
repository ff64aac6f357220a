#include "GXSpeedFormatter.h"

namespace gx {

std::optional<std::string> GXSpeedFormatter::unit(const NSNumber&) const {
    return metric() ? localizedUnit("km/h", "unit km/h (kilometers per hour)") : localizedUnit("mph", "unit mph (miles per hour)");
}

} // namespace gx
