#include "Paragraph.h"

#include <gtest/gtest.h>

#include "NSLocale.h"
#include "RecordingCanvas.h"

using namespace gallery;
using namespace gx;

TEST(ParagraphTest, WordsAreBrokenIntoLinesThatFit) {
    const auto text = create<Paragraph>(CGRectZero);
    text->setText("ten points for every letter");
    // Each letter is 10 points wide and each line 20 high, with 2 between lines.
    EXPECT_EQ(text->sizeThatFits({270, 0}), CGSizeMake(270, 22));
    EXPECT_EQ(text->sizeThatFits({269, 0}), CGSizeMake(269, 44)); // "letter" goes to the next line
    EXPECT_EQ(text->sizeThatFits({100, 0}), CGSizeMake(100, 66)); // ten points, for every, letter
    // ten, poi, nts, for, eve, ry, let, ter
    EXPECT_EQ(text->sizeThatFits({30, 0}), CGSizeMake(30, 176));
    text->setText("");
    EXPECT_EQ(text->sizeThatFits({100, 0}), CGSizeMake(100, 0));
}

TEST(ParagraphTest, TextWithoutSpacesIsBrokenBetweenCharacters) {
    const auto text = create<Paragraph>(CGRectZero);
    const CGFloat line = [&text] {
        text->setText("a");
        return text->sizeThatFits({100, 0}).height;
    }();
    // Ten points a character: ten of them in a line.
    text->setText("このファイルは破損しているか、記録ではありません");
    EXPECT_EQ(text->sizeThatFits({100, 0}).height, 3 * line);
    text->setText("abcdefghij");
    EXPECT_EQ(text->sizeThatFits({100, 0}).height, line);
    text->setText("abcdefghijk x");
    EXPECT_EQ(text->sizeThatFits({100, 0}).height, 2 * line);
    text->setText("abc");
    EXPECT_EQ(text->sizeThatFits({0, 0}).height, 3 * line); // At least one in a line.
}

TEST(ParagraphTest, LinesBeginWhereTheLocaleIsReadFrom) {
    const auto placeOfText = [](const char* locale, NSTextAlignment alignment) {
        NSLocale::setCurrentLocale(NSLocale::localeWithIdentifier(locale));
        const auto text = create<Paragraph>(CGRectMake(0, 0, 100, 44));
        text->setText("abcd");
        text->setTextAlignment(alignment);
        RecordingCanvas canvas;
        text->drawRect(canvas, text->bounds());
        NSLocale::setCurrentLocale(nullptr);
        const std::string call = canvas.calls.at(0);
        return call.substr(0, call.find(" with"));
    };
    // A line of 40 points in 100, and of 22 in the middle of 44.
    EXPECT_EQ(placeOfText("en", NSTextAlignmentNatural), "text abcd at 0 11");
    EXPECT_EQ(placeOfText("he", NSTextAlignmentNatural), "text abcd at 60 11");
    EXPECT_EQ(placeOfText("en", NSTextAlignmentRight), "text abcd at 60 11");
    EXPECT_EQ(placeOfText("he", NSTextAlignmentLeft), "text abcd at 0 11");
    EXPECT_EQ(placeOfText("he", NSTextAlignmentCenter), "text abcd at 30 11");
}

TEST(ParagraphTest, LinesOfATextFromTheRightAreDrawnFromTheRight) {
    const auto text = create<Paragraph>(CGRectMake(0, 0, 50, 66));
    // Five characters a line: letters from the right, one from the left, and a digit alone.
    text->setText("\u05D0\u05D0\u05D0 abc\u05D0 12345");
    RecordingCanvas canvas;
    text->drawRect(canvas, text->bounds());
    ASSERT_EQ(canvas.calls.size(), 3U);
    EXPECT_EQ(canvas.calls[0].find("text \u05D0\u05D0\u05D0 at"), 0U) << canvas.calls[0];
    EXPECT_EQ(canvas.calls[1].find("text \u200Fabc\u05D0 at"), 0U) << canvas.calls[1];
    EXPECT_EQ(canvas.calls[2].find("text \u200F12345 at"), 0U) << canvas.calls[2];
    EXPECT_EQ(text->linesForWidth(50).at(2), "12345");
}
