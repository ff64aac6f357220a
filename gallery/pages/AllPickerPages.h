#pragma once

#include <vector>

#include "PickerPage.h"

namespace gallery {

/// A page for each picker but icons and the composites, which the entry screen shows. In the order
/// in which the gallery lists them.
std::vector<PickerPageDescription> allPickerPages();

} // namespace gallery
