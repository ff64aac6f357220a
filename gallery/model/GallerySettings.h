#pragma once

#include <optional>
#include <string>

#include <GXUIPickers/GXWeightPickerView.h>
#include <GXUIPickers/UIColor.h>

namespace gallery {

/// What the user has chosen for the whole application.
struct GallerySettings {
    bool isMetric = true;
    gx::GXWeightUnit weightUnit = gx::GXWeightUnitKilogram;
    /// Of all pickers and of the entry screen, within the style sheet's limits.
    double textScale = 1;
    /// Nothing follows the system.
    std::optional<gx::UIUserInterfaceStyle> style;
    /// Such as "de".
    std::string language = "en";
    /// Nothing for the language's own.
    std::optional<std::string> decimalSeparator;
    gx::UIAccessibilityContrast contrast = gx::UIAccessibilityContrast::Normal;
    bool reducesMotion = false;

    /// Hands text size, language and separator to the services that pickers ask. What is on the screen shows them once it is made anew. The
    /// direction in which one reads stays as it is until the user chooses another language.
    void apply() const;
    /// The settings that are in force where nobody has chosen any.
    static GallerySettings current();

    friend bool operator==(const GallerySettings&, const GallerySettings&) = default;
};

} // namespace gallery
