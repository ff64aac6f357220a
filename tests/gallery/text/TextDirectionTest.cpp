#include "TextDirection.h"

#include <gtest/gtest.h>

using namespace gallery;

// Letters: \u05D0 is Hebrew, \u0645 Arabic; \u200F is the mark.

TEST(TextDirectionTest, KnowsHebrewAndArabicLetters) {
    EXPECT_TRUE(TextDirection::hasLettersFromRight("75.8 kg (\u05D0 0)"));
    EXPECT_TRUE(TextDirection::hasLettersFromRight("\u0645"));
    for (const char* text : {"", "75.8 kg", "Gr\u00F6\u00DFe", "\u0441\u043E", "\u8DDD\u96E2", "\u2066\u2069", "\u0660\u066B"}) {
        EXPECT_FALSE(TextDirection::hasLettersFromRight(text)) << text;
    }
}

TEST(TextDirectionTest, ALineWhoseFirstLetterIsNotFromTheRightIsMarked) {
    EXPECT_EQ(TextDirection::lineOfTextFromRight("18 \u05D0 km"), "18 \u05D0 km");
    EXPECT_EQ(TextDirection::lineOfTextFromRight("\u0645"), "\u0645");
    EXPECT_EQ(TextDirection::lineOfTextFromRight("0)"), "\u200F0)");
    EXPECT_EQ(TextDirection::lineOfTextFromRight("ms (\u05D0 0)"), "\u200Fms (\u05D0 0)");
    EXPECT_EQ(TextDirection::lineOfTextFromRight("\u00F6 \u05D0"), "\u200F\u00F6 \u05D0");
}
