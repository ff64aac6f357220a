#pragma once

#include <array>
#include <cstddef>
#include <string>

namespace gallery {

/// What the entry screen collects, in the base units of the pickers.
struct Workout {
    double distance = 5300;             ///< metres
    double duration = 1650'000;         ///< milliseconds
    double speed = 12.5 / 3.6;          ///< average, metres per second
    double calories = 420;              ///< kilocalories
    double intervalDistance = 1000;     ///< metres
    double intervalDuration = 285'000;  ///< milliseconds
    double intervalPace = 1000.0 / 285; ///< metres per second
    double averageHeartRate = 142;      ///< beats per minute, 0 for none
    double maximumHeartRate = 171;      ///< beats per minute, 0 for none
    double restingPulse = 60;           ///< beats per minute
    std::size_t weather = 1;            ///< among `WeatherIcons`
    double temperature = 18;            ///< degrees Celsius
    double waterTemperature = 20;       ///< degrees Celsius
    double weight = 72.5;               ///< kilograms
    double height = 176;                ///< centimetres

    /// The members that are numbers, each with its name in a file and the range that a file may
    /// have: the one of its picker, in any unit.
    struct Number {
        const char* name;
        double Workout::*value;
        double lowest;
        double highest;
    };
    static const std::array<Number, 14>& numbers();

    friend bool operator==(const Workout&, const Workout&) = default;
};

} // namespace gallery
