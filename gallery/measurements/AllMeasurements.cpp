#include "AllMeasurements.h"

#include "BodyMeasurements.h"
#include "WeatherMeasurements.h"
#include "WorkoutMeasurements.h"

namespace gallery {

std::vector<MeasurementGroup> allMeasurements(const std::shared_ptr<Workout>& workout, const Settings& settings) {
    return {workoutMeasurements(workout, settings), intervalMeasurements(workout, settings), heartMeasurements(workout, settings),
            weatherMeasurements(workout, settings), bodyMeasurements(workout, settings)};
}

} // namespace gallery
