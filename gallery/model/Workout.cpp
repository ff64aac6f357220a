#include "Workout.h"

namespace gallery {

const std::array<Workout::Number, 14>& Workout::numbers() {
    constexpr double longest = 300'000;     // metres
    constexpr double longestTime = 356.4e6; // 99 hours, in milliseconds
    // The range of each is that of its picker. Values between two rows show as one of them, and a
    // heart rate below the first row shows as none.
    static const std::array<Number, 14> all = {{
        {"distance", &Workout::distance, 0, longest},
        {"duration", &Workout::duration, 0, longestTime},
        {"speed", &Workout::speed, 0, 13.8888889},
        {"calories", &Workout::calories, 0, 99'990},
        {"intervalDistance", &Workout::intervalDistance, 0, longest},
        {"intervalDuration", &Workout::intervalDuration, 0, longestTime},
        {"intervalPace", &Workout::intervalPace, 1000.0 / 3600, 1000.0 / 90},
        {"averageHeartRate", &Workout::averageHeartRate, 0, 228},
        {"maximumHeartRate", &Workout::maximumHeartRate, 0, 229},
        {"restingPulse", &Workout::restingPulse, 0, 239},
        {"temperature", &Workout::temperature, -20, 59.9},
        {"waterTemperature", &Workout::waterTemperature, -20, 59.9},
        {"weight", &Workout::weight, 15, 349.94},
        {"height", &Workout::height, 120, 220},
    }};
    return all;
}

} // namespace gallery
