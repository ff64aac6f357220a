// Every text on every screen is in the language that was chosen.

#include <algorithm>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "GXLocalization.h"
#include "GalleryTest.h"
#include "Paragraph.h"
#include "Translations.h"

using namespace gallery;
using namespace gx;

namespace {

/// The words of a text: its letters in a row. Digits and punctuation separate them.
std::vector<std::string> wordsOf(std::string_view text) {
    std::vector<std::string> words = {""};
    for (std::size_t i = 0; i < text.size();) {
        const auto first = static_cast<unsigned char>(text[i]);
        const std::size_t length = first < 0x80 ? 1 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
        char32_t point = length == 1 ? first : first & (0x7FU >> length);
        for (std::size_t j = 1; j < length; ++j) point = point << 6U | (static_cast<unsigned char>(text[i + j]) & 0x3FU);
        const bool isAscii = (point >= U'A' && point <= U'Z') || (point >= U'a' && point <= U'z');
        // Above them stand, among letters, the Arabic comma and separator and blocks of
        // punctuation.
        const bool isMark = point == 0x060C || point == 0x066B || (point >= 0x2000 && point < 0x2C00) ||
                            (point >= 0x3000 && point < 0x3040) || (point >= 0xFF00 && point < 0xFFF0);
        if (isAscii || (point >= 0xC0 && !isMark)) {
            words.back() += text.substr(i, length);
        } else if (!words.back().empty()) {
            words.emplace_back();
        }
        i += length;
    }
    if (words.back().empty()) words.pop_back();
    return words;
}

class ScreenTexts : public GalleryTest {
protected:
    /// Of the gallery and of the library in this language.
    static std::set<std::string> textsOfLanguage(const std::string& identifier) {
        const auto language = create<GXLocalization>();
        language->setLanguage(identifier);
        std::set<std::string> texts;
        for (const auto english : Translations::englishTexts()) texts.emplace(Translations::textInLanguage(english, identifier));
        for (const char* key : {"bpm", "hh:mm", "hh:mm:ss", "mm:ss", "min/km", "min/mi", "AVG",  "MAX", "kg",   "lb", "st",
                                "cm",  "ft",    "°C",       "°F",    "km",     "mi",     "km/h", "mph", "kcal", "h",  "min"})
            texts.insert(language->localizedStringWithKey_comment(key, "").value());
        for (std::size_t i = 0; i < GXAccessibilityNameCount; ++i)
            texts.insert(language->accessibilityTextForName(static_cast<GXAccessibilityName>(i)).value());
        for (std::size_t i = 0; i < GXAccessibilityUnitCount; ++i) {
            // One number of each plural category.
            for (const char* whole : {"0", "1", "2", "3", "5", "11", "100"})
                texts.insert(language->accessibilityTextForNumber_unit({whole, "", ""}, static_cast<GXAccessibilityUnit>(i)).value());
            texts.insert(language->accessibilityTextForNumber_unit({"1", ".", "5"}, static_cast<GXAccessibilityUnit>(i)).value());
        }
        // Each language is offered by the name that its own speakers have for it.
        for (const std::string& offered : GXLocalization::availableLanguages()) texts.insert(GXLocalization::nameOfLanguage(offered));
        texts.emplace("GXUIPickers"); // The library's name.
        // In the log, as the program got it: the symbols of the base units.
        for (const char* symbol : {"m", "ms", "m/s", "kg", "cm", "kcal", "bpm", "°C"}) texts.emplace(symbol);
        return texts;
    }

    /// Labels, paragraphs, and what screen readers find, also of views that are hidden now.
    static void collectTexts(const Ref<UIView>& view, std::set<std::string>& texts) {
        if (const auto label = std::dynamic_pointer_cast<UILabel>(view)) texts.insert(label->text().value_or(""));
        if (const auto paragraph = std::dynamic_pointer_cast<Paragraph>(view)) texts.insert(paragraph->text());
        for (const auto& element : view->accessibilityElements()) {
            texts.insert(element->label().value_or(""));
            texts.insert(element->value().value_or(""));
        }
        for (const Ref<UIView>& below : view->subviews()) collectTexts(below, texts);
    }

