#pragma once

#include <optional>
#include <string>
#include <vector>

#include "GXSpokenTexts.h"
#include "NSObject.h"

namespace gx {

class GXTranslations;

/// The texts that pickers show, in the user's language. Pickers ask the shared localiser each time they set a text, so a new language
/// shows on what is set or reloaded afterwards; texts already on screen stay.
///
/// An application with translations of its own overrides `localizedStringWithKey_comment` and calls `setSharedLocalization`. Without
/// either, and until a host sets the language, the texts are English and equal to their keys.
class GXLocalization : public NSObject {
public:
    GXLocalization();

    /// Never empty, and the same object until another one is set; copy the reference to keep it.
    static const Ref<GXLocalization>& sharedLocalization();
    /// Holds the localiser strongly. An empty reference gives a new one that speaks English.
    static void setSharedLocalization(Ref<GXLocalization> localization);

    /// The text for `key`, a key without a translation itself. The comment is a note for translators and changes nothing. An override may
    /// answer nothing: then nothing is shown.
    virtual std::optional<std::string> localizedStringWithKey_comment(const std::string& key, const std::string& comment) const;

    /// What screen readers speak: a name, or one of the patterns that `GXSpokenName` lists. An application that says it otherwise, or in
    /// another language, overrides both; pickers ask anew each time that something is spoken. Nothing leaves out what would be said.
    virtual std::optional<std::string> spokenTextForName(GXSpokenName name) const;
    /// A number with its unit, such as "5.3 kilometres", "1 kilometre", "minus 4 degrees Celsius".
    virtual std::optional<std::string> spokenQuantity(const GXSpokenNumber& number, GXSpokenUnit unit) const;

    /// As last given.
    const std::string& language() const { return language_; }
    /// Takes identifiers such as "de", "de_DE", "zh-Hans-CN", "pt_BR.UTF-8", in any case. The texts are those of the known language that
    /// agrees with the most parts of it, the first part at least; so "zh_TW" gets simplified Chinese, which its readers know better than
    /// English. A language that is not known speaks English.
    virtual void setLanguage(std::string language);
    /// The known language that the texts are taken from, such as "zh-Hans" for "zh_CN".
    std::string translationLanguage() const;
    /// All known languages, English first.
    static std::vector<std::string> availableLanguages();

private:
    std::string language_ = "en";
    // Points into constant data, never null.
    const GXTranslations* translations_;
    const GXSpokenTexts* spokenTexts_;
};

} // namespace gx
