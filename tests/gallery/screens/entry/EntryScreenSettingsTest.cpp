// The entry screen after a change of the settings.

#include "EntryScreenTest.h"
#include "ProportionalTextEngine.h"

#include <cmath>

using namespace gallery;
using namespace gx;

TEST_F(EntryScreenTest, SettingsShowAtOnceAndKeepTheValues) {
    openEntry();
    const Workout before = entry()->workout();
    tapRow("Distance");
    Settings settings = screen->settings();
    settings.isMetric = false;
    settings.weightUnit = GXWeightUnitPound;
    settings.decimalSeparator = ",";
    choose(settings);
    EXPECT_EQ(entry()->openMeasurement(), indexOf("Distance"));
    EXPECT_EQ(wheels().size(), 1U);
    EXPECT_EQ(value("Distance"), "0,62 mi");
    EXPECT_EQ(value("Average speed"), "7,8 mph"); // 7.767 miles per hour
    EXPECT_EQ(value("Weight"), "159,8 lb");       // 159.835
    EXPECT_EQ(value("Water temperature"), "68 °F");
    EXPECT_EQ(value("Height"), "5' 9\"");
    EXPECT_EQ(entry()->workout(), before);

    settings.language = "de";
    settings.decimalSeparator = std::nullopt;
    settings.isMetric = true;
    choose(settings);
    EXPECT_EQ(value("Distance"), "1,00 km");
    EXPECT_EQ(entry()->workout(), before);
}

TEST_F(EntryScreenTest, LargeTextMakesThePickersAgainAtTheirSize) {
    openEntry();
    tapRow("Calories");
    EXPECT_EQ(wheels()[0]->rowSizeForComponent(0).height, 40);
    const CGFloat rowBefore = table()->rectForRowAtIndexPath({0, 0}).size.height;
    Settings settings = screen->settings();
    settings.textScale = 2;
    choose(settings);
    EXPECT_EQ(wheels()[0]->rowSizeForComponent(0).height, 80);
    EXPECT_GT(table()->rectForRowAtIndexPath({0, 0}).size.height, 1.5 * rowBefore);
}

TEST_F(EntryScreenTest, LargeTextStacksThePickersOfACompositeAndGivesThemTheHeight) {
    UITextEngine::setShared(create<ProportionalTextEngine>());
    openEntry();
    tapRow("Distance and time");
    const auto frameOf = [this](std::size_t i) {
        return wheels()[i]->convertRect_toView(wheels()[i]->bounds(), entry()->openPickerCell());
    };
    EXPECT_EQ(CGRectGetMinY(frameOf(0)), CGRectGetMinY(frameOf(1)));
    Settings settings = screen->settings();
    settings.textScale = 2;
    choose(settings);
    ASSERT_EQ(wheels().size(), 2U);
    EXPECT_EQ(CGRectGetMaxY(frameOf(0)), CGRectGetMinY(frameOf(1)));
    EXPECT_GE(frameOf(0).size.height, 3 * 80);
    EXPECT_EQ(frameOf(0).size, frameOf(1).size);
    EXPECT_LE(CGRectGetMaxY(frameOf(1)), table()->bounds().size.height);
    UITextEngine::setShared(nullptr);
}

TEST_F(EntryScreenTest, AWheelThatSpinsLandsBeforeTheUnitsChange) {
    openEntry();
    tapRow("Distance");
    const CGPoint from = middleOfColumn(wheels()[0], 0);
    window->fling(from, {from.x, from.y - 60}, 3);
    window->tick(0.05);
    ASSERT_TRUE(wheels()[0]->isTurning());
    Settings settings = screen->settings();
    settings.isMetric = false;
    choose(settings);
    EXPECT_GT(entry()->workout().intervalDistance, 1000);
    EXPECT_EQ(std::fmod(entry()->workout().intervalDistance, 1000), 0);
}

TEST_F(EntryScreenTest, AWeightBelowTheRangeOfItsUnitShowsAsTheFirstRow) {
    openEntry();
    Settings settings = screen->settings();
    settings.weightUnit = GXWeightUnitStone;
    choose(settings);
    Workout light;
    light.weight = 16; // Two and a half stone; the wheel begins at three.
    entry()->setWorkout(light);
    settle();
    EXPECT_EQ(value("Weight"), "3.0 st");
    EXPECT_EQ(entry()->workout().weight, 16);
}

TEST_F(EntryScreenTest, LookContrastAndMotionLeaveTheRowsAsTheyAre) {
    openEntry();
    tapRow("Height");
    turnWheel(0, 1, 1); // To feet, on the wheel itself.
    const Ref<UITableView> before = table();
    Settings settings = screen->settings();
    settings.style = UIUserInterfaceStyle::Dark;
    settings.contrast = UIAccessibilityContrast::High;
    settings.reducesMotion = true;
    choose(settings);
    EXPECT_EQ(table(), before);
    EXPECT_EQ(value("Height"), "5' 9\"");
}

TEST_F(EntryScreenTest, AMessageIsRemovedWhenTheLanguageChanges) {
    openEntry();
    tap(entry()->saveButton());
    EXPECT_NE(entry()->message(), "");
    Settings settings = screen->settings();
    settings.language = "fr";
    choose(settings);
    EXPECT_EQ(entry()->message(), "");
}
