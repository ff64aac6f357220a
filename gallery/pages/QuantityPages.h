#pragma once

#include "PickerPage.h"

namespace gallery {

// Amounts in one unit or another.

PickerPageDescription temperaturePage();
PickerPageDescription weightPage();
PickerPageDescription heightPage();
PickerPageDescription caloriesPage();

} // namespace gallery
