#pragma once

#include <memory>
#include <vector>

#include "Measurement.h"

namespace gallery {

/// Everything that the entry screen asks for, in its order.
std::vector<MeasurementGroup> allMeasurements(const std::shared_ptr<Workout>& workout, const Settings& settings);

} // namespace gallery
