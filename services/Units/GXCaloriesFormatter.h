#pragma once

#include "GXExport.h"
#include "GXUnitFormatter.h"

namespace gx {

/// Knows the unit that energy is shown in: kilocalories in both unit systems.
class GX_EXPORT GXCaloriesFormatter : public GXUnitFormatter {
public:
    /// Headless "kcal".
    std::optional<std::string> unit(const NSNumber& quantity) const override;
};

} // namespace gx
