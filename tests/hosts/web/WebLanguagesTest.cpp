#include <gtest/gtest.h>

#include <GXUIPickers/GXLocalization.h>

// Languages that are added while the program runs. In this program, since they stay.

namespace gx {
namespace {

/// The German data with another identifier.
std::string dataNamed(const std::string& identifier) {
    const std::string data = *GXLocalization::dataOfLanguage("de");
    return identifier + data.substr(data.find('\n'));
}

TEST(GXLocalizationData, AnAddedLanguageIsUsedFromThenOn) {
    const auto localization = create<GXLocalization>();
    localization->setLanguage("xx-YY");
    EXPECT_EQ(localization->translationLanguage(), "en");
    ASSERT_TRUE(GXLocalization::addLanguage(dataNamed("xx")));
    EXPECT_EQ(localization->translationLanguage(), "en") << "until the language is set again";
    localization->setLanguage("xx-YY");
    EXPECT_EQ(localization->translationLanguage(), "xx");
    EXPECT_EQ(localization->accessibilityTextForName(GXAccessibilityName::Distance), "Distanz");
    EXPECT_EQ(localization->accessibilityTextForNumber_unit({"1", "", ""}, GXAccessibilityUnit::Hour), "1 Stunde");
    EXPECT_EQ(localization->accessibilityTextForNumber_unit({"2", "", ""}, GXAccessibilityUnit::Hour), "2 Stunden");
    EXPECT_EQ(GXLocalization::availableLanguages().back(), "xx");
    EXPECT_EQ(GXLocalization::decimalSeparatorOfLanguage("xx"), ",");
}

} // namespace
} // namespace gx
