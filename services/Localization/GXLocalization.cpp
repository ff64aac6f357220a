#include "GXLocalization.h"

#include <utility>

#include "GXTranslations.h"

namespace gx {

namespace {
Ref<GXLocalization>& theLocalization() {
    static Ref<GXLocalization> localization = create<GXLocalization>();
    return localization;
}
} // namespace

GXLocalization::GXLocalization()
    : translations_(&GXTranslations::translationsForLanguage(language_)),
      spokenTexts_(&GXSpokenTexts::textsForLanguage(translations_->language())) {}

const Ref<GXLocalization>& GXLocalization::sharedLocalization() { return theLocalization(); }

void GXLocalization::setSharedLocalization(Ref<GXLocalization> localization) {
    theLocalization() = localization ? std::move(localization) : create<GXLocalization>();
}

std::optional<std::string> GXLocalization::localizedStringWithKey_comment(const std::string& key, const std::string&) const {
    const std::optional<std::string_view> text = translations_->textForKey(key);
    return text ? std::string(*text) : key;
}

std::optional<std::string> GXLocalization::spokenTextForName(GXSpokenName name) const {
    return std::string(spokenTexts_->textForName(name));
}

std::optional<std::string> GXLocalization::spokenQuantity(const GXSpokenNumber& number, GXSpokenUnit unit) const {
    return spokenTexts_->quantity(number, unit);
}

void GXLocalization::setLanguage(std::string language) {
    translations_ = &GXTranslations::translationsForLanguage(language);
    spokenTexts_ = &GXSpokenTexts::textsForLanguage(translations_->language());
    language_ = std::move(language);
}

std::string GXLocalization::translationLanguage() const { return std::string(translations_->language()); }

std::vector<std::string> GXLocalization::availableLanguages() {
    std::vector<std::string> languages;
    for (const GXTranslations& translations : GXTranslations::all()) languages.emplace_back(translations.language());
    return languages;
}

} // namespace gx
