#include "SettingsScreen.h"

#include "GalleryTest.h"

using namespace gallery;
using namespace gx;

class SettingsScreenTest : public GalleryTest {
protected:
    using Texts = std::vector<std::string>;

    void showWithTextScale(double scale) {
        open(390, 844);
        Settings settings = screen->settings();
        settings.textScale = scale;
        screen->setSettings(settings);
        screen->showPage(MainScreen::settingsPage);
        settle();
    }
    Ref<SegmentedControl> sizes() { return screen->settingsControls()->control("Text size"); }
    std::string chosenSize() { return sizes()->choices()[sizes()->chosen()]; }
};

TEST_F(SettingsScreenTest, ATextSizeBetweenTheStepsIsAChoiceOfItsOwn) {
    showWithTextScale(1.5);
    EXPECT_EQ(sizes()->choices(), (Texts{"80 %", "100 %", "130 %", "150 %", "200 %", "300 %"}));
    EXPECT_EQ(chosenSize(), "150 %");

    // It stays, also after a choice that makes the page again.
    tapSegment(sizes(), 5);
    EXPECT_EQ(screen->settings().textScale, 3);
    EXPECT_EQ(chosenSize(), "300 %");
    bringIntoSight(screen->settingsControls()->languageButton("de"));
    tap(screen->settingsControls()->languageButton("de"));
    EXPECT_EQ(sizes()->choices().size(), 6U);
    EXPECT_EQ(chosenSize(), "300 %");
    tapSegment(sizes(), 3);
    EXPECT_EQ(screen->settings().textScale, 1.5);

    // Another one takes its place.
    Settings settings = screen->settings();
    settings.textScale = 2.9;
    screen->setSettings(settings);
    EXPECT_EQ(sizes()->choices(), (Texts{"80 %", "100 %", "130 %", "200 %", "290 %", "300 %"}));
    EXPECT_EQ(chosenSize(), "290 %");
}

TEST_F(SettingsScreenTest, ATextSizeOfTheStepsIsChosenAmongThese) {
    for (const auto& [scale, text] : {std::pair(0.8, "80 %"), std::pair(1.0, "100 %"), std::pair(3.0, "300 %")}) {
        showWithTextScale(scale);
        EXPECT_EQ(sizes()->choices(), (Texts{"80 %", "100 %", "130 %", "200 %", "300 %"}));
        EXPECT_EQ(chosenSize(), text);
    }
}

TEST_F(SettingsScreenTest, AnotherTextSizeShowsAtOnce) {
    showWithTextScale(1);
    const CGFloat height = screen->scroll()->content()->frame().size.height;
    EXPECT_EQ(sizes()->frame().size.height, 40);
    tapSegment(sizes(), 3);
    EXPECT_EQ(sizes()->frame().size.height, 60) << "a row of twice the text size";
    EXPECT_GT(screen->scroll()->content()->frame().size.height, height + 7 * 20);
    tapSegment(sizes(), 1);
    EXPECT_EQ(screen->scroll()->content()->frame().size.height, height);
}

TEST_F(SettingsScreenTest, InAWideWindowTheLanguagesAreBesideTheChoices) {
    const auto placeOf = [this](const char* name) {
        for (const Ref<UIView>& view : screen->settingsControls()->subviews()) {
            if (view->accessibilityLabel() == name) return view->frame();
        }
        return CGRectNull;
    };
    const auto choices = [this] { return screen->settingsControls()->control("Units")->superview()->frame(); };
    const auto languages = [this] { return screen->settingsControls()->languageButton("de")->superview()->frame(); };
    open(1200, 800);
    screen->showPage(MainScreen::settingsPage);
    settle();
    // Of 1200 - 232 points, 904 are left between margins of 32: two cards of 444 with 16 between.
    EXPECT_EQ(choices().origin.x, 32);
    EXPECT_EQ(choices().size.width, 444);
    EXPECT_EQ(languages().origin, CGPointMake(32 + 444 + 16, CGRectGetMinY(choices())));
    EXPECT_EQ(languages().size.width, 444);
    EXPECT_LE(CGRectGetMaxY(placeOf("Language")), CGRectGetMinY(languages()));
    EXPECT_EQ(CGRectGetMinX(placeOf("Language")), CGRectGetMinX(languages()));
    // From 760 points between the margins.
    open(232 + 64 + 759, 800);
    screen->showPage(MainScreen::settingsPage);
    settle();
    EXPECT_EQ(choices().size.width, 640);
    EXPECT_EQ(languages().origin.x, 32);
    EXPECT_GT(CGRectGetMinY(placeOf("Language")), CGRectGetMaxY(choices()));
    open(232 + 64 + 760, 800);
    screen->showPage(MainScreen::settingsPage);
    settle();
    EXPECT_EQ(choices().size.width, 372);
    EXPECT_GT(languages().origin.x, 32);
}

TEST_F(SettingsScreenTest, ClicksAreAChoiceWhereTheyCanBeHeard) {
    for (const bool canBeHeard : {false, true}) {
        open(390, 844);
        Settings settings = screen->settings();
        EXPECT_FALSE(settings.clicks) << "until the application offers them";
        if (canBeHeard) settings.clicks = false;
        screen->setSettings(settings);
        screen->showPage(MainScreen::settingsPage);
        settle();
        const auto clicks = screen->settingsControls()->control("Wheel clicks");
        EXPECT_EQ(clicks != nullptr, canBeHeard);
        EXPECT_EQ(window->ref()->isFeedbackEnabled(), !canBeHeard) << "off, until the user chooses them";
        if (!clicks) continue;
        EXPECT_EQ(clicks->choices(), (Texts{"Off", "On"}));
        EXPECT_EQ(clicks->chosen(), 0U);
        tapSegment(clicks, 1);
        EXPECT_TRUE(window->ref()->isFeedbackEnabled());
        EXPECT_EQ(screen->settings().clicks, true);
        tapSegment(screen->settingsControls()->control("Wheel clicks"), 0);
        EXPECT_FALSE(window->ref()->isFeedbackEnabled());
        EXPECT_EQ(screen->settings().clicks, false);
    }
}
