#pragma once

#include "ApplicationText.h"

namespace gallery {

/// English, the language of the keys: a single text stands for both.
struct EnglishTexts {
    static constexpr std::string_view language = "en";

    static constexpr ApplicationText texts[] = {
        // Pages, sections and rows.
        "Add workout",
        "All pickers",
        "Workout",
        "Workouts",
        "Best interval",
        "Heart",
        "Conditions",
        "Body",
        "Distance and time",
        "Distance",
        "Duration",
        "Average speed",
        "Speed",
        "Pace",
        "Calories",
        "Heart rate",
        "Resting pulse",
        "Beats per minute",
        "Weather",
        "Temperature",
        "Water temperature",
        "Weight",
        "Height",
        "Choose a row to change its value.",
        // Settings and their choices.
        "Settings",
        "Units",
        "Metric",
        "Imperial",
        "Kilograms",
        "Pounds",
        "Stones",
        "Text size",
        "Look",
        "System",
        "Light",
        "Dark",
        "Decimal separator",
        "Automatic",
        "All pages",
        "Light or dark",
        "Motion",
        "Full",
        "Reduced",
        "Contrast",
        "Normal",
        "High",
        "Wheel clicks",
        "On",
        "Off",
        "Language",
        // Files.
        "Open",
        "Save",
        "Opened:",
        "Saved:",
        "The file could not be read:",
        "The file could not be written:",
        "The file has no number for:",
        "A number in the file is out of range:",
        "The file names no weather that this application knows.",
        "This file is damaged, or no workout.",
        "This file is damaged.",
        "This file is no workout.",
        "This workout was saved by a newer version of this application.",
        // Weather.
        "clear",
        "partly cloudy",
        "cloudy",
        "overcast",
        "fog",
        "drizzle",
        "rain",
        "showers",
        "thunderstorm",
        "sleet",
        "snow",
        "wind",
    };
};

} // namespace gallery
