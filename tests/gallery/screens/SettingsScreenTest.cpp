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
