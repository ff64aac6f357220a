#include "GXLanguageChecks.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "GXLanguages.h"

namespace gx {
namespace {

using Checks = GXLanguageChecks;

constexpr auto arabicRule = GXArabic::pluralCategory;
constexpr auto hebrewRule = GXHebrew::pluralCategory;

std::vector<GXAccessibilityUnitText> unitsWithForms(const GXPluralForms& forms) {
    std::vector<GXAccessibilityUnitText> units;
    for (std::size_t i = 0; i < GXAccessibilityUnitCount; ++i) units.push_back({static_cast<GXAccessibilityUnit>(i), forms});
    return units;
}

std::vector<GXAccessibilityNameText> englishNames() {
    return {std::begin(GXEnglish::accessibilityNames), std::end(GXEnglish::accessibilityNames)};
}

std::size_t problemAfter(std::size_t index, std::string_view text) {
    auto names = englishNames();
    names[index].text = text;
    return Checks::firstProblemOfNames(names);
}

TEST(GXLanguageChecks, ALanguageMayHaveSixPluralCategories) {
    const GXPluralForms six = {.zero = "0 {0}", .one = "1 {0}", .two = "2 {0}", .few = "few {0}", .many = "many {0}", .other = "other {0}"};
    EXPECT_EQ(Checks::firstProblemOfUnits(unitsWithForms(six), arabicRule), Checks::complete);
    const auto formOf = [&six](std::string_view whole, std::string_view fraction = {}) {
        return six.form(arabicRule(GXPluralOperands::operandsOfDigits(whole, fraction)));
    };
    EXPECT_EQ(formOf("0"), "0 {0}");
    EXPECT_EQ(formOf("1"), "1 {0}");
    EXPECT_EQ(formOf("2", "0"), "2 {0}");
    EXPECT_EQ(formOf("3"), "few {0}");
    EXPECT_EQ(formOf("110"), "few {0}");
    EXPECT_EQ(formOf("11"), "many {0}");
    EXPECT_EQ(formOf("1099"), "many {0}");
    EXPECT_EQ(formOf("100"), "other {0}");
    EXPECT_EQ(formOf("1002"), "other {0}");
    EXPECT_EQ(formOf("5", "3"), "other {0}");
}

TEST(GXLanguageChecks, ALanguageMayHaveADual) {
    const GXPluralForms three = {.one = "1 {0}", .two = "2 {0}", .other = "other {0}"};
    EXPECT_EQ(Checks::firstProblemOfUnits(unitsWithForms(three), hebrewRule), Checks::complete);
    EXPECT_EQ(hebrewRule(GXPluralOperands::operandsOfDigits("0", "5")), GXPluralCategory::One);
    EXPECT_EQ(hebrewRule(GXPluralOperands::operandsOfDigits("2", "0")), GXPluralCategory::Other);
}

TEST(GXLanguageChecks, UnitsHaveTheFormsThatTheRuleReturnsAndNoOthers) {
    auto units = unitsWithForms({.one = "1 {0}", .two = "2 {0}", .other = "other {0}"});
    units[3].forms.two = "";
    EXPECT_EQ(Checks::firstProblemOfUnits(units, hebrewRule), 3U);
    units[3].forms.two = "two";
    EXPECT_EQ(Checks::firstProblemOfUnits(units, hebrewRule), 3U);
    units[3].forms.two = "{0} {0}";
    EXPECT_EQ(Checks::firstProblemOfUnits(units, hebrewRule), 3U);
    units[3].forms.two = "2 {0}";
    EXPECT_EQ(Checks::firstProblemOfUnits(units, hebrewRule), Checks::complete);
    units[5].forms.many = "many {0}";
    EXPECT_EQ(Checks::firstProblemOfUnits(units, hebrewRule), 5U);
}

TEST(GXLanguageChecks, UnitsAreCompleteAndInOrder) {
    auto units = unitsWithForms({.one = "{0}", .other = "{0}"});
    EXPECT_EQ(Checks::firstProblemOfUnits(units, GXEnglish::pluralCategory), Checks::complete);
    units.push_back(units.back());
    EXPECT_EQ(Checks::firstProblemOfUnits(units, GXEnglish::pluralCategory), GXAccessibilityUnitCount);
    units.resize(GXAccessibilityUnitCount - 1);
    EXPECT_EQ(Checks::firstProblemOfUnits(units, GXEnglish::pluralCategory), GXAccessibilityUnitCount - 1);
    std::swap(units[1], units[2]);
    EXPECT_EQ(Checks::firstProblemOfUnits(units, GXEnglish::pluralCategory), 1U);
}

TEST(GXLanguageChecks, NamesAreCompleteAndInOrder) {
    auto names = englishNames();
    EXPECT_EQ(Checks::firstProblemOfNames(names), Checks::complete);
    names.push_back(names.back());
    EXPECT_EQ(Checks::firstProblemOfNames(names), GXAccessibilityNameCount);
    names.resize(GXAccessibilityNameCount - 1);
    EXPECT_EQ(Checks::firstProblemOfNames(names), GXAccessibilityNameCount - 1);
    std::swap(names[4], names[5]);
    EXPECT_EQ(Checks::firstProblemOfNames(names), 4U);
    EXPECT_EQ(problemAfter(7, ""), 7U);
}

TEST(GXLanguageChecks, PatternsHaveEachOfTheirPlacesOnceAndInOrder) {
    constexpr auto nameAndPart = static_cast<std::size_t>(GXAccessibilityName::NameAndPart);
    constexpr auto minus = static_cast<std::size_t>(GXAccessibilityName::Minus);
    EXPECT_EQ(problemAfter(nameAndPart, "{0}: {1}"), Checks::complete);
    EXPECT_EQ(problemAfter(nameAndPart, "{1}, {0}"), nameAndPart);
    EXPECT_EQ(problemAfter(nameAndPart, "{0}"), nameAndPart);
    EXPECT_EQ(problemAfter(minus, "below"), minus);
    EXPECT_EQ(problemAfter(minus, "{0} {0}"), minus);
    EXPECT_EQ(problemAfter(minus, "{0} {1}"), minus);
    EXPECT_EQ(problemAfter(0, "Distance {0}"), 0U);
}

TEST(GXLanguageChecks, TextsHaveTheKeysOfTheModelInItsOrder) {
    const std::vector<GXText> model = {"km", "mi", "kg"};
    EXPECT_EQ(Checks::firstProblemOfTexts(std::vector<GXText>{{"km", "a"}, {"mi", "b"}, {"kg", "c"}}, model), Checks::complete);
    EXPECT_EQ(Checks::firstProblemOfTexts(std::vector<GXText>{{"km", "a"}, {"mi", ""}, {"kg", "c"}}, model), 1U);
    EXPECT_EQ(Checks::firstProblemOfTexts(std::vector<GXText>{{"km", "a"}, {"kg", "c"}, {"mi", "b"}}, model), 1U);
    EXPECT_EQ(Checks::firstProblemOfTexts(std::vector<GXText>{{"km", "a"}, {"mi", "b"}}, model), 2U);
    EXPECT_EQ(Checks::firstProblemOfTexts(std::vector<GXText>{{"km", "a"}, {"mi", "b"}, {"kg", "c"}, {"lb", "d"}}, model), 3U);
}

} // namespace
} // namespace gx
