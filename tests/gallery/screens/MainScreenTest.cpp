#include "MainScreen.h"

#include "GXStyleSheet.h"
#include "GalleryTest.h"

using namespace gallery;
using namespace gx;

using MainScreenTest = GalleryTest;

TEST_F(MainScreenTest, ItBeginsWithTheEntryOfAWorkoutAndListsAPageForEachPicker) {
    open(1200, 800);
    EXPECT_EQ(screen->pageNames(),
              (std::vector<std::string>{"Add workout", "Settings", "All pickers", "Distance", "Duration", "Pace", "Speed", "Heart rate",
                                        "Temperature", "Weight", "Height", "Calories", "Beats per minute"}));
    EXPECT_EQ(screen->pageIndex(), MainScreen::entryPage);
    EXPECT_FALSE(screen->entry()->isHidden());
    EXPECT_TRUE(screen->scroll()->isHidden());
    EXPECT_FALSE(screen->page());
    tap(screen->sidebar()->rows()[MainScreen::overviewPage]);
    EXPECT_TRUE(screen->entry()->isHidden());
    EXPECT_FALSE(screen->scroll()->isHidden());
    EXPECT_EQ(screen->overview()->count(), 10U);
    EXPECT_FALSE(screen->page());
}

TEST_F(MainScreenTest, ATapInTheSidebarShowsThatPage) {
    open(1200, 800);
    tap(screen->sidebar()->rows()[5]);
    EXPECT_EQ(screen->pageIndex(), 5U);
    EXPECT_EQ(screen->page()->name(), "Pace");
    EXPECT_TRUE(screen->sidebar()->rows()[5]->isChosen());
    EXPECT_FALSE(screen->sidebar()->rows()[0]->isChosen());
    EXPECT_EQ(screen->scroll()->content(), screen->page());
}

TEST_F(MainScreenTest, OnAPhoneTheMenuButtonShowsTheListInsteadOfThePage) {
    open(320, 568);
    EXPECT_FALSE(screen->hasSidebar());
    EXPECT_TRUE(screen->sidebar()->isHidden());
    tap(screen->menuButton());
    EXPECT_TRUE(screen->isMenuShown());
    EXPECT_FALSE(screen->sidebar()->isHidden());
    EXPECT_TRUE(screen->entry()->isHidden());
    EXPECT_EQ(screen->sidebar()->frame(), CGRectMake(0, 56, 320, 512));
    tap(screen->sidebar()->rows()[3]);
    EXPECT_FALSE(screen->isMenuShown());
    EXPECT_TRUE(screen->sidebar()->isHidden());
    EXPECT_EQ(screen->page()->name(), "Distance");
}

TEST_F(MainScreenTest, TheMenuButtonAlsoClosesTheList) {
    open(320, 568);
    tap(screen->menuButton());
    tap(screen->menuButton());
    EXPECT_FALSE(screen->isMenuShown());
    EXPECT_FALSE(screen->entry()->isHidden());
}

TEST_F(MainScreenTest, AHeadingOfTheOverviewLeadsToItsPage) {
    show("All pickers", 1200, 800);
    tap(screen->overview()->heading(4));
    ASSERT_TRUE(screen->page());
    EXPECT_EQ(screen->page()->name(), "Heart rate");
}

TEST_F(MainScreenTest, PagesAreFoundByNameInAnyCase) {
    open(320, 568);
    EXPECT_EQ(screen->indexOfPage("heart RATE"), 7U);
    EXPECT_EQ(screen->indexOfPage("All pickers"), 2U);
    EXPECT_FALSE(screen->indexOfPage("Heart"));
    EXPECT_FALSE(screen->indexOfPage(""));
    screen->showPage(13);
    EXPECT_EQ(screen->pageIndex(), 0U);
}

TEST_F(MainScreenTest, APageThatIsLeftKeepsItsValueAndItsLog) {
    show("Calories", 390, 844);
    turn(0, 3);
    const auto page = screen->page();
    screen->showPage(3);
    screen->showPage(11);
    EXPECT_EQ(screen->page(), page);
    EXPECT_EQ(page->log()->notices().size(), 1U);
}

// Looks

