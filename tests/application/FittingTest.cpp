// Every text of every page, in all languages and text sizes, with the letters of a real font.

#include "ApplicationTest.h"
#include "TextWalk.h"
#include "Translations.h"

using namespace gallery;
using namespace gx;

namespace {

class FittingTest : public ApplicationTest {
protected:
    void SetUp() override {
        screen = create<MainScreen>(CGRectZero);
        screen->entry()->setFiles(std::make_shared<QtFiles>(nullptr)); // For its buttons.
    }
    void apply(const std::string& language, double textScale) {
        Settings settings = screen->settings();
        settings.language = language;
        settings.textScale = textScale;
        screen->setSettings(settings);
    }
    /// Lays out a page of a window that is high enough to show all of it.
    void lay(std::size_t page, CGFloat width) {
        screen->showPage(page);
        constexpr CGFloat highest = 4000;
        screen->setFrame(CGRectMake(0, 0, width, page == MainScreen::entryPage ? highest : screen->sizeThatFits({width, 0}).height));
        NSRunLoop::mainRunLoop()->runPass();
        screen->layoutIfNeeded();
    }
    void expectPageFits(std::size_t page, CGFloat width) {
        lay(page, width);
        for (const std::string& problem : TextWalk::problemsIn(screen))
            ADD_FAILURE() << screen->settings().language << ", " << screen->settings().textScale << ", " << width << " points, "
                          << screen->pageNames()[page] << ": " << problem;
    }
    void expectAllFits(CGFloat width) {
        for (std::size_t page = 0; page < screen->pageNames().size(); ++page) expectPageFits(page, width);
    }
};

} // namespace

TEST_F(FittingTest, NoTextIsCutInAnyLanguageOnASmallPhone) {
    for (const std::string& language : GXLocalization::availableLanguages()) {
        for (const double scale : {GXStyleSheet::minTextScale, 1.0, GXStyleSheet::maxTextScale}) {
            apply(language, scale);
            expectAllFits(320);
        }
    }
}

TEST_F(FittingTest, NoTextIsCutAtAnyTextSizeAndWidth) {
    for (const char* language : {"ar", "de"}) {
        for (const double scale : {0.8, 1.0, 1.3, 2.0, 3.0}) {
            apply(language, scale);
            for (const CGFloat width : {320, 390, 600, 900, 1200}) expectAllFits(width);
        }
    }
}

TEST_F(FittingTest, NoTextOfAnOpenPickerIsCut) {
    for (const char* language : {"ru", "he"}) {
        for (const double scale : {1.0, 2.0, 3.0}) {
            apply(language, scale);
            for (std::size_t i = 0; i < entry()->measurementCount(); ++i) {
                entry()->openMeasurement_animated(i, false);
                for (const CGFloat width : {320, 1200}) expectPageFits(MainScreen::entryPage, width);
            }
        }
    }
}

TEST_F(FittingTest, AllTextsOfThePagesAreLookedAt) {
    apply("de", 2);
    const auto expectSeen = [this](std::size_t page, const std::vector<std::string>& texts) {
        lay(page, 390);
        const std::set<std::string> seen = TextWalk::textsIn(screen);
        for (const std::string& text : texts) EXPECT_TRUE(seen.count(text)) << text;
    };
    std::vector<std::string> rows = {"Training hinzufügen", "Öffnen", "Speichern"};
    for (std::size_t i = 0; i < entry()->measurementCount(); ++i) {
        rows.push_back(Translations::text(entry()->measurement(i)->name()));
        rows.push_back(entry()->measurement(i)->valueText());
    }
    expectSeen(MainScreen::entryPage, rows);
    expectSeen(MainScreen::settingsPage, {"Einstellungen", "Dezimaltrennzeichen", "Automatisch", "200 %", "Sprache", "日本語"});
    expectSeen(MainScreen::overviewPage, {"Alle Auswahlräder", "Geschwindigkeit", "km/h"});
    expectSeen(MainScreen::firstPickerPage, {"Distanz", "km", "5"});
}
