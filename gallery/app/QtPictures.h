#pragma once

#include "GalleryArguments.h"
#include "GalleryScreen.h"

namespace gallery {

/// Writes a picture of each page, light and dark, and one of all pickers in a window of a desktop, into the folder that the arguments
/// name. A wheel of each page was turned a little, so that there is something to read. Needs a Qt application and its fonts.
///
/// Answers what went wrong, or nothing.
std::optional<std::string> writePictures(const gx::Ref<GalleryScreen>& screen, const GalleryArguments& arguments);

} // namespace gallery
