#include <limits>

#include <gtest/gtest.h>

#include "NSLocale.h"
#include "UIPickerTyping.h"

using namespace gx;

TEST(UIPickerTyping, DigitsOfEveryScriptAreReadAsTheirNumbers) {
    EXPECT_EQ(UIPickerTyping::readableForm("0189"), U"0189");
    EXPECT_EQ(UIPickerTyping::readableForm("٠١٨٩"), U"0189") << "Arabic-Indic";
    EXPECT_EQ(UIPickerTyping::readableForm("۰۱۸۹"), U"0189") << "extended Arabic-Indic";
    EXPECT_EQ(UIPickerTyping::readableForm("०१८९"), U"0189") << "Devanagari";
    EXPECT_EQ(UIPickerTyping::readableForm("๐๑๘๙"), U"0189") << "Thai";
    EXPECT_EQ(UIPickerTyping::readableForm("０１８９"), U"0189") << "of full width";
}

TEST(UIPickerTyping, EveryMinusIsAHyphen) {
    EXPECT_EQ(UIPickerTyping::readableForm("-4"), U"-4");
    EXPECT_EQ(UIPickerTyping::readableForm("\u22124"), U"-4");
    EXPECT_EQ(UIPickerTyping::readableForm("\u20134"), U"-4");
    EXPECT_EQ(UIPickerTyping::readableForm("\u2010\u2013\uFE63\uFF0D"), U"----") << "the hyphen, and those of small and full width";
    EXPECT_EQ(UIPickerTyping::readableForm("\u200B\u2014"), U"\u200B\u2014") << "one beside them is none";
}

TEST(UIPickerTyping, EverySeparatorIsADot) { EXPECT_EQ(UIPickerTyping::readableForm("5,5.5٫5"), U"5.5.5.5"); }

TEST(UIPickerTyping, FullWidthSeparatorsAreDots) { EXPECT_EQ(UIPickerTyping::readableForm("5\uFF0C5\uFF0E5"), U"5.5.5"); }

TEST(UIPickerTyping, LettersAreLowerCase) { EXPECT_EQ(UIPickerTyping::readableForm("KmÀÖßΣЯЁ"), U"kmàößσяё"); }

TEST(UIPickerTyping, FirstAndLastLettersOfAnAlphabetAreLowerCaseAndTheirNeighboursStay) {
    EXPECT_EQ(UIPickerTyping::readableForm("AZ@["), U"az@[");
    EXPECT_EQ(UIPickerTyping::readableForm("ÀÞ\u00BF×ß"), U"àþ\u00BF×ß") << "the sign for times lies among them";
    EXPECT_EQ(UIPickerTyping::readableForm("ΑΩ\u0390\u03AA"), U"αω\u0390\u03AA");
    EXPECT_EQ(UIPickerTyping::readableForm("ЀЏАЯ\u03FFа"), U"ѐџая\u03FFа");
}

TEST(UIPickerTyping, ATextOfBlanksAloneIsBlank) {
    EXPECT_TRUE(UIPickerTyping::isBlank(" "));
    EXPECT_TRUE(UIPickerTyping::isBlank("\t\u00A0\u202F")) << "also those that do not break a line";
    EXPECT_FALSE(UIPickerTyping::isBlank(""));
    EXPECT_FALSE(UIPickerTyping::isBlank(" 5"));
    EXPECT_FALSE(UIPickerTyping::isBlank("\u200E")) << "a mark of direction";
    EXPECT_FALSE(UIPickerTyping::isBlank("\xC2")) << "no UTF-8";
}

TEST(UIPickerTyping, BlanksAroundATextAndMarksOfDirectionAreLeftOut) {
    EXPECT_EQ(UIPickerTyping::readableForm("  fl oz\u00A0"), U"fl oz");
    EXPECT_EQ(UIPickerTyping::readableForm("\u200E\u06614\u061C"), U"14");
    EXPECT_EQ(UIPickerTyping::readableForm("   "), U"");
    EXPECT_EQ(UIPickerTyping::readableForm("\t\r4\u202F\n"), U"4");
    EXPECT_EQ(UIPickerTyping::readableForm("\b4\x0E"), U"\b4\x0E") << "one beside tab and return is no blank";
    EXPECT_EQ(UIPickerTyping::readableForm("\u200F\u202A4\u202E\u2066\u2069"), U"4");
    EXPECT_EQ(UIPickerTyping::readableForm("\u20294\u2065\u206A"), U"\u20294\u2065\u206A") << "and one beside the marks is none";
}

