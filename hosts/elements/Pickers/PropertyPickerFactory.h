#pragma once

#include "PropertyPicker.h"

namespace gx::elements {

/// A new picker, its delegate set; nothing for a kind that does not exist, and for `Columns`.
Ref<PropertyPicker> pickerOfKind(PickerKind kind);

/// The value of a property that the user would select if everything came to rest on the rows that
/// are in the selection indicator.
double valueInIndicator(const PropertyPicker& picker, PickerKind kind, PickerProperty property);

} // namespace gx::elements
