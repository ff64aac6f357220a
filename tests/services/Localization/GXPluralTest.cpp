#include "GXPlural.h"

#include <gtest/gtest.h>

#include <initializer_list>

#include "GXLanguage.h"

namespace gx {
namespace {

// Expected categories are worked from the cardinal rules of Unicode CLDR 48.

constexpr GXPluralCategory zero = GXPluralCategory::Zero;
constexpr GXPluralCategory one = GXPluralCategory::One;
constexpr GXPluralCategory two = GXPluralCategory::Two;
constexpr GXPluralCategory few = GXPluralCategory::Few;
constexpr GXPluralCategory many = GXPluralCategory::Many;
constexpr GXPluralCategory other = GXPluralCategory::Other;

struct Case {
    const char* whole;
    const char* fraction;
    GXPluralCategory category;
};

void expectCategories(std::initializer_list<const char*> languages, std::initializer_list<Case> cases) {
    for (const char* language : languages) {
        for (const Case& example : cases) {
            EXPECT_EQ(GXLanguage::languageForIdentifier(language).pluralCategoryOfNumber(example.whole, example.fraction), example.category)
                << language << " " << example.whole << " " << example.fraction;
        }
    }
}

TEST(GXPlural, OneIsTheWholeNumberAlone) {
    expectCategories({"en", "de", "nl", "it"}, {{"0", "", other},
                                                {"1", "", one},
                                                {"2", "", other},
                                                {"11", "", other},
                                                {"21", "", other},
                                                {"101", "", other},
                                                {"1", "0", other},
                                                {"1", "5", other},
                                                {"0", "1", other}});
}

TEST(GXPlural, InFrenchAndPortugueseOneGoesUpToTwo) {
    expectCategories(
        {"fr", "pt"},
        {{"0", "", one}, {"0", "9", one}, {"1", "", one}, {"1", "9", one}, {"2", "", other}, {"2", "0", other}, {"101", "", other}});
}

TEST(GXPlural, InSpanishOneMayHaveZerosBehindIt) {
    expectCategories({"es"}, {{"0", "", other}, {"1", "", one}, {"1", "00", one}, {"1", "01", other}, {"2", "0", other}});
}

TEST(GXPlural, InPolishOneIsOneAndTheTensTakeMany) {
    expectCategories({"pl"}, {{"0", "", many},
                              {"1", "", one},
                              {"2", "", few},
                              {"4", "", few},
                              {"5", "", many},
                              {"11", "", many},
                              {"12", "", many},
                              {"14", "", many},
                              {"21", "", many},
                              {"22", "", few},
                              {"24", "", few},
                              {"25", "", many},
                              {"101", "", many},
                              {"112", "", many},
                              {"122", "", few},
                              {"1011", "", many},
                              {"1", "0", other},
                              {"5", "3", other}});
}

TEST(GXPlural, InRussianEveryTenBeginsWithOne) {
    expectCategories({"ru"}, {{"0", "", many},
                              {"1", "", one},
                              {"2", "", few},
                              {"4", "", few},
                              {"5", "", many},
                              {"11", "", many},
                              {"14", "", many},
                              {"15", "", many},
                              {"21", "", one},
                              {"22", "", few},
                              {"25", "", many},
                              {"101", "", one},
                              {"111", "", many},
                              {"1001", "", one},
                              {"99999999999999999999911", "", many},
                              {"1", "0", other},
                              {"5", "3", other}});
}

TEST(GXPlural, LanguagesWhoseUnitsStayAsTheyAreKnowOneCategory) {
    expectCategories({"ja", "zh-Hans", "ko", "tr"}, {{"0", "", other}, {"1", "", other}, {"2", "", other}, {"1", "5", other}});
}

// zero: n = 0; one: n = 1; two: n = 2; few: n % 100 = 3..10; many: n % 100 = 11..99;
// n is the value.
TEST(GXPlural, InArabicTheLastTwoDigitsDecideFromThreeOn) {
    expectCategories({"ar", "ar_EG"}, {{"0", "", zero},
                                       {"1", "", one},
                                       {"2", "", two},
                                       {"3", "", few},
                                       {"10", "", few},
                                       {"11", "", many},
                                       {"12", "", many},
                                       {"99", "", many},
                                       {"100", "", other},
                                       {"101", "", other},
                                       {"102", "", other},
                                       {"103", "", few},
                                       {"110", "", few},
                                       {"111", "", many},
                                       {"199", "", many},
                                       {"200", "", other},
                                       {"202", "", other},
                                       {"203", "", few},
                                       {"1000", "", other},
                                       {"1001", "", other},
                                       {"1002", "", other},
                                       {"1003", "", few},
                                       {"100000000000000000000011", "", many},
                                       {"-2", "", two},
                                       {"05", "", few}});
}

TEST(GXPlural, InArabicZerosBehindTheSeparatorChangeNothing) {
    expectCategories({"ar"}, {{"0", "0", zero},
                              {"1", "0", one},
                              {"2", "00", two},
                              {"3", "0", few},
                              {"11", "0", many},
                              {"100", "0", other},
                              {"0", "1", other},
                              {"1", "5", other},
                              {"3", "5", other},
                              {"10", "1", other},
                              {"11", "01", other}});
}

// one: i = 1 and v = 0 or i = 0 and v != 0; two: i = 2 and v = 0; i are the digits before the
// separator, v the number of those behind it.
TEST(GXPlural, InHebrewTwoIsWholeAndFractionsBelowOneAreOne) {
    expectCategories({"he", "iw"}, {{"0", "", other},   {"1", "", one},      {"2", "", two},      {"3", "", other},   {"10", "", other},
                                    {"11", "", other},  {"20", "", other},   {"99", "", other},   {"100", "", other}, {"101", "", other},
                                    {"102", "", other}, {"1001", "", other}, {"1002", "", other}, {"0", "0", one},    {"0", "5", one},
                                    {"0", "05", one},   {"1", "0", other},   {"1", "5", other},   {"2", "0", other},  {"100", "5", other}});
}

TEST(GXPlural, ASignIsIgnoredAndWhatIsNoNumberIsOther) {
    expectCategories({"en"}, {{"-1", "", one},
                              {"+1", "", one},
                              {"-2", "", other},
                              {"", "", other},
                              {"-", "", other},
                              {"one", "", other},
                              {"1", "x", other},
                              {"2", "x", other}});
    expectCategories({"ru"}, {{"-2", "", few}, {"2 ", "", other}, {"", "1", other}});
}

TEST(GXPlural, AnUnknownLanguageIsCountedAsInEnglish) {
    expectCategories({"sv", "", "EN"}, {{"0", "", other}, {"1", "", one}, {"1", "0", other}});
}

} // namespace
} // namespace gx
