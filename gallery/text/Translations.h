#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

namespace gallery {

/// The application's own texts, in the language that the pickers use (`gx::GXLocalization`).
///
/// Every text stands in every language, none is empty, and no English text stands twice; the
/// compiler checks that.
class Translations {
public:
    Translations() = delete;

    /// Those of the pickers, without English.
    static constexpr std::array<std::string_view, 12> languages = {"de", "fr", "es", "it", "pt",      "nl",
                                                                   "pl", "ru", "tr", "ja", "zh-Hans", "ko"};

    struct Row {
        std::string_view english;
        /// In the order of `languages`.
        std::array<std::string_view, languages.size()> texts;
    };

    static std::span<const Row> rows();

    /// The text for an English one in the current language; itself where there is no other.
    static std::string text(const std::string& english);

    /// The text in one of `languages`, which are compared letter by letter.
    ///
    /// Returns `english` itself where it is in no row, and for any other language. The result then
    /// lives as long as the characters of `english`; else for ever.
    static std::string_view textInLanguage(std::string_view english, std::string_view language);
};

} // namespace gallery
