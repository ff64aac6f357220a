#include "GalleryMeasurements.h"

namespace gallery {

std::vector<GalleryMeasurementGroup> galleryMeasurements(const std::shared_ptr<GalleryWorkout>& workout, const GallerySettings& settings) {
    return {workoutMeasurements(workout, settings), intervalMeasurements(workout, settings), heartMeasurements(workout, settings),
            weatherMeasurements(workout, settings), bodyMeasurements(workout, settings)};
}

} // namespace gallery
