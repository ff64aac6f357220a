#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "GXLanguageTexts.h"

namespace gx {

/// One language of the library, as constant data. `GXLocalization` is what pickers use.
///
/// The texts of each language lie in a file of their own in `Languages/`. The compiler checks that
/// none is missing. `GXLanguageData` has a language as a text.
class GXLanguage {
public:
    using PluralRule = GXPluralCategory (*)(const GXPluralOperands&);

    /// What a language is made of; all of it outlives the language.
    struct Parts {
        std::string_view identifier;
        std::string_view ownName;
        std::string_view decimalSeparator;
        PluralRule pluralRule = nullptr;
        /// Stands for the rule if that is null. Of the size of `GXPluralTable`.
        std::string_view pluralTable;
        std::span<const GXText> unitTexts;
        std::span<const GXAccessibilityNameText> names;
        std::span<const GXAccessibilityUnitText> units;
    };

    constexpr explicit GXLanguage(const Parts& parts) : parts_(parts) {}
    /// Of one of the structs in `Languages/`.
    template <class Texts>
    static constexpr GXLanguage languageWithTexts();

    /// Those that are compiled in, English first.
    static std::span<const GXLanguage> compiledIn();
    /// Those that are compiled in, then those that were added.
    static const std::vector<const GXLanguage*>& all();
    /// The language has to live as long as the program.
    static void add(const GXLanguage& language);
    /// The language that agrees with the most leading parts of `identifier`, else English.
    ///
    /// Parts are separated by "-" or "_" and compared without case. What follows a "." or "@" is
    /// ignored.
    static const GXLanguage& languageForIdentifier(std::string_view identifier);

    /// Such as "de" or "zh-Hans".
    constexpr std::string_view identifier() const { return parts_.identifier; }
    constexpr std::string_view ownName() const { return parts_.ownName; }
    constexpr std::string_view decimalSeparator() const { return parts_.decimalSeparator; }
    /// In the order of the English ones.
    std::span<const GXText> unitTexts() const { return parts_.unitTexts; }

    /// The unit text for a key; nothing for an unknown key.
    std::optional<std::string_view> textForKey(std::string_view key) const;

    GXPluralCategory pluralCategoryOfOperands(const GXPluralOperands& operands) const;
    /// `whole` may have a sign, which is ignored. Other if the texts are no digits.
    GXPluralCategory pluralCategoryOfNumber(std::string_view whole, std::string_view fraction = {}) const;

    /// Empty for a value that is not in the enumeration.
    std::string_view textForName(GXAccessibilityName name) const;
    std::string_view patternForUnit(GXAccessibilityUnit unit, GXPluralCategory category) const;
    /// "5.3 kilometres", "minus 4 degrees Celsius".
    std::string quantity(const GXAccessibilityNumber& number, GXAccessibilityUnit unit) const;

    /// The pattern with "{0}" and "{1}" replaced, of which the former comes first.
    static std::string filledPattern(std::string_view pattern, std::string_view first, std::string_view second = {});

private:
    Parts parts_;
};

} // namespace gx
