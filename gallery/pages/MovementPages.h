#pragma once

#include "PickerPage.h"

namespace gallery {

// How far, how long and how fast.

PickerPageDescription distancePage();
PickerPageDescription durationPage();
PickerPageDescription pacePage();
PickerPageDescription speedPage();

} // namespace gallery
