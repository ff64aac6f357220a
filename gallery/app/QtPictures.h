#pragma once

#include "CommandLineArguments.h"
#include "MainScreen.h"

namespace gallery {

/// Writes a picture of each page, light and dark, and one of all pickers in a window of a desktop.
///
/// - The arguments name the folder.
/// - The wheels of each page are turned a little, so that the log has entries.
/// - It needs a Qt application and its fonts.
///
/// Returns the error message, or nothing if all went well.
std::optional<std::string> writePictures(const gx::Ref<MainScreen>& screen, const CommandLineArguments& arguments);

} // namespace gallery
