#include <limits>

#include <gtest/gtest.h>

#include "NSLocale.h"
#include "UIPickerTyping.h"

using namespace gx;

TEST(UIPickerTyping, DigitsOfEveryScriptAreReadAsTheirNumbers) {
    EXPECT_EQ(UIPickerTyping::readableForm("0189"), "0189");
    EXPECT_EQ(UIPickerTyping::readableForm("٠١٨٩"), "0189") << "Arabic-Indic";
    EXPECT_EQ(UIPickerTyping::readableForm("۰۱۸۹"), "0189") << "extended Arabic-Indic";
    EXPECT_EQ(UIPickerTyping::readableForm("०१८९"), "0189") << "Devanagari";
    EXPECT_EQ(UIPickerTyping::readableForm("๐๑๘๙"), "0189") << "Thai";
    EXPECT_EQ(UIPickerTyping::readableForm("０１８９"), "0189") << "of full width";
}

TEST(UIPickerTyping, EveryMinusIsAHyphen) {
    EXPECT_EQ(UIPickerTyping::readableForm("-4"), "-4");
    EXPECT_EQ(UIPickerTyping::readableForm("\u22124"), "-4");
    EXPECT_EQ(UIPickerTyping::readableForm("\u20134"), "-4");
    EXPECT_EQ(UIPickerTyping::readableForm("\u2010\u2013\uFE63\uFF0D"), "----") << "the hyphen, and those of small and full width";
    EXPECT_EQ(UIPickerTyping::readableForm("\u200B\u2014"), "\u200B\u2014") << "one beside them is none";
}

TEST(UIPickerTyping, EverySeparatorIsADot) { EXPECT_EQ(UIPickerTyping::readableForm("5,5.5٫5"), "5.5.5.5"); }

TEST(UIPickerTyping, FullWidthSeparatorsAreDots) { EXPECT_EQ(UIPickerTyping::readableForm("5\uFF0C5\uFF0E5"), "5.5.5"); }

TEST(UIPickerTyping, LettersAreLowerCase) { EXPECT_EQ(UIPickerTyping::readableForm("KmÀÖßΣЯЁ"), "kmàößσяё"); }

TEST(UIPickerTyping, FirstAndLastLettersOfAnAlphabetAreLowerCaseAndTheirNeighboursStay) {
    EXPECT_EQ(UIPickerTyping::readableForm("AZ@["), "az@[");
    EXPECT_EQ(UIPickerTyping::readableForm("ÀÞ\u00BF×ß"), "àþ\u00BF×ß") << "the sign for times lies among them";
    EXPECT_EQ(UIPickerTyping::readableForm("ΑΩ\u0390\u03AA"), "αω\u0390\u03AA");
    EXPECT_EQ(UIPickerTyping::readableForm("ЀЏАЯ\u03FFа"), "ѐџая\u03FFа");
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
    EXPECT_EQ(UIPickerTyping::readableForm("  fl oz\u00A0"), "fl oz");
    EXPECT_EQ(UIPickerTyping::readableForm("\u200E\u06614\u061C"), "14");
    EXPECT_EQ(UIPickerTyping::readableForm("   "), "");
    EXPECT_EQ(UIPickerTyping::readableForm("\t\r4\u202F\n"), "4");
    EXPECT_EQ(UIPickerTyping::readableForm("\b4\x0E"), "\b4\x0E") << "one beside tab and return is no blank";
    EXPECT_EQ(UIPickerTyping::readableForm("\u200F\u202A4\u202E\u2066\u2069"), "4");
    EXPECT_EQ(UIPickerTyping::readableForm("\u20294\u2065\u206A"), "\u20294\u2065\u206A") << "and one beside the marks is none";
}

TEST(UIPickerTyping, BytesThatAreNoTextAreLeftOut) {
    EXPECT_EQ(UIPickerTyping::readableForm("1\xFF"
                                           "2\x80"
                                           "3"),
              "123");
    EXPECT_EQ(UIPickerTyping::readableForm("1\xE2\x88"), "1") << "cut off in the middle of a character";
    EXPECT_EQ(UIPickerTyping::readableForm("\xC3"
                                           "1"),
              "1");
}

TEST(UIPickerTyping, CharactersAreTakenOneByOne) {
    const std::string form = UIPickerTyping::readableForm("5é\u2032\U0001F3C3");
    std::string_view rest = form;
    EXPECT_EQ(UIPickerTyping::takeCharacter(rest), "5");
    EXPECT_EQ(UIPickerTyping::takeCharacter(rest), "é");
    EXPECT_EQ(UIPickerTyping::takeCharacter(rest), "\u2032");
    EXPECT_EQ(UIPickerTyping::takeCharacter(rest), "\U0001F3C3");
    EXPECT_EQ(rest, "");
}

