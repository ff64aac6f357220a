#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <GXUIPickers/UIImage.h>

namespace gallery {

/// Pictures of the weather, drawn by the gallery itself: twelve kinds from a clear sky to wind,
/// always in this order. Each has a light and a dark look.
class WeatherIcons {
public:
    WeatherIcons() = delete;

    static constexpr std::size_t count = 12;
    /// Width and height, in points.
    static constexpr int side = 48;

    /// One for each kind, with its name as the accessibility label. Drawn at the first call and
    /// then shared.
    static gx::Ref<const std::vector<gx::Ref<gx::UIImage>>> images();
    /// The English name: "partly cloudy". Empty for an index that does not exist.
    static std::string name(std::size_t index);
    /// The name in a file, independent of order and language: "partly-cloudy". Empty for an index
    /// that does not exist.
    static std::string identifier(std::size_t index);
    /// Returns nothing for an unknown identifier.
    static std::optional<std::size_t> indexOfIdentifier(std::string_view identifier);
};

} // namespace gallery
