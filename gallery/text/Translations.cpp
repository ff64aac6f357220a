#include "Translations.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>

#include "ApplicationLanguages.h"
#include <GXUIPickers/GXLocalization.h>

namespace gallery {

namespace {

struct LanguageTexts {
    std::string_view language;
    std::span<const ApplicationText> texts;
};

template <class Language>
constexpr LanguageTexts textsOfLanguage() {
    using Checks = ApplicationTextChecks;
    static_assert(isComplete<Checks::firstProblemOfTexts(Language::texts, EnglishTexts::texts)>());
    return {Language::language, Language::texts};
}
static_assert(isComplete<ApplicationTextChecks::firstRepeatedText(EnglishTexts::texts)>());

template <class... Languages>
constexpr std::array<LanguageTexts, sizeof...(Languages)> textsOfLanguages(ApplicationLanguageList<Languages...>) {
    return {textsOfLanguage<Languages>()...};
}

constexpr auto allTexts = textsOfLanguages(ApplicationLanguages{});

} // namespace

std::string Translations::text(const std::string& english) {
    return std::string(textInLanguage(english, gx::GXLocalization::sharedLocalization()->translationLanguage()));
}

std::string Translations::filled(const std::string& english, const std::string& first, const std::string& second) {
    const std::string pattern = text(english);
    std::string whole;
    for (std::size_t i = 0; i < pattern.size();) {
        const std::string_view place = std::string_view(pattern).substr(i, 3);
        const bool isPlace = place == "{0}" || place == "{1}";
        whole += place == "{0}" ? first : place == "{1}" ? second : pattern.substr(i, 1);
        i += isPlace ? place.size() : 1;
    }
    return whole;
}

std::string_view Translations::textInLanguage(std::string_view english, std::string_view language) {
    const auto texts = std::find_if(allTexts.begin(), allTexts.end(),
                                    [language](const LanguageTexts& candidate) { return candidate.language == language; });
    if (texts == allTexts.end()) return english;
    const auto entry = std::find_if(texts->texts.begin(), texts->texts.end(),
                                    [english](const ApplicationText& candidate) { return candidate.english == english; });
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
    for (const ApplicationText& text : EnglishTexts::texts) texts.push_back(text.english);
    return texts;
}

} // namespace gallery
