#pragma once

#include <memory>

#include "Measurement.h"

namespace gallery {

// Heart rates, weight and height.
MeasurementGroup heartMeasurements(const std::shared_ptr<Workout>& workout, const Settings& settings);
MeasurementGroup bodyMeasurements(const std::shared_ptr<Workout>& workout, const Settings& settings);

} // namespace gallery
