#pragma once

#include <memory>

#include "Measurement.h"

namespace gallery {

// The weather, and the temperature of the water.
MeasurementGroup weatherMeasurements(const std::shared_ptr<Workout>& workout, const Settings& settings);

} // namespace gallery
