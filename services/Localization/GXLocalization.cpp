#include "GXLocalization.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "GXLanguage.h"
#include "GXLanguageData.h"

namespace gx {

namespace {

Ref<GXLocalization>& theLocalization() {
    static Ref<GXLocalization> localization = create<GXLocalization>();
    return localization;
}

const GXLanguage* languageNamed(std::string_view identifier) {
    const std::vector<const GXLanguage*>& all = GXLanguage::all();
    const auto found = std::find_if(all.begin(), all.end(), [=](const GXLanguage* one) { return one->identifier() == identifier; });
    return found == all.end() ? nullptr : *found;
}

} // namespace

GXLocalization::GXLocalization() : texts_(&GXLanguage::languageForIdentifier(language_)) {}

Ref<GXLocalization> GXLocalization::sharedLocalization() { return theLocalization(); }

void GXLocalization::setSharedLocalization(Ref<GXLocalization> localization) {
    theLocalization() = localization ? std::move(localization) : create<GXLocalization>();
}

std::optional<std::string> GXLocalization::localizedStringWithKey_comment(const std::string& key, const std::string&) const {
    const std::optional<std::string_view> text = texts_->textForKey(key);
    return text ? std::string(*text) : key;
}

std::optional<std::string> GXLocalization::accessibilityTextForName(GXAccessibilityName name) const {
    return std::string(texts_->textForName(name));
}

std::optional<std::string> GXLocalization::accessibilityTextForNumber_unit(const GXAccessibilityNumber& number,
                                                                           GXAccessibilityUnit unit) const {
    return texts_->quantity(number, unit);
}

std::optional<std::string> GXLocalization::accessibilityTextForPattern(GXAccessibilityName pattern, const std::string& first,
                                                                       const std::string& second) const {
    const std::optional<std::string> text = accessibilityTextForName(pattern);
    if (!text) return std::nullopt;
    return GXLanguage::filledPattern(*text, first, second);
}

void GXLocalization::setLanguage(std::string language) {
    texts_ = &GXLanguage::languageForIdentifier(language);
    language_ = std::move(language);
}

std::string GXLocalization::translationLanguage() const { return std::string(texts_->identifier()); }

std::vector<std::string> GXLocalization::availableLanguages() {
    std::vector<std::string> languages;
    for (const GXLanguage* language : GXLanguage::all()) languages.emplace_back(language->identifier());
    return languages;
}

std::optional<std::string> GXLocalization::dataOfLanguage(const std::string& identifier) {
    const GXLanguage* language = languageNamed(identifier);
    return language ? std::optional(GXLanguageData::textOfLanguage(*language)) : std::nullopt;
}

bool GXLocalization::addLanguage(std::string data) {
    // The latest one holds those before. Localisers point to languages, so they are kept for good.
    static std::unique_ptr<GXLanguageData> added;
    std::unique_ptr<GXLanguageData> language = GXLanguageData::dataFromText(std::move(data));
    if (!language) return false;
    if (languageNamed(language->language().identifier())) return true;
    GXLanguage::add(language->language());
    language->setBefore(std::move(added));
    added = std::move(language);
    return true;
}

std::string GXLocalization::nameOfLanguage(const std::string& identifier) {
    return std::string(GXLanguage::languageForIdentifier(identifier).ownName());
}

std::string GXLocalization::decimalSeparatorOfLanguage(const std::string& identifier) {
    return std::string(GXLanguage::languageForIdentifier(identifier).decimalSeparator());
}

} // namespace gx
