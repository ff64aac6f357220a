#pragma once

#include <optional>
#include <string>

#include "Workout.h"

namespace gallery {

/// A workout as the text of a JSON file. Numbers are read back to the last digit, in any language.
class WorkoutFile {
public:
    WorkoutFile() = delete;

    /// In bytes. Longer texts are rejected unread: a workout takes less than a kilobyte.
    static constexpr std::size_t longest = 1 << 20;

    static std::string textOfWorkout(const Workout& workout);
    /// Returns nothing if the text is not a whole workout that every picker can show, with the
    /// reason in `error`, a sentence for the user. Other members of the file are ignored.
    static std::optional<Workout> workoutOfText(const std::string& text, std::string& error);
};

} // namespace gallery
