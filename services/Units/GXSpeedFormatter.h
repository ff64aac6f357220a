#pragma once

#include "GXExport.h"
#include "GXUnitFormatter.h"

namespace gx {

/// Knows the unit that speeds, given in metres per second, are shown in.
class GX_EXPORT GXSpeedFormatter : public GXUnitFormatter {
public:
    /// Kilometres per hour when metric, else miles per hour; headless "km/h" and "mph".
    std::optional<std::string> unit(const NSNumber& quantity) const override;
};

} // namespace gx
