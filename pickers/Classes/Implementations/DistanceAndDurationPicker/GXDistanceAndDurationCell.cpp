#include "GXDistanceAndDurationCell.h"

#include "GXDistanceAndDurationPicker.h"

namespace gx {

std::string GXDistanceAndDurationCell::cellIdentifier() { return "GXDistanceAndDurationCellIdentifier"; }

void GXDistanceAndDurationCell::initGXDistanceAndDurationCell() { showNewPicker<GXDistanceAndDurationPicker>(); }

} // namespace gx
