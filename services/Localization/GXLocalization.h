#pragma once

#include <optional>
#include <string>
#include <vector>

#include "GXAccessibilityTexts.h"
#include "GXExport.h"
#include "NSObject.h"

namespace gx {

class GXLanguage;

/// The texts of the pickers in the user's language.
///
/// Pickers call the shared localiser each time they set a text. After a change of the language, the
/// decimal separator or the localiser itself, an application calls `reloadData()` of its pickers;
/// until then, texts on screen stay as they are.
///
///     GXLocalization::sharedLocalization()->setLanguage("de");
///     distancePicker->reloadData();
///
/// An application with translations of its own overrides the `virtual` operations and calls
/// `setSharedLocalization`. Without one, and until the application sets the language, the texts are
/// English and equal to their keys: the host of Qt widgets sets the locale alone. Items of Qt Quick
/// and elements of a web page follow their own language.
class GX_EXPORT GXLocalization : public NSObject {
public:
    GXLocalization();

    /// Never empty. The reference keeps the localiser alive, also if a call replaces it.
    static Ref<GXLocalization> sharedLocalization();
    /// Holds the localiser strongly. An empty reference gives a new one in English.
    static void setSharedLocalization(Ref<GXLocalization> localization);

    /// The text for `key`; the key itself without a translation.
    ///
    /// `comment` is a note for translators and changes nothing. An override may return nothing:
    /// then nothing is shown.
    virtual std::optional<std::string> localizedStringWithKey_comment(const std::string& key, const std::string& comment) const;

    /// What screen readers read out for a name, or a pattern of the same enumeration.
    ///
    /// Pickers call it each time. Where an override returns nothing, the name or pattern is left
    /// out.
    virtual std::optional<std::string> accessibilityTextForName(GXAccessibilityName name) const;
    /// A number with its unit, such as "5.3 kilometres", "1 kilometre", "minus 4 degrees Celsius".
    virtual std::optional<std::string> accessibilityTextForNumber_unit(const GXAccessibilityNumber& number, GXAccessibilityUnit unit) const;
    /// The text of a pattern with its places filled in. Nothing if the pattern is left out.
    std::optional<std::string> accessibilityTextForPattern(GXAccessibilityName pattern, const std::string& first,
                                                           const std::string& second = {}) const;

    /// As last set.
    const std::string& language() const { return language_; }
    /// Takes identifiers such as "de", "de_DE", "zh-Hans-CN", "pt_BR.UTF-8", in any case.
    ///
    /// The texts are those of the known language that agrees with the most parts of the identifier,
    /// the first part at least, else English:
    ///
    /// - "zh_TW" gets simplified Chinese, which its readers know better than English;
    /// - "iw" means the same as "he";
    /// - "pt" is Brazilian, in words and in plurals ("0 quilômetro"), and "pt-PT" falls back to it.
    virtual void setLanguage(std::string language);
    /// The known language that the texts are taken from, such as "zh-Hans" for "zh_CN".
    std::string translationLanguage() const;

    /// All known languages, English first.
    static std::vector<std::string> availableLanguages();
    /// A known language as a text, its identifier in the first line. Nothing for an unknown one.
    static std::optional<std::string> dataOfLanguage(const std::string& identifier);
    /// Adds a language from what `dataOfLanguage` returned, perhaps in another build, or from a
    /// translation of it. Returns whether the language is known now.
    ///
    /// For builds that have English alone compiled in (`GX_LANGUAGES_ON_DEMAND`), and for languages
    /// that the library lacks. One that is known already stays as it is. Localisers whose language
    /// was set before keep their texts until `setLanguage`.
    static bool addLanguage(std::string data);
    /// What its speakers call the known language nearest to an identifier, such as "Deutsch".
    static std::string nameOfLanguage(const std::string& identifier);
    /// What is usual in it, such as ",". Pickers use the one of the current `NSLocale`, which also
    /// knows the customs of regions.
    static std::string decimalSeparatorOfLanguage(const std::string& identifier);

private:
    std::string language_ = "en";
    /// Points to constant data, never null.
    const GXLanguage* texts_;
};

} // namespace gx
