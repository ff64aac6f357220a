#pragma once

#include <string>

namespace gallery {

/// The application's own texts, in the language that the pickers speak (`gx::GXLocalization`).
class GalleryTexts {
public:
    GalleryTexts() = delete;

    /// The text for an English one; itself where there is no other.
    static std::string text(const std::string& english);
};

} // namespace gallery
