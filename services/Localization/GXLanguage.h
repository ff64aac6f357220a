#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "GXLanguageTexts.h"

namespace gx {

/// One language of the library, as constant data. `GXLocalization` is what pickers use.
///
/// The texts of each language lie in a file of their own in `Languages/`. The compiler checks that
/// none is missing.
class GXLanguage {
public:
    using PluralRule = GXPluralCategory (*)(const GXPluralOperands&);

    /// Of one of the structs in `Languages/`.
    template <class Texts>
    static constexpr GXLanguage languageWithTexts();

    /// English first.
    static std::span<const GXLanguage> all();
    /// The language that agrees with the most leading parts of `identifier`, else English.
    ///
    /// Parts are separated by "-" or "_" and compared without case. What follows a "." or "@" is
    /// ignored.
    static const GXLanguage& languageForIdentifier(std::string_view identifier);

    /// Such as "de" or "zh-Hans".
    constexpr std::string_view identifier() const { return identifier_; }
    constexpr std::string_view ownName() const { return ownName_; }
    constexpr std::string_view decimalSeparator() const { return decimalSeparator_; }

    /// The unit text for a key; nothing for an unknown key.
    std::optional<std::string_view> textForKey(std::string_view key) const;

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
    std::string_view identifier_;
    std::string_view ownName_;
    std::string_view decimalSeparator_;
    PluralRule pluralRule_ = nullptr;
    std::span<const GXText> unitTexts_;
    std::span<const GXAccessibilityNameText> names_;
    std::span<const GXAccessibilityUnitText> units_;
};

} // namespace gx
