#pragma once

#include <functional>
#include <string>

namespace gallery {

/// How the application reaches the user's files. The program around the screens implements it.
class UserFiles {
public:
    struct Outcome {
        /// The name of the file, without its folder.
        std::string name;
        /// What was read; empty after saving.
        std::string text;
        /// The reason for a failure, in a sentence for the user; empty for success.
        std::string error;
    };
    using Done = std::function<void(const Outcome& outcome)>;

    virtual ~UserFiles() = default;

    /// Lets the user choose a place, writes, and calls `done`; if the user dismisses the dialog,
    /// nothing happens. An existing file is replaced as a whole or, after a failure, stays as it
    /// was.
    virtual void saveText_name(const std::string& text, const std::string& suggestedName, const Done& done) = 0;
    /// Lets the user choose a file, reads it, and calls `done`; if the user dismisses the dialog,
    /// nothing happens.
    virtual void openText(const Done& done) = 0;
};

} // namespace gallery
