// The application in all its languages, with the letters of a real font.

#include "ApplicationTest.h"

using namespace gallery;
using namespace gx;

namespace {

class LanguagesTest : public ApplicationTest {
protected:
    /// The texts that are cut in a view and its visible subviews.
    static std::vector<std::string> cutTexts(const Ref<UIView>& view) {
        std::vector<std::string> cut;
        addCutTexts(view, cut);
        return cut;
    }

private:
    static void addCutTexts(const Ref<UIView>& view, std::vector<std::string>& cut) {
        if (view->isHidden()) return;
        const auto label = std::dynamic_pointer_cast<UILabel>(view);
        if (label && label->showsSomething() && label->sizeThatFits({}).width > label->bounds().size.width + 0.01)
            cut.push_back(*label->text());
        for (const Ref<UIView>& below : view->subviews()) addCutTexts(below, cut);
    }
};

} // namespace

TEST_F(LanguagesTest, NoTextIsCutOnASmallPhone) {
    start(320, 568);
    for (const std::string& language : GXLocalization::availableLanguages()) {
        SCOPED_TRACE(language);
        Settings settings = screen->settings();
        settings.language = language;
        screen->setSettings(settings);
        for (std::size_t page = 0; page < MainScreen::firstPickerPage; ++page) {
            screen->showPage(page);
            settle();
            EXPECT_EQ(cutTexts(screen), std::vector<std::string>()) << "on page " << page;
        }
    }
}
