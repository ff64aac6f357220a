#include "Translations.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>

#include "GXLanguageChecks.h"
#include "GXLanguages.h"
#include <GXUIPickers/GXLocalization.h>

using gx::GXText;

namespace gallery {

namespace {

struct LanguageTexts {
    std::string_view language;
    std::span<const GXText> texts;
};

template <class Language>
constexpr LanguageTexts textsOfLanguage() {
    using Checks = gx::GXLanguageChecks;
    static_assert(gx::isComplete<Checks::firstProblemOfTexts(Language::applicationTexts, gx::GXEnglish::applicationTexts)>());
    return {Language::identifier, Language::applicationTexts};
}

template <class... Languages>
constexpr std::array<LanguageTexts, sizeof...(Languages)> textsOfLanguages(gx::GXLanguageList<Languages...>) {
    return {textsOfLanguage<Languages>()...};
}

constexpr auto allTexts = textsOfLanguages(gx::GXLanguages{});

constexpr bool isEachTextThereOnce(std::span<const GXText> texts) {
    return std::all_of(texts.begin(), texts.end(), [texts](const GXText& text) {
        return std::count_if(texts.begin(), texts.end(), [&text](const GXText& other) { return other.key == text.key; }) == 1;
    });
}
static_assert(isEachTextThereOnce(gx::GXEnglish::applicationTexts), "an English text is there twice");

} // namespace

std::string Translations::text(const std::string& english) {
    return std::string(textInLanguage(english, gx::GXLocalization::sharedLocalization()->translationLanguage()));
}

std::string_view Translations::textInLanguage(std::string_view english, std::string_view language) {
    const auto texts = std::find_if(allTexts.begin(), allTexts.end(),
                                    [language](const LanguageTexts& candidate) { return candidate.language == language; });
    if (texts == allTexts.end()) return english;
    const auto entry =
        std::find_if(texts->texts.begin(), texts->texts.end(), [english](const GXText& candidate) { return candidate.key == english; });
    return entry == texts->texts.end() ? english : entry->text;
}

std::vector<std::string> Translations::languages() {
    std::vector<std::string> languages;
    languages.reserve(allTexts.size());
    for (const LanguageTexts& texts : allTexts) languages.emplace_back(texts.language);
    return languages;
}

std::vector<std::string_view> Translations::englishTexts() {
    std::vector<std::string_view> texts;
    for (const GXText& text : gx::GXEnglish::applicationTexts) texts.push_back(text.key);
    return texts;
}

} // namespace gallery
