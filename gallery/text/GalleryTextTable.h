#pragma once

#include <array>
#include <span>
#include <string_view>

namespace gallery {

/// The application's own texts as constant data: `GalleryTexts` is what to ask for a text. Every row has a text for every language, none is
/// empty, and no English text stands twice; the compiler checks that.
class GalleryTextTable {
public:
    /// Those of the pickers, without English.
    static constexpr std::array<std::string_view, 12> languages = {"de", "fr", "es", "it", "pt",      "nl",
                                                                   "pl", "ru", "tr", "ja", "zh-Hans", "ko"};

    struct Row {
        std::string_view english;
        /// In the order of `languages`.
        std::array<std::string_view, languages.size()> texts;
    };

    static std::span<const Row> rows();
    /// `english` itself where it is in no row, and for a language that is none of `languages`, which are compared letter by letter. The
    /// answer then lives as long as what `english` shows; else for ever.
    static std::string_view textInLanguage(std::string_view english, std::string_view language);
};

} // namespace gallery
