#include "WheelClick.h"

#include <algorithm>
#include <cmath>

namespace gallery {

namespace {

// Chosen by ear, to be short and soft: a low tone that dies away within 8 milliseconds.
constexpr std::size_t sampleCount = WheelClick::samplesPerSecond * 8 / 1000;
constexpr double frequency = 1400;
constexpr double loudness = 0.25;
constexpr double decay = 700; // Of the amplitude, a second.

} // namespace

std::vector<std::int16_t> WheelClick::samples() {
    constexpr double circle = 6.283185307179586;
    constexpr double largest = 32767;
    std::vector<std::int16_t> sound;
    for (std::size_t i = 0; i < sampleCount; ++i) {
        const double time = static_cast<double>(i) / samplesPerSecond;
        const double fade = 1 - static_cast<double>(i) / (sampleCount - 1); // Ends in silence.
        const double amplitude = loudness * std::exp(-decay * time) * fade;
        sound.push_back(static_cast<std::int16_t>(std::lround(largest * amplitude * std::sin(circle * frequency * time))));
    }
    return sound;
}

bool WheelClick::isHeardAt(double time) {
    // A clock that has started again lies before the last click.
    if (latest_ && time >= *latest_ && time - *latest_ < shortestPause) return false;
    latest_ = time;
    return true;
}

void WheelClick::add() { waiting_ = std::min(waiting_ + 1, highestWaiting); }

void WheelClick::read(std::span<std::int16_t> stream) {
    constexpr auto pause = static_cast<std::size_t>(samplesPerSecond * shortestPause);
    for (std::int16_t& sample : stream) {
        if (waiting_ > 0 && (!since_ || *since_ >= pause)) {
            --waiting_;
            since_ = 0;
        }
        sample = since_ && *since_ < sound_.size() ? sound_[*since_] : std::int16_t{0};
        if (since_ && *since_ < pause) ++*since_;
    }
}

} // namespace gallery
