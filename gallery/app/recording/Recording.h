#pragma once

#include <optional>
#include <string>
#include <vector>

#include "MainScreen.h"
#include "RecordedEvent.h"

namespace gallery {

/// What the gallery was started with: the first line of a recording.
struct RecordingStart {
    /// In points, and in pixels for each of them.
    gx::CGSize size{900, 640};
    double scale = 1;
    /// Of the pickers, as the system has it: such as "de_CH".
    std::string locale = "en";
    std::string decimalSeparator = ".";
    bool isRightToLeft = false;
    double textScale = 1;
    bool isContrastHigh = false;
    bool isDark = false;
    /// Whether the settings offer clicks of the wheels.
    bool offersClicks = false;
    std::string page = "Add workout";

    /// With the current locale.
    static RecordingStart withCurrentLocale();
    /// Makes the locale, its language and the text size those of all pickers, and then the screen.
    /// Returns nothing if there is no such page.
    gx::Ref<MainScreen> makeScreen() const;

    std::string line() const;
    /// Returns nothing for a line that is no start, with the reason in `error`.
    static std::optional<RecordingStart> startOfLine(const std::string& line, std::string& error);
};

/// What a user did, from the start of the gallery on, in lines of JSON.
struct Recording {
    RecordingStart start;
    std::vector<RecordedEvent> events;

    /// Returns nothing unless every line is right, with the number of the first wrong one in
    /// `error`.
    static std::optional<Recording> recordingOfText(const std::string& text, std::string& error);
};

} // namespace gallery
