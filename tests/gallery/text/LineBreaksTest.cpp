#include "LineBreaks.h"

#include <gtest/gtest.h>

#include "UIFont.h"
#include "UITextEngine.h"

using namespace gallery;
using namespace gx;

namespace {

using Lines = std::vector<std::string>;

/// The lines of so many characters.
Lines linesOf(std::string_view text, int characters) {
    UIFixedWidthTextEngine engine;
    const auto font = UIFont::systemFontOfSize_weight(15);
    return LineBreaks::linesOfText_width(text, 10 * characters,
                                         [&](std::string_view part) { return engine.sizeOfText_font(part, *font).width; });
}

} // namespace

TEST(LineBreaksTest, LinesEndBetweenWords) {
    EXPECT_EQ(linesOf("one two three", 13), Lines{"one two three"});
    EXPECT_EQ(linesOf("one two three", 12), (Lines{"one two", "three"}));
    EXPECT_EQ(linesOf("  one   two ", 7), Lines{"one two"});
    EXPECT_EQ(linesOf("", 5), Lines{});
    EXPECT_EQ(linesOf("Text-Gr\u00F6\u00DFe", 9), (Lines{"Text-", "Gr\u00F6\u00DFe"})) << "after a hyphen between letters";
    EXPECT_EQ(linesOf("a -5", 3), (Lines{"a", "-5"})) << "not after a minus sign";
}

TEST(LineBreaksTest, ALongWordIsDividedBeforeASyllable) {
    EXPECT_EQ(linesOf("Temperatur", 9), (Lines{"Tempera-", "tur"}));
    EXPECT_EQ(linesOf("eine Geschwindigkeit", 12), (Lines{"eine", "Geschwindig-", "keit"}));
    EXPECT_EQ(linesOf("Geschwindigkeit", 11), (Lines{"Geschwin-", "digkeit"}));
    EXPECT_EQ(linesOf("Kilometer", 8), (Lines{"Kilome-", "ter"}));
    EXPECT_EQ(linesOf("Machines", 7), (Lines{"Machi-", "nes"}));
    EXPECT_EQ(linesOf("Machines", 5), (Lines{"Ma-", "chi-", "nes"})) << "not between c and h";
    EXPECT_EQ(linesOf("Dezimaltrennzeichen", 10), (Lines{"Dezimal-", "trennzei-", "chen"})) << "t and r begin a syllable together";
    EXPECT_EQ(linesOf("Filtre", 5), (Lines{"Fil-", "tre"}));
    EXPECT_EQ(linesOf("Atlas", 4), (Lines{"At-", "las"})) << "t and l do not";
    EXPECT_EQ(linesOf("\u0440\u0430\u0441\u0441\u0442\u043E\u044F\u043D\u0438\u0435", 6),
              (Lines{"\u0440\u0430\u0441\u0441-", "\u0442\u043E\u044F\u043D\u0438\u0435"}));
}

TEST(LineBreaksTest, WhereNoSyllableIsFoundCharactersAreKeptWhole) {
    EXPECT_EQ(linesOf("workout-2026.json", 8), (Lines{"workout-", "2026.", "json"}));
    EXPECT_EQ(linesOf("\u00E4\u00F6\u00FC", 1), (Lines{"\u00E4", "\u00F6", "\u00FC"}));
    EXPECT_EQ(linesOf("abc", 0), (Lines{"a", "b", "c"})) << "at least one in a line";
}

TEST(LineBreaksTest, ANumberStaysWithItsUnitWhereBothFit) {
    EXPECT_EQ(linesOf("partly cloudy, 18 \u00B0C", 18), (Lines{"partly cloudy,", "18 \u00B0C"}));
    EXPECT_EQ(linesOf("5.3 km, 0:27 h", 13), (Lines{"5.3 km,", "0:27 h"}));
    EXPECT_EQ(linesOf("1 of 2 columns", 7), (Lines{"1 of 2", "columns"})) << "too wide for one line together";
    EXPECT_EQ(linesOf("3 4 km", 4), (Lines{"3", "4 km"})) << "the nearest number";
    EXPECT_EQ(linesOf("MAX 171", 6), (Lines{"MAX", "171"})) << "not with the word before it";
    EXPECT_EQ(linesOf("5 km, 0:27 \u6642\u9593", 12), (Lines{"5 km,", "0:27 \u6642\u9593"})) << "all characters of a unit";
    // A unit has up to three characters. Four are a sentence, which may break anywhere.
    EXPECT_EQ(linesOf("3 \u3042\u3044\u3046", 5), Lines{"3 \u3042\u3044\u3046"});
    EXPECT_EQ(linesOf("a 3 \u3042\u3044\u3046", 6), (Lines{"a", "3 \u3042\u3044\u3046"}));
    EXPECT_EQ(linesOf("a 3 \u3042\u3044\u3046\u3048", 6), (Lines{"a 3 \u3042\u3044", "\u3046\u3048"}));
}

TEST(LineBreaksTest, ChineseAndJapaneseBreakBetweenCharactersButNotBeforePunctuation) {
    EXPECT_EQ(linesOf("\u3042\u3044\u3046\u3002\u3048", 3), (Lines{"\u3042\u3044", "\u3046\u3002\u3048"}));
    EXPECT_EQ(linesOf("\u3042\u30AB\u30C3\u3068", 2), (Lines{"\u3042", "\u30AB\u30C3", "\u3068"})) << "nor before a small kana";
    // すべてのピッカー
    const char* allPickers = "\u3059\u3079\u3066\u306E\u30D4\u30C3\u30AB\u30FC";
    EXPECT_EQ(linesOf(allPickers, 6), (Lines{"\u3059\u3079\u3066\u306E", "\u30D4\u30C3\u30AB\u30FC"})) << "nor within katakana";
    EXPECT_EQ(linesOf(allPickers, 3), (Lines{"\u3059\u3079\u3066", "\u306E", "\u30D4\u30C3", "\u30AB\u30FC"}));
    EXPECT_EQ(linesOf("\u8DDD\u79BB 5 km", 4), (Lines{"\u8DDD\u79BB", "5 km"}));
    EXPECT_EQ(linesOf("\uAC70\uB9AC \uC18D\uB3C4", 4), (Lines{"\uAC70\uB9AC", "\uC18D\uB3C4"})) << "Korean has spaces";
}
