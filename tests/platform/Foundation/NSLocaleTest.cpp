#include "NSLocale.h"

#include <gtest/gtest.h>

#include <sstream>

#include "NSLocaleExpectations.h"

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

TEST_F(Locale, EveryLocaleOfTheCommonLocaleDataRepositoryHasItsCustoms) {
    std::size_t count = 0;
    for (const NSLocaleExpectation& expectation : localeExpectations) {
        std::istringstream locales{std::string(expectation.locales)};
        for (std::string identifier; locales >> identifier; ++count) {
            EXPECT_EQ(separatorOf(identifier), expectation.separator) << identifier;
            EXPECT_EQ(readsRightToLeft(identifier), expectation.isRightToLeft) << identifier;
        }
    }
    EXPECT_EQ(count, 766U);
}

TEST_F(Locale, EnglishInContinentalEuropeHasAComma) {
    for (const char* identifier : {"en_DE", "en_AT", "en_NL", "en_FR", "en-SE"}) EXPECT_EQ(separatorOf(identifier), ",") << identifier;
    for (const char* identifier : {"en_GB", "en_IE", "en_CH", "en_MT", "en_150"}) EXPECT_EQ(separatorOf(identifier), ".") << identifier;
}

TEST_F(Locale, TheSeparatorIsThatOfTheDefaultDigits) {
    for (const char* identifier : {"fa", "fa_IR", "ckb", "ps", "ar_EG", "ar_SA"})
        EXPECT_EQ(separatorOf(identifier), "\u066B") << identifier;
    for (const char* identifier : {"ar_MA", "ar_DZ", "ar_TN"}) EXPECT_EQ(separatorOf(identifier), ",") << identifier;
    for (const char* identifier : {"ar", "ar_AE", "hi", "bn"}) EXPECT_EQ(separatorOf(identifier), ".") << identifier;
}

TEST_F(Locale, ARegionWithoutCustomsOfItsOwnHasThoseOfItsLanguage) {
    EXPECT_EQ(separatorOf("de_US"), ",");
    EXPECT_EQ(separatorOf("fa_DE"), "\u066B");
    EXPECT_EQ(separatorOf("en_TR"), ".");
    EXPECT_EQ(separatorOf("es_XX"), ",");
    EXPECT_TRUE(readsRightToLeft("he_US"));
}

TEST_F(Locale, AScriptDecides) {
    EXPECT_EQ(separatorOf("az"), ",");
    EXPECT_EQ(separatorOf("az-Arab"), "\u066B");
    EXPECT_TRUE(readsRightToLeft("az-Arab"));
    EXPECT_FALSE(readsRightToLeft("az-Latn-IR"));
    EXPECT_EQ(separatorOf("ks-Deva"), ".");
    EXPECT_EQ(separatorOf("ks-Deva-IN"), ".");
    EXPECT_FALSE(readsRightToLeft("ks-Deva"));
    EXPECT_TRUE(readsRightToLeft("ks"));
    EXPECT_EQ(separatorOf("sr-Latn-RS"), ",");
    EXPECT_EQ(separatorOf("zh-Hans-CN"), ".");
    EXPECT_EQ(separatorOf("pt-PT"), ",");
    EXPECT_EQ(separatorOf("de-Latn-CH"), ".");
    EXPECT_TRUE(readsRightToLeft("tg-Arab"));
}

TEST_F(Locale, ARegionImpliesAScript) {
    EXPECT_EQ(separatorOf("pa_PK"), "\u066B");
    EXPECT_EQ(separatorOf("pa_IN"), ".");
    EXPECT_EQ(separatorOf("uz_AF"), "\u066B");
    EXPECT_TRUE(readsRightToLeft("uz_AF"));
    EXPECT_TRUE(readsRightToLeft("az_IR"));
    EXPECT_FALSE(readsRightToLeft("sd_IN"));
    EXPECT_TRUE(readsRightToLeft("sd_PK"));
}

