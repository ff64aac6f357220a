#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <GXUIPickers/CGGeometry.h>
#include <nlohmann/json.hpp>

namespace gallery {

/// Reads the members of one line of a recording, each with its check.
///
/// Invariant: the first problem stays in `error`; what is read after it means nothing.
class LineReader {
public:
    /// In bytes. The longest line has the text of a file, escaped.
    static constexpr std::size_t longestLine = 8U << 20U;
    /// Far beyond any screen and any recording.
    static constexpr double largestNumber = 1e12;
    /// Of a window, in points. Chosen: more than three of the widest screens beside each other.
    static constexpr double largestSide = 32767;
    /// Of a window, in points. Chosen: with four pixels each way for one, a picture of 4096 by 4096
    /// takes a gibibyte.
    static constexpr double largestArea = 4096.0 * 4096.0;

    /// Chosen: no element lies as deep in a screen.
    static constexpr std::size_t longestList = 32;

    explicit LineReader(const std::string& line);

    bool isGood() const { return error_.empty(); }
    const std::string& error() const { return error_; }
    void refuse(const std::string& reason);

    double number(const char* name, double lowest = -largestNumber, double highest = largestNumber);
    /// Of a window: "width" and "height".
    gx::CGSize size(double smallestSide);
    std::int64_t integer(const char* name);
    /// A list of up to `longestList` of them.
    std::vector<std::int64_t> integers(const char* name);
    bool flag(const char* name);
    std::string text(const char* name);

private:
    const nlohmann::ordered_json* member(const char* name);
    static std::optional<std::int64_t> integerOf(const nlohmann::ordered_json& value);

    nlohmann::ordered_json line_;
    std::string error_;
};

} // namespace gallery
