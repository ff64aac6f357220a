#pragma once

#include "GXExport.h"
#include "GXUnitFormatter.h"

namespace gx {

/// Knows the unit that distances, given in metres, are shown in.
class GX_EXPORT GXDistanceFormatter : public GXUnitFormatter {
public:
    /// Kilometres when metric, else miles; headless "km" and "mi".
    std::optional<std::string> unit(const NSNumber& quantity) const override;
};

} // namespace gx
