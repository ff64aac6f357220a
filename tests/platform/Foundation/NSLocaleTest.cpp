#include "NSLocale.h"

#include <gtest/gtest.h>

using namespace gx;

namespace {

struct Locale : testing::Test {
    ~Locale() override { NSLocale::setCurrentLocale(nullptr); }
};

std::optional<std::string> separatorOf(const std::string& identifier) {
    return NSLocale::localeWithIdentifier(identifier)->objectForKey(NSLocaleDecimalSeparator);
}

bool readsRightToLeft(const std::string& identifier) {
    return NSLocale::localeWithIdentifier(identifier)->characterDirection() == NSLocaleLanguageDirection::RightToLeft;
}

} // namespace

TEST_F(Locale, WithoutAHostItIsEnglishWithADecimalPoint) {
    const Ref<NSLocale> locale = NSLocale::currentLocale();
    EXPECT_EQ(locale->objectForKey(NSLocaleIdentifier), "en");
    EXPECT_EQ(locale->objectForKey(NSLocaleLanguageCode), "en");
    EXPECT_EQ(locale->objectForKey(NSLocaleDecimalSeparator), ".");
    EXPECT_EQ(locale->characterDirection(), NSLocaleLanguageDirection::LeftToRight);
}

TEST_F(Locale, TheSeparatorFollowsFromTheLanguage) {
    for (const char* identifier : {"en", "en_US", "en_GB", "zh-Hans", "ja_JP", "ko", "th", "hi", ""}) {
        EXPECT_EQ(separatorOf(identifier), ".") << identifier;
    }
    for (const char* identifier :
         {"de", "de_DE", "de_AT", "fr_FR", "fr_CH", "es_ES", "it", "nl_NL", "pl", "pt_BR", "ru", "sv", "da", "fi", "tr"}) {
        EXPECT_EQ(separatorOf(identifier), ",") << identifier;
    }
}

TEST_F(Locale, BothNorwegiansAndTheBalkansAndVietnamWriteAComma) {
    for (const char* identifier : {"nb_NO", "nn_NO", "no", "sq", "sr_RS", "sr_Latn_RS", "vi_VN"}) {
        EXPECT_EQ(separatorOf(identifier), ",") << identifier;
    }
}

TEST_F(Locale, SomeRegionsDeviateFromTheirLanguage) {
    for (const char* identifier : {"de_CH", "de_LI", "it_CH", "es_MX", "es_US", "es_419", "es_PR", "es_GT"}) {
        EXPECT_EQ(separatorOf(identifier), ".") << identifier;
    }
    EXPECT_EQ(separatorOf("en_ZA"), ",");
    EXPECT_EQ(separatorOf("es_AR"), ",");
}

TEST_F(Locale, AnIdentifierMayUseHyphensAndCarryAnEncodingOrVariant) {
    EXPECT_EQ(separatorOf("de-DE"), ",");
    EXPECT_EQ(separatorOf("de-CH"), ".");
    EXPECT_EQ(separatorOf("de_CH.UTF-8"), ".");
    EXPECT_EQ(separatorOf("de_DE@euro"), ",");
    EXPECT_EQ(NSLocale::localeWithIdentifier("de_DE.UTF-8")->objectForKey(NSLocaleLanguageCode), "de");
    EXPECT_EQ(NSLocale::localeWithIdentifier("zh-Hans")->objectForKey(NSLocaleLanguageCode), "zh");
    EXPECT_EQ(NSLocale::localeWithIdentifier("de_DE.UTF-8")->objectForKey(NSLocaleIdentifier), "de_DE.UTF-8");
}

TEST_F(Locale, TheDirectionFollowsFromTheLanguage) {
    for (const char* identifier : {"ar", "ar_EG", "he_IL", "fa", "ur-PK"}) EXPECT_TRUE(readsRightToLeft(identifier)) << identifier;
    for (const char* identifier : {"en", "de_DE", "ja", "arn"}) EXPECT_FALSE(readsRightToLeft(identifier)) << identifier;
}

TEST_F(Locale, AUserMayDeviateFromTheCustomOfTheLanguage) {
    const Ref<NSLocale> locale = NSLocale::localeWithIdentifier("de_DE");
    locale->setDecimalSeparator(".");
    locale->setCharacterDirection(NSLocaleLanguageDirection::RightToLeft);
    EXPECT_EQ(locale->objectForKey(NSLocaleDecimalSeparator), ".");
    EXPECT_EQ(locale->characterDirection(), NSLocaleLanguageDirection::RightToLeft);
    EXPECT_EQ(locale->objectForKey(NSLocaleIdentifier), "de_DE");
}

TEST_F(Locale, TheCurrentLocaleIsTheOneThatWasSet) {
    const Ref<NSLocale> german = NSLocale::localeWithIdentifier("de_DE");
    NSLocale::setCurrentLocale(german);
    EXPECT_EQ(NSLocale::currentLocale(), german);
    EXPECT_EQ(NSLocale::currentLocale()->objectForKey(NSLocaleDecimalSeparator), ",");
}

TEST_F(Locale, AnEmptyReferenceRestoresTheDefault) {
    NSLocale::setCurrentLocale(NSLocale::localeWithIdentifier("de_DE"));
    NSLocale::setCurrentLocale(nullptr);
    ASSERT_TRUE(NSLocale::currentLocale());
    EXPECT_EQ(NSLocale::currentLocale()->objectForKey(NSLocaleIdentifier), "en");
    EXPECT_EQ(NSLocale::currentLocale()->objectForKey(NSLocaleDecimalSeparator), ".");
}

TEST_F(Locale, AnApplicationMayAnswerInItsOwnWay) {
    struct Own : NSLocale {
        std::optional<std::string> objectForKey(NSLocaleKey key) const override {
            if (key == NSLocaleDecimalSeparator) return std::nullopt;
            return NSLocale::objectForKey(key);
        }
    };
    NSLocale::setCurrentLocale(create<Own>());
    EXPECT_EQ(NSLocale::currentLocale()->objectForKey(NSLocaleDecimalSeparator), std::nullopt);
    EXPECT_EQ(NSLocale::currentLocale()->objectForKey(NSLocaleIdentifier), "en");
}
