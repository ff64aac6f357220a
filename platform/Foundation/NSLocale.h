#pragma once

#include <optional>
#include <string>

#include "GXExport.h"
#include "NSObject.h"

namespace gx {

enum class NSLocaleKey { Identifier, LanguageCode, DecimalSeparator };
/// The keys that `objectForKey` knows.
inline constexpr NSLocaleKey NSLocaleIdentifier = NSLocaleKey::Identifier;
inline constexpr NSLocaleKey NSLocaleLanguageCode = NSLocaleKey::LanguageCode;
inline constexpr NSLocaleKey NSLocaleDecimalSeparator = NSLocaleKey::DecimalSeparator;

enum class NSLocaleLanguageDirection { LeftToRight, RightToLeft };

/// The customs of the user's language: language, decimal separator and writing direction. It has nothing to
/// do with the C locale, which the library never reads.
///
/// A host sets the current one from the user's system; without a host it is "en" with ".".
class GX_EXPORT NSLocale : public NSObject {
public:
    /// Never empty.
    static const Ref<NSLocale>& currentLocale();
    /// Takes effect for what asks afterwards; texts already on screen stay. An empty reference restores the default.
    static void setCurrentLocale(Ref<NSLocale> locale);

    /// `identifier` as in "de", "de_DE", "zh-Hans"; the separator and the direction follow from its language.
    virtual bool initWithLocaleIdentifier(const std::string& identifier);
    static Ref<NSLocale> localeWithIdentifier(const std::string& identifier);

    virtual std::optional<std::string> objectForKey(NSLocaleKey key) const;

    /// For a user whose system deviates from the custom of the language.
    void setDecimalSeparator(std::string separator);
    NSLocaleLanguageDirection characterDirection() const { return direction_; }
    bool isRightToLeft() const { return direction_ == NSLocaleLanguageDirection::RightToLeft; }
    void setCharacterDirection(NSLocaleLanguageDirection direction) { direction_ = direction; }

private:
    std::string identifier_ = "en";
    std::string decimalSeparator_ = ".";
    NSLocaleLanguageDirection direction_ = NSLocaleLanguageDirection::LeftToRight;
};

/// How `create` makes a locale: `(identifier)`.
inline bool initialise(NSLocale& locale, const std::string& identifier) { return locale.initWithLocaleIdentifier(identifier); }

} // namespace gx
