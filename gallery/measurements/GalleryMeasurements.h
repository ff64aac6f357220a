#pragma once

#include <vector>

#include "GalleryMeasurement.h"

namespace gallery {

/// Measurements under one heading.
struct GalleryMeasurementGroup {
    std::string heading;
    std::vector<gx::Ref<GalleryMeasurement>> measurements;
};

/// Everything that the entry screen asks for, in its order.
std::vector<GalleryMeasurementGroup> galleryMeasurements(const std::shared_ptr<GalleryWorkout>& workout, const GallerySettings& settings);

// The groups, each in a file of its own.
GalleryMeasurementGroup workoutMeasurements(const std::shared_ptr<GalleryWorkout>& workout, const GallerySettings& settings);
GalleryMeasurementGroup intervalMeasurements(const std::shared_ptr<GalleryWorkout>& workout, const GallerySettings& settings);
GalleryMeasurementGroup heartMeasurements(const std::shared_ptr<GalleryWorkout>& workout, const GallerySettings& settings);
GalleryMeasurementGroup weatherMeasurements(const std::shared_ptr<GalleryWorkout>& workout, const GallerySettings& settings);
GalleryMeasurementGroup bodyMeasurements(const std::shared_ptr<GalleryWorkout>& workout, const GallerySettings& settings);

} // namespace gallery
