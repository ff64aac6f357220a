#include "GXLocalization.h"

#include <array>

#include <gtest/gtest.h>

#include "NSLocale.h"

namespace gx {
namespace {

constexpr std::array<const char*, 23> keys = {"bpm", "hh:mm", "hh:mm:ss", "mm:ss", "min/km", "min/mi", "AVG", "MAX",
                                              "kg",  "lb",    "st",       "cm",    "ft",     "°C",     "°F",  "km",
                                              "mi",  "km/h",  "mph",      "kcal",  "h",      "min",    ", "};

std::optional<std::string> textFor(const std::string& language, const std::string& key) {
    const auto localization = create<GXLocalization>();
    localization->setLanguage(language);
    return localization->localizedStringWithKey_comment(key, "");
}

std::string translationLanguageFor(const std::string& language) {
    const auto localization = create<GXLocalization>();
    localization->setLanguage(language);
    return localization->translationLanguage();
}

/// Leaves English to the next test.
class GXLocalizationTest : public testing::Test {
protected:
    void TearDown() override { GXLocalization::setSharedLocalization(nullptr); }
};

/// An application with words of its own, that shows nothing for one key.
class OwnWords : public GXLocalization {
public:
    std::optional<std::string> localizedStringWithKey_comment(const std::string& key, const std::string& comment) const override {
        if (key == "AVG") return std::nullopt;
        if (key == "MAX") return "top";
        return GXLocalization::localizedStringWithKey_comment(key, comment);
    }
};

TEST_F(GXLocalizationTest, TheSharedOneIsTheSameOnEveryCall) {
    const Ref<GXLocalization> first = GXLocalization::sharedLocalization();
    ASSERT_TRUE(first);
    EXPECT_EQ(GXLocalization::sharedLocalization(), first);
}

TEST_F(GXLocalizationTest, AnApplicationReplacesTheSharedOne) {
    const auto own = create<OwnWords>();
    GXLocalization::setSharedLocalization(own);
    const Ref<GXLocalization> shared = GXLocalization::sharedLocalization();
    EXPECT_EQ(shared, own);
    EXPECT_EQ(shared->localizedStringWithKey_comment("MAX", ""), "top");
    EXPECT_EQ(shared->localizedStringWithKey_comment("AVG", ""), std::nullopt);
    EXPECT_EQ(shared->localizedStringWithKey_comment("kg", ""), "kg");
}

/// Replaces itself while it is called, and notes whether it is gone by then.
class SelfReplacingLocalization : public GXLocalization {
public:
    ~SelfReplacingLocalization() override { isAlive = false; }
    std::optional<std::string> localizedStringWithKey_comment(const std::string& key, const std::string& comment) const override {
        GXLocalization::setSharedLocalization(nullptr);
        EXPECT_TRUE(isAlive);
        return isAlive ? GXLocalization::localizedStringWithKey_comment(key, comment) : std::nullopt;
    }
    static inline bool isAlive = true;
};

TEST_F(GXLocalizationTest, MayReplaceItselfDuringACall) {
    SelfReplacingLocalization::isAlive = true;
    GXLocalization::setSharedLocalization(create<SelfReplacingLocalization>());
    GXLocalization::sharedLocalization()->setLanguage("ru");
    EXPECT_EQ(GXLocalization::sharedLocalization()->localizedStringWithKey_comment("kg", ""), "кг");
    EXPECT_FALSE(SelfReplacingLocalization::isAlive);
    EXPECT_EQ(GXLocalization::sharedLocalization()->localizedStringWithKey_comment("kg", ""), "kg");
}

TEST_F(GXLocalizationTest, AnEmptyReferenceRestoresEnglish) {
    GXLocalization::sharedLocalization()->setLanguage("ru");
    GXLocalization::setSharedLocalization(nullptr);
    ASSERT_TRUE(GXLocalization::sharedLocalization());
    EXPECT_EQ(GXLocalization::sharedLocalization()->language(), "en");
    EXPECT_EQ(GXLocalization::sharedLocalization()->localizedStringWithKey_comment("kg", ""), "kg");
}

TEST_F(GXLocalizationTest, EnglishTextsEqualTheirKeys) {
    const auto localization = create<GXLocalization>();
    EXPECT_EQ(localization->language(), "en");
    for (const char* key : keys) EXPECT_EQ(localization->localizedStringWithKey_comment(key, "a note"), key);
}

TEST_F(GXLocalizationTest, KnowsFifteenLanguages) {
    const std::vector<std::string> expected = {"en", "de", "fr", "es", "it", "pt",      "nl", "pl",
                                               "ru", "tr", "ar", "he", "ja", "zh-Hans", "ko"};
    EXPECT_EQ(GXLocalization::availableLanguages(), expected);
    for (const std::string& language : expected) EXPECT_EQ(translationLanguageFor(language), language);
}

TEST_F(GXLocalizationTest, EveryLanguageHasATextForEveryKey) {
    for (const std::string& language : GXLocalization::availableLanguages()) {
        for (const char* key : keys) {
            const std::optional<std::string> text = textFor(language, key);
            ASSERT_TRUE(text) << language << ": " << key;
            EXPECT_NE(*text, "") << language << ": " << key;
        }
    }
}

std::size_t codePoints(const std::string& text) {
    std::size_t count = 0;
    for (const char unit : text) count += (static_cast<unsigned char>(unit) & 0xC0U) != 0x80U ? 1U : 0U;
    return count;
}

TEST_F(GXLocalizationTest, NoTextIsLongerThanTheLongestClockLayout) {
    for (const std::string& language : GXLocalization::availableLanguages()) {
        for (const char* key : keys) {
            const std::string text = textFor(language, key).value_or("");
            EXPECT_LE(codePoints(text), codePoints("hh:mm:ss")) << language << ": " << text;
        }
    }
}

TEST_F(GXLocalizationTest, UsesTheWordsOfItsReaders) {
    EXPECT_EQ(textFor("de", "AVG"), "Ø");
    EXPECT_EQ(textFor("fr", "ft"), "pi");
    EXPECT_EQ(textFor("es", "bpm"), "lpm");
    EXPECT_EQ(textFor("it", "AVG"), "MEDIA");
    EXPECT_EQ(textFor("pt", "MAX"), "MÁX");
    EXPECT_EQ(textFor("nl", "km/h"), "km/u");
    EXPECT_EQ(textFor("pl", "hh:mm"), "gg:mm");
    EXPECT_EQ(textFor("ru", "mi"), "ми");
    EXPECT_EQ(textFor("ru", "hh:mm:ss"), "чч:мм:сс");
    EXPECT_EQ(textFor("tr", "min/km"), "dk/km");
    EXPECT_EQ(textFor("ar", "km/h"), "كم/س");
    EXPECT_EQ(textFor("ru", "h"), "ч");
    EXPECT_EQ(textFor("tr", "min"), "dk");
    EXPECT_EQ(textFor("ar", ", "), "، ");
    EXPECT_EQ(textFor("ar", "kcal"), "سعرة");
    EXPECT_EQ(textFor("ar", "hh:mm:ss"), "hh:mm:ss");
    EXPECT_EQ(textFor("he", "km/h"), "קמ״ש");
    EXPECT_EQ(textFor("he", "min/km"), "דק׳/ק״מ");
    EXPECT_EQ(textFor("ja", "mm:ss"), "分:秒");
    EXPECT_EQ(textFor("zh-Hans", "cm"), "厘米");
    EXPECT_EQ(textFor("ko", "MAX"), "최대");
}

TEST_F(GXLocalizationTest, TheDegreeSignsAreOrdinaryKeys) {
    for (const std::string& language : GXLocalization::availableLanguages()) {
        const bool isArabic = language == "ar"; // Its readers have letters of their own for them.
        EXPECT_EQ(textFor(language, "\u00B0C"), isArabic ? "\u00B0م" : "\u00B0C");
        EXPECT_EQ(textFor(language, "\u00B0F"), isArabic ? "\u00B0ف" : "\u00B0F");
    }
}

TEST_F(GXLocalizationTest, TheCommentChangesNothing) {
    const auto localization = create<GXLocalization>();
    localization->setLanguage("ru");
    EXPECT_EQ(localization->localizedStringWithKey_comment("kg", ""), "кг");
    EXPECT_EQ(localization->localizedStringWithKey_comment("kg", "unit kg (kilogram)"), "кг");
    EXPECT_EQ(localization->localizedStringWithKey_comment("kg", "lb"), "кг");
}

TEST_F(GXLocalizationTest, AKeyWithoutATranslationIsItself) {
    for (const std::string& language : GXLocalization::availableLanguages()) {
        EXPECT_EQ(textFor(language, "furlong"), "furlong");
        EXPECT_EQ(textFor(language, "KG"), "KG");
        EXPECT_EQ(textFor(language, ""), "");
    }
}

TEST_F(GXLocalizationTest, ARegionFallsBackToItsLanguage) {
    EXPECT_EQ(translationLanguageFor("de_DE"), "de");
    EXPECT_EQ(translationLanguageFor("DE-at"), "de");
    EXPECT_EQ(translationLanguageFor("de_DE.UTF-8@euro"), "de");
    EXPECT_EQ(translationLanguageFor("de.UTF-8"), "de");
    EXPECT_EQ(translationLanguageFor("pt_BR"), "pt");
    EXPECT_EQ(translationLanguageFor("zh-Hans-CN"), "zh-Hans");
    EXPECT_EQ(translationLanguageFor("zh_hans"), "zh-Hans");
    EXPECT_EQ(translationLanguageFor("zh_CN"), "zh-Hans");
    EXPECT_EQ(translationLanguageFor("zh"), "zh-Hans");
    EXPECT_EQ(translationLanguageFor("zh_TW"), "zh-Hans");
    EXPECT_EQ(translationLanguageFor("es-419"), "es");
    EXPECT_EQ(translationLanguageFor("zh-1234"), "zh-Hans");
    EXPECT_EQ(translationLanguageFor("ar_EG"), "ar");
    EXPECT_EQ(translationLanguageFor("ar-Latn-MA"), "ar");
    EXPECT_EQ(translationLanguageFor("ar_001.UTF-8"), "ar");
    EXPECT_EQ(translationLanguageFor("he_IL"), "he");
}

TEST_F(GXLocalizationTest, HebrewIsKnownByItsOldCode) {
    EXPECT_EQ(translationLanguageFor("iw"), "he");
    EXPECT_EQ(translationLanguageFor("IW-il"), "he");
    EXPECT_EQ(translationLanguageFor("iw_IL.UTF-8"), "he");
    EXPECT_EQ(translationLanguageFor("iwx"), "en");
    EXPECT_EQ(translationLanguageFor("zh-iw"), "zh-Hans");
    EXPECT_EQ(translationLanguageFor("xx-iw"), "en");
}

TEST_F(GXLocalizationTest, AnUnknownLanguageIsEnglish) {
    for (const char* language : {"", "xx", "sv_SE", "d", "den", "_DE", "-", "C", "C.UTF-8", ".", "@de", "English"}) {
        EXPECT_EQ(translationLanguageFor(language), "en") << language;
        EXPECT_EQ(textFor(language, "AVG"), "AVG") << language;
    }
}

TEST_F(GXLocalizationTest, APortugueseLocaleGetsBrazilianTexts) {
    const auto localization = create<GXLocalization>();
    localization->setLanguage("pt-PT");
    EXPECT_EQ(localization->translationLanguage(), "pt");
    EXPECT_EQ(localization->accessibilityTextForNumber_unit({"0", "", ""}, GXAccessibilityUnit::Kilometre), "0 quilômetro");
}

TEST_F(GXLocalizationTest, LanguagesHaveTheNameThatTheirSpeakersUse) {
    EXPECT_EQ(GXLocalization::nameOfLanguage("de"), "Deutsch");
    EXPECT_EQ(GXLocalization::nameOfLanguage("de_AT"), "Deutsch");
    EXPECT_EQ(GXLocalization::nameOfLanguage("zh-Hans"), "简体中文");
    EXPECT_EQ(GXLocalization::nameOfLanguage("ar_EG"), "العربية");
    EXPECT_EQ(GXLocalization::nameOfLanguage("iw"), "עברית");
    EXPECT_EQ(GXLocalization::nameOfLanguage("sv"), "English");
}

TEST_F(GXLocalizationTest, LanguagesHaveADecimalSeparator) {
    EXPECT_EQ(GXLocalization::decimalSeparatorOfLanguage("en"), ".");
    EXPECT_EQ(GXLocalization::decimalSeparatorOfLanguage("de_DE"), ",");
    EXPECT_EQ(GXLocalization::decimalSeparatorOfLanguage("ja"), ".");
    EXPECT_EQ(GXLocalization::decimalSeparatorOfLanguage("ar"), ".");
    EXPECT_EQ(GXLocalization::decimalSeparatorOfLanguage("he"), ".");
}

TEST_F(GXLocalizationTest, ListsAreSeparatedAsInTheLocaleOfTheLanguage) {
    for (const std::string& language : GXLocalization::availableLanguages()) {
        GXLocalization localization;
        localization.setLanguage(language);
        EXPECT_EQ(localization.localizedStringWithKey_comment(", ", "between two values"),
                  NSLocale::localeWithIdentifier(language)->listSeparator())
            << language;
    }
}

TEST_F(GXLocalizationTest, APatternIsFilledInUnlessItIsLeftOut) {
    struct NoMinus : GXLocalization {
        std::optional<std::string> accessibilityTextForName(GXAccessibilityName name) const override {
            if (name == GXAccessibilityName::Minus) return std::nullopt;
            return GXLocalization::accessibilityTextForName(name);
        }
    };
    const auto localization = create<NoMinus>();
    EXPECT_EQ(localization->accessibilityTextForPattern(GXAccessibilityName::NameAndPart, "Pace", "minutes"), "Pace, minutes");
    EXPECT_EQ(localization->accessibilityTextForPattern(GXAccessibilityName::PerMile, "5 minutes"), "5 minutes per mile");
    EXPECT_EQ(localization->accessibilityTextForPattern(GXAccessibilityName::Minus, "5"), std::nullopt);
}

TEST_F(GXLocalizationTest, TheLanguageIsRememberedAsGiven) {
    const auto localization = create<GXLocalization>();
    localization->setLanguage("de_DE");
    EXPECT_EQ(localization->language(), "de_DE");
    localization->setLanguage("xx");
    EXPECT_EQ(localization->language(), "xx");
    EXPECT_EQ(localization->localizedStringWithKey_comment("MAX", ""), "MAX");
}

} // namespace
} // namespace gx
