#include "GalleryWorkout.h"

namespace gallery {

const std::array<GalleryWorkout::Number, 14>& GalleryWorkout::numbers() {
    constexpr double longest = 300'000;     // metres
    constexpr double longestTime = 356.4e6; // 99 hours, in milliseconds
    // Where a wheel has rows for a part of a range only, what lies between two rows is shown as one of them. A rate below the first
    // row is none, which that row stands for.
    static const std::array<Number, 14> all = {{
        {"distance", &GalleryWorkout::distance, 0, longest},
        {"duration", &GalleryWorkout::duration, 0, longestTime},
        {"speed", &GalleryWorkout::speed, 0, 13.8888889},
        {"calories", &GalleryWorkout::calories, 0, 99'990},
        {"intervalDistance", &GalleryWorkout::intervalDistance, 0, longest},
        {"intervalDuration", &GalleryWorkout::intervalDuration, 0, longestTime},
        {"intervalPace", &GalleryWorkout::intervalPace, 1000.0 / 3600, 1000.0 / 90},
        {"averageHeartRate", &GalleryWorkout::averageHeartRate, 0, 228},
        {"maximumHeartRate", &GalleryWorkout::maximumHeartRate, 0, 229},
        {"restingPulse", &GalleryWorkout::restingPulse, 0, 239},
        {"temperature", &GalleryWorkout::temperature, -20, 59.9},
        {"waterTemperature", &GalleryWorkout::waterTemperature, -20, 59.9},
        {"weight", &GalleryWorkout::weight, 15, 349.94},
        {"height", &GalleryWorkout::height, 120, 220},
    }};
    return all;
}

} // namespace gallery
