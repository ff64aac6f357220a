#include "GXLanguage.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "GXLanguageChecks.h"
#include "GXLanguages.h"

namespace gx {

template <class Texts>
constexpr GXLanguage GXLanguage::languageWithTexts() {
    using Checks = GXLanguageChecks;
    static_assert(!Texts::ownName.empty() && !Texts::decimalSeparator.empty());
    static_assert(isComplete<Checks::firstProblemOfTexts(Texts::unitTexts, GXEnglish::unitTexts)>());
    static_assert(isComplete<Checks::firstProblemOfNames(Texts::accessibilityNames)>());
    static_assert(isComplete<Checks::firstProblemOfUnits(Texts::accessibilityUnits, Texts::pluralCategory)>());
    return GXLanguage({.identifier = Texts::identifier,
                       .ownName = Texts::ownName,
                       .decimalSeparator = Texts::decimalSeparator,
                       .pluralRule = Texts::pluralCategory,
                       .pluralTable = {},
                       .unitTexts = Texts::unitTexts,
                       .names = Texts::accessibilityNames,
                       .units = Texts::accessibilityUnits});
}

namespace {

template <class... Texts>
constexpr std::array<GXLanguage, sizeof...(Texts)> languagesOfList(GXLanguageList<Texts...>) {
    return {GXLanguage::languageWithTexts<Texts>()...};
}

constexpr auto languagesCompiledIn = languagesOfList(GXLanguagesCompiledIn{});

std::vector<const GXLanguage*>& allLanguages() {
    static std::vector<const GXLanguage*> all;
    if (all.empty()) {
        for (const GXLanguage& language : languagesCompiledIn) all.push_back(&language);
    }
    return all;
}

constexpr char lowerCase(char letter) { return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter; }

/// Cuts the first part off the front of an identifier.
std::string_view takePart(std::string_view& identifier) {
    const std::string_view part = identifier.substr(0, identifier.find_first_of("-_"));
    identifier.remove_prefix(std::min(identifier.size(), part.size() + 1));
    return part;
}

bool isSamePart(std::string_view one, std::string_view other) {
    return std::equal(one.begin(), one.end(), other.begin(), other.end(), [](char a, char b) { return lowerCase(a) == lowerCase(b); });
}

std::size_t commonLeadingParts(std::string_view a, std::string_view b) {
    std::size_t count = 0;
    while (!a.empty() && !b.empty()) {
        const std::string_view partOfA = takePart(a);
        const std::string_view partOfB = takePart(b);
        // "iw" is the old code of Hebrew, which some systems still have.
        const bool isHebrew = count == 0 && isSamePart(partOfA, GXHebrew::identifier) && isSamePart(partOfB, "iw");
        if (!isHebrew && !isSamePart(partOfA, partOfB)) break;
        ++count;
    }
    return count;
}

void replaceFirst(std::string& text, std::string_view place, std::string_view with) {
    const std::size_t at = text.find(place);
    if (at != std::string::npos) text.replace(at, place.size(), with);
}

} // namespace

std::span<const GXLanguage> GXLanguage::compiledIn() { return languagesCompiledIn; }

const std::vector<const GXLanguage*>& GXLanguage::all() { return allLanguages(); }

void GXLanguage::add(const GXLanguage& language) { allLanguages().push_back(&language); }

const GXLanguage& GXLanguage::languageForIdentifier(std::string_view identifier) {
    const std::string_view tag = identifier.substr(0, identifier.find_first_of(".@"));
    const std::vector<const GXLanguage*>& languages = all();
    // The first of equals, so English if none has a part in common.
    return **std::max_element(languages.begin(), languages.end(), [tag](const GXLanguage* a, const GXLanguage* b) {
        return commonLeadingParts(a->identifier(), tag) < commonLeadingParts(b->identifier(), tag);
    });
}

std::optional<std::string_view> GXLanguage::textForKey(std::string_view key) const {
    const std::span<const GXText> texts = parts_.unitTexts;
    const auto entry = std::find_if(texts.begin(), texts.end(), [key](const GXText& candidate) { return candidate.key == key; });
    if (entry == texts.end()) return std::nullopt;
    return entry->text;
}

GXPluralCategory GXLanguage::pluralCategoryOfOperands(const GXPluralOperands& operands) const {
    if (parts_.pluralRule) return parts_.pluralRule(operands);
    return static_cast<GXPluralCategory>(parts_.pluralTable[GXPluralTable::indexOf(operands)] - '0');
}

GXPluralCategory GXLanguage::pluralCategoryOfNumber(std::string_view whole, std::string_view fraction) const {
    if (!whole.empty() && (whole.front() == '-' || whole.front() == '+')) whole.remove_prefix(1);
    if (whole.empty() || !GXPluralOperands::areDigits(whole) || !GXPluralOperands::areDigits(fraction)) return GXPluralCategory::Other;
    return pluralCategoryOfOperands(GXPluralOperands::operandsOfDigits(whole, fraction));
}

// Names and units are in the order of the enumerations.

std::string_view GXLanguage::textForName(GXAccessibilityName name) const {
    const auto index = static_cast<std::size_t>(name);
    return index < parts_.names.size() ? parts_.names[index].text : std::string_view{};
}

std::string_view GXLanguage::patternForUnit(GXAccessibilityUnit unit, GXPluralCategory category) const {
    const auto index = static_cast<std::size_t>(unit);
    return index < parts_.units.size() ? parts_.units[index].forms.form(category) : std::string_view{};
}

std::string GXLanguage::quantity(const GXAccessibilityNumber& number, GXAccessibilityUnit unit) const {
    const bool isNegative = !number.whole.empty() && number.whole.front() == '-';
    std::string text = number.whole.substr(isNegative ? 1 : 0);
    if (!number.fraction.empty()) text += number.separator + number.fraction;
    // Many screen readers skip a "-" before digits, or read it as a hyphen.
    if (isNegative) text = filledPattern(textForName(GXAccessibilityName::Minus), text);
    return filledPattern(patternForUnit(unit, pluralCategoryOfNumber(number.whole, number.fraction)), text);
}

std::string GXLanguage::filledPattern(std::string_view pattern, std::string_view first, std::string_view second) {
    std::string text(pattern);
    replaceFirst(text, "{1}", second);
    // Comes first, so the "{0}" of a text filled in above is not met.
    replaceFirst(text, "{0}", first);
    return text;
}

} // namespace gx
