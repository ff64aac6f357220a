#include "GXLanguage.h"

#include <gtest/gtest.h>

#include <vector>

#include "GXLocalization.h"
#include "NSLocale.h"

namespace gx {
namespace {

std::string quantity(const char* language, const char* whole, const char* fraction, GXAccessibilityUnit unit) {
    // The separator is that of the locale, which need not be the language's.
    const bool hasPoint = std::string(language) == "en" || std::string(language) == "ar" || std::string(language) == "he";
    const std::string separator = hasPoint ? "." : ",";
    return GXLanguage::languageForIdentifier(language).quantity({whole, separator, fraction}, unit);
}

TEST(GXLanguage, UnknownLanguagesAreEnglish) {
    EXPECT_EQ(GXLanguage::languageForIdentifier("ko").identifier(), "ko");
    EXPECT_EQ(GXLanguage::languageForIdentifier("sv").identifier(), "en");
}

TEST(GXLanguage, TheSeparatorOfALanguageIsThatOfItsLocale) {
    for (const GXLanguage& language : GXLanguage::compiledIn()) {
        const auto locale = NSLocale::localeWithIdentifier(std::string(language.identifier()));
        EXPECT_EQ(language.decimalSeparator(), locale->objectForKey(NSLocaleDecimalSeparator)) << language.identifier();
    }
}

TEST(GXLanguage, DurationAndHoursHaveDifferentNamesInEveryLanguage) {
    for (const GXLanguage& language : GXLanguage::compiledIn()) {
        EXPECT_NE(language.textForName(GXAccessibilityName::Duration), language.textForName(GXAccessibilityName::Hours))
            << language.identifier();
    }
    EXPECT_EQ(GXLanguage::languageForIdentifier("ja").textForName(GXAccessibilityName::Duration), "所要時間");
    EXPECT_EQ(GXLanguage::languageForIdentifier("ko").textForName(GXAccessibilityName::Duration), "소요 시간");
}

TEST(GXLanguage, KilometresInflectInEveryLanguage) {
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
        {"ar", "1 كيلومتر", "2 كيلومتر", "5 كيلومترات", "5.3 كيلومتر"},
        {"he", "1 קילומטר", "2 קילומטרים", "5 קילומטרים", "5.3 קילומטרים"},
        {"ja", "1 キロメートル", "2 キロメートル", "5 キロメートル", "5,3 キロメートル"},
        {"zh-Hans", "1公里", "2公里", "5公里", "5,3公里"},
        {"ko", "1킬로미터", "2킬로미터", "5킬로미터", "5,3킬로미터"},
    };
    for (const Case& example : cases) {
        EXPECT_EQ(quantity(example.language, "1", "", GXAccessibilityUnit::Kilometre), example.one);
        EXPECT_EQ(quantity(example.language, "2", "", GXAccessibilityUnit::Kilometre), example.two);
        EXPECT_EQ(quantity(example.language, "5", "", GXAccessibilityUnit::Kilometre), example.five);
        EXPECT_EQ(quantity(example.language, "5", "3", GXAccessibilityUnit::Kilometre), example.fraction);
    }
}

TEST(GXLanguage, EveryUnitHasEnglishForms) {
    const std::vector<std::pair<GXAccessibilityUnit, std::pair<const char*, const char*>>> units = {
        {GXAccessibilityUnit::Kilometre, {"1 kilometre", "2 kilometres"}},
        {GXAccessibilityUnit::Mile, {"1 mile", "2 miles"}},
        {GXAccessibilityUnit::Hour, {"1 hour", "2 hours"}},
        {GXAccessibilityUnit::Minute, {"1 minute", "2 minutes"}},
        {GXAccessibilityUnit::Second, {"1 second", "2 seconds"}},
        {GXAccessibilityUnit::KilometrePerHour, {"1 kilometre per hour", "2 kilometres per hour"}},
        {GXAccessibilityUnit::MilePerHour, {"1 mile per hour", "2 miles per hour"}},
        {GXAccessibilityUnit::BeatPerMinute, {"1 beat per minute", "2 beats per minute"}},
        {GXAccessibilityUnit::Kilocalorie, {"1 kilocalorie", "2 kilocalories"}},
        {GXAccessibilityUnit::Kilogram, {"1 kilogram", "2 kilograms"}},
        {GXAccessibilityUnit::Pound, {"1 pound", "2 pounds"}},
        {GXAccessibilityUnit::Stone, {"1 stone", "2 stones"}},
        {GXAccessibilityUnit::Centimetre, {"1 centimetre", "2 centimetres"}},
        {GXAccessibilityUnit::Foot, {"1 foot", "2 feet"}},
        {GXAccessibilityUnit::Inch, {"1 inch", "2 inches"}},
        {GXAccessibilityUnit::DegreeCelsius, {"1 degree Celsius", "2 degrees Celsius"}},
        {GXAccessibilityUnit::DegreeFahrenheit, {"1 degree Fahrenheit", "2 degrees Fahrenheit"}},
    };
    EXPECT_EQ(units.size(), GXAccessibilityUnitCount);
    for (const auto& [unit, texts] : units) {
        EXPECT_EQ(quantity("en", "1", "", unit), texts.first);
        EXPECT_EQ(quantity("en", "2", "", unit), texts.second);
    }
}

TEST(GXLanguage, OtherLanguagesInflectOtherUnits) {
    EXPECT_EQ(quantity("de", "1", "", GXAccessibilityUnit::Hour), "1 Stunde");
    EXPECT_EQ(quantity("de", "12", "5", GXAccessibilityUnit::KilometrePerHour), "12,5 Kilometer pro Stunde");
    EXPECT_EQ(quantity("fr", "1", "5", GXAccessibilityUnit::Stone), "1,5 stone");
    EXPECT_EQ(quantity("es", "0", "", GXAccessibilityUnit::Kilocalorie), "0 kilocalorías");
    EXPECT_EQ(quantity("it", "2", "", GXAccessibilityUnit::Mile), "2 miglia");
    EXPECT_EQ(quantity("pt", "0", "", GXAccessibilityUnit::Hour), "0 hora");
    EXPECT_EQ(quantity("nl", "2", "", GXAccessibilityUnit::Minute), "2 minuten");
    EXPECT_EQ(quantity("pl", "22", "", GXAccessibilityUnit::Minute), "22 minuty");
    EXPECT_EQ(quantity("pl", "12", "", GXAccessibilityUnit::Minute), "12 minut");
    EXPECT_EQ(quantity("ru", "21", "", GXAccessibilityUnit::Hour), "21 час");
    EXPECT_EQ(quantity("ru", "72", "5", GXAccessibilityUnit::Kilogram), "72,5 килограмма");
    EXPECT_EQ(quantity("tr", "12", "5", GXAccessibilityUnit::KilometrePerHour), "saatte 12,5 kilometre");
    EXPECT_EQ(quantity("ja", "142", "", GXAccessibilityUnit::BeatPerMinute), "毎分 142 拍");
    EXPECT_EQ(quantity("ko", "450", "", GXAccessibilityUnit::Kilocalorie), "450킬로칼로리");
}

TEST(GXLanguage, ArabicCountsInSixForms) {
    constexpr GXAccessibilityUnit kilometre = GXAccessibilityUnit::Kilometre;
    EXPECT_EQ(quantity("ar", "0", "", kilometre), "0 كيلومتر");
    EXPECT_EQ(quantity("ar", "1", "", kilometre), "1 كيلومتر");
    EXPECT_EQ(quantity("ar", "2", "", kilometre), "2 كيلومتر");
    EXPECT_EQ(quantity("ar", "3", "", kilometre), "3 كيلومترات");
    EXPECT_EQ(quantity("ar", "10", "", kilometre), "10 كيلومترات");
    EXPECT_EQ(quantity("ar", "11", "", kilometre), "11 كيلومترًا");
    EXPECT_EQ(quantity("ar", "99", "", kilometre), "99 كيلومترًا");
    EXPECT_EQ(quantity("ar", "100", "", kilometre), "100 كيلومتر");
    EXPECT_EQ(quantity("ar", "101", "", kilometre), "101 كيلومتر");
    EXPECT_EQ(quantity("ar", "102", "", kilometre), "102 كيلومتر");
    EXPECT_EQ(quantity("ar", "103", "", kilometre), "103 كيلومترات");
    EXPECT_EQ(quantity("ar", "0", "5", kilometre), "0.5 كيلومتر");
    EXPECT_EQ(quantity("ar", "3", "0", kilometre), "3.0 كيلومترات");
    EXPECT_EQ(quantity("ar", "3", "5", kilometre), "3.5 كيلومتر");
    EXPECT_EQ(quantity("ar", "11", "05", kilometre), "11.05 كيلومتر");
}

/// The number is there where CLDR names one and two by the noun alone.
TEST(GXLanguage, ArabicUnitsInflectAndKeepTheNumber) {
    struct Case {
        GXAccessibilityUnit unit;
        const char* one;
        const char* few;
        const char* many;
    };
    constexpr Case cases[] = {
        {GXAccessibilityUnit::Mile, "1 ميل", "3 أميال", "11 ميلًا"},
        {GXAccessibilityUnit::Hour, "1 ساعة", "3 ساعات", "11 ساعة"},
        {GXAccessibilityUnit::Minute, "1 دقيقة", "3 دقائق", "11 دقيقة"},
        {GXAccessibilityUnit::Second, "1 ثانية", "3 ثوان", "11 ثانية"},
        {GXAccessibilityUnit::KilometrePerHour, "1 كيلومتر في الساعة", "3 كيلومترات في الساعة", "11 كيلومترًا في الساعة"},
        {GXAccessibilityUnit::BeatPerMinute, "1 نبضة في الدقيقة", "3 نبضات في الدقيقة", "11 نبضة في الدقيقة"},
        {GXAccessibilityUnit::Kilocalorie, "1 سعرة حرارية", "3 سعرات حرارية", "11 سعرة حرارية"},
        {GXAccessibilityUnit::Pound, "1 رطل", "3 أرطال", "11 رطلًا"},
        {GXAccessibilityUnit::Foot, "1 قدم", "3 أقدام", "11 قدمًا"},
        {GXAccessibilityUnit::DegreeCelsius, "1 درجة مئوية", "3 درجات مئوية", "11 درجة مئوية"},
    };
    for (const Case& example : cases) {
        EXPECT_EQ(quantity("ar", "1", "", example.unit), example.one);
        EXPECT_EQ(quantity("ar", "2", "", example.unit), "2" + std::string(example.one).substr(1));
        EXPECT_EQ(quantity("ar", "3", "", example.unit), example.few);
        EXPECT_EQ(quantity("ar", "11", "", example.unit), example.many);
        EXPECT_EQ(quantity("ar", "100", "", example.unit), "100" + std::string(example.one).substr(1));
    }
}

TEST(GXLanguage, HebrewCountsInThreeForms) {
    constexpr GXAccessibilityUnit hour = GXAccessibilityUnit::Hour;
    EXPECT_EQ(quantity("he", "0", "", hour), "0 שעות");
    EXPECT_EQ(quantity("he", "1", "", hour), "1 שעה");
    EXPECT_EQ(quantity("he", "2", "", hour), "2 שעות");
    EXPECT_EQ(quantity("he", "3", "", hour), "3 שעות");
    EXPECT_EQ(quantity("he", "10", "", hour), "10 שעות");
    EXPECT_EQ(quantity("he", "11", "", hour), "11 שעות");
    EXPECT_EQ(quantity("he", "99", "", hour), "99 שעות");
    EXPECT_EQ(quantity("he", "100", "", hour), "100 שעות");
    EXPECT_EQ(quantity("he", "101", "", hour), "101 שעות");
    EXPECT_EQ(quantity("he", "102", "", hour), "102 שעות");
    EXPECT_EQ(quantity("he", "103", "", hour), "103 שעות");
    EXPECT_EQ(quantity("he", "0", "5", hour), "0.5 שעה");
    EXPECT_EQ(quantity("he", "1", "0", hour), "1.0 שעות");
    EXPECT_EQ(quantity("he", "2", "5", GXAccessibilityUnit::KilometrePerHour), "2.5 קילומטר לשעה");
    EXPECT_EQ(quantity("he", "1", "", GXAccessibilityUnit::DegreeCelsius), "1 מעלת צלזיוס");
}

TEST(GXLanguage, ANumberBelowZeroHasAWordForItsSign) {
    EXPECT_EQ(quantity("ar", "-4", "", GXAccessibilityUnit::DegreeCelsius), "سالب 4 درجات مئوية");
    EXPECT_EQ(quantity("he", "-1", "", GXAccessibilityUnit::DegreeCelsius), "מינוס 1 מעלת צלזיוס");
    EXPECT_EQ(quantity("en", "-4", "", GXAccessibilityUnit::DegreeCelsius), "minus 4 degrees Celsius");
    EXPECT_EQ(quantity("en", "-1", "", GXAccessibilityUnit::DegreeCelsius), "minus 1 degree Celsius");
    EXPECT_EQ(quantity("ru", "-2", "", GXAccessibilityUnit::DegreeCelsius), "минус 2 градуса Цельсия");
    EXPECT_EQ(quantity("ja", "-4", "", GXAccessibilityUnit::DegreeCelsius), "摂氏 マイナス 4 度");
    EXPECT_EQ(quantity("zh-Hans", "-4", "", GXAccessibilityUnit::DegreeFahrenheit), "负4华氏度");
}

TEST(GXLanguage, TextsInAPatternAreNotSearchedForPlaces) {
    EXPECT_EQ(GXLanguage::filledPattern("{0}, {1}", "a", "b"), "a, b");
    EXPECT_EQ(GXLanguage::filledPattern("{0}, {1}", "{1}", "{0}"), "{1}, {0}");
    EXPECT_EQ(GXLanguage::filledPattern("minus {0}", "4"), "minus 4");
    EXPECT_EQ(GXLanguage::filledPattern("nothing", "4"), "nothing");
}

TEST(GXLanguage, ValuesOutsideTheEnumerationsAreEmpty) {
    const GXLanguage& english = GXLanguage::languageForIdentifier("en");
    EXPECT_EQ(english.textForName(static_cast<GXAccessibilityName>(GXAccessibilityNameCount)), "");
    EXPECT_EQ(english.textForName(static_cast<GXAccessibilityName>(-1)), "");
    EXPECT_EQ(english.patternForUnit(static_cast<GXAccessibilityUnit>(GXAccessibilityUnitCount), GXPluralCategory::Other), "");
}

TEST(GXLanguage, TheLocaliserUsesItsLanguage) {
    const auto localization = create<GXLocalization>();
    EXPECT_EQ(localization->accessibilityTextForName(GXAccessibilityName::Distance), "Distance");
    localization->setLanguage("de_AT");
    EXPECT_EQ(localization->accessibilityTextForName(GXAccessibilityName::Distance), "Distanz");
    EXPECT_EQ(localization->accessibilityTextForNumber_unit({"1", ",", "0"}, GXAccessibilityUnit::Mile), "1,0 Meilen");
    localization->setLanguage("sv");
    EXPECT_EQ(localization->accessibilityTextForNumber_unit({"1", ",", "0"}, GXAccessibilityUnit::Mile), "1,0 miles");
}

} // namespace
} // namespace gx
