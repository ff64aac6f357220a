#pragma once

// The delegate is declared beside the picker that calls it.
#include "GXBasePickerView.h"
