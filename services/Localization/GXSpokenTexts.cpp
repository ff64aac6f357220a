#include "GXSpokenTexts.h"

#include <algorithm>

#include "GXSpokenTables.h"

namespace gx {

namespace {

constexpr std::array<const GXSpokenTexts*, 13> languages = {
    &spokenEnglish, &spokenGerman,  &spokenFrench,  &spokenSpanish,  &spokenItalian,           &spokenPortuguese, &spokenDutch,
    &spokenPolish,  &spokenRussian, &spokenTurkish, &spokenJapanese, &spokenSimplifiedChinese, &spokenKorean,
};

void replaceFirst(std::string& text, std::string_view place, std::string_view with) {
    const std::size_t at = text.find(place);
    if (at != std::string::npos) text.replace(at, place.size(), with);
}

} // namespace

std::string filledPattern(std::string_view pattern, std::string_view first, std::string_view second) {
    std::string text(pattern);
    replaceFirst(text, "{1}", second);
    replaceFirst(text, "{0}", first); // Stands before the other, and so is met before any in what was filled in.
    return text;
}

std::span<const GXSpokenTexts* const> GXSpokenTexts::all() { return languages; }

const GXSpokenTexts& GXSpokenTexts::textsForLanguage(std::string_view language) {
    const auto entry =
        std::find_if(languages.begin(), languages.end(), [language](const GXSpokenTexts* texts) { return texts->language() == language; });
    return entry == languages.end() ? spokenEnglish : **entry;
}

// The tables are in the order of the enumerations.

std::string_view GXSpokenTexts::textForName(GXSpokenName name) const {
    const auto index = static_cast<std::size_t>(name);
    return index < names_.size() ? names_[index].text : std::string_view{};
}

std::string_view GXSpokenTexts::patternForUnit(GXSpokenUnit unit, GXPluralCategory category) const {
    const auto index = static_cast<std::size_t>(unit);
    return index < units_.size() ? units_[index].forms.form(category) : std::string_view{};
}

std::string GXSpokenTexts::quantity(const GXSpokenNumber& number, GXSpokenUnit unit) const {
    const bool isNegative = !number.whole.empty() && number.whole.front() == '-';
    std::string text = number.whole.substr(isNegative ? 1 : 0);
    if (!number.fraction.empty()) text += number.separator + number.fraction;
    // A "-" before digits is passed over by many screen readers, or taken for a hyphen.
    if (isNegative) text = filledPattern(textForName(GXSpokenName::Minus), text);
    return filledPattern(patternForUnit(unit, pluralCategoryOfNumber(language_, number.whole, number.fraction)), text);
}

} // namespace gx