TEST_F(MainScreenTest, TheLookInTheSettingsMakesTheWindowDarkAndLightAgain) {
    show("Settings", 1200, 800);
    EXPECT_EQ((*window)->userInterfaceStyle(), UIUserInterfaceStyle::Light);
    tapSegment(screen->settingsControls()->control("Look"), 2);
    EXPECT_EQ((*window)->userInterfaceStyle(), UIUserInterfaceStyle::Dark);
    tapSegment(screen->settingsControls()->control("Look"), 1);
    EXPECT_EQ((*window)->userInterfaceStyle(), UIUserInterfaceStyle::Light);
}

TEST_F(MainScreenTest, TheButtonInTheBarDoesTheSameAndTheSettingsFollow) {
    show("Settings");
    tap(screen->styleButton());
    EXPECT_EQ((*window)->userInterfaceStyle(), UIUserInterfaceStyle::Dark);
    EXPECT_EQ(screen->settingsControls()->control("Look")->chosen(), 2U);
    tap(screen->styleButton());
    EXPECT_EQ((*window)->userInterfaceStyle(), UIUserInterfaceStyle::Light);
    EXPECT_EQ(screen->settingsControls()->control("Look")->chosen(), 1U);
}

TEST_F(MainScreenTest, UntilTheUserChoosesTheLookIsTheWindows) {
    const auto dark = create<UIWindow>(CGRectMake(0, 0, 390, 844));
    dark->setUserInterfaceStyle(UIUserInterfaceStyle::Dark);
    screen = create<MainScreen>(CGRectMake(0, 0, 390, 844));
    dark->addSubview(screen);
    EXPECT_EQ(screen->style(), UIUserInterfaceStyle::Dark);
    EXPECT_EQ(screen->settings().style, std::nullopt);
    // The choice applies to another window too.
    Settings settings = screen->settings();
    settings.style = UIUserInterfaceStyle::Light;
    screen->setSettings(settings);
    EXPECT_EQ(dark->userInterfaceStyle(), UIUserInterfaceStyle::Light);
    const auto other = create<UIWindow>(CGRectMake(0, 0, 390, 844));
    other->setUserInterfaceStyle(UIUserInterfaceStyle::Dark);
    other->addSubview(screen);
    EXPECT_EQ(other->userInterfaceStyle(), UIUserInterfaceStyle::Light);
}

TEST_F(MainScreenTest, TheStyleActionIsCalledForEachChoiceOfALook) {
    show("Settings");
    std::vector<std::optional<UIUserInterfaceStyle>> told;
    screen->setStyleAction([&told](std::optional<UIUserInterfaceStyle> style) { told.push_back(style); });
    tapSegment(screen->settingsControls()->control("Look"), 2);
    tapSegment(screen->settingsControls()->control("Look"), 2);
    tapSegment(screen->settingsControls()->control("Look"), 0);
    EXPECT_EQ(told, (std::vector<std::optional<UIUserInterfaceStyle>>{UIUserInterfaceStyle::Dark, std::nullopt}));
}

TEST_F(MainScreenTest, LargeTextMakesAllPickersAgainWithTheirValuesAndOptions) {
    show("Weight", 1200, 800);
    tapSegment(screen->page()->optionControls()[0], 1);
    turn(2, 1);
    const Ref<UIView> before = screen->page()->demo().picker;
    const double kilograms = screen->page()->demo().values()[0].doubleValue();
    EXPECT_EQ(screen->page()->demo().wheel->rowSizeForComponent(0).height, 40);
    const std::size_t page = screen->pageIndex();

    screen->showPage(MainScreen::settingsPage);
    settle();
    tapSegment(screen->settingsControls()->control("Text size"), 2);
    screen->showPage(page);
    settle();
    const PickerDemo& renewed = screen->page()->demo();
    EXPECT_NE(renewed.picker, before);
    EXPECT_FALSE(before->superview());
    EXPECT_NEAR(renewed.wheel->rowSizeForComponent(0).height, 52, 1e-5);
    EXPECT_EQ(renewed.values()[0].doubleValue(), kilograms);
    EXPECT_EQ(renewed.options[0].chosen, 1U);
    EXPECT_EQ(unitBesideWheel(renewed.textPicker), "lb");
    // The new picker reports to the same log.
    turn(2, 2);
    EXPECT_EQ(screen->page()->log()->notices().size(), 2U);
}

