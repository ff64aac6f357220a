#include "GalleryEntry.h"

#include <cmath>

#include "AllocationCount.h"
#include "GalleryRowCell.h"
#include "GalleryTest.h"
#include "GalleryWorkoutFile.h"
#include "NullCanvas.h"

using namespace gallery;
using namespace gx;

namespace {

/// Files in memory: one that the user is supposed to choose.
class OneFile : public GalleryFiles {
public:
    std::string text;
    std::string error;
    bool isDismissed = false;

    void saveText_name(const std::string& newText, const std::string& suggestedName, const Done& done) override {
        if (isDismissed) return;
        if (error.empty()) text = newText;
        done({suggestedName, "", error});
    }
    void openText(const Done& done) override {
        if (!isDismissed) done({"file.json", error.empty() ? text : "", error});
    }
};

class GalleryEntryTest : public GalleryTest {
protected:
    std::shared_ptr<OneFile> files = std::make_shared<OneFile>();

    void openEntry(CGFloat width = 390, CGFloat height = 844) {
        open(width, height);
        entry()->setFiles(files);
        settle();
    }
    const Ref<GalleryEntry>& entry() { return screen->entry(); }
    const Ref<UITableView>& table() { return entry()->table(); }
    std::size_t indexOf(const std::string& name) {
        for (std::size_t i = 0; i < entry()->measurementCount(); ++i) {
            if (entry()->measurement(i)->name() == name) return i;
        }
        ADD_FAILURE() << name;
        return 0;
    }
    Ref<GalleryRowCell> row(const std::string& name) {
        const NSIndexPath path = entry()->pathOfMeasurement(indexOf(name));
        table()->scrollToRowAtIndexPath_animated(path, false);
        settle();
        return std::dynamic_pointer_cast<GalleryRowCell>(table()->cellForRowAtIndexPath(path));
    }
    std::string value(const std::string& name) { return row(name)->value(); }
    void tapRow(const std::string& name) { tap(row(name)); }
    /// The wheels of the open picker, from the left.
    std::vector<Ref<UIPickerView>> wheels() {
        const NSIndexPath path = entry()->pathOfMeasurement(*entry()->openMeasurement());
        const auto cell = table()->cellForRowAtIndexPath({path.section, path.row + 1});
        std::vector<Ref<UIPickerView>> found;
        if (cell) addWheels(cell, found);
        return found;
    }
    CGPoint middleOfColumn(const Ref<UIPickerView>& wheel, NSInteger component) {
        return middleOf(wheel->viewForRow_forComponent(wheel->selectedRowInComponent(component), component));
    }
    void turnWheel(std::size_t wheel, NSInteger component, int rows) {
        const Ref<UIPickerView> turned = wheels().at(wheel);
        const CGPoint from = middleOfColumn(turned, component);
        const double slop = rows > 0 ? 6 : -6;
        window->drag(from, {from.x, from.y - rows * turned->rowSizeForComponent(component).height - slop});
        settle();
    }
    /// Turns each column to its first row and to its last one, and each time saves and opens.
    void expectEndsToComeBack(const Ref<UIPickerView>& wheel) {
        for (NSInteger component = 0; component < wheel->numberOfComponents(); ++component) {
            for (const bool isLast : {false, true}) {
                wheel->turnToRow_inComponent(isLast ? wheel->numberOfRowsInComponent(component) - 1 : 0, component);
                NSRunLoop::mainRunLoop()->runPass();
                entry()->save();
                std::string error;
                EXPECT_EQ(GalleryWorkoutFile::workoutOfText(files->text, error), entry()->workout()) << error << files->text;
            }
        }
    }
    void choose(GallerySettings settings) {
        screen->setSettings(settings);
        settle();
    }

private:
    static void addWheels(const Ref<UIView>& view, std::vector<Ref<UIPickerView>>& found) {
        if (const auto wheel = std::dynamic_pointer_cast<UIPickerView>(view)) return found.push_back(wheel);
        for (const Ref<UIView>& below : view->subviews()) addWheels(below, found);
    }
};

} // namespace

