#pragma once

#include "WebPicker.h"

namespace gx::web {

/// A new picker, its delegate set; nothing for a kind that does not exist, and for `Columns`.
Ref<WebPicker> pickerOfKind(WebPickerKind kind);

/// The value of a property that the user would select if everything came to rest on the rows that
/// are in the selection indicator.
double valueInIndicator(const WebPicker& picker, WebPickerKind kind, WebProperty property);

} // namespace gx::web
