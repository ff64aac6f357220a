#include "GalleryWorkout.h"

namespace gallery {

const std::array<GalleryWorkout::Number, 14>& GalleryWorkout::numbers() {
    constexpr double longest = 300'000;     // metres
    constexpr double longestTime = 356.4e6; // 99 hours, in milliseconds
    static const std::array<Number, 14> all = {{
        {"distance", &GalleryWorkout::distance, 0, longest},
        {"duration", &GalleryWorkout::duration, 0, longestTime},
        {"speed", &GalleryWorkout::speed, 0, 50 / 3.6},
        {"calories", &GalleryWorkout::calories, 0, 99'990},
        {"intervalDistance", &GalleryWorkout::intervalDistance, 0, longest},
        {"intervalDuration", &GalleryWorkout::intervalDuration, 0, longestTime},
        {"intervalPace", &GalleryWorkout::intervalPace, 1000.0 / 3600, 1000.0 / 90},
        {"averageHeartRate", &GalleryWorkout::averageHeartRate, 0, 230},
        {"maximumHeartRate", &GalleryWorkout::maximumHeartRate, 0, 230},
        {"restingPulse", &GalleryWorkout::restingPulse, 0, 230},
        {"temperature", &GalleryWorkout::temperature, -20, 60},
        {"waterTemperature", &GalleryWorkout::waterTemperature, -20, 60},
        {"weight", &GalleryWorkout::weight, 15, 350},
        {"height", &GalleryWorkout::height, 120, 220},
    }};
    return all;
}

} // namespace gallery
