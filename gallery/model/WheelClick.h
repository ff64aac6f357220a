#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace gallery {

/// The click of a row that passes a wheel's selection indicator: its sound, how often it may be
/// heard, and an endless stream of silence with the clicks in it.
class WheelClick {
public:
    static constexpr int samplesPerSecond = 44100;
    /// Of one click, on one channel.
    static std::vector<std::int16_t> samples();

    /// Whether a click at this time, in seconds, is to be heard. The first one always is.
    bool isHeardAt(double time);

    /// A click begins with the next samples that are read, or a shortest pause after the one before
    /// it. Of many that wait, some are left out.
    void add();
    /// The next samples of the stream.
    void read(std::span<std::int16_t> stream);

private:
    // Chosen: faster clicks run together to a hum.
    static constexpr double shortestPause = 1.0 / 30;
    // Chosen: more than a device reads at once. More would be heard long after the wheel rests.
    static constexpr int highestWaiting = 6;

    std::optional<double> latest_;
    std::vector<std::int16_t> sound_ = samples();
    int waiting_ = 0;
    std::optional<std::size_t> since_; // Samples since the latest click began.
};

} // namespace gallery