TEST_F(MainScreenTest, AnotherLanguageShowsAtOnceInTheSettingsTheListAndThePickers) {
    show("Settings", 390, 844);
    bringIntoSight(screen->settingsControls()->languageButton("de"));
    tap(screen->settingsControls()->languageButton("de"));
    EXPECT_EQ(screen->settings().language, "de");
    EXPECT_EQ(GXLocalization::sharedLocalization()->language(), "de");
    EXPECT_EQ(NSLocale::currentLocale()->objectForKey(NSLocaleDecimalSeparator), ",");
    EXPECT_TRUE(screen->settingsControls()->languageButton("de")->isChosen());
    EXPECT_FALSE(screen->settingsControls()->languageButton("en")->isChosen());
    EXPECT_EQ(screen->sidebar()->rows()[MainScreen::settingsPage]->title(), "Einstellungen");
    EXPECT_EQ(screen->entry()->measurement(0)->valueText(), "5,3 km, 0:27 h");
    // A chosen separator goes before the language's.
    tapSegment(screen->settingsControls()->control("Decimal separator"), 1);
    EXPECT_EQ(screen->entry()->measurement(0)->valueText(), "5.3 km, 0:27 h");
}

// Layout

TEST_F(MainScreenTest, TheSidebarAppearsAt720Points) {
    open(719, 500);
    EXPECT_FALSE(screen->hasSidebar());
    EXPECT_EQ(screen->entry()->frame(), CGRectMake(0, 56, 719, 444));
    screen->setFrame(CGRectMake(0, 0, 720, 500));
    (*window)->layoutIfNeeded();
    EXPECT_TRUE(screen->hasSidebar());
    EXPECT_FALSE(screen->sidebar()->isHidden());
    EXPECT_EQ(screen->entry()->frame(), CGRectMake(232, 0, 488, 500));
}

TEST_F(MainScreenTest, NothingLeavesItsParentOrCoversItsNeighbour) {
    for (const CGSize size : {CGSizeMake(320, 568), CGSizeMake(430, 932), CGSizeMake(844, 390), CGSizeMake(1200, 800)}) {
        open(size.width, size.height);
        for (std::size_t i = 0; i < screen->pageNames().size(); ++i) {
            SCOPED_TRACE(std::to_string(size.width) + " wide, page " + screen->pageNames()[i]);
            screen->showPage(i);
            (*window)->layoutIfNeeded();
            expectInsideParents(screen);
            if (const auto page = screen->page()) {
                expectApart({page->pickerCard(), page->log(), page->optionsCard()});
                expectApart({page->optionControls().begin(), page->optionControls().end()});
                for (const auto& control : page->optionControls()) EXPECT_GE(control->frame().size.height, 40);
            } else if (i == MainScreen::overviewPage) {
                std::vector<Ref<UIView>> cards;
                for (std::size_t card = 0; card < screen->overview()->count(); ++card) cards.push_back(screen->overview()->card(card));
                expectApart(cards);
            }
        }
        for (const auto& row : screen->sidebar()->rows()) EXPECT_GE(row->frame().size.height, 40);
    }
}

TEST_F(MainScreenTest, TheChosenRowIsScrolledIntoSight) {
    open(844, 390);
    for (const std::size_t page : {12U, 0U, 9U}) {
        screen->showPage(page);
        (*window)->layoutIfNeeded();
        const CGPoint row = middleOf(screen->sidebar()->rows()[page]);
        EXPECT_GE(row.y, 56 + 20);
        EXPECT_LE(row.y, 390 - 20);
    }
}

TEST_F(MainScreenTest, WherePossibleTheLogStandsBesideTheWheel) {
    show("Speed", 844, 390); // 612 - 2 * 32 = 548 are two columns of 266 with 16 between.
    const auto page = screen->page();
    EXPECT_EQ(page->pickerCard()->frame().size.width, 266);
    EXPECT_EQ(page->log()->frame().origin, CGPointMake(32 + 266 + 16, CGRectGetMinY(page->pickerCard()->frame())));
    EXPECT_EQ(CGRectGetMinY(page->optionsCard()->frame()), CGRectGetMaxY(page->pickerCard()->frame()) + 16);
    show("Speed", 390, 844);
    EXPECT_EQ(screen->page()->pickerCard()->frame().size.width, 358);
    EXPECT_EQ(CGRectGetMinY(screen->page()->log()->frame()), CGRectGetMaxY(screen->page()->pickerCard()->frame()) + 16);
    EXPECT_EQ(CGRectGetMinY(screen->page()->optionsCard()->frame()), CGRectGetMaxY(screen->page()->log()->frame()) + 16);
}

