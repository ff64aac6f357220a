#include "EntryScreenTest.h"

#include "AllocationCount.h"
#include "NullCanvas.h"

using namespace gallery;
using namespace gx;

TEST_F(EntryScreenTest, HasARowForEachMeasurementWithItsValueText) {
    openEntry();
    const std::vector<std::pair<std::string, std::string>> expected = {
        {"Distance and time", "5.3 km, 0:27 h"},
        {"Average speed", "12.5 km/h"},
        {"Calories", "420 kcal"},
        {"Distance", "1.00 km"},
        {"Duration", "0:04:45"},
        {"Pace", "4:45 min/km"},
        {"Heart rate", "AVG 142, MAX 171"},
        {"Resting pulse", "60 bpm"},
        {"Weather", "partly cloudy, 18 °C"},
        {"Water temperature", "20 °C"},
        {"Weight", "72.5 kg"},
        {"Height", "176 cm"},
    };
    ASSERT_EQ(entry()->measurementCount(), expected.size());
    for (const auto& [name, words] : expected) {
        SCOPED_TRACE(name);
        EXPECT_EQ(row(name)->name(), name);
        EXPECT_EQ(value(name), words);
    }
}

TEST_F(EntryScreenTest, ATapOpensThePickerBelowTheRowAndASecondTapClosesIt) {
    openEntry();
    const NSInteger before = table()->numberOfRowsInSection(0);
    tapRow("Average speed");
    EXPECT_EQ(entry()->openMeasurement(), 1U);
    EXPECT_EQ(table()->numberOfRowsInSection(0), before + 1);
    ASSERT_EQ(wheels().size(), 1U);
    const CGRect picker = wheels()[0]->convertRect_toView(wheels()[0]->bounds(), window->ref());
    EXPECT_GE(CGRectGetMinY(picker),
              CGRectGetMaxY(row("Average speed")->convertRect_toView(row("Average speed")->bounds(), window->ref())));
    tapRow("Average speed");
    EXPECT_EQ(entry()->openMeasurement(), std::nullopt);
    EXPECT_EQ(table()->numberOfRowsInSection(0), before);
}

TEST_F(EntryScreenTest, OpeningOneClosesTheOther) {
    openEntry();
    tapRow("Calories");
    tapRow("Distance and time");
    EXPECT_EQ(entry()->openMeasurement(), 0U);
    EXPECT_EQ(wheels().size(), 2U);
    tapRow("Weight");
    EXPECT_EQ(entry()->openMeasurement(), indexOf("Weight"));
    EXPECT_EQ(table()->numberOfRowsInSection(0), 3);
}

TEST_F(EntryScreenTest, ATapOnThePickersOwnRowClosesNothing) {
    openEntry();
    tapRow("Calories");
    const NSIndexPath path = entry()->pathOfMeasurement(indexOf("Calories"));
    const CGRect cell = table()->rectForRowAtIndexPath({path.section, path.row + 1});
    window->tap(table()->convertPoint_toView({cell.origin.x + 4, CGRectGetMidY(cell)}, window->ref()));
    settle();
    EXPECT_EQ(entry()->openMeasurement(), indexOf("Calories"));
}

TEST_F(EntryScreenTest, TheValueInTheRowFollowsEachWheel) {
    openEntry();
    struct Turn {
        std::string name;
        std::size_t wheel;
        NSInteger component;
        int rows;
        std::string words;
    };
    const std::vector<Turn> turns = {
        {"Distance and time", 0, 0, 2, "7.3 km, 0:27 h"},
        {"Distance and time", 1, 0, 1, "7.3 km, 1:27 h"},
        {"Average speed", 0, 2, 2, "12.7 km/h"},
        {"Calories", 0, 0, 1, "430 kcal"},
        {"Distance", 0, 3, 2, "1.02 km"},
        {"Duration", 0, 4, 2, "0:04:47"},
        {"Pace", 0, 0, 1, "5:45 min/km"},
        {"Heart rate", 0, 0, 2, "AVG 144, MAX 171"},
        {"Resting pulse", 0, 0, -2, "58 bpm"},
        {"Weather", 0, 0, 1, "cloudy, 18 °C"},
        {"Weather", 1, 0, -1, "cloudy, 17 °C"},
        {"Water temperature", 0, 0, 1, "21 °C"},
        {"Weight", 0, 2, 1, "72.6 kg"},
        {"Height", 0, 0, 1, "177 cm"},
    };
    for (const Turn& turn : turns) {
        SCOPED_TRACE(turn.name);
        if (entry()->openMeasurement() != indexOf(turn.name)) tapRow(turn.name);
        turnWheel(turn.wheel, turn.component, turn.rows);
        EXPECT_EQ(entry()->measurement(indexOf(turn.name))->valueText(), turn.words);
        EXPECT_EQ(value(turn.name), turn.words);
    }
    EXPECT_EQ(entry()->workout().distance, 7300);
    EXPECT_EQ(entry()->workout().weather, 2U);
    EXPECT_EQ(entry()->workout().height, 177);
}

