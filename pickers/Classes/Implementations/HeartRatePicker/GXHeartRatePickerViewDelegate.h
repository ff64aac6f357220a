#pragma once

#include "GXBasePickerViewDelegate.h"
#include "GXExport.h"

namespace gx {

/// The delegate of a `GXHeartRatePickerView`.
///
/// It adds nothing: after each selection by the user it gets the maximum as component 1, then the
/// average as component 0, in beats per minute, 0 for "no value". Both come each time, also the one
/// that did not change.
class GX_EXPORT GXHeartRatePickerViewDelegate : public GXBasePickerViewDelegate {};

} // namespace gx
