#pragma once

#include <memory>

#include "Measurement.h"

namespace gallery {

// The whole workout, and its best interval.
MeasurementGroup workoutMeasurements(const std::shared_ptr<Workout>& workout, const Settings& settings);
MeasurementGroup intervalMeasurements(const std::shared_ptr<Workout>& workout, const Settings& settings);

} // namespace gallery
