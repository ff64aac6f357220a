#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <GXUIPickers/UIImage.h>

namespace gallery {

/// Pictures of the weather, drawn by the gallery itself: twelve kinds from a clear sky to wind, always in this order. Each has a light and
/// a dark look.
class GalleryWeatherIcons {
public:
    GalleryWeatherIcons() = delete;

    static constexpr std::size_t count = 12;
    /// Width and height, in points.
    static constexpr int side = 48;

    /// One for each kind, its name the label for a screen reader. Drawn at the first call and shared from then on.
    static gx::Ref<const std::vector<gx::Ref<gx::UIImage>>> images();
    /// As a person says it, in English: "partly cloudy". Empty for an index that does not exist.
    static std::string name(std::size_t index);
    /// As a file keeps it, whatever the order and the language: "partly-cloudy". Empty for an index that does not exist.
    static std::string identifier(std::size_t index);
    /// Nothing for one that no kind has.
    static std::optional<std::size_t> indexOfIdentifier(std::string_view identifier);
};

} // namespace gallery
