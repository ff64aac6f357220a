#include "ApplicationText.h"

#include <gtest/gtest.h>

#include <vector>

using namespace gallery;
using Checks = ApplicationTextChecks;
using Texts = std::vector<ApplicationText>;

TEST(ApplicationTextChecks, TextsHaveTheKeysOfTheModelInItsOrder) {
    const Texts model = {"Open", "Save", "Body"};
    EXPECT_EQ(Checks::firstProblemOfTexts(Texts{{"Open", "a"}, {"Save", "b"}, {"Body", "c"}}, model), Checks::complete);
    EXPECT_EQ(Checks::firstProblemOfTexts(Texts{{"Open", "a"}, {"Save", ""}, {"Body", "c"}}, model), 1U);
    EXPECT_EQ(Checks::firstProblemOfTexts(Texts{{"Open", "a"}, {"Body", "c"}, {"Save", "b"}}, model), 1U);
    EXPECT_EQ(Checks::firstProblemOfTexts(Texts{{"Open", "a"}, {"Save", "b"}}, model), 2U);
    EXPECT_EQ(Checks::firstProblemOfTexts(Texts{{"Open", "a"}, {"Save", "b"}, {"Body", "c"}, {"Heart", "d"}}, model), 3U);
}

TEST(ApplicationTextChecks, TextsHaveThePlacesOfTheirKeysOnceEach) {
    const auto problemOf = [](const char* english, const char* text) {
        return Checks::firstProblemOfTexts(Texts{{english, text}}, Texts{english});
    };
    EXPECT_EQ(problemOf("{0} to {1}", "{0} bis {1}"), Checks::complete);
    EXPECT_EQ(problemOf("{0} of {1}", "{1} / {0}"), Checks::complete);
    EXPECT_EQ(problemOf("{0} to {1}", "{0} bis"), 0U);
    EXPECT_EQ(problemOf("{0} to {1}", "{0} bis {0}"), 0U);
    EXPECT_EQ(problemOf("Below {0}", "Unter {0}, {0}"), 0U);
    EXPECT_EQ(problemOf("Below", "Unter {0}"), 0U);
    EXPECT_EQ(problemOf("{0} {0}", "{0} {0}"), 0U);
}

TEST(ApplicationTextChecks, NoEnglishTextIsThereTwice) {
    EXPECT_EQ(Checks::firstRepeatedText(Texts{"Open", "Save", "Body"}), Checks::complete);
    EXPECT_EQ(Checks::firstRepeatedText(Texts{"Open", "Save", "Open"}), 2U);
}
