#pragma once

#include <optional>
#include <string>
#include <vector>

#include <GXUIPickers/CGGeometry.h>

namespace gallery {

/// What the gallery was asked for on the command line.
struct GalleryArguments {
    bool showsHelp = false;
    /// Where to write pictures to; nothing opens the window.
    std::optional<std::string> pictureFolder;
    /// Of the window, or of each picture.
    std::optional<gx::CGSize> size;
    /// Pixels for each point of a picture.
    double scale = 2;
    /// Of the texts, within the style sheet's limits.
    double textScale = 1;
    bool isContrastHigh = false;
    /// Such as "de"; nothing follows the system.
    std::optional<std::string> locale;
    /// The name of the one page to show, in any case.
    std::optional<std::string> page;

    /// Reads the arguments after the program's name. Nothing if they make no sense, with `error` told why.
    static std::optional<GalleryArguments> parse(const std::vector<std::string>& arguments, std::string& error);
    static std::string usage();
};

} // namespace gallery