TEST_F(Locale, OldCodesMeanTheSameAsNewOnes) {
    EXPECT_TRUE(readsRightToLeft("iw_IL"));
    EXPECT_TRUE(readsRightToLeft("ji"));
    EXPECT_EQ(separatorOf("in_ID"), ",");
    EXPECT_EQ(separatorOf("sh"), ",");
    EXPECT_EQ(NSLocale::localeWithIdentifier("iw_IL")->objectForKey(NSLocaleLanguageCode), "iw");
}

TEST_F(Locale, CaseVariantsAndExtensionsChangeNothing) {
    EXPECT_EQ(separatorOf("DE_ch"), ".");
    EXPECT_EQ(separatorOf("az-ARAB-iq"), "\u066B");
    EXPECT_EQ(separatorOf("de-1996"), ",");
    EXPECT_EQ(separatorOf("ca_ES_valencia"), ",");
    EXPECT_EQ(separatorOf("en-u-rg-dezzzz"), ".");
    EXPECT_EQ(separatorOf("zh-yue-HK"), ".");
}

TEST_F(Locale, AModifierNamesAScript) {
    EXPECT_FALSE(readsRightToLeft("ks_IN.UTF-8@devanagari"));
    EXPECT_TRUE(readsRightToLeft("ks_IN.UTF-8"));
    EXPECT_EQ(separatorOf("uz_AF@cyrillic"), ",");
    EXPECT_FALSE(readsRightToLeft("az_IR@latin"));
}

TEST_F(Locale, WhatIsNoIdentifierHasTheDefaultCustoms) {
    for (const char* identifier : {"", "_", "-DE", "@", "C", "POSIX", "C.UTF-8", "Arab", "e", "1", " ", "de DE"}) {
        EXPECT_EQ(separatorOf(identifier), ".") << identifier;
        EXPECT_FALSE(readsRightToLeft(identifier)) << identifier;
    }
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

TEST_F(Locale, TheSeparatorOfListsFollowsFromLanguageAndScript) {
    const auto separatorOf = [](const char* identifier) { return NSLocale::localeWithIdentifier(identifier)->listSeparator(); };
    for (const char* identifier : {"en", "de_CH", "he_IL", "ko", "ru", "yi", "ur_Latn", "sd_IN", "ja2", ""}) {
        EXPECT_EQ(separatorOf(identifier), ", ") << identifier;
    }
    for (const char* identifier : {"ar", "ar_EG", "fa_IR", "ur", "ps", "az_Arab", "uz_AF"})
        EXPECT_EQ(separatorOf(identifier), "، ") << identifier;
    for (const char* identifier : {"ja", "JA-jp", "ja_JP.UTF-8"}) EXPECT_EQ(separatorOf(identifier), "、") << identifier;
    for (const char* identifier : {"zh", "zh-Hans", "zh_TW"}) EXPECT_EQ(separatorOf(identifier), "，") << identifier;
    EXPECT_EQ(create<NSLocale>()->listSeparator(), ", ");
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

TEST_F(Locale, MayReplaceItselfDuringACall) {
    static bool isAlive;
    struct SelfReplacing : NSLocale {
        ~SelfReplacing() override { isAlive = false; }
        std::optional<std::string> objectForKey(NSLocaleKey key) const override {
            NSLocale::setCurrentLocale(nullptr);
            EXPECT_TRUE(isAlive);
            return isAlive ? NSLocale::objectForKey(key) : std::nullopt;
        }
    };
    isAlive = true;
    NSLocale::setCurrentLocale(create<SelfReplacing>());
    EXPECT_EQ(NSLocale::currentLocale()->objectForKey(NSLocaleDecimalSeparator), ".");
    EXPECT_FALSE(isAlive);
}

TEST_F(Locale, AnEmptyReferenceRestoresTheDefault) {
    NSLocale::setCurrentLocale(NSLocale::localeWithIdentifier("de_DE"));
    NSLocale::setCurrentLocale(nullptr);
    ASSERT_TRUE(NSLocale::currentLocale());
    EXPECT_EQ(NSLocale::currentLocale()->objectForKey(NSLocaleIdentifier), "en");
    EXPECT_EQ(NSLocale::currentLocale()->objectForKey(NSLocaleDecimalSeparator), ".");
}

TEST_F(Locale, AnApplicationMayReturnItsOwnTexts) {
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
