#pragma once

#include <vector>

#include "PickerPage.h"

namespace gallery {

/// The pages of all pickers, in the order in which the gallery lists them.
std::vector<PickerPageDescription> allPickerPages();

} // namespace gallery
