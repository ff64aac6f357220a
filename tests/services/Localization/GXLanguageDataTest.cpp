#include "GXLanguageData.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "GXLocalization.h"

namespace gx {
namespace {

std::string germanData() { return GXLanguageData::textOfLanguage(GXLanguage::languageForIdentifier("de")); }

TEST(GXLanguageData, EveryLanguageIsTheSameAfterWritingAndReading) {
    ASSERT_EQ(GXLanguage::compiledIn().size(), 15U);
    for (const GXLanguage& language : GXLanguage::compiledIn()) {
        const auto data = GXLanguageData::dataFromText(GXLanguageData::textOfLanguage(language));
        ASSERT_TRUE(data) << language.identifier();
        const GXLanguage& read = data->language();
        EXPECT_EQ(read.identifier(), language.identifier());
        EXPECT_EQ(read.ownName(), language.ownName());
        EXPECT_EQ(read.decimalSeparator(), language.decimalSeparator());
        ASSERT_EQ(read.unitTexts().size(), language.unitTexts().size());
        for (const GXText& text : language.unitTexts()) EXPECT_EQ(read.textForKey(text.key), text.text);
        for (std::size_t i = 0; i < GXAccessibilityNameCount; ++i) {
            const auto name = static_cast<GXAccessibilityName>(i);
            EXPECT_EQ(read.textForName(name), language.textForName(name));
        }
        for (std::size_t i = 0; i < GXAccessibilityUnitCount; ++i) {
            for (int category = 0; category < GXPluralCategoryCount; ++category) {
                const auto unit = static_cast<GXAccessibilityUnit>(i);
                const auto form = static_cast<GXPluralCategory>(category);
                EXPECT_EQ(read.patternForUnit(unit, form), language.patternForUnit(unit, form));
            }
        }
    }
}

TEST(GXLanguageData, EveryNumberHasTheSamePluralAfterWritingAndReading) {
    for (const GXLanguage& language : GXLanguage::compiledIn()) {
        const auto data = GXLanguageData::dataFromText(GXLanguageData::textOfLanguage(language));
        ASSERT_TRUE(data) << language.identifier();
        for (int integer = 0; integer <= 2 * GXPluralOperands::limit; ++integer) {
            for (const char* fraction : {"", "0", "00", "5", "05"}) {
                const std::string whole = std::to_string(integer);
                EXPECT_EQ(data->language().pluralCategoryOfNumber(whole, fraction), language.pluralCategoryOfNumber(whole, fraction))
                    << language.identifier() << " " << whole << "." << fraction;
            }
        }
    }
}

TEST(GXLanguageData, HasOneEntryALine) {
    const std::string data = germanData();
    EXPECT_EQ(data.substr(0, 13), "de\nDeutsch\n,\n");
    // Identifier, own name, separator, plural table; 23 units, 36 names, 17 units in 6 categories.
    EXPECT_EQ(std::count(data.begin(), data.end(), '\n'), 4 + 23 + 36 + 17 * 6);
    EXPECT_NE(data.find("\nMaximale Herzfrequenz\n"), std::string::npos);
}

TEST(GXLanguageData, TextsThatAreCutOrTooLongAreRefused) {
    const std::string data = germanData();
    ASSERT_TRUE(GXLanguageData::dataFromText(data));
    EXPECT_FALSE(GXLanguageData::dataFromText(""));
    EXPECT_FALSE(GXLanguageData::dataFromText("de"));
    EXPECT_FALSE(GXLanguageData::dataFromText(data.substr(0, data.size() - 1)));
    EXPECT_FALSE(GXLanguageData::dataFromText(data.substr(0, data.size() / 2)));
    EXPECT_FALSE(GXLanguageData::dataFromText(data + "\n"));
    EXPECT_FALSE(GXLanguageData::dataFromText(data.substr(data.find('\n')))) << "no identifier";
}

TEST(GXLanguageData, PluralTablesOfAnotherFormAreRefused) {
    std::string data = germanData();
    const std::size_t table = data.find(",\n") + 2;
    ASSERT_EQ(data.find('\n', table) - table, GXPluralTable::size);
    data[table] = '6';
    EXPECT_FALSE(GXLanguageData::dataFromText(data)) << "there are six categories";
    data[table] = '/';
    EXPECT_FALSE(GXLanguageData::dataFromText(data));
    data[table] = '5';
    EXPECT_TRUE(GXLanguageData::dataFromText(data));
    data.insert(table, "5");
    EXPECT_FALSE(GXLanguageData::dataFromText(data));
}

TEST(GXLocalizationData, ALanguageThatIsKnownStaysAsItIs) {
    const std::size_t count = GXLocalization::availableLanguages().size();
    std::string changed = germanData();
    changed.replace(changed.find("Deutsch"), 7, "Anders!");
    EXPECT_TRUE(GXLocalization::addLanguage(changed));
    EXPECT_EQ(GXLocalization::nameOfLanguage("de"), "Deutsch");
    EXPECT_EQ(GXLocalization::availableLanguages().size(), count);
}

TEST(GXLocalizationData, DataThatCannotBeReadAddsNothing) {
    const std::size_t count = GXLocalization::availableLanguages().size();
    EXPECT_FALSE(GXLocalization::addLanguage("yy\n"));
    EXPECT_EQ(GXLocalization::availableLanguages().size(), count);
    EXPECT_EQ(GXLocalization::dataOfLanguage("yy"), std::nullopt);
}

TEST(GXLocalizationData, DataIsThatOfTheIdentifierItself) {
    EXPECT_EQ(GXLocalization::dataOfLanguage("de"), germanData());
    EXPECT_EQ(GXLocalization::dataOfLanguage("de-AT"), std::nullopt);
}

} // namespace
} // namespace gx
