#include "Translations.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "GXLocalization.h"

using namespace gallery;
using gx::GXLocalization;

namespace {

/// The texts of buttons, of which three stand side by side on a narrow screen.
constexpr std::array<std::string_view, 17> choices = {"Open",   "Save",   "Metric", "Imperial", "Kilograms", "Pounds",
                                                      "Stones", "System", "Light",  "Dark",     "Full",      "Reduced",
                                                      "Normal", "High",   "On",     "Off",      "Automatic"};
/// Texts before a value or above a group, or names of pages.
constexpr std::array<std::string_view, 32> names = {
    "Add workout", "All pickers", "Workout",       "Workouts",          "Settings", "Units",         "Best interval", "Heart",
    "Conditions",  "Body",        "Distance",      "Distance and time", "Duration", "Average speed", "Speed",         "Pace",
    "Calories",    "Heart rate",  "Resting pulse", "Beats per minute",  "Weather",  "Temperature",   "Weight",        "Water temperature",
    "Height",      "Text size",   "Look",          "Decimal separator", "Motion",   "Contrast",      "Wheel clicks",  "Language"};
constexpr std::array<std::string_view, 12> weathers = {"clear", "partly cloudy", "cloudy",       "overcast", "fog",  "drizzle",
                                                       "rain",  "showers",       "thunderstorm", "sleet",    "snow", "wind"};
constexpr std::array<std::string_view, 11> messages = {"Opened: {0}",
                                                       "Saved: {0}",
                                                       "The file could not be read: {0}",
                                                       "The file could not be written: {0}",
                                                       "The file has no number for: {0}.",
                                                       "A number in the file is out of range: {0}.",
                                                       "The file names no weather that this application knows.",
                                                       "This file is damaged, or no workout.",
                                                       "This file is damaged.",
                                                       "This file is no workout.",
                                                       "This workout was saved by a newer version of this application."};

/// Leaves English to the next test.
class TranslationsTest : public testing::Test {
protected:
    void TearDown() override { GXLocalization::setSharedLocalization(nullptr); }

    static std::string textIn(const std::string& language, std::string_view english) {
        GXLocalization::sharedLocalization()->setLanguage(language);
        return Translations::text(std::string(english));
    }
};

/// Nothing if the bytes are no UTF-8.
std::optional<std::vector<char32_t>> codePoints(std::string_view text) {
    std::vector<char32_t> points;
    for (std::size_t i = 0; i < text.size();) {
        const auto first = static_cast<unsigned char>(text[i]);
        const std::size_t length = first < 0x80 ? 1 : first < 0xC2 ? 0 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : first < 0xF5 ? 4 : 0;
        if (length == 0 || i + length > text.size()) return std::nullopt;
        char32_t point = length == 1 ? first : first & (0x7FU >> length);
        for (std::size_t j = 1; j < length; ++j) {
            const auto next = static_cast<unsigned char>(text[i + j]);
            if ((next & 0xC0U) != 0x80U) return std::nullopt;
            point = point << 6U | (next & 0x3FU);
        }
        const bool isTooLong = (length == 3 && point < 0x800) || (length == 4 && point < 0x10000);
        if (isTooLong || (point >= 0xD800 && point < 0xE000) || point > 0x10FFFF) return std::nullopt;
        points.push_back(point);
        i += length;
    }
    return points;
}

std::size_t length(std::string_view text) { return codePoints(text).value_or(std::vector<char32_t>()).size(); }

bool isBlank(char32_t point) {
    constexpr std::u32string_view blanks = U" \t\n\u00A0\u2002\u2003\u2009\u200B\u202F\u3000\uFEFF";
    return blanks.find(point) != std::u32string_view::npos;
}

bool isTranslated(std::string_view english) {
    const auto texts = Translations::englishTexts();
    return std::find(texts.begin(), texts.end(), english) != texts.end();
}

} // namespace

