#pragma once

#include <optional>
#include <string>

#include "GalleryWorkout.h"

namespace gallery {

/// A workout as the text of a JSON file. Numbers are written so that they come back to the last digit, whatever the language.
class GalleryWorkoutFile {
public:
    GalleryWorkoutFile() = delete;

    /// Longer texts are refused unread: a workout takes less than a kilobyte.
    static constexpr std::size_t longest = 1 << 20;

    static std::string textOfWorkout(const GalleryWorkout& workout);
    /// Nothing if the text is not a whole workout that every picker can show, with `error` told why in a sentence for the user. What else
    /// the file holds is left unread.
    static std::optional<GalleryWorkout> workoutOfText(const std::string& text, std::string& error);
};

} // namespace gallery