TEST_F(MainScreenTest, From900PointsLogAndOptionsStandBesideALargeWheel) {
    show("Speed", 899, 640);
    const CGFloat usual = screen->page()->demo().wheel->bounds().size.height;
    EXPECT_EQ(usual, 216);
    EXPECT_EQ(CGRectGetMinX(screen->page()->optionsCard()->frame()), CGRectGetMinX(screen->page()->pickerCard()->frame()));

    show("Speed", 1200, 800);
    const auto page = screen->page();
    const CGRect picker = page->pickerCard()->frame();
    // Of 968 - 2 * 32 = 904 less 16 between, 55 % are 488.
    EXPECT_EQ(picker.size.width, 488);
    EXPECT_EQ(page->log()->frame().origin, CGPointMake(32 + 488 + 16, CGRectGetMinY(picker)));
    EXPECT_EQ(page->log()->frame().size.width, 400);
    EXPECT_EQ(page->optionsCard()->frame().origin, CGPointMake(32 + 488 + 16, CGRectGetMaxY(page->log()->frame()) + 16));
    EXPECT_EQ(page->optionsCard()->frame().size.width, 400);
    EXPECT_GT(page->demo().wheel->bounds().size.height, usual);
    EXPECT_LE(page->demo().wheel->bounds().size.height, 400) << "ten rows";
}

TEST_F(MainScreenTest, AWheelSpinsOnAndKeepsTheFocusWhileItsPageChangesItsColumns) {
    double values[2] = {};
    for (const bool isResized : {false, true}) {
        show("Calories", 1200, 800);
        const auto wheel = screen->page()->demo().wheel;
        const CGPoint from = middleOf(wheel->viewForRow_forComponent(wheel->selectedRowInComponent(0), 0));
        window->fling(from, {from.x, from.y - 60}, 3);
        window->tick(0.05);
        if (isResized) {
            screen->setFrame(CGRectMake(0, 0, 700, 800));
            (*window)->layoutIfNeeded();
            EXPECT_EQ(wheel->bounds().size.height, 216);
        }
        EXPECT_TRUE(wheel->isTurning());
        EXPECT_EQ((*window)->firstResponder(), wheel);
        settle();
        values[isResized ? 1 : 0] = screen->page()->demo().values().at(0).doubleValue();
    }
    EXPECT_EQ(values[0], values[1]);
}

TEST_F(MainScreenTest, ItNeedsTheHeightOfItsPageAndItsBar) {
    open(390, 300);
    screen->showPage(MainScreen::firstPickerPage);
    (*window)->layoutIfNeeded();
    const CGFloat height = screen->sizeThatFits({390, 0}).height;
    EXPECT_EQ(height, screen->page()->frame().size.height + 56);
    screen->setFrame(CGRectMake(0, 0, 390, height));
    screen->layoutIfNeeded();
    EXPECT_EQ(screen->scroll()->maxOffset(), 0);
}

TEST_F(MainScreenTest, APageThatIsLongerThanTheWindowFlashesItsIndicatorWhenItAppears) {
    const auto secondsUntilStill = [this](std::size_t page) {
        screen->showPage(page);
        NSRunLoop::mainRunLoop()->runPass();
        return window->runUntilStill();
    };
    open(390, 568);
    // It is shown for 0.6 seconds and fades within 0.3.
    EXPECT_NEAR(secondsUntilStill(MainScreen::settingsPage), 0.9, 0.1);
    EXPECT_NEAR(secondsUntilStill(MainScreen::entryPage), 0.9, 0.1);
    open(390, 4000);
    EXPECT_LT(secondsUntilStill(MainScreen::settingsPage), 0.1);
    screen->showPage(MainScreen::entryPage);
    screen = nullptr;
    window = nullptr;
    NSRunLoop::mainRunLoop()->runPass(); // For a screen that is gone.
}
