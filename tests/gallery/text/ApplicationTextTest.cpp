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

TEST(ApplicationTextChecks, NoEnglishTextIsThereTwice) {
    EXPECT_EQ(Checks::firstRepeatedText(Texts{"Open", "Save", "Body"}), Checks::complete);
    EXPECT_EQ(Checks::firstRepeatedText(Texts{"Open", "Save", "Open"}), 2U);
}
