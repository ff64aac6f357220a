#include "GXDistanceFormatter.h"

namespace gx {

std::optional<std::string> GXDistanceFormatter::unit(const NSNumber&) const {
    return metric() ? localizedUnit("km", "unit km (kilometer)") : localizedUnit("mi", "unit mi (mile)");
}

} // namespace gx
