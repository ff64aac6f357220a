#include "GXTitleReading.h"

#include <gtest/gtest.h>

#include <clocale>
#include <limits>

using namespace gx;

TEST(TitleReading, AWholeNumberIsReadWithItsSign) {
    EXPECT_EQ(integerValueOfTitle("0"), 0);
    EXPECT_EQ(integerValueOfTitle("07"), 7);
    EXPECT_EQ(integerValueOfTitle("299"), 299);
    EXPECT_EQ(integerValueOfTitle("-12"), -12);
    EXPECT_EQ(integerValueOfTitle("+12"), 12);
}

TEST(TitleReading, BlanksBeforeAndAnythingAfterTheNumberArePassedOver) {
    EXPECT_EQ(integerValueOfTitle(" \t\n12 km"), 12);
    EXPECT_EQ(integerValueOfTitle("3.9"), 3);
    EXPECT_EQ(integerValueOfTitle("1,234"), 1);
    EXPECT_EQ(doubleValueOfTitle("  2.5 mph"), 2.5);
    EXPECT_EQ(doubleValueOfTitle("1.2.3"), 1.2);
}

TEST(TitleReading, WhatDoesNotBeginWithANumberIs0) {
    for (const std::optional<std::string>& title :
         {std::optional<std::string>{}, std::optional<std::string>{""}, {" "}, {"km"}, {"-"}, {"+"}, {"+-5"}, {"--5"}, {"."}, {"- 5"}}) {
        EXPECT_EQ(integerValueOfTitle(title), 0) << title.value_or("(nothing)");
        EXPECT_EQ(doubleValueOfTitle(title), 0) << title.value_or("(nothing)");
    }
}

TEST(TitleReading, WholeNumbersBeyond64BitsAreTheNearestThereIs) {
    EXPECT_EQ(integerValueOfTitle("9223372036854775807"), std::numeric_limits<NSInteger>::max());
    EXPECT_EQ(integerValueOfTitle("9223372036854775808"), std::numeric_limits<NSInteger>::max());
    EXPECT_EQ(integerValueOfTitle("+9223372036854775808"), std::numeric_limits<NSInteger>::max());
    EXPECT_EQ(integerValueOfTitle("-9223372036854775808"), std::numeric_limits<NSInteger>::min());
    EXPECT_EQ(integerValueOfTitle("-9223372036854775809"), std::numeric_limits<NSInteger>::min());
}

TEST(TitleReading, ADecimalNumberIsReadInOneRounding) {
    EXPECT_EQ(doubleValueOfTitle("0.1"), 0.1);
    EXPECT_EQ(doubleValueOfTitle("-31.7"), -31.7);
    EXPECT_EQ(doubleValueOfTitle("+.5"), 0.5);
    EXPECT_EQ(doubleValueOfTitle("7."), 7.0);
    EXPECT_EQ(doubleValueOfTitle("2147483647"), 2147483647.0);
    EXPECT_EQ(doubleValueOfTitle("0.25" + std::string(500, '0')), 0.25) << "digits without end";
    EXPECT_EQ(doubleValueOfTitle("1" + std::string(400, '0')), std::numeric_limits<double>::infinity());
}

TEST(TitleReading, TheCLocaleChangesNothing) {
    const std::string before = std::setlocale(LC_ALL, nullptr);
    for (const char* name : {"de_DE.UTF-8", "fr_FR.UTF-8", "C.UTF-8"}) {
        if (std::setlocale(LC_ALL, name)) break;
    }
    EXPECT_EQ(doubleValueOfTitle("2.5"), 2.5);
    EXPECT_EQ(doubleValueOfTitle("2,5"), 2.0);
    std::setlocale(LC_ALL, before.c_str());
}