TEST_F(TranslationsTest, EnglishTextsAreThemselves) {
    for (const auto english : Translations::englishTexts()) {
        EXPECT_EQ(Translations::text(std::string(english)), english);
        EXPECT_EQ(textIn("en_GB", english), english);
    }
}

TEST_F(TranslationsTest, HasTheLanguagesOfThePickers) { EXPECT_EQ(Translations::languages(), GXLocalization::availableLanguages()); }

TEST_F(TranslationsTest, HasEveryTextOfTheScreens) {
    for (const auto english : choices) EXPECT_TRUE(isTranslated(english)) << english;
    for (const auto english : names) EXPECT_TRUE(isTranslated(english)) << english;
    for (const auto english : weathers) EXPECT_TRUE(isTranslated(english)) << english;
    for (const auto english : messages) EXPECT_TRUE(isTranslated(english)) << english;
}

TEST_F(TranslationsTest, UsesTheWordsOfItsReaders) {
    EXPECT_EQ(textIn("de", "Save"), "Speichern");
    EXPECT_EQ(textIn("de", "thunderstorm"), "Gewitter");
    EXPECT_EQ(textIn("fr", "Height"), "Taille");
    EXPECT_EQ(textIn("fr", "Opened: {0}"), "Ouvert\u00A0: {0}");
    EXPECT_EQ(textIn("es", "Settings"), "Ajustes");
    EXPECT_EQ(textIn("it", "Weight"), "Peso");
    EXPECT_EQ(textIn("it", "partly cloudy"), "parzialmente nuvoloso");
    EXPECT_EQ(textIn("pt", "Save"), "Salvar");
    EXPECT_EQ(textIn("pt", "partly cloudy"), "parcialmente nublado");
    EXPECT_EQ(textIn("nl", "Language"), "Taal");
    EXPECT_EQ(textIn("pl", "Height"), "Wzrost");
    EXPECT_EQ(textIn("ru", "Weather"), "Погода");
    EXPECT_EQ(textIn("ru", "partly cloudy"), "переменная облачность");
    EXPECT_EQ(textIn("tr", "Open"), "Aç");
    EXPECT_EQ(textIn("ar", "Save"), "حفظ");
    EXPECT_EQ(textIn("ar", "partly cloudy"), "غائم جزئيًا");
    EXPECT_EQ(textIn("he", "Settings"), "הגדרות");
    EXPECT_EQ(textIn("he", "Height"), "גובה");
    EXPECT_EQ(textIn("ja", "Heart rate"), "心拍数");
    EXPECT_EQ(textIn("zh-Hans", "Dark"), "深色");
    EXPECT_EQ(textIn("ko", "snow"), "눈");
    EXPECT_EQ(textIn("ko", "This file is damaged."), "이 파일은 손상되었습니다.");
}

TEST_F(TranslationsTest, FollowsTheLanguageOfThePickers) {
    EXPECT_EQ(textIn("iw_IL", "rain"), "גשם");
    EXPECT_EQ(textIn("ar_EG", "rain"), "مطر");
    EXPECT_EQ(textIn("zh_CN", "Light"), "浅色");
    EXPECT_EQ(textIn("zh_TW", "Light"), "浅色");
    EXPECT_EQ(textIn("pt_BR.UTF-8", "rain"), "chuva");
    EXPECT_EQ(textIn("DE-at", "rain"), "Regen");
    const auto own = gx::create<GXLocalization>();
    own->setLanguage("fr");
    GXLocalization::setSharedLocalization(own);
    EXPECT_EQ(Translations::text("rain"), "pluie");
    GXLocalization::setSharedLocalization(nullptr);
    EXPECT_EQ(Translations::text("rain"), "rain");
}

