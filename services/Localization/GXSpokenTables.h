#pragma once

// For the tables of spoken texts alone.

#include <initializer_list>

#include "GXSpokenTexts.h"

namespace gx {

extern const GXSpokenTexts spokenEnglish;
extern const GXSpokenTexts spokenGerman;
extern const GXSpokenTexts spokenFrench;
extern const GXSpokenTexts spokenSpanish;
extern const GXSpokenTexts spokenItalian;
extern const GXSpokenTexts spokenPortuguese;
extern const GXSpokenTexts spokenDutch;
extern const GXSpokenTexts spokenPolish;
extern const GXSpokenTexts spokenRussian;
extern const GXSpokenTexts spokenTurkish;
extern const GXSpokenTexts spokenJapanese;
extern const GXSpokenTexts spokenSimplifiedChinese;
extern const GXSpokenTexts spokenKorean;

namespace spoken {

/// For a language that knows one and more.
constexpr GXSpokenTexts::Forms forms(std::string_view one, std::string_view other) { return {one, {}, {}, other}; }
/// For one that also knows a few and many, and keeps the last form for fractions.
constexpr GXSpokenTexts::Forms forms(std::string_view one, std::string_view few, std::string_view many, std::string_view other) {
    return {one, few, many, other};
}
/// For one whose words stay as they are.
constexpr GXSpokenTexts::Forms form(std::string_view other) { return {{}, {}, {}, other}; }

constexpr bool takes(std::string_view pattern, std::string_view place) {
    const std::size_t at = pattern.find(place);
    return at != std::string_view::npos && pattern.find(place, at + 1) == std::string_view::npos;
}

constexpr bool isPattern(GXSpokenName name) { return name >= GXSpokenName::NameAndPart; }
constexpr bool takesTwo(GXSpokenName name) { return name == GXSpokenName::NameAndPart || name == GXSpokenName::Sum; }

/// Whether a table has every name and every unit, in the order of the enumerations; every unit in these categories and no others; and
/// each pattern the places that it takes, once.
constexpr bool isComplete(std::span<const GXSpokenTexts::Name> names, std::span<const GXSpokenTexts::Unit> units,
                          std::initializer_list<GXPluralCategory> categories) {
    if (names.size() != GXSpokenNameCount || units.size() != GXSpokenUnitCount) return false;
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (static_cast<std::size_t>(names[i].key) != i || names[i].text.empty()) return false;
        if (takesTwo(names[i].key) && names[i].text.find("{0}") > names[i].text.find("{1}")) return false;
        if (isPattern(names[i].key) != takes(names[i].text, "{0}") || takesTwo(names[i].key) != takes(names[i].text, "{1}")) return false;
    }
    for (std::size_t i = 0; i < units.size(); ++i) {
        if (static_cast<std::size_t>(units[i].key) != i) return false;
        for (const GXPluralCategory category :
             {GXPluralCategory::One, GXPluralCategory::Few, GXPluralCategory::Many, GXPluralCategory::Other}) {
            bool isUsed = false;
            for (const GXPluralCategory used : categories) isUsed = isUsed || used == category;
            const std::string_view pattern = units[i].forms.form(category);
            if (isUsed ? !takes(pattern, "{0}") : !pattern.empty()) return false;
        }
    }
    return true;
}

} // namespace spoken

} // namespace gx
