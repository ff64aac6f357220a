#pragma once

#include <optional>
#include <string>

#include "GXExport.h"
#include "NSObject.h"

namespace gx {

/// What can be asked of a locale by `objectForKey`.
enum class NSLocaleKey { Identifier, LanguageCode, DecimalSeparator };
/// Such as "de_DE", as it was given.
inline constexpr NSLocaleKey NSLocaleIdentifier = NSLocaleKey::Identifier;
/// The first part of the identifier, such as "de".
inline constexpr NSLocaleKey NSLocaleLanguageCode = NSLocaleKey::LanguageCode;
/// Such as ",".
inline constexpr NSLocaleKey NSLocaleDecimalSeparator = NSLocaleKey::DecimalSeparator;

/// Where lines of text begin.
enum class NSLocaleLanguageDirection { LeftToRight, RightToLeft };

/// The customs of the user: language, decimal separator and writing direction.
///
/// A host sets the current locale from the user's system; without a host it is "en" with ".". The C
/// locale is another matter, which the library never reads.
class GX_EXPORT NSLocale : public NSObject {
public:
    /// Never empty. The reference keeps the locale alive, also if a call replaces it.
    static Ref<NSLocale> currentLocale();
    /// Texts on screen stay as they are until they are set again. An empty reference restores the
    /// default.
    static void setCurrentLocale(Ref<NSLocale> locale);

    /// Takes identifiers such as "de", "de_DE", "sr-Latn-RS", "ks_IN.UTF-8@devanagari", in any
    /// case.
    ///
    /// Separator and direction are those of Unicode CLDR 48 for language, script and region:
    ///
    /// - A region that CLDR does not list has the customs of its language, an unknown language ".".
    /// - Old codes ("iw", "in", "ji") mean the same as new ones.
    /// - The separator is that of the locale's default digits: "\u066B" for "fa" and "ar_EG", whose
    ///   default digits are not 0 to 9. `setDecimalSeparator` is for users who prefer another one.
    /// - Mongolian in its vertical script counts as left to right.
    virtual bool initWithLocaleIdentifier(const std::string& identifier);
    /// A locale of these customs. Never empty: any identifier is taken.
    static Ref<NSLocale> localeWithIdentifier(const std::string& identifier);

    /// The text of a key; nothing for a key that does not exist.
    virtual std::optional<std::string> objectForKey(NSLocaleKey key) const;

    /// What stands between the items of a list, with its space if it has one: ", ", and "، " in
    /// languages that are written in Arabic script, "、" in Japanese, "，" in Chinese.
    const std::string& listSeparator() const { return listSeparator_; }

    /// For a user who deviates from the custom of the language. Taken as it is, also an empty text;
    /// texts on screen stay as they are until they are set again.
    void setDecimalSeparator(std::string separator);
    /// Where lines begin. Default: as the language is written.
    NSLocaleLanguageDirection characterDirection() const { return direction_; }
    /// Whether lines begin at the right.
    bool isRightToLeft() const { return direction_ == NSLocaleLanguageDirection::RightToLeft; }
    /// For a user who deviates from the custom of the language.
    void setCharacterDirection(NSLocaleLanguageDirection direction) { direction_ = direction; }

private:
    std::string identifier_ = "en";
    std::string decimalSeparator_ = ".";
    std::string listSeparator_ = ", ";
    NSLocaleLanguageDirection direction_ = NSLocaleLanguageDirection::LeftToRight;
};

/// How `create` makes a locale: `(identifier)`.
inline bool initialise(NSLocale& locale, const std::string& identifier) { return locale.initWithLocaleIdentifier(identifier); }

} // namespace gx