    /// The texts with a word that the language does not have, or that are English and translated.
    std::vector<std::string> foreignTexts(const std::string& language) {
        const std::set<std::string> known = textsOfLanguage(language);
        std::set<std::string> words;
        for (const std::string& text : known) {
            for (const std::string& word : wordsOf(text)) words.insert(word);
        }
        std::set<std::string> shown;
        collectTexts(screen, shown);
        std::vector<std::string> foreign;
        for (const std::string& text : shown) {
            const auto inText = wordsOf(text);
            const bool isKnown = std::all_of(inText.begin(), inText.end(), [&](const std::string& word) { return words.count(word) > 0; });
            const bool isEnglish = Translations::textInLanguage(text, language) != text && known.count(text) == 0;
            if (!isKnown || isEnglish) foreign.push_back(text);
        }
        return foreign;
    }

    void chooseLanguage(const std::string& language) {
        Settings settings = screen->settings();
        settings.language = language;
        screen->setSettings(settings);
        settle();
    }

    void expectOneLanguage(const std::string& language) {
        chooseLanguage(language);
        for (std::size_t page = 0; page < screen->pageNames().size(); ++page) {
            screen->showPage(page);
            settle();
            EXPECT_EQ(foreignTexts(language), std::vector<std::string>()) << language << ", " << screen->pageNames()[page];
            if (!screen->page()) continue;
            screen->page()->turnForPicture();
            settle();
            EXPECT_FALSE(screen->page()->log()->notices().empty());
            EXPECT_EQ(foreignTexts(language), std::vector<std::string>()) << language << ", log of " << screen->pageNames()[page];
        }
        screen->showPage(MainScreen::entryPage);
        for (std::size_t i = 0; i < screen->entry()->measurementCount(); ++i) {
            screen->entry()->openMeasurement_animated(i, false);
            settle();
            EXPECT_EQ(foreignTexts(language), std::vector<std::string>()) << language << ", " << screen->entry()->measurement(i)->name();
        }
    }
};

} // namespace

TEST_F(ScreenTexts, EveryScreenIsInTheChosenLanguage) {
    open(1200, 2600);
    for (const std::string& language : GXLocalization::availableLanguages()) expectOneLanguage(language);
}

TEST_F(ScreenTexts, EveryScreenOfAPhoneIsInTheChosenLanguage) {
    for (const char* language : {"ar", "ja", "pl"}) {
        open(390, 2600);
        expectOneLanguage(language);
    }
}

TEST_F(ScreenTexts, AForeignTextIsFound) {
    open(1200, 2600);
    chooseLanguage("de");
    const auto label = create<UILabel>(CGRectZero);
    screen->addSubview(label);
    label->setText("Step of hours");
    EXPECT_EQ(foreignTexts("de"), std::vector<std::string>{"Step of hours"});
    label->setText("5.3 furlongs");
    EXPECT_EQ(foreignTexts("de"), std::vector<std::string>{"5.3 furlongs"});
    label->setText("Light");
    EXPECT_EQ(foreignTexts("de"), std::vector<std::string>{"Light"});
    label->setText("5,3 Kilometer, 12:05");
    EXPECT_EQ(foreignTexts("de"), std::vector<std::string>());
}

TEST_F(ScreenTexts, APageFollowsTheLanguageAndKeepsItsOptions) {
    show("Duration");
    const auto page = screen->page();
    tapSegment(page->optionControls().at(0), 2);
    tapSegment(page->optionControls().at(3), 1);
    turn(0, 1);
    ASSERT_FALSE(log().empty());
    chooseLanguage("de");
    ASSERT_EQ(screen->page(), page);
    EXPECT_EQ(page->optionControls().at(0)->chosen(), 2U);
    EXPECT_EQ(page->optionControls().at(3)->chosen(), 1U);
    EXPECT_EQ(page->optionControls().at(1)->choices(), (std::vector<std::string>{"Alle", "Begrenzt"}));
    EXPECT_TRUE(log().empty()) << "the notices were in English";
    tapSegment(page->optionControls().at(0), 0);
    turn(0, 1);
    ASSERT_EQ(log().size(), 1U);
    EXPECT_NE(log()[0].find("(Komponente 0)"), std::string::npos) << log()[0];
}
