#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace gallery {

/// The application's own texts, in the language that the pickers use (`gx::GXLocalization`).
///
/// They lie in `gallery/text/languages/`. Every language has every text, none is empty, and no
/// English text is there twice; the compiler checks that.
class Translations {
public:
    Translations() = delete;

    /// The text for an English one in the current language; itself where there is no other.
    static std::string text(const std::string& english);

    /// The text for an English pattern, with "{0}" and "{1}" replaced: "Saved: {0}".
    ///
    /// Languages order the parts as they like, so texts with parts are patterns and never joined.
    static std::string filled(const std::string& english, const std::string& first, const std::string& second = {});

    /// The text in one of `languages`, which are compared letter by letter.
    ///
    /// Returns `english` itself if it has no translations, and for any other language. The result
    /// then lives as long as the characters of `english`; else for ever.
    static std::string_view textInLanguage(std::string_view english, std::string_view language);

    /// Those of the pickers, in the same order.
    static std::vector<std::string> languages();
    /// All texts that have translations.
    static std::vector<std::string_view> englishTexts();
};

} // namespace gallery