TEST(UIPickerTyping, BytesThatAreNoTextAreLeftOut) {
    EXPECT_EQ(UIPickerTyping::readableForm("1\xFF"
                                           "2\x80"
                                           "3"),
              U"123");
    EXPECT_EQ(UIPickerTyping::readableForm("1\xE2\x88"), U"1") << "cut off in the middle of a character";
    EXPECT_EQ(UIPickerTyping::readableForm("\xC3"
                                           "1"),
              U"1");
}

TEST(UIPickerTyping, SeparatorsAndColonsEndAColumn) {
    EXPECT_TRUE(UIPickerTyping::endsColumn(U'.'));
    EXPECT_TRUE(UIPickerTyping::endsColumn(U':'));
    EXPECT_FALSE(UIPickerTyping::endsColumn(U'5'));
    EXPECT_FALSE(UIPickerTyping::endsColumn(U'\''));
}

TEST(UIPickerTyping, TheSeparatorOfTheCurrentLocaleEndsAColumn) {
    const auto locale = NSLocale::localeWithIdentifier("en");
    locale->setDecimalSeparator("'");
    NSLocale::setCurrentLocale(locale);
    EXPECT_TRUE(UIPickerTyping::endsColumn(U'\''));
    NSLocale::setCurrentLocale(nullptr);
}

TEST(UIPickerTyping, ATextIsOverASecondAfterItsLastCharacter) {
    UIPickerTyping typing;
    typing.beginInComponent_onRow(1, 7);
    typing.setText_atTime(U"4", true, 10);
    EXPECT_EQ(typing.component(), 1);
    EXPECT_FALSE(typing.isOverAt(10.999));
    EXPECT_TRUE(typing.isOverAt(11));
    typing.setText_atTime(U"42", true, 10.5);
    EXPECT_FALSE(typing.isOverAt(11));
    EXPECT_TRUE(typing.isOverAt(std::numeric_limits<double>::quiet_NaN()));
    typing.clear();
    EXPECT_EQ(typing.text(), U"");
    EXPECT_FALSE(typing.component());
    EXPECT_FALSE(typing.rowBefore());
}

TEST(UIPickerTyping, ACharacterTimedByAnotherClockBeginsAnotherText) {
    UIPickerTyping typing;
    typing.setText_atTime(U"4", true, 1e300);
    EXPECT_TRUE(typing.isOverAt(10));
    typing.setText_atTime(U"4", true, 10.999);
    EXPECT_FALSE(typing.isOverAt(10));
}

TEST(UIPickerTyping, ACompleteTextIsKeptButNoReportWaitsForIt) {
    UIPickerTyping typing;
    EXPECT_FALSE(typing.isAtComponent(0));
    typing.beginInComponent_onRow(0, 7);
    EXPECT_FALSE(typing.isComplete()) << "nothing has been typed";
    typing.setText_atTime(U"1", true, 10);
    EXPECT_FALSE(typing.isComplete());
    typing.setText_atTime(U"12", false, 10);
    EXPECT_TRUE(typing.isComplete());
    EXPECT_FALSE(typing.component());
    EXPECT_TRUE(typing.isAtComponent(0));
    EXPECT_FALSE(typing.isAtComponent(1));
    EXPECT_EQ(typing.text(), U"12");
    EXPECT_EQ(typing.rowBefore(), 7);
}

TEST(UIPickerTyping, AtTheNextColumnAnotherTextBegins) {
    UIPickerTyping typing;
    typing.beginInComponent_onRow(0, 7);
    typing.setText_atTime(U"12", true, 10);
    typing.goOnToComponent_atTime(2, true, 10.5);
    EXPECT_TRUE(typing.isAtComponent(2));
    EXPECT_TRUE(typing.isFraction());
    EXPECT_EQ(typing.text(), U"");
    EXPECT_FALSE(typing.component());
    EXPECT_FALSE(typing.rowBefore());
    EXPECT_FALSE(typing.isOverAt(11.49));
    typing.beginInComponent_onRow(2, 3);
    EXPECT_TRUE(typing.isFraction());
    typing.clear();
    EXPECT_FALSE(typing.isFraction());
    EXPECT_FALSE(typing.isAtComponent(2));
}

TEST(UIPickerTyping, CharactersAreIgnoredUntilAPause) {
    UIPickerTyping typing;
    EXPECT_FALSE(typing.isIgnoring());
    typing.beginInComponent_onRow(0, 7);
    typing.setText_atTime(U"1", true, 10);
    typing.ignoreFromTime(10.5);
    EXPECT_TRUE(typing.isIgnoring());
    EXPECT_FALSE(typing.component());
    EXPECT_FALSE(typing.isAtComponent(0));
    EXPECT_FALSE(typing.isOverAt(11.49));
    EXPECT_TRUE(typing.isOverAt(11.5));
    typing.clear();
    EXPECT_FALSE(typing.isIgnoring());
}
