#pragma once

#include <optional>
#include <span>
#include <string_view>

namespace gx {

/// The texts of one language, as constant data: `GXLocalization` is what to ask for a text. Every language has every key, and no text is
/// empty; the compiler checks that.
class GXTranslations {
public:
    struct Entry {
        std::string_view key;
        std::string_view text;
    };

    constexpr GXTranslations(std::string_view language, std::span<const Entry> entries) : language_(language), entries_(entries) {}

    /// One for each known language, English first.
    static std::span<const GXTranslations> all();
    /// Those of the language that agrees with the most leading parts of `identifier`, else the English ones. Parts are separated by "-"
    /// or "_" and compared without case; what follows a "." or "@" does not count.
    static const GXTranslations& translationsForLanguage(std::string_view identifier);

    /// Such as "de" or "zh-Hans".
    constexpr std::string_view language() const { return language_; }
    constexpr std::span<const Entry> entries() const { return entries_; }
    std::optional<std::string_view> textForKey(std::string_view key) const;

private:
    std::string_view language_;
    std::span<const Entry> entries_;
};

} // namespace gx
