#pragma once

#include <optional>
#include <string>
#include <vector>

#include <GXUIPickers/CGGeometry.h>

namespace gallery {

/// The options that the gallery was started with.
struct CommandLineArguments {
    bool showsHelp = false;
    bool showsVersion = false;
    /// The folder to write pictures to; without one the window opens.
    std::optional<std::string> pictureFolder;
    /// The file to write all events to, or to play them from.
    std::optional<std::string> recordingToWrite;
    std::optional<std::string> recordingToPlay;
    /// The size of the window, or of each picture.
    std::optional<gx::CGSize> size;
    /// Pixels for each point of a picture.
    double scale = 2;
    /// The scale of the texts, within the style sheet's limits.
    double textScale = 1;
    bool isContrastHigh = false;
    /// Such as "de"; without one the gallery follows the system.
    std::optional<std::string> locale;
    /// The name of the one page to show, in any case.
    std::optional<std::string> page;

    /// Reads the arguments after the program's name. Returns nothing for invalid ones, with the
    /// reason in `error`.
    static std::optional<CommandLineArguments> parse(const std::vector<std::string>& arguments, std::string& error);
    /// The text of `--help` for a program of this name: packages install it under another one.
    static std::string usage(const std::string& program);
    /// The name that a program was started by, without its folder; "gallery" if it has none.
    static std::string programName(const char* path);
};

} // namespace gallery
