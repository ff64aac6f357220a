#pragma once

#include "UIView.h"

namespace gx {

/// Adds a picker to a cell's content view and pins it to all four edges, so that every layout makes
/// it fill the view.
void addPinnedPicker(const Ref<UIView>& contentView, const Ref<UIView>& picker);

} // namespace gx
