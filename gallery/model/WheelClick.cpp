#include "WheelClick.h"

#include <cmath>
#include <cstdint>

namespace gallery {

namespace {

constexpr std::uint32_t samplesPerSecond = 44100;
// Chosen by ear, to be short and soft: a low tone that dies away within 8 milliseconds.
constexpr std::uint32_t sampleCount = samplesPerSecond * 8 / 1000;
constexpr double frequency = 1400;
constexpr double loudness = 0.25;
constexpr double decay = 700; // Of the amplitude, a second.

void append(std::string& bytes, std::uint32_t value, int count) {
    for (int i = 0; i < count; ++i) bytes.push_back(static_cast<char>((value >> (8 * i)) & 0xFFU));
}

} // namespace

std::string WheelClick::waveFile() {
    constexpr std::uint32_t bytesPerSample = 2;
    constexpr std::uint32_t dataSize = sampleCount * bytesPerSample;
    constexpr std::uint32_t headerSize = 36; // Between the size of the whole and the samples.
    std::string file = "RIFF";
    append(file, headerSize + dataSize, 4);
    file += "WAVEfmt ";
    append(file, 16, 4);
    append(file, 1, 2); // Plain samples,
    append(file, 1, 2); // on one channel.
    append(file, samplesPerSecond, 4);
    append(file, samplesPerSecond * bytesPerSample, 4);
    append(file, bytesPerSample, 2);
    append(file, 8 * bytesPerSample, 2);
    file += "data";
    append(file, dataSize, 4);
    constexpr double circle = 6.283185307179586;
    constexpr double largest = 32767;
    for (std::uint32_t i = 0; i < sampleCount; ++i) {
        const double time = static_cast<double>(i) / samplesPerSecond;
        const double left = 1 - static_cast<double>(i) / (sampleCount - 1); // Ends in silence.
        const double amplitude = loudness * std::exp(-decay * time) * left;
        const auto sample = static_cast<std::int32_t>(std::lround(largest * amplitude * std::sin(circle * frequency * time)));
        append(file, static_cast<std::uint32_t>(sample), 2);
    }
    return file;
}

bool WheelClick::isHeardAt(double time) {
    // A clock that has started again lies before the last click.
    if (latest_ && time >= *latest_ && time - *latest_ < shortestPause) return false;
    latest_ = time;
    return true;
}

} // namespace gallery
