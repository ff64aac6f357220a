#include "CommandLineArguments.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

#include <GXUIPickers/GXStyleSheet.h>

using namespace gx;

namespace gallery {

namespace {

/// A number of up to five digits: a longer one is a typing error that would need too much memory.
/// Returns nothing for anything else.
std::optional<int> wholeNumber(const std::string& text) {
    if (text.empty() || text.size() > 5) return std::nullopt;
    int value = 0;
    for (const char digit : text) {
        if (digit < '0' || digit > '9') return std::nullopt;
        value = value * 10 + (digit - '0');
    }
    return value;
}

std::optional<CGSize> parsedSize(const std::string& text) {
    // The screens are made for these widths and heights, in points.
    constexpr int smallest = 320;
    constexpr int largest = 4096;
    const std::size_t cross = text.find('x');
    if (cross == std::string::npos) return std::nullopt;
    const auto width = wholeNumber(text.substr(0, cross));
    const auto height = wholeNumber(text.substr(cross + 1));
    if (!width || !height || *width < smallest || *height < smallest || *width > largest || *height > largest) return std::nullopt;
    return CGSizeMake(*width, *height);
}

std::optional<double> parsedScale(const std::string& text) {
    constexpr int largest = 4;
    const auto value = wholeNumber(text);
    if (!value || *value < 1 || *value > largest) return std::nullopt;
    return *value;
}

/// A number with up to one digit after the point, within the style sheet's limits.
std::optional<double> parsedTextScale(const std::string& text) {
    const std::size_t point = text.find('.');
    const auto whole = wholeNumber(text.substr(0, point));
    const auto tenths = point == std::string::npos ? 0 : wholeNumber(text.substr(point + 1));
    if (!whole || !tenths || *tenths > 9 || (point != std::string::npos && text.size() != point + 2)) return std::nullopt;
    const double value = (*whole * 10 + *tenths) / 10.0;
    if (value < GXStyleSheet::minTextScale || value > GXStyleSheet::maxTextScale) return std::nullopt;
    return value;
}

/// Stores a value that could be read; returns whether it could.
template <class Value>
bool store(std::optional<Value> read, Value& member) {
    if (read) member = *read;
    return read.has_value();
}

/// An option that takes a value.
struct Option {
    std::string_view name;
    /// Returns false for a value that is not as the rule says.
    bool (*read)(const std::string& value, CommandLineArguments& parsed);
    std::string_view rule; ///< empty for an option that takes any text
};

template <std::optional<std::string> CommandLineArguments::*member>
bool readText(const std::string& value, CommandLineArguments& parsed) {
    parsed.*member = value;
    return true;
}

bool readSize(const std::string& value, CommandLineArguments& parsed) {
    parsed.size = parsedSize(value);
    return parsed.size.has_value();
}

bool readContrast(const std::string& value, CommandLineArguments& parsed) {
    parsed.isContrastHigh = value == "high";
    return parsed.isContrastHigh || value == "normal";
}

constexpr std::array<Option, 9> options = {{
    {"--shots", readText<&CommandLineArguments::pictureFolder>, ""},
    {"--size", readSize, "a width and a height of 320 to 4096 points, such as 900x640"},
    {"--scale", [](const auto& value, auto& parsed) { return store(parsedScale(value), parsed.scale); }, "1, 2, 3 or 4"},
    {"--locale", readText<&CommandLineArguments::locale>, ""},
    {"--page", readText<&CommandLineArguments::page>, ""},
    {"--text-scale", [](const auto& value, auto& parsed) { return store(parsedTextScale(value), parsed.textScale); },
     "0.8 to 3, such as 1.3"},
    {"--contrast", readContrast, "normal or high"},
    {"--record", readText<&CommandLineArguments::recordingToWrite>, ""},
    {"--replay", readText<&CommandLineArguments::recordingToPlay>, ""},
}};

} // namespace

std::optional<CommandLineArguments> CommandLineArguments::parse(const std::vector<std::string>& arguments, std::string& error) {
    CommandLineArguments parsed;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& name = arguments[i];
        if (name == "--help" || name == "-h") {
            parsed.showsHelp = true;
            continue;
        }
        if (name == "--version") {
            parsed.showsVersion = true;
            continue;
        }
        const auto* const option =
            std::find_if(options.begin(), options.end(), [&name](const Option& known) { return known.name == name; });
        if (option == options.end()) {
            error = "unknown option " + name;
            return std::nullopt;
        }
        if (i + 1 == arguments.size() || arguments[i + 1].empty()) {
            error = name + " needs a value";
            return std::nullopt;
        }
        const std::string& value = arguments[++i];
        if (!option->read(value, parsed)) {
            error = name + " is ";
            error.append(option->rule).append(", and not ").append(value);
            return std::nullopt;
        }
    }
    if (parsed.recordingToWrite && (parsed.recordingToPlay || parsed.pictureFolder)) {
        error = "--record needs a window, and goes with neither --replay nor --shots";
        return std::nullopt;
    }
    return parsed;
}

std::string CommandLineArguments::programName(const char* path) {
    std::string name = path ? path : "";
    name.erase(0, name.find_last_of('/') + 1); // Nothing without a folder: npos + 1 is 0.
    return name.empty() ? "gallery" : name;
}

std::string CommandLineArguments::usage(const std::string& program) {
    return "usage: " + program +
           " [options]\n"
           "Shows the pickers of this library in a window.\n"
           "\n"
           "  --shots DIR    write pictures of all pages into DIR, light and dark, instead of opening a window\n"
           "  --page NAME    show, or draw, this page only, such as \"Heart rate\"\n"
           "  --size WxH     of the window, or of each picture, in points; pictures are as high as they need to be unless told\n"
           "  --scale N      pixels for each point of a picture, 1 to 4; 2 unless told\n"
           "  --locale NAME  decimal separator and language of the pickers, such as de or fr_CH; the system's unless told\n"
           "  --text-scale N how large texts are, 0.8 to 3; 1 unless told\n"
           "  --contrast C   of the colours, normal or high; normal unless told\n"
           "  --record FILE  write all that you do into FILE, to be played again; F12 marks a picture\n"
           "  --replay FILE  play that without a window, and print what is shown at the end; with --shots DIR also pictures\n"
           "  --version      show the version of the library\n"
           "  --help         show this text\n";
}

} // namespace gallery