TEST_F(GalleryEntryTest, HasARowForEachMeasurementWithItsValueAsAPersonWritesIt) {
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

TEST_F(GalleryEntryTest, ATapOpensThePickerBelowTheRowAndASecondOneClosesIt) {
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

TEST_F(GalleryEntryTest, OpeningOneClosesTheOther) {
    openEntry();
    tapRow("Calories");
    tapRow("Distance and time");
    EXPECT_EQ(entry()->openMeasurement(), 0U);
    EXPECT_EQ(wheels().size(), 2U);
    tapRow("Weight");
    EXPECT_EQ(entry()->openMeasurement(), indexOf("Weight"));
    EXPECT_EQ(table()->numberOfRowsInSection(0), 3);
}

TEST_F(GalleryEntryTest, ATapOnThePickersOwnRowClosesNothing) {
    openEntry();
    tapRow("Calories");
    const NSIndexPath path = entry()->pathOfMeasurement(indexOf("Calories"));
    const CGRect cell = table()->rectForRowAtIndexPath({path.section, path.row + 1});
    window->tap(table()->convertPoint_toView({cell.origin.x + 4, CGRectGetMidY(cell)}, window->ref()));
    settle();
    EXPECT_EQ(entry()->openMeasurement(), indexOf("Calories"));
}

TEST_F(GalleryEntryTest, TheValueInTheRowFollowsEachWheel) {
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
        EXPECT_EQ(entry()->measurement(indexOf(turn.name))->valueInWords(), turn.words);
        EXPECT_EQ(value(turn.name), turn.words);
    }
    EXPECT_EQ(entry()->workout().distance, 7300);
    EXPECT_EQ(entry()->workout().weather, 2U);
    EXPECT_EQ(entry()->workout().height, 177);
}

TEST_F(GalleryEntryTest, ClosingWhileAWheelSpinsSettlesItFirst) {
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

TEST_F(GalleryEntryTest, AFingerThatAWheelHasTakenNeverScrollsTheTable) {
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

TEST_F(GalleryEntryTest, TheOpenPickerComesIntoSight) {
    openEntry(390, 600);
    tapRow("Height");
    const NSIndexPath path = entry()->pathOfMeasurement(indexOf("Height"));
    const CGRect cell = table()->rectForRowAtIndexPath({path.section, path.row + 1});
    EXPECT_GE(CGRectGetMinY(cell), table()->bounds().origin.y);
    EXPECT_LE(CGRectGetMaxY(cell), CGRectGetMaxY(table()->bounds()));
}

// Settings

TEST_F(GalleryEntryTest, SettingsShowAtOnceAndKeepTheValues) {
    openEntry();
    const GalleryWorkout before = entry()->workout();
    tapRow("Distance");
    GallerySettings settings = screen->settings();
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

TEST_F(GalleryEntryTest, LargeTextMakesThePickersAnewAtTheirSize) {
    openEntry();
    tapRow("Calories");
    EXPECT_EQ(wheels()[0]->rowSizeForComponent(0).height, 40);
    const CGFloat rowBefore = table()->rectForRowAtIndexPath({0, 0}).size.height;
    GallerySettings settings = screen->settings();
    settings.textScale = 2;
    choose(settings);
    EXPECT_EQ(wheels()[0]->rowSizeForComponent(0).height, 80);
    EXPECT_GT(table()->rectForRowAtIndexPath({0, 0}).size.height, 1.5 * rowBefore);
}

TEST_F(GalleryEntryTest, AWheelThatSpinsLandsBeforeTheUnitsChange) {
    openEntry();
    tapRow("Distance");
    const CGPoint from = middleOfColumn(wheels()[0], 0);
    window->fling(from, {from.x, from.y - 60}, 3);
    window->tick(0.05);
    ASSERT_TRUE(wheels()[0]->isTurning());
    GallerySettings settings = screen->settings();
    settings.isMetric = false;
    choose(settings);
    EXPECT_GT(entry()->workout().intervalDistance, 1000);
    EXPECT_EQ(std::fmod(entry()->workout().intervalDistance, 1000), 0);
}

// Files

TEST_F(GalleryEntryTest, SavesAndOpensAgain) {
    openEntry();
    tapRow("Calories");
    turnWheel(0, 0, 3);
    tap(entry()->saveButton());
    EXPECT_EQ(entry()->message(), "Saved: workout.json");
    const GalleryWorkout saved = entry()->workout();
    EXPECT_EQ(saved.calories, 450);
    turnWheel(0, 0, 2);
    EXPECT_EQ(value("Calories"), "470 kcal");
    tap(entry()->openButton());
    EXPECT_EQ(entry()->message(), "Opened: file.json");
    EXPECT_EQ(entry()->workout(), saved);
    EXPECT_EQ(value("Calories"), "450 kcal");
    // And the open wheel stands on it.
    EXPECT_EQ(wheels()[0]->selectedRowInComponent(0), 45);
}

TEST_F(GalleryEntryTest, SavingSettlesAWheelThatSpins) {
    openEntry();
    tapRow("Calories");
    const CGPoint from = middleOfColumn(wheels()[0], 0);
    window->fling(from, {from.x, from.y - 60}, 3);
    window->tick(0.05);
    entry()->save();
    std::string error;
    EXPECT_EQ(GalleryWorkoutFile::workoutOfText(files->text, error), entry()->workout());
    EXPECT_GT(entry()->workout().calories, 420);
}

TEST_F(GalleryEntryTest, ADamagedFileChangesNothingAndSaysWhy) {
    openEntry();
    tapRow("Calories");
    turnWheel(0, 0, 3);
    const GalleryWorkout before = entry()->workout();
    files->text = "{\"format\"";
    tap(entry()->openButton());
    EXPECT_EQ(entry()->message(), "file.json: This file is damaged, or no workout.");
    EXPECT_EQ(entry()->workout(), before);
    EXPECT_EQ(value("Calories"), "450 kcal");
    EXPECT_EQ(files->text, "{\"format\"");
}

TEST_F(GalleryEntryTest, WhatCannotBeReadOrWrittenIsSaidAndASecondThoughtIsNot) {
    openEntry();
    const GalleryWorkout before = entry()->workout();
    files->isDismissed = true;
    tap(entry()->openButton());
    tap(entry()->saveButton());
    EXPECT_EQ(entry()->message(), "");
    files->isDismissed = false;
    files->error = "The disk is full.";
    tap(entry()->saveButton());
    EXPECT_EQ(entry()->message(), "The disk is full.");
    tap(entry()->openButton());
    EXPECT_EQ(entry()->message(), "file.json: The disk is full.");
    EXPECT_EQ(entry()->workout(), before);
    EXPECT_EQ(files->text, "");
}

TEST_F(GalleryEntryTest, WithoutFilesThereAreNoButtons) {
    openEntry();
    EXPECT_FALSE(entry()->saveButton()->isHidden());
    entry()->setFiles(nullptr);
    EXPECT_TRUE(entry()->saveButton()->isHidden());
    EXPECT_TRUE(entry()->openButton()->isHidden());
    entry()->save();
    entry()->open();
    EXPECT_EQ(entry()->message(), "");
}

TEST_F(GalleryEntryTest, WhateverTheWheelsShowCanBeSavedAndOpenedAgain) {
    openEntry();
    for (const bool isMetric : {true, false}) {
        for (const GXWeightUnit unit : {GXWeightUnitKilogram, GXWeightUnitPound, GXWeightUnitStone}) {
            GallerySettings settings = screen->settings();
            settings.isMetric = isMetric;
            settings.weightUnit = unit;
            choose(settings);
            for (std::size_t i = 0; i < entry()->measurementCount(); ++i) {
                SCOPED_TRACE(entry()->measurement(i)->name() + (isMetric ? ", metric, " : ", imperial, ") + std::to_string(unit));
                entry()->openMeasurement_animated(i, false);
                settle();
                for (const Ref<UIPickerView>& wheel : wheels()) expectEndsToComeBack(wheel);
            }
        }
    }
}

TEST_F(GalleryEntryTest, AWeightBelowTheWheelOfItsUnitStandsOnTheFirstRow) {
    openEntry();
    GallerySettings settings = screen->settings();
    settings.weightUnit = GXWeightUnitStone;
    choose(settings);
    GalleryWorkout light;
    light.weight = 16; // Two and a half stone; the wheel begins at three.
    entry()->setWorkout(light);
    settle();
    EXPECT_EQ(value("Weight"), "3.0 st");
    EXPECT_EQ(entry()->workout().weight, 16);
}

TEST_F(GalleryEntryTest, WhatOnlyTheWindowDrawsByLeavesTheRowsAsTheyAre) {
    openEntry();
    tapRow("Height");
    turnWheel(0, 1, 1); // To feet, on the wheel itself.
    const Ref<UITableView> before = table();
    GallerySettings settings = screen->settings();
    settings.style = UIUserInterfaceStyle::Dark;
    settings.contrast = UIAccessibilityContrast::High;
    settings.reducesMotion = true;
    choose(settings);
    EXPECT_EQ(table(), before);
    EXPECT_EQ(value("Height"), "5' 9\"");
}

TEST_F(GalleryEntryTest, AMessageGoesWithItsLanguage) {
    openEntry();
    tap(entry()->saveButton());
    EXPECT_NE(entry()->message(), "");
    GallerySettings settings = screen->settings();
    settings.language = "fr";
    choose(settings);
    EXPECT_EQ(entry()->message(), "");
}

// Layout

TEST_F(GalleryEntryTest, EveryPickerFitsFromASmallPhoneToADesktop) {
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

TEST_F(GalleryEntryTest, ARotationKeepsTheOpenPickerAndFillsTheRow) {
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

TEST_F(GalleryEntryTest, ScrollingTakesNothingFromTheHeapOnceAllRowsWereSeen) {
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
