#pragma once

#include <optional>
#include <string>

namespace gallery {

/// The click of a row that passes a wheel's selection indicator: its sound, and how often it may be
/// heard.
class WheelClick {
public:
    /// The sound as a WAV file of 16 bits and one channel.
    static std::string waveFile();

    /// Whether a click at this time, in seconds, is to be heard. The first one always is.
    bool isHeardAt(double time);

private:
    // Chosen: faster clicks run together to a hum.
    static constexpr double shortestPause = 1.0 / 30;

    std::optional<double> latest_;
};

} // namespace gallery