TEST(UIPickerTyping, SeparatorsAndColonsEndAColumn) {
    EXPECT_TRUE(UIPickerTyping::endsColumn("."));
    EXPECT_TRUE(UIPickerTyping::endsColumn(":"));
    EXPECT_FALSE(UIPickerTyping::endsColumn("5"));
    EXPECT_FALSE(UIPickerTyping::endsColumn("'"));
}

TEST(UIPickerTyping, TheSeparatorOfTheCurrentLocaleEndsAColumn) {
    const auto locale = NSLocale::localeWithIdentifier("en");
    locale->setDecimalSeparator("'");
    NSLocale::setCurrentLocale(locale);
    EXPECT_TRUE(UIPickerTyping::endsColumn("'"));
    NSLocale::setCurrentLocale(nullptr);
}

TEST(UIPickerTyping, ATextIsOverASecondAfterItsLastCharacter) {
    UIPickerTyping typing;
    typing.beginInComponent_onRow(1, 7);
    typing.setText_atTime("4", true, 10);
    EXPECT_EQ(typing.component(), 1);
    EXPECT_FALSE(typing.isOverAt(10.999));
    EXPECT_TRUE(typing.isOverAt(11));
    typing.setText_atTime("42", true, 10.5);
    EXPECT_FALSE(typing.isOverAt(11));
    EXPECT_TRUE(typing.isOverAt(std::numeric_limits<double>::quiet_NaN()));
    typing.clear();
    EXPECT_EQ(typing.text(), "");
    EXPECT_FALSE(typing.component());
    EXPECT_FALSE(typing.rowBefore());
}

TEST(UIPickerTyping, ACharacterTimedByAnotherClockBeginsAnotherText) {
    UIPickerTyping typing;
    typing.setText_atTime("4", true, 1e300);
    EXPECT_TRUE(typing.isOverAt(10));
    typing.setText_atTime("4", true, 10.999);
    EXPECT_FALSE(typing.isOverAt(10));
}

TEST(UIPickerTyping, ACompleteTextIsKeptButNoReportWaitsForIt) {
    UIPickerTyping typing;
    EXPECT_FALSE(typing.isAtComponent(0));
    typing.beginInComponent_onRow(0, 7);
    EXPECT_FALSE(typing.isComplete()) << "nothing has been typed";
    typing.setText_atTime("1", true, 10);
    EXPECT_FALSE(typing.isComplete());
    typing.setText_atTime("12", false, 10);
    EXPECT_TRUE(typing.isComplete());
    EXPECT_FALSE(typing.component());
    EXPECT_TRUE(typing.isAtComponent(0));
    EXPECT_FALSE(typing.isAtComponent(1));
    EXPECT_EQ(typing.text(), "12");
    EXPECT_EQ(typing.rowBefore(), 7);
}

TEST(UIPickerTyping, AtTheNextColumnAnotherTextBegins) {
    UIPickerTyping typing;
    typing.beginInComponent_onRow(0, 7);
    typing.setText_atTime("12", true, 10);
    typing.goOnToComponent_atTime(2, UIPickerTyping::Part::Fraction, 10.5);
    EXPECT_TRUE(typing.isAtComponent(2));
    EXPECT_EQ(typing.part(), UIPickerTyping::Part::Fraction);
    EXPECT_EQ(typing.text(), "");
    EXPECT_FALSE(typing.component());
    EXPECT_FALSE(typing.rowBefore());
    EXPECT_FALSE(typing.isOverAt(11.49));
    typing.beginInComponent_onRow(2, 3);
    EXPECT_EQ(typing.part(), UIPickerTyping::Part::Fraction);
    typing.clear();
    EXPECT_EQ(typing.part(), UIPickerTyping::Part::Whole);
    EXPECT_FALSE(typing.isAtComponent(2));
}

TEST(UIPickerTyping, CharactersAreIgnoredUntilAPause) {
    UIPickerTyping typing;
    EXPECT_FALSE(typing.isIgnoring());
    typing.beginInComponent_onRow(0, 7);
    typing.setText_atTime("1", true, 10);
    typing.ignoreFromTime(10.5);
    EXPECT_TRUE(typing.isIgnoring());
    EXPECT_FALSE(typing.component());
    EXPECT_FALSE(typing.isAtComponent(0));
    EXPECT_FALSE(typing.isOverAt(11.49));
    EXPECT_TRUE(typing.isOverAt(11.5));
    typing.clear();
    EXPECT_FALSE(typing.isIgnoring());
}
