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

bool isOption(const std::string& word) {
    constexpr std::array<std::string_view, 9> options = {"--shots",      "--size",     "--scale",  "--locale", "--page",
                                                         "--text-scale", "--contrast", "--record", "--replay"};
    return std::find(options.begin(), options.end(), word) != options.end();
}

} // namespace

std::optional<CommandLineArguments> CommandLineArguments::parse(const std::vector<std::string>& arguments, std::string& error) {
    CommandLineArguments parsed;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& option = arguments[i];
        if (option == "--help" || option == "-h") {
            parsed.showsHelp = true;
            continue;
        }
        if (option == "--version") {
            parsed.showsVersion = true;
            continue;
        }
        if (!isOption(option)) {
            error = "unknown option " + option;
            return std::nullopt;
        }
        if (i + 1 == arguments.size() || arguments[i + 1].empty()) {
            error = option + " needs a value";
            return std::nullopt;
        }
        const std::string& value = arguments[++i];
        if (option == "--shots") parsed.pictureFolder = value;
        if (option == "--locale") parsed.locale = value;
        if (option == "--page") parsed.page = value;
        if (option == "--record") parsed.recordingToWrite = value;
        if (option == "--replay") parsed.recordingToPlay = value;
        if (option == "--size" && !(parsed.size = parsedSize(value))) {
            error = "--size is a width and a height of 320 to 4096 points, such as 900x640, and not " + value;
            return std::nullopt;
        }
        if (option == "--scale") {
            const auto pixels = parsedScale(value);
            if (!pixels) {
                error = "--scale is 1, 2, 3 or 4, and not " + value;
                return std::nullopt;
            }
            parsed.scale = *pixels;
        }
        if (option == "--text-scale") {
            const auto textScale = parsedTextScale(value);
            if (!textScale) {
                error = "--text-scale is 0.8 to 3, such as 1.3, and not " + value;
                return std::nullopt;
            }
            parsed.textScale = *textScale;
        }
        if (option == "--contrast") {
            if (value != "normal" && value != "high") {
                error = "--contrast is normal or high, and not " + value;
                return std::nullopt;
            }
            parsed.isContrastHigh = value == "high";
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
