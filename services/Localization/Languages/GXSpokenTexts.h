#pragma once

#include "GXAccessibilityTexts.h"
#include "GXExport.h"

namespace gx {

// Former names, until the pickers use the new ones.
using GXSpokenName = GXAccessibilityName;
using GXSpokenUnit = GXAccessibilityUnit;
using GXSpokenNumber = GXAccessibilityNumber;
GX_EXPORT std::string filledPattern(std::string_view pattern, std::string_view first, std::string_view second = {});

} // namespace gx
