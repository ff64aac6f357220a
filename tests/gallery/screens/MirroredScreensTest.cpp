#include "GalleryTest.h"

using namespace gallery;
using namespace gx;

class MirroredScreensTest : public GalleryTest {
protected:
    void showMirrored(std::size_t page, CGFloat width) {
        open(width, 800);
        screen->showPage(page);
        Settings settings = screen->settings();
        settings.language = "he";
        screen->setSettings(settings);
        settle();
    }
    /// The frames read from the right are those read from the left, seen in a mirror.
    static void expectMirrored(const std::vector<CGRect>& mirrored, const std::vector<CGRect>& plain, CGFloat width) {
        ASSERT_EQ(mirrored.size(), plain.size());
        for (std::size_t i = 0; i < plain.size(); ++i) {
            EXPECT_DOUBLE_EQ(CGRectGetMinX(mirrored[i]), width - CGRectGetMaxX(plain[i])) << i;
            EXPECT_DOUBLE_EQ(CGRectGetMinY(mirrored[i]), CGRectGetMinY(plain[i])) << i;
            EXPECT_EQ(mirrored[i].size, plain[i].size) << i;
        }
    }
    static void showAgain(const Ref<UIView>& view, const char* locale) {
        NSLocale::setCurrentLocale(NSLocale::localeWithIdentifier(locale));
        Theme::layOutAgain(view);
        view->layoutIfNeeded();
    }
};

TEST_F(MirroredScreensTest, TheFirstLanguageIsAtTheSideWhereReadingBegins) {
    showMirrored(MainScreen::settingsPage, 390);
    const auto& page = screen->settingsControls();
    const auto frames = [&page] {
        std::vector<CGRect> found;
        for (const std::string& language : GXLocalization::availableLanguages()) found.push_back(page->languageButton(language)->frame());
        return found;
    };
    const std::vector<CGRect> mirrored = frames();
    EXPECT_GT(mirrored[0].origin.x, mirrored[1].origin.x);
    showAgain(page, "en");
    expectMirrored(mirrored, frames(), 390 - 2 * 16);
}

TEST_F(MirroredScreensTest, ThePartsOfAPageChangeSides) {
    showMirrored(MainScreen::firstPickerPage, 1200);
    const auto page = screen->page();
    const auto frames = [&page] {
        return std::vector<CGRect>{page->pickerCard()->frame(), page->log()->frame(), page->optionsCard()->frame()};
    };
    const std::vector<CGRect> mirrored = frames();
    EXPECT_GT(mirrored[0].origin.x, mirrored[1].origin.x) << "the picker is at the right of the log";
    showAgain(page, "en");
    expectMirrored(mirrored, frames(), page->bounds().size.width);
}

TEST_F(MirroredScreensTest, TheCardsOfAllPickersBeginAtTheRight) {
    showMirrored(MainScreen::overviewPage, 1200);
    const auto& overview = screen->overview();
    const auto frames = [&overview] {
        std::vector<CGRect> found;
        for (std::size_t i = 0; i < overview->count(); ++i) found.push_back(overview->card(i)->frame());
        return found;
    };
    const std::vector<CGRect> mirrored = frames();
    EXPECT_GT(mirrored[0].origin.x, mirrored[1].origin.x);
    showAgain(overview, "en");
    expectMirrored(mirrored, frames(), overview->bounds().size.width);
}
