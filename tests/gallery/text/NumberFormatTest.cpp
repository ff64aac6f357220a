#include "NumberFormat.h"

#include <gtest/gtest.h>

#include <limits>

#include "NSLocale.h"

using namespace gallery;
using gx::NSLocale;
using gx::NSNumber;

namespace {
class NumberFormatTest : public testing::Test {
protected:
    void TearDown() override { NSLocale::setCurrentLocale(nullptr); }
};
} // namespace

TEST_F(NumberFormatTest, DecimalsAreRoundedHalvesAwayFromZero) {
    EXPECT_EQ(NumberFormat::decimal(5.3, 1), "5.3");
    EXPECT_EQ(NumberFormat::decimal(5.25, 1), "5.3");
    EXPECT_EQ(NumberFormat::decimal(5.24, 1), "5.2");
    EXPECT_EQ(NumberFormat::decimal(9.96, 1), "10.0");
    EXPECT_EQ(NumberFormat::decimal(1.05, 2), "1.05");
    EXPECT_EQ(NumberFormat::decimal(120, 0), "120");
    EXPECT_EQ(NumberFormat::decimal(0.5, 0), "1");
}

TEST_F(NumberFormatTest, NegativeOnesHaveAMinusSignUnlessTheyRoundToZero) {
    EXPECT_EQ(NumberFormat::decimal(-17.2, 1), "−17.2");
    EXPECT_EQ(NumberFormat::decimal(-0.5, 0), "−1");
    EXPECT_EQ(NumberFormat::decimal(-0.4, 0), "0");
}

TEST_F(NumberFormatTest, NegativeOnesKeepTheirOrderInTextFromTheRight) {
    NSLocale::setCurrentLocale(NSLocale::localeWithIdentifier("ar"));
    EXPECT_EQ(NumberFormat::decimal(-17.2, 1), "\u2066−17.2\u2069");
    EXPECT_EQ(NumberFormat::decimal(17.2, 1), "17.2");
    NSLocale::setCurrentLocale(NSLocale::localeWithIdentifier("ar_EG"));
    EXPECT_EQ(NumberFormat::decimal(17.2, 1), "17\u066B2") << "the digits are the rules' own, the separator the locale's";
}

TEST_F(NumberFormatTest, ANumberAndItsLatinUnitKeepTheirOrderInTextFromTheRight) {
    EXPECT_EQ(NumberFormat::isolated("75.8 kg"), "75.8 kg");
    NSLocale::setCurrentLocale(NSLocale::localeWithIdentifier("he"));
    EXPECT_EQ(NumberFormat::isolated("75.8 kg"), "\u206675.8 kg\u2069");
}

TEST_F(NumberFormatTest, TheSeparatorIsTheUsers) {
    NSLocale::setCurrentLocale(NSLocale::localeWithIdentifier("de"));
    EXPECT_EQ(NumberFormat::decimal(5.3, 1), "5,3");
    // What is in the box has no language.
    EXPECT_EQ(NumberFormat::boxed(NSNumber::numberWithDouble(5.3)), "5.3");
}

TEST_F(NumberFormatTest, WhatCannotBeCountedIsADash) {
    EXPECT_EQ(NumberFormat::decimal(std::numeric_limits<double>::quiet_NaN(), 1), "–");
    EXPECT_EQ(NumberFormat::decimal(std::numeric_limits<double>::infinity(), 1), "–");
    EXPECT_EQ(NumberFormat::decimal(1e300, 0), "–");
    EXPECT_EQ(NumberFormat::decimal(8e15, 0), "8000000000000000");
}

TEST_F(NumberFormatTest, TimesHaveTwoDigitsAfterTheFirst) {
    EXPECT_EQ(NumberFormat::minutes(315), "5:15");
    EXPECT_EQ(NumberFormat::minutes(5999), "99:59");
    EXPECT_EQ(NumberFormat::hours(65), "1:05");
    EXPECT_EQ(NumberFormat::clock(4807), "1:20:07");
    EXPECT_EQ(NumberFormat::clock(0), "0:00:00");
}

TEST_F(NumberFormatTest, ABoxShowsItsType) {
    EXPECT_EQ(NumberFormat::boxed(NSNumber::numberWithInt(160)), "160");
    EXPECT_EQ(NumberFormat::boxed(NSNumber::numberWithInteger(-5000000000)), "-5000000000");
    EXPECT_EQ(NumberFormat::boxed(NSNumber::numberWithDouble(5300)), "5300.0");
    EXPECT_EQ(NumberFormat::boxed(NSNumber::numberWithDouble(3.17460317)), "3.1746");
    EXPECT_EQ(NumberFormat::boxed(NSNumber::numberWithFloat(0.25F)), "0.25");
    EXPECT_EQ(NumberFormat::boxed(NSNumber()), "0");
}