TEST_F(EntryScreenTest, ARowHasTheSameTextClosedOpenAndAfterANewWorkout) {
    openEntry();
    Workout other;
    other.distance = 12'340;
    other.averageHeartRate = 0;
    other.weather = 4;
    other.height = 163;
    for (const bool isMetric : {true, false}) {
        Settings settings = screen->settings();
        settings.isMetric = isMetric;
        settings.weightUnit = isMetric ? GXWeightUnitKilogram : GXWeightUnitStone;
        choose(settings); // Makes all rows again, with closed pickers but one.
        for (std::size_t i = 0; i < entry()->measurementCount(); ++i) {
            SCOPED_TRACE(entry()->measurement(i)->name());
            entry()->setWorkout(Workout());
            const std::string closed = entry()->measurement(i)->valueText();
            entry()->openMeasurement_animated(i, false);
            settle();
            EXPECT_EQ(entry()->measurement(i)->valueText(), closed);
            entry()->setWorkout(other);
            const std::string changed = entry()->measurement(i)->valueText();
            settle();
            EXPECT_EQ(entry()->measurement(i)->valueText(), changed);
            EXPECT_EQ(value(entry()->measurement(i)->name()), changed);
            entry()->setWorkout(Workout());
            EXPECT_EQ(entry()->measurement(i)->valueText(), closed);
        }
    }
}

TEST_F(EntryScreenTest, ClosingFinishesASpinFirst) {
    openEntry();
    tapRow("Calories");
    const CGPoint from = middleOfColumn(wheels()[0], 0);
    window->fling(from, {from.x, from.y - 60}, 3);
    window->tick(0.05);
    const Ref<UIPickerView> wheel = wheels()[0];
    ASSERT_TRUE(wheel->isTurning());
    entry()->openMeasurement_animated(std::nullopt, true);
    EXPECT_FALSE(wheel->isTurning());
    const double landed = entry()->workout().calories;
    EXPECT_GT(landed, 420);
    settle();
    EXPECT_EQ(entry()->workout().calories, landed);
    EXPECT_EQ(value("Calories"), std::to_string(static_cast<int>(landed)) + " kcal");
}

TEST_F(EntryScreenTest, ATouchOnAWheelNeverScrollsTheTable) {
    openEntry(390, 500);
    tapRow("Calories");
    const CGFloat before = table()->contentOffset().y;
    const CGPoint from = middleOfColumn(wheels()[0], 0);
    window->drag(from, {from.x, from.y + 4000}); // Far beyond the first row.
    settle();
    EXPECT_EQ(entry()->workout().calories, 0);
    EXPECT_EQ(table()->contentOffset().y, before);
    window->drag(from, {from.x, from.y + 400});
    settle();
    EXPECT_EQ(table()->contentOffset().y, before);
}

TEST_F(EntryScreenTest, TheOpenPickerComesIntoSight) {
    openEntry(390, 600);
    tapRow("Height");
    const NSIndexPath path = entry()->pathOfMeasurement(indexOf("Height"));
    const CGRect cell = table()->rectForRowAtIndexPath({path.section, path.row + 1});
    EXPECT_GE(CGRectGetMinY(cell), table()->bounds().origin.y);
    EXPECT_LE(CGRectGetMaxY(cell), CGRectGetMaxY(table()->bounds()));
}

// Layout

TEST_F(EntryScreenTest, EveryPickerFitsFromASmallPhoneToADesktop) {
    for (const CGSize size : {CGSizeMake(320, 568), CGSizeMake(390, 844), CGSizeMake(844, 390), CGSizeMake(1200, 800)}) {
        openEntry(size.width, size.height);
        for (std::size_t i = 0; i < entry()->measurementCount(); ++i) {
            SCOPED_TRACE(std::to_string(size.width) + " wide, " + entry()->measurement(i)->name());
            entry()->openMeasurement_animated(i, false);
            settle();
            expectInsideParents(screen);
            for (const Ref<UIPickerView>& wheel : wheels()) {
                EXPECT_GT(wheel->bounds().size.height, 3 * wheel->rowSizeForComponent(0).height - 1);
                EXPECT_TRUE(wheel->viewForRow_forComponent(wheel->selectedRowInComponent(0), 0));
            }
        }
    }
}

TEST_F(EntryScreenTest, ARotationKeepsTheOpenPickerAndFillsTheRow) {
    openEntry(390, 844);
    tapRow("Weather");
    screen->setFrame(CGRectMake(0, 0, 844, 390));
    settle();
    ASSERT_EQ(entry()->openMeasurement(), indexOf("Weather"));
    const NSIndexPath path = entry()->pathOfMeasurement(indexOf("Weather"));
    table()->scrollToRowAtIndexPath_animated({path.section, path.row + 1}, false);
    settle();
    ASSERT_EQ(wheels().size(), 2U);
    const CGFloat width = table()->bounds().size.width;
    EXPECT_EQ(wheels()[0]->bounds().size.width, 0.5 * width - 30);
    EXPECT_EQ(wheels()[1]->bounds().size.width, 0.5 * width + 30);
}

TEST_F(EntryScreenTest, ScrollingTakesNothingFromTheHeapOnceAllRowsWereSeen) {
    openEntry(390, 400);
    tapRow("Calories");
    NullCanvas canvas;
    const auto scroll = [&](double points) {
        for (int i = 0; i < 60; ++i) {
            window->scrollPoints({4, 380}, points); // Beside the columns of the open wheel.
            window->tick(TestWindow::frame);
            (*window)->draw(canvas);
        }
    };
    const auto upAndDown = [&] {
        table()->setContentOffset({0, 0});
        scroll(17);
        EXPECT_GT(table()->contentOffset().y, 400);
        scroll(-17);
        EXPECT_EQ(table()->contentOffset().y, 0);
    };
    upAndDown();
    EXPECT_EQ(allocationsOf(upAndDown), 0U);
}
