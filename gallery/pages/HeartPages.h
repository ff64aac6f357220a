#pragma once

#include "PickerPage.h"

namespace gallery {

// Beats of the heart.

PickerPageDescription heartRatePage();
PickerPageDescription bpmPage();

} // namespace gallery
