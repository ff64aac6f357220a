#pragma once

#include <optional>
#include <string>

#include <GXUIPickers/GXWeightPickerView.h>
#include <GXUIPickers/UIColor.h>

namespace gallery {

/// What the user has chosen for the whole application.
struct Settings {
    bool isMetric = true;
    gx::GXWeightUnit weightUnit = gx::GXWeightUnitKilogram;
    /// The text size of all pickers and of the entry screen, within the style sheet's limits.
    double textScale = 1;
    /// Without a value the look follows the system.
    std::optional<gx::UIUserInterfaceStyle> style;
    /// Such as "de".
    std::string language = "en";
    /// Without a value it is the language's own.
    std::optional<std::string> decimalSeparator;
    gx::UIAccessibilityContrast contrast = gx::UIAccessibilityContrast::Normal;
    bool reducesMotion = false;
    /// Whether wheels click. Without a value nobody could hear it, and it is not offered.
    std::optional<bool> clicks;

    /// Passes text size, language and separator to the services of the pickers.
    ///
    /// Views that are on the screen show them once they are made again. The reading direction stays
    /// until the user chooses another language.
    void apply() const;
    /// The settings in force before the user has chosen any.
    static Settings current();

    friend bool operator==(const Settings&, const Settings&) = default;
};

} // namespace gallery
