#pragma once

#include <functional>
#include <string>

namespace gallery {

/// How the application reaches the user's files: whoever puts it on a screen provides it.
class GalleryFiles {
public:
    struct Outcome {
        /// What the user calls the file, without its folder.
        std::string name;
        /// What was read; empty after saving.
        std::string text;
        /// Why it did not work, in a sentence for the user; empty if it did.
        std::string error;
    };
    using Done = std::function<void(const Outcome& outcome)>;

    virtual ~GalleryFiles() = default;

    /// Asks the user where to, writes, and calls `done`; it does not if the user thinks better of it. A file that is there is replaced as
    /// a whole or, if anything fails, stays as it was.
    virtual void saveText_name(const std::string& text, const std::string& suggestedName, const Done& done) = 0;
    /// Asks the user which file, reads it, and calls `done`; it does not if the user thinks better of it.
    virtual void openText(const Done& done) = 0;
};

} // namespace gallery
