#include "GXSpokenTexts.h"

#include <gtest/gtest.h>

#include <vector>

#include "GXLocalization.h"
#include "GXTranslations.h"

namespace gx {
namespace {

std::string spoken(const char* language, const char* whole, const char* fraction, GXSpokenUnit unit) {
    // The separator is that of the locale, which need not be the language's.
    const std::string separator = std::string(language) == "en" ? "." : ",";
    return GXSpokenTexts::textsForLanguage(language).quantity({whole, separator, fraction}, unit);
}

TEST(GXSpokenTexts, ThereIsOneForEachLanguageOfTheTranslations) {
    ASSERT_EQ(GXSpokenTexts::all().size(), GXTranslations::all().size());
    for (std::size_t i = 0; i < GXSpokenTexts::all().size(); ++i) {
        EXPECT_EQ(GXSpokenTexts::all()[i]->language(), GXTranslations::all()[i].language());
    }
    EXPECT_EQ(GXSpokenTexts::textsForLanguage("ko").language(), "ko");
    EXPECT_EQ(GXSpokenTexts::textsForLanguage("sv").language(), "en");
}

TEST(GXSpokenTexts, ADurationIsCalledOtherwiseThanItsHoursInEveryLanguage) {
    for (const GXSpokenTexts* texts : GXSpokenTexts::all()) {
        EXPECT_NE(texts->textForName(GXSpokenName::Duration), texts->textForName(GXSpokenName::Hours)) << texts->language();
    }
    EXPECT_EQ(GXSpokenTexts::textsForLanguage("ja").textForName(GXSpokenName::Duration), "所要時間");
    EXPECT_EQ(GXSpokenTexts::textsForLanguage("ko").textForName(GXSpokenName::Duration), "소요 시간");
}

TEST(GXSpokenTexts, KilometresInflectInEveryLanguage) {
    struct Case {
        const char* language;
        const char* one;
        const char* two;
        const char* five;
        const char* fraction;
    };
    constexpr Case cases[] = {
        {"en", "1 kilometre", "2 kilometres", "5 kilometres", "5.3 kilometres"},
        {"de", "1 Kilometer", "2 Kilometer", "5 Kilometer", "5,3 Kilometer"},
        {"fr", "1 kilomètre", "2 kilomètres", "5 kilomètres", "5,3 kilomètres"},
        {"es", "1 kilómetro", "2 kilómetros", "5 kilómetros", "5,3 kilómetros"},
        {"it", "1 chilometro", "2 chilometri", "5 chilometri", "5,3 chilometri"},
        {"pt", "1 quilômetro", "2 quilômetros", "5 quilômetros", "5,3 quilômetros"},
        {"nl", "1 kilometer", "2 kilometer", "5 kilometer", "5,3 kilometer"},
        {"pl", "1 kilometr", "2 kilometry", "5 kilometrów", "5,3 kilometra"},
        {"ru", "1 километр", "2 километра", "5 километров", "5,3 километра"},
        {"tr", "1 kilometre", "2 kilometre", "5 kilometre", "5,3 kilometre"},
        {"ja", "1 キロメートル", "2 キロメートル", "5 キロメートル", "5,3 キロメートル"},
        {"zh-Hans", "1公里", "2公里", "5公里", "5,3公里"},
        {"ko", "1킬로미터", "2킬로미터", "5킬로미터", "5,3킬로미터"},
    };
    for (const Case& example : cases) {
        EXPECT_EQ(spoken(example.language, "1", "", GXSpokenUnit::Kilometre), example.one);
        EXPECT_EQ(spoken(example.language, "2", "", GXSpokenUnit::Kilometre), example.two);
        EXPECT_EQ(spoken(example.language, "5", "", GXSpokenUnit::Kilometre), example.five);
        EXPECT_EQ(spoken(example.language, "5", "3", GXSpokenUnit::Kilometre), example.fraction);
    }
}

TEST(GXSpokenTexts, EveryUnitHasItsWordsInEnglish) {
    const std::vector<std::pair<GXSpokenUnit, std::pair<const char*, const char*>>> units = {
        {GXSpokenUnit::Kilometre, {"1 kilometre", "2 kilometres"}},
        {GXSpokenUnit::Mile, {"1 mile", "2 miles"}},
        {GXSpokenUnit::Hour, {"1 hour", "2 hours"}},
        {GXSpokenUnit::Minute, {"1 minute", "2 minutes"}},
        {GXSpokenUnit::Second, {"1 second", "2 seconds"}},
        {GXSpokenUnit::KilometrePerHour, {"1 kilometre per hour", "2 kilometres per hour"}},
        {GXSpokenUnit::MilePerHour, {"1 mile per hour", "2 miles per hour"}},
        {GXSpokenUnit::BeatPerMinute, {"1 beat per minute", "2 beats per minute"}},
        {GXSpokenUnit::Kilocalorie, {"1 kilocalorie", "2 kilocalories"}},
        {GXSpokenUnit::Kilogram, {"1 kilogram", "2 kilograms"}},
        {GXSpokenUnit::Pound, {"1 pound", "2 pounds"}},
        {GXSpokenUnit::Stone, {"1 stone", "2 stones"}},
        {GXSpokenUnit::Centimetre, {"1 centimetre", "2 centimetres"}},
        {GXSpokenUnit::Foot, {"1 foot", "2 feet"}},
        {GXSpokenUnit::Inch, {"1 inch", "2 inches"}},
        {GXSpokenUnit::DegreeCelsius, {"1 degree Celsius", "2 degrees Celsius"}},
        {GXSpokenUnit::DegreeFahrenheit, {"1 degree Fahrenheit", "2 degrees Fahrenheit"}},
    };
    EXPECT_EQ(units.size(), GXSpokenUnitCount);
    for (const auto& [unit, texts] : units) {
        EXPECT_EQ(spoken("en", "1", "", unit), texts.first);
        EXPECT_EQ(spoken("en", "2", "", unit), texts.second);
    }
}

TEST(GXSpokenTexts, OtherLanguagesInflectOtherUnits) {
    EXPECT_EQ(spoken("de", "1", "", GXSpokenUnit::Hour), "1 Stunde");
    EXPECT_EQ(spoken("de", "12", "5", GXSpokenUnit::KilometrePerHour), "12,5 Kilometer pro Stunde");
    EXPECT_EQ(spoken("fr", "1", "5", GXSpokenUnit::Stone), "1,5 stone");
    EXPECT_EQ(spoken("es", "0", "", GXSpokenUnit::Kilocalorie), "0 kilocalorías");
    EXPECT_EQ(spoken("it", "2", "", GXSpokenUnit::Mile), "2 miglia");
    EXPECT_EQ(spoken("pt", "0", "", GXSpokenUnit::Hour), "0 hora");
    EXPECT_EQ(spoken("nl", "2", "", GXSpokenUnit::Minute), "2 minuten");
    EXPECT_EQ(spoken("pl", "22", "", GXSpokenUnit::Minute), "22 minuty");
    EXPECT_EQ(spoken("pl", "12", "", GXSpokenUnit::Minute), "12 minut");
    EXPECT_EQ(spoken("ru", "21", "", GXSpokenUnit::Hour), "21 час");
    EXPECT_EQ(spoken("ru", "72", "5", GXSpokenUnit::Kilogram), "72,5 килограмма");
    EXPECT_EQ(spoken("tr", "12", "5", GXSpokenUnit::KilometrePerHour), "saatte 12,5 kilometre");
    EXPECT_EQ(spoken("ja", "142", "", GXSpokenUnit::BeatPerMinute), "毎分 142 拍");
    EXPECT_EQ(spoken("ko", "450", "", GXSpokenUnit::Kilocalorie), "450킬로칼로리");
}

TEST(GXSpokenTexts, ANumberBelowZeroIsSpokenWithAWord) {
    EXPECT_EQ(spoken("en", "-4", "", GXSpokenUnit::DegreeCelsius), "minus 4 degrees Celsius");
    EXPECT_EQ(spoken("en", "-1", "", GXSpokenUnit::DegreeCelsius), "minus 1 degree Celsius");
    EXPECT_EQ(spoken("ru", "-2", "", GXSpokenUnit::DegreeCelsius), "минус 2 градуса Цельсия");
    EXPECT_EQ(spoken("ja", "-4", "", GXSpokenUnit::DegreeCelsius), "摂氏 マイナス 4 度");
    EXPECT_EQ(spoken("zh-Hans", "-4", "", GXSpokenUnit::DegreeFahrenheit), "负4华氏度");
}

TEST(GXSpokenTexts, APatternTakesItsTextsAsTheyAre) {
    EXPECT_EQ(filledPattern("{0}, {1}", "a", "b"), "a, b");
    EXPECT_EQ(filledPattern("{0}, {1}", "{1}", "{0}"), "{1}, {0}");
    EXPECT_EQ(filledPattern("minus {0}", "4"), "minus 4");
    EXPECT_EQ(filledPattern("nothing", "4"), "nothing");
}

TEST(GXSpokenTexts, WhatIsNoneOfThemIsEmpty) {
    const GXSpokenTexts& english = GXSpokenTexts::textsForLanguage("en");
    EXPECT_EQ(english.textForName(static_cast<GXSpokenName>(GXSpokenNameCount)), "");
    EXPECT_EQ(english.textForName(static_cast<GXSpokenName>(-1)), "");
    EXPECT_EQ(english.patternForUnit(static_cast<GXSpokenUnit>(GXSpokenUnitCount), GXPluralCategory::Other), "");
}

TEST(GXSpokenTexts, TheLocaliserSpeaksItsLanguage) {
    const auto localization = create<GXLocalization>();
    EXPECT_EQ(localization->spokenTextForName(GXSpokenName::Distance), "Distance");
    localization->setLanguage("de_AT");
    EXPECT_EQ(localization->spokenTextForName(GXSpokenName::Distance), "Distanz");
    EXPECT_EQ(localization->spokenQuantity({"1", ",", "0"}, GXSpokenUnit::Mile), "1,0 Meilen");
    localization->setLanguage("sv");
    EXPECT_EQ(localization->spokenQuantity({"1", ",", "0"}, GXSpokenUnit::Mile), "1,0 miles");
}

} // namespace
} // namespace gx