TEST_F(TranslationsTest, AnUnknownLanguageIsEnglish) {
    for (const char* language : {"sv_SE", "xx", "", "C"}) EXPECT_EQ(textIn(language, "Save"), "Save") << language;
    EXPECT_EQ(Translations::textInLanguage("Save", "sv"), "Save");
    // Only the localiser takes identifiers to pieces.
    EXPECT_EQ(Translations::textInLanguage("Save", "de_DE"), "Save");
}

TEST_F(TranslationsTest, ATextWithoutTranslationsIsItself) {
    for (const auto& language : Translations::languages()) {
        EXPECT_EQ(textIn(language, "Furlongs"), "Furlongs");
        EXPECT_EQ(textIn(language, "save"), "save");
        EXPECT_EQ(textIn(language, "Save "), "Save ");
        EXPECT_EQ(textIn(language, ""), "");
    }
}

TEST_F(TranslationsTest, EveryTextIsWellFormed) {
    for (const auto& language : Translations::languages()) {
        for (const auto english : Translations::englishTexts()) {
            const auto text = Translations::textInLanguage(english, language);
            const auto points = codePoints(text);
            ASSERT_TRUE(points) << english << ": " << text;
            ASSERT_FALSE(points->empty()) << english;
            EXPECT_FALSE(isBlank(points->front())) << english << ": " << text;
            EXPECT_FALSE(isBlank(points->back())) << english << ": " << text;
        }
    }
}

TEST_F(TranslationsTest, EveryTextEndsAsItsEnglishOneDoes) {
    const auto kindOfEnd = [](std::string_view text) {
        const char32_t last = codePoints(text).value().back();
        if (last == U':' || last == U'：') return ':';
        // Polish and Russian shorten "on" and "off" with a point, which ends no sentence.
        const bool isSentence = length(text) > 5 && (last == U'.' || last == U'。');
        return isSentence ? '.' : ' ';
    };
    for (const auto& language : Translations::languages()) {
        for (const auto english : Translations::englishTexts()) {
            const auto text = Translations::textInLanguage(english, language);
            EXPECT_EQ(kindOfEnd(text), kindOfEnd(english)) << english << ": " << text;
        }
    }
}

TEST_F(TranslationsTest, PlacesOfAPatternAreFilledInWhereTheLanguageHasThem) {
    GXLocalization::sharedLocalization()->setLanguage("en");
    EXPECT_EQ(Translations::filled("Saved: {0}", "a.json"), "Saved: a.json");
    EXPECT_EQ(Translations::filled("{0} to {1}", "40", "220"), "40 to 220");
    EXPECT_EQ(Translations::filled("{0} to {1}", "{1}", "{0}"), "{1} to {0}") << "what is filled in is not searched";
    EXPECT_EQ(Translations::filled("Saved: {0}", ""), "Saved: ");
    EXPECT_EQ(Translations::filled("no pattern", "a"), "no pattern");
    EXPECT_EQ(Translations::filled("{0} furlongs {", "5"), "5 furlongs {") << "without a translation";
    GXLocalization::sharedLocalization()->setLanguage("fr");
    EXPECT_EQ(Translations::filled("{0} (component {1})", "5 m", "0"), "5 m (composant 0)");
    GXLocalization::sharedLocalization()->setLanguage("tr");
    EXPECT_EQ(Translations::filled("Below {0}", "2000"), "2000 altı");
    GXLocalization::sharedLocalization()->setLanguage("zh-Hans");
    EXPECT_EQ(Translations::filled("The file has no number for: {0}.", "weight"), "文件中缺少以下数值：weight。");
}

TEST_F(TranslationsTest, ButtonsAndNamesAreShort) {
    for (const auto& language : Translations::languages()) {
        for (const auto english : choices) EXPECT_LE(length(Translations::textInLanguage(english, language)), 15U) << english;
        for (const auto english : names) EXPECT_LE(length(Translations::textInLanguage(english, language)), 22U) << english;
        for (const auto english : weathers) EXPECT_LE(length(Translations::textInLanguage(english, language)), 22U) << english;
    }
}
