#pragma once

#include <array>
#include <span>

#include "GXLanguageTexts.h"

namespace gx {

/// What the compiler checks of each language. Every check returns the index of the first entry that
/// is missing, in the wrong place or malformed, or `complete`.
class GXLanguageChecks {
public:
    static constexpr std::size_t complete = static_cast<std::size_t>(-1);

    /// The keys of `model`, in their order, with a text each.
    static constexpr std::size_t firstProblemOfTexts(std::span<const GXText> texts, std::span<const GXText> model) {
        for (std::size_t i = 0; i < texts.size() || i < model.size(); ++i) {
            if (i >= texts.size() || i >= model.size()) return i;
            if (texts[i].key != model[i].key || texts[i].text.empty()) return i;
        }
        return complete;
    }

    /// Every name in the order of the enumeration; patterns have each of their places once, "{0}"
    /// before "{1}".
    static constexpr std::size_t firstProblemOfNames(std::span<const GXAccessibilityNameText> names) {
        for (std::size_t i = 0; i < GXAccessibilityNameCount; ++i) {
            if (i >= names.size() || static_cast<std::size_t>(names[i].key) != i || names[i].text.empty()) return i;
            const bool isPattern = names[i].key >= GXAccessibilityName::NameAndPart;
            const bool hasTwoPlaces = names[i].key == GXAccessibilityName::NameAndPart || names[i].key == GXAccessibilityName::Sum;
            if (hasOnce(names[i].text, "{0}") != isPattern || hasOnce(names[i].text, "{1}") != hasTwoPlaces) return i;
            if (hasTwoPlaces && names[i].text.find("{0}") > names[i].text.find("{1}")) return i;
        }
        return names.size() == GXAccessibilityNameCount ? complete : GXAccessibilityNameCount;
    }

    /// Every unit in the order of the enumeration, with a pattern for each category that the plural
    /// rule returns, and for no other.
    static constexpr std::size_t firstProblemOfUnits(std::span<const GXAccessibilityUnitText> units,
                                                     GXPluralCategory (*rule)(const GXPluralOperands&)) {
        const auto used = categoriesOfRule(rule);
        for (std::size_t i = 0; i < GXAccessibilityUnitCount; ++i) {
            if (i >= units.size() || static_cast<std::size_t>(units[i].key) != i) return i;
            for (std::size_t category = 0; category < used.size(); ++category) {
                const std::string_view pattern = units[i].forms.form(static_cast<GXPluralCategory>(category));
                if (used[category] ? !hasOnce(pattern, "{0}") : !pattern.empty()) return i;
            }
        }
        return units.size() == GXAccessibilityUnitCount ? complete : GXAccessibilityUnitCount;
    }

private:
    static constexpr bool hasOnce(std::string_view pattern, std::string_view place) {
        const std::size_t at = pattern.find(place);
        return at != std::string_view::npos && pattern.find(place, at + 1) == std::string_view::npos;
    }

    static constexpr std::array<bool, GXPluralCategoryCount> categoriesOfRule(GXPluralCategory (*rule)(const GXPluralOperands&)) {
        std::array<bool, GXPluralCategoryCount> used{};
        for (int integer = 0; integer < GXPluralOperands::limit; ++integer) {
            for (const GXPluralOperands& operands :
                 {GXPluralOperands{integer, false, true}, GXPluralOperands{integer, true, true}, GXPluralOperands{integer, true, false}})
                used[static_cast<std::size_t>(rule(operands))] = true;
        }
        return used;
    }
};

/// Fails to compile with the index of the first bad entry, which compilers show as its argument.
template <std::size_t firstProblem>
constexpr bool isComplete() {
    static_assert(firstProblem == GXLanguageChecks::complete, "an entry is missing, empty, malformed or in the wrong place");
    return true;
}

} // namespace gx
